// trovane-sim's doors: exit statuses, errors as JSON, the list verb, the base
// set before a game, and the new-game and save-name refusals in the core's words.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "support/sim_run.h"
#include "support/temp_folder.h"
#include "support/tiny_world.h"

namespace fs = std::filesystem;

namespace {

struct SimRun {
    int status;
    std::string out;
};

// trovane-sim on the folder, stdout and stderr together.
SimRun sim(const fs::path& data, const std::string& args) {
    auto [status, out] = trovane::test::runSim(data.string(), "--seed 3 " + args);
    return {status, out};
}

// Every file of the folder with its bytes, to show that a run changed nothing.
std::map<std::string, std::string> snapshot(const fs::path& dir) {
    std::map<std::string, std::string> files;
    for (const auto& e : fs::directory_iterator(dir))
        files[e.path().filename().string()] = trovane::test::fileBytes(e.path());
    return files;
}

const std::string kPlayer = "new --forename Ann --surname Lee --born 1980-12-24 --nationality Scottish ";
const std::string kFound = "--found Quarry --continent Europe --country England --city London --style 'Indie Rock'";

class SimDoors : public ::testing::Test {
protected:
    trovane::test::TempFolder folder;
    fs::path data() const { return folder.path(); }
    void SetUp() override { trovane::test::writeTinyBaseWorld(folder.path()); }
};

}  // namespace

TEST_F(SimDoors, AVerbThatNeedsAGameRefusesWithStatusOneWhenThereIsNone) {
    auto before = snapshot(data());
    for (const char* verb : {"status", "advance 1", "news", "save 1", "quit", "schedule 2004-08-05"}) {
        SimRun r = sim(data(), verb);
        EXPECT_EQ(r.status, 1) << verb;
        EXPECT_EQ(r.out, "trovane-sim: No game in progress: start one with new, or load a slot.\n") << verb;
    }
    EXPECT_EQ(snapshot(data()), before);
}

TEST_F(SimDoors, WithJsonAnErrorIsAnObjectWithItsStatus) {
    EXPECT_EQ(sim(data(), "--json status").out,
              "{\"error\":\"No game in progress: start one with new, or load a slot.\",\"status\":1}\n");
    SimRun bad = sim(data(), "--json frob");
    EXPECT_EQ(bad.status, 2);
    EXPECT_EQ(bad.out.rfind("{\"error\":\"There is no verb frob. The verbs are: init, ", 0), 0u) << bad.out;
    EXPECT_NE(bad.out.find(", list, "), std::string::npos) << bad.out;
    EXPECT_NE(bad.out.find(".\",\"status\":2}\n"), std::string::npos) << bad.out;
}

TEST_F(SimDoors, ABadCommandLineIsStatusTwoAndTheParsersCodesNeverShow) {
    SimRun unknown = sim(data(), "frob");
    EXPECT_EQ(unknown.status, 2);
    for (const char* verb : {"init", "status", "advance", "dump", "new", "save", "load", "slots", "list"})
        EXPECT_NE(unknown.out.find(verb), std::string::npos) << verb;
    EXPECT_EQ(sim(data(), "").status, 2);
    EXPECT_EQ(sim(data(), "status --bogus").status, 2);
    EXPECT_EQ(sim(data(), "save 10").status, 2);
    EXPECT_EQ(sim(data(), "list planets").status, 2);
    SimRun help = sim(data(), "--help");
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.out.find("5  broken data or a broken slot"), std::string::npos);
}

TEST_F(SimDoors, BrokenDataIsStatusFiveWithTheFileNamed) {
    ASSERT_EQ(sim(data(), "init").status, 0);
    fs::remove(data() / "band.vel");
    SimRun r = sim(data(), "status");
    EXPECT_EQ(r.status, 5);
    EXPECT_NE(r.out.find("band.vel"), std::string::npos) << r.out;
}

TEST_F(SimDoors, ListAndDumpReadTheBaseSetBeforeAGameAndLeaveNoWorkingSet) {
    auto before = snapshot(data());
    EXPECT_EQ(sim(data(), "--json list labels").out,
              "[{\"id\":1,\"name\":\"Greystone Music\",\"city\":\"London\",\"style\":\"All Styles\"}]\n");
    EXPECT_EQ(sim(data(), "list cities --country Scotland").out, "   2  Glasgow\n");
    EXPECT_EQ(sim(data(), "list styles").out, "      All Styles\n   1  Indie Rock\n   2  Legend\n");
    SimRun noCountry = sim(data(), "list cities --country Wales");
    EXPECT_EQ(noCountry.status, 2);
    EXPECT_EQ(noCountry.out, "trovane-sim: There is no country \"Wales\".\n");
    SimRun dump = sim(data(), "dump label");
    EXPECT_EQ(dump.status, 0);
    EXPECT_NE(dump.out.find("Greystone Music"), std::string::npos) << dump.out;
    EXPECT_EQ(sim(data(), "dump nosuch").status, 2);
    EXPECT_EQ(snapshot(data()), before);
}

TEST_F(SimDoors, NewRefusesWithTheFormsSentenceAndStartsNothing) {
    auto before = snapshot(data());
    SimRun continent = sim(data(), kPlayer + "--found Q --continent Europa --country England --city London");
    EXPECT_EQ(continent.status, 2);
    EXPECT_EQ(continent.out,
              "trovane-sim: There is no continent \"Europa\". Choose one of: Africa, Asia, Europe, North America, "
              "Oceania, South America.\n");
    SimRun nationality =
        sim(data(), "new --forename Ann --surname Lee --born 1980-12-24 --nationality British " + kFound);
    EXPECT_EQ(nationality.out,
              "trovane-sim: There is no nationality \"British\". See trovane-sim list nationalities.\n");
    EXPECT_EQ(snapshot(data()), before);
}

TEST_F(SimDoors, ARefusedNewLeavesTheGameInProgressAsItWas) {
    ASSERT_EQ(sim(data(), kPlayer + kFound).status, 0);
    std::string before = trovane::test::fileBytes(data() / "svar.vel");
    std::string labels = trovane::test::fileBytes(data() / "label.vel");
    EXPECT_EQ(sim(data(), kPlayer + "--found ' ' --continent Europe --country England --city London").status, 2);
    EXPECT_EQ(trovane::test::fileBytes(data() / "svar.vel"), before);
    EXPECT_EQ(trovane::test::fileBytes(data() / "label.vel"), labels);

    // Save names: 32 characters are taken, one more is refused and the slot stays free.
    EXPECT_EQ(sim(data(), "save 1 --name " + std::string(33, 'n')).status, 2);
    EXPECT_EQ(sim(data(), "save 3 --name " + std::string(32, 'n')).status, 0);
    std::string slots = sim(data(), "slots").out;
    EXPECT_NE(slots.find("1 : None\n2 : None\n3 : " + std::string(32, 'n') + "\n"), std::string::npos) << slots;
}

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

// trovane-sim on the folder: its status and what it said, stdout and stderr together.
std::pair<int, std::string> sim(const fs::path& data, const std::string& args) {
    return trovane::test::runSim(data.string(), "--seed 3 " + args);
}
using trovane::test::said;

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
    for (const char* verb : {"status", "advance 1", "news", "save 1", "quit", "schedule 2004-08-05"})
        EXPECT_EQ(sim(data(), verb), said(1, "No game in progress: start one with new, or load a slot.")) << verb;
    EXPECT_EQ(snapshot(data()), before);
}

TEST_F(SimDoors, WithJsonAnErrorIsAnObjectWithItsStatus) {
    EXPECT_EQ(sim(data(), "--json status").second,
              "{\"error\":\"No game in progress: start one with new, or load a slot.\",\"status\":1}\n");
    auto [status, out] = sim(data(), "--json frob");
    EXPECT_EQ(status, 2);
    EXPECT_EQ(out.rfind("{\"error\":\"There is no verb frob. The verbs are: init, ", 0), 0u) << out;
    EXPECT_NE(out.find(", list, "), std::string::npos) << out;
    EXPECT_NE(out.find(".\",\"status\":2}\n"), std::string::npos) << out;
}

TEST_F(SimDoors, ABadCommandLineIsStatusTwoAndTheParsersCodesNeverShow) {
    auto [status, out] = sim(data(), "frob");
    EXPECT_EQ(status, 2);
    for (const char* verb : {"init", "status", "advance", "dump", "new", "save", "load", "slots", "list"})
        EXPECT_NE(out.find(verb), std::string::npos) << verb;
    for (const char* args : {"", "status --bogus", "save 10", "list planets"}) EXPECT_EQ(sim(data(), args).first, 2);
    auto help = sim(data(), "--help");
    EXPECT_EQ(help.first, 0);
    EXPECT_NE(help.second.find("5  broken data or a broken slot"), std::string::npos);
}

TEST_F(SimDoors, BrokenDataIsStatusFiveWithTheFileNamed) {
    ASSERT_EQ(sim(data(), "init").first, 0);
    fs::remove(data() / "band.vel");
    auto [status, out] = sim(data(), "status");
    EXPECT_EQ(status, 5);
    EXPECT_NE(out.find("band.vel"), std::string::npos) << out;
}

TEST_F(SimDoors, ListAndDumpReadTheBaseSetBeforeAGameAndLeaveNoWorkingSet) {
    auto before = snapshot(data());
    EXPECT_EQ(sim(data(), "--json list labels").second,
              "[{\"id\":1,\"name\":\"Greystone Music\",\"city\":\"London\",\"style\":\"All Styles\"}]\n");
    EXPECT_EQ(sim(data(), "list cities --country Scotland").second, "   2  Glasgow\n");
    EXPECT_EQ(sim(data(), "list styles").second, "      All Styles\n   1  Indie Rock\n   2  Legend\n");
    EXPECT_EQ(sim(data(), "list cities --country Wales"), said(2, "There is no country \"Wales\"."));
    auto [status, out] = sim(data(), "dump label");
    EXPECT_EQ(status, 0);
    EXPECT_NE(out.find("Greystone Music"), std::string::npos) << out;
    EXPECT_EQ(sim(data(), "dump nosuch").first, 2);
    EXPECT_EQ(snapshot(data()), before);
}

TEST_F(SimDoors, NewRefusesWithTheFormsSentenceAndStartsNothing) {
    auto before = snapshot(data());
    EXPECT_EQ(sim(data(), kPlayer + "--found Q --continent Europa --country England --city London"),
              said(2,
                   "There is no continent \"Europa\". Choose one of: Africa, Asia, Europe, North America, "
                   "Oceania, South America."));
    EXPECT_EQ(sim(data(), "new --forename Ann --surname Lee --born 1980-12-24 --nationality British " + kFound).second,
              "trovane-sim: There is no nationality \"British\". See trovane-sim list nationalities.\n");
    EXPECT_EQ(snapshot(data()), before);
}

TEST_F(SimDoors, ARefusedNewLeavesTheGameInProgressAsItWas) {
    ASSERT_EQ(sim(data(), kPlayer + kFound).first, 0);
    std::string before = trovane::test::fileBytes(data() / "svar.vel");
    std::string labels = trovane::test::fileBytes(data() / "label.vel");
    EXPECT_EQ(sim(data(), kPlayer + "--found ' ' --continent Europe --country England --city London").first, 2);
    EXPECT_EQ(trovane::test::fileBytes(data() / "svar.vel"), before);
    EXPECT_EQ(trovane::test::fileBytes(data() / "label.vel"), labels);

    // Save names: 32 characters are taken, one more is refused and the slot stays free.
    EXPECT_EQ(sim(data(), "save 1 --name " + std::string(33, 'n')).first, 2);
    EXPECT_EQ(sim(data(), "save 3 --name " + std::string(32, 'n')).first, 0);
    std::string slots = sim(data(), "slots").second;
    EXPECT_NE(slots.find("1 : None\n2 : None\n3 : " + std::string(32, 'n') + "\n"), std::string::npos) << slots;
}

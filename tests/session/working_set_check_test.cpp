#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "session/session_record.h"
#include "support/folder_files.h"
#include "support/game_test.h"
#include "support/sim_run.h"
#include "world/dates.h"

using namespace trovane;
namespace fs = std::filesystem;
using test::folderFiles;
constexpr auto sim = test::runSim;

namespace {

struct SetDamage {
    const char* what;
    void (*apply)(const fs::path& dataDir);
    const char* fault;
};

// A game in progress: one label, the player's, and the years 2004 and 2005.
class WorkingSet : public test::GameTest {
protected:
    fs::path dir = eg.folder.path();

    void SetUp() override {
        g.label.rec = LabelRecord{.name = "Quarry Records"};
        g.label.append();
        g.player.playerLabel = 1;
        commitWorkingGame(g);
        closeAllTables(g);
    }
    void setPlayerLabel(int16_t label) {
        readSessionFile(g, workingSessionFile(g));
        g.player.playerLabel = label;
        writeSessionFile(g, workingSessionFile(g));
    }
    // trovane-sim refuses the set with status 5, naming the fault.
    void expectRefused(const std::string& fault) {
        auto [status, why] = sim(dir, "status");
        EXPECT_EQ(status, 5);
        EXPECT_NE(why.find(fault), std::string::npos) << why;
    }
};

class BrokenWorkingSet : public WorkingSet, public ::testing::WithParamInterface<SetDamage> {};

TEST_F(WorkingSet, AWholeSetIsContinuedWithAPlayerLabelFromOneToItsLast) {
    auto [status, out] = sim(dir, "status");
    EXPECT_EQ(status, 0) << out;
    setPlayerLabel(2);  // one past the one label
    expectRefused("svar.vel names player label 2; label.vel has 1");
    setPlayerLabel(0);  // no player label while labels exist: not the empty set init makes
    expectRefused("svar.vel names player label 0");
}

TEST_P(BrokenWorkingSet, IsRefusedByNameWithStatusFiveAndNothingWritten) {
    GetParam().apply(dir);
    auto before = folderFiles(dir);
    auto [status, out] = sim(dir, "advance 1");
    EXPECT_EQ(status, 5) << out;
    EXPECT_NE(out.find(GetParam().fault), std::string::npos) << out;
    EXPECT_EQ(folderFiles(dir), before);
}

void zeroFile(const fs::path& file) {
    auto size = fs::file_size(file);
    std::ofstream(file, std::ios::binary | std::ios::trunc) << std::string(size, '\0');
}

INSTANTIATE_TEST_SUITE_P(
    WorkingSet, BrokenWorkingSet,
    ::testing::Values(
        SetDamage{"ATableMissing", [](const fs::path& d) { fs::remove(d / "band.vel"); }, "band.vel is missing"},
        SetDamage{"ATheGameFillsMissing", [](const fs::path& d) { fs::remove(d / "news.vel"); }, "news.vel is missing"},
        SetDamage{"ADayFileMissing", [](const fs::path& d) { fs::remove(d / "2005.vel"); }, "2005.vel is missing"},
        SetDamage{"TheSessionMissing", [](const fs::path& d) { fs::remove(d / "svar.vel"); }, "svar.vel is missing"},
        SetDamage{"AShortFile", [](const fs::path& d) { fs::resize_file(d / "label.vel", 649); },
                  "label.vel is 649 bytes, not a whole number of 650-byte records"},
        // 2004 has 366 days of 4,004 bytes; one day less is still whole records.
        SetDamage{"AShortDayFile", [](const fs::path& d) { fs::resize_file(d / "2004.vel", 365 * 4004); },
                  "the day index 2004.vel does not hold every day of 2004"},
        SetDamage{"AZeroedSession", [](const fs::path& d) { zeroFile(d / "svar.vel"); },
                  "svar.vel does not hold a game"},
        SetDamage{"TwoSessionRecords",
                  [](const fs::path& d) {
                      std::ifstream in(d / "svar.vel", std::ios::binary);
                      std::string one(std::istreambuf_iterator<char>(in), {});
                      std::ofstream(d / "svar.vel", std::ios::binary | std::ios::app) << one;
                  },
                  "svar.vel holds 2 session records, not one"}),
    [](const auto& info) { return std::string(info.param.what); });

TEST_F(WorkingSet, AGameLongPastTheLastYearOfItsScheduleGoesOn) {
    readSessionFile(g, workingSessionFile(g));
    g.gameDate = serialFromCivil(2014, 8, 5);  // the schedule still ends with 2005
    writeSessionFile(g, workingSessionFile(g));
    auto [status, out] = sim(dir, "status");
    EXPECT_EQ(status, 0) << out;
    g.lastScheduleYear = 2003;  // before the first year, 2004: out of order
    writeSessionFile(g, workingSessionFile(g));
    expectRefused("svar.vel does not hold a game");
}

}  // namespace

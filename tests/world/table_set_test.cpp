// Opening and copying the table set, and the files used one operation at a time.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "events/scores.h"
#include "floor/preferences.h"
#include "production/charts.h"
#include "support/game_test.h"
#include "support/sim_run.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

using test::fatalMessage;
using ::testing::HasSubstr;
using TableSet = test::GameTest;

TEST_F(TableSet, TablesTheGameFillsAreCreatedEmptyAndAMissingOrBrokenWorldTableIsAnError) {
    closeAllTables(g);
    const char* created[] = {"news", "schedule", "offer", "shortlist", "chartrecs"};
    for (auto stem : created) fs::remove(g.dataDir / (std::string(stem) + ".vel"));
    openAllTables(g, "vel");
    flushAllTables(g);
    for (auto stem : created) {
        EXPECT_EQ(recordCount(g, *fileNoByTableName(stem)), 1) << stem;
        EXPECT_TRUE(fs::exists(g.dataDir / (std::string(stem) + ".vel"))) << stem;
    }
    closeAllTables(g);
    fs::remove(g.dataDir / "country.vel");
    EXPECT_THAT(fatalMessage([&] { openAllTables(g, "vel"); }), HasSubstr("country.vel"));
    closeAllTables(g);
    std::ofstream(g.dataDir / "country.vel", std::ios::binary) << std::string(CountryRecord::kLength + 1, 'x');
    EXPECT_THAT(fatalMessage([&] { openAllTables(g, "vel"); }), HasSubstr("country.vel"));
}

// The saved set's extension names only the tables of the set; working tables
// stay .vel and the player's own files .gam.
TEST_F(TableSet, OpensEachTableUnderItsOwnFileName) {
    closeAllTables(g);
    copyTableSet(g, "vel", "sg0");
    struct Case {
        FileNo file;
        const char* ext;
        const char* name;
    };
    for (auto c : {Case{FileNo::fileBand, "sg0", "band.sg0"}, Case{FileNo::fileSchedule, "sg0", "schedule.vel"},
                   Case{FileNo::fileHighScore, "sg0", "highscore.gam"}, Case{FileNo::filePrefs, "vel", "prefs.gam"}}) {
        openTable(g, c.file, c.ext);
        EXPECT_EQ(tableByNumber(g, c.file).path().filename(), c.name);
        closeTable(g, c.file);
        EXPECT_FALSE(tableByNumber(g, c.file).isOpen());
    }
    EXPECT_THAT(fatalMessage([&] { openTable(g, FileNo::fileFact); }), HasSubstr("fact.gam"));
    EXPECT_THROW(openTable(g, FileNo::fileDay), FatalError);
}

TEST_F(TableSet, CopiesAllFortyNineFilesOverTheTargetAndRefusesAnOpenTableOrAMissingSource) {
    g.band.rec.name = "Saved";
    g.band.append();
    EXPECT_THAT(fatalMessage([&] { copyTableSet(g, "vel", "sg1"); }), HasSubstr("still open"));
    EXPECT_FALSE(fs::exists(g.dataDir / "artist.sg1"));
    closeAllTables(g);
    std::ofstream(g.dataDir / "chart9.vel", std::ios::binary) << std::string(ChartRow::kLength, '\1');
    std::ofstream(g.dataDir / "band.sg1", std::ios::binary) << "stale";
    copyTableSet(g, "vel", "sg1");
    ASSERT_EQ(tableSetStems().size(), 49u);
    for (auto stem : tableSetStems()) {
        std::string s(stem);
        ASSERT_TRUE(fs::exists(g.dataDir / (s + ".sg1"))) << s;
        EXPECT_EQ(test::fileBytes(g.dataDir / (s + ".sg1")), test::fileBytes(g.dataDir / (s + ".vel"))) << s;
    }
    EXPECT_EQ(fs::file_size(g.dataDir / "band.sg1"), BandRecord::kLength);
    EXPECT_EQ(fs::file_size(g.dataDir / "chart9.sg1"), ChartRow::kLength);

    fs::remove(g.dataDir / "chart7.vel");
    EXPECT_THAT(fatalMessage([&] { copyTableSet(g, "vel", "sg2"); }), HasSubstr("chart7.vel"));
}

TEST_F(TableSet, ADayIndexIsOpenedAndClosedByItsUser) {
    EXPECT_THAT(fatalMessage([&] { openDayFile(g, 2031); }), HasSubstr("2031.vel"));

    copyEmptyFile(g, g.dataDir / "2031.vel");
    openDayFile(g, 2031);
    g.dayIndex->entries[0] = 17;
    g.dayIndex->count = 1;
    g.dayIndex.write(1);
    EXPECT_THAT(fatalMessage([&] { openDayFile(g, 2032); }), HasSubstr("2031.vel"));
    closeDayFile(g);
    EXPECT_FALSE(g.dayIndex.isOpen());
    // Closed, the day waits for the commit; the commit writes it.
    EXPECT_EQ(fs::file_size(g.dataDir / "2031.vel"), 0U);
    flushAllTables(g);
    EXPECT_EQ(fs::file_size(g.dataDir / "2031.vel"), DayRecord::kLength);

    g.dayIndex.rec = DayRecord{};
    openDayFile(g, 2031);
    g.dayIndex.read(1);
    closeDayFile(g);
    EXPECT_EQ(std::tuple(g.dayIndex->count, g.dayIndex->entries[0]), std::tuple(1, 17));
}

TEST_F(TableSet, ADayFileClosedUnchangedIsKeptUntilFilesChangeBesideTheTables) {
    auto dayOneCount = [&] {
        openDayFile(g, 2031);
        const int32_t count = g.dayIndex.recordCount() > 1 ? (g.dayIndex.read(1), g.dayIndex->count) : -1;
        closeDayFile(g);
        return count;
    };
    auto writeDayOne = [&](int32_t count) {
        openDayFile(g, 2031);
        g.dayIndex.rec = DayRecord{.count = count};
        g.dayIndex.write(1);
        closeDayFile(g);
    };
    copyEmptyFile(g, g.dataDir / "2031.vel");
    writeDayOne(1);
    flushAllTables(g);
    EXPECT_EQ(dayOneCount(), 1);  // read from the file and kept
    // A change made behind the tables' back is not seen: the kept bytes are used.
    std::ofstream(g.dataDir / "2031.vel", std::ios::binary | std::ios::trunc);
    EXPECT_EQ(dayOneCount(), 1);
    // A change through the table is seen, before and after its commit.
    writeDayOne(2);
    EXPECT_EQ(dayOneCount(), 2);
    flushAllTables(g);
    EXPECT_EQ(dayOneCount(), 2);
    // Files replaced beside the tables are read again.
    copyEmptyFile(g, g.dataDir / "2031.vel");
    EXPECT_EQ(dayOneCount(), -1);
    writeDayOne(3);
    flushAllTables(g);
    EXPECT_EQ(dayOneCount(), 3);
    std::ofstream(g.dataDir / "2031.vel", std::ios::binary | std::ios::trunc);
    closeAllTables(g);
    openAllTables(g, "vel");
    EXPECT_EQ(dayOneCount(), -1);
}

TEST_F(TableSet, ChartsPrefsAndHighScoresAreClosedBetweenUses) {
    tidyCharts(g);
    EXPECT_FALSE(g.chart.isOpen());

    g.prefs->minutesPlayed = 61;
    writePrefs(g);
    readPrefs(g);
    EXPECT_FALSE(g.prefs.isOpen());
    updateHighScoreTable(g);
    EXPECT_FALSE(g.highscore.isOpen());
    flushAllTables(g);  // a day's high score reaches the file with the day
    EXPECT_EQ(fs::file_size(g.dataDir / "highscore.gam"), HighScoreRecord::kLength);
}

}  // namespace

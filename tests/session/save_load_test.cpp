// Save slots: what a save holds, what a load brings back, and that a broken or
// half-written slot never reaches the running game.
#include <gtest/gtest.h>

#include <fstream>

#include "floor/preferences.h"
#include "session/save_load.h"
#include "support/amend.h"
#include "support/folder_files.h"
#include "support/game_test.h"
#include "world/dates.h"
#include "world/manifest.h"

using namespace trovane;
namespace fs = std::filesystem;
using test::folderFiles;

namespace {

struct SaveSlots : test::GameTest {
    void SetUp() override {
        // A small game in progress: a label, a band, a news item, three years of schedule.
        g.label.rec =
            LabelRecord{.name = "Quarry Records", .cashBalance = moneyUnits(250000), .reputation = {40, 20, 15, 10, 5}};
        g.player.playerLabel = narrow<int16_t>(g.label.append());
        g.player.playerForename = "Ann";
        g.player.playerSurname = "Lee";
        g.player.gameNumber = 7;
        g.band.rec = BandRecord{.name = "The Paper Lanterns"};
        g.band.append();
        g.gameDate = serialFromCivil(2006, 3, 9);
        g.lastScheduleYear = 2006;
        makeYearFiles();
    }

    void renameBand(const char* name) {
        amend(g.band, 1, [&] { g.band->name = name; });
    }
    void makeYearFiles() {
        for (int y = g.firstScheduleYear; y <= g.lastScheduleYear; ++y) {
            fs::path p = dataFile(g, std::to_string(y), "vel");
            if (fs::exists(p)) continue;
            copyEmptyFile(g, p);
            openDayFile(g, y);
            g.dayIndex.rec = DayRecord{};
            for (int d = 1; d <= daysInYear(y); ++d) g.dayIndex.write(d);
            closeDayFile(g);
        }
    }

    std::map<std::string, std::string> workingSet() {
        flushAllTables(g);
        return folderFiles(g.dataDir, "vel");
    }
};

TEST_F(SaveSlots, SaveLoadAndSaveAgainGiveIdenticalFiles) {
    saveGame(g, 2, "First save");
    auto firstSave = folderFiles(g.dataDir, "sg2");
    EXPECT_EQ(firstSave.size(), 49u + 3u + 1u + 1u);  // the table set, 2004 to 2006, svar, the manifest
    loadGame(g, 2);
    saveGame(g, 3, "First save");
    auto secondSave = folderFiles(g.dataDir, "sg3");
    // The manifests differ only in the slot's extension of each name.
    firstSave.erase("manifest");
    secondSave.erase("manifest");
    EXPECT_EQ(firstSave, secondSave);
}

TEST_F(SaveSlots, LoadBringsBackTheSessionAndEveryYearFile) {
    g.lastScheduleYear = 2008;
    makeYearFiles();
    saveGame(g, 1, "  Spring 2006  ");
    EXPECT_EQ(slotName(g, 1), "Spring 2006");
    EXPECT_EQ(slotName(g, 4), "None");

    double savedDate = g.gameDate;
    g.gameDate += 40;
    g.player.playerLabelCash = moneyUnits(1);
    renameBand("Changed");
    fs::remove(dataFile(g, "2008", "vel"));

    loadGame(g, 1);
    EXPECT_EQ(std::tuple(g.gameDate, g.lastScheduleYear, g.player.gameNumber, g.player.playerLabelCash),
              std::tuple(savedDate, 2008, 7, 0));
    EXPECT_EQ((g.band.read(1), g.band->name), "The Paper Lanterns");
    EXPECT_TRUE(fs::exists(dataFile(g, "2008", "vel")));
}

TEST_F(SaveSlots, OverwriteDeleteAndDetails) {
    saveGame(g, 5, "Old");
    g.gameDate += 10;
    saveGame(g, 5, "New");  // a used slot is overwritten without a question
    EXPECT_EQ(slotName(g, 5), "New");
    const SlotDetails d = slotDetails(g, 5);
    EXPECT_EQ(std::tuple(d.gameDate, d.labelName, d.cash, d.reputation[0], d.playerForename + " " + d.playerSurname),
              std::tuple(g.gameDate, "Quarry Records", moneyUnits(250000), 40, "Ann Lee"));

    deleteSlot(g, 5);
    EXPECT_EQ(slotName(g, 5), "None");
    saveGame(g, 5, "Again");  // a deleted slot takes a new save
    EXPECT_EQ(slotName(g, 5), "Again");
    readPrefs(g);
    EXPECT_EQ(g.prefs->slotUsed[5], kTrue);
    for (int slot : {-1, 10}) EXPECT_THROW(saveGame(g, slot, "Nowhere"), SlotError) << slot;  // slots 0 to 9
}

struct Damage {
    const char* what;
    void (*apply)(const fs::path& dataDir);
    const char* fault;  // what the refusal names
};

class BrokenSlot : public SaveSlots, public ::testing::WithParamInterface<Damage> {};

TEST_P(BrokenSlot, IsRefusedByNameAndTheRunningGameIsUntouched) {
    saveGame(g, 6, "To be damaged");
    GetParam().apply(g.dataDir);
    renameBand("Running game");
    double date = g.gameDate;
    auto before = workingSet();
    try {
        loadGame(g, 6);
        ADD_FAILURE() << "a broken slot was loaded";
    } catch (const BrokenSlotError& e) {
        EXPECT_NE(std::string(e.what()).find(GetParam().fault), std::string::npos) << e.what();
    }
    EXPECT_EQ(workingSet(), before);
    // The working set is still open and usable.
    EXPECT_EQ(std::tuple(g.gameDate, (g.band.read(1), g.band->name)), std::tuple(date, "Running game"));
    // The slot list marks it.
    EXPECT_EQ(slotName(g, 6), "(damaged)");
    auto fault = slotFault(g, 6);
    ASSERT_TRUE(fault);
    EXPECT_NE(fault->find(GetParam().fault), std::string::npos) << *fault;
}

void flipByte(const fs::path& file, std::streamoff at) {
    std::fstream f(file, std::ios::in | std::ios::out | std::ios::binary);
    f.seekg(at);
    char c = 0;
    f.get(c);
    f.seekp(at);
    f.put(static_cast<char>(c ^ 0x01));
}

// One label of 650 bytes; 2004 has 366 days of 4,004 bytes. The manifest is checked before anything else.
INSTANTIATE_TEST_SUITE_P(
    SaveSlots, BrokenSlot,
    ::testing::Values(
        Damage{"CutOnARecordBoundary", [](const fs::path& d) { fs::resize_file(d / "label.sg6", 0); },
               "label.sg6: 650 bytes expected, 0 found"},
        Damage{"AByteFlipped", [](const fs::path& d) { flipByte(d / "band.sg6", 10); }, "band.sg6: checksum"},
        Damage{"AFileMissing", [](const fs::path& d) { fs::remove(d / "band.sg6"); }, "band.sg6 is missing"},
        Damage{"AFileTooMany", [](const fs::path& d) { fs::copy_file(d / "2006.sg6", d / "2007.sg6"); },
               "2007.sg6 is not in manifest.sg6"},
        Damage{"TheManifestCutShort",
               [](const fs::path& d) { fs::resize_file(d / "manifest.sg6", fs::file_size(d / "manifest.sg6") - 9); },
               "manifest.sg6 is cut short"},
        Damage{"TheManifestMissing", [](const fs::path& d) { fs::remove(d / "manifest.sg6"); },
               "manifest.sg6 is missing"},
        // 366 * 4004 = 1,465,464 and 365 * 4004 = 1,461,460
        Damage{"AShortYear", [](const fs::path& d) { fs::resize_file(d / "2004.sg6", 4004 * 365); },
               "2004.sg6: 1,465,464 bytes expected, 1,461,460 found"}),
    [](const auto& info) { return std::string(info.param.what); });

TEST_F(SaveSlots, ASaveOfAShorterGameLeavesNoYearOfTheOlderOneBehind) {
    saveGame(g, 7, "Long");
    ASSERT_TRUE(fs::exists(g.dataDir / "2006.sg7"));
    g.gameDate = serialFromCivil(2005, 6, 1);  // as a game of two years
    g.lastScheduleYear = 2005;
    saveGame(g, 7, "Short");
    EXPECT_FALSE(fs::exists(g.dataDir / "2006.sg7"));
    EXPECT_EQ(slotName(g, 7), "Short");
}

TEST_F(SaveSlots, AnInterruptedSaveLeavesTheOldGameLoadable) {
    saveGame(g, 8, "Old game");
    double oldDate = g.gameDate;
    // A save that died after copying half its files: staged, never marked complete.
    fs::path staging = g.dataDir / ".saving.sg8";
    fs::create_directories(staging);
    fs::copy_file(dataFile(g, "band", "vel"), staging / "band.sg8");
    std::ofstream(staging / "svar.sg8") << "half";
    g.gameDate += 100;
    loadGame(g, 8);
    EXPECT_EQ(g.gameDate, oldDate);
    EXPECT_EQ(slotName(g, 8), "Old game");
    EXPECT_FALSE(fs::exists(staging));
}

TEST_F(SaveSlots, ASaveInterruptedWhileMovingIntoPlaceIsFinished) {
    saveGame(g, 9, "Before");
    g.gameDate += 3;
    saveGame(g, 0, "After");  // the files a finished save would move into slot 9
    fs::path staging = g.dataDir / ".saving.sg9";
    fs::create_directories(staging);
    std::vector<fs::path> staged;
    for (const auto& [stem, bytes] : folderFiles(g.dataDir, "sg0")) {
        if (stem == "manifest") continue;
        staged.push_back(staging / (stem + ".sg9"));
        std::ofstream(staged.back(), std::ios::binary) << bytes;
    }
    writeManifest(staging / "manifest.sg9", staged);
    fs::rename(staging / "band.sg9", g.dataDir / "band.sg9");  // already moved before the crash
    std::ofstream(staging / "COMPLETE") << "complete\n";
    recoverInterruptedSaves(g);
    EXPECT_EQ(slotName(g, 9), "After");
    loadGame(g, 9);
    EXPECT_EQ(g.gameDate, slotDetails(g, 0).gameDate);
}

}  // namespace

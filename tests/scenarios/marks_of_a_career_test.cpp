// A new game as "Ivo Marsh": the hidden act signs to the player's label, the
// birthdays of the rest of 2004 are filed, and the year runs to 1 October with
// the invariants checked every day, Marketing's monthly pass included.
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "browse/band_browse.h"
#include "day/daily_cycle.h"
#include "day/news_inbox.h"
#include "floor/preferences.h"
#include "session/invariants.h"
#include "session/new_game.h"
#include "support/temp_folder.h"
#include "world/dates.h"
#include "world/record_store.h"
#include "world/strings.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

void answerNoToEverything(Game& g) {
    for (int32_t n = 1; n < g.news.recordCount(); ++n) {
        g.news.read(n);
        if (g.news->mustReply == kTrue && g.news->replied == kFalse) {
            openNewsItem(g);
            pressNewsCmd2(g);
        }
    }
}

TEST(MarksOfACareer, IvoMarshUnlocksTheSaltLanternsAndPlaysToOctober) {
    test::TempFolder folder;
    fs::path base = fs::path(TROVANE_SIM_PATH).parent_path() / "Data";
    for (const auto& e : fs::directory_iterator(base))
        if (e.path().extension() == ".gam") fs::copy_file(e.path(), folder.path() / e.path().filename());
    Game g(folder.path(), 77);
    readPrefs(g);
    beginNewGame(g);
    PlayerChoices p;
    p.forename = "Ivo";
    p.surname = "Marsh";
    p.createNewLabel = false;
    NewPlayer player = confirmPlayer(g, p);
    int32_t label = findRecordByName(g, FileNo::fileLabel, "Meridian Music Group");
    ASSERT_GT(label, 0);
    takeOverLabel(g, player, static_cast<int16_t>(label));

    const int32_t last = g.band.recordCount() - 1;
    g.band.read(last);
    EXPECT_EQ(trim(g.band->name.value), "The Salt Lanterns");
    EXPECT_EQ(g.band->label, label);
    const BandRecord lanterns = g.band.rec;
    for (int m = 0; m < lanterns.memberCount; ++m) {
        g.artist.read(lanterns.members[static_cast<std::size_t>(m)]);
        EXPECT_EQ(g.artist->band, last);
        EXPECT_EQ(g.artist->id, lanterns.members[static_cast<std::size_t>(m)]);
    }
    bool told = false;
    for (int32_t n = 1; n < g.news.recordCount(); ++n) {
        g.news.read(n);
        told |=
            trim(g.news->title.value) == "Cheat band unlocked" &&
            trim(g.news->text.value) == "The Salt Lanterns have been unlocked and automatically signed to your label.";
    }
    EXPECT_TRUE(told);

    BandFilter filter;
    resetBandFilter(g, filter);
    filter.name = "The Salt Lanterns";
    Grid grid;
    populateBandGrid(g, 1, filter, kBandSearchColumns, GridSort{}, grid);
    ASSERT_EQ(grid.rows.size(), 1u);
    EXPECT_EQ(grid.rows[0].record, last);

    int birthdays = 0;
    for (int32_t n = 1; n < g.schedule.recordCount(); ++n) {
        g.schedule.read(n);
        birthdays += g.schedule->type == 16;
    }
    EXPECT_GT(birthdays, 0);

    const double end = serialFromCivil(2004, 10, 1);
    while (g.gameDate < end) {
        answerNoToEverything(g);
        checkDaysSchedule(g);
        const auto broken = checkInvariants(g);
        ASSERT_FALSE(broken) << describeBreak(*broken);
    }
    closeAllTables(g);
}

}  // namespace

// A new game as "Ivo Marsh": the hidden act signs to the player's label, the
// birthdays of the rest of 2004 are filed, and the year runs to 1 October with
// the invariants checked every day, Marketing's monthly pass included.
#include <gtest/gtest.h>

#include "browse/band_browse.h"
#include "support/taken_over_game.h"

using namespace trovane;

namespace {

TEST(MarksOfACareer, IvoMarshUnlocksTheSaltLanternsAndPlaysToOctober) {
    test::TakenOverGame game(77, test::StartWorld::shipped);
    Game& g = game.g;
    const int16_t label = game.labelNamed("Meridian Music Group");
    ASSERT_GT(label, 0);
    game.takeOver(label, PlayerChoices{.forename = "Ivo", .surname = "Marsh", .createNewLabel = false});

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

    game.playUntil(serialFromCivil(2004, 10, 1), 2);  // every held question answered no
}

}  // namespace

// Two years of the shipped world left to itself: the rival labels sign acts,
// make albums and singles and put them out, and every day keeps the world's
// invariants. The headless ten-year run is the same loop, longer.
#include <gtest/gtest.h>

#include "support/taken_over_game.h"

using namespace trovane;

namespace {

TEST(RivalYears, RivalsSignRecordAndReleaseForTwoYears) {
    test::TakenOverGame game(1, test::StartWorld::shipped);
    Game& g = game.g;
    game.takeOver(game.labelNamed("Halcyon Records"), game.annLee());
    const int16_t mine = g.player.playerLabel;
    const int32_t firstNewDisc = g.disc.recordCount();
    std::vector<int16_t> unsignedAtStart;
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        g.band.read(n);
        if (g.band->label == 0 && g.band->retired == 0) unsignedAtStart.push_back(static_cast<int16_t>(n));
    }

    for (int day = 0; day < 730; ++day) ASSERT_NO_FATAL_FAILURE(game.playDay());

    int signedByRivals = 0;
    for (int16_t b : unsignedAtStart) {
        g.band.read(b);
        signedByRivals += g.band->label > 0 && g.band->label != mine;
    }
    int albumsOut = 0;
    int singlesOut = 0;
    for (int32_t n = firstNewDisc; n < g.disc.recordCount(); ++n) {
        g.disc.read(n);
        if (g.disc->label == mine || g.disc->label == 0) continue;
        EXPECT_EQ(trim(g.disc->coverImage.value), "none.jpg");
        bool out = false;
        for (double d : g.disc->releaseDate) out = out || (d > kNoDate && d < g.gameDate);
        if (!out) continue;
        (g.disc->isSingle ? singlesOut : albumsOut) += 1;
    }
    EXPECT_GT(signedByRivals, 0);
    EXPECT_GT(albumsOut, 0);
    EXPECT_GT(singlesOut, 0);
}

}  // namespace

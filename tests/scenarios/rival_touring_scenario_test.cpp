// A season of the shipped world: rival acts tour after their albums and again
// while the albums sell, with support acts on their bills, and every day keeps
// the world's invariants.
#include <gtest/gtest.h>

#include "support/taken_over_game.h"

using namespace trovane;

namespace {

TEST(RivalTouringSeason, RivalsTourWithSupportsAndTheWorldHolds) {
    test::TakenOverGame game(3, test::StartWorld::shipped);
    Game& g = game.g;
    game.takeOver(game.labelNamed("Halcyon Records"), game.annLee());
    const int16_t mine = g.player.playerLabel;
    const int32_t firstTour = g.tour.recordCount();

    for (int day = 0; day < 300; ++day) ASSERT_NO_FATAL_FAILURE(game.playDay());

    int rivalTours = 0, withSupports = 0, gigsPlayed = 0;
    for (int32_t n = firstTour; n < g.tour.recordCount(); ++n) {
        g.tour.read(n);
        const TourRecord t = g.tour.rec;
        if (t.festival > 0 || t.gigCount == 0) continue;
        g.band.read(t.band);
        if (g.band->label == mine) continue;
        ++rivalTours;
        if (t.supportCount > 0) ++withSupports;
        for (int i = 0; i < t.gigCount; ++i) {
            g.gig.read(t.gigs[static_cast<std::size_t>(i)]);
            // The supports placed are exactly the acts after the headliner.
            int acts = 0;
            while (acts < 40 && g.gig->bill[static_cast<std::size_t>(acts)] != 0) ++acts;
            EXPECT_EQ(acts - 1, t.supportCount) << "tour " << n;
            if (g.gig->gigDate < g.gameDate && g.gig->attendance > 0) ++gigsPlayed;
        }
    }
    EXPECT_GT(rivalTours, 0);
    EXPECT_GT(withSupports, 0);
    EXPECT_GT(gigsPlayed, 0);
}

}  // namespace

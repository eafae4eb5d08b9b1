// A season at a taken-over label: scout, offer, change, withdraw another, sign,
// and play on to 1 October with the invariants (band counts, offers and
// shortlists among them) checked after every day.
#include <gtest/gtest.h>

#include "label/scouting.h"
#include "support/taken_over_game.h"
#include "talent/band_offers.h"
#include "talent/contracts.h"

using namespace trovane;

namespace {

// The first unsigned, active act after `after`.
int16_t freeBand(Game& g, int16_t after) {
    for (int32_t b = after + 1; b < g.band.recordCount(); ++b) {
        g.band.read(b);
        if (g.band->label == 0 && g.band->retired == kFalse) return static_cast<int16_t>(b);
    }
    return 0;
}

TEST(SigningScenario, ALabelScoutsOffersWithdrawsAndSigns) {
    test::TakenOverGame game(2024, test::StartWorld::shipped);
    Game& g = game.g;
    const int16_t label = game.labelNamed("Meridian Music Group");
    ASSERT_GT(label, 0);
    game.takeOver(label, PlayerChoices{.forename = "Ann", .surname = "Lee", .createNewLabel = false});
    const auto broken = checkInvariants(g);
    ASSERT_FALSE(broken) << describeBreak(*broken);

    const int16_t scouted = freeBand(g, 0);
    const int16_t wanted = freeBand(g, scouted);
    const int16_t dropped = freeBand(g, wanted);
    ASSERT_GT(dropped, 0);
    ASSERT_EQ(checkBandPanel(g, scouted), "");
    const double reportDate = scoutBand(g, scouted);

    OfferTerms terms = offerFormStart(g, wanted);
    ASSERT_EQ(checkOffer(g, wanted, terms), "");
    OfferMade first = makeOffer(g, wanted, terms);
    terms.initialAdvance *= 3;  // the change: enough to win over any act of this world's size
    terms.additionalAdvance *= 3;
    terms.royalty = 30;
    OfferMade changed = makeOffer(g, wanted, terms);
    EXPECT_EQ(changed.offer, first.offer);
    makeOffer(g, dropped, offerFormStart(g, dropped));
    ASSERT_EQ(checkWithdraw(g, dropped), "");
    withdrawOffer(g, dropped);

    const double end = serialFromCivil(2004, 10, 1);
    game.playUntil(end);
    ASSERT_FALSE(::testing::Test::HasFatalFailure());
    g.band.read(wanted);
    EXPECT_EQ(g.band->label, label);
    g.band.read(dropped);
    EXPECT_NE(g.band->label, label);
    bool reported = false;
    g.band.read(scouted);
    const std::string reportTitle = "A&R Department present " + trim(g.band->name.value) + " scouting report";
    for (int32_t n = 1; n < g.news.recordCount(); ++n) {
        g.news.read(n);
        if (trim(g.news->title.value) == reportTitle) reported = g.news->date == reportDate + 1;
    }
    EXPECT_TRUE(reported);
}

}  // namespace

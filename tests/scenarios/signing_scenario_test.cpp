// A season at a taken-over label: scout, offer, change, withdraw another, sign,
// and play on to 1 October with the signing rules checked after every day.
#include <gtest/gtest.h>

#include "label/scouting.h"
#include "support/taken_over_game.h"
#include "talent/band_offers.h"
#include "talent/contracts.h"

using namespace trovane;

namespace {

// The rules of signing that must hold after every day: a label's bandCount is
// the number of acts signed to it; every offer names a band of the table or is
// void; every shortlist row is free or names a band and a label of the tables.
std::string signingRuleBroken(Game& g) {
    for (int32_t l = 1; l < g.label.recordCount(); ++l) {
        int count = 0;
        for (int32_t b = 1; b < g.band.recordCount(); ++b) {
            g.band.read(b);
            count += g.band->label == l && g.band->retired == kFalse;
        }
        g.label.read(l);
        if (g.label->bandCount != count)
            return "label " + std::to_string(l) + " bandCount " + std::to_string(g.label->bandCount) + ", signed " +
                   std::to_string(count);
    }
    for (int32_t o = 1; o < g.offer.recordCount(); ++o) {
        g.offer.read(o);
        int b = g.offer->band;
        if (b != kVoidOffer && (b < 1 || b >= g.band.recordCount())) return "offer " + std::to_string(o) + " band";
        if (g.offer->label < 1 || g.offer->label >= g.label.recordCount())
            return "offer " + std::to_string(o) + " label";
    }
    for (int32_t s = 1; s < g.shortlist.recordCount(); ++s) {
        g.shortlist.read(s);
        const ShortlistRecord r = g.shortlist.rec;
        bool freed = r.band == 0 && r.label == 0;
        if (!freed && (r.band < 1 || r.band >= g.band.recordCount() || r.label < 1 || r.label >= g.label.recordCount()))
            return "shortlist " + std::to_string(s);
    }
    return {};
}

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
    ASSERT_EQ(signingRuleBroken(g), "");

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
    while (g.gameDate < end) {
        ASSERT_NO_FATAL_FAILURE(game.playDay());
        ASSERT_EQ(signingRuleBroken(g), "") << civilFromSerial(g.gameDate).day;
    }
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

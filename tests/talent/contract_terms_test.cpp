// What an act asks for and how an offer scores against it.
#include <gtest/gtest.h>

#include "support/game_test.h"
#include "support/signing_world.h"
#include "talent/contract_terms.h"

using namespace trovane;
using namespace trovane::test;

namespace {

struct Terms : test::GameTest {
    BandRecord askedBy(std::array<uint8_t, 5> reputation) {
        g.band.rec = BandRecord{.reputation = reputation, .advanceToPay = moneyUnits(61'234)};
        setAskingTerms(g);
        return g.band.rec;
    }
};

TEST_F(Terms, EveryActAsksAtLeastSixtyThousandAndMoreWithTheSquareOfItsWorth) {
    BandRecord b = askedBy({0, 0, 0, 0, 0});
    EXPECT_EQ(std::tuple(b.initialAdvance, b.additionalAdvance, b.royaltyRate, b.additionalAdvanceCount, b.optionLength,
                         b.offerStage),
              std::tuple(moneyUnits(60'000), moneyUnits(60'000), 9, 3, 18, 1));
    EXPECT_EQ(b.advanceToPay, moneyUnits(60'000)) << "61,234 on its step of 5,000";
    // The ask rises with the square of the act's worth: v = 10 x 20 + 3 x 3 = 209:
    // 209^2 / 1089 x 1500 = 60,166.67 -> 60,167, on its step 60,000;
    // royalty Int(Int(209 / 33) / 6) + 9 = Int(6 / 6) + 9 = 10.
    b = askedBy({0, 20, 0, 0, 3});
    EXPECT_EQ(std::tuple(b.initialAdvance, b.royaltyRate), std::tuple(moneyUnits(60'000), 10));
    // v = 33 x 33 = 1089: 1,633,500 on its step of 100,000: 1,600,000; royalty Int(33 / 6) + 9 = 14.
    b = askedBy({33, 33, 33, 33, 33});
    EXPECT_EQ(std::tuple(b.initialAdvance, b.royaltyRate), std::tuple(moneyUnits(1'600'000), 14));
    // v = 3300: 15,000,000 exactly; royalty Int(100 / 6) + 9 = 25.
    b = askedBy({100, 100, 100, 100, 100});
    EXPECT_EQ(std::tuple(b.initialAdvance, b.additionalAdvance, b.royaltyRate),
              std::tuple(moneyUnits(15'000'000), moneyUnits(15'000'000), 25));
}

TEST(LabelStanding, AGapInTheMainMarketCountsTwice) {
    const auto s = labelStanding(50, 30, 100, 80);
    EXPECT_EQ(std::pair(s.standing, s.gap), std::pair(40, 40));  // 80 - 2 x 20
    EXPECT_EQ(labelStanding(30, 50, 100, 80).standing, 80) << "a label ahead of the band has no gap";
    EXPECT_EQ(labelStanding(0, 0, 0, 10).standing, 1000) << "a band of no total counts as 1";
}

// A band of US 100 asking 60,000, 3 options of 18 months and 10 percent; a
// label of US 60 and UK x: standing = (60 + x) - 2 x (100 - 60) = x - 20.
class Scoring : public test::GameTest {
protected:
    int16_t style = addStyle(g, 10);

    void setUpBand(uint8_t age = 0, uint8_t askedOptions = 3, std::array<uint8_t, 5> reputation = {0, 100, 0, 0, 0}) {
        addAct(g, {.reputation = reputation, .style = static_cast<uint8_t>(style), .age = age});
        g.band->initialAdvance = g.band->additionalAdvance = moneyUnits(60'000);
        g.band->additionalAdvanceCount = askedOptions;
        g.band->optionLength = 18;
        g.band->royaltyRate = 10;
        g.band.write();
    }
    void labelWithStanding(int standing) { addLabel(g, {static_cast<uint8_t>(standing + 20), 60, 0, 0, 0}); }
    void offer(int32_t initial, int32_t additional, uint8_t options, uint8_t months, uint8_t royalty) {
        g.offer.rec = OfferRecord{.initialAdvance = initial,
                                  .additionalAdvance = additional,
                                  .additionalAdvanceCount = options,
                                  .optionLength = months,
                                  .royalty = royalty};
    }
    int score(int standing) {
        setUpBand();
        labelWithStanding(standing);
        offer(60'000, 60'000, 3, 18, 10);
        return rateContract(g, 1).score;
    }
};

TEST_F(Scoring, TheAskedTermsNeedAStandingOfSix) {
    // mean round(100 x 0.9) = 90; score round(standing x 90 / 1000 + 90).
    EXPECT_EQ(score(5), 90);   // 90.45
    EXPECT_EQ(score(6), 91);   // 90.54
    EXPECT_EQ(score(11), 91);  // 90.99
    EXPECT_EQ(score(0), 90);
}

TEST_F(Scoring, ABandOfNoReputationMakesAnyLabelHugeAndExtraOptionsPayAnOlderAct) {
    setUpBand(0, 3, {0, 0, 0, 0, 0});
    addLabel(g, {10, 0, 0, 0, 0});
    offer(60'000, 60'000, 3, 18, 10);
    // standing round(100 x 10 / 1) = 1000: round(1000 x 90 / 1000 + 90) = 180.
    EXPECT_EQ(rateContract(g, 1).score, 180);

    // More options than asked pay an older act eighty: careerAge round(5 x 100 / 5) = 100: twice the
    // options add 1 x (100 - 60) x 2 = 80:
    // mean round((180 + 100 + 100) / 3) = 127, x 0.9 = 114.3 -> 114; standing 0.
    setUpBand(5, 2);
    labelWithStanding(0);
    offer(60'000, 60'000, 4, 18, 10);
    EXPECT_EQ(rateContract(g, 1).score, 114);
}

TEST_F(Scoring, ARoyaltyBelowTheAskCountsDoubleWhenAdvancesArePoorAndARenewalLeavesTheInitialOut) {
    setUpBand();
    labelWithStanding(0);
    // royaltyDelta round(5 x 100 / 10 - 100) = -50. Advances of 0: a = 0, royaltyScore
    // 100 + round(round(200 x -50) / 100) = 0; initial 0, options 0: mean 0, score 0.
    offer(0, 0, 3, 18, 5);
    EXPECT_EQ(rateContract(g, 1).score, 0);
    // Full advances: a = 100, royaltyScore 100 + round(-5000 / 100) = 50: mean round(250 / 3) = 83,
    // x 0.9 = 74.7 -> 75.
    offer(60'000, 60'000, 3, 18, 5);
    EXPECT_EQ(rateContract(g, 1).score, 75);
    // A renewal (mode 2) leaves the initial advance out: initialScore 100 and a = 1 x 100: the asked
    // additional terms score 90.
    offer(0, 60'000, 3, 18, 10);
    EXPECT_EQ(rateContract(g, 2).score, 90);
    EXPECT_LT(rateContract(g, 1).score, 90);
}

TEST_F(Scoring, ReasonsNameTheBestAndTheWorstTerm) {
    setUpBand();
    labelWithStanding(90);
    // initial 100, options round(48,000 / 60,000 x 100) = 80: best 1, worst 2. Royalty 100:
    // neither. Standing 90 is below the high of 100 though above the low: worst 4 (gap 80 > 20: 5).
    offer(60'000, 48'000, 3, 18, 10);
    ContractRating r = rateContract(g, 1);
    EXPECT_EQ(std::pair(r.bestReason, r.worstReason), std::pair(1, 5));
    // A standing of 150 (no gap) beats every term: best 5 while the label's total (150) is below the
    // band's + 100.
    g.label.rec.reputation = {50, 100, 0, 0, 0};
    r = rateContract(g, 1);
    EXPECT_EQ(std::pair(r.bestReason, r.worstReason), std::pair(5, 2));
}

}  // namespace

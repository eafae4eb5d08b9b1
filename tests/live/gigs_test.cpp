// A night at a venue: the crowd, the money, how each act played and what it
// does to their standing, and the review of the player's headliner.
#include <gtest/gtest.h>

#include "label/finances.h"
#include "live/gig_review.h"
#include "live/gigs.h"
#include "support/amend.h"
#include "support/gig_world.h"
#include "world/strings.h"

using namespace trovane;

namespace {

class Gigs : public test::GigWorld, public ::testing::Test {
protected:
    int32_t estimate(int rep, int16_t standing) { return expectedAttendance(g, 1, rep, standing); }
    // Settles a gig with a fixed crowd; returns its profit.
    int32_t settle(int16_t venue, int32_t crowd, int rep, uint8_t content = 4, uint8_t level = 4) {
        int32_t gig = oneGig(venue, content, level, level);
        g.gig->attendance = crowd;
        g.gig.write();
        settleGigMoney(g, rep);
        g.gig.read(gig);
        return g.gig->profit;
    }
    Money cash() { return (g.label.read(label), g.label->cashBalance); }
    // This month's entry of the label's books in the category.
    Money booked(int category) { return (g.label.read(label), ledgerEntry(g.label.rec, 0, category)); }
    BandRecord act() { return (g.band.read(band), g.band.rec); }
};

TEST_F(Gigs, TheCrowdCurveItsDipAndTheNightsSpreadUnderTheHouse) {
    oneGig(addVenue("Hall", 1000000, leeds));
    // Reputation 0: d 0, e 0, base b = 0 -> 250.
    EXPECT_EQ(estimate(0, 0), 250);
    // Reputation 19: d 13, e = -26 < 0 -> base 19^2 = 361; round(2.9 x 361) = 1047 + 250.
    EXPECT_EQ(estimate(19, 250), 1297);
    // Reputation 20: d 14, e 0 -> base b; standing 250 -> s 50, a 2500, b round(2500 / 51) = 49;
    // round(3 x 49) + 250 = 397 (the dip below 19's 1297).
    EXPECT_EQ(estimate(20, 250), 397);
    // Reputation 21: d round(14.7) = 15, e = 2 x 15 = 30, base 79; round(3.1 x 79) = 245 + 250.
    EXPECT_EQ(estimate(21, 250), 495);
    int16_t standing = 250;
    expectedAttendance(g, 1, 20, standing);
    EXPECT_EQ(standing, 50);
    for (int i = 0; i < 40; ++i) {
        standing = 0;
        int32_t n = expectedAttendance(g, 0, 0, standing);
        EXPECT_TRUE(n >= 225 && n <= 275) << n;  // 250, give or take a tenth
    }
    oneGig(addVenue("Club", 500, leeds));
    for (int i = 0; i < 40; ++i) {
        standing = 470;
        int32_t n = expectedAttendance(g, 0, 100, standing);
        EXPECT_TRUE(n >= 490 && n <= 500) << n;  // 98 percent of the house, up to all of it
    }
}

TEST(GigTables, CostsSupportLevelsCrowdDivisorsAndReviewBandsAtTheirEdges) {
    // A 14-day gap at the top content level: 100,000 + 2,500 x 14, past 16 bits without harm.
    EXPECT_EQ(contentCost(0, 14), 135000);
    EXPECT_EQ(contentCost(3, 2), 990);         // 750 + 240
    EXPECT_EQ(hospitalityCost(0, 11), 33000);  // 3,000 x 11
    EXPECT_EQ(hospitalityCost(4, 3), 300);
    EXPECT_EQ(accommodationCost(3, 2, 3), 300);  // 3 x 50 x 2
    EXPECT_EQ(accommodationCost(4, 30, 3), 60);  // 3 x 20, the gap ignored
    const std::pair<int, int> levels[] = {{19, 4}, {20, 3}, {39, 3}, {40, 2}, {69, 2}, {70, 1}, {89, 1}, {90, 0}};
    for (auto [attitude, level] : levels) EXPECT_EQ(supportLevel(attitude), level) << attitude;
    const std::pair<int32_t, int> divisors[] = {{1000, 30},  {1001, 20},  {5000, 20}, {5001, 15}, {10000, 15},
                                                {10001, 10}, {40000, 10}, {40001, 7}, {100000, 7}};
    for (auto [crowd, divisor] : divisors) EXPECT_EQ(crowdDivisor(crowd), divisor) << crowd;
    const std::pair<int, int> quality[] = {{60, 0}, {61, 1}, {80, 1}, {81, 2}, {94, 2}, {95, 3}};
    for (auto [q, b] : quality) EXPECT_EQ(reviewQualityBand(q), b) << q;
    const std::pair<int, int> crowd[] = {{33, 0}, {34, 1}, {70, 1}, {71, 2}, {94, 2}, {95, 3}};
    for (auto [p, b] : crowd) EXPECT_EQ(reviewCrowdBand(p), b) << p;
}

TEST_F(Gigs, TicketPriceStepsUpAtFifteen) {
    int16_t hall = addVenue("Hall", 1000, leeds);
    // rep 14: ticket 3 x round(1.4) = 3; 1000 x 3 - 1500 = 1500; costs 300 + 100 + 40 = 440;
    // 1060 x 80 / 100 = 848.
    EXPECT_EQ(settle(hall, 1000, 14), 848);
    // rep 15: ticket 3 x round(1.5) = 6; 6000 - 1500 - 440 = 4060 x 0.8 = 3248.
    EXPECT_EQ(settle(hall, 1000, 15), 3248);
    // rep 90 counts for itself: ticket 27; 27000 - 1500 - 440 = 25060 x 0.9 = 22554.
    EXPECT_EQ(settle(hall, 1000, 90), 22554);
}

TEST_F(Gigs, ABandInDebtPaysItsLabelFirst) {
    setMembers(100);
    settle(addVenue("Hall", 1000, leeds), 1000, 14);
    EXPECT_EQ(wealthOfFirstMember(), 424) << "a clear act's 848 shared by two";
    amend(g.band, band, [&] { g.band->costs = moneyUnits(500); });
    Money before = cash();
    settle(addVenue("Hall", 1000, leeds), 1000, 14);
    // A debt of 500 out of 848: the label takes 500, the members 348.
    EXPECT_EQ(std::tuple(cash() - before, booked(ledgerRecoupedAdvances), wealthOfFirstMember(), act().grossIncome),
              std::tuple(moneyUnits(500), moneyUnits(500), 424 + 174, moneyUnits(500)));

    amend(g.band, band, [&] {
        g.band->grossIncome = 0;
        g.band->costs = moneyUnits(848);
    });
    settle(addVenue("Hall", 1000, leeds), 1000, 14);
    // The debt equals the share: all of it to the label, none to the members.
    EXPECT_EQ(std::pair(wealthOfFirstMember(), act().grossIncome), std::pair(424 + 174, moneyUnits(848)));
}

TEST_F(Gigs, ALossChargesTheSignedBandTheLossLessHalfTheTake) {
    Money before = cash();
    // rep 50: ticket 15; 300 x 15 - 1500 = 3000, half 1500. Level 2: 5,400 + 750 + 2 x 75 = 6300;
    // 3000 - 6300 = -3300 x 0.8 = -2640; share -2640 - 1500 = -4140.
    EXPECT_EQ(settle(addVenue("Hall", 1000, leeds), 300, 50, 2, 2), -4140);
    EXPECT_EQ(std::tuple(before - cash(), booked(ledgerOtherExpense), act().costs),
              std::tuple(moneyUnits(4140), -moneyUnits(4140), moneyUnits(4140)));
}

TEST_F(Gigs, SupportsShareAFifthAndHaveTheirDrinksAndBedsPaid) {
    setMembers(100);
    int16_t support = addBand("The Openers", 0);
    // level 0: the most demanding
    amend(g.band, support, [&] { g.band->topAttitudeLevel = 95; });
    int32_t gig = oneGig(addVenue("Hall", 1000, leeds));
    g.tour->supportCount = 1;
    g.tour.write();
    g.gig->bill[1] = support;
    g.gig->attendance = 1000;
    g.gig.write();
    load(gig);
    settleGigMoney(g, 90);
    // 27000 - 1500 - 440 = 25060; the support asks for level 0 but the tour's 4 holds:
    // 2 x 20 + 100 = 140 -> 24920 x 0.9 = 22428; share round(17942.4) = 17942; the support's 4486.
    EXPECT_EQ((g.gig.read(gig), g.gig->profit), 17942);
    EXPECT_EQ((g.band.read(support), (g.artist.read(g.band->members[0]), g.artist->wealth)), 2243);  // 4486 / 2
}

TEST_F(Gigs, StandingMovesInTheVenuesTerritoryOnly) {
    const std::pair<int16_t, int> places[] = {{leeds, 0}, {paris, 2}, {rio, 4}};
    for (auto [city, market] : places) {
        oneGig(addVenue("Hall", 20000, city));
        g.gig->quality[0] = 100;
        g.gig->attendance = 20000;
        g.gig.write();
        auto before = g.band->hype;
        applyGigStanding(g, 0);
        g.band.read(band);
        for (int m = 0; m < 5; ++m) {
            auto at = static_cast<std::size_t>(m);
            if (m == market)
                EXPECT_GT(g.band->hype[at], before[at]) << "city " << city;
            else
                EXPECT_EQ(g.band->hype[at], before[at]) << "city " << city << " market " << m;
        }
    }
}

TEST_F(Gigs, ATiredBandLosesUpToAThird) {
    // Ability 9, live 0, dancing 9: a tenth of 9 is below 1, so no draw moves them.
    // Overall (9 x 50 + 9 x 30 + 50 x 20) / 100 = 17.2 -> 17 at the average content level.
    amend(g.band, band, [&] {
        g.band->ability = 9;
        g.band->dancing = 9;
        g.band->gigCount = 1;
        g.band->averageGigQuality = 20.0f;
    });
    const std::tuple<int16_t, int, int> cases[] = {
        {100, 9, 17},  // 6 + round(300 / 100) = 9; 11.33 + round(567 / 100) = 17
        {50, 8, 14},   // 6 + round(150 / 100) = 8 (1.5 to 2); 11.33 + round(283 / 100) = 14
        {0, 6, 11},    // two thirds: 6 and 11.33
    };
    for (auto [energy, sing, overall] : cases) {
        setMembers(energy);
        int32_t gig = oneGig(addVenue("Hall", 1000, leeds), 2, 2, 2);
        rateGigPerformance(g, 1);
        g.gig.read(gig);
        EXPECT_EQ(std::tuple(int{g.gig->singing[0]}, int{g.gig->overallSinging}, int{g.gig->quality[0]},
                             int{g.gig->overallQuality}),
                  std::tuple(sing, sing, overall, overall))
            << energy;
    }
    EXPECT_EQ((g.band.read(band), g.band->gigCount), 4);
    // (1 x 20 + 17) / 2 = 18.5; (2 x 18.5 + 14) / 3 = 17; (3 x 17 + 11) / 4 = 15.5.
    EXPECT_FLOAT_EQ(g.band->averageGigQuality, 15.5f);
}

TEST_F(Gigs, TheBiggestGigIsTheLargestCrowd) {
    setMembers(100);
    auto played = [&](const char* venue, int32_t crowd) {
        int32_t gig = oneGig(addVenue(venue, 1000, leeds));
        g.gig->attendance = crowd;
        g.gig.write();
        rateGigPerformance(g, 1);
        g.band.read(band);
        return gig;
    };
    int32_t first = played("Hall", 800);
    played("Club", 800);  // equal is not bigger
    EXPECT_EQ(g.band->biggestGig, first);
    int32_t bigger = played("Arena", 801);
    EXPECT_EQ(g.band->biggestGig, bigger);
}

TEST_F(Gigs, ThePlayersNightFeedsTheToursAverageAndItsReviewNamesTheVenue) {
    setMembers(100);
    // A show of content level 1, for a style whose content weighs 20, is praised for its equipment.
    int32_t gig = oneGig(addVenue("The Dome", 500, leeds), 1);
    g.schedule.rec = ScheduleRecord{.gig = gig};
    int16_t news = static_cast<int16_t>(g.news.recordCount());
    performGig(g);
    g.gig.read(gig);
    EXPECT_FLOAT_EQ((g.tour.read(g.gig->tour), g.tour->averageQuality), static_cast<float>(g.gig->overallQuality));
    const std::string review = (g.news.read(news), g.news->text.value);
    EXPECT_NE(review.find("The Dome"), std::string::npos);
    EXPECT_NE(review.find("the very professional sound and lighting equipment used in the show."), std::string::npos)
        << review;
}

}  // namespace

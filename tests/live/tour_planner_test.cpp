// How the planner chooses where a tour goes, which venues it plays and when.
#include <gtest/gtest.h>

#include "live/tour_planner.h"
#include "support/tour_world.h"

using namespace trovane;
using namespace trovane::test;

namespace {

struct RegionCase {
    std::array<uint8_t, 5> rep;  // UK, US, Europe, Oceania, Global
    TourFlags flags;             // UK and Europe, North America, Oceania, world
};

class TourRegions : public ::testing::TestWithParam<RegionCase>, public TourWorld {};

TEST_P(TourRegions, FollowTheActsStanding) {
    setReputation(band, GetParam().rep);
    g.band.read(band);
    EXPECT_EQ(chooseTourRegions(g), GetParam().flags);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, TourRegions,
    ::testing::Values(
        // t 50 is the one-region rule: top UK (the first of equals) gives the UK only.
        RegionCase{{50, 50, 0, 0, 0}, {true, false, false, false}},
        // t 51: UK set (2 x 51 > 51), US set (2 x 51 > 51): two regions make a world tour.
        RegionCase{{51, 51, 0, 0, 0}, {true, true, false, true}},
        // t 50 tops: Europe gives the UK flag, Oceania its own, Global the world.
        RegionCase{{0, 0, 40, 0, 0}, {true, false, false, false}},
        RegionCase{{0, 0, 0, 40, 0}, {false, false, true, false}},
        RegionCase{{0, 0, 0, 0, 40}, {false, false, false, true}},
        // t 90 in the US: UK 45 (90 <= 90), Europe 70 (87.5 < 90, 70 <= 70): the UK is left out.
        RegionCase{{45, 90, 70, 0, 0}, {false, true, false, false}},
        // UK 46: 92 > 90, so the UK joins.
        RegionCase{{46, 90, 70, 0, 0}, {true, true, false, true}},
        // Europe 71: 88.75 < 90 but 71 > 70, so the UK joins.
        RegionCase{{0, 90, 71, 0, 0}, {true, true, false, true}},
        // Europe 64 at t 80: 64 x 1.25 = 80 is not below 80, so the UK joins; at t 81 it is left out.
        RegionCase{{0, 80, 64, 0, 0}, {true, true, false, true}},
        RegionCase{{0, 81, 64, 0, 0}, {false, true, false, false}},
        // t 100 in the UK: US 50 (100 <= 100) stays out, 51 joins; Oceania likewise.
        RegionCase{{100, 50, 0, 0, 0}, {true, false, false, false}},
        RegionCase{{100, 51, 0, 0, 0}, {true, true, false, true}},
        RegionCase{{100, 0, 0, 50, 0}, {true, false, false, false}},
        RegionCase{{100, 0, 0, 51, 0}, {true, false, true, true}}));

class TourVenues : public ::testing::Test, public TourWorld {
protected:
    std::vector<int16_t> venuesFound(int mode, TourFlags flags, const std::string& area = "", uint8_t nation = 0) {
        g.band.read(band);
        std::vector<int16_t> out;
        for (const TourVenue& v : listTourVenues(g, mode, flags, area, nation)) out.push_back(v.venue);
        return out;
    }
    static constexpr TourFlags kUk{true, false, false, false};
};

TEST_F(TourVenues, TheCrowdIsTwoThirdsOfThePlainOneAndAVenueJoinsFromItToBelowTwiceItOrAt25000) {
    // Reputation 50 everywhere: standing round(1650 / 7) = 236, its fifth 47;
    // a = 47^2 = 2209, b = round(2209 / 54) = 41; d = 35, e = (70 - 28) x 35 = 1470;
    // (5 + 1) x (1470 + 41) + 250 = 9316; x 0.66 = 6148.56 -> 6149.
    g.band.read(band);
    EXPECT_EQ(tourCrowdSize(g, 50), 6149);
    // size 6149: 6148 is too small, 6149 joins, 12297 joins, 12298 (2 x 6149) is too big.
    addRatedVenue("Small", 6148, leeds);
    int16_t exact = addRatedVenue("Exact", 6149, leeds);
    int16_t top = addRatedVenue("Top", 12297, leeds);
    addRatedVenue("Huge", 12298, leeds);
    EXPECT_EQ(venuesFound(1, kUk), (std::vector<int16_t>{exact, top}));
    // Reputation 100: standing 471, fifth 94; a = 8836, b = round(8836 / 7) = 1262;
    // d = 70, e = 112 x 70 = 7840; 11 x 9102 + 250 = 100372; x 0.66 = 66245.52 -> 66246.
    setReputation(band, {100, 100, 100, 100, 100});
    g.band.read(band);
    EXPECT_EQ(tourCrowdSize(g, 100), 66246);
    // size 66246: 24999 is too small, 25000 joins.
    addRatedVenue("Arena", 24999, leeds);
    int16_t big = addRatedVenue("Stadium", 25000, leeds);
    EXPECT_EQ(venuesFound(1, kUk), std::vector<int16_t>{big});
    g.band.read(band);
    EXPECT_EQ(chooseSponsor(g, createTour(g, "E", 0)), -1) << "no fitting product, no sponsor";
}

TEST_F(TourVenues, RivalsPlayAVenueRatedAtTheirReputationTheAssistantDoesNot) {
    addRatedVenue("Picky", 8000, leeds, 51);
    int16_t equal = addRatedVenue("Even", 8000, leeds, 50);
    int16_t easy = addRatedVenue("Easy", 8000, leeds, 49);
    EXPECT_EQ(venuesFound(1, kUk), (std::vector<int16_t>{equal, easy}));
    // The assistant's England tour: r = the UK's 50 must be above the rating.
    EXPECT_EQ(venuesFound(2, {}, "E", static_cast<uint8_t>(england)), std::vector<int16_t>{easy});
}

TEST_F(TourVenues, RivalsPlayTheirRegionsOrTheWorldAndTheAssistantTheHomeNationsOrOneNation) {
    int16_t uk = addRatedVenue("Leeds Hall", 8000, leeds);
    int16_t fr = addRatedVenue("Paris Hall", 8000, paris);
    int16_t us = addRatedVenue("Boston Hall", 8000, boston);
    int16_t br = addRatedVenue("Rio Hall", 8000, rio);
    int16_t sc = addRatedVenue("Glasgow Hall", 8000, glasgow);
    EXPECT_EQ(venuesFound(1, kUk), (std::vector<int16_t>{uk, fr, sc}));
    EXPECT_EQ(venuesFound(1, {false, true, false, false}), std::vector<int16_t>{us});
    EXPECT_EQ(venuesFound(1, {false, false, false, true}), (std::vector<int16_t>{uk, fr, us, br, sc}));
    EXPECT_EQ(venuesFound(2, {}, "E", static_cast<uint8_t>(england)), (std::vector<int16_t>{uk, sc}));
    EXPECT_EQ(venuesFound(2, {}, "E", static_cast<uint8_t>(france)), std::vector<int16_t>{fr});
    EXPECT_EQ(venuesFound(2, {}, "E", 0), (std::vector<int16_t>{uk, fr, sc}));
}

TEST_F(TourVenues, TheAssistantSizesByTheMarketOfTheNationOrArea) {
    // UK 80, Europe 50: standing round(990 / 7) = 141, its fifth 28; a = 784, b = round(784 / 73) = 11.
    // r 80: d 56, e = 84 x 56 = 4704; 9 x 4715 + 250 = 42685; x 0.66 -> 28172.
    // r 50: d 35, e = 1470; 6 x 1481 + 250 = 9136; x 0.66 = 6029.76 -> 6030.
    setReputation(band, {80, 0, 50, 0, 0});
    int16_t arena = addRatedVenue("Leeds Arena", 30000, leeds, 79);
    addRatedVenue("Leeds Dome", 24999, leeds, 79);
    int16_t bowl = addRatedVenue("Leeds Bowl", 25000, leeds, 79);  // below 28172, but 25000 is never too small
    int16_t paris1 = addRatedVenue("Paris Hall", 8000, paris, 49);
    addRatedVenue("Paris Club", 8000, paris, 50);
    EXPECT_EQ(venuesFound(2, {}, "E", static_cast<uint8_t>(england)), (std::vector<int16_t>{arena, bowl}));
    EXPECT_EQ(venuesFound(2, {}, "E", static_cast<uint8_t>(france)), std::vector<int16_t>{paris1});
    // Europe as a whole goes by the European 50 too.
    EXPECT_EQ(venuesFound(2, {}, "E", 0), std::vector<int16_t>{paris1});
}

TourVenue at(int16_t venue, int16_t city, int16_t country, const char* region) {
    return {.venue = venue, .capacity = 1000, .city = city, .country = country, .region = region};
}

TEST(TourGapsAndOrder, CityCountryAreaElsewhereAndLargestFirstWithEqualsInOrder) {
    TourVenue leeds = at(1, 1, 1, "E");
    EXPECT_EQ(plannedGap(leeds, at(2, 1, 1, "E")), 1);
    EXPECT_EQ(plannedGap(leeds, at(2, 2, 1, "E")), 2);
    EXPECT_EQ(plannedGap(leeds, at(2, 3, 2, "E")), 3);
    EXPECT_EQ(plannedGap(leeds, at(2, 4, 3, "N")), 5);
    std::vector<TourVenue> v{{.venue = 1, .capacity = 500},
                             {.venue = 2, .capacity = 900},
                             {.venue = 3, .capacity = 500},
                             {.venue = 4, .capacity = 700}};
    sortVenuesBySize(v);
    std::vector<int16_t> order;
    for (const auto& x : v) order.push_back(x.venue);
    EXPECT_EQ(order, (std::vector<int16_t>{2, 4, 1, 3}));
}

TEST(NextVenue, FirstTheLargestThenSameCitySameCountryAnywhereAndANationlessTourLeavesACountryAfterSix) {
    // The last gig was at venue 0 (city 1, country 1).
    std::vector<TourVenue> v{at(1, 1, 1, "E"), at(2, 9, 2, "E"), at(3, 2, 1, "E"), at(4, 1, 1, "E")};
    EXPECT_EQ(pickNextVenue(v, {}, 0), 0);
    v[0].used = true;
    std::vector<PlannedGig> gigs{{.venue = 0}};
    EXPECT_EQ(pickNextVenue(v, gigs, 0), 3);
    v[3].used = true;
    EXPECT_EQ(pickNextVenue(v, gigs, 0), 2);
    v[2].used = true;
    EXPECT_EQ(pickNextVenue(v, gigs, 0), 1);
    v[1].used = true;
    EXPECT_EQ(pickNextVenue(v, gigs, 0), -1);
    v = {at(1, 1, 1, "E"), at(2, 9, 2, "E"), at(3, 1, 1, "E")};
    v[0].used = true;
    std::vector<PlannedGig> six(6, PlannedGig{.venue = 0});
    EXPECT_EQ(pickNextVenue(v, six, 0), 2);  // 6 gigs: the same city still wins
    std::vector<PlannedGig> seven(7, PlannedGig{.venue = 0});
    EXPECT_EQ(pickNextVenue(v, seven, 0), 1);  // 7: the country is passed over
    EXPECT_EQ(pickNextVenue(v, seven, 1), 2);  // a nation's tour stays
    v[1].used = true;
    EXPECT_EQ(pickNextVenue(v, seven, 0), -1);  // only that country left: nothing
}

class GigPlan : public ::testing::Test, public TourWorld {
protected:
    // Six venues: two in Leeds, one in York, one in Paris, one in Boston, one in Rio.
    std::vector<TourVenue> venues() {
        return {at(1, leeds, england, "E"), at(2, leeds, england, "E"), at(3, york, england, "E"),
                at(4, paris, france, "E"),  at(5, boston, usa, "N"),    at(6, rio, brazil, "S")};
    }
};

TEST_F(GigPlan, ASecondNightIsTheNextDayElseTravelIsTheGapLessOneAndAnExtraDayComesPastHalfWay) {
    // Six venues: target 6, so booked 4 and 5 are past half (3 < 4); booked 3 is not.
    std::array<int32_t, 6> fewestExtra{9, 9, 9, 9, 9, 9};
    int secondNights = 0;
    for (uint64_t seed = 1; seed <= 40; ++seed) {
        g.rng.seed(seed);
        auto v = venues();
        auto plan = planTourGigs(g, v, g.gameDate + 42, 0);
        int booked = 0;
        for (std::size_t i = 1; i < plan.size(); ++i) {
            if (plan[i].venue == plan[i - 1].venue) {
                ++secondNights;
                EXPECT_EQ(std::pair(plan[i].date, plan[i].rest), std::pair(plan[i - 1].date + 1, 0));
                continue;
            }
            ++booked;
            const int32_t gap = plannedGap(v[plan[i - 1].venue], v[plan[i].venue]);
            EXPECT_EQ(plan[i].rest, gap - 1);
            auto extra = static_cast<int32_t>(plan[i].date - plan[i - 1].date) - gap;
            EXPECT_GE(extra, 0);
            EXPECT_LE(extra, 4);
            auto b = static_cast<std::size_t>(booked);
            fewestExtra[b] = std::min(fewestExtra[b], extra);
        }
    }
    EXPECT_GT(secondNights, 0);
    EXPECT_EQ(fewestExtra[3], 0);
    EXPECT_EQ(fewestExtra[4], 1);
    EXPECT_EQ(fewestExtra[5], 1);
}

TEST_F(GigPlan, AVenueThatCannotBeTakenShortensTheTour) {
    // All in England on a nation-less tour: after 7 gigs there the rest are passed over.
    std::vector<TourVenue> v;
    for (int16_t i = 1; i <= 12; ++i) v.push_back(at(i, leeds, england, "E"));
    g.rng.seed(3);
    auto plan = planTourGigs(g, v, g.gameDate + 42, 0);
    EXPECT_GE(plan.size(), 7u);
    EXPECT_LE(plan.size(), 8u);  // the gig that made it 7 may have had a second night
}

TEST_F(GigPlan, ATourNeverPassesFortyGigs) {
    // Sixty venues in one city: the planner stops once 39 gigs stand, a second night making 40 at most.
    for (uint64_t seed = 1; seed <= 5; ++seed) {
        std::vector<TourVenue> v;
        for (int16_t i = 1; i <= 60; ++i) v.push_back(at(i, leeds, england, "E"));
        g.rng.seed(seed);
        auto plan = planTourGigs(g, v, g.gameDate + 42, 1);
        EXPECT_GE(plan.size(), 39u);
        EXPECT_LE(plan.size(), 40u);
    }
}

TEST(TourLevels, DemandsAndContentWeightSetTheLevelsAtEachEdge) {
    const int demands[] = {0, 19, 20, 39, 40, 69, 70, 89, 90, 100};
    const int weights[] = {0, 3, 4, 8, 9, 14, 15, 19, 20, 100};
    const int levels[] = {4, 4, 3, 3, 2, 2, 1, 1, 0, 0};
    for (std::size_t i = 0; i < 10; ++i) {
        EXPECT_EQ(hospitalityLevelFor(demands[i]), levels[i]) << "demands " << demands[i];
        EXPECT_EQ(contentLevelFor(weights[i]), levels[i]) << "weight " << weights[i];
    }
}

}  // namespace

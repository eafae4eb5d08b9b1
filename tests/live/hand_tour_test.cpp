// A tour booked by hand: the road between gigs, the 40-gig limit, support
// acts, sponsors, cancelling and what the road does to a habit.
#include <gtest/gtest.h>

#include "live/sponsors.h"
#include "live/tour_provisions.h"
#include "live_checks.h"
#include "schedule/band_calendar.h"
#include "support/amend.h"
#include "support/calendar_world.h"
#include "support/gig_world.h"
#include "talent/event_fatigue.h"

using namespace trovane;

namespace {

class HandTour : public test::GigWorld, public ::testing::Test {
protected:
    int16_t scotland = 0, york = 0, glasgow = 0;
    int16_t hall = 0, arena = 0, club = 0, bowl = 0, stadium = 0;
    double first = 0;
    HandTour() {
        scotland = addCountry("Scotland", "E");
        york = addCity("York", england);
        glasgow = addCity("Glasgow", scotland);
        hall = addVenue("Hall", 1000, leeds);
        arena = addVenue("Arena", 5000, leeds);
        club = addVenue("Club", 500, york);
        bowl = addVenue("Bowl", 2000, glasgow);
        stadium = addVenue("Stadium", 9000, paris);
        first = g.gameDate + 42;
    }
    int16_t tour(const char* area = "E", uint8_t nation = 0) {
        g.band.read(band);
        return createTour(g, area, nation);
    }
    std::vector<uint8_t> typesOn(double date) { return test::typesOn(g, date); }
    int16_t addProduct(const char* name, uint8_t minimum, const char* area, std::array<uint8_t, 5> countries = {},
                       uint8_t minC = 0, uint8_t maxC = 100) {
        g.product.rec = ProductRecord{.name = name,
                                      .minimumReputation = minimum,
                                      .regionWeights = countries,
                                      .area = area,
                                      .minControversy = minC,
                                      .maxControversy = maxC};
        return static_cast<int16_t>(g.product.append());
    }
    std::vector<int16_t> sponsorsOf(int16_t t) {
        std::vector<int16_t> out;
        for (const SponsorOffer& o : fittingSponsors(g, t)) out.push_back(o.product);
        return out;
    }
    std::array<int16_t, 4> billOf(int32_t gig) {
        g.gig.read(gig);
        return {g.gig->bill[0], g.gig->bill[1], g.gig->bill[2], g.gig->bill[3]};
    }
};

TEST_F(HandTour, TheRoadTakesOneToFiveDaysANextNightInTheSameCityNoneAndTheAreaBoundsTheVenues) {
    EXPECT_EQ(gapToNextGig(g, hall, arena), 1);    // both in Leeds
    EXPECT_EQ(gapToNextGig(g, hall, club), 2);     // Leeds to York, England
    EXPECT_EQ(gapToNextGig(g, hall, stadium), 3);  // England to France, both Europe
    int16_t samba = addVenue("Samba", 3000, rio);
    EXPECT_EQ(gapToNextGig(g, stadium, samba), 5);  // Europe to South America
    int16_t t = tour();
    addTourGig(g, t, hall, first);
    addTourGig(g, t, arena, first + 1);
    EXPECT_EQ(typesOn(first + 1), std::vector<uint8_t>{8});
    EXPECT_EQ(typesOn(first), std::vector<uint8_t>{8});
    int16_t uk = tour("E", static_cast<uint8_t>(england));
    EXPECT_TRUE(tourTakesVenue(g, uk, bowl));  // Glasgow, Scotland
    EXPECT_FALSE(tourTakesVenue(g, uk, stadium));
    int16_t europe = tour("E", 0);
    EXPECT_TRUE(tourTakesVenue(g, europe, stadium));
    EXPECT_FALSE(tourTakesVenue(g, europe, samba));
    int16_t parisOnly = tour("E", static_cast<uint8_t>(france));
    EXPECT_FALSE(tourTakesVenue(g, parisOnly, hall));
    EXPECT_TRUE(tourTakesVenue(g, tour("X", 0), samba));
    EXPECT_EQ(tourGigRefusal(g, uk, stadium, first), "Stadium lies outside the tour's area.");
}

TEST_F(HandTour, TheFirstGigIsSixWeeksOutLaterOnesAGapAfterTheLastAndNotOnABusyDay) {
    int16_t t = tour();
    NextGig opening = earliestNextGig(g, hall);
    EXPECT_EQ(std::tuple(opening.date, opening.rest), std::tuple(g.gameDate + 42, 0));
    EXPECT_EQ(tourGigRefusal(g, t, hall, first - 1), "A gig must be booked at least six weeks ahead.");
    addTourGig(g, t, hall, first);
    g.tour.read(t);
    NextGig next = earliestNextGig(g, stadium);
    EXPECT_EQ(std::tuple(next.date, next.rest), std::tuple(first + 3, 3));
    EXPECT_EQ(tourGigRefusal(g, t, stadium, first + 2),
              "The tour can't reach Stadium before 19/2/2004.");  // 5 January + 42 days + 3
    EXPECT_EQ(tourGigRefusal(g, t, stadium, first + 3), "");
    test::file(g, 7, first + 1, band);  // a studio day
    const std::string busy = "The Testers are already busy on that day or on the way.";
    EXPECT_EQ(tourGigRefusal(g, t, stadium, first + 5), busy);
    EXPECT_EQ(tourGigRefusal(g, t, club, first + 2), busy);
    EXPECT_EQ(confirmGigDateText(g, band, hall, first),
              "Are you sure you want The Testers to play Hall on Monday 16/2/2004?");  // 5 January 2004 was a Monday
}

TEST_F(HandTour, TheFortiethGigIsTakenAndTheFortyFirstRefusedAddingNothing) {
    int16_t t = tour();
    for (int i = 0; i < 39; ++i) addTourGig(g, t, i % 2 ? hall : arena, first + i);
    EXPECT_EQ(tourGigRefusal(g, t, hall, first + 40), "");
    addTourGig(g, t, hall, first + 39);
    const int32_t gigs = g.gig.recordCount();
    EXPECT_EQ(tourGigRefusal(g, t, hall, first + 45), kCantAddGigText);
    g.tour.read(t);
    g.venue.read(hall);
    EXPECT_EQ(addGigToTour(g, first + 45, 0), 0);
    EXPECT_EQ(g.gig.recordCount(), gigs);
    EXPECT_EQ((g.tour.read(t), g.tour->gigCount), 40);
    EXPECT_TRUE(typesOn(first + 45).empty());
}

TEST_F(HandTour, SponsorsPayByTheirMinimumBestFirst) {
    int16_t low = addProduct("Low", 0, "E");    // 0 + 450 = 450
    int16_t mid = addProduct("Mid", 40, "E");   // 40^4 = 2,560,000; / 5 = 512,000; / 100 = 5,120; + 450 = 5,570
    int16_t top = addProduct("Top", 100, "E");  // 10^8 / 5 = 20,000,000; / 100 = 200,000; + 450 = 200,450
    amend(g.band, band, [&] { g.band->reputation = {100, 100, 100, 100, 100}; });
    std::vector<std::pair<int16_t, int32_t>> offers;
    for (const SponsorOffer& o : fittingSponsors(g, tour())) offers.emplace_back(o.product, o.feePerGig);
    EXPECT_EQ(offers, (std::vector<std::pair<int16_t, int32_t>>{{top, 200450}, {mid, 5570}, {low, 450}}));
}

TEST_F(HandTour, AProductFitsByAreaByNationOrByNamingNeitherAndByControversy) {
    int16_t europe = addProduct("Euro", 0, "E");
    int16_t french = addProduct("French", 0, "N", {0, 0, 0, static_cast<uint8_t>(france), 0});
    int16_t anywhere = addProduct("Anywhere", 0, "");
    addProduct("Yankee", 0, "N");
    addProduct("Scottish", 0, "", {static_cast<uint8_t>(scotland), 0, 0, 0, 0});
    EXPECT_EQ(sponsorsOf(tour("E", static_cast<uint8_t>(france))), (std::vector<int16_t>{europe, french, anywhere}));
    EXPECT_EQ(sponsorsOf(tour("E", 0)), (std::vector<int16_t>{europe, anywhere}));
    int16_t tame = addProduct("Tame", 0, "E", {}, 10, 30);
    int16_t t = tour();
    for (auto [controversy, fits] : {std::pair{9, false}, {10, true}, {30, true}, {31, false}}) {
        amend(g.band, band, [&] { g.band->controversy = static_cast<uint8_t>(controversy); });
        EXPECT_EQ(productFitsTour(g, t, tame), fits) << controversy;
    }
}

TEST_F(HandTour, TheRatingOfTheTourMustReachTheMinimum) {
    amend(g.band, band, [&] { g.band->reputation = {50, 20, 40, 10, 0}; });
    // A world tour: (50 x 8 + 20 x 10 + 40 x 7 + 10 x 5 + 0) / 33 = 930 / 33 = 28.2, so 28.
    int16_t world = tour("X", 0);
    EXPECT_EQ(tourRating(g, world), 28);
    int16_t at = addProduct("At", 28, "X");
    addProduct("Past", 29, "X");
    EXPECT_EQ(sponsorsOf(world), std::vector<int16_t>{at});
    // England is the UK market (50); France and a Europe-wide tour are Europe (40).
    const std::tuple<const char*, int16_t, int> areas[] = {{"E", england, 50}, {"E", france, 40}, {"E", 0, 40},
                                                           {"N", 0, 20},       {"O", 0, 10},      {"S", 0, 0}};
    for (auto [area, nation, rating] : areas)
        EXPECT_EQ(tourRating(g, tour(area, static_cast<uint8_t>(nation))), rating) << area << nation;
}

TEST_F(HandTour, ProvisionsWaitForASponsorOnlyWhileOneFits) {
    int16_t t = tour();
    addTourGig(g, t, hall, first);
    EXPECT_TRUE(provisionsConfirmable(g, t, 0));
    int16_t p = addProduct("Fizz", 10, "E");
    EXPECT_FALSE(provisionsConfirmable(g, t, 0));
    EXPECT_TRUE(provisionsConfirmable(g, t, p));
    setTourSponsor(g, t, p);
    EXPECT_TRUE(provisionsConfirmable(g, t, 0));
}

class Supports : public HandTour {
protected:
    int16_t t = 0, a = 0, b = 0, c = 0;
    int32_t one = 0, two = 0;
    Supports() {
        a = addBand("Alpha", label);
        b = addBand("Beta", label);
        c = addBand("Gamma", label);
        t = tour();
        one = addTourGig(g, t, hall, first);
        two = addTourGig(g, t, club, first + 4);
    }
};

TEST_F(Supports, RemovingASupportClosesTheGapOnEveryGigAndTheCheckerWatchesOrderAndCount) {
    for (int16_t s : {a, b, c}) addSupportBand(g, t, s);
    EXPECT_EQ(billOf(two), (std::array<int16_t, 4>{band, a, b, c}));
    removeSupportBand(g, t, b);
    EXPECT_EQ(billOf(one), (std::array<int16_t, 4>{band, a, c, 0}));
    EXPECT_EQ(billOf(two), (std::array<int16_t, 4>{band, a, c, 0}));
    EXPECT_EQ((g.tour.read(t), g.tour->supportCount), 2);
    EXPECT_FALSE(test::ruleOn(g, "tourGigsInDateOrder").has_value());
    // the same day as the first gig
    amend(g.gig, two, [&] { g.gig->gigDate = first; });
    EXPECT_EQ(test::ruleOn(g, "tourGigsInDateOrder").value_or(InvariantBreak{}).field, "gigs[1]");
    amend(g.tour, t, [&] { g.tour->supportCount = 3; });
    EXPECT_FALSE(test::ruleOn(g, "supportCountsWithinThree").has_value());
    g.tour->supportCount = 4;
    g.tour.write();
    EXPECT_TRUE(test::ruleOn(g, "supportCountsWithinThree").has_value());
}

TEST_F(Supports, AFourthSupportAndABusyOrForeignActAreRefused) {
    EXPECT_EQ(supportRefusal(g, t, band), "An act can't support its own tour.");
    int16_t theirs = addBand("Theirs", rival);
    EXPECT_EQ(supportRefusal(g, t, theirs), "Theirs isn't signed to your label.");
    // A rest day of the tour's last leg is as busy as a gig.
    test::file(g, 7, first + 4, c);
    EXPECT_EQ(supportRefusal(g, t, c), "Gamma isn't free for the whole tour.");
    EXPECT_EQ(supportCandidates(g, t), (std::vector<int16_t>{a, b}));
    int16_t d = addBand("Delta", label);
    for (int16_t s : {a, b, d}) addSupportBand(g, t, s);
    int16_t e2 = addBand("Epsilon", label);
    EXPECT_EQ(supportRefusal(g, t, e2), "The tour already has three support bands.");
    EXPECT_EQ(supportRefusal(g, t, static_cast<int16_t>(g.band.recordCount())), "There is no such band.");
}

TEST_F(Supports, FinalisingSetsAnUnchosenSponsorToNoneRemovesAnEmptyTourAndCancellingCallsOffOnlyItsDays) {
    EXPECT_EQ((g.tour.read(t), g.tour->sponsorProduct), -1);
    EXPECT_TRUE(finaliseTour(g, t));
    EXPECT_EQ((g.tour.read(t), g.tour->sponsorProduct), 0);
    int16_t empty = tour();
    EXPECT_FALSE(finaliseTour(g, empty));
    EXPECT_EQ((g.tour.read(empty), g.tour->gigCount), 0);
    test::file(g, 7, first + 2, a);
    cancelTour(g, t);
    for (double d = first; d <= first + 4; ++d)
        for (int32_t id : entriesOfDay(g, d)) {
            g.schedule.read(id);
            EXPECT_EQ(g.schedule->type, g.schedule->band == a ? 7 : 255) << d - first;
        }
    EXPECT_EQ((g.tour.read(t), g.tour->gigCount), 0);
    g.band.read(band);
    EXPECT_EQ(bandEngagement(g, 1, first), 0);
}

TEST_F(Supports, TheSummaryNamesLengthSupportsAndLevels) {
    addSupportBand(g, t, a);
    setTourLevels(g, t, 0, 4, 2);
    EXPECT_EQ(finaliseTourText(g, t),
              "Tour Length : 2 gigs between 16/2/2004 and 20/2/2004"
              ".\nSupport Bands : Alpha\nContent : Extravagant\nHospitality : None\n"
              "Accommodation : Upmarket. Finalise the tour?");
}

TEST_F(HandTour, TheRoadFeedsAHabitAlreadyBegunUpToAHundred) {
    g.band.read(band);
    const int16_t m0 = g.band->members[0], m1 = g.band->members[1];
    // A gig, a travel day or a rest day feeds it; a studio day (7) wears, but feeds nothing.
    for (auto [type, before, after] : {std::tuple{8, 5, 6}, {10, 5, 6}, {11, 5, 6}, {10, 100, 100}, {7, 5, 5}}) {
        for (int16_t who : {m0, m1})
            amend(g.artist, who, [&] {
                g.artist->drugHabit = static_cast<uint8_t>(who == m0 ? before : 0);
                g.artist->energy = 80;
            });
        applyEventFatigue(g, ScheduleRecord{.type = static_cast<uint8_t>(type), .band = band});
        EXPECT_EQ((g.artist.read(m0), g.artist->drugHabit), after) << type << " from " << before;
        EXPECT_EQ((g.artist.read(m1), g.artist->drugHabit), 0) << "a habit not begun stays unbegun, " << type;
    }
}

}  // namespace

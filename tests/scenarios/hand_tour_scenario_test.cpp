// A taken-over label sends its act on a two-night tour by hand, London then
// Paris, with the road between them; every day is played with the invariants
// checked, and a sponsor's money is found in each night's takings and the books.
#include <gtest/gtest.h>

#include <array>

#include "label/finances.h"
#include "live/tour_provisions.h"
#include "live/tours.h"
#include "schedule/schedule.h"
#include "support/taken_over_game.h"

using namespace trovane;

namespace {

struct Night {
    int32_t attendance = 0;
    int32_t profit = 0;
};

struct TourResult {
    std::array<Night, 2> nights;
    std::vector<uint8_t> roadTypes;  // the entry types between the nights, day by day
    Money recouped = 0;              // what the label took back from the act's account
};

class TourGame : public test::TakenOverGame {
public:
    int16_t london = 0, paris = 0, fizz = 0;

    TourGame() : TakenOverGame(99) {
        takeOver();
        g.band.read(band);
        g.band->reputation = {60, 60, 60, 60, 60};
        g.band->controversy = 20;
        g.band.write();
        london = addVenue("The Long Room", 1);  // London, England
        paris = addVenue("Le Grand Salon", 3);  // Paris, France
        g.product.rec = ProductRecord{.name = "Fizzco Cola", .area = "E", .maxControversy = 60};
        fizz = static_cast<int16_t>(g.product.append());
    }

    int16_t addVenue(const char* name, int16_t city) {
        g.venue.rec = VenueRecord{.name = name, .capacity = 400, .city = city};
        return static_cast<int16_t>(g.venue.append());
    }

    TourResult play(bool sponsored) {
        TourResult r;
        const double first = g.gameDate + 42;
        EXPECT_EQ(tourStartRefusal(g, band), "");
        g.band.read(band);
        const int16_t tour = createTour(g, "E", 0);
        EXPECT_EQ(tourGigRefusal(g, tour, london, first), "");
        addTourGig(g, tour, london, first);
        // England to France is 3 days on the road: Paris can be played from first + 3.
        EXPECT_NE(tourGigRefusal(g, tour, paris, first + 2), "");
        EXPECT_EQ(tourGigRefusal(g, tour, paris, first + 5), "");
        addTourGig(g, tour, paris, first + 5);
        setTourLevels(g, tour, 4, 4, 4);
        EXPECT_FALSE(provisionsConfirmable(g, tour, 0));
        setTourSponsor(g, tour, sponsored ? fizz : 0);
        EXPECT_TRUE(finaliseTour(g, tour));
        for (double d = first + 1; d < first + 5; ++d)
            for (int32_t id : entriesOfDay(g, d)) {
                g.schedule.read(id);
                if (g.schedule->band == band) r.roadTypes.push_back(g.schedule->type);
            }
        g.label.read(label);
        const Money before = ledgerEntry(g.label.rec, 2, ledgerRecoupedAdvances);
        playUntil(first + 6);
        g.label.read(label);
        r.recouped = ledgerEntry(g.label.rec, 2, ledgerRecoupedAdvances) - before;
        g.tour.read(tour);
        const TourRecord t = g.tour.rec;
        for (std::size_t i = 0; i < 2; ++i) {
            g.gig.read(t.gigs[i]);
            r.nights[i] = {g.gig->attendance, g.gig->profit};
        }
        return r;
    }
};

}  // namespace

TEST(HandTourScenario, TheRoadIsTravelledAndTheSponsorPaysEveryNight) {
    TourResult plain, sponsored;
    {
        TourGame game;
        ASSERT_GT(game.band, 0);
        plain = game.play(false);
        ASSERT_FALSE(::testing::Test::HasFatalFailure());
    }
    {
        TourGame game;
        sponsored = game.play(true);
        ASSERT_FALSE(::testing::Test::HasFatalFailure());
    }
    // Two travel days, then two of rest before Paris.
    EXPECT_EQ(sponsored.roadTypes, (std::vector<uint8_t>{10, 10, 11, 11}));
    for (std::size_t i = 0; i < 2; ++i) {
        ASSERT_GT(plain.nights[i].profit, 0) << "night " << i << " must clear its costs for the comparison";
        EXPECT_EQ(sponsored.nights[i].attendance, plain.nights[i].attendance) << i;
        // A minimum of 0 pays 450 a night; at reputation 60 the act keeps 80 percent: 360.
        EXPECT_EQ(sponsored.nights[i].profit - plain.nights[i].profit, 360) << i;
    }
    // The label takes back no more than the act earned.
    EXPECT_LE(sponsored.recouped, moneyUnits(sponsored.nights[0].profit + sponsored.nights[1].profit));
    EXPECT_GE(sponsored.recouped - plain.recouped, 0);
}

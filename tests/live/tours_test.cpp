// The player's booking of one gig, a tour of one, and the tour's gigs.
#include <gtest/gtest.h>

#include "live_checks.h"
#include "support/amend.h"
#include "support/gig_world.h"

using namespace trovane;

namespace {

class Booking : public test::GigWorld, public ::testing::Test {
protected:
    int16_t hall = 0;
    Booking() { hall = addVenue("Hall", 1000, leeds); }
    GigBooking booking(double daysAhead) { return {.band = band, .venue = hall, .date = g.gameDate + daysAhead}; }
};

TEST_F(Booking, ANightNeedsSixWeeksAnActiveActOfTheLabelAndTimeBeforeARetirement) {
    EXPECT_EQ(gigBookingRefusal(g, booking(41)), "A gig must be booked at least six weeks ahead.");
    EXPECT_EQ(gigBookingRefusal(g, booking(42)), "");
    GigBooking other = booking(50);
    other.band = addBand("The Others", rival);
    EXPECT_EQ(gigBookingRefusal(g, other), "The Others isn't signed to your label.");
    g.band.read(band);
    amend(g.artist, g.band->members[1], [&] { g.artist->retirementDate = g.gameDate + 50; });
    EXPECT_EQ(gigBookingRefusal(g, booking(49)), "");
    EXPECT_EQ(gigBookingRefusal(g, booking(50)),
              "Your assistant has informed you he feels there is insufficient time before The Testers's "
              "retirement to book a tour.");
    amend(g.band, band, [&] { g.band->retired = kTrue; });
    EXPECT_EQ(gigBookingRefusal(g, booking(49)), "The Testers has retired.");
}

TEST_F(Booking, ABookedNightIsATourOfOneKeepingTheBandBusyAndTheCheckerFindsAGigOutsideItsTour) {
    BookedGig booked = bookGig(g, {.band = band, .venue = hall, .date = g.gameDate + 42, .contentLevel = 0});
    const TourRecord t = (g.tour.read(booked.tour), g.tour.rec);
    EXPECT_EQ(std::tuple(t.gigCount, t.gigs[0], t.band, t.contentLevel, t.sponsorProduct, t.areaCode.value),
              std::tuple(uint8_t{1}, booked.gig, band, uint8_t{0}, int16_t{0}, std::string("E")));
    EXPECT_EQ((g.gig.read(booked.gig), std::tuple(g.gig->bill[0], g.gig->venue)), std::tuple(band, hall));
    EXPECT_EQ(test::typesOn(g, g.gameDate + 42), std::vector<uint8_t>{8});
    EXPECT_EQ(gigBookingRefusal(g, booking(42)), "The Testers are already busy on that day.");
    EXPECT_FALSE(test::ruleOn(g, "gigsAndToursPointWithin").has_value());
    amend(g.gig, booked.gig, [&] { g.gig->tour = 2; });  // one tour on file
    EXPECT_EQ(test::ruleOn(g, "gigsAndToursPointWithin").value_or(InvariantBreak{}).field, "tour");
}

}  // namespace

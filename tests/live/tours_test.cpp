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

TEST_F(Booking, ABookedNightIsATourOfOneAndKeepsTheBandBusy) {
    BookedGig booked = bookGig(g, {.band = band, .venue = hall, .date = g.gameDate + 42, .contentLevel = 0});
    const TourRecord t = (g.tour.read(booked.tour), g.tour.rec);
    EXPECT_EQ(std::tuple(t.gigCount, t.gigs[0], t.band, t.contentLevel, t.sponsorProduct, t.areaCode.value),
              std::tuple(uint8_t{1}, booked.gig, band, uint8_t{0}, int16_t{0}, std::string("E")));
    g.gig.read(booked.gig);
    EXPECT_EQ(std::tuple(g.gig->bill[0], g.gig->venue), std::tuple(band, hall));
    EXPECT_EQ(test::typesOn(g, g.gameDate + 42), std::vector<uint8_t>{8});
    EXPECT_EQ(gigBookingRefusal(g, booking(42)), "The Testers are already busy on that day.");
}

TEST_F(Booking, TheCheckerFindsAGigOutsideItsTour) {
    auto rule = [&] { return test::ruleOn(g, "gigsAndToursPointWithin"); };
    bookGig(g, {.band = band, .venue = hall, .date = g.gameDate + 42});
    EXPECT_FALSE(rule().has_value());
    // one tour on file
    amend(g.gig, 1, [&] { g.gig->tour = 2; });
    auto broken = rule();
    ASSERT_TRUE(broken.has_value());
    EXPECT_EQ(broken->field, "tour");
}

}  // namespace

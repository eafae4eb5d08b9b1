// A taken-over label books its act a night at a venue six weeks ahead, plays
// every day to it and past it with the invariants checked daily, and finds
// the night's money in the label's books and the act's accounts.
#include <gtest/gtest.h>

#include "label/finances.h"
#include "live/tours.h"
#include "support/taken_over_game.h"

using namespace trovane;

namespace {

class GigNight : public ::testing::Test, public test::TakenOverGame {
protected:
    int16_t venue = 0;
    GigNight() : TakenOverGame(99) {
        takeOver();
        g.venue.rec = VenueRecord{.name = "The Long Room", .capacity = 400, .city = 1};
        venue = static_cast<int16_t>(g.venue.append());
    }
};

}  // namespace

TEST_F(GigNight, TheNightIsPlayedAndItsMoneyReachesTheBooks) {
    ASSERT_GT(band, 0);
    GigBooking booking{.band = band, .venue = venue, .date = g.gameDate + 42, .contentLevel = 4};
    ASSERT_EQ(gigBookingRefusal(g, booking), "");
    BookedGig booked = bookGig(g, booking);
    g.label.read(label);
    const Money recoupedBefore = ledgerEntry(g.label.rec, 2, ledgerRecoupedAdvances);
    const Money otherBefore = ledgerEntry(g.label.rec, 2, ledgerOtherExpense);
    while (g.gameDate <= booking.date) ASSERT_NO_FATAL_FAILURE(playDay());

    g.gig.read(booked.gig);
    EXPECT_GT(g.gig->attendance, 0);
    EXPECT_LE(g.gig->attendance, 400);
    g.band.read(band);
    EXPECT_EQ(g.band->gigCount, 1);
    EXPECT_EQ(g.band->biggestGig, booked.gig);
    g.label.read(label);
    Money recouped = ledgerEntry(g.label.rec, 2, ledgerRecoupedAdvances) - recoupedBefore;
    Money charged = otherBefore - ledgerEntry(g.label.rec, 2, ledgerOtherExpense);
    if (g.gig->profit < 0)
        EXPECT_EQ(charged, moneyUnits(-g.gig->profit)) << "a loss is charged to the act's account";
    else
        EXPECT_LE(recouped, moneyUnits(g.gig->profit)) << "the label takes no more than the act's share";

    bool reviewed = false;
    for (int32_t n = 1; n < g.news.recordCount(); ++n) {
        g.news.read(n);
        if (g.news->date == booking.date && trim(g.news->title.value) == trim(g.band.rec.name.value)) reviewed = true;
    }
    EXPECT_TRUE(reviewed);
}

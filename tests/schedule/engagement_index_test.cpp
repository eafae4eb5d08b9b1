#include <gtest/gtest.h>

#include "schedule/band_calendar.h"
#include "support/amend.h"
#include "support/calendar_world.h"
#include "support/empty_game.h"
#include "support/played_world.h"
#include "world/record_store.h"

using namespace trovane;
using namespace trovane::test;

namespace {

const double kDay = day(2004, 9, 1);

int32_t busyOn(Game& g, int16_t band, double date) {
    g.band.read(band);
    return bandEngagement(g, 1, date);
}

struct Buffers {
    ScheduleRecord schedule;
    GigRecord gig;
    TourRecord tour;
    FestivalRecord festival;
    bool operator==(const Buffers&) const = default;
};

Buffers buffersOf(Game& g) { return {g.schedule.rec, g.gig.rec, g.tour.rec, g.festival.rec}; }

void setBuffers(Game& g, const Buffers& b) {
    g.schedule.rec = b.schedule;
    g.gig.rec = b.gig;
    g.tour.rec = b.tour;
    g.festival.rec = b.festival;
}

// The index's answer for the band on the date against the walk of the day,
// and the buffers each leaves, both from the same buffers; the index's answer.
int32_t expectSameAsWalk(Game& g, int16_t b, double d, const Buffers& blank) {
    setBuffers(g, blank);
    g.band.read(b);
    const int32_t indexed = bandEngagement(g, 1, d);
    const Buffers left = buffersOf(g);
    setBuffers(g, blank);
    g.band.read(b);
    EXPECT_EQ(indexed, bandEngagementByWalk(g, d)) << "band " << b << " on " << d;
    EXPECT_TRUE(left == buffersOf(g)) << "band " << b << " on " << d;
    return indexed;
}

// Every band on each date.
void expectAgreement(Game& g, double from, double to, double step) {
    int busy = 0;
    const Buffers blank = buffersOf(g);
    for (int16_t b = 1; b < g.band.recordCount() && !::testing::Test::HasFailure(); ++b)
        for (double d = from; d < to; d += step) busy += expectSameAsWalk(g, b, d, blank) != 0;
    EXPECT_GT(busy, 100) << "the world was busy enough to test anything";
}

// A stretch counted, against the walk of each of its days in turn.
void expectStretchAgreement(Game& g, double from, double to) {
    const Buffers blank = buffersOf(g);
    for (int16_t b = 1; b < g.band.recordCount(); b += 7) {
        setBuffers(g, blank);
        g.band.read(b);
        const int32_t counted = countFreeDays(g, from, to);
        const Buffers left = buffersOf(g);
        setBuffers(g, blank);
        int32_t walked = 0;
        for (double d = from; d < to; d += 1) {
            g.band.read(b);
            walked += bandEngagementByWalk(g, d) == 0;
        }
        ASSERT_EQ(counted, walked) << "band " << b;
        ASSERT_TRUE(left == buffersOf(g)) << "band " << b;
    }
}

}  // namespace

TEST(EngagementIndex, AgreesWithTheWalkAfterMonthsOfPlay) {
    PlayedWorld w;
    Game& g = w.g;
    g.band.read(1);
    (void)bandEngagement(g, 1, g.gameDate);  // built now, kept in step by writes from here on
    const double start = g.gameDate;
    w.play(150);
    expectAgreement(g, start, g.gameDate + 150, 7);
    expectStretchAgreement(g, g.gameDate - 30, g.gameDate + 60);
}

TEST(EngagementIndex, LeavesTheBuffersWhereTheWalkLeavesThem) {
    EmptyGame eg;
    Game& g = eg.g;
    int16_t head = addBand(g, {50}), support = addBand(g, {50}), other = addBand(g, {50});
    g.festival.rec = FestivalRecord{.billSize = 3};
    int16_t fest = static_cast<int16_t>(g.festival.append());
    file(g, 8, kDay, 0, addGig(g, head, kDay, {support}, 0, fest));
    const int32_t tourBill = file(g, 10, kDay, head, addGig(g, head, kDay, {support}));  // the last bill read
    file(g, 10, kDay, other, 0);  // a bill without a gig reads nothing
    const int32_t lastEntry = file(g, 7, kDay, other);
    for (int16_t band : {support, other, head}) expectSameAsWalk(g, band, kDay, Buffers{});
    EXPECT_EQ(busyOn(g, support, kDay), tourBill);
    EXPECT_EQ(g.festival->festivalNumber, fest);  // read by the festival's bill, before the tour's
    EXPECT_EQ(g.schedule->id, lastEntry);         // the day's last entry
}

// Own work beats a place on a bill, the last bill of the day wins, and the
// index follows bills and entries rewritten after they were filed.
TEST(EngagementIndex, FollowsBillsAndEntriesChangedAfterTheyWereFiled) {
    EmptyGame eg;
    Game& g = eg.g;
    int16_t a = addBand(g, {50}), b = addBand(g, {50}), c = addBand(g, {50}), late = addBand(g, {50});
    const int32_t firstBill = file(g, 10, kDay, a, addGig(g, a, kDay, {c}));
    const int32_t lateGig = addGig(g, b, kDay, {c});
    const int32_t lastBill = file(g, 10, kDay, b, lateGig);
    EXPECT_EQ(busyOn(g, c, kDay), lastBill);
    EXPECT_EQ(busyOn(g, late, kDay), 0);
    amend(g.gig, lateGig, [&] { g.gig->bill[1] = late; });  // the support act is replaced
    EXPECT_EQ(busyOn(g, late, kDay), lastBill);
    const int32_t own = file(g, 7, kDay, c);
    EXPECT_EQ(busyOn(g, c, kDay), own);
    amend(g.schedule, own, [&] { g.schedule->band = late; });  // given to another band
    EXPECT_EQ(busyOn(g, late, kDay), own);
    EXPECT_EQ(busyOn(g, c, kDay), firstBill);
    amend(g.schedule, own, [&] { g.schedule->type = 255; });  // cancelled
    EXPECT_EQ(busyOn(g, late, kDay), lastBill);

    // The entry names the gig the next append makes; the index is built
    // before the gig is there.
    const int32_t entry = file(g, 10, kDay + 1, a, g.gig.recordCount());
    EXPECT_EQ(busyOn(g, a, kDay + 1), entry);
    addGig(g, a, kDay + 1, {b});
    EXPECT_EQ(busyOn(g, b, kDay + 1), entry);

    // Entries filed in a later year's day file, its number full of nines, are followed too.
    const double later = day(2009, 9, 9);
    const int32_t far = file(g, 7, later, a);
    EXPECT_EQ(busyOn(g, a, later), far);
}

TEST(EngagementIndex, ARebookedEntryStaysOnItsOldDayAndTheIndexIsBuiltAgainOnOpening) {
    EmptyGame eg;
    Game& g = eg.g;
    int16_t band = addBand(g, {50}), support = addBand(g, {50});
    int32_t id = file(g, 17, kDay, band);
    ASSERT_EQ(busyOn(g, band, kDay), id);
    ScheduleRecord again{.type = 17, .date = kDay + 3, .band = band, .id = id};
    ASSERT_EQ(addSchedule(g, again), id);
    EXPECT_EQ(busyOn(g, band, kDay + 3), id);
    EXPECT_EQ(busyOn(g, band, kDay), id);
    EXPECT_EQ(bandEngagementByWalk(g, kDay), id);

    int32_t entry = file(g, 10, kDay + 5, band, addGig(g, band, kDay + 5, {support}));
    EXPECT_EQ(busyOn(g, support, kDay + 5), entry);
    closeAllTables(g);
    openAllTables(g);
    EXPECT_EQ(busyOn(g, support, kDay + 5), entry);
    EXPECT_EQ(busyOn(g, support, kDay + 6), 0);
}

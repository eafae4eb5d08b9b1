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

// The index's answer for every band on each date, against the walk of the
// day, and the buffers each leaves.
void expectAgreement(Game& g, double from, double to, double step) {
    int busy = 0;
    const Buffers blank = buffersOf(g);
    for (int16_t b = 1; b < g.band.recordCount(); ++b)
        for (double d = from; d < to; d += step) {
            setBuffers(g, blank);
            g.band.read(b);
            const int32_t indexed = bandEngagement(g, 1, d);
            const Buffers left = buffersOf(g);
            setBuffers(g, blank);
            g.band.read(b);
            ASSERT_EQ(indexed, bandEngagementByWalk(g, d)) << "band " << b << " on " << d;
            ASSERT_TRUE(left == buffersOf(g)) << "band " << b << " on " << d;
            busy += indexed != 0;
        }
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
    g.festival.rec = FestivalRecord{};
    g.festival->billSize = 3;
    int16_t fest = static_cast<int16_t>(g.festival.append());
    file(g, 8, kDay, 0, addGig(g, head, kDay, {support}, 0, fest));
    const int32_t tourBill = file(g, 10, kDay, head, addGig(g, head, kDay, {support}));  // the last bill read
    file(g, 10, kDay, other, 0);  // a bill without a gig reads nothing
    const int32_t lastEntry = file(g, 7, kDay, other);
    for (int16_t band : {support, other, head}) {
        for (bool byIndex : {true, false}) {
            g.schedule.rec = ScheduleRecord{};
            g.gig.rec = GigRecord{};
            g.tour.rec = TourRecord{};
            g.festival.rec = FestivalRecord{};
            g.band.read(band);
            (void)(byIndex ? bandEngagement(g, 1, kDay) : bandEngagementByWalk(g, kDay));
            static Buffers seen;
            if (byIndex)
                seen = buffersOf(g);
            else
                EXPECT_TRUE(seen == buffersOf(g)) << "band " << band;
        }
    }
    g.band.read(support);
    EXPECT_EQ(bandEngagement(g, 1, kDay), tourBill);
    EXPECT_EQ(g.festival->festivalNumber, fest);  // read by the festival's bill, before the tour's
    EXPECT_EQ(g.schedule->id, lastEntry);         // the day's last entry
}

TEST(EngagementIndex, FollowsABillChangedAfterTheEntryWasFiled) {
    EmptyGame eg;
    Game& g = eg.g;
    int16_t head = addBand(g, {50}), support = addBand(g, {50}), late = addBand(g, {50});
    int32_t gig = addGig(g, head, kDay, {support});
    int32_t entry = file(g, 10, kDay, head, gig);
    EXPECT_EQ(busyOn(g, late, kDay), 0);
    // the support act is replaced
    amend(g.gig, gig, [&] { g.gig->bill[1] = late; });
    EXPECT_EQ(busyOn(g, late, kDay), entry);
    EXPECT_EQ(busyOn(g, support, kDay), 0);
}

TEST(EngagementIndex, FollowsAnEntryGivenToAnotherBand) {
    EmptyGame eg;
    Game& g = eg.g;
    int16_t first = addBand(g, {50}), second = addBand(g, {50});
    int32_t entry = file(g, 7, kDay, first);
    EXPECT_EQ(busyOn(g, first, kDay), entry);
    amend(g.schedule, entry, [&] { g.schedule->band = second; });
    EXPECT_EQ(busyOn(g, first, kDay), 0);
    EXPECT_EQ(busyOn(g, second, kDay), entry);
    // cancelled
    amend(g.schedule, entry, [&] { g.schedule->type = 255; });
    EXPECT_EQ(busyOn(g, second, kDay), 0);
}

TEST(EngagementIndex, AGigAddedAfterItsEntryPutsItsBillToWork) {
    EmptyGame eg;
    Game& g = eg.g;
    int16_t head = addBand(g, {50}), support = addBand(g, {50});
    // The entry names the gig the next append makes; asking after another act
    // before it is made would read a gig that is not there.
    int32_t entry = file(g, 10, kDay, head, g.gig.recordCount());
    EXPECT_EQ(busyOn(g, head, kDay), entry);  // the index is built before the gig is there
    addGig(g, head, kDay, {support});
    EXPECT_EQ(busyOn(g, support, kDay), entry);
}

TEST(EngagementIndex, ARebookedEntryStaysOnItsOldDayAsTheWalkFindsIt) {
    EmptyGame eg;
    Game& g = eg.g;
    int16_t band = addBand(g, {50});
    int32_t id = file(g, 17, kDay, band);
    ASSERT_EQ(busyOn(g, band, kDay), id);
    ScheduleRecord again{};
    again.type = 17;
    again.id = id;
    again.band = band;
    again.date = kDay + 3;
    ASSERT_EQ(addSchedule(g, again), id);
    EXPECT_EQ(busyOn(g, band, kDay + 3), id);
    g.band.read(band);
    EXPECT_EQ(busyOn(g, band, kDay), bandEngagementByWalk(g, kDay));
    EXPECT_EQ(busyOn(g, band, kDay), id);
}

TEST(EngagementIndex, OwnWorkBeatsTheBillAndTheLastBillWins) {
    EmptyGame eg;
    Game& g = eg.g;
    int16_t a = addBand(g, {50}), b = addBand(g, {50}), c = addBand(g, {50});
    int32_t early = file(g, 10, kDay, a, addGig(g, a, kDay, {c}));
    int32_t late = file(g, 10, kDay, b, addGig(g, b, kDay, {c}));
    EXPECT_EQ(busyOn(g, c, kDay), late);
    int32_t own = file(g, 7, kDay, c);
    EXPECT_EQ(busyOn(g, c, kDay), own);
    static_cast<void>(early);
}

TEST(EngagementIndex, IsBuiltAgainFromTheFilesWhenTheTablesOpenAgain) {
    EmptyGame eg;
    Game& g = eg.g;
    int16_t head = addBand(g, {50}), support = addBand(g, {50});
    int32_t entry = file(g, 10, kDay, head, addGig(g, head, kDay, {support}));
    EXPECT_EQ(busyOn(g, support, kDay), entry);
    closeAllTables(g);
    openAllTables(g);
    EXPECT_EQ(busyOn(g, support, kDay), entry);
    EXPECT_EQ(busyOn(g, support, kDay + 1), 0);
}

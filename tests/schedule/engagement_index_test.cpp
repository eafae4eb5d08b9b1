#include <gtest/gtest.h>

#include "schedule/band_calendar.h"
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

// The index's answer for every band on each date, against the walk of the day.
void expectAgreement(Game& g, double from, double to, double step) {
    int busy = 0;
    for (int16_t b = 1; b < g.band.recordCount(); ++b)
        for (double d = from; d < to; d += step) {
            g.band.read(b);
            const int32_t indexed = bandEngagement(g, 1, d);
            g.band.read(b);
            ASSERT_EQ(indexed, bandEngagementByWalk(g, d)) << "band " << b << " on " << d;
            busy += indexed != 0;
        }
    EXPECT_GT(busy, 100) << "the world was busy enough to test anything";
}

}  // namespace

TEST(EngagementIndex, AgreesWithTheWalkAfterMonthsOfPlay) {
    PlayedWorld w;
    Game& g = w.g;
    g.band.read(1);
    (void)bandEngagement(g, 1, g.gameDate);  // built now, kept in step by writes from here on
    const double start = g.gameDate;
    w.play(150);
    expectAgreement(g, start, g.gameDate + 150, 3);
}

TEST(EngagementIndex, ABuiltIndexLeavesEveryBufferAsItWas) {
    EmptyGame eg;
    Game& g = eg.g;
    int16_t head = addBand(g, {50}), support = addBand(g, {50});
    int32_t entry = file(g, 10, kDay, head, addGig(g, head, kDay, {support}));
    g.schedule.read(entry);
    const ScheduleRecord heldEntry = g.schedule.rec;
    g.gig.rec = GigRecord{};
    g.tour.rec = TourRecord{};
    EXPECT_EQ(busyOn(g, support, kDay), entry);
    EXPECT_EQ(g.schedule.rec, heldEntry);
    EXPECT_EQ(g.gig.rec, GigRecord{});
    EXPECT_EQ(g.tour.rec, TourRecord{});
}

TEST(EngagementIndex, FollowsABillChangedAfterTheEntryWasFiled) {
    EmptyGame eg;
    Game& g = eg.g;
    int16_t head = addBand(g, {50}), support = addBand(g, {50}), late = addBand(g, {50});
    int32_t gig = addGig(g, head, kDay, {support});
    int32_t entry = file(g, 10, kDay, head, gig);
    EXPECT_EQ(busyOn(g, late, kDay), 0);
    g.gig.read(gig);
    g.gig->bill[1] = late;  // the support act is replaced
    g.gig.write();
    EXPECT_EQ(busyOn(g, late, kDay), entry);
    EXPECT_EQ(busyOn(g, support, kDay), 0);
}

TEST(EngagementIndex, FollowsAnEntryGivenToAnotherBand) {
    EmptyGame eg;
    Game& g = eg.g;
    int16_t first = addBand(g, {50}), second = addBand(g, {50});
    int32_t entry = file(g, 7, kDay, first);
    EXPECT_EQ(busyOn(g, first, kDay), entry);
    g.schedule.read(entry);
    g.schedule->band = second;
    g.schedule.write();
    EXPECT_EQ(busyOn(g, first, kDay), 0);
    EXPECT_EQ(busyOn(g, second, kDay), entry);
    g.schedule.read(entry);
    g.schedule->type = 255;  // cancelled
    g.schedule.write();
    EXPECT_EQ(busyOn(g, second, kDay), 0);
}

TEST(EngagementIndex, AGigAddedAfterItsEntryPutsItsBillToWork) {
    EmptyGame eg;
    Game& g = eg.g;
    int16_t head = addBand(g, {50}), support = addBand(g, {50});
    // The entry names the gig the next append makes.
    int32_t entry = file(g, 10, kDay, head, g.gig.recordCount());
    EXPECT_EQ(busyOn(g, support, kDay), 0);
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

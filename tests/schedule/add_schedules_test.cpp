// Filing several entries at once files them as one by one would.
#include <gtest/gtest.h>

#include "schedule/schedule.h"
#include "support/empty_game.h"
#include "world/dates.h"

using namespace trovane;

TEST(AddSchedules, EntriesAreNumberedAndListedAsOneByOneAcrossYears) {
    test::EmptyGame eg;
    Game& g = eg.g;
    const double eve = serialFromCivil(2006, 12, 31);
    std::vector<ScheduleRecord> records(4);
    for (std::size_t i = 0; i < records.size(); ++i) {
        records[i].type = 7;
        records[i].band = static_cast<int16_t>(i + 1);
    }
    records[0].date = eve;
    records[1].date = g.gameStartDate - 1;  // before the game: not filed
    records[2].date = eve + 1;              // a year with no day file yet
    records[3].date = eve;
    EXPECT_EQ(addSchedules(g, records), (std::vector<int32_t>{1, 0, 2, 3}));
    // The day buffer holds the last day written: New Year's Eve with both its entries.
    EXPECT_EQ(g.dayIndex->count, 2);
    EXPECT_EQ(g.dayIndex->entries[1], 3);
    EXPECT_EQ(entriesOfDay(g, eve), (std::vector<int32_t>{1, 3}));
    EXPECT_EQ(entriesOfDay(g, eve + 1), (std::vector<int32_t>{2}));
    EXPECT_EQ(g.lastScheduleYear, 2007);
    g.schedule.read(3);
    EXPECT_EQ(g.schedule->band, 4);
}

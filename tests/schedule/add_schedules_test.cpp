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
    // The second is before the game: not filed; the third in a year with no day file yet; only a promotion keeps
    // the number it names.
    const std::vector<ScheduleRecord> records = {{.type = 7, .date = eve, .band = 1},
                                                 {.type = 7, .date = g.gameStartDate - 1, .band = 2},
                                                 {.type = 7, .date = eve + 1, .band = 3},
                                                 {.type = 7, .date = eve, .band = 4, .id = 9}};
    EXPECT_EQ(addSchedules(g, records), (std::vector<int32_t>{1, 0, 2, 3}));
    // The day buffer holds the last day written: New Year's Eve with both its entries.
    EXPECT_EQ(std::tuple(g.dayIndex->count, g.dayIndex->entries[1]), std::tuple(2, 3));
    EXPECT_EQ(entriesOfDay(g, eve), (std::vector<int32_t>{1, 3}));
    EXPECT_EQ(entriesOfDay(g, eve + 1), (std::vector<int32_t>{2}));
    EXPECT_EQ(std::tuple(g.lastScheduleYear, (g.schedule.read(3), g.schedule->band)), std::tuple(2007, 4));
}

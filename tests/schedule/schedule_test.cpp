#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/calendar_world.h"
#include "support/empty_game.h"
#include "support/sim_run.h"
#include "world/fatal_error.h"
#include "world/record_store.h"

using namespace trovane;
using namespace trovane::test;

namespace {

int32_t daysFiled(Game& g, int year) {
    openDayFile(g, year);
    int32_t n = g.dayIndex.records();
    closeDayFile(g);
    return n;
}

}  // namespace

TEST(Schedule, MissingYearsAreMadeInOrderUpToTheEntrysYear) {
    EmptyGame eg;
    Game& g = eg.g;
    ASSERT_EQ(g.lastScheduleYear, 2005);  // a new game files 2004 and 2005
    EXPECT_EQ(daysFiled(g, 2004), 366);
    EXPECT_EQ(daysFiled(g, 2005), 365);
    int32_t id = file(g, 6, day(2007, 1, 1));
    EXPECT_EQ(g.lastScheduleYear, 2007);
    EXPECT_EQ(daysFiled(g, 2006), 365);
    EXPECT_EQ(entriesOfDay(g, day(2007, 1, 1)), std::vector<int32_t>{id});
    file(g, 6, day(2008, 12, 31));
    EXPECT_EQ(entriesOfDay(g, day(2008, 12, 31)).size(), 1u);
    EXPECT_EQ(daysFiled(g, 2008), 366);
}

TEST(Schedule, BlankRecordWritesNothing) {
    EmptyGame eg;
    const std::string before = fileBytes(eg.folder.path() / "2004.vel");
    EXPECT_EQ(addSchedule(eg.g, ScheduleRecord{}), 0);
    EXPECT_EQ(eg.g.schedule.recordCount(), 1);
    EXPECT_EQ(fileBytes(eg.folder.path() / "2004.vel"), before);
}

TEST(Schedule, OnlyAPromotionKeepsItsNumberWhenFiledAgain) {
    EmptyGame eg;
    Game& g = eg.g;
    for (int i = 0; i < 3; ++i) file(g, 17, day(2004, 9, 1));
    g.schedule.rec.band = 77;
    ScheduleRecord moved{.type = 17, .date = day(2004, 9, 8), .id = 2};
    EXPECT_EQ(addSchedule(g, moved), 2);
    moved.type = 7;
    EXPECT_EQ(addSchedule(g, moved), 4);
    EXPECT_EQ(g.schedule->band, 77) << "the caller's buffer is kept";
    EXPECT_EQ(entriesOfDay(g, day(2004, 9, 8)), (std::vector<int32_t>{2, 4}));
    EXPECT_EQ(entriesOfDay(g, day(2004, 9, 1)), (std::vector<int32_t>{1, 2, 3}));
    g.schedule.read(2);
    EXPECT_EQ(g.schedule->date, day(2004, 9, 8));
}

TEST(Schedule, TheThousandAndFirstEntryOfADayIsFatal) {
    EmptyGame eg;
    Game& g = eg.g;
    openDayFile(g, 2004);
    g.dayIndex.rec = DayRecord{};
    g.dayIndex->count = kMaxEntriesPerDay;
    g.dayIndex.write(dayNumberInYear(day(2004, 9, 1)));
    closeDayFile(g);
    EXPECT_THROW(file(g, 6, day(2004, 9, 1)), FatalError);
    EXPECT_FALSE(g.dayIndex.isOpen());
}

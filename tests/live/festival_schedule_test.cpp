// The festival's days in the calendar, the day its bill is filled, and the
// tour, gigs and entries a year's scheduling files.
#include <gtest/gtest.h>

#include "live_checks.h"
#include "support/amend.h"
#include "support/calendar_world.h"
#include "support/festival_world.h"

using namespace trovane;
using test::day;

namespace {

FestivalRecord festivalOf(std::vector<uint8_t> weekdays, std::vector<uint8_t> weeks) {
    FestivalRecord f{.days = static_cast<uint8_t>(weekdays.size())};
    for (std::size_t i = 0; i < weekdays.size(); ++i) {
        f.weekday[i] = weekdays[i];
        f.week[i] = weeks[i];
    }
    return f;
}

// 1 January 2004 is a Thursday (weekday 5); week 28 starts 27 x 7 = 189 days
// later, on Thursday 8 July.
TEST(FestivalDates, EachDayMovesToItsWeekdayOneBeforeTheDayBeforeItMovesOnAWeekAndTheFillComes60DaysAhead) {
    struct Case {
        std::vector<uint8_t> weekdays, weeks;
        std::vector<double> dates;
    };
    const Case cases[] = {
        {{7}, {28}, {day(2004, 7, 10)}},  // Saturday: 7 - 5 = 2 days on
        {{5}, {28}, {day(2004, 7, 8)}},   // the week's own weekday stays
        {{4}, {28}, {day(2004, 7, 14)}},  // Wednesday: 4 - 5 = -1, + 7 = 6 days on
        {{5}, {1}, {day(2004, 1, 1)}},    // week 1 on the year's own weekday is 1 January itself
        {{7, 1}, {28, 28}, {day(2004, 7, 10), day(2004, 7, 11)}},  // Sunday is 1 - 5 + 7 = 3 days on
        {{7, 5}, {28, 28}, {day(2004, 7, 10), day(2004, 7, 15)}},  // 8 July falls before 10 July: 15 July
        {{7, 7}, {28, 28}, {day(2004, 7, 10), day(2004, 7, 10)}},  // the same day twice is not before it
        {{1}, {53}, {day(2005, 1, 2)}},  // week 53 starts Thursday 30 December 2004; Sunday is 3 days on
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.weekdays) + " in weeks " + testing::PrintToString(c.weeks));
        EXPECT_EQ(festivalDates(festivalOf(c.weekdays, c.weeks), 2004), c.dates);
    }
    const double first = day(2004, 7, 10);
    // 10 July less 60 days is 11 May.
    EXPECT_EQ(festivalFillDate(first, day(2004, 1, 5)), day(2004, 5, 11));
    EXPECT_EQ(festivalFillDate(first, day(2004, 5, 10)), day(2004, 5, 11));
    EXPECT_EQ(festivalFillDate(first, day(2004, 5, 11)), day(2004, 5, 12));
    EXPECT_EQ(festivalFillDate(first, day(2004, 7, 9)), day(2004, 7, 10));
}

class FestivalScheduling : public test::FestivalWorld, public ::testing::Test {
protected:
    std::vector<ScheduleRecord> entriesOn(double date) {
        std::vector<ScheduleRecord> out;
        for (int32_t id : entriesOfDay(g, date)) {
            g.schedule.read(id);
            out.push_back(g.schedule.rec);
        }
        return out;
    }
};

TEST_F(FestivalScheduling, MakesATourOfTheFestivalWithAGigEachDay) {
    int16_t tour = scheduled();
    ASSERT_GT(tour, 0);
    EXPECT_EQ((g.tour.read(tour), std::tuple(g.tour->band, g.tour->gigCount)), std::tuple(int16_t{0}, uint8_t{2}));
    auto gigs = gigsOf(tour);
    g.gig.read(gigs[1]);
    EXPECT_EQ(std::tuple(g.gig->gigDate, g.gig->venue, g.gig->tour), std::tuple(day(2004, 7, 11), farm, tour));
    // The Sunday's gig, and the fill sixty days before the first day.
    auto typeAndGig = [&](double date) {
        std::vector<std::pair<int, int32_t>> out;
        for (const ScheduleRecord& e : entriesOn(date)) out.emplace_back(e.type, e.gig);
        return out;
    };
    EXPECT_EQ(typeAndGig(day(2004, 7, 11)), (std::vector<std::pair<int, int32_t>>{{8, gigs[1]}}));
    EXPECT_EQ(typeAndGig(day(2004, 5, 11)), (std::vector<std::pair<int, int32_t>>{{22, gigs[0]}}));
}

TEST_F(FestivalScheduling, ABillFilledOnTheFirstDayIsFiledBeforeItsGig) {
    g.gameDate = day(2004, 7, 9);
    scheduled();
    EXPECT_EQ(test::typesOn(g, day(2004, 7, 10)), (std::vector<uint8_t>{22, 8}));
}

TEST_F(FestivalScheduling, AFestivalUnderWayGetsNoFill) {
    g.gameDate = day(2004, 7, 10);
    scheduled();  // the fill would fall tomorrow, the second day
    EXPECT_EQ(test::typesOn(g, day(2004, 7, 11)), std::vector<uint8_t>{8});
}

TEST_F(FestivalScheduling, ATravellingFestivalTakesTheLargestSiteAfterFiftyMisses) {
    // Prestige 50: standing 50, a 2500, b round(2500 / 51) = 49, d 35, e (70 - 28) x 35 = 1470;
    // 2 x (round(6 x 1519) + 250) = 18728 expected, more than either site in the area.
    addVenue("Rio Club", 5000, rio);
    int16_t stadium = addVenue("Rio Bowl", 18727, rio);
    addVenue("Leeds Arena", 90000, leeds);  // big enough, but not in the area
    amend(g.festival, festival, [&] {
        g.festival->travelling = -1;
        g.festival->areaCode = "S";
    });
    int16_t tour = scheduled();
    for (int32_t gig : gigsOf(tour)) EXPECT_EQ((g.gig.read(gig), g.gig->venue), stadium);
}

TEST_F(FestivalScheduling, AYearEndDayIsFiledInTheNextYearsPage) {
    amend(g.festival, festival, [&] {
        g.festival->days = 1;
        g.festival->weekday[0] = 1;
        g.festival->week[0] = 53;
    });
    int16_t tour = scheduled();
    auto jan2 = entriesOn(day(2005, 1, 2));
    ASSERT_EQ(jan2.size(), 1u);
    EXPECT_EQ(jan2[0].gig, gigsOf(tour)[0]);
}

}  // namespace

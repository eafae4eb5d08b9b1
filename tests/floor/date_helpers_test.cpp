#include <gtest/gtest.h>

#include "floor/date_helpers.h"
#include "support/empty_game.h"
#include "world/dates.h"

using namespace trovane;

TEST(DateHelpers, DayAndWeekOfTheYear) {
    using C = std::tuple<int, unsigned, unsigned, int16_t, int16_t>;  // date, day and week of the year
    // 2004 starts on a Thursday, 2005 on a Saturday, 2006 on a Sunday.
    for (auto [y, m, d, day, week] :
         {C{2004, 1, 1, 1, 1}, C{2004, 1, 3, 3, 1}, C{2004, 1, 4, 4, 2}, C{2004, 3, 1, 61, 10}, C{2004, 8, 5, 218, 32},
          C{2004, 12, 31, 366, 53}, C{2005, 1, 1, 1, 1}, C{2005, 1, 2, 2, 2}, C{2005, 12, 31, 365, 53},
          C{2006, 1, 7, 7, 1}, C{2006, 1, 8, 8, 2}}) {
        double date = serialFromCivil(y, m, d);
        EXPECT_EQ(std::pair(dayOfYear(date), weekOfYear(date)), std::pair(day, week)) << y << "-" << m << "-" << d;
    }
}

// Ages whose birth year has the game year's leap day or lack of it, so that
// comparing days of the year is comparing calendar days.
TEST(RandomBirthDate, NeverDecemberAndTheRightAgeTodayFromTwoDraws) {
    test::EmptyGame eg;
    Game& g = eg.g;
    Random before = g.rng;
    randomBirthDate(g, 30);
    before.draw();
    before.draw();
    EXPECT_EQ(before.draw(), g.rng.draw());
    std::array<bool, 13> monthSeen{};
    for (double today : {serialFromCivil(2004, 8, 5), serialFromCivil(2004, 1, 1), serialFromCivil(2007, 12, 31),
                         serialFromCivil(2007, 3, 1)}) {
        g.gameDate = today;
        CivilDate now = civilFromSerial(today);
        for (uint8_t age = 0; age <= 100; age += 4) {
            for (int i = 0; i < 40; ++i) {
                CivilDate born = civilFromSerial(randomBirthDate(g, age));
                ASSERT_NE(born.month, 12u);
                ASSERT_NE(born.day, 31u);
                monthSeen[born.month] = true;
                bool birthdayToCome = now.month < born.month || (now.month == born.month && now.day < born.day);
                int ageToday = now.year - born.year - (birthdayToCome ? 1 : 0);
                ASSERT_EQ(ageToday, age) << born.year << "-" << born.month << "-" << born.day << " on " << now.year
                                         << "-" << now.month << "-" << now.day;
            }
        }
    }
    for (unsigned m = 1; m <= 11; ++m) EXPECT_TRUE(monthSeen[m]) << m;
}

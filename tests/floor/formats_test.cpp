#include <gtest/gtest.h>

#include "floor/formats.h"
#include "support/empty_game.h"
#include "world/dates.h"

using namespace trovane;

TEST(Formats, NumberMasks) {
    using C = std::tuple<double, const char*, const char*>;  // value, mask, shown
    const char* const wide = "###,###,###,###";
    for (auto [value, mask, shown] :
         {C{0, wide, ""}, C{0.4, wide, ""}, C{-0.4, wide, ""}, C{999, wide, "999"}, C{1000, wide, "1,000"},
          C{1234567, wide, "1,234,567"}, C{-1234567, wide, "-1,234,567"}, C{2.5, wide, "3"}, C{0, "###,###,##0", "0"},
          C{-5, "###,###,##0", "-5"}, C{123456, "###,##0", "123,456"}, C{0, "##0.00", "0.00"},
          C{3.14159, "##0.00", "3.14"}, C{0.125, "##0.00", "0.13"}, C{1234.5, "##0.00", "1234.50"},
          C{-0.5, "##0.00", "-0.50"}})
        EXPECT_EQ(formatNumber(value, mask), shown) << value << " through " << mask;
}

TEST(Formats, DateMasks) {
    using C = std::tuple<int, unsigned, unsigned, const char*, const char*>;  // date, mask, shown
    const char* const full = "dddd d/m/yyyy ";
    for (auto [y, m, d, mask, shown] :
         {C{2004, 8, 5, full, "Thursday 5/8/2004 "}, C{2000, 1, 1, full, "Saturday 1/1/2000 "},
          C{2006, 12, 31, full, "Sunday 31/12/2006 "}, C{2008, 2, 29, full, "Friday 29/2/2008 "},
          C{2004, 8, 5, "ddd dd mmm yy", "Thu 05 Aug 04"}, C{2010, 3, 9, "mmmm yyyy", "March 2010"},
          C{2010, 3, 9, "dd/mm/yyyy", "09/03/2010"}})
        EXPECT_EQ(formatDate(serialFromCivil(y, m, d), mask), shown) << mask;
}

TEST(Formats, MoneyShowsTheSymbolAndTheExchangedAmount) {
    test::EmptyGame eg;
    eg.g.prefs.rec.currencySymbol = "$";
    eg.g.prefs.rec.exchangeRate = 1.5f;
    EXPECT_EQ(formatMoney(eg.g, moneyUnits(1000), "###,###,##0"), "$1,500");
    EXPECT_EQ(formatMoney(eg.g, moneyUnits(-2000), "###,###,###,###"), "$-3,000");
    EXPECT_EQ(formatMoney(eg.g, 0, "###,###,###,###"), "$");
    eg.g.prefs.rec.exchangeRate = 1.0f;
    EXPECT_EQ(formatMoney(eg.g, 12345, "##0.00"), "$1.23");
    EXPECT_EQ(formatMoneyValue(eg.g, 7.5, "##0.00"), "$7.50");
}

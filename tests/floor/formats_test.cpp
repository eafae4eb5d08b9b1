#include <gtest/gtest.h>

#include "floor/formats.h"
#include "support/empty_game.h"
#include "world/dates.h"

using namespace trovane;

TEST(Formats, NumberMasks) {
    struct Case {
        double value;
        const char* mask;
        const char* shown;
    };
    const char* const wide = "###,###,###,###";
    for (Case c : {Case{0, wide, ""}, Case{0.4, wide, ""}, Case{-0.4, wide, ""}, Case{999, wide, "999"},
                   Case{1000, wide, "1,000"}, Case{1234567, wide, "1,234,567"}, Case{-1234567, wide, "-1,234,567"},
                   Case{2.5, wide, "3"}, Case{0, "###,###,##0", "0"}, Case{-5, "###,###,##0", "-5"},
                   Case{123456, "###,##0", "123,456"}, Case{0, "##0.00", "0.00"}, Case{3.14159, "##0.00", "3.14"},
                   Case{0.125, "##0.00", "0.13"}, Case{1234.5, "##0.00", "1234.50"}, Case{-0.5, "##0.00", "-0.50"}})
        EXPECT_EQ(formatNumber(c.value, c.mask), c.shown) << c.value << " through " << c.mask;
}

TEST(Formats, DateMasks) {
    struct Case {
        int y;
        unsigned m, d;
        const char* mask;
        const char* shown;
    };
    const char* const full = "dddd d/m/yyyy ";
    for (Case c : {Case{2004, 8, 5, full, "Thursday 5/8/2004 "}, Case{2000, 1, 1, full, "Saturday 1/1/2000 "},
                   Case{2006, 12, 31, full, "Sunday 31/12/2006 "}, Case{2008, 2, 29, full, "Friday 29/2/2008 "},
                   Case{2004, 8, 5, "ddd dd mmm yy", "Thu 05 Aug 04"}, Case{2010, 3, 9, "mmmm yyyy", "March 2010"},
                   Case{2010, 3, 9, "dd/mm/yyyy", "09/03/2010"}})
        EXPECT_EQ(formatDate(serialFromCivil(c.y, c.m, c.d), c.mask), c.shown) << c.mask;
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

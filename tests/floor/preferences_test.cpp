// prefs.gam: a damaged file never stops the game, and the currency only ever
// changes how stored money is shown.
#include <gtest/gtest.h>

#include <fstream>

#include "day/daily_cycle.h"
#include "floor/preferences.h"
#include "label/finances.h"
#include "support/empty_game.h"
#include "world/record_store.h"

using namespace trovane;
namespace fs = std::filesystem;

TEST(Preferences, ADamagedFileIsReportedAndReplacedByTheDeliveredRecord) {
    struct Case {
        std::string bytes;            // written as the whole file, when not empty
        void (*spoil)(PrefsRecord&);  // else a sound record with one field spoilt
        const char* reportNames;
    };
    for (const Case& c : {
             Case{std::string(100, 'x'), nullptr, "100 bytes"},
             Case{std::string(544, '\0'), nullptr, "544 bytes"},
             Case{std::string(272, '\0'), nullptr, "currency"},
             Case{"", [](PrefsRecord& p) { p.exchangeRate = 2.5f; }, "2.5"},
             Case{"", [](PrefsRecord& p) { p.currencySymbol = "$"; }, "\"$\""},
             Case{"", [](PrefsRecord& p) { p.slotUsed[3] = 7; }, "slot"},
             Case{"", [](PrefsRecord& p) { p.birthMonth = "Smarch"; }, "Smarch"},
         }) {
        test::EmptyGame eg;
        fs::path file = dataFile(eg.g, "prefs", "gam");
        if (c.spoil) {
            eg.g.prefs->minutesPlayed = 90;
            c.spoil(eg.g.prefs.rec);
            writePrefs(eg.g);
        } else {
            std::ofstream(file, std::ios::binary | std::ios::trunc) << c.bytes;
        }
        PrefsReport report = readPrefs(eg.g);
        EXPECT_EQ(report.state, PrefsState::replaced) << c.reportNames;
        EXPECT_NE(report.message.find(c.reportNames), std::string::npos) << report.message;
        EXPECT_EQ(eg.g.prefs->currencySymbol, "£");
        EXPECT_EQ(eg.g.prefs->minutesPlayed, 0);
        EXPECT_EQ(fs::file_size(file), 272u);
        EXPECT_EQ(readPrefs(eg.g).state, PrefsState::read) << "the replacement is itself sound";
    }

    test::EmptyGame eg;
    fs::remove(dataFile(eg.g, "prefs", "gam"));
    PrefsReport report = readPrefs(eg.g);
    EXPECT_EQ(report.state, PrefsState::created) << "a missing file is no damage";
    EXPECT_TRUE(report.message.empty());
}

TEST(Preferences, TheCurrencyChangesTheShownCashNeverTheStoredCash) {
    test::EmptyGame eg;
    Game& g = eg.g;
    g.player.playerLabel = narrow<int16_t>(g.label.append());
    addIncome(g, moneyUnits(1000), ledgerOtherIncome);
    EXPECT_EQ(statusBarTexts(g).cash, "£1,000");
    ASSERT_TRUE(changeCurrency(g, "$"));
    EXPECT_EQ(statusBarTexts(g).cash, "$1,770");
    ASSERT_TRUE(changeCurrency(g, "€"));
    EXPECT_EQ(statusBarTexts(g).cash, "€1,470");
    EXPECT_EQ((g.label.read(g.player.playerLabel), g.label->cashBalance), moneyUnits(1000));
    EXPECT_EQ(g.player.playerLabelCash, moneyUnits(1000));

    // Written at once: a fresh read finds the euro at its single-precision rate.
    g.prefs.rec = PrefsRecord{};
    readPrefs(g);
    EXPECT_EQ(currentCurrency(g), 2);
    EXPECT_EQ(g.prefs->exchangeRate, 1.47f);
    EXPECT_FALSE(changeCurrency(g, "¥"));
    EXPECT_EQ(currentCurrency(g), 2);

    g.prefs->exchangeRate = 0;  // counts as 1
    EXPECT_EQ(statusBarTexts(g).cash, "€1,000");
}

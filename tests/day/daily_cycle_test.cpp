// The day's pipeline, checked against the calendar over two whole years of an
// empty world played through trovane-sim, the hourly item and the status bar.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "day/daily_cycle.h"
#include "floor/preferences.h"
#include "support/game_test.h"
#include "support/sim_run.h"
#include "support/temp_folder.h"
#include "world/strings.h"

using namespace trovane;
using namespace std::chrono;

namespace {

struct TracedDay {
    year_month_day date;
    std::vector<std::string> steps;
};

// Parses "Weekday d/m/yyyy" lines followed by indented step names.
std::vector<TracedDay> parseTrace(const std::string& text) {
    std::vector<TracedDay> days;
    std::istringstream in(text);
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty()) continue;
        if (line.rfind("  ", 0) == 0) {
            days.back().steps.push_back(line.substr(2));
            continue;
        }
        unsigned d = 0, m = 0;
        int y = 0;
        auto space = line.find(' ');
        std::sscanf(line.c_str() + space + 1, "%u/%u/%d", &d, &m, &y);
        days.push_back({year{y} / month{m} / day{d}, {}});
    }
    return days;
}

class TwoYearsOfDays : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        folder_ = new test::TempFolder();
        test::runSim(folder_->path(), "--seed 7 init");
        days_ = new std::vector<TracedDay>(
            parseTrace(test::runSim(folder_->path(), "--seed 7 advance 880 --trace").second));
    }
    static void TearDownTestSuite() {
        delete days_;
        delete folder_;
    }
    static std::vector<TracedDay>* days_;
    static test::TempFolder* folder_;

    static int count(const TracedDay& d, const std::string& step) {
        int n = 0;
        for (const auto& s : d.steps) n += s == step;
        return n;
    }
    static const TracedDay& on(year_month_day ymd) {
        for (const auto& d : *days_)
            if (d.date == ymd) return d;
        throw std::runtime_error("day not played");
    }
};
std::vector<TracedDay>* TwoYearsOfDays::days_ = nullptr;
test::TempFolder* TwoYearsOfDays::folder_ = nullptr;

// Consecutive days from Thursday 5 August 2004, each rolling events first and
// ending with the schedule, the scores and energy, the weekly steps on their weekday.
TEST_F(TwoYearsOfDays, TheFirstDaysStepsComeAlikeAsJson) {
    test::TempFolder other;
    test::runSim(other.path(), "--seed 7 init");
    std::string steps;
    for (const std::string& s : days_->front().steps) steps += (steps.empty() ? "\"" : ",\"") + s + "\"";
    EXPECT_EQ(test::runSim(other.path(), "--seed 7 --json advance 1 --trace").second,
              "[{\"date\":\"2004-08-05\",\"steps\":[" + steps + "]}]\n");
}

TEST_F(TwoYearsOfDays, EveryDayFollowsTheLastAndRunsItsWeekdaysSteps) {
    ASSERT_EQ(days_->size(), 880u);
    EXPECT_EQ(days_->front().date, year{2004} / August / 5);
    const std::map<std::string, weekday> weekly = {
        {"computerCheckBands", Sunday},   {"calculateWeeklySales", Sunday},  {"planFollowUpTours", Sunday},
        {"updateSongs", Monday},          {"computerApproachBands", Monday}, {"computerCheckAlbumProgress", Monday},
        {"computerRecordAlbum", Tuesday}, {"dropBandHype", Wednesday},       {"checkBandEnergy", Thursday},
        {"takeLabelWages", Friday},
    };
    for (std::size_t i = 0; i < days_->size(); ++i) {
        const TracedDay& d = (*days_)[i];
        if (i > 0) { ASSERT_EQ(sys_days{d.date} - sys_days{(*days_)[i - 1].date}, days{1}); }
        ASSERT_GE(d.steps.size(), 4u);
        EXPECT_EQ(d.steps.front(), "runRandomEvents");
        EXPECT_EQ(std::vector<std::string>(d.steps.end() - 3, d.steps.end()),
                  (std::vector<std::string>{"performDaysEvents", "updateHighScoreTable", "increaseArtistEnergy"}));
        weekday wd{sys_days{d.date}};
        for (const auto& [step, when] : weekly) EXPECT_EQ(count(d, step), wd == when ? 1 : 0) << step;
    }
}

TEST_F(TwoYearsOfDays, MonthlyStepsKeepTheirDates) {
    for (const auto& d : *days_) {
        unsigned dd = static_cast<unsigned>(d.date.day());
        unsigned mm = static_cast<unsigned>(d.date.month());
        bool yearEnd = dd == 31 && mm == 12;
        EXPECT_EQ(count(d, "updateLabelFinances"), (dd == 1 || yearEnd) ? 1 : 0);
        for (const char* first : {"tidyShortlist", "deliverMarketingReports", "deliverScoutingReports"})
            EXPECT_EQ(count(d, first), dd == 1 ? 1 : 0) << first;
        EXPECT_EQ(count(d, "checkPlayerControlledBands"), (dd == 5 && mm % 2 == 1) ? 1 : 0);
        EXPECT_EQ(count(d, "subtractBusinessRunningCosts"), dd == 10 ? 1 : 0);
        EXPECT_EQ(count(d, "bandPotentialCalculations"), dd == 15 ? 1 : 0);
        EXPECT_EQ(count(d, "updateBandTimeWithoutADeal"), dd == 20 ? 1 : 0);
        EXPECT_EQ(count(d, "updateMonthsRemainingOnOption"), dd == 25 ? 1 : 0);
        EXPECT_EQ(count(d, "tidyCharts"), (dd == 30 && (mm == 1 || mm == 4 || mm == 7 || mm == 10)) ? 1 : 0);
        EXPECT_EQ(count(d, "increaseBandAges"), yearEnd ? 1 : 0);
    }
}

// The first of the month on a Sunday runs the week, then the month; the year's end schedules the year after
// next only from the second year.
TEST_F(TwoYearsOfDays, AFirstOnASundayRunsTheWeekThenTheMonthAndTheSecondYearEndSchedulesAhead) {
    const std::vector<std::string> expected = {
        "runRandomEvents",         "computerCheckBands",     "calculateWeeklySales", "planFollowUpTours",
        "deliverMarketingReports", "deliverScoutingReports", "tidyShortlist",        "updateLabelFinances",
        "performDaysEvents",       "updateHighScoreTable",   "increaseArtistEnergy"};
    EXPECT_EQ(on(year{2005} / May / 1).steps, expected);  // a Sunday
    for (const char* step : {"scheduleFestivals", "scheduleCeremonies"}) {
        EXPECT_EQ(count(on(year{2004} / December / 31), step), 0) << step;
        EXPECT_EQ(count(on(year{2005} / December / 31), step), 1) << step;
    }
}

using PlayTime = test::GameTest;
using StatusBar = test::GameTest;

TEST_F(PlayTime, TheHourlyItemComesOnlyOnAWholeHour) {
    g.prefs->minutesPlayed = 58;
    writePrefs(g);
    tickPlayMinute(g);
    EXPECT_EQ(g.news.recordCount(), 1);
    tickPlayMinute(g);
    ASSERT_EQ(g.news.recordCount(), 2);
    g.news.read(1);
    EXPECT_EQ(trim(g.news->title.value), "You have been playing the game for 1 hour(s)");
    EXPECT_EQ(g.news->text.value,
              std::string("You have now been playing Trovane 3 for over 1 hour(s), this represents £1 worth of "
                          "entertainment, to make a donation please visit ") +
                  kDonationPage + " and click on the paypal button :o)");
    EXPECT_EQ(g.news->date, g.gameDate + 1);
    tickPlayMinute(g);
    EXPECT_EQ(g.news.recordCount(), 2);
    readPrefs(g);
    EXPECT_EQ(g.prefs->minutesPlayed, 61);
}

TEST_F(StatusBar, ShowsDateCashInTheChosenCurrencyLabelAndPlayer) {
    g.player.playerLabelCash = moneyUnits(-1234567);
    g.player.playerLabelName = "Quarry Records";
    g.player.playerForename = "Ann";
    g.player.playerSurname = "Lee";
    g.prefs->currencySymbol = "$";
    g.prefs->exchangeRate = 1.77f;
    const StatusBarTexts s = statusBarTexts(g);
    EXPECT_EQ(std::tuple(s.date, s.cash, s.company, s.name),
              std::tuple("Thursday 5/8/2004 ", "$-2,185,184", "Quarry Records", "Ann Lee"));
}

}  // namespace

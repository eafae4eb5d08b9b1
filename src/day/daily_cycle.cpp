#include "day/daily_cycle.h"
#include "day/dispatch.h"

#include <fmt/format.h>

#include "events/ceremonies.h"
#include "events/scores.h"
#include "events/story_events.h"
#include "floor/formats.h"
#include "floor/news_post.h"
#include "floor/preferences.h"
#include "label/finances.h"
#include "label/image.h"
#include "label/scouting.h"
#include "live/festivals.h"
#include "production/businesses.h"
#include "production/charts.h"
#include "production/songwriting.h"
#include "production/weekly_sales.h"
#include "rivals/rival_albums.h"
#include "rivals/rival_bands.h"
#include "rivals/rival_signing.h"
#include "rivals/rival_touring.h"
#include "schedule/schedule.h"
#include "talent/band_condition.h"
#include "talent/contract_progress.h"
#include "talent/lifecycle.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/news_lookups.h"
#include "world/strings.h"

namespace trovane {

namespace {

enum Weekday { Sunday = 1, Monday, Tuesday, Wednesday, Thursday, Friday, Saturday };

template <class Step>
void run(Game& g, const char* name, Step step) {
    if (g.trace) g.trace(name);
    step(g);
}

// Exactly one weekday branch runs.
void runWeekdaySteps(Game& g, int weekday) {
    switch (weekday) {
    case Sunday:
        run(g, "computerCheckBands", computerCheckBands);
        run(g, "calculateWeeklySales", calculateWeeklySales);
        run(g, "planFollowUpTours", planFollowUpTours);
        break;
    case Monday:
        run(g, "updateSongs", updateSongs);
        run(g, "computerApproachBands", computerApproachBands);
        run(g, "computerCheckAlbumProgress", computerCheckAlbumProgress);
        break;
    case Tuesday: run(g, "computerRecordAlbum", computerRecordAlbum); break;
    case Wednesday: run(g, "dropBandHype", dropBandHype); break;
    case Thursday: run(g, "checkBandEnergy", checkBandEnergy); break;
    case Friday: run(g, "takeLabelWages", takeLabelWages); break;
    default: break;  // Saturday: nothing
    }
}

// At most one day-of-month branch runs; 31 December runs only its own.
void runDayOfMonthSteps(Game& g, int year, unsigned month, unsigned day) {
    if (day == 1) {
        run(g, "deliverMarketingReports", deliverMarketingReports);
        run(g, "deliverScoutingReports", deliverScoutingReports);
        run(g, "tidyShortlist", tidyShortlist);
        run(g, "updateLabelFinances", updateLabelFinances);
    } else if (day == 5) {
        if (month % 2 == 1) run(g, "checkPlayerControlledBands", checkPlayerControlledBands);
    } else if (day == 10) {
        run(g, "subtractBusinessRunningCosts", subtractBusinessRunningCosts);
    } else if (day == 15) {
        run(g, "bandPotentialCalculations", bandPotentialCalculations);
    } else if (day == 20) {
        run(g, "updateBandTimeWithoutADeal", updateBandTimeWithoutADeal);
    } else if (day == 25) {
        run(g, "updateMonthsRemainingOnOption", updateMonthsRemainingOnOption);
    } else if (day == 30) {
        if (month == 1 || month == 4 || month == 7 || month == 10) run(g, "tidyCharts", tidyCharts);
    } else if (day == 31) {
        if (month == 12) {
            // The thirteenth run of the year's finances is deliberate.
            run(g, "updateLabelFinances", updateLabelFinances);
            run(g, "addThisYearsBirthdays", addThisYearsBirthdays);
            run(g, "increaseBandAges", increaseBandAges);
            // The first two years are filed by the new game itself.
            if (g.firstScheduleYear < year) {
                run(g, "scheduleFestivals", [year](Game& gg) { scheduleFestivals(gg, year + 1); });
                run(g, "scheduleCeremonies", [year](Game& gg) { scheduleCeremonies(gg, year + 1); });
            }
        }
    }
}

}  // namespace

bool allRepliesGiven(Game& g) {
    // The buffer is left where a walk of the news would leave it: at the held
    // item, or at the last item when none is held.
    const int32_t held = firstHeldNewsItem(g);
    if (held == 0) {
        if (g.news.recordCount() > 1) g.news.read(g.news.recordCount() - 1);
        return true;
    }
    g.news.read(held);
    // A second press on the same held item keeps the screen to go back to.
    if (g.currentScreen != Screen::frmNewsFull) g.previousScreen = g.currentScreen;
    g.currentScreen = Screen::frmNewsFull;
    return false;
}

void checkDaysSchedule(Game& g) {
    CivilDate today = civilFromSerial(g.gameDate);
    run(g, "runRandomEvents", runRandomEvents);
    runWeekdaySteps(g, weekdayOf(g.gameDate));
    runDayOfMonthSteps(g, today.year, today.month, today.day);
    run(g, "performDaysEvents", performDaysEvents);
    run(g, "updateHighScoreTable", updateHighScoreTable);
    run(g, "increaseArtistEnergy", increaseArtistEnergy);
    g.gameDate += 1;
    g.currentYear = static_cast<int16_t>(yearOf(g.gameDate));
    // The day ends on the news, unless the player is at an award ceremony.
    if (g.currentScreen != Screen::frmAwardCeremony) {
        g.previousScreen = Screen::none;
        g.currentScreen = Screen::frmNews;
    }
}

StatusBarTexts statusBarTexts(const Game& g) {
    return {
        formatDate(g.gameDate, "dddd d/m/yyyy "),
        formatMoney(g, g.player.playerLabelCash, "###,###,###,###"),
        trim(g.player.playerLabelName.value),
        trim(g.player.playerForename.value) + " " + trim(g.player.playerSurname.value),
    };
}

void tickPlayMinute(Game& g) {
    readPrefs(g);
    g.prefs->minutesPlayed = narrow<int32_t>(static_cast<int64_t>(g.prefs->minutesPlayed) + 1);
    writePrefs(g);
    int32_t minutes = g.prefs->minutesPlayed;
    if (minutes % 60 != 0) return;
    int32_t hours = minutes / 60;
    std::string title = fmt::format("You have been playing the game for {} hour(s)", hours);
    std::string text = fmt::format(
        "You have now been playing Trovane 3 for over {} hour(s), this represents {} worth of entertainment, "
        "to make a donation please visit {} and click on the paypal button :o) ",
        hours, formatMoneyValue(g, hours, "###,##0"), kDonationPage);
    postNews(g, {.date = g.gameDate + 1, .title = title, .text = text});
}

}  // namespace trovane

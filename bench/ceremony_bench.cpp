// Ceremonies and the media over the shipped world, a year into a taken-over
// game: the largest ceremony's judging, a year's schedule, a night's show, a
// gig with its review, an act's offers and a rival's promotion.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "day/daily_cycle.h"
#include "day/news_inbox.h"
#include "events/ceremonies.h"
#include "events/ceremony_show.h"
#include "floor/preferences.h"
#include "live/gigs.h"
#include "live/media_promotion.h"
#include "live/tours.h"
#include "rivals/rival_promotion.h"
#include "schedule/schedule.h"
#include "session/new_game.h"
#include "world/dates.h"
#include "world/record_store.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

fs::path benchWorld(const char* name) {
    fs::path p = fs::temp_directory_path() / name;
    fs::remove_all(p);
    fs::create_directories(p);
    for (const auto& e : fs::directory_iterator(TROVANE_DATA_DIR))
        if (e.path().extension() == ".gam") fs::copy_file(e.path(), p / e.path().filename());
    return p;
}

struct YearOnGame {
    Game g;
    explicit YearOnGame(const char* name) : g(benchWorld(name), 1) {
        readPrefs(g);
        beginNewGame(g);
        PlayerChoices p;
        p.forename = "Ann";
        p.surname = "Lee";
        p.nationality = "Scottish";
        takeOverLabel(g, confirmPlayer(g, p), 1);
        for (int d = 0; d < 365; ++d) {
            while (!allRepliesGiven(g)) {
                openNewsItem(g);
                pressNewsCmd1(g);
                g.news->replied = kTrue;
                g.news.write();
            }
            checkDaysSchedule(g);
        }
    }
    ~YearOnGame() { closeAllTables(g); }
};

YearOnGame& yearOn() {
    static YearOnGame game("trovane-bench-ceremony");
    return game;
}

// The ceremony with the most awards.
int16_t largestCeremony(Game& g) {
    int16_t best = 1;
    int most = -1;
    for (int32_t n = 1; n < g.ceremony.recordCount(); ++n) {
        g.ceremony.read(n);
        int count = 0;
        for (int16_t a : g.ceremony->awards) count += a > 0 ? 1 : 0;
        if (count > most) {
            most = count;
            best = static_cast<int16_t>(n);
        }
    }
    return best;
}

void BM_JudgeLargestCeremony(benchmark::State& state) {
    Game& g = yearOn().g;
    int16_t c = largestCeremony(g);
    for (auto _ : state) {
        g.schedule.rec = ScheduleRecord{};
        g.schedule->ceremony = c;
        judgeCeremony(g);
    }
}
BENCHMARK(BM_JudgeLargestCeremony)->Unit(benchmark::kMillisecond);

void BM_ScheduleCeremonies(benchmark::State& state) {
    Game& g = yearOn().g;
    int year = yearOf(g.gameDate) + 1;
    for (auto _ : state) scheduleCeremonies(g, year);
}
BENCHMARK(BM_ScheduleCeremonies)->Unit(benchmark::kMicrosecond);

void BM_BuildShow(benchmark::State& state) {
    Game& g = yearOn().g;
    int16_t c = largestCeremony(g);
    g.schedule.rec = ScheduleRecord{};
    g.schedule->ceremony = c;
    judgeCeremony(g);
    const double night = g.gameDate;
    for (auto _ : state) benchmark::DoNotOptimize(buildCeremonyShow(g, c, night));
}
BENCHMARK(BM_BuildShow)->Unit(benchmark::kMicrosecond);

// The player's act plays the same booked night over and over, review and all.
void BM_PerformGigWithReview(benchmark::State& state) {
    Game& g = yearOn().g;
    int16_t band = 0;
    for (int32_t n = 1; n < g.band.recordCount() && band == 0; ++n) {
        g.band.read(n);
        if (g.band->label == g.player.playerLabel && g.band->retired == kFalse) band = static_cast<int16_t>(n);
    }
    GigBooking booking{.band = band, .venue = 1, .date = g.gameDate + 400};
    if (band == 0 || !gigBookingRefusal(g, booking).empty()) {
        state.SkipWithError("no act of the player's free to book");
        return;
    }
    BookedGig booked = bookGig(g, booking);
    for (auto _ : state) {
        g.schedule.rec = ScheduleRecord{};
        g.schedule->gig = booked.gig;
        performGig(g);
    }
}
BENCHMARK(BM_PerformGigWithReview)->Unit(benchmark::kMicrosecond);

void BM_FindMediaOffers(benchmark::State& state) {
    Game& g = yearOn().g;
    for (auto _ : state) {
        g.band.read(1);
        benchmark::DoNotOptimize(findMediaOffers(g, 0));
    }
}
BENCHMARK(BM_FindMediaOffers)->Unit(benchmark::kMicrosecond);

void BM_BookRivalPromotion(benchmark::State& state) {
    Game& g = yearOn().g;
    for (auto _ : state) {
        state.PauseTiming();
        g.band.read(1);
        g.disc.rec = DiscRecord{};
        g.disc->band = 1;
        g.disc->releaseDate = {g.gameDate + 30, 0, 0, 0, 0};
        state.ResumeTiming();
        bookRivalPromotion(g, 0);
    }
}
BENCHMARK(BM_BookRivalPromotion)->Unit(benchmark::kMicrosecond);

}  // namespace

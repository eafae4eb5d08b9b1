// Ceremonies and the media over the shipped world a year into a taken-over
// game, grown to the size of year ten: the largest ceremony's judging, a
// year's schedule, a night's show, a gig with its review, an act's offers and
// a rival's promotion. Times are the process's CPU time.
#include <benchmark/benchmark.h>

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
#include "support/year_on.h"
#include "world/dates.h"
#include "world/record_store.h"

using namespace trovane;

namespace {

// The shipped game a year on, then grown to the size of year ten.
struct YearTenGame : bench::YearOnGame {
    YearTenGame() : bench::YearOnGame("trovane-bench-ceremony") { bench::growToYearTen(g); }
};

YearTenGame& yearOn() {
    static YearTenGame game;
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
    state.counters["artists"] = g.artist.recordCount() - 1;
    state.counters["bands"] = g.band.recordCount() - 1;
    state.counters["discs"] = g.disc.recordCount() - 1;
}
BENCHMARK(BM_JudgeLargestCeremony)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

// Next year's ceremonies filed; the day files are put back between runs, so
// every run files into days as they were.
void BM_ScheduleCeremonies(benchmark::State& state) {
    Game& g = yearOn().g;
    const int year = yearOf(g.gameDate) + 1;
    bench::DayFilesCheckpoint days(g, {year - 1, year});
    for (auto _ : state) {
        scheduleCeremonies(g, year);
        state.PauseTiming();
        days.restore();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_ScheduleCeremonies)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime();

void BM_BuildShow(benchmark::State& state) {
    Game& g = yearOn().g;
    int16_t c = largestCeremony(g);
    g.schedule.rec = ScheduleRecord{};
    g.schedule->ceremony = c;
    judgeCeremony(g);
    const double night = g.gameDate;
    for (auto _ : state) benchmark::DoNotOptimize(buildCeremonyShow(g, c, night));
}
BENCHMARK(BM_BuildShow)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime();

// The player's act plays the same booked night over and over, review and all:
// the first act of the player's and the first night, from six weeks on, that
// it is free to play the first venue.
void BM_PerformGigWithReview(benchmark::State& state) {
    Game& g = yearOn().g;
    GigBooking booking{.venue = 1};
    bool found = false;
    for (int32_t n = 1; n < g.band.recordCount() && !found; ++n) {
        g.band.read(n);
        if (g.band->label != g.player.playerLabel || g.band->retired != kFalse) continue;
        booking.band = static_cast<int16_t>(n);
        for (double d = earliestFirstGig(g); d < g.gameDate + 400 && !found; ++d) {
            booking.date = d;
            found = gigBookingRefusal(g, booking).empty();
        }
    }
    if (!found) {
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
BENCHMARK(BM_PerformGigWithReview)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime();

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

// The rival labels over the shipped world a year into the game: Sunday's
// judging, Monday's bids and album checks, Tuesday's album starts, and whole
// Sundays, Mondays and Tuesdays of play, each timed as the calendar brings it.
#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>

#include "rivals/rival_albums.h"
#include "rivals/rival_bands.h"
#include "rivals/rival_signing.h"
#include "support/shipped_game.h"
#include "world/dates.h"

using namespace trovane;

namespace {

bench::ShippedGame& yearOn() {
    static bench::ShippedGame* game = [] {
        auto* s = new bench::ShippedGame("trovane-bench-rivals");
        s->play(365);
        return s;
    }();
    return *game;
}

// Rivals list acts for themselves until the shortlist holds at least rows rows.
void fillShortlist(Game& g, int32_t rows) {
    for (int32_t b = 1; b < g.band.recordCount() && g.shortlist.recordCount() - 1 < rows; ++b) {
        g.band.read(b);
        if (g.band->label != 0 || g.band->retired != kFalse) continue;
        for (int32_t l = 1; l < g.label.recordCount() && g.shortlist.recordCount() - 1 < rows; ++l) {
            if (l == g.player.playerLabel) continue;
            g.shortlist.rec = ShortlistRecord{};
            g.shortlist->band = static_cast<int16_t>(b);
            g.shortlist->label = static_cast<int16_t>(l);
            g.shortlist.append();
        }
    }
}

void BM_ComputerCheckBands(benchmark::State& state) {
    Game& g = yearOn().g;
    for (auto _ : state) computerCheckBands(g);
    state.counters["bands"] = g.band.recordCount() - 1;
    state.counters["labels"] = g.label.recordCount() - 1;
}
BENCHMARK(BM_ComputerCheckBands)->Unit(benchmark::kMicrosecond);

void BM_ComputerApproachBands500(benchmark::State& state) {
    Game& g = yearOn().g;
    fillShortlist(g, 500);
    for (auto _ : state) computerApproachBands(g);
    state.counters["shortlist"] = g.shortlist.recordCount() - 1;
    state.counters["offers"] = g.offer.recordCount() - 1;
}
BENCHMARK(BM_ComputerApproachBands500)->Unit(benchmark::kMicrosecond);

void BM_ComputerRecordAlbum(benchmark::State& state) {
    Game& g = yearOn().g;
    for (auto _ : state) computerRecordAlbum(g);
}
BENCHMARK(BM_ComputerRecordAlbum)->Unit(benchmark::kMicrosecond);

// Each iteration plays on to the next day of the week given (untimed) and
// times that day's whole cycle. Weekday: 0 Sunday, 1 Monday, 2 Tuesday.
void timeWeekday(benchmark::State& state, const char* folder, int weekday) {
    bench::ShippedGame s(folder);
    s.play(365);
    for (auto _ : state) {
        while (weekdayOf(s.g.gameDate) != weekday + 1) s.playDay();
        while (!allRepliesGiven(s.g)) {
            openNewsItem(s.g);
            pressNewsCmd1(s.g);
            s.g.news->replied = kTrue;
            s.g.news.write();
        }
        const auto start = std::chrono::steady_clock::now();
        checkDaysSchedule(s.g);
        const auto took = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(std::chrono::duration<double>(took).count());
    }
}

void BM_RivalSunday(benchmark::State& state) { timeWeekday(state, "trovane-bench-rival-sunday", 0); }
BENCHMARK(BM_RivalSunday)->UseManualTime()->Iterations(52)->Unit(benchmark::kMillisecond);
void BM_RivalMonday(benchmark::State& state) { timeWeekday(state, "trovane-bench-rival-monday", 1); }
BENCHMARK(BM_RivalMonday)->UseManualTime()->Iterations(52)->Unit(benchmark::kMillisecond);
void BM_RivalTuesday(benchmark::State& state) { timeWeekday(state, "trovane-bench-rival-tuesday", 2); }
BENCHMARK(BM_RivalTuesday)->UseManualTime()->Iterations(52)->Unit(benchmark::kMillisecond);

// A year of play, day by day, from the first day of a taken-over game;
// reported per day.
void BM_FirstYearPerDay(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto s = std::make_unique<bench::ShippedGame>("trovane-bench-first-year");
        state.ResumeTiming();
        s->play(365);
        // The game is closed untimed, and the timer left running as the loop expects.
        state.PauseTiming();
        s.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * 365);
}
BENCHMARK(BM_FirstYearPerDay)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

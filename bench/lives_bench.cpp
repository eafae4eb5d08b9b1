// The lives of acts on the shipped world: the new game's 300 acts, a new act
// in play, the day's roll of story events, a retirement with the act that
// takes its place, a member's replacement search, and a story's text.
#include <benchmark/benchmark.h>

#include <chrono>
#include <optional>
#include <string>

#include "events/story_events.h"
#include "events/story_text.h"
#include "support/shipped_game.h"
#include "talent/band_creation.h"
#include "talent/retirement.h"

using namespace trovane;
using Clock = std::chrono::steady_clock;

namespace {

// The stretch of a new game between its reports of 10% and 40%: the 200
// bands and 100 solo artists and nothing else.
void BM_NewGameActs(benchmark::State& state) {
    for (auto _ : state) {
        Game g(bench::shippedWorld("trovane-bench-new-acts"), 1);
        readPrefs(g);
        Clock::time_point from{}, to{};
        g.progress = [&](int percent) {
            if (percent == 10) from = Clock::now();
            if (percent == 40) to = Clock::now();
        };
        beginNewGame(g);
        PlayerChoices p;
        p.forename = "Ann";
        p.surname = "Lee";
        p.nationality = "Scottish";
        takeOverLabel(g, confirmPlayer(g, p), 1);
        state.SetIterationTime(std::chrono::duration<double>(to - from).count());
        state.counters["acts"] = g.band.recordCount() - 1;
        closeAllTables(g);
    }
}
BENCHMARK(BM_NewGameActs)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

void BM_CreateBandInPlay(benchmark::State& state) {
    bench::ShippedGame s("trovane-bench-create-band");
    s.play(30);
    for (auto _ : state) benchmark::DoNotOptimize(createBand(s.g));
}
BENCHMARK(BM_CreateBandInPlay)->Iterations(300)->Unit(benchmark::kMicrosecond);

// The day's roll, timed inside a year of ordinary days as the cycle runs it.
void BM_RunRandomEventsPerDay(benchmark::State& state) {
    bench::ShippedGame s("trovane-bench-events");
    Clock::time_point from{};
    std::optional<Clock::duration> took;
    s.g.trace = [&](std::string_view step) {
        if (step == "runRandomEvents") {
            from = Clock::now();
        } else if (from != Clock::time_point{}) {
            took = Clock::now() - from;
            from = {};
        }
    };
    for (auto _ : state) {
        took.reset();
        s.playDay();
        state.SetIterationTime(std::chrono::duration<double>(took.value_or(Clock::duration{})).count());
    }
}
BENCHMARK(BM_RunRandomEventsPerDay)->UseManualTime()->Iterations(365)->Unit(benchmark::kMicrosecond);

// An active unsigned act ends at once; a new act takes its place in the world.
void BM_RetireBandWithItsReplacement(benchmark::State& state) {
    bench::ShippedGame s("trovane-bench-retire");
    Game& g = s.g;
    int32_t next = 1;
    for (auto _ : state) {
        state.PauseTiming();
        for (; next < g.band.recordCount(); ++next) {
            g.band.read(next);
            if (g.band->retired == kFalse && g.band->label == 0) break;
        }
        if (next >= g.band.recordCount()) {
            state.SkipWithError("no active unsigned act left");
            break;
        }
        g.band.read(next++);
        state.ResumeTiming();
        retireBand(g, true);
    }
}
BENCHMARK(BM_RetireBandWithItsReplacement)->Iterations(100)->Unit(benchmark::kMicrosecond);

// The search for a member's successor over the whole world of artists.
void BM_FindReplacement(benchmark::State& state) {
    bench::ShippedGame s("trovane-bench-replacement");
    Game& g = s.g;
    int32_t band = 1;
    for (; band < g.band.recordCount(); ++band) {
        g.band.read(band);
        if (g.band->retired == kFalse && g.band->memberCount > 1) break;
    }
    const int16_t leaver = g.band->members[0];
    for (auto _ : state) benchmark::DoNotOptimize(findReplacement(g, leaver, static_cast<int16_t>(band)));
}
BENCHMARK(BM_FindReplacement)->Unit(benchmark::kMicrosecond);

// A day of play on a world whose artist table holds, besides the new game's
// artists, the members a decade of ended acts leaves behind (range(0): about
// a thousand a year), in no act and rested. A year-10 day should cost at most
// 1.3 times a year-1 day.
void BM_DayWithRetiredArtists(benchmark::State& state) {
    bench::ShippedGame s("trovane-bench-retired-artists");
    Game& g = s.g;
    const int32_t living = g.artist.recordCount() - 1;
    for (int64_t i = 0; i < state.range(0); ++i) {
        g.artist.read(static_cast<int32_t>(1 + i % living));
        g.artist->band = 0;
        g.artist->energy = 100;
        g.artist->writingFocus = 100;
        g.artist.append();
    }
    s.play(7);  // past the first day's visit of everyone
    for (auto _ : state) s.playDay();
    state.counters["artists"] = g.artist.recordCount() - 1;
}
BENCHMARK(BM_DayWithRetiredArtists)->Arg(0)->Arg(10000)->Iterations(120)->Unit(benchmark::kMicrosecond);

// A story body near the 1,024 characters a text holds, every kind of tag in it.
void BM_ExpandMacrosFullBody(benchmark::State& state) {
    bench::ShippedGame s("trovane-bench-macros");
    Game& g = s.g;
    int16_t first = 0, second = 0;
    for (int32_t n = 1; n < g.artist.recordCount() && second == 0; ++n) {
        g.artist.read(n);
        if (g.artist->band < 1) continue;
        (first == 0 ? first : second) = static_cast<int16_t>(n);
    }
    const std::string line =
        "<an1> of <bn> told <an2> that <biw> <baa> leaving <bl>; <bmo> fans, <pn> and <pl> know <bmu>. ";
    std::string body;
    while (body.size() + line.size() < 1000) body += line;
    g.schedule.rec = ScheduleRecord{};
    for (auto _ : state) benchmark::DoNotOptimize(expandMacros(g, body, first, second));
    state.counters["chars"] = static_cast<double>(body.size());
}
BENCHMARK(BM_ExpandMacrosFullBody)->Unit(benchmark::kMicrosecond);

}  // namespace

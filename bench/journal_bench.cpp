// A year of play on the shipped world with and without a commit through the
// journal after every day, and the commit of one day alone.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "day/daily_cycle.h"
#include "floor/preferences.h"
#include "session/new_game.h"
#include "session/session_record.h"
#include "world/record_store.h"

#include "support/shipped_game.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

void startGame(Game& g) {
    bench::foundQuarryRecords(g);
    commitWorkingGame(g);
}

// Arg 0: the days alone, one commit at the end; arg 1: a commit after every day.
void BM_YearOfPlay(benchmark::State& state) {
    bool daily = state.range(0) == 1;
    for (auto _ : state) {
        state.PauseTiming();
        fs::path dir = bench::shippedWorld("trovane-bench-journal-year");
        Game g(dir, 7);
        startGame(g);
        state.ResumeTiming();
        for (int d = 0; d < 365; ++d) {
            checkDaysSchedule(g);
            if (daily) commitWorkingGame(g);
        }
        commitWorkingGame(g);
        state.PauseTiming();
        closeAllTables(g);
        state.ResumeTiming();
    }
    state.SetLabel(daily ? "commit every day" : "one commit");
}
BENCHMARK(BM_YearOfPlay)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(3);

// The commit that ends a day, the day itself not timed.
void BM_CommitOfADay(benchmark::State& state) {
    fs::path dir = bench::shippedWorld("trovane-bench-journal-day");
    Game g(dir, 7);
    startGame(g);
    for (auto _ : state) {
        state.PauseTiming();
        checkDaysSchedule(g);
        state.ResumeTiming();
        commitWorkingGame(g);
    }
    closeAllTables(g);
}
BENCHMARK(BM_CommitOfADay)->Unit(benchmark::kMicrosecond)->Iterations(300);

}  // namespace

// How long a day takes when the world holds nothing: the fixed cost of the
// day's pipeline (its steps, the per-use files it opens, the high-score row).
#include <benchmark/benchmark.h>

#include <filesystem>

#include "day/daily_cycle.h"
#include "session/empty_world.h"
#include "world/record_store.h"

using namespace trovane;

namespace {

// Thursday 5 August 2004, run again and again: an ordinary weekday with no
// day-of-month step.
void BM_EmptyDay(benchmark::State& state) {
    auto folder = std::filesystem::temp_directory_path() / "trovane-bench-day";
    std::filesystem::remove_all(folder);
    Game g(folder, 1);
    createEmptyWorkingSet(g);
    double day = g.gameDate;
    for (auto _ : state) {
        g.gameDate = day;
        checkDaysSchedule(g);
    }
    closeAllTables(g);
    std::filesystem::remove_all(folder);
}
BENCHMARK(BM_EmptyDay)->Unit(benchmark::kMicrosecond);

// A whole year of empty days, month-end tidying included; reported per day.
void BM_EmptyYearPerDay(benchmark::State& state) {
    auto folder = std::filesystem::temp_directory_path() / "trovane-bench-year";
    std::filesystem::remove_all(folder);
    Game g(folder, 1);
    createEmptyWorkingSet(g);
    double start = g.gameDate;
    for (auto _ : state) {
        g.gameDate = start;
        for (int d = 0; d < 365; ++d) checkDaysSchedule(g);
    }
    state.SetItemsProcessed(state.iterations() * 365);
    closeAllTables(g);
    std::filesystem::remove_all(folder);
}
BENCHMARK(BM_EmptyYearPerDay)->Unit(benchmark::kMillisecond);

}  // namespace

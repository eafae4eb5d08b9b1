// How long the Sunday sales pass, the first week's charts and the quarterly
// tidy take on the shipped world.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "day/daily_cycle.h"
#include "floor/preferences.h"
#include "production/charts.h"
#include "production/weekly_sales.h"
#include "session/new_game.h"
#include "world/dates.h"
#include "world/record_store.h"

#include "support/shipped_game.h"
#include "support/year_on.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

void startGame(Game& g) { bench::foundQuarryRecords(g); }

void emptyCharts(Game& g) {
    for (int chart = 0; chart < kChartCount; ++chart) {
        openChart(g, chart);
        compactTable(g, g.chart, [](const ChartRow&) { return false; });
        closeChart(g);
    }
}

// The whole Sunday pass; each run is a week later in the discs' lives.
void BM_WeeklySalesPass(benchmark::State& state) {
    Game g(bench::shippedWorld("trovane-bench-sales"), 1);
    startGame(g);
    for (auto _ : state) calculateWeeklySales(g);
    closeAllTables(g);
}
BENCHMARK(BM_WeeklySalesPass)->Unit(benchmark::kMillisecond);

// The Sunday pass a year into play, on the charts the year has filled; each
// run is a week later.
void BM_WeeklySalesYearOn(benchmark::State& state) {
    bench::YearOnGame s("trovane-bench-sales-year");
    for (auto _ : state) calculateWeeklySales(s.g);
}
BENCHMARK(BM_WeeklySalesYearOn)->Unit(benchmark::kMillisecond);

// A whole Sunday of the day's cycle (the rivals' review, the sales, the rest).
void BM_ASunday(benchmark::State& state) {
    Game g(bench::shippedWorld("trovane-bench-sunday"), 1);
    startGame(g);
    while (weekdayOf(g.gameDate) != 1) checkDaysSchedule(g);
    double sunday = g.gameDate;
    for (auto _ : state) {
        g.gameDate = sunday;
        checkDaysSchedule(g);
    }
    closeAllTables(g);
}
BENCHMARK(BM_ASunday)->Unit(benchmark::kMillisecond);

void BM_SeedCharts(benchmark::State& state) {
    Game g(bench::shippedWorld("trovane-bench-seed"), 1);
    startGame(g);
    for (auto _ : state) {
        state.PauseTiming();
        emptyCharts(g);
        state.ResumeTiming();
        seedCharts(g);
    }
    closeAllTables(g);
}
BENCHMARK(BM_SeedCharts)->Unit(benchmark::kMillisecond);

void BM_TidyCharts(benchmark::State& state) {
    Game g(bench::shippedWorld("trovane-bench-tidy"), 1);
    startGame(g);
    for (auto _ : state) tidyCharts(g);
    closeAllTables(g);
}
BENCHMARK(BM_TidyCharts)->Unit(benchmark::kMillisecond);

}  // namespace

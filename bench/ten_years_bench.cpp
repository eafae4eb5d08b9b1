// Ten game years headless: a taken-over game played day by day for 3,652
// days, each held item given its first reply, each day run and committed to
// the disk as trovane-sim's `advance` commits it. Reports the whole run's
// wall time, the average day of the first and of the tenth year, their ratio,
// and the process's peak memory (run this benchmark on its own for that
// figure to be its own).
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <chrono>
#include <memory>

#include "session/session_record.h"
#include "support/shipped_game.h"

using namespace trovane;

namespace {

constexpr int kDaysInTenYears = 3652;
constexpr int kDaysInAYear = 365;

double peakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024.0;  // ru_maxrss is in kilobytes
}

void BM_TenYearsHeadless(benchmark::State& state) {
    using Clock = std::chrono::steady_clock;
    for (auto _ : state) {
        state.PauseTiming();
        auto s = std::make_unique<bench::ShippedGame>("trovane-bench-ten-years");
        state.ResumeTiming();
        double firstYear = 0;
        double tenthYear = 0;
        for (int day = 0; day < kDaysInTenYears; ++day) {
            const auto start = Clock::now();
            s->playDay();
            commitWorkingGame(s->g);
            const double took = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
            if (day < kDaysInAYear) firstYear += took;
            if (day >= kDaysInTenYears - kDaysInAYear) tenthYear += took;
        }
        state.PauseTiming();
        s.reset();
        state.ResumeTiming();
        state.counters["year1_ms_per_day"] = firstYear / kDaysInAYear;
        state.counters["year10_ms_per_day"] = tenthYear / kDaysInAYear;
        state.counters["year10_over_year1"] = tenthYear / firstYear;
    }
    state.counters["peak_MB"] = peakMegabytes();
}
BENCHMARK(BM_TenYearsHeadless)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace

// The label's books and staff over the shipped world: Friday's wages, a
// month's close, a hire and a release, a day's invariant check a year in,
// and what frmLabelDetails gathers.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "day/daily_cycle.h"
#include "floor/preferences.h"
#include "label/finances.h"
#include "label/label_details.h"
#include "label/staff.h"
#include "session/invariants.h"
#include "session/new_game.h"
#include "support/shipped_game.h"
#include "world/dates.h"
#include "world/record_store.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

void BM_TakeLabelWages(benchmark::State& state) {
    bench::ShippedGame s("trovane-bench-wages");
    for (auto _ : state) takeLabelWages(s.g);
    state.counters["labels"] = s.g.label.recordCount() - 1;
}
BENCHMARK(BM_TakeLabelWages)->Unit(benchmark::kMicrosecond);

void BM_UpdateLabelFinances(benchmark::State& state) {
    bench::ShippedGame s("trovane-bench-finances");
    s.g.gameDate = serialFromCivil(2004, 9, 1);
    for (auto _ : state) updateLabelFinances(s.g);
}
// A fixed count of closes: the interest compounds, and a balance must stay within its field.
BENCHMARK(BM_UpdateLabelFinances)->Unit(benchmark::kMicrosecond)->Iterations(1000);

// One hire (type 2) and the release (type 3) of the same person, both with their news.
void BM_HireAndFireStaff(benchmark::State& state) {
    bench::ShippedGame s("trovane-bench-staff");
    Game& g = s.g;
    g.staff.rec = StaffRecord{};
    g.staff->forename = "Bench";
    g.staff->surname = "Mark";
    const auto person = static_cast<int16_t>(g.staff.append());
    g.label.read(g.player.playerLabel);
    g.label->department[2].head = 0;  // a free post to fill
    g.label.write();
    ScheduleRecord hire{}, fire{};
    hire.type = 2;
    hire.staff = fire.staff = person;
    hire.label = fire.label = g.player.playerLabel;
    hire.department = fire.department = 2;
    fire.type = 3;
    for (auto _ : state) {
        g.staff.read(person);
        g.staff->offerLabel = g.player.playerLabel;
        g.staff->offerYears = 2;
        g.staff->offerWage = moneyUnits(900);
        g.staff.write();
        g.schedule.rec = hire;
        hireStaff(g);
        g.schedule.rec = fire;
        fireStaff(g);
    }
}
// Each pair posts two news items; a fixed count keeps the news table within its numbers.
BENCHMARK(BM_HireAndFireStaff)->Unit(benchmark::kMicrosecond)->Iterations(5000);

void BM_InvariantsAYearIn(benchmark::State& state) {
    bench::ShippedGame s("trovane-bench-invariants");
    for (int d = 0; d < 365; ++d) checkDaysSchedule(s.g);
    for (auto _ : state) benchmark::DoNotOptimize(checkInvariants(s.g));
}
BENCHMARK(BM_InvariantsAYearIn)->Unit(benchmark::kMicrosecond);

// What frmLabelDetails reads: details, the three columns and a year's history.
void BM_LabelDetailsGathered(benchmark::State& state) {
    bench::ShippedGame s("trovane-bench-details");
    for (int d = 0; d < 365; ++d) checkDaysSchedule(s.g);
    for (auto _ : state) {
        benchmark::DoNotOptimize(labelDetails(s.g, 1));
        benchmark::DoNotOptimize(labelBooks(s.g, 1));
        benchmark::DoNotOptimize(labelHistory(s.g, 1));
    }
}
BENCHMARK(BM_LabelDetailsGathered)->Unit(benchmark::kMicrosecond);

}  // namespace

// How fast the band browser fills and sorts 10,000 bands, and how fast
// Marketing's monthly pass, the high-score update and the birthdays run on the
// shipped world.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <string>

#include "browse/band_browse.h"
#include "events/scores.h"
#include "floor/preferences.h"
#include "label/image.h"
#include "session/new_game.h"
#include "support/year_on.h"
#include "world/dates.h"
#include "world/record_store.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

std::unique_ptr<Game> shippedGame(const char* name) {
    fs::path folder = fs::temp_directory_path() / name;
    fs::remove_all(folder);
    fs::create_directories(folder);
    for (const auto& e : fs::directory_iterator(TROVANE_DATA_DIR))
        if (e.path().extension() == ".gam") fs::copy_file(e.path(), folder / e.path().filename());
    auto g = std::make_unique<Game>(folder, 1);
    readPrefs(*g);
    beginNewGame(*g);
    PlayerChoices p;
    p.forename = "Ann";
    p.surname = "Lee";
    p.createNewLabel = false;
    takeOverLabel(*g, confirmPlayer(*g, p), 1);
    return g;
}

// The shipped world grown to 10,000 bands of varied names and advances.
void growToTenThousandBands(Game& g) {
    g.band.read(1);
    const BandRecord model = g.band.rec;
    while (g.band.recordCount() <= 10'000) {
        g.band.rec = model;
        const int32_t n = g.band.recordCount();
        g.band->id = static_cast<int16_t>(n);
        g.band->name = "Band " + std::to_string(n * 7919 % 10'007);
        g.band->advanceToPay = moneyUnits(n * 37 % 5000);
        g.band.append();
    }
}

void fillAndSort(benchmark::State& state, int column) {
    auto g = shippedGame("trovane-bench-browse");
    growToTenThousandBands(*g);
    BandFilter filter;
    resetBandFilter(*g, filter);
    Grid grid;
    GridSort sort;
    sort.clicked = true;
    sort.column = column;
    for (auto _ : state) {
        populateBandGrid(*g, 1, filter, kBandSearchColumns, sort, grid);
        benchmark::DoNotOptimize(grid.rows.data());
    }
    closeAllTables(*g);
}

// By the hidden advance value, and by name (text).
void BM_FillAndSortTenThousandBands(benchmark::State& state) { fillAndSort(state, 3); }
void BM_FillAndSortTenThousandBandsByName(benchmark::State& state) { fillAndSort(state, 0); }
BENCHMARK(BM_FillAndSortTenThousandBandsByName)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FillAndSortTenThousandBands)->Unit(benchmark::kMillisecond);

void BM_DeliverMarketingReports(benchmark::State& state) {
    auto g = shippedGame("trovane-bench-marketing");
    for (auto _ : state) deliverMarketingReports(*g);
    closeAllTables(*g);
}
BENCHMARK(BM_DeliverMarketingReports)->Unit(benchmark::kMillisecond);

void BM_UpdateHighScoreTable(benchmark::State& state) {
    auto g = shippedGame("trovane-bench-highscore");
    for (auto _ : state) updateHighScoreTable(*g);
    closeAllTables(*g);
}
BENCHMARK(BM_UpdateHighScoreTable)->Unit(benchmark::kMicrosecond);

// On 31 December of the first year, every birthday of the next one filed, with
// an artist table the size of year ten's; the next year's days are emptied
// again between runs.
void BM_AddThisYearsBirthdays(benchmark::State& state) {
    auto g = shippedGame("trovane-bench-birthdays");
    bench::growToYearTen(*g);
    g->gameDate = serialFromCivil(yearOf(g->gameDate), 12, 31);
    bench::DayFilesCheckpoint days(*g, {yearOf(g->gameDate) + 1});
    for (auto _ : state) {
        addThisYearsBirthdays(*g);
        state.PauseTiming();
        days.restore();
        state.ResumeTiming();
    }
    state.counters["artists"] = g->artist.recordCount() - 1;
    closeAllTables(*g);
}
BENCHMARK(BM_AddThisYearsBirthdays)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

}  // namespace

// A new game up to the first news screen, and saving and loading it.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "day/daily_cycle.h"
#include "floor/preferences.h"
#include "session/new_game.h"
#include "session/save_load.h"
#include "world/record_store.h"

#include "support/shipped_game.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

void startGame(Game& g) { bench::foundQuarryRecords(g); }

void BM_NewGameToTheFirstNews(benchmark::State& state) {
    fs::path dir = bench::shippedWorld("trovane-bench-newgame");
    Game g(dir, 1);
    for (auto _ : state) {
        startGame(g);
        state.PauseTiming();
        discardWorkingSet(g);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_NewGameToTheFirstNews)->Unit(benchmark::kMillisecond);

void BM_SaveAndLoadAYearIn(benchmark::State& state) {
    fs::path dir = bench::shippedWorld("trovane-bench-save");
    Game g(dir, 1);
    startGame(g);
    for (int d = 0; d < 365; ++d) checkDaysSchedule(g);
    bool save = state.range(0) == 0;
    if (!save) saveGame(g, 1, "A year in");
    for (auto _ : state) {
        if (save)
            saveGame(g, 1, "A year in");
        else
            loadGame(g, 1);
    }
    state.SetLabel(save ? "save" : "load");
    closeAllTables(g);
}
BENCHMARK(BM_SaveAndLoadAYearIn)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace

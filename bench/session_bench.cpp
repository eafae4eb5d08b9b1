// A new game up to the first news screen, and saving and loading it.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "day/daily_cycle.h"
#include "floor/preferences.h"
#include "session/new_game.h"
#include "session/save_load.h"
#include "world/record_store.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

fs::path freshFolderWithBaseWorld(const char* name) {
    fs::path p = fs::temp_directory_path() / name;
    fs::remove_all(p);
    fs::create_directories(p);
    for (const auto& e : fs::directory_iterator(TROVANE_DATA_DIR))
        if (e.path().extension() == ".gam") fs::copy_file(e.path(), p / e.path().filename());
    return p;
}

void startGame(Game& g) {
    readPrefs(g);
    beginNewGame(g);
    PlayerChoices p;
    p.forename = "Ann";
    p.surname = "Lee";
    p.nationality = "Scottish";
    LabelChoices l;
    l.name = "Quarry Records";
    l.country = "Scotland";
    l.city = "Glasgow";
    foundLabel(g, confirmPlayer(g, p), l);
}

void BM_NewGameToTheFirstNews(benchmark::State& state) {
    fs::path dir = freshFolderWithBaseWorld("trovane-bench-newgame");
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
    fs::path dir = freshFolderWithBaseWorld("trovane-bench-save");
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

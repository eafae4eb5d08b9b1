// The rival labels over the shipped world: Sunday's judging, Monday's bids
// and album checks, Tuesday's album starts, each run a year into the game.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "day/daily_cycle.h"
#include "day/news_inbox.h"
#include "floor/preferences.h"
#include "rivals/rival_albums.h"
#include "rivals/rival_bands.h"
#include "rivals/rival_signing.h"
#include "session/new_game.h"
#include "world/record_store.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

fs::path rivalWorld(const char* name) {
    fs::path p = fs::temp_directory_path() / name;
    fs::remove_all(p);
    fs::create_directories(p);
    for (const auto& e : fs::directory_iterator(TROVANE_DATA_DIR))
        if (e.path().extension() == ".gam") fs::copy_file(e.path(), p / e.path().filename());
    return p;
}

// A taken-over game played a year on, held items answered with their first button.
struct YearOnGame {
    Game g;
    explicit YearOnGame(const char* name) : g(rivalWorld(name), 1) {
        readPrefs(g);
        beginNewGame(g);
        PlayerChoices p;
        p.forename = "Ann";
        p.surname = "Lee";
        p.nationality = "Scottish";
        takeOverLabel(g, confirmPlayer(g, p), 1);
        for (int d = 0; d < 365; ++d) {
            while (!allRepliesGiven(g)) {
                openNewsItem(g);
                pressNewsCmd1(g);
                g.news->replied = kTrue;
                g.news.write();
            }
            checkDaysSchedule(g);
        }
    }
    ~YearOnGame() { closeAllTables(g); }
};

YearOnGame& yearOn() {
    static YearOnGame game("trovane-bench-rivals");
    return game;
}

void BM_ComputerCheckBands(benchmark::State& state) {
    Game& g = yearOn().g;
    for (auto _ : state) computerCheckBands(g);
    state.counters["shortlist"] = g.shortlist.recordCount() - 1;
}
BENCHMARK(BM_ComputerCheckBands)->Unit(benchmark::kMillisecond);

void BM_ComputerApproachBands(benchmark::State& state) {
    Game& g = yearOn().g;
    for (auto _ : state) computerApproachBands(g);
    state.counters["offers"] = g.offer.recordCount() - 1;
}
BENCHMARK(BM_ComputerApproachBands)->Unit(benchmark::kMillisecond);

void BM_ComputerRecordAlbum(benchmark::State& state) {
    Game& g = yearOn().g;
    for (auto _ : state) computerRecordAlbum(g);
}
BENCHMARK(BM_ComputerRecordAlbum)->Unit(benchmark::kMillisecond);

}  // namespace

// The tour planner over the shipped world a year into a game: a rival's album
// tour with its support acts, and Sunday's follow-up tours.
#include <benchmark/benchmark.h>

#include <string>

#include "day/daily_cycle.h"
#include "day/news_inbox.h"
#include "floor/preferences.h"
#include "rivals/rival_touring.h"
#include "session/new_game.h"
#include "support/year_on.h"
#include "world/record_store.h"

using namespace trovane;

namespace {

using bench::YearOnGame;

// The best-known rival act that is still together.
int16_t bigRivalAct(Game& g) {
    int16_t best = 0;
    int32_t bestSum = -1;
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        g.band.read(n);
        if (g.band->retired != 0 || g.band->label < 1 || g.band->label == g.player.playerLabel) continue;
        int32_t sum = 0;
        for (uint8_t r : g.band->reputation) sum += r;
        if (sum > bestSum) {
            bestSum = sum;
            best = static_cast<int16_t>(n);
        }
    }
    return best;
}

// Each run files a tour; a fixed count keeps the day files far from full.
void BM_PlanTourAlbumWithSupports(benchmark::State& state) {
    static YearOnGame game("trovane-bench-planner");
    Game& g = game.g;
    const int16_t act = bigRivalAct(g);
    for (auto _ : state) {
        g.band.read(act);
        planTour(g, 1);
    }
    state.counters["tours"] = g.tour.recordCount() - 1;
}
BENCHMARK(BM_PlanTourAlbumWithSupports)->Unit(benchmark::kMillisecond)->Iterations(40);

// A busy Sunday: forty rival acts had an album out yesterday, and every one
// not still on the road is sent on a follow-up tour. One call does the work;
// a second would find the acts booked.
void BM_SundayFollowUpTours(benchmark::State& state) {
    static YearOnGame game("trovane-bench-planner-sunday");
    Game& g = game.g;
    int albums = 0;
    for (int32_t n = 1; n < g.band.recordCount() && albums < 40; ++n) {
        g.band.read(n);
        if (g.band->retired != 0 || g.band->label < 1 || g.band->label == g.player.playerLabel) continue;
        const BandRecord act = g.band.rec;
        g.disc.rec = DiscRecord{};
        g.disc->title = "Follow-up " + std::to_string(++albums);
        g.disc->band = act.id;
        g.disc->label = act.label;
        g.disc->releaseDate.fill(g.gameDate - 1);
        g.disc.append();
    }
    const int32_t before = g.tour.recordCount();
    for (auto _ : state) planFollowUpTours(g);
    state.counters["newTours"] = g.tour.recordCount() - before;
}
BENCHMARK(BM_SundayFollowUpTours)->Unit(benchmark::kMillisecond)->Iterations(1)->MeasureProcessCPUTime();

}  // namespace

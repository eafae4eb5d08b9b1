// How fast the weekly songwriting pass, a studio day, a studio booking and the
// month's firm upkeep run on the generated world.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "floor/preferences.h"
#include "production/businesses.h"
#include "production/recording.h"
#include "production/songwriting.h"
#include "session/new_game.h"
#include "support/shipped_game.h"
#include "world/record_store.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

// A game taken over on the base world: the generated acts, firms and labels.
struct GeneratedWorld : bench::ShippedGame {
    explicit GeneratedWorld(const char* name) : bench::ShippedGame(name, 2) {}
    // An album of `tracks` tracks for the band (the player's first when 0), with no studio yet.
    int16_t newDisc(int tracks, int16_t band = 0) {
        g.disc.rec = DiscRecord{};
        g.disc->band = band ? band : firstPlayersBand();
        g.disc->trackCount = static_cast<uint8_t>(tracks);
        return static_cast<int16_t>(g.disc.append());
    }
    int16_t firstPlayersBand() {
        for (int32_t n = 1; n < g.band.recordCount(); ++n) {
            g.band.read(n);
            if (g.band->label == g.player.playerLabel) return static_cast<int16_t>(n);
        }
        return 1;
    }
};

void BM_UpdateSongs(benchmark::State& state) {
    GeneratedWorld w("trovane-bench-songs");
    for (auto _ : state) updateSongs(w.g);
}
BENCHMARK(BM_UpdateSongs)->Unit(benchmark::kMicrosecond);

void BM_RecordingDay(benchmark::State& state) {
    GeneratedWorld w("trovane-bench-studio-day");
    Game& g = w.g;
    const int16_t disc = w.newDisc(20);
    g.disc.read(disc);
    g.disc->recordingDue = g.gameDate + 1000;  // never at its end: no booking is added
    g.disc.write();
    g.band.read(g.disc->band);
    g.band->stamina = 0;
    g.band.write();
    ScheduleRecord entry{};
    entry.type = 7;
    entry.disc = disc;
    entry.band = g.disc->band;
    for (auto _ : state) {
        g.schedule.rec = entry;
        recordingDay(g);
    }
}
BENCHMARK(BM_RecordingDay)->Unit(benchmark::kMicrosecond);

void BM_BookStudio40Sessions(benchmark::State& state) {
    GeneratedWorld w("trovane-bench-booking");
    std::vector<int16_t> studios = chooseBusiness(w.g, kStudio);
    // Each booking for another band, so that no booking waits behind the ones before it.
    int16_t band = 0;
    for (auto _ : state) {
        state.PauseTiming();
        band = static_cast<int16_t>(band % (w.g.band.recordCount() - 1) + 1);
        const int16_t disc = w.newDisc(20, band);
        state.ResumeTiming();
        bookStudio(w.g, disc, studios.front());
    }
}
BENCHMARK(BM_BookStudio40Sessions)->Unit(benchmark::kMicrosecond)->Iterations(200);

void BM_SubtractBusinessRunningCosts(benchmark::State& state) {
    GeneratedWorld w("trovane-bench-upkeep");
    for (auto _ : state) subtractBusinessRunningCosts(w.g);
}
BENCHMARK(BM_SubtractBusinessRunningCosts)->Unit(benchmark::kMicrosecond);

}  // namespace

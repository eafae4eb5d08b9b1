// How fast the monthly and weekly passes over every act, scouting, scoring an
// offer and a band's decision run, on the shipped world taken over by a player.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>

#include "floor/preferences.h"
#include "label/scouting.h"
#include "schedule/schedule.h"
#include "session/new_game.h"
#include "support/shipped_game.h"
#include "talent/band_condition.h"
#include "talent/band_offers.h"
#include "talent/contract_terms.h"
#include "talent/contracts.h"
#include "world/record_store.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

int16_t firstFreeBand(Game& g) {
    for (int32_t b = 1; b < g.band.recordCount(); ++b) {
        g.band.read(b);
        if (g.band->label == 0 && g.band->retired == kFalse) return static_cast<int16_t>(b);
    }
    return 0;
}

void BM_DropBandHype(benchmark::State& state) {
    bench::ShippedGame world("trovane-bench-hype");
    Game* g = &world.g;
    for (auto _ : state) dropBandHype(*g);
}
BENCHMARK(BM_DropBandHype)->Unit(benchmark::kMillisecond);

void BM_CheckBandEnergy(benchmark::State& state) {
    bench::ShippedGame world("trovane-bench-energy");
    Game* g = &world.g;
    for (auto _ : state) checkBandEnergy(*g);
}
BENCHMARK(BM_CheckBandEnergy)->Unit(benchmark::kMillisecond);

void BM_BandPotentialCalculations(benchmark::State& state) {
    bench::ShippedGame world("trovane-bench-potential");
    Game* g = &world.g;
    for (auto _ : state) bandPotentialCalculations(*g);
}
BENCHMARK(BM_BandPotentialCalculations)->Unit(benchmark::kMillisecond);

// Every label's sample; the shortlist is emptied between runs so each finds as much.
void BM_DeliverScoutingReports(benchmark::State& state) {
    bench::ShippedGame world("trovane-bench-scouting");
    Game* g = &world.g;
    for (auto _ : state) {
        deliverScoutingReports(*g);
        state.PauseTiming();
        g->shortlist.clearAll();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_DeliverScoutingReports)->Unit(benchmark::kMillisecond);

void BM_RateContract(benchmark::State& state) {
    bench::ShippedGame world("trovane-bench-rate");
    Game* g = &world.g;
    int16_t band = firstFreeBand(*g);
    makeOffer(*g, band, offerFormStart(*g, band));
    g->offer.read(1);
    g->label.read(1);
    g->band.read(band);
    for (auto _ : state) benchmark::DoNotOptimize(rateContract(*g, 1));
}
BENCHMARK(BM_RateContract)->Unit(benchmark::kMicrosecond);

// Ten rival offers on one band, among a thousand offers on other bands;
// each run decides on copies, so the offers are live again.
void BM_DecideOffersWithTen(benchmark::State& state) {
    bench::ShippedGame world("trovane-bench-decide");
    Game* g = &world.g;
    int16_t band = firstFreeBand(*g);
    const double date = g->gameDate + 7;
    for (int i = 0; i < 1000; ++i) {
        g->offer.rec = OfferRecord{};
        g->offer->band = static_cast<int16_t>(band + 1 + i % 50);
        g->offer->label = 2;
        g->offer->decisionDate = date;
        g->offer.append();
    }
    std::vector<OfferRecord> ten;
    // Rival labels only, so no news is told to the player.
    const int labels = g->label.recordCount() - 1;
    for (int i = 0; i < 10; ++i) {
        const auto label = static_cast<int16_t>(2 + i % (labels - 1));
        g->offer.rec = OfferRecord{};
        g->offer->band = band;
        g->offer->label = label;
        g->offer->decisionDate = date;
        // No advances at half the asked royalty score 0 for any label: all lapse.
        g->offer->additionalAdvanceCount = 3;
        g->offer->optionLength = 18;
        g->offer->royalty = 5;
        g->offer.append();
        ten.push_back(g->offer.rec);
    }
    ScheduleRecord entry{};
    entry.type = 4;
    entry.date = date;
    entry.band = band;
    g->gameDate = date;
    for (auto _ : state) {
        g->schedule.rec = entry;
        decideOffers(*g);
        state.PauseTiming();
        for (OfferRecord o : ten) {
            g->offer.rec = o;
            g->offer.write();
        }
        state.ResumeTiming();
    }
}
BENCHMARK(BM_DecideOffersWithTen)->Unit(benchmark::kMicrosecond);

}  // namespace

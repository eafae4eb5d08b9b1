// How fast the record store reads, writes and walks.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "session/empty_world.h"
#include "world/record_store.h"

using namespace trovane;

namespace {

std::filesystem::path benchFolder(const char* name) {
    auto p = std::filesystem::temp_directory_path() / name;
    std::filesystem::remove_all(p);
    return p;
}

void fillBands(Game& g, int count) {
    for (int i = 0; i < count; ++i) {
        g.band.rec = BandRecord{};
        g.band->name = "Band " + std::to_string(i);
        g.band->ability = static_cast<uint8_t>(i % 100);
        g.band.append();
    }
}

void BM_ReadAndWriteBackOneBand(benchmark::State& state) {
    Game g(benchFolder("trovane-bench-rw"), 1);
    createEmptyWorkingSet(g);
    fillBands(g, 10000);
    int32_t n = 1;
    for (auto _ : state) {
        g.band.read(n);
        g.band->ability = static_cast<uint8_t>(g.band->ability ^ 1);
        g.band.write(n);
        n = n % 10000 + 1;
    }
    closeAllTables(g);
}
BENCHMARK(BM_ReadAndWriteBackOneBand);

void BM_Walk10000Bands(benchmark::State& state) {
    Game g(benchFolder("trovane-bench-walk"), 1);
    createEmptyWorkingSet(g);
    fillBands(g, 10000);
    for (auto _ : state) {
        int64_t sum = 0;
        for (int32_t n = 1; n != g.band.recordCount(); ++n) {
            g.band.read(n);
            sum += g.band->ability;
        }
        benchmark::DoNotOptimize(sum);
    }
    closeAllTables(g);
}
BENCHMARK(BM_Walk10000Bands)->Unit(benchmark::kMillisecond);

}  // namespace

// How long reading the preferences and naming a new artist take.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "floor/preferences.h"
#include "session/empty_world.h"
#include "talent/artist_names.h"
#include "world/record_store.h"

using namespace trovane;

namespace {

std::filesystem::path benchFolder(const char* name) {
    auto p = std::filesystem::temp_directory_path() / name;
    std::filesystem::remove_all(p);
    return p;
}

// A world-sized name bank: 1,500 forenames and 1,500 surnames over 60
// countries, each tied to one or two countries with weights of 20 to 100, one
// in fifty open to all.
void fillNames(Game& g) {
    constexpr int kCountries = 60;
    for (int i = 0; i < 1500; ++i) {
        std::array<uint8_t, 5> links{}, weights{};
        if (i % 50 != 0) {
            links[0] = static_cast<uint8_t>(1 + i % kCountries);
            weights[0] = static_cast<uint8_t>(20 + (i * 37) % 81);
            if (i % 3 == 0) {
                links[1] = static_cast<uint8_t>(1 + (i * 7) % kCountries);
                weights[1] = static_cast<uint8_t>(20 + (i * 11) % 81);
            }
        }
        g.forename.rec = ForenameRecord{};
        g.forename->name = "Forename" + std::to_string(i);
        g.forename->isMale = boolean((i / kCountries) % 2 == 0);
        g.forename->countryLinks = links;
        g.forename->countryWeights = weights;
        g.forename.append();
        g.surname.rec = SurnameRecord{};
        g.surname->name = "Surname" + std::to_string(i);
        g.surname->countryLinks = links;
        g.surname->countryWeights = weights;
        g.surname.append();
    }
}

void BM_ReadPrefs(benchmark::State& state) {
    Game g(benchFolder("trovane-bench-prefs"), 1);
    createEmptyWorkingSet(g);
    for (auto _ : state) benchmark::DoNotOptimize(readPrefs(g));
    closeAllTables(g);
}
BENCHMARK(BM_ReadPrefs)->Unit(benchmark::kMicrosecond);

void BM_DrawArtistName(benchmark::State& state) {
    Game g(benchFolder("trovane-bench-names"), 1);
    createEmptyWorkingSet(g);
    fillNames(g);
    int country = 0;
    for (auto _ : state) {
        g.artist.rec = ArtistRecord{};
        g.artist->country = static_cast<uint8_t>(1 + country++ % 60);
        g.artist->male = boolean(country % 2 == 0);
        drawArtistName(g);
        benchmark::DoNotOptimize(g.artist->surname);
    }
    closeAllTables(g);
}
BENCHMARK(BM_DrawArtistName)->Unit(benchmark::kMicrosecond);

}  // namespace

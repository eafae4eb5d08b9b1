// How long compiling the whole world takes, on a generated world the size of
// the shipped one (thousands of venues and names, the banks of titles).
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

#include <fmt/format.h>

#include "worldtool/world_compiler.h"

using namespace trovane::worldtool;
namespace fs = std::filesystem;

namespace {

struct WorldSize {
    int countries = 100, cities = 850, venues = 3600, forenames = 3100, surnames = 3000, styles = 30;
    int actNamesPerStyle = 100, songs = 3000, albums = 1000, facts = 140, nationLinks = 300;
};

// Writes a world of that size; every name is made up of its table and number.
fs::path generateWorld(const WorldSize& n) {
    fs::path dir = fs::temp_directory_path() / "trovane-bench-world";
    fs::remove_all(dir);
    fs::create_directories(dir);
    std::ofstream out(dir / "world.toml");
    out << "job = [\n  { title = \"Lead Singer\", titleFemale = \"Lead Singer\", rank = 1 },\n"
           "  { title = \"Drummer\", titleFemale = \"Drummer\", rank = 3 },\n]\n";
    out << "country = [\n";
    for (int i = 1; i <= n.countries; ++i)
        out << fmt::format("  {{ name = \"Country {}\", adjective = \"Adjective {}\", region = \"{}\" }},\n", i, i,
                           "ENSOAF"[i % 6]);
    out << "]\ncity = [\n";
    for (int i = 1; i <= n.cities; ++i)
        out << fmt::format("  {{ name = \"City {}\", country = \"Country {}\", size = {} }},\n", i, 1 + i % n.countries,
                           1 + i % 100);
    out << "]\nvenue = [\n";
    for (int i = 1; i <= n.venues; ++i)
        out << fmt::format("  {{ name = \"Venue {}\", city = \"City {}\", capacity = {}, rating = {}, flags = 1 }},\n",
                           i, 1 + i % n.cities, 50 + i * 17 % 60000, i % 90);
    out << "]\nforename = [\n";
    for (int i = 1; i <= n.forenames; ++i)
        out << fmt::format(
            "  {{ name = \"Forename {}\", male = {}, "
            "countries = {{ \"Country {}\" = 5, \"Country {}\" = 2 }} }},\n",
            i, i % 2 ? "true" : "false", 1 + i % n.countries, 1 + (i + 7) % n.countries);
    out << "]\nsurname = [\n";
    for (int i = 1; i <= n.surnames; ++i)
        out << fmt::format("  {{ name = \"Surname {}\", countries = {{ \"Country {}\" = 4 }} }},\n", i,
                           1 + i % n.countries);
    out << "]\nassnation = [\n";
    for (int i = 1; i <= n.nationLinks; ++i)
        out << fmt::format("  {{ a = \"Country {}\", b = \"Country {}\", weight = {} }},\n", 1 + i % n.countries,
                           1 + (i * 7) % n.countries, 1 + i % 10);
    out << "]\nfact = [\n";
    for (int i = 1; i <= n.facts; ++i)
        out << fmt::format("  \"Did you know? Fact number {} is one of many lines of the loading screen.\",\n", i);
    out << "]\n";
    for (int s = 1; s <= n.styles; ++s)
        out << fmt::format(
            "[[style]]\nname = \"{}\"\nlifeSpan = 8\npopularity = [30, 18, 25, 20, 10]\n"
            "membersHigh = 5\nmembersUsual = 4\nmembersLow = 3\nbandJobs = [\"Lead Singer\", "
            "\"Drummer\"]\nsoloJob = \"Lead Singer\"\nsoloPercent = 10\n"
            "base = {{ charisma = 50, angst = 40 }}\n",
            s == n.styles ? std::string("Legend") : fmt::format("Style {}", s));
    auto bank = [&](const char* key, int perStyle, const char* what) {
        out << fmt::format("[{}]\n", key);
        for (int s = 1; s < n.styles; ++s) {
            out << fmt::format("\"Style {}\" = [", s);
            for (int i = 0; i < perStyle; ++i) out << fmt::format("\"{} {} {}\", ", what, s, i);
            out << "]\n";
        }
    };
    bank("newband", n.actNamesPerStyle, "Act");
    bank("newsong", n.songs / (n.styles - 1) + 1, "Song");
    bank("newalbum", n.albums / (n.styles - 1) + 1, "Album");
    return dir;
}

void BM_CompileTheWholeWorld(benchmark::State& state) {
    fs::path source = generateWorld(WorldSize{});
    for (auto _ : state) {
        Diagnostics diag;
        BaseSet set = compileWorld(source, diag);
        if (!diag.clean()) state.SkipWithError(describe(diag.sorted().front()).c_str());
        benchmark::DoNotOptimize(set);
    }
    fs::remove_all(source);
}
BENCHMARK(BM_CompileTheWholeWorld)->Unit(benchmark::kMillisecond);

void BM_BuildTheWholeWorldIntoAFolder(benchmark::State& state) {
    fs::path source = generateWorld(WorldSize{});
    fs::path out = fs::temp_directory_path() / "trovane-bench-world-out";
    for (auto _ : state)
        if (!buildWorld(source, out).empty()) state.SkipWithError("the generated world does not compile");
    fs::remove_all(source);
    fs::remove_all(out);
}
BENCHMARK(BM_BuildTheWholeWorldIntoAFolder)->Unit(benchmark::kMillisecond);

}  // namespace

// The world the game ships: it compiles clean and holds at least what a new
// game needs of each table.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "worldtool/world_compiler.h"

using namespace trovane::worldtool;

namespace {

std::string textAt(const std::vector<uint8_t>& file, std::size_t at, std::size_t width) {
    std::string t(reinterpret_cast<const char*>(&file[at]), width);
    return t.substr(0, t.find_last_not_of(' ') + 1);
}

// How many records of a file share a name built from the given text fields.
int sharedNames(const BaseSet& set, const std::string& file, std::size_t length,
                std::vector<std::pair<std::size_t, std::size_t>> fields) {
    const auto& bytes = set.files.at(file);
    std::set<std::string> seen;
    int shared = 0;
    for (std::size_t r = 0; r < bytes.size() / length; ++r) {
        std::string name;
        for (auto [at, width] : fields) name += textAt(bytes, r * length + at, width) + " ";
        if (!seen.insert(name).second) {
            ADD_FAILURE() << file << ": \"" << name << "\" is used twice";
            ++shared;
        }
    }
    return shared;
}

int styleCountOf(const BaseSet& set) { return static_cast<int>(set.files.at("style.gam").size() / 70); }

TEST(ShippedWorld, CompilesCleanWithAtLeastTheCountsANewGameNeeds) {
    Diagnostics diag;
    BaseSet set = compileWorld(TROVANE_WORLD_SOURCE, diag);
    for (const auto& p : diag.sorted()) ADD_FAILURE() << describe(p);
    ASSERT_TRUE(diag.clean());

    // File, record length, records; from label.gam on, the industry of August 2004.
    const std::map<std::string, std::pair<std::size_t, std::size_t>> atLeast = {
        {"country.gam", {67, 60}},      {"city.gam", {24, 400}},      {"venue.gam", {44, 1200}},
        {"forename.gam", {46, 1500}},   {"surname.gam", {44, 1500}},  {"style.gam", {70, 21}},
        {"newsong.gam", {56, 3000}},    {"newalbum.gam", {53, 1000}}, {"fact.gam", {1026, 100}},
        {"newband.gam", {35, 80 * 20}}, {"job.gam", {69, 10}},        {"look.gam", {43, 10}},
        {"product.gam", {43, 10}},      {"label.gam", {650, 24}},     {"staff.gam", {185, 150}},
        {"band.gam", {351, 250}},       {"artist.gam", {211, 700}},   {"business.gam", {66, 70}},
        {"media.gam", {92, 150}},       {"festival.gam", {276, 20}},  {"ceremony.gam", {155, 6}},
        {"thank.gam", {263, 120}},      {"event.gam", {2313, 60}},    {"crime.gam", {41, 12}},
        {"cb.gam", {351, 10}}};
    for (const auto& [file, want] : atLeast) {
        ASSERT_TRUE(set.files.count(file)) << file;
        const auto& bytes = set.files.at(file);
        ASSERT_EQ(bytes.size() % want.first, 0u) << file;
        EXPECT_GE(bytes.size() / want.first, want.second) << file;
    }
    // Firms of each kind: 40 studios, 15 pressing plants, 15 distributors at least.
    std::map<int, int> firmsOfKind;
    const auto& firms = set.files.at("business.gam");
    for (std::size_t i = 0; i < firms.size() / 66; ++i) ++firmsOfKind[firms[i * 66 + 52]];
    EXPECT_GE(firmsOfKind[0], 40);
    EXPECT_GE(firmsOfKind[1], 15);
    EXPECT_GE(firmsOfKind[2], 15);
    // Veterans of the last style, "Legend".
    const auto& bands = set.files.at("band.gam");
    int legends = 0;
    for (std::size_t i = 0; i < bands.size() / 351; ++i) legends += bands[i * 351 + 54] == styleCountOf(set);
    EXPECT_GE(legends, 15);

    // No act, person, label or firm shares a name with another of its kind.
    EXPECT_EQ(sharedNames(set, "band.gam", 351, {{2, 50}}), 0);
    EXPECT_EQ(sharedNames(set, "artist.gam", 211, {{12, 32}, {44, 32}}), 0);
    EXPECT_EQ(sharedNames(set, "staff.gam", 185, {{2, 32}, {34, 32}}), 0);
    EXPECT_EQ(sharedNames(set, "label.gam", 650, {{2, 32}}), 0);
    EXPECT_EQ(sharedNames(set, "business.gam", 66, {{2, 50}}), 0);

    // Every style but the last has its bank of act names; "Legend" is last and has none.
    const auto& styles = set.files.at("style.gam");
    std::size_t styleCount = styles.size() / 70;
    std::map<int, int> actNames;
    const auto& bank = set.files.at("newband.gam");
    for (std::size_t i = 0; i < bank.size() / 35; ++i) ++actNames[bank[i * 35 + 34]];
    for (std::size_t s = 1; s < styleCount; ++s) EXPECT_GE(actNames[static_cast<int>(s)], 80) << "style " << s;
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(&styles[(styleCount - 1) * 70 + 2]), 6), "Legend");
    EXPECT_EQ(actNames.count(static_cast<int>(styleCount)), 0u);
}

}  // namespace

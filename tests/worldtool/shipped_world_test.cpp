// The world the game ships: it compiles clean and holds at least what a new
// game needs of each table.
#include <gtest/gtest.h>

#include <map>

#include "worldtool/world_compiler.h"

using namespace trovane::worldtool;

namespace {

TEST(ShippedWorld, CompilesCleanWithAtLeastTheCountsANewGameNeeds) {
    Diagnostics diag;
    BaseSet set = compileWorld(TROVANE_WORLD_SOURCE, diag);
    for (const auto& p : checkWorld(TROVANE_WORLD_SOURCE)) ADD_FAILURE() << p.file << ":" << p.line << ": " << p.message;

    const std::map<std::string, std::pair<std::size_t, std::size_t>> atLeast = {
        // file, record length, records
        {"country.gam", {67, 60}},    {"city.gam", {24, 400}},      {"venue.gam", {44, 1200}},
        {"forename.gam", {46, 1500}}, {"surname.gam", {44, 1500}},  {"style.gam", {70, 21}},
        {"newsong.gam", {56, 3000}},  {"newalbum.gam", {53, 1000}}, {"fact.gam", {1026, 100}},
        {"newband.gam", {35, 80 * 20}}, {"job.gam", {69, 10}},      {"look.gam", {43, 10}},
        {"product.gam", {43, 10}},
    };
    for (const auto& [file, want] : atLeast) {
        ASSERT_TRUE(set.files.count(file)) << file;
        const auto& bytes = set.files.at(file);
        ASSERT_EQ(bytes.size() % want.first, 0u) << file;
        EXPECT_GE(bytes.size() / want.first, want.second) << file;
    }
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

// Every include points down: a file may include its own folder and the layers
// below it, never one above. The order, from the bottom: the record store, the
// helpers' floor, the schedule, the subsystems, the day, the session, and on
// top the programs, the screens and the world compiler.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <string>

namespace {

namespace fs = std::filesystem;

const std::map<std::string, int>& layerOf() {
    static const std::map<std::string, int> layers = {
        {"world", 0},    {"floor", 1}, {"schedule", 2}, {"talent", 3},  {"production", 3},
        {"live", 3},     {"label", 3}, {"events", 3},   {"rivals", 3},  {"browse", 3},
        {"day", 4},      {"session", 5}, {"worldtool", 6}, {"app", 7},  {"screens", 7},
    };
    return layers;
}

// Subsystems call one another as peers; every other layer keeps to its own
// folder and those below it.
bool allowed(const std::string& from, const std::string& to) {
    const auto& l = layerOf();
    if (from == to) return true;
    if (from == "app" && to == "screens") return true;
    return l.at(to) <= l.at(from) && !(l.at(to) == l.at(from) && l.at(from) != 3);
}

TEST(Layers, EveryIncludePointsDown) {
    const fs::path src = fs::path(TROVANE_SOURCE_DIR) / "src";
    const std::regex include(R"re(^\s*#\s*include\s+"([a-z_]+)/)re");
    int files = 0;
    for (const auto& entry : fs::recursive_directory_iterator(src)) {
        if (!entry.is_regular_file()) continue;
        const std::string from = fs::relative(entry.path(), src).begin()->string();
        ASSERT_TRUE(layerOf().count(from)) << "a folder with no layer: " << from;
        ++files;
        std::ifstream in(entry.path());
        std::string line;
        int number = 0;
        while (std::getline(in, line)) {
            ++number;
            std::smatch m;
            if (!std::regex_search(line, m, include)) continue;
            const std::string to = m[1];
            ASSERT_TRUE(layerOf().count(to)) << entry.path() << ":" << number << " includes from " << to;
            EXPECT_TRUE(allowed(from, to)) << entry.path() << ":" << number << ": " << from << " includes from " << to
                                           << ", a layer above it";
        }
    }
    EXPECT_GT(files, 100);
}

TEST(Layers, TheRuleRefusesAnIncludeUpward) {
    EXPECT_FALSE(allowed("talent", "day"));
    EXPECT_FALSE(allowed("floor", "schedule"));
    EXPECT_FALSE(allowed("schedule", "talent"));
    EXPECT_FALSE(allowed("day", "session"));
    EXPECT_FALSE(allowed("session", "screens"));
    EXPECT_TRUE(allowed("label", "talent"));
    EXPECT_TRUE(allowed("day", "rivals"));
}

}  // namespace

// Broken world sources: each problem is found and named by file and line.
#include <gtest/gtest.h>

#include <fmt/format.h>

#include <string>
#include <vector>

#include "support/temp_folder.h"
#include "worldtool/tiny_world.h"
#include "worldtool/world_compiler.h"

using namespace trovane;
using namespace trovane::worldtool;

namespace {

struct BrokenSource {
    const char* label;
    const char* file;  // replaces the tiny world's file of that name, or is added to it
    std::string text;
    int64_t line;      // where the problem is expected
    const char* says;  // a part of the expected message
    std::size_t problems = 1;
};

std::ostream& operator<<(std::ostream& os, const BrokenSource& c) { return os << c.label; }

// A style of one member whatever its band jobs.
std::string style(const char* name, const char* bandJobs = "[\"Drummer\"]") {
    return fmt::format(
        "[[style]]\nname = \"{}\"\nlifeSpan = 8\npopularity = [1, 1, 1, 1, 1]\nmembersHigh = 1\n"
        "membersUsual = 1\nmembersLow = 1\nbandJobs = {}\n\n",
        name, bandJobs);
}

const std::vector<BrokenSource> kBroken = {
    {"UnknownName", "cities.toml",
     "city = [\n  { name = \"London\", country = \"England\", size = 10 },\n"
     "  { name = \"Paris\", country = \"Frnace\", size = 8 },\n]\n",
     3, "unknown country \"Frnace\""},
    {"DuplicateName", "countries.toml",
     "country = [\n { name = \"England\", adjective = \"English\", region = \"E\" },\n"
     " { name = \"Brazil\", adjective = \"Brazilian\", region = \"S\" },\n"
     " { name = \"Japan\", adjective = \"Japanese\", region = \"A\" },\n"
     " { name = \"Wales\", adjective = \"Welsh\", region = \"E\" },\n"
     " { name = \"Scotland\", adjective = \"Scottish\", region = \"E\" },\n"
     " { name = \"England\", adjective = \"English\", region = \"E\" },\n]\n",
     7, "duplicate country \"England\" (first at countries.toml:2)"},
    {"ByteOutOfRange", "cities.toml", "city = [\n  { name = \"London\", country = \"England\", size = 300 },\n]\n", 2,
     "`size` = 300 is out of range (0 to 255)"},
    {"CapacityBeyondWhatGigsCanCount", "venues.toml",
     "venue = [\n\n  { name = \"Big Field\", city = \"London\", capacity = 150000 },\n]\n", 3,
     "`capacity` = 150000 is out of range (1 to 100000)"},
    {"TextTooLong", "surnames.toml", "surname = [\n  { name = \"Thornbury-Fotheringham-Smythe-Worthington\" },\n]\n", 2,
     "is too long: 41 characters where the field holds 32"},
    {"TextOutsideWindows1252", "surnames.toml", "surname = [\n  { name = \"Łukasiewicz\" },\n]\n", 2,
     "has a character that Windows-1252 cannot hold"},
    {"NameWeightsSumToNothing", "surnames.toml",
     "surname = [\n  { name = \"Thornbury\", countries = { England = 0, Wales = 0 } },\n]\n", 2,
     "the weights of `countries` sum to nothing"},
    {"LinkWeightsSumToNothing", "associations.toml",
     "assnation = [ { a = \"England\", b = \"Brazil\", weight = 5 } ]\n"
     "assstyle = [\n  { a = \"Indie Rock\", b = \"Legend\", weight = 0 },\n"
     "  { a = \"Indie Rock\", b = \"Indie Rock\", weight = 0 },\n]\n",
     3, "the weights of the links of \"Indie Rock\" sum to nothing"},
    {"MoreThanFiveCountriesOnAName", "surnames.toml",
     "surname = [\n  { name = \"Silva\", countries = { England = 1, Scotland = 1, Wales = 1, "
     "\"Northern Ireland\" = 1, Brazil = 1, Japan = 1 } },\n]\n",
     2, "6 countries on one name; it holds at most 5"},
    {"StyleWithoutABandJob", "styles.toml", style("Indie Rock", "[]") + style("Legend"), 8,
     "a style without a band job"},
    {"LegendNotLast", "styles.toml", style("Legend") + style("Indie Rock"), 1, "\"Legend\" must be the last style", 2},
    {"ParentStylesInACircle", "styles.toml",
     style("Indie Rock", "[\"Drummer\"]\nparentStyle = \"Indie Rock\"") + style("Legend"), 1, "go round in a circle"},
    {"ReferenceByNumber", "cities.toml", "city = [\n  { name = \"London\", country = 1, size = 10 },\n]\n", 2,
     "`country` refers to a country by number; write its name"},
    {"UnknownField", "cities.toml",
     "city = [\n  { name = \"London\", country = \"England\", size = 10, mayor = 1 },\n]\n", 2,
     "unknown field `mayor`"},
    {"RecordNumberWritten", "jobs.toml",
     "job = [\n  { title = \"Drummer\", titleFemale = \"Drummer\", rank = 3 },\n"
     "  { id = 7, title = \"Lead Singer\", titleFemale = \"Lead Singer\", rank = 1 },\n"
     "  { title = \"Singer-Songwriter\", titleFemale = \"Singer-Songwriter\", rank = 1 },\n]\n",
     3, "`id` is the record's number, which the compiler gives"},
    {"LookWithoutABound", "looks.toml", "[[look]]\nname = \"Leather and Studs\"\nbounds = { charisma = [0, 100] }\n", 3,
     "no bounds for `controversy`", 7},
    {"UnknownTable", "extra.toml", "\n\nplanet = [ { name = \"Mars\" } ]\n", 3, "`planet` is not a table of the world"},
    {"SyntaxError", "extra.toml", "fact = [\n  \"one\",\n  \"two\"\n  \"three\",\n]\n", 4, "expected"},
    {"BlankForename", "forenames.toml",
     "forename = [\n  { name = \"Oliver\", male = true },\n  { name = \"\", male = false },\n]\n", 3,
     "`name` is blank; the game needs one"},
    {"BlankThankLine", "thanks.toml", "thank = [\n  { text = \"Everyone\" },\n  { text = \"\" },\n]\n", 3,
     "`text` is blank; the game needs one"},
    {"BlankSideOfANationPair", "associations.toml", "assnation = [\n  { a = \"England\", b = \"\", weight = 5 },\n]\n",
     2, "`b` is blank; the game needs one"},
};

class WorldCheck : public testing::TestWithParam<BrokenSource> {};

TEST_P(WorldCheck, ReportsTheProblemByFileAndLine) {
    const BrokenSource& c = GetParam();
    test::TempFolder folder;
    test::writeTinyWorld(folder.path());
    test::writeSource(folder.path(), c.file, c.text);

    auto problems = checkWorld(folder.path());
    std::string all;
    for (const auto& p : problems) all += describe(p) + "\n";
    ASSERT_EQ(problems.size(), c.problems) << all;
    EXPECT_EQ(problems.front().file, c.file) << all;
    EXPECT_EQ(problems.front().line, c.line) << all;
    EXPECT_NE(problems.front().message.find(c.says), std::string::npos) << all;
}

INSTANTIATE_TEST_SUITE_P(BrokenSources, WorldCheck, testing::ValuesIn(kBroken),
                         [](const auto& info) { return std::string(info.param.label); });

TEST(WorldCheck, TheTinyWorldIsClean) {
    test::TempFolder folder;
    test::writeTinyWorld(folder.path());
    auto problems = checkWorld(folder.path());
    for (const auto& p : problems) ADD_FAILURE() << describe(p);
}

}  // namespace

// Broken industry sources: each problem a player would run into is found and
// named by file and line.
#include <gtest/gtest.h>

#include <fmt/format.h>

#include "support/temp_folder.h"
#include "worldtool/tiny_industry.h"
#include "worldtool/tiny_world.h"
#include "worldtool/world_compiler.h"

using namespace trovane;
using namespace trovane::worldtool;

namespace {

struct BrokenIndustry {
    std::string label;
    std::string file;
    std::string find;  // replaced by `replace` in the tiny industry's file; empty: the whole file
    std::string replace;
    std::string at;  // "file:line" of the first problem
    std::string says;
    std::size_t problems = 1;
};

std::ostream& operator<<(std::ostream& os, const BrokenIndustry& c) { return os << c.label; }

std::string ceremonyWithAwards(int n) {
    std::string text = "[[ceremony]]\nname = \"The Silver Stylus Awards\"\ncountry = \"England\"\n";
    for (int i = 0; i < n; ++i) text += fmt::format("[[ceremony.award]]\nname = \"Award {}\"\nkind = 0\n", i);
    return text;
}

std::vector<BrokenIndustry> brokenIndustries() {
    return {
        {"UnknownLabel", "acts.toml", "label = \"Halcyon Records\"", "label = \"Halcyon Recrods\"", "acts.toml:6",
         "unknown label \"Halcyon Recrods\""},
        {"DealOfAnUnsignedAct", "acts.toml", "label = \"Halcyon Records\"\n", "", "acts.toml:7",
         "an unsigned act has no deal, yet gives `signedOn`, `initialAdvance`"},
        {"SignedActWithoutItsRoyalty", "acts.toml", "royaltyRate = 12\n", "", "acts.toml:1",
         "a signed act gives its deal: no `royaltyRate`"},
        {"OptionOfFifteenMonths", "acts.toml", "optionLength = 12", "optionLength = 15", "acts.toml:12",
         "an option lasts 12 or 18 months"},
        {"MoreOptionsLeftThanTheDeal", "acts.toml", "optionsRemaining = 3", "optionsRemaining = 4", "acts.toml:13",
         "`optionsRemaining` = 4 is more than the 3 options"},
        {"FirstOptionWithNoMonthsLeft", "acts.toml", "optionMonthsLeft = 100", "optionMonthsLeft = 0", "acts.toml:14",
         "`optionMonthsLeft` = 0: 1 to the optionLength of 12 months"},
        {"RoyaltySharesNotSeventy", "acts.toml", "royaltyShare = 30", "royaltyShare = 25", "acts.toml:1",
         "royaltyShare of \"The Paper Lanterns\" sum to 65; a signed act's shares sum to 70"},
        {"ActWithoutMembers", "acts_indies.toml", "",
         "[[band]]\nname = \"Yuki Tanabe\"\nstyle = \"Legend\"\n"
         "reputation = [2, 2, 2, 2, 30]\n",
         "acts_indies.toml:1", "an act has 1 to 10 members ([[band.member]]); \"Yuki Tanabe\" has 0"},
        {"ReputationOfNothing", "acts_indies.toml", "[2, 2, 2, 2, 30]", "[0, 2, 2, 2, 30]", "acts_indies.toml:5",
         "`reputation` = 0 is out of range (2 to 100)"},
        {"ActNameTwice", "acts_indies.toml", "name = \"Yuki Tanabe\"", "name = \"The Paper Lanterns\"",
         "acts_indies.toml:1", "duplicate band \"The Paper Lanterns\" (first at acts.toml:1)"},
        {"HomeCityInAnotherCountry", "acts.toml", "country = \"England\"\n  city", "country = \"Scotland\"\n  city",
         "acts.toml:23", "\"London\" is a city of England, not of Scotland"},
        {"WriterNotAMember", "acts.toml", "writer = \"Jess Hartigan\", quality = 40",
         "writer = \"Jess Hartigam\", quality = 40", "acts.toml:69", "`writer` \"Jess Hartigam\" is not a member"},
        {"SingleOfASongOnNoAlbum", "acts.toml", "tracks = [\"Streetlight Sermon\"", "tracks = [\"Streetlight Psalm\"",
         "acts.toml:69", "no song \"Streetlight Psalm\" on an album of \"The Paper Lanterns\""},
        {"StudioThatPresses", "acts.toml", "studio = \"Abbey Mill Studios\"", "studio = \"Thames Pressing\"",
         "acts.toml:58", "`studio` \"Thames Pressing\" is not a studio"},
        {"HiddenActWithALabel", "hidden.toml", "style = \"Indie Rock\"\n",
         "style = \"Indie Rock\"\nlabel = \"Halcyon Records\"\n", "hidden.toml:4", "a hidden act has no label"},
        {"ParentLabelsInACircle", "labels.toml", "city = \"London\"\n", "parentLabel = \"Kestrel Sound\"\n",
         "labels.toml:1", "the parentLabel links of \"Halcyon Records\" go round in a circle", 2},
        {"BossOfAnotherLabel", "staff.toml", "employer = \"Halcyon Records\", department = 3",
         "employer = \"Kestrel Sound\", department = 3", "labels.toml:7",
         "the boss of \"Halcyon Records\", \"Morag Dunbar\", works for \"Kestrel Sound\""},
        {"HeadOfAnotherDepartment", "staff.toml", "department = 0", "department = 2", "labels.toml:9",
         "the head of Artist and Repertoire at \"Halcyon Records\", \"Ian Thornbury\", has `department` = 2 "
         "(Hospitality)"},
        {"InWorkWithoutAPost", "staff.toml", "ability = 40 }", "ability = 40, employer = \"Kestrel Sound\" }",
         "staff.toml:9", "\"Oliver Thornbury\" works for \"Kestrel Sound\" but is neither its boss nor the head"},
        {"ThreeDepartments", "labels.toml", "[{}, {}, {}, {}, {}, {}]", "[{}, {}, {}]", "labels.toml:19",
         "`department` lists 3 departments; a label has all six"},
        {"MoreStaffAtALevelThanItsWagesHold", "labels.toml", "[1, 0, 0, 0, 0]", "[22, 0, 0, 0, 0]", "labels.toml:10",
         "Finance and Law: 22 staff at level 1; the wages of a level hold at most 21"},
        {"AwardsBeyondForty", "ceremonies.toml", "", ceremonyWithAwards(41), "ceremonies.toml:4",
         "\"The Silver Stylus Awards\" has 41 awards; a ceremony holds at most 40"},
        {"FollowUpToNoEvent", "events.toml", "event = \"brawl-trial\"", "event = \"brawl-trail\"", "events.toml:12",
         "unknown event \"brawl-trail\""},
        {"FollowUpThatNeverFollows", "events.toml", "rollHigh = 99", "rollHigh = 0", "events.toml:12",
         "`rollLow` and `rollHigh` both 0"},
        {"CrimeStoryWithoutCrimes", "events.toml", "crime = [", "# crime = [", "events.toml:3",
         "there is no `crime` to draw"},
        {"CrimesWrittenInsideTheLastEvent", "events.toml", "",
         test::tinyIndustrySources().at("events.toml") + "crime = [ { crimeName = \"theft\", acquittalEvent = "
                                                         "\"brawl-acquitted\", guiltyEvent = \"brawl-trial\" } ]\n",
         "events.toml:25", "put the crime list above the first [[event]]"},
        {"UnknownTag", "events.toml", "<abn1>", "<abn3>", "events.toml:8", "`body` has an unknown tag <abn3>"},
        {"TagNeverClosed", "events.toml", "\"<an1> cleared\"", "\"<an1 cleared\"", "events.toml:24",
         "`title` has a tag that is never closed: \"<an1 cleared\""},
    };
}

class IndustryCheck : public testing::TestWithParam<BrokenIndustry> {};

TEST_P(IndustryCheck, ReportsTheProblemByFileAndLine) {
    const BrokenIndustry& c = GetParam();
    test::TempFolder folder;
    test::writeTinyWorldWithIndustry(folder.path());
    std::string text = c.replace;
    if (!c.find.empty()) {
        text = test::tinyIndustrySources().at(c.file);
        auto at = text.find(c.find);
        ASSERT_NE(at, std::string::npos) << "the fixture has no \"" << c.find << "\"";
        text.replace(at, c.find.size(), c.replace);
    }
    test::writeSource(folder.path(), c.file, text);

    auto problems = checkWorld(folder.path());
    std::string all;
    for (const auto& p : problems) all += describe(p) + "\n";
    ASSERT_EQ(problems.size(), c.problems) << all;
    EXPECT_EQ(fmt::format("{}:{}", problems.front().file, problems.front().line), c.at) << all;
    EXPECT_NE(problems.front().message.find(c.says), std::string::npos) << all;
}

INSTANTIATE_TEST_SUITE_P(BrokenIndustries, IndustryCheck, testing::ValuesIn(brokenIndustries()),
                         [](const auto& info) { return info.param.label; });

}  // namespace

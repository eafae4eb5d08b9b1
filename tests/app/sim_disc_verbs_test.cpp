// The disc and chart verbs of trovane-sim: what they refuse, with which
// status, and the shapes of their output.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "session/session_record.h"
#include "support/amend.h"
#include "support/disc_world.h"
#include "support/sim_run.h"

using namespace trovane;
using test::said;

namespace {

class SimDiscVerbs : public test::DiscWorld, public ::testing::Test {
protected:
    int16_t theirs = 0, ours = 0;
    void SetUp() override {
        ours = addDisc("Ours", 0);
        amend(g.disc, ours, [&] { g.disc->releaseDate = {}; });
        theirs = addDisc("Theirs", 1000000, addBand("Others", rival));
        amend(g.disc, theirs, [&] { g.disc->label = rival; });
        addRow(0, theirs);
        addRow(0, addDisc("Zoë", 1000000, addBand("Ciarán Whelan", rival)));
        writeSessionFile(g, workingSessionFile(g));
        closeAllTables(g);
    }
    std::pair<int, std::string> sim(const std::string& args) { return test::runSim(g.dataDir.string(), args); }
    // A refusal or a bad argument: the status and the one line said.
};

TEST_F(SimDiscVerbs, BadArgumentsExitTwoAndRefusalsOne) {
    // 1500 is not a listed quantity.
    for (const char* args :
         {"chart 10", "chart -1", "press Ours --plant 5 --copies 1500", "release Ours --date 2004-13-01"})
        EXPECT_EQ(sim(args).first, 2) << args;
    EXPECT_EQ(sim("release Theirs --date 2004-09-20"), said(1, "Theirs is not a disc of your label."));
    // Undated: pressing is refused.
    EXPECT_EQ(sim("press Ours --plant " + std::to_string(plant) + " --copies 1000").first, 1);
    EXPECT_EQ(
        sim("release Ours --date 2004-09-13"),
        said(1, "13/09/2004 is not a release date that can be chosen in uk. The earliest date offered is 20/09/2004."));
    EXPECT_EQ(sim("release Ours --date 2004-09-20 --in uk").first, 0);
    EXPECT_EQ(sim("press Ours --plant " + std::to_string(plant) + " --us 1000").first, 1);  // no US date
    EXPECT_EQ(sim("press Ours --plant " + std::to_string(plant) + " --copies 1000").first, 0);
    EXPECT_EQ(sim("distribute Nothing").first, 2);
    EXPECT_EQ(sim("distribute Ours --uk Nowhere"), said(2, "There is no firm Nowhere"));
    // Out in two weeks.
    EXPECT_EQ(sim("distribute Ours"), said(1, "Ours has no release due within the week."));
}

TEST_F(SimDiscVerbs, TheChartPrintsAsTextJsonAndCsv) {
    // Columns line up by the characters a reader sees: a name with an accent
    // takes no more room than any other.
    auto [textStatus, text] = sim("chart 0");
    EXPECT_EQ(textStatus, 0);
    std::vector<std::size_t> widths;
    for (std::size_t at = text.find('\n') + 1, end; (end = text.find('\n', at)) != std::string::npos; at = end + 1) {
        const std::string row = text.substr(at, text.rfind(' ', end) - at);  // up to the sales, award left out
        widths.push_back(std::count_if(row.begin(), row.end(), [](char c) { return (c & 0xC0) != 0x80; }));
    }
    EXPECT_EQ(widths, (std::vector<std::size_t>{100, 100})) << text;

    auto [status, json] = sim("--json chart 0");
    EXPECT_EQ(status, 0);
    EXPECT_NE(json.find("\"title\":\"UK Album Chart\""), std::string::npos) << json;
    EXPECT_NE(json.find("\"size\":40"), std::string::npos) << json;
    EXPECT_NE(json.find("\"position\":1,\"movement\":\"NE\""), std::string::npos) << json;
    auto [csvStatus, csv] = sim("chart 0 --csv");
    EXPECT_EQ(csvStatus, 0);
    EXPECT_EQ(csv.substr(0, csv.find('\n')),
              "position,movement,lastWeek,peak,weeks,entry,disc,title,band,label,sales,award");
    EXPECT_NE(csv.find(",Theirs,"), std::string::npos) << csv;
}

}  // namespace

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdio>
#include <string>

#include "day/news_inbox.h"
#include "floor/news_post.h"
#include "support/empty_game.h"

using namespace trovane;

namespace {

// Runs trovane-sim on the folder; the exit status and what it printed.
std::pair<int, std::string> sim(const test::TempFolder& data, const std::string& args) {
    std::string cmd = std::string(TROVANE_SIM_PATH) + " --data " + data.path().string() + " " + args + " 2>&1";
    std::string out;
    FILE* p = popen(cmd.c_str(), "r");
    char buf[4096];
    while (std::size_t n = std::fread(buf, 1, sizeof buf, p)) out.append(buf, n);
    int status = pclose(p);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, out};
}

}  // namespace

TEST(SimNewsVerbs, AHeldDayIsAnsweredFromTheCommandLine) {
    test::TempFolder data;
    {
        Game g(data.path(), 1);
        createEmptyWorkingSet(g);
        postNews(g, {.date = g.gameDate,
                     .title = "Sign them?",
                     .text = "They want to sign.",
                     .kind = kNewsYesNo,
                     .mustReply = true});
        closeAllTables(g);
    }
    auto [held, heldOut] = sim(data, "advance 3");
    EXPECT_EQ(held, 3);
    for (const char* part :
         {"news item 1 must be answered first: Sign them?", "They want to sign.", "reply 1 yes|no"}) {
        EXPECT_NE(heldOut.find(part), std::string::npos) << heldOut;
    }
    EXPECT_EQ(sim(data, "delete 1").first, 1);
    EXPECT_EQ(sim(data, "reply 1 ok").first, 1);
    auto [answered, answer] = sim(data, "--json reply 1 no");
    EXPECT_EQ(answered, 0);
    EXPECT_EQ(answer, "{\"id\":1,\"reply\":\"no\",\"screen\":\"frmNews\"}\n");
    EXPECT_EQ(sim(data, "reply 1 no").first, 1) << "no is off once answered";
    auto [ran, days] = sim(data, "--json advance 2");
    EXPECT_EQ(ran, 0);
    EXPECT_EQ(days, "[{\"date\":\"2004-08-05\"},{\"date\":\"2004-08-06\"}]\n");
    EXPECT_NE(sim(data, "--json news").second.find("\"replied\":true"), std::string::npos);
    EXPECT_EQ(sim(data, "delete 1").first, 0);
    EXPECT_EQ(sim(data, "--json news").second, "[]\n");
    EXPECT_EQ(sim(data, "--json schedule 2004-08-07").second, "[]\n");
}

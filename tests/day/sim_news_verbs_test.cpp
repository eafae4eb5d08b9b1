#include <gtest/gtest.h>

#include <string>

#include "day/news_inbox.h"
#include "floor/news_post.h"
#include "support/empty_game.h"
#include "support/sim_run.h"

using namespace trovane;

TEST(SimNewsVerbs, AHeldDayIsAnsweredFromTheCommandLine) {
    test::TempFolder data;
    auto sim = [&](const std::string& args) { return test::runSim(data.path(), args); };
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
    auto [held, heldOut] = sim("advance 3");
    EXPECT_EQ(held, 3);
    for (const char* part :
         {"news item 1 must be answered first: Sign them?", "They want to sign.", "reply 1 yes|no"}) {
        EXPECT_NE(heldOut.find(part), std::string::npos) << heldOut;
    }
    EXPECT_NE(sim("news").second.find("Sign them?  [must be answered]"), std::string::npos);
    EXPECT_EQ(sim("delete 1").first, 1);
    EXPECT_EQ(sim("reply 1 ok").first, 1);
    auto [answered, answer] = sim("--json reply 1 no");
    EXPECT_EQ(answered, 0);
    EXPECT_EQ(answer, "{\"id\":1,\"reply\":\"no\",\"screen\":\"frmNews\"}\n");
    EXPECT_EQ(sim("reply 1 no").first, 1) << "no is off once answered";
    auto [ran, days] = sim("--json advance 2");
    EXPECT_EQ(ran, 0);
    EXPECT_EQ(days, "[{\"date\":\"2004-08-05\"},{\"date\":\"2004-08-06\"}]\n");
    EXPECT_NE(sim("--json news").second.find("\"replied\":true"), std::string::npos);
    EXPECT_EQ(sim("news").second.find("[must be answered]"), std::string::npos) << "answered";
    EXPECT_EQ(sim("delete 1").first, 0);
    EXPECT_EQ(sim("--json news").second, "[]\n");
    EXPECT_EQ(sim("--json schedule 2004-08-07").second, "[]\n");
}

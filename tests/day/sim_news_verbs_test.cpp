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
    for (const char* part : {"news item 1 must be answered first: Sign them?", "They want to sign.", "reply 1 yes|no"})
        EXPECT_NE(heldOut.find(part), std::string::npos) << heldOut;
    EXPECT_NE(sim("news").second.find("Sign them?  [must be answered]"), std::string::npos);
    EXPECT_EQ(sim("delete 1").first, 1);
    EXPECT_EQ(sim("reply 1 ok").first, 1);
    EXPECT_EQ(sim("--json reply 1 no"),
              std::pair(0, std::string("{\"id\":1,\"reply\":\"no\",\"screen\":\"frmNews\"}\n")));
    EXPECT_EQ(sim("reply 1 no").first, 1) << "no is off once answered";
    EXPECT_EQ(sim("--json advance 2"),
              std::pair(0, std::string("[{\"date\":\"2004-08-05\"},{\"date\":\"2004-08-06\"}]\n")));
    EXPECT_NE(sim("--json news").second.find("\"replied\":true"), std::string::npos);
    EXPECT_EQ(sim("news").second.find("[must be answered]"), std::string::npos) << "answered";
    EXPECT_EQ(sim("delete 1").first, 0);
    EXPECT_EQ(sim("--json news").second, "[]\n");
    EXPECT_EQ(sim("--json schedule 2004-08-07").second, "[]\n");
}

TEST(SimNewsVerbs, AnItemShowsItsHelpAndRepliesAndIsAnsweredThenDeleted) {
    test::TempFolder data;
    auto sim = [&](const std::string& args) { return test::runSim(data.path(), args); };
    {
        Game g(data.path(), 1);
        createEmptyWorkingSet(g);
        postNews(g, {.date = g.gameDate, .title = "Hello", .text = "Welcome.", .extra = "Press ok."});
        postNews(g, {.date = g.gameDate, .title = "Sign?", .text = "Well?", .kind = kNewsYesNo, .mustReply = true});
        closeAllTables(g);
    }
    using Result = std::pair<int, std::string>;
    EXPECT_EQ(sim("show 3"), Result(1, "trovane-sim: There is no news item 3\n"));
    EXPECT_EQ(sim("show 0").first, 1);
    EXPECT_EQ(sim("news").second,
              "    2  Unread  Thu 05/08/2004  Sign?  [must be answered]\n"
              "    1  Unread  Thu 05/08/2004  Hello\n");
    EXPECT_EQ(sim("show 1"),
              Result(0, "News item 1, Thursday 5/8/2004\nHello\n\nWelcome.\n\nHelp: Press ok.\n\nReplies: ok\n"));
    EXPECT_EQ(sim("show 2").second,
              "News item 2, Thursday 5/8/2004 (must be answered)\nSign?\n\nWell?\n\nReplies: yes|no\n");
    EXPECT_EQ(sim("reply 1 ok").second, "Answered news item 1: ok; back at the news.\n");
    EXPECT_EQ(sim("reply 2 yes").second, "Answered news item 2: yes; back at the news.\n");
    EXPECT_EQ(sim("--json show 2").second,
              "{\"id\":2,\"date\":\"2004-08-05\",\"kind\":1,\"title\":\"Sign?\",\"text\":\"Well?\",\"mustReply\":true,"
              "\"replied\":true,\"read\":true,\"deleted\":false,\"scheduleLink\":0,\"eventLink\":0,\"help\":\"\","
              "\"replies\":[{\"reply\":\"yes\",\"enabled\":true},{\"reply\":\"no\",\"enabled\":false}],"
              "\"deleteEnabled\":true,\"sidebarEnabled\":true}\n");
    EXPECT_EQ(sim("--json delete 2").second, "{\"id\":2,\"deleted\":true}\n");
    EXPECT_EQ(sim("news").second, "    1          Thu 05/08/2004  Hello\n");
    EXPECT_EQ(sim("schedule 2004-08-07").second, "Nothing is scheduled on Saturday 7/8/2004\n");
    EXPECT_EQ(sim("schedule 2004-13-01").first, 2);
}

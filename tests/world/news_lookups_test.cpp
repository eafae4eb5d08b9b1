#include <gtest/gtest.h>

#include "day/daily_cycle.h"
#include "support/amend.h"
#include "support/game_test.h"
#include "world/news_lookups.h"

using namespace trovane;

namespace {

struct News : test::GameTest {
    int32_t add(int16_t mustReply, int16_t replied) {
        g.news.rec = NewsRecord{.replied = replied, .mustReply = mustReply};
        return g.news.append();
    }
    void setReplied(int32_t n, int16_t replied) {
        amend(g.news, n, [&] { g.news->replied = replied; });
    }
};

}  // namespace

TEST_F(News, TheFirstHeldItemIsTheFirstOneMustReplyAndUnanswered) {
    EXPECT_EQ(firstHeldNewsItem(g), 0);
    add(kFalse, kFalse);
    add(kTrue, kTrue);
    EXPECT_EQ(firstHeldNewsItem(g), 0);
    const int32_t third = add(kTrue, kFalse);
    add(1, kFalse);  // only the game's true counts
    const int32_t fifth = add(kTrue, kFalse);
    EXPECT_EQ(firstHeldNewsItem(g), third);
    setReplied(third, kTrue);
    EXPECT_EQ(firstHeldNewsItem(g), fifth);
    setReplied(fifth, 1);  // any answer but false is a reply
    EXPECT_EQ(firstHeldNewsItem(g), 0);
    setReplied(third, kFalse);  // taken back
    EXPECT_EQ(firstHeldNewsItem(g), third);
}

TEST_F(News, AllRepliesGivenLeavesTheBufferWhereAWalkWould) {
    add(kFalse, kFalse);
    const int32_t held = add(kTrue, kFalse);
    const int32_t last = add(kFalse, kFalse);
    g.currentScreen = Screen::frmNews;
    EXPECT_FALSE(allRepliesGiven(g));
    EXPECT_EQ(g.news->id, held);
    EXPECT_EQ(g.currentScreen, Screen::frmNewsFull);
    EXPECT_EQ(g.previousScreen, Screen::frmNews);
    setReplied(held, kTrue);
    EXPECT_TRUE(allRepliesGiven(g));
    EXPECT_EQ(g.news->id, last);
}

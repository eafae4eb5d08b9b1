// A full news list makes room: what goes first and what always stays.
#include <gtest/gtest.h>

#include "floor/news_post.h"
#include "support/amend.h"
#include "support/game_test.h"
#include "world/strings.h"

using namespace trovane;

namespace {

struct NewsCompaction : test::GameTest {
    void post(const std::string& title, bool read, bool deleted = false, bool mustReply = false) {
        postNews(g, {.date = 100, .title = title, .text = "t", .mustReply = mustReply});
        g.news->read = read ? kTrue : kFalse;
        g.news->deleted = deleted ? kTrue : kFalse;
        g.news.write();
    }
    std::vector<std::string> titles() {
        std::vector<std::string> out;
        for (int32_t n = 1; n < g.news.recordCount(); ++n) {
            g.news.read(n);
            EXPECT_EQ(g.news->id, n);
            out.push_back(trim(g.news->title.value));
        }
        return out;
    }
};

TEST_F(NewsCompaction, DeletedThenOldestReadThenOldestUnreadGoButHeldItemsStay) {
    post("unread old", false);
    post("read old", false);
    post("held", false, false, true);
    post("deleted", true, true);
    post("read new", true);
    post("unread new", false);
    amend(g.news, 2, [&] { g.news->read = kTrue; });
    EXPECT_EQ(compactNews(g, 4), 4);  // six items: the deleted one, then "read old"
    EXPECT_EQ(titles(), (std::vector<std::string>{"unread old", "held", "read new", "unread new"}));
    EXPECT_EQ(compactNews(g, 2), 2);  // "read new", then the oldest unread
    EXPECT_EQ(titles(), (std::vector<std::string>{"held", "unread new"}));
    post("held two", true, false, true);
    EXPECT_EQ(compactNews(g, 0), 2);  // an item awaiting its answer is never dropped
    EXPECT_EQ(titles(), (std::vector<std::string>{"held", "held two"}));
}

}  // namespace

#include <gtest/gtest.h>

#include "support/amend.h"
#include "support/game_test.h"
#include "world/disc_title_lookups.h"

using namespace trovane;

namespace {

struct DiscTitles : test::GameTest {
    int32_t add(const std::string& title) {
        g.disc.rec = DiscRecord{.title = title};
        return g.disc.append();
    }
    void retitle(int32_t n, const std::string& title) {
        amend(g.disc, n, [&] { g.disc->title = title; });
    }
};

}  // namespace

TEST_F(DiscTitles, ATitleIsFoundAtItsFirstDiscAndFollowsEveryRetitling) {
    EXPECT_EQ(firstDiscTitled(g, "Blue"), 0);
    add("Untitled");
    const int32_t second = add("Blue");
    const int32_t third = add("Blue");
    add("Blue Moon");  // a longer title is another title
    EXPECT_EQ(firstDiscTitled(g, "Blue"), second);
    EXPECT_EQ(firstDiscTitled(g, "blue"), 0) << "titles match exactly";
    retitle(second, "Green");
    EXPECT_EQ(firstDiscTitled(g, "Blue"), third);
    EXPECT_EQ(firstDiscTitled(g, "Green"), second);
    retitle(1, "Blue");
    EXPECT_EQ(firstDiscTitled(g, "Blue"), 1);
    retitle(third, "Red");
    retitle(1, "Red");
    EXPECT_EQ(firstDiscTitled(g, "Blue"), 0);
    EXPECT_EQ(firstDiscTitled(g, "Red"), 1);
}

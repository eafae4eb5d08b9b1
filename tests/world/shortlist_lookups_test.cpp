#include <gtest/gtest.h>

#include "label/scouting.h"
#include "support/empty_game.h"
#include "world/shortlist_lookups.h"

using namespace trovane;

namespace {

struct ShortlistPairs : ::testing::Test {
    test::EmptyGame eg;
    Game& g = eg.g;
    int32_t add(int16_t band, int16_t label) {
        g.shortlist.rec = ShortlistRecord{};
        g.shortlist->band = band;
        g.shortlist->label = label;
        return g.shortlist.append();
    }
    void set(int32_t n, int16_t band, int16_t label) {
        g.shortlist.read(n);
        g.shortlist->band = band;
        g.shortlist->label = label;
        g.shortlist.write(n);
    }
};

}  // namespace

TEST_F(ShortlistPairs, APairIsFoundAtItsFirstRecordAndFollowsEveryRewrite) {
    EXPECT_EQ(shortlistRecordOf(g, 3, 2), 0);
    add(3, 1);
    add(2, 3);  // the pair the other way round is another pair
    const int32_t third = add(3, 2);
    const int32_t fourth = add(3, 2);
    EXPECT_EQ(shortlistRecordOf(g, 3, 2), third);
    set(third, 0, 0);  // taken off
    EXPECT_EQ(shortlistRecordOf(g, 3, 2), fourth);
    set(fourth, 4, 2);
    EXPECT_EQ(shortlistRecordOf(g, 3, 2), 0);
    EXPECT_EQ(shortlistRecordOf(g, 4, 2), fourth);
    set(1, 3, 2);
    EXPECT_EQ(shortlistRecordOf(g, 3, 2), 1);
    // Tidied, the records are numbered again from one.
    tidyShortlist(g);
    EXPECT_EQ(shortlistRecordOf(g, 3, 2), 1);
    EXPECT_EQ(shortlistRecordOf(g, 2, 3), 2);
    EXPECT_EQ(shortlistRecordOf(g, 4, 2), 3);
}

TEST_F(ShortlistPairs, ALookupLeavesTheBufferWhereAWalkWould) {
    add(5, 1);
    add(6, 1);
    add(7, 1);
    EXPECT_EQ(findShortlistPair(g, 6, 1), 2);
    EXPECT_EQ(g.shortlist->band, 6);
    EXPECT_EQ(findShortlistPair(g, 6, 2), 0);
    EXPECT_EQ(g.shortlist->band, 7);  // the walk ran to the last record
}

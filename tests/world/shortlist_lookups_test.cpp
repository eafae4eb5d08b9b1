#include <gtest/gtest.h>

#include "label/scouting.h"
#include "support/amend.h"
#include "support/game_test.h"
#include "world/shortlist_lookups.h"

using namespace trovane;

namespace {

struct ShortlistPairs : test::GameTest {
    int32_t add(int16_t band, int16_t label) {
        g.shortlist.rec = ShortlistRecord{.band = band, .label = label};
        return g.shortlist.append();
    }
    void set(int32_t n, int16_t band, int16_t label) {
        amend(g.shortlist, n, [&] { g.shortlist.rec = ShortlistRecord{.id = n, .band = band, .label = label}; });
    }
};

}  // namespace

TEST_F(ShortlistPairs, APairIsFoundAtItsFirstRecordAndFollowsEveryRewrite) {
    EXPECT_EQ(shortlistRecordOf(g, 3, 2), 0);
    add(3, 1);
    add(2, 3);  // the pair the other way round is another pair
    const int32_t third = add(3, 2);
    const int32_t fourth = add(3, 2);
    EXPECT_EQ(findShortlistPair(g, 3, 2), third);
    EXPECT_EQ(g.shortlist->id, third);
    set(third, 0, 0);  // taken off
    EXPECT_EQ(shortlistRecordOf(g, 3, 2), fourth);
    set(fourth, 4, 2);
    EXPECT_EQ(findShortlistPair(g, 2, 3), 2);
    EXPECT_EQ(findShortlistPair(g, 3, 2), 0);
    EXPECT_EQ(g.shortlist->id, fourth) << "a miss leaves the buffer at the last record, as a walk would";
    EXPECT_EQ(shortlistRecordOf(g, 4, 2), fourth);
    set(1, 3, 2);
    EXPECT_EQ(shortlistRecordOf(g, 3, 2), 1);
    // Tidied, the records are numbered again from one.
    tidyShortlist(g);
    EXPECT_EQ(shortlistRecordOf(g, 3, 2), 1);
    EXPECT_EQ(shortlistRecordOf(g, 2, 3), 2);
    EXPECT_EQ(shortlistRecordOf(g, 4, 2), 3);
}

// Who a story can happen to: each test of a participant's condition block at
// its bound and one past.
#include <gtest/gtest.h>

#include "events/story_events.h"
#include "support/album_world.h"

using namespace trovane;
using test::AlbumWorld;

namespace {

struct Cast : AlbumWorld {
    int16_t duo, trio, solo;
    int32_t a, b, c, d;
    Cast() {
        duo = addBand("Duo", kPlayer, 2);
        trio = addBand("Trio", kRival, 3);
        solo = addBand("Solo", 0, 1);
        g.band.read(duo);
        a = g.band->members[0];
        b = g.band->members[1];
        g.band.read(trio);
        c = g.band->members[0];
        g.band.read(solo);
        d = g.band->members[0];
        g.artist.read(b);
        g.artist->male = 0;
        g.artist.write();
    }
    std::string test(const EventCondition& cond, int32_t who, int place = 0, int32_t first = 0) {
        g.artist.read(who);
        return failedCondition(g, cond, place, narrow<int16_t>(first));
    }
};

}  // namespace

TEST(StoryCast, BoundsAreInclusiveMinimaAndMaxima) {
    Cast w;
    w.g.artist.read(w.a);
    w.g.artist->age = 30;
    w.g.artist->angst = 40;
    w.g.artist.write();
    EventCondition c{};
    EXPECT_EQ(w.test(c, w.a), "");
    for (auto [age, fails] : {std::pair{30, false}, {31, true}, {-30, false}, {-29, true}}) {
        c.age = narrow<int16_t>(age);
        EXPECT_EQ(w.test(c, w.a), fails ? "age" : "") << age;
    }
    c.age = 0;
    for (auto [angst, fails] : {std::pair{40, false}, {41, true}, {-40, false}, {-39, true}}) {
        c.bounds[4] = narrow<int16_t>(angst);
        EXPECT_EQ(w.test(c, w.a), fails ? "angst" : "") << angst;
    }
    c.bounds[4] = 0;
    w.g.artist.read(w.a);
    c.job = narrow<int16_t>(w.g.artist->job + 1);
    EXPECT_EQ(w.test(c, w.a), "job");
}

TEST(StoryCast, GenderAgainstTheRuleOrTheFirstParticipant) {
    Cast w;
    EventCondition c{};
    c.genderRule = 1;
    EXPECT_EQ(w.test(c, w.b), "gender");
    c.genderRule = 2;
    EXPECT_EQ(w.test(c, w.b), "");
    c.genderRule = 3;  // a is a man, b a woman, c a man
    EXPECT_EQ(w.test(c, w.b, 1, w.a), "gender");
    EXPECT_EQ(w.test(c, w.c, 1, w.a), "");
    c.genderRule = 4;
    EXPECT_EQ(w.test(c, w.b, 1, w.a), "");
    EXPECT_EQ(w.test(c, w.c, 1, w.a), "gender");
}

TEST(StoryCast, BandsAndLabels) {
    Cast w;
    EventCondition c{};
    c.bandRule = -3;  // a band of at most two; the second in the first's band
    EXPECT_EQ(w.test(c, w.a), "");
    EXPECT_EQ(w.test(c, w.c), "band") << "three members";
    EXPECT_EQ(w.test(c, w.b, 1, w.a), "");
    EXPECT_EQ(w.test(c, w.d, 1, w.a), "band");
    c.bandRule = -2;
    EXPECT_EQ(w.test(c, w.b, 1, w.a), "");
    EXPECT_EQ(w.test(c, w.c, 1, w.a), "band");
    c.bandRule = AlbumWorld::kRival;
    EXPECT_EQ(w.test(c, w.c), "");
    EXPECT_EQ(w.test(c, w.a), "band");
    c.bandRule = 0;
    c.labelRule = -2;
    EXPECT_EQ(w.test(c, w.a), "");
    EXPECT_EQ(w.test(c, w.d), "label");
    c.labelRule = -1;
    EXPECT_EQ(w.test(c, w.d), "");
    EXPECT_EQ(w.test(c, w.a), "label");
    c.labelRule = AlbumWorld::kRival;
    EXPECT_EQ(w.test(c, w.c), "");
    EXPECT_EQ(w.test(c, w.a), "label");
}

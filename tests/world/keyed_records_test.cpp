#include <gtest/gtest.h>

#include "support/amend.h"
#include "support/empty_game.h"
#include "world/matching_records.h"
#include "world/record_bytes.h"

using namespace trovane;

namespace {

const std::size_t kArtist = offsetIn<ScheduleRecord>("artist");
const std::size_t kArtist2 = offsetIn<ScheduleRecord>("artist2");

// Entries of type 7 filed under both their artists, like a story's cast.
KeyedRecords<int16_t>::Keys castOf(std::span<const uint8_t> bytes) {
    KeyedRecords<int16_t>::Keys keys;
    if (fieldAt<uint8_t>(bytes, offsetIn<ScheduleRecord>("type")) == 7) {
        keys.add(fieldAt<int16_t>(bytes, kArtist));
        keys.add(fieldAt<int16_t>(bytes, kArtist2));
    }
    return keys;
}

struct KeyedSchedule : ::testing::Test {
    test::EmptyGame eg;
    Game& g = eg.g;
    KeyedRecords<int16_t> cast;
    int32_t add(uint8_t type, int16_t a, int16_t b) {
        g.schedule.rec = ScheduleRecord{};
        g.schedule->type = type;
        g.schedule->artist = a;
        g.schedule->artist2 = b;
        return g.schedule.append();
    }
    std::vector<int32_t> of(int16_t artist) {
        const auto& s = cast.of(artist);
        return {s.begin(), s.end()};
    }
};

}  // namespace

TEST_F(KeyedSchedule, ARecordIsFiledUnderEachOfItsKeysAndMovesWithItsRewrites) {
    cast.keep(g.schedule, castOf);
    const int32_t a = add(7, 4, 9);
    add(3, 4, 9);                    // not of the kind kept
    const int32_t c = add(7, 9, 9);  // the same key twice is filed once
    EXPECT_EQ(of(4), (std::vector<int32_t>{a}));
    EXPECT_EQ(of(9), (std::vector<int32_t>{a, c}));
    // A rewrite of a record already covered moves it between keys.
    amend(g.schedule, a, [&] { g.schedule->artist2 = 5; });
    EXPECT_EQ(of(9), (std::vector<int32_t>{c}));
    EXPECT_EQ(of(5), (std::vector<int32_t>{a}));
    // Changing its kind takes it out altogether.
    amend(g.schedule, c, [&] { g.schedule->type = 3; });
    EXPECT_TRUE(of(9).empty());
    // Emptied, the table is indexed again from its first record.
    g.schedule.clearAll();
    EXPECT_TRUE(of(4).empty());
    EXPECT_EQ(add(7, 4, 0), 1);
    EXPECT_EQ(cast.firstOf(4), 1);
    EXPECT_EQ(cast.firstOf(0), 1);
}

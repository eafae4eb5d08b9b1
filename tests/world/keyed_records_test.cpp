#include <gtest/gtest.h>

#include "support/amend.h"
#include "support/game_test.h"
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

struct KeyedSchedule : test::GameTest {
    KeyedRecords<int16_t> cast;
    int32_t add(uint8_t type, int16_t a, int16_t b) {
        g.schedule.rec = ScheduleRecord{.type = type, .artist = a, .artist2 = b};
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

// Keys that differ only in their high bits, like (band, label) pairs, many
// enough that the index grows several times; then a key that gains a second
// record earlier than its first, and loses that first.
TEST_F(KeyedSchedule, ManyKeysDifferingInTheirHighBitsAreEachFoundAfterTheIndexGrows) {
    const std::size_t kDate = offsetIn<ScheduleRecord>("date");
    KeyedRecords<uint32_t> byDay;
    byDay.keep(g.schedule, [&](std::span<const uint8_t> bytes) {
        KeyedRecords<uint32_t>::Keys keys;
        keys.add(static_cast<uint32_t>(fieldAt<double>(bytes, kDate)) << 16);
        return keys;
    });
    for (int day = 1; day <= 300; ++day) {
        g.schedule.rec = ScheduleRecord{.date = static_cast<double>(day)};
        g.schedule.append();
    }
    for (uint32_t day = 1; day <= 300; ++day) ASSERT_EQ(byDay.firstOf(day << 16), static_cast<int32_t>(day));
    EXPECT_EQ(byDay.firstOf(301U << 16), 0);
    EXPECT_EQ(byDay.firstOf(7), 0) << "the low bits alone name no key";
    // Record 9 moves to day 12's key, before its own record 12.
    amend(g.schedule, 9, [&] { g.schedule->date = 12; });
    EXPECT_EQ(byDay.of(12U << 16), (std::vector<int32_t>{9, 12}));
    EXPECT_EQ(byDay.firstOf(9U << 16), 0);
    amend(g.schedule, 9, [&] { g.schedule->date = 9; });
    EXPECT_EQ(byDay.of(12U << 16), (std::vector<int32_t>{12}));
    EXPECT_EQ(byDay.firstOf(9U << 16), 9);
}

// Every record format packs and unpacks without losing a byte.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "world/record_types.h"

using namespace trovane;

namespace {

// Bytes a text field could mishandle: blanks (trimmed on read, padded on
// write), NUL, the five bytes Windows-1252 leaves undefined, bytes that become
// two or three bytes of UTF-8.
constexpr uint8_t kAwkwardBytes[] = {' ', ' ', ' ', 0x00, 0x81, 0x8D, 0x8F, 0x90, 0x9D, 0x80, 0xE9, 0xFF, 'a', 0x7F};

template <class R>
class RecordCodec : public ::testing::Test {};
TYPED_TEST_SUITE(RecordCodec, test::AllRecords::Types);

TYPED_TEST(RecordCodec, AnyBytesComeBackUnchanged) {
    using R = TypeParam;
    std::mt19937 rng(7);
    for (int round = 0; round < 30; ++round) {
        std::vector<uint8_t> in(R::kLength);
        for (std::size_t i = 0; i < in.size(); ++i) {
            switch (round % 3) {
            case 0: in[i] = static_cast<uint8_t>(rng()); break;
            case 1: in[i] = kAwkwardBytes[rng() % std::size(kAwkwardBytes)]; break;
            default: in[i] = static_cast<uint8_t>(i + static_cast<std::size_t>(round)); break;  // every byte value
            }
        }
        R rec{};
        decodeRecord(in.data(), rec);
        std::vector<uint8_t> out(R::kLength, 0xAA);
        encodeRecord(rec, out.data());
        ASSERT_EQ(in, out) << "round " << round;
    }
}

struct TextCase {
    std::string value;
    std::string stored;  // Windows-1252, before the blank padding
    std::string readBack;
};

TEST(TextField, IsStoredAsBlankPaddedWindows1252) {
    const TextCase cases[] = {
        {"Café", "Caf\xE9", "Café"},
        {"€uro", "\x80uro", "€uro"},
        {"Crossroads Café Bar", "Crossroads Caf\xE9 Bar", "Crossroads Café Bar"},  // past the first eight bytes
        {"Crossroads Bar Ché", "Crossroads Bar Ch\xE9", "Crossroads Bar Ché"},     // past the first sixteen
        {"Sixteen letters!", "Sixteen letters!", "Sixteen letters!"},
        {"Seventeen letters", "Seventeen letters", "Seventeen letters"},
        {"  leading", "  leading", "  leading"},
        {"trailing   ", "trailing", "trailing"},
        {"日本", "??", "??"},                                                // no byte in Windows-1252
        {std::string(25, 'x'), std::string(20, 'x'), std::string(20, 'x')},  // cut to the width
        {"", "", ""},
    };
    for (const auto& c : cases) {
        const CityRecord city{.name = c.value};
        std::vector<uint8_t> bytes(CityRecord::kLength);
        encodeRecord(city, bytes.data());
        std::string name(bytes.begin() + 2, bytes.begin() + 22);
        EXPECT_EQ(name, c.stored + std::string(20 - c.stored.size(), ' ')) << c.value;
        CityRecord back{};
        decodeRecord(bytes.data(), back);
        EXPECT_EQ(back.name.value, c.readBack) << c.value;
    }
}

TEST(RecordCodec, NumbersAreLittleEndianAndBooleansAllBitsSet) {
    // Day 38204 is 5 August 2004; a band of -1 is a true boolean, or 65535.
    const ScheduleRecord s{.type = 7, .date = 38204, .band = -1, .id = 0x01020304};
    std::vector<uint8_t> b(ScheduleRecord::kLength);
    encodeRecord(s, b.data());
    EXPECT_EQ(std::vector<uint8_t>(b.begin(), b.begin() + 11),
              (std::vector<uint8_t>{7, 0, 0, 0, 0, 0x80, 0xA7, 0xE2, 0x40, 0xFF, 0xFF}));
    EXPECT_EQ(std::vector<uint8_t>(b.begin() + 47, b.begin() + 51), (std::vector<uint8_t>{4, 3, 2, 1}));
}

}  // namespace

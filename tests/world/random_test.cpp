// Whole numbers from the random source: the integer reading of a draw gives
// what the floating-point reading gave, and the stream of draws is the one a
// seeded game has always made.
#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "world/random.h"

using namespace trovane;

namespace {

// The floating-point reading: a single in [0, 1) times the width, in doubles.
int32_t floatReading(uint32_t bits, int32_t low, int32_t high) {
    const float draw = static_cast<float>(bits) / 16777216.0f;
    const double width = static_cast<double>(high) - static_cast<double>(low) + 1.0;
    return low + static_cast<int32_t>(static_cast<double>(draw) * width);
}

}  // namespace

TEST(RandomScale, MatchesTheFloatingReadingAtEveryEdgeAndInWorkedCases) {
    // clang-format off
    const std::vector<int64_t> widths{1, 2, 3, 7, 100, 1000, 4096, 65535, 99991, 1 << 20, 1 << 24, (1 << 24) + 1,
                                      (1 << 29) - 1, 1 << 29, (1 << 29) + 1, 1 << 30, 0, -1, -5};
    // clang-format on
    for (int64_t w : widths) {
        for (int32_t low : {0, 1, -1000, 1000}) {
            const int32_t high = static_cast<int32_t>(low + w - 1);
            std::vector<uint32_t> bits{0, 1, 2, 0x7FFFFF, 0x800000, 0xFFFFFE, 0xFFFFFF};
            // Where the whole part steps: the least bits with bits * w >= k * 2^24, and one less.
            for (int64_t k : {int64_t{1}, w / 3, w / 2, w - 1}) {
                if (w < 2 || k < 1) continue;
                const int64_t step = (k * 16777216 + w - 1) / w;
                for (int64_t b : {step - 1, step, step + 1})
                    if (b >= 0 && b < 16777216) bits.push_back(static_cast<uint32_t>(b));
            }
            for (uint32_t b : bits)
                ASSERT_EQ(Random::scale(b, low, high), floatReading(b, low, high))
                    << "bits " << b << " low " << low << " width " << w;
        }
    }
    EXPECT_EQ(Random::scale(0, 5, 5), 5);
    EXPECT_EQ(Random::scale(0xFFFFFF, 0, 99), 99);   // (2^24 - 1) * 100 / 2^24 = 99.99...
    EXPECT_EQ(Random::scale(0x800000, 1, 10), 6);    // 1 + 0.5 * 10
    EXPECT_EQ(Random::scale(0x28F5C2, 0, 99), 15);   // 2684354 * 100 / 2^24 = 15.99999...
    EXPECT_EQ(Random::scale(0x28F5C3, 0, 99), 16);   // 2684355 * 100 / 2^24 = 16.0000002
    EXPECT_EQ(Random::scale(0xFFFFFF, -3, -1), -1);  // -3 + 2.9999998 floored
}

TEST(RandomStream, DrawsBetweensAndDiscardsFollowTheSeededEngine) {
    for (uint64_t seed : {uint64_t{7}, uint64_t{0}, ~uint64_t{0}}) {
        std::mt19937_64 engine(seed);
        auto next = [&engine] { return static_cast<uint32_t>(engine() >> 40); };
        Random rng(seed);
        for (int i = 0; i < 500; ++i) {
            const int32_t high = i * 37 % 5000;
            ASSERT_EQ(rng.between(1, high), floatReading(next(), 1, high)) << i;
            ASSERT_EQ(rng.draw(), static_cast<float>(next()) / 16777216.0f) << i;
            // Short skips within a renewal of the state, and long ones across several.
            const int skip = i % 50 == 49 ? 311 * (i / 50) + 1 : i % 4;
            rng.discard(static_cast<uint64_t>(skip));
            for (int d = 0; d < skip; ++d) engine();
        }
        EXPECT_EQ(rng.between(0, 1 << 28), floatReading(next(), 0, 1 << 28)) << seed;
    }
}

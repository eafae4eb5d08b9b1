#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/game_test.h"
#include "world/numbers.h"

using namespace trovane;

TEST(Numbers, ConversionsRoundHalvesToEvenIntFloorsAndValuesPastTheirFieldStopTheGame) {
    struct Case {
        double v, rounded, floored;
    };
    for (Case c : {Case{0.5, 0, 0}, Case{1.5, 2, 1}, Case{2.5, 2, 2}, Case{2.51, 3, 2}, Case{-0.5, 0, -1},
                   Case{-1.5, -2, -2}, Case{-2.5, -2, -3}, Case{-2.49, -2, -3}, Case{-3.0, -3, -3}}) {
        EXPECT_EQ(roundHalfEven(c.v), c.rounded) << c.v;
        EXPECT_EQ(intFloor(c.v), c.floored) << c.v;
        EXPECT_EQ(roundTo<int16_t>(c.v), static_cast<int16_t>(c.rounded)) << c.v;
        EXPECT_EQ(intTo<int32_t>(c.v), static_cast<int32_t>(c.floored)) << c.v;
    }
    EXPECT_EQ(narrow<int16_t>(-32768), -32768);
    EXPECT_EQ(roundTo<int16_t>(32766.5), 32766);  // the even neighbour stays inside
    EXPECT_EQ(roundTo<uint8_t>(255.4), 255);
    EXPECT_EQ(roundTo<uint8_t>(-0.5), 0);
    EXPECT_THROW(narrow<int16_t>(32768), FatalError);
    EXPECT_THROW(narrow<int16_t>(int32_t{-32769}), FatalError);
    EXPECT_THROW(roundTo<int16_t>(32767.5), FatalError);
    EXPECT_THROW(narrow<uint8_t>(256), FatalError);
    EXPECT_THROW(narrow<uint8_t>(-1), FatalError);
    EXPECT_THROW(roundTo<uint8_t>(255.5), FatalError);
    EXPECT_THROW(intTo<uint8_t>(-0.1), FatalError);
    EXPECT_THROW(narrow<int32_t>(int64_t{1} << 31), FatalError);
    EXPECT_THROW(roundTo<int32_t>(std::numeric_limits<double>::quiet_NaN()), FatalError);
    EXPECT_THAT(test::fatalMessage([] { narrow<int16_t>(40000); }), ::testing::HasSubstr("16-bit"));
}

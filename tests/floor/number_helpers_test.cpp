#include <gtest/gtest.h>

#include "floor/number_helpers.h"
#include "support/empty_game.h"

using namespace trovane;

TEST(Clamps, HoldTheValueAndWriteTheLimitBack) {
    using C = std::array<int16_t, 4>;  // value, low, high, result
    for (auto [value, low, high, result] : {C{-5, 0, 100, 0}, C{0, 0, 100, 0}, C{57, 0, 100, 57}, C{100, 0, 100, 100},
                                            C{101, 0, 100, 100}, C{-32768, -10, 10, -10}}) {
        EXPECT_EQ(clampInteger(value, low, high), result);
        EXPECT_EQ(value, result);
    }
    int32_t big = 3'000'000;
    EXPECT_EQ(clampLong(big, 0, 1'000'000), 1'000'000);
    EXPECT_EQ(big, 1'000'000);
    int32_t low = -7;
    clampLong(low, -5, 5);
    EXPECT_EQ(low, -5);
}

TEST(MoneySteps, StepTableEdges) {
    std::string steps;  // each step at the first and the last value it covers, then past the table
    for (int32_t v :
         {0,      99,     100,    999,    1000,   4999,   5000,    24999,   25000,   49999,   50000,    99999,
          100000, 249999, 250000, 499999, 500000, 999999, 1000000, 4999999, 5000000, 9999999, 10000000, -1})
        steps += std::to_string(moneyStep(v)) + " ";
    EXPECT_EQ(steps,
              "5 5 50 50 250 250 500 500 1000 1000 5000 5000 10000 10000 25000 25000 50000 50000 100000 100000 "
              "250000 250000 500000 500000 ");
}

TEST(MoneySteps, ArrowsStepFromTheValueBeforeTheClick) {
    using C = std::tuple<bool, int32_t, int32_t>;  // up, value, result
    for (auto [up, value, result] :
         {C{true, 95, 100}, C{true, 100, 150}, C{false, 100, 50}, C{false, 3, 0}, C{false, 10000000, 9500000},
          C{true, 9999999, 10249999}, C{false, 1000, 750}, C{false, -20, 0}, C{true, -20, 499980}}) {
        int32_t v = value;
        EXPECT_EQ(stepMoney(up, v), result) << up << " " << value;
        EXPECT_EQ(v, result);
    }
    int32_t top = INT32_MAX - 10;
    EXPECT_THROW(stepMoney(true, top), FatalError);
}

TEST(MoneySteps, RoundToStepHalvesGoToTheEvenMultiple) {
    for (auto [value, result] : {std::pair{1375, 1500},
                                 {1125, 1000},
                                 {1124, 1000},
                                 {97, 95},
                                 {98, 100},
                                 {1'234'567, 1'200'000},
                                 {0, 0},
                                 {-750'000, -1'000'000}}) {
        int32_t v = value;
        EXPECT_EQ(roundToMoneyStep(v), result) << value;
        EXPECT_EQ(v, result);
    }
}

TEST(DigitsOf, KeepsTheDigitsInOrder) {
    EXPECT_EQ(digitsOf("£1,250"), 1250);
    EXPECT_EQ(digitsOf(" 0 07 x"), 7);
    EXPECT_EQ(digitsOf("2147483647"), INT32_MAX);
    EXPECT_THROW(digitsOf("2147483648"), FatalError);
    EXPECT_THROW(digitsOf("no amount"), FatalError);
    EXPECT_THROW(digitsOf(""), FatalError);
}

TEST(BandReputation, WeighsTheFiveMarkets) {
    test::EmptyGame eg;
    eg.g.band->reputation = {1, 10, 100, 0, 255};
    EXPECT_EQ(bandGlobalReputation(eg.g), 8 + 100 + 700 + 0 + 765);
}

// A new label (kind 1) gets fixed shares, kind 3 none. Small abilities of a
// new band (kind 2) leave no room for the random part, so the shares are
// exact; 25 and 30 land the first division on a half that must go to the even byte,
// and 32 gives the third market a base of 3 that a divisor of 13 would make 2.
TEST(RegionalShares, FixedSharesAndNewBandSharesOfSmallAbilities) {
    using C = std::array<uint8_t, 7>;  // kind, ability, the five shares
    for (C c : {C{1, 50, 40, 20, 15, 10, 5}, C{3, 50}, C{2, 0, 2, 2, 2, 2, 2}, C{2, 25, 4, 2, 2, 2, 2},
                C{2, 30, 4, 3, 2, 2, 2}, C{2, 32, 4, 3, 3, 2, 2}}) {
        test::EmptyGame eg;
        eg.g.band->ability = c[1];
        C r{c[0], c[1]};
        setRegionalShares(eg.g, c[0], r[2], r[3], r[4], r[5], r[6]);
        EXPECT_EQ(r, c) << int{c[0]} << " " << int{c[1]};
    }
}

TEST(RegionalShares, NewBandSharesStayInTheirSpreadWithOneDrawEach) {
    test::EmptyGame eg;
    eg.g.band->ability = 100;
    // Bases 14, 10, 8, 7, 5: each share is base - base/cut plus at most base/spread.
    const std::array<int, 5> lowest{13, 9, 7, 6, 4}, highest{15, 12, 9, 8, 5};
    std::array<bool, 5> sawLow{}, sawHigh{};
    for (int i = 0; i < 400; ++i) {
        Random before = eg.g.rng;
        std::array<uint8_t, 5> r{};
        setRegionalShares(eg.g, 2, r[0], r[1], r[2], r[3], r[4]);
        for (int k = 0; k < 5; ++k) {
            before.draw();
            ASSERT_GE(r[k], lowest[k]) << k;
            ASSERT_LE(r[k], highest[k]) << k;
            sawLow[k] = sawLow[k] || r[k] == lowest[k];
            sawHigh[k] = sawHigh[k] || r[k] == highest[k];
        }
        ASSERT_EQ(before.draw(), eg.g.rng.draw());
    }
    EXPECT_EQ(sawLow, (std::array<bool, 5>{true, true, true, true, true}));
    EXPECT_EQ(sawHigh, (std::array<bool, 5>{true, true, true, true, true}));
}

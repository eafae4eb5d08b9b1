#include <gtest/gtest.h>

#include <tuple>

#include "floor/number_helpers.h"
#include "support/empty_game.h"

using namespace trovane;

TEST(Clamps, HoldTheValueAndWriteTheLimitBack) {
    struct Case {
        int16_t value, low, high, result;
    };
    for (Case c : {Case{-5, 0, 100, 0}, Case{0, 0, 100, 0}, Case{57, 0, 100, 57}, Case{100, 0, 100, 100},
                   Case{101, 0, 100, 100}, Case{-32768, -10, 10, -10}}) {
        int16_t v = c.value;
        EXPECT_EQ(clampInteger(v, c.low, c.high), c.result);
        EXPECT_EQ(v, c.result);
    }
    int32_t big = 3'000'000;
    EXPECT_EQ(clampLong(big, 0, 1'000'000), 1'000'000);
    EXPECT_EQ(big, 1'000'000);
    int32_t low = -7;
    clampLong(low, -5, 5);
    EXPECT_EQ(low, -5);
}

TEST(MoneySteps, StepTableEdges) {
    // Each step with the first and the last value it covers.
    for (auto [first, last, step] : {std::tuple{0, 99, 5},
                                     {100, 999, 50},
                                     {1000, 4999, 250},
                                     {5000, 24999, 500},
                                     {25000, 49999, 1000},
                                     {50000, 99999, 5000},
                                     {100000, 249999, 10000},
                                     {250000, 499999, 25000},
                                     {500000, 999999, 50000},
                                     {1000000, 4999999, 100000},
                                     {5000000, 9999999, 250000}}) {
        EXPECT_EQ(moneyStep(first), step) << first;
        EXPECT_EQ(moneyStep(last), step) << last;
    }
    EXPECT_EQ(moneyStep(10000000), 500000);
    EXPECT_EQ(moneyStep(-1), 500000);
}

TEST(MoneySteps, ArrowsStepFromTheValueBeforeTheClick) {
    struct Case {
        bool up;
        int32_t value, result;
    };
    for (Case c : {Case{true, 95, 100}, Case{true, 100, 150}, Case{false, 100, 50}, Case{false, 3, 0},
                   Case{false, 10000000, 9500000}, Case{true, 9999999, 10249999}, Case{false, 1000, 750},
                   Case{false, -20, 0}, Case{true, -20, 499980}}) {
        int32_t v = c.value;
        EXPECT_EQ(stepMoney(c.up, v), c.result) << c.up << " " << c.value;
        EXPECT_EQ(v, c.result);
    }
    int32_t top = INT32_MAX - 10;
    EXPECT_THROW(stepMoney(true, top), FatalError);
}

TEST(MoneySteps, RoundToStepHalvesGoToTheEvenMultiple) {
    struct Case {
        int32_t value, result;
    };
    for (Case c : {Case{1375, 1500}, Case{1125, 1000}, Case{1124, 1000}, Case{97, 95}, Case{98, 100},
                   Case{1'234'567, 1'200'000}, Case{0, 0}, Case{-750'000, -1'000'000}}) {
        int32_t v = c.value;
        EXPECT_EQ(roundToMoneyStep(v), c.result) << c.value;
        EXPECT_EQ(v, c.result);
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
    struct Case {
        int kind;
        uint8_t ability;
        std::array<uint8_t, 5> shares;
    };
    for (Case c : {Case{1, 50, {40, 20, 15, 10, 5}}, Case{3, 50, {}}, Case{2, 0, {2, 2, 2, 2, 2}},
                   Case{2, 25, {4, 2, 2, 2, 2}}, Case{2, 30, {4, 3, 2, 2, 2}}, Case{2, 32, {4, 3, 3, 2, 2}}}) {
        test::EmptyGame eg;
        eg.g.band->ability = c.ability;
        std::array<uint8_t, 5> r{};
        setRegionalShares(eg.g, c.kind, r[0], r[1], r[2], r[3], r[4]);
        EXPECT_EQ(r, c.shares) << c.kind << " " << int{c.ability};
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

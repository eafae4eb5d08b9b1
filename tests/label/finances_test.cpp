// The label's books: every amount lands in its category, this month and this
// year, and in the cash the status bar shows.
#include <gtest/gtest.h>

#include "label/finances.h"
#include "support/game_test.h"

using namespace trovane;

using LabelFinances = test::GameTest;

TEST_F(LabelFinances, IncomeAndExpensesLandInThisMonthAndThisYearOnly) {
    g.label.append();  // a rival
    g.player.playerLabel = narrow<int16_t>(g.label.append());
    addIncome(g, moneyUnits(500), ledgerRecordSales);
    addExpense(g, moneyUnits(200), ledgerWages);
    addIncome(g, moneyUnits(7), ledgerOtherIncome);

    g.label.read(g.player.playerLabel);
    for (int period : {0, 2}) {
        EXPECT_EQ(ledgerEntry(g.label.rec, period, ledgerRecordSales), moneyUnits(500));
        EXPECT_EQ(ledgerEntry(g.label.rec, period, ledgerWages), -moneyUnits(200));
        EXPECT_EQ(ledgerEntry(g.label.rec, period, ledgerOtherIncome), moneyUnits(7));
    }
    for (Money m : g.label->period[1].income) EXPECT_EQ(m, 0);
    for (Money m : g.label->period[1].expense) EXPECT_EQ(m, 0);
    EXPECT_EQ(std::tuple(g.label->cashBalance, g.player.playerLabelCash), std::tuple(moneyUnits(307), moneyUnits(307)));

    g.label.read(1);
    addExpense(g, moneyUnits(999), ledgerStudioFees);
    EXPECT_EQ(g.player.playerLabelCash, moneyUnits(307)) << "a rival's money is not the player's";
    EXPECT_THROW(addIncome(g, 1, 114), FatalError);
    EXPECT_THROW(addExpense(g, 1, 99), FatalError);
}

TEST_F(LabelFinances, HypeRaisesReputationOnceItPassesIt) {
    g.label->reputation = {10, 10, 100, 5, 50};
    g.label->hype = {5, 0, 100, -101, 0};
    g.label.append();
    addLabelHype(g, {6, 10, 5, 0, -20});
    g.label.read(1);
    EXPECT_EQ(g.label->reputation, (std::array<uint8_t, 5>{11, 10, 100, 4, 50}));
    EXPECT_EQ(g.label->hype, (std::array<int16_t, 5>{0, 10, 5, -4, 0}));
}

TEST_F(LabelFinances, PointsReachTheBossAndEachHeadAndTheBufferEndsOnTheLast) {
    for (const char* name : {"Boss", "Head", "Idle"}) {
        g.staff.rec = StaffRecord{.forename = name};
        g.staff.append();
    }
    g.label.rec = LabelRecord{.boss = 1};
    g.label->department[0].head = 2;
    g.label->department[5].head = 1;  // the boss heads a department too
    g.label->points[2] = 5;
    g.label.append();
    g.label.rec = LabelRecord{};  // the label is given by number, not by the buffer
    addLabelPoints(g, 1, 2, 30);
    EXPECT_EQ(g.label->points[2], 35);  // the buffer holds the label as written
    // The boss earns twice, 30 + 30; the head 30; the idle one nothing.
    EXPECT_EQ(g.staff->id, 1);  // the last earner, the sixth head
    EXPECT_EQ(g.staff->points, (std::array<int32_t, 5>{0, 0, 60, 0, 0}));
    EXPECT_EQ((g.staff.read(2), g.staff->points), (std::array<int32_t, 5>{0, 0, 30, 0, 0}));
    EXPECT_EQ((g.staff.read(3), g.staff->points[2]), 0);
    EXPECT_EQ((g.label.read(1), g.label->points[2]), 35);  // 5 + 30
}

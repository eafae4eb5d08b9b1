// The books over time: interest, Friday wages, the month ends and the year
// end, and the history each close leaves behind.
#include <gtest/gtest.h>

#include "day/daily_cycle.h"
#include "label/departments.h"
#include "label/finances.h"
#include "label/label_details.h"
#include "session/invariants.h"
#include "support/amend.h"
#include "support/game_test.h"
#include "world/dates.h"

using namespace trovane;

using Books = test::GameTest;
using Departments = test::GameTest;

namespace {

Money units(int64_t whole) { return moneyUnits(whole); }

int16_t addLabel(Game& g, Money cash, int financeRating = 0, Money wageBill = 0) {
    g.label.rec = LabelRecord{.name = "Ledger Records", .cashBalance = cash, .wageBill = wageBill};
    g.label->department[financeAndLaw].rating = static_cast<uint8_t>(financeRating);
    return static_cast<int16_t>(g.label.append());
}

// Label n as filed, and one of its books' entries.
LabelRecord labelOf(Game& g, int32_t n) { return (g.label.read(n), g.label.rec); }
Money entryOf(Game& g, int32_t n, int period, int category) {
    LabelRecord l = labelOf(g, n);
    return ledgerEntry(l, period, category);
}

}  // namespace

TEST_F(Books, InterestIsTheRatingSquaredInMillionthsAMonthHalfToEven) {
    // 1000.0000 = 10,000,000 ten-thousandths x 85^2 / 1,000,000 = 72,250; 1 x 7225 / 1e6 rounds away;
    // 200 x 2500 / 1e6 = 0.5 -> 0; 600 -> 1.5 -> 2; 201 -> 0.5025 -> 1.
    const std::tuple<Money, int, Money> rows[] = {{units(1000), 85, 72'250},
                                                  {0, 85, 0},
                                                  {-units(5000), 85, 0},
                                                  {units(5000), 0, 0},
                                                  {1, 85, 0},
                                                  {200, 50, 0},
                                                  {600, 50, 2},
                                                  {201, 50, 1}};
    for (auto [cash, rating, interest] : rows)
        EXPECT_EQ(monthlyInterest(cash, rating), interest) << cash << " at " << rating;
}

TEST_F(Books, EveryLabelPaysItsBillWhateverItsCash) {
    addLabel(g, units(100), 0, units(1500));
    addLabel(g, -units(50), 0, units(2700));
    takeLabelWages(g);
    // expenses are booked below 0
    EXPECT_EQ(std::tuple(labelOf(g, 1).cashBalance, entryOf(g, 1, 0, ledgerWages)),
              std::tuple(-units(1400), -units(1500)));
    EXPECT_EQ(std::tuple(labelOf(g, 2).cashBalance, entryOf(g, 2, 2, ledgerWages)),
              std::tuple(-units(2750), -units(2700)));
}

TEST_F(Books, FirstOfJanuaryPaysInterestAgainAndClearsTheMonthNotTheYear) {
    addLabel(g, units(10'000), 10);  // 1% of 1% a month: 10,000 x 100 / 1e6 = 1.0000
    g.gameDate = serialFromCivil(2004, 12, 1);
    updateLabelFinances(g);
    EXPECT_EQ(entryOf(g, 1, 2, ledgerInvestments), units(1)) << "1 December keeps the year";

    g.gameDate = serialFromCivil(2004, 12, 31);
    updateLabelFinances(g);  // 10,001 x 100 / 1e6 = 1.0001
    EXPECT_EQ(entryOf(g, 1, 1, ledgerInvestments), 10'001);
    EXPECT_EQ(entryOf(g, 1, 2, ledgerInvestments), 0) << "31 December clears the year";

    g.gameDate = serialFromCivil(2005, 1, 1);
    updateLabelFinances(g);  // 10,002.0001 x 100 / 1e6 = 1.00020001 -> 1.0002
    EXPECT_EQ(entryOf(g, 1, 1, ledgerInvestments), 10'002);
    EXPECT_EQ(entryOf(g, 1, 2, ledgerInvestments), 10'002) << "1 January's interest starts the year";
    EXPECT_EQ(std::tuple(entryOf(g, 1, 0, ledgerInvestments), g.label->cashBalance), std::tuple(0, units(10'003) + 3));
}

// Played day by day from Thursday 5 August 2004 to 2 January 2005: wages of
// 1,500 on each of 22 Fridays, the Friday the 1st of October and Friday 31
// December falling in the month that closes that day.
TEST_F(Books, ThePlayedMonthsCloseIntoTheHistory) {
    addLabel(g, units(50'000), 0, units(1500));
    g.player.playerLabel = 1;
    amend(g.label, 1,
          [&] { g.label->department[marketing].staffAtLevel[0] = 1; });  // 1,500 a week; weighted 5, rating 0
    g.player.playerLabelCash = units(50'000);
    addExpense(g, units(25), ledgerRoyaltiesPaid);
    writeOpeningLedgerRows(g);
    ASSERT_EQ(g.gameDate, serialFromCivil(2004, 8, 5));
    while (g.gameDate < serialFromCivil(2005, 1, 2)) {
        ASSERT_TRUE(allRepliesGiven(g));
        checkDaysSchedule(g);
        auto broken = checkInvariants(g);
        ASSERT_FALSE(broken) << describeBreak(*broken);
    }
    const std::pair<double, int> closes[] = {{serialFromCivil(2004, 9, 1), 4},   {serialFromCivil(2004, 10, 1), 5},
                                             {serialFromCivil(2004, 11, 1), 4},  {serialFromCivil(2004, 12, 1), 4},
                                             {serialFromCivil(2004, 12, 31), 5}, {serialFromCivil(2005, 1, 1), 0}};
    ASSERT_EQ(g.ledger.recordCount(), 1 + 1 + 6);
    for (int i = 0; i < 6; ++i) {
        g.ledger.read(i + 2);
        // royalties carried on every row
        EXPECT_EQ(std::tuple(g.ledger->date, g.ledger->figures.expense[0],
                             g.ledger->figures.expense[ledgerRoyaltiesPaid - ledgerWages]),
                  std::tuple(closes[i].first, -units(1500) * closes[i].second, -units(25)))
            << "row " << i;
    }
    // 50,000 - 25 - 22 x 1,500 = 16,975
    EXPECT_EQ(std::tuple(labelOf(g, 1).cashBalance, g.ledger->cash), std::tuple(units(16'975), units(16'975)));
    EXPECT_EQ(entryOf(g, 1, 2, ledgerWages), 0);
    EXPECT_EQ(entryOf(g, 1, 2, ledgerRoyaltiesPaid), -units(25)) << "the year end leaves royalties";
    EXPECT_EQ(entryOf(g, 1, 0, ledgerRoyaltiesPaid), -units(25));
}

// What the label's page shows of its standing: the five markets' points and
// their sum, each reputation as a percent, the years since founding, the boss
// and the boss's own page.
TEST_F(Books, TheLabelPageShowsItsStandingItsBossAndTheBossesPage) {
    const int16_t l = addLabel(g, 0);
    g.staff.rec = StaffRecord{.forename = "Kim", .surname = "Rowe", .reputation = {9, 8, 7, 6, 5}, .employer = l};
    g.staff->points = {5, 6, 7, 8, 9};
    const auto boss = static_cast<int16_t>(g.staff.append());  // the first staff record
    amend(g.label, l, [&] {
        g.label->boss = boss;
        g.label->points = {1, 20, 300, 4000, 50000};
        g.label->reputation = {40, 15, 20, 10, 5};
        g.label->founded = 90;
    });
    EXPECT_EQ(labelReputationSum(labelOf(g, l)), 90);
    const LabelDetails d = labelDetails(g, l);
    EXPECT_EQ(std::tuple(d.points, d.pointsTotal, d.reputation[0], d.reputation[4], d.age, d.independence, d.boss),
              std::tuple(std::array<int32_t, 5>{1, 20, 300, 4000, 50000}, 54321, "40%", "5%", 14, "Independent Label",
                         "Kim Rowe"));
    const StaffDetails b = staffDetails(g, boss);
    EXPECT_EQ(std::tuple(b.name, b.post, b.reputation, b.points),
              std::tuple("Kim Rowe", "Label Boss", std::array{9, 8, 7, 6, 5}, std::array<int32_t, 5>{5, 6, 7, 8, 9}));
}

TEST_F(Departments, TheBillAddsEveryDepartmentAndItsHeadAndOverflowIsFatal) {
    g.staff.rec = StaffRecord{};
    g.staff->wage = units(420);
    int16_t head = static_cast<int16_t>(g.staff.append());
    g.label->department[artistAndRepertoire].staffAtLevel = {1, 1, 1, 1, 1};  // 6,150
    g.label->department[security].staffAtLevel = {0, 0, 0, 0, 2};             // 2,000
    g.label->department[hospitality].head = head;                             // 420
    updateWageBill(g);
    EXPECT_EQ(g.label->wageBill, units(8570));
    g.label->department[security].staffAtLevel = {21, 0, 0, 0, 32};
    EXPECT_EQ(departmentWages(g, security), units(21 * 1500 + 32 * 1000));  // 31,500 + 32,000
    g.label->department[security].staffAtLevel[0] = 22;                     // 33,000 passes 32,767
    EXPECT_THROW(departmentWages(g, security), FatalError);
}

TEST_F(Departments, StaffGiveMultiplesOfEightAndAHeadAddsAbilityOverTwenty) {
    Department& dep = g.label->department[publicRelations];
    // weighted 10 -> 8; 5 -> 0; 201 -> 160, held at 80
    for (auto [levels, rating] :
         {std::pair{std::array<uint8_t, 5>{2, 0, 0, 0, 0}, 8}, {{1, 0, 0, 0, 0}, 0}, {{21, 24, 0, 0, 0}, 80}}) {
        dep.staffAtLevel = levels;
        setDepartmentRating(g, publicRelations);
        EXPECT_EQ(dep.rating, rating) << int{levels[0]};
    }

    g.staff.rec = StaffRecord{};
    g.staff->ability = 50;
    dep.head = static_cast<int16_t>(g.staff.append());
    dep.staffAtLevel = {2, 0, 0, 0, 0};
    setDepartmentRating(g, publicRelations);
    EXPECT_EQ(dep.rating, 10);  // 8 + 2.5 = 10.5, to the even 10
    amend(g.staff, dep.head, [&] { g.staff->ability = 70; });
    setDepartmentRating(g, publicRelations);
    EXPECT_EQ(dep.rating, 12);  // 8 + 3.5 = 11.5, to the even 12
}

TEST_F(Departments, TheSliderBoundsAreTheWagesBoundsAndLockingWritesCountsRatingAndBill) {
    EXPECT_EQ(checkDepartmentLevels(0, {21, 24, 27, 29, 32}), "");
    // one past each bound, a level below 0 and a seventh department
    const std::pair<int, std::array<int, 5>> refused[] = {
        {0, {22, 0, 0, 0, 0}}, {0, {0, 25, 0, 0, 0}}, {0, {0, 0, 28, 0, 0}}, {0, {0, 0, 0, 30, 0}},
        {0, {0, 0, 0, 0, 33}}, {0, {-1, 0, 0, 0, 0}}, {6, {0, 0, 0, 0, 0}}};
    for (auto [dep, levels] : refused)
        EXPECT_NE(checkDepartmentLevels(dep, levels), "") << dep << " " << testing::PrintToString(levels);
    // locking writes the counts, the rating and the bill
    addLabel(g, 0);
    g.player.playerLabel = 1;
    setDepartmentLevels(g, financeAndLaw, {4, 0, 0, 0, 1});  // weighted 21 -> 16; 6,000 + 1,000
    const LabelRecord l = labelOf(g, 1);
    EXPECT_EQ(std::tuple(l.department[financeAndLaw].staffAtLevel[0], l.department[financeAndLaw].rating, l.wageBill),
              std::tuple(uint8_t{4}, uint8_t{16}, units(7000)));
}

TEST_F(Departments, APerfectDepartmentReadsTrueAndAnEmptyOneMovesTheValueByTwoWholePercentDraws) {
    g.label->department[marketing].rating = 100;
    for (int value : {0, 1, 37, 99, 100}) EXPECT_EQ(applyDepartmentError(g, value, marketing), value);
    g.label->department[artistAndRepertoire].rating = 0;
    // Seed 7 draws 0.7544 and 0.9493: e1 = 75, e2 = 94; 60 + 45 - round(56.4) = 49
    g.rng.seed(7);
    EXPECT_EQ(applyDepartmentError(g, 60, artistAndRepertoire), 49);
    // Seed 5 draws 0.6731 and 0.0385: e1 = 67, e2 = 3; 40 + round(26.8) - round(1.2) = 66
    g.rng.seed(5);
    EXPECT_EQ(applyDepartmentError(g, 40, artistAndRepertoire), 66);
    // and 90 + round(60.3) - round(2.7) = 147, held at 100
    g.rng.seed(5);
    EXPECT_EQ(applyDepartmentError(g, 90, artistAndRepertoire), 100);
    // At rating 50 the draws span half: e1 = Int(0.7544 x 50) = 37, e2 = 47; 60 + round(22.2) - round(28.2) = 54
    g.label->department[artistAndRepertoire].rating = 50;
    g.rng.seed(7);
    EXPECT_EQ(applyDepartmentError(g, 60, artistAndRepertoire), 54);
}

// A whole stretch of play on a taken-over label: a head released, two hired,
// a department restaffed, five months played to 2 January 2005 with the
// invariants checked after every day, and the books surviving a save and load.
#include <gtest/gtest.h>

#include "label/departments.h"
#include "label/staff.h"
#include "session/save_load.h"
#include "support/taken_over_game.h"

using namespace trovane;

namespace {

class TakenOverLabel : public ::testing::Test, public test::TakenOverGame {
protected:
    int16_t formerBoss = 0, oldHead = 0, ann = 0, bob = 0;

    int16_t addStaff(const char* forename, int16_t employer, uint8_t department, uint8_t ability) {
        g.staff.rec = StaffRecord{.forename = forename,
                                  .surname = "Gray",
                                  .male = kTrue,
                                  .ability = ability,
                                  .reputation = {30, 20, 20, 10, 10},
                                  .employer = employer,
                                  .department = department,
                                  .hiredOn = serialFromCivil(2002, 3, 1)};
        return static_cast<int16_t>(g.staff.append());
    }

    TakenOverLabel() : TakenOverGame(2024) {
        g.label.read(label);
        formerBoss = g.label->boss;
        oldHead = addStaff("Olly", label, marketing, 60);
        ann = addStaff("Ann", 0, 0, 80);
        bob = addStaff("Bob", 0, 0, 40);
        g.label.read(label);
        g.label->department[marketing].head = oldHead;
        g.label->department[security].staffAtLevel = {2, 3, 0, 0, 1};
        g.label.write();
        takeOver(label);
    }
};

}  // namespace

TEST_F(TakenOverLabel, PlaysToTheNewYearWithItsBooksAndStaffInOrder) {
    auto broken = checkInvariants(g);
    ASSERT_FALSE(broken) << "the new game: " << describeBreak(*broken);

    ASSERT_EQ(checkTerminateStaff(g, oldHead), "");
    terminateStaff(g, oldHead);
    ASSERT_NO_FATAL_FAILURE(playDay());
    g.label.read(label);
    EXPECT_EQ(g.label->department[marketing].head, 0);

    ASSERT_EQ(checkApproachStaff(g, ann), "");
    g.staff.read(ann);
    approachStaff(g, ann, marketing, 10 * 1000, 3);  // well above any asked wage
    approachStaff(g, bob, financeAndLaw, 10 * 1000, 2);
    for (int i = 0; i < 10; ++i) ASSERT_NO_FATAL_FAILURE(playDay());

    ASSERT_EQ(checkDepartmentLevels(security, {0, 0, 4, 0, 0}), "");
    setDepartmentLevels(g, security, {0, 0, 4, 0, 0});
    while (g.gameDate < serialFromCivil(2005, 1, 2)) ASSERT_NO_FATAL_FAILURE(playDay());

    g.label.read(label);
    EXPECT_EQ(g.label->department[marketing].head, ann);
    EXPECT_EQ(g.label->department[financeAndLaw].head, bob);
    EXPECT_EQ(g.label->department[security].staffAtLevel[2], 4);
    EXPECT_EQ(g.label->department[security].rating, 8);  // weighted 12 -> 8
    g.staff.read(formerBoss);
    EXPECT_EQ(g.staff->employer, label) << "the old boss still works there, heading nothing";
    auto ledgerRows = [&] {
        int rows = 0;
        for (int32_t n = 1; n != g.ledger.recordCount(); ++n) rows += (g.ledger.read(n), g.ledger->label == label);
        return rows;
    };
    const int rows = ledgerRows();
    EXPECT_EQ(rows, 1 + 6);  // opening; 1 Sep, 1 Oct, 1 Nov, 1 Dec, 31 Dec, 1 Jan

    // The books come back with the game.
    saveGame(g, 4, "New year");
    ASSERT_NO_FATAL_FAILURE(playDay());
    loadGame(g, 4);
    EXPECT_EQ(g.gameDate, serialFromCivil(2005, 1, 2));
    broken = checkInvariants(g);
    EXPECT_FALSE(broken) << describeBreak(*broken);
    EXPECT_EQ(ledgerRows(), rows);
}

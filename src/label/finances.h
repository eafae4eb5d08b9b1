#pragma once
// A label's books: every sum of money the game moves goes through addIncome or
// addExpense with a category, so the three periods of the balance sheet always
// add up to what the cash balance did.
#include <array>
#include <cstdint>

#include "world/numbers.h"

namespace trovane {

class Game;
struct LabelRecord;
struct LedgerPeriod;

// Ledger categories. Expenses 100 to 107, income 108 to 113.
enum LedgerCategory : int {
    ledgerWages = 100,
    ledgerAdvances = 101,
    ledgerProduction = 102,
    ledgerStudioFees = 103,
    ledgerManufacture = 104,
    ledgerBusinessUpkeep = 105,
    ledgerRoyaltiesPaid = 106,
    ledgerOtherExpense = 107,
    ledgerUnlistedIncome = 108,
    ledgerRecordSales = 109,
    ledgerInvestments = 110,
    ledgerBusinesses = 111,
    ledgerRecoupedAdvances = 112,
    ledgerOtherIncome = 113,
};

// a + b; a sum past the 64 bits of a currency field is a fatal error.
Money addMoney(Money a, Money b);

// The running total of a category in one period of the label (0 this month,
// 1 last month, 2 this year). A category outside 100 to 113 is a fatal error.
Money& ledgerEntry(LabelRecord& label, int period, int category);

// On the current label: the amount is added to the category in this month and
// this year (never last month) and to the cash balance, and the label is
// written. For the player's label the session's copy of the cash, which the
// status bar shows, follows.
void addIncome(Game& g, Money amount, int category);
// The same, the amount taken from the cash balance.
void addExpense(Game& g, Money amount, int category);

// Label `label`'s points in the market are raised, and its boss and every
// department head earn the same points. The label buffer then holds the label
// as written, and the staff buffer the last earner.
void addLabelPoints(Game& g, int16_t label, int market, int32_t amount);

// On the current staff member: the market's points are raised and the record written.
void addStaffPoints(Game& g, int market, int32_t amount);

// On the current label, for each market with a positive delta: the hype meter
// rises by it, and once it passes the reputation the reputation goes up one and
// the meter starts again from what is left over; a meter below -100 costs a
// point of reputation and restarts at minus the new reputation. Reputation
// stays within 0 to 100. The label is written.
void addLabelHype(Game& g, const std::array<int16_t, 5>& deltas);

// The five reputations of a label added.
int labelReputationSum(const LabelRecord& label);

// A month's interest on a balance: nothing at 0 or below, else the balance
// times the Finance and Law rating squared over 1,000,000, in whole
// ten-thousandths, a half going to the even one.
Money monthlyInterest(Money cash, int rating);
// Books the current label's monthly interest as investment income.
void payInterest(Game& g);

// Friday: every label pays its weekly wage bill, whatever its cash.
void takeLabelWages(Game& g);

// Closes the current label's month: interest, then (at the year's end) the
// year cleared, last month takes this month, this month cleared. Royalties
// paid are never cleared. The closed month goes into the books' history.
void closeLabelMonth(Game& g, bool yearEnd);
// The first of every month and 31 December: every label closes its month;
// only 31 December clears the year.
void updateLabelFinances(Game& g);

// Appends a row to the books' history of a label, dated today. The ledger
// buffer is left on the new row.
void appendLedgerRow(Game& g, int16_t label, const LedgerPeriod& figures, Money cash);
// A new game's history: each label's opening cash and this month's figures.
void writeOpeningLedgerRows(Game& g);

}  // namespace trovane

#include "label/finances.h"

#include <algorithm>

#include <fmt/format.h>

#include "label/departments.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/record_bytes.h"

namespace trovane {

namespace {

std::size_t marketIndex(int market) {
    if (market < 0 || market > 4) throw FatalError(fmt::format("There is no market {}", market));
    return static_cast<std::size_t>(market);
}

void book(Game& g, Money amount, int category) {
    LabelRecord& label = g.label.rec;
    for (int period : {0, 2}) {
        Money& entry = ledgerEntry(label, period, category);
        entry = addMoney(entry, amount);
    }
    label.cashBalance = addMoney(label.cashBalance, amount);
    g.label.write();
    if (label.id != 0 && label.id == g.player.playerLabel) g.player.playerLabelCash = label.cashBalance;
}

}  // namespace

Money addMoney(Money a, Money b) {
    Money out = 0;
    if (__builtin_add_overflow(a, b, &out)) throwOverflow("64-bit", static_cast<double>(a) + static_cast<double>(b));
    return out;
}

Money& ledgerEntry(LabelRecord& label, int period, int category) {
    if (period < 0 || period > 2) throw FatalError(fmt::format("There is no ledger period {}", period));
    LedgerPeriod& p = label.period[static_cast<std::size_t>(period)];
    if (category >= ledgerWages && category <= ledgerOtherExpense)
        return p.expense[static_cast<std::size_t>(category - ledgerWages)];
    if (category >= ledgerUnlistedIncome && category <= ledgerOtherIncome)
        return p.income[static_cast<std::size_t>(category - ledgerUnlistedIncome)];
    throw FatalError(fmt::format("There is no ledger category {}", category));
}

void addIncome(Game& g, Money amount, int category) { book(g, amount, category); }

void addExpense(Game& g, Money amount, int category) {
    if (amount == INT64_MIN) throwOverflow("64-bit", -static_cast<double>(amount));
    book(g, -amount, category);
}

void addLabelPoints(Game& g, int16_t label, int market, int32_t amount) {
    std::size_t m = marketIndex(market);
    static const std::size_t kLabelPoints = offsetIn<LabelRecord>("points");
    patchField<int32_t>(g.label, label, kLabelPoints + m * sizeof(int32_t),
                        [&](int32_t points) { return narrow<int32_t>(static_cast<int64_t>(points) + amount); });
    g.label.read(label);
    // Earners are taken from the buffer before it can be read over.
    std::array<int16_t, 7> earners{};
    earners[0] = g.label->boss;
    for (std::size_t d = 0; d < 6; ++d) earners[d + 1] = g.label->department[d].head;
    // Each earner's points move in the record's bytes; the buffer ends on the
    // last earner, as reading and writing each in turn would leave it.
    static const std::size_t kStaffPoints = offsetIn<StaffRecord>("points");
    int16_t last = 0;
    for (int16_t s : earners) {
        if (s <= 0) continue;
        patchField<int32_t>(g.staff, s, kStaffPoints + m * sizeof(int32_t),
                            [&](int32_t points) { return narrow<int32_t>(static_cast<int64_t>(points) + amount); });
        last = s;
    }
    if (last > 0) g.staff.read(last);
}

void addStaffPoints(Game& g, int market, int32_t amount) {
    std::size_t m = marketIndex(market);
    g.staff->points[m] = narrow<int32_t>(static_cast<int64_t>(g.staff->points[m]) + amount);
    g.staff.write();
}

void addLabelHype(Game& g, const std::array<int16_t, 5>& deltas) {
    LabelRecord& label = g.label.rec;
    for (std::size_t m = 0; m < 5; ++m) {
        if (deltas[m] > 0) label.hype[m] = narrow<int16_t>(label.hype[m] + deltas[m]);
        int reputation = label.reputation[m];
        if (label.hype[m] > reputation) {
            reputation = std::clamp(reputation + 1, 0, 100);
            label.hype[m] = narrow<int16_t>(label.hype[m] - reputation);
        } else if (label.hype[m] < -100) {
            reputation = std::clamp(reputation - 1, 0, 100);
            label.hype[m] = narrow<int16_t>(-reputation);
        }
        label.reputation[m] = static_cast<uint8_t>(reputation);
    }
    g.label.write();
}

int labelReputationSum(const LabelRecord& label) {
    int sum = 0;
    for (uint8_t r : label.reputation) sum += r;
    return sum;
}

Money monthlyInterest(Money cash, int rating) {
    if (cash <= 0) return 0;
    // Whole ten-thousandths, the half going to the even one, worked in whole
    // numbers so that no unit is lost on a large balance: the balance is split
    // into millions and the rest, so no product leaves 64 bits unnoticed.
    constexpr int64_t million = 1'000'000;
    const int64_t squared = static_cast<int64_t>(rating) * rating;
    int64_t q = 0;
    if (__builtin_mul_overflow(cash / million, squared, &q))
        throwOverflow("64-bit", static_cast<double>(cash) * static_cast<double>(squared) / million);
    const int64_t part = cash % million * squared;
    q += part / million;
    const int64_t rest = part % million;
    if (rest * 2 > million || (rest * 2 == million && q % 2 != 0)) ++q;
    return q;
}

void payInterest(Game& g) {
    const int rating = g.label->department[financeAndLaw].rating;
    const Money interest = monthlyInterest(g.label->cashBalance, rating);
    if (interest > 0) addIncome(g, interest, ledgerInvestments);
}

void takeLabelWages(Game& g) {
    for (int32_t n = 1; n != g.label.recordCount(); ++n) {
        g.label.read(n);
        addExpense(g, g.label->wageBill, ledgerWages);
    }
}

namespace {

// Every category of a period but the royalties paid, which run from the start of the game.
void clearPeriod(LedgerPeriod& p) {
    const Money royalties = p.expense[ledgerRoyaltiesPaid - ledgerWages];
    p.income.fill(0);
    p.expense.fill(0);
    p.expense[ledgerRoyaltiesPaid - ledgerWages] = royalties;
}

}  // namespace

void closeLabelMonth(Game& g, bool yearEnd) {
    payInterest(g);
    LabelRecord& label = g.label.rec;
    if (yearEnd) clearPeriod(label.period[2]);
    label.period[1] = label.period[0];
    clearPeriod(label.period[0]);
    g.label.write();
    appendLedgerRow(g, label.id, label.period[1], label.cashBalance);
}

void updateLabelFinances(Game& g) {
    // Only the last day of the year closes the year: the run of 1 December does not.
    const bool yearEnd = monthOf(g.gameDate) == 12 && dayOf(g.gameDate) == 31;
    for (int32_t n = 1; n != g.label.recordCount(); ++n) {
        g.label.read(n);
        closeLabelMonth(g, yearEnd);
    }
}

void appendLedgerRow(Game& g, int16_t label, const LedgerPeriod& figures, Money cash) {
    g.ledger.rec = LedgerRecord{};
    g.ledger->label = label;
    g.ledger->date = g.gameDate;
    g.ledger->figures = figures;
    g.ledger->cash = cash;
    g.ledger.append();
}

void writeOpeningLedgerRows(Game& g) {
    for (int32_t n = 1; n != g.label.recordCount(); ++n) {
        g.label.read(n);
        appendLedgerRow(g, g.label->id, g.label->period[0], g.label->cashBalance);
    }
}

}  // namespace trovane

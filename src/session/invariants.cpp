#include "session/invariants.h"

#include <array>
#include <vector>

#include <fmt/format.h>

#include "label/departments.h"
#include "label/finances.h"
#include "world/game.h"

namespace trovane {

namespace {

// A record read without touching the table's buffer.
template <class R>
R copyOf(const Table<R>& t, int32_t n) {
    R r{};
    decodeRecord(t.bytesOf(n).data(), r);
    return r;
}

std::string money(Money m) { return fmt::format("{:.4f}", moneyToDouble(m)); }

InvariantBreak labelBreak(int32_t n, std::string field, const char* rule, std::string detail) {
    return {"label", n, std::move(field), rule, std::move(detail)};
}

// What a period has gained over its base: expenses are booked as negative
// amounts, so income less expense is the sum of every category.
Money gainOver(const LedgerPeriod& now, const LedgerPeriod& base) {
    Money gain = 0;
    for (std::size_t i = 0; i < now.income.size(); ++i) gain += now.income[i] - base.income[i];
    for (std::size_t i = 0; i < now.expense.size(); ++i) gain += now.expense[i] - base.expense[i];
    return gain;
}

// A label's cash is its last ledger row's cash plus what this month has
// gained since. After a month's close this month starts from nothing but the
// royalties paid, which run on; after the opening row it starts from the
// opening figures.
std::optional<InvariantBreak> labelCashMatchesLedger(Game& g) {
    const int32_t labels = g.label.recordCount() - 1;
    std::vector<int32_t> last(static_cast<std::size_t>(labels) + 1, 0);
    std::vector<int32_t> rows(static_cast<std::size_t>(labels) + 1, 0);
    for (int32_t n = 1; n != g.ledger.recordCount(); ++n) {
        const LedgerRecord row = copyOf(g.ledger, n);
        if (row.label < 1 || row.label > labels)
            return InvariantBreak{"ledger", n, "label", "ledgerRowNamesALabel",
                                  fmt::format("label {} of {}", row.label, labels)};
        last[static_cast<std::size_t>(row.label)] = n;
        ++rows[static_cast<std::size_t>(row.label)];
    }
    for (int32_t n = 1; n <= labels; ++n) {
        const LabelRecord l = copyOf(g.label, n);
        const auto at = static_cast<std::size_t>(n);
        if (last[at] == 0) return labelBreak(n, "cashBalance", "labelCashMatchesLedger", "the label has no books");
        const LedgerRecord row = copyOf(g.ledger, last[at]);
        LedgerPeriod base{};
        if (rows[at] == 1) {
            base = row.figures;
        } else {
            const std::size_t royalties = ledgerRoyaltiesPaid - ledgerWages;
            base.expense[royalties] = row.figures.expense[royalties];
        }
        const Money expected = row.cash + gainOver(l.period[0], base);
        if (l.cashBalance != expected)
            return labelBreak(n, "cashBalance", "labelCashMatchesLedger",
                              fmt::format("holds {}, the books (ledger row {}) say {}", money(l.cashBalance), last[at],
                                          money(expected)));
    }
    return std::nullopt;
}

std::optional<InvariantBreak> staffLevelsWithinBounds(Game& g) {
    for (int32_t n = 1; n != g.label.recordCount(); ++n) {
        const LabelRecord l = copyOf(g.label, n);
        for (std::size_t d = 0; d < l.department.size(); ++d)
            for (std::size_t i = 0; i < kLevelBounds.size(); ++i)
                if (l.department[d].staffAtLevel[i] > kLevelBounds[i])
                    return labelBreak(
                        n, fmt::format("department[{}].staffAtLevel[{}]", d, i), "staffLevelsWithinBounds",
                        fmt::format("{} staff, at most {}", l.department[d].staffAtLevel[i], kLevelBounds[i]));
    }
    return std::nullopt;
}

std::optional<InvariantBreak> departmentHeadsWorkThere(Game& g) {
    const int32_t staff = g.staff.recordCount() - 1;
    for (int32_t n = 1; n != g.label.recordCount(); ++n) {
        const LabelRecord l = copyOf(g.label, n);
        for (std::size_t d = 0; d < l.department.size(); ++d) {
            const int16_t head = l.department[d].head;
            if (head == 0) continue;
            const std::string field = fmt::format("department[{}].head", d);
            if (head < 0 || head > staff)
                return labelBreak(n, field, "departmentHeadsWorkThere", fmt::format("staff {} of {}", head, staff));
            const StaffRecord s = copyOf(g.staff, head);
            if (s.employer != n || s.department != d)
                return labelBreak(
                    n, field, "departmentHeadsWorkThere",
                    fmt::format("staff {} works for label {} in department {}", head, s.employer, s.department));
        }
    }
    return std::nullopt;
}

std::optional<InvariantBreak> departmentRatingsFollowStaff(Game& g) {
    for (int32_t n = 1; n != g.label.recordCount(); ++n) {
        const LabelRecord l = copyOf(g.label, n);
        for (std::size_t d = 0; d < l.department.size(); ++d) {
            const Department& dep = l.department[d];
            if (dep.head < 0 || dep.head >= g.staff.recordCount()) continue;  // the heads' rule reports it
            const int ability = dep.head > 0 ? copyOf(g.staff, dep.head).ability : -1;
            const int expected = departmentRatingOf(dep, ability);
            if (dep.rating != expected)
                return labelBreak(n, fmt::format("department[{}].rating", d), "departmentRatingsFollowStaff",
                                  fmt::format("holds {}, its staff give {}", dep.rating, expected));
        }
    }
    return std::nullopt;
}

std::optional<InvariantBreak> wageBillIsItsDepartments(Game& g) {
    for (int32_t n = 1; n != g.label.recordCount(); ++n) {
        const LabelRecord l = copyOf(g.label, n);
        Money expected = 0;
        for (const Department& dep : l.department) {
            int64_t pay = 0;
            for (std::size_t i = 0; i < kLevelPay.size(); ++i)
                pay += static_cast<int64_t>(dep.staffAtLevel[i]) * kLevelPay[i];
            expected += moneyUnits(pay);
            if (dep.head > 0 && dep.head < g.staff.recordCount()) expected += copyOf(g.staff, dep.head).wage;
        }
        if (l.wageBill != expected)
            return labelBreak(n, "wageBill", "wageBillIsItsDepartments",
                              fmt::format("holds {}, its departments cost {}", money(l.wageBill), money(expected)));
    }
    return std::nullopt;
}

std::optional<InvariantBreak> playerCashIsTheLabels(Game& g) {
    const int16_t player = g.player.playerLabel;
    if (player < 1 || player >= g.label.recordCount())
        return InvariantBreak{"session", 0, "playerLabel", "playerCashIsTheLabels",
                              fmt::format("label {} of {}", player, g.label.recordCount() - 1)};
    const LabelRecord l = copyOf(g.label, player);
    if (g.player.playerLabelCash != l.cashBalance)
        return InvariantBreak{
            "session", 0, "playerLabelCash", "playerCashIsTheLabels",
            fmt::format("holds {}, label {} has {}", money(g.player.playerLabelCash), player, money(l.cashBalance))};
    return std::nullopt;
}

constexpr std::array kRules = {
    InvariantRule{"playerCashIsTheLabels", playerCashIsTheLabels},
    InvariantRule{"labelCashMatchesLedger", labelCashMatchesLedger},
    InvariantRule{"staffLevelsWithinBounds", staffLevelsWithinBounds},
    InvariantRule{"departmentHeadsWorkThere", departmentHeadsWorkThere},
    InvariantRule{"departmentRatingsFollowStaff", departmentRatingsFollowStaff},
    InvariantRule{"wageBillIsItsDepartments", wageBillIsItsDepartments},
};

}  // namespace

std::string describeBreak(const InvariantBreak& b) {
    return fmt::format("table {}, record {}, field {}: rule {} broken ({})", b.table, b.record, b.field, b.rule,
                       b.detail);
}

std::span<const InvariantRule> invariantRules() { return kRules; }

std::optional<InvariantBreak> checkInvariants(Game& g) {
    for (const InvariantRule& rule : kRules)
        if (auto broken = rule.check(g)) return broken;
    return std::nullopt;
}

}  // namespace trovane

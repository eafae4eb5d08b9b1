#include "label/label_details.h"

#include <fmt/format.h>

#include "floor/formats.h"
#include "label/departments.h"
#include "label/finances.h"
#include "label/staff.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

template <class R>
R copyOf(const Table<R>& t, int32_t n) {
    R r{};
    decodeRecord(t.bytesOf(n).data(), r);
    return r;
}

std::string labelNameOf(Game& g, int16_t n) {
    if (n < 1 || n >= g.label.recordCount()) return "None";
    return trim(copyOf(g.label, n).name.value);
}

std::string staffNameOf(Game& g, int16_t n) {
    if (n < 1 || n >= g.staff.recordCount()) return "None";
    return staffName(copyOf(g.staff, n));
}

std::string styleNameOf(Game& g, int n, const char* none) {
    if (n < 1 || n >= g.style.recordCount()) return none;
    return trim(copyOf(g.style, n).name.value);
}

// "Head of ..." for a department's head, "Label Boss" for a boss, else "None".
std::string postOf(Game& g, const StaffRecord& s, int16_t staff) {
    if (s.employer < 1 || s.employer >= g.label.recordCount()) return "None";
    const LabelRecord l = copyOf(g.label, s.employer);
    if (l.boss == staff) return "Label Boss";
    if (s.department < 6 && l.department[s.department].head == staff)
        return "Head of " + std::string(kDepartmentNames[s.department]);
    return "None";
}

BooksColumn column(const LedgerPeriod& p, std::string name) {
    BooksColumn c;
    c.period = std::move(name);
    // Income 108 is shown only in the total.
    c.incomeTotal = p.income[0];
    for (std::size_t i = 0; i < 5; ++i) {
        c.income[i] = p.income[i + 1];
        c.incomeTotal += c.income[i];
    }
    for (std::size_t i = 0; i < 8; ++i) {
        c.expense[i] = -p.expense[i];  // booked below 0, shown as paid
        c.expenseTotal += c.expense[i];
    }
    return c;
}

}  // namespace

LabelDetails labelDetails(Game& g, int16_t label) {
    const LabelRecord l = copyOf(g.label, label);
    LabelDetails d;
    d.label = label;
    d.playersOwn = label == g.player.playerLabel;
    d.name = trim(l.name.value);
    for (std::size_t m = 0; m < 5; ++m) {
        d.points[m] = l.points[m];
        d.pointsTotal += l.points[m];
        d.reputation[m] = fmt::format("{}%", l.reputation[m]);
    }
    if (l.city > 0 && l.city < g.city.recordCount()) d.city = trim(copyOf(g.city, l.city).name.value);
    d.age = yearOf(g.gameDate) - 1900 - l.founded;
    d.boss = staffNameOf(g, l.boss);
    d.style = styleNameOf(g, l.labelStyle, "All");
    d.independence = l.parentLabel > 0 ? labelNameOf(g, l.parentLabel) : "Independent Label";
    d.bands = l.bandCount;
    d.salesTotals = l.salesTotals;
    d.chartCounts = l.chartCounts;
    d.cash = l.cashBalance;
    d.wageBill = l.wageBill;
    for (std::size_t i = 0; i < 6; ++i) {
        const Department& dep = l.department[i];
        DepartmentView& v = d.departments[i];
        v.department = std::string(kDepartmentNames[i]);
        for (std::size_t k = 0; k < 5; ++k) v.levels[k] = dep.staffAtLevel[k];
        v.rating = fmt::format("{}%", dep.rating);
        v.head = dep.head > 0 ? staffNameOf(g, dep.head) : "None";
        v.wages = moneyUnits(levelWages(dep));
        if (dep.head > 0 && dep.head < g.staff.recordCount()) v.wages += copyOf(g.staff, dep.head).wage;
    }
    return d;
}

std::array<BooksColumn, 3> labelBooks(Game& g, int16_t label) {
    const LabelRecord l = copyOf(g.label, label);
    return {column(l.period[0], "This Month"), column(l.period[1], "Last Month"), column(l.period[2], "This Year")};
}

std::vector<HistoryRow> labelHistory(Game& g, int16_t label) {
    std::vector<HistoryRow> rows;
    for (int32_t n = 1; n != g.ledger.recordCount(); ++n) {
        const LedgerRecord r = copyOf(g.ledger, n);
        if (r.label != label) continue;
        rows.push_back({r.date, column(r.figures, formatDate(r.date, "yyyy-mm-dd")), r.cash});
    }
    return rows;
}

StaffDetails staffDetails(Game& g, int16_t staff) {
    const StaffRecord s = copyOf(g.staff, staff);
    StaffDetails d;
    d.staff = staff;
    d.name = staffName(s);
    d.age = s.age;
    if (s.country > 0 && s.country < g.country.recordCount())
        d.nationality = trim(copyOf(g.country, s.country).adjective.value);
    d.post = postOf(g, s, staff);
    d.ability = s.ability;
    for (std::size_t m = 0; m < 5; ++m) {
        d.reputation[m] = s.reputation[m];
        d.points[m] = s.points[m];
    }
    d.employer = s.employer > 0 ? labelNameOf(g, s.employer) : "None";
    d.wage = s.wage;
    d.hiredOn = s.hiredOn;
    d.contractEnd = s.contractEnd;
    for (std::size_t i = 0; i < 9; ++i) d.aptitude[i] = s.aptitude[i];
    d.preferredStyle = styleNameOf(g, s.aptitude[9], "None");
    d.playersOwn = staff == g.player.playerStaff;
    d.employedByPlayer = !d.playersOwn && s.employer != 0 && s.employer == g.player.playerLabel;
    d.employedElsewhere = s.employer != 0 && s.employer != g.player.playerLabel;
    d.approachedByPlayer = s.employer == 0 && s.offerLabel != 0 && s.offerLabel == g.player.playerLabel;
    return d;
}

}  // namespace trovane

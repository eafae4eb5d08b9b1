#include "browse/people_browse.h"

#include "floor/formats.h"
#include "label/departments.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

bool nameMatches(const std::string& wanted, const std::string& name) {
    return trim(wanted).empty() || trim(wanted) == trim(name);
}

}  // namespace

void populateStaffGrid(Game& g, const std::string& name, const GridSort& sort, Grid& grid) {
    grid.caption = "Staff Search";
    grid.columns = {{"Name", 2400},  {"Age", 500},         {"Nationality", 1400},
                    {"Label", 2200}, {"Department", 2000}, {"Wage (per week)", 1500}};
    grid.rows.clear();
    for (int32_t n = 1; n < g.staff.recordCount(); ++n) {
        g.staff.read(n);
        const StaffRecord s = g.staff.rec;
        const std::string full = trim(s.forename.value) + " " + trim(s.surname.value);
        if (!nameMatches(name, full)) continue;
        std::string nationality, label, department;
        if (s.country > 0 && s.country < g.country.recordCount()) {
            g.country.read(s.country);
            nationality = trim(g.country->adjective.value);
        }
        if (s.employer > 0 && s.employer < g.label.recordCount()) {
            g.label.read(s.employer);
            label = trim(g.label->name.value);
            if (s.department < kDepartmentNames.size()) department = std::string(kDepartmentNames[s.department]);
        }
        GridRow row;
        row.record = s.id;
        row.cells = {{full, {}},        {std::to_string(s.age), static_cast<double>(s.age)},
                     {nationality, {}}, {label, {}},
                     {department, {}},  {formatMoney(g, s.wage, "###,###,##0"), moneyToDouble(s.wage)}};
        grid.rows.push_back(std::move(row));
    }
    sortGrid(grid, sort);
}

void populateLabelGrid(Game& g, const std::string& name, const GridSort& sort, Grid& grid) {
    grid.caption = "Label Search";
    grid.columns = {{"Name", 2800}, {"Style", 2000}};
    grid.rows.clear();
    for (int32_t n = 1; n < g.label.recordCount(); ++n) {
        g.label.read(n);
        const LabelRecord l = g.label.rec;
        if (!nameMatches(name, l.name.value)) continue;
        std::string style = "All Styles";
        if (l.labelStyle > 0 && l.labelStyle < g.style.recordCount()) {
            g.style.read(l.labelStyle);
            style = trim(g.style->name.value);
        }
        grid.rows.push_back({{{trim(l.name.value), {}}, {style, {}}}, l.id});
    }
    sortGrid(grid, sort);
}

}  // namespace trovane

#include "label/departments.h"

#include <algorithm>
#include <cmath>

#include "world/game.h"

namespace trovane {

void setDepartmentRating(Game& g, int d) {
    Department& dep = g.label->department[static_cast<std::size_t>(d)];
    const auto& s = dep.staffAtLevel;
    int weighted = s[0] * 5 + s[1] * 4 + s[2] * 3 + s[3] * 2 + s[4];
    int rating = std::min(weighted / 10 * 8, 80);
    if (dep.head > 0) {
        g.staff.read(dep.head);
        dep.rating = roundTo<uint8_t>(rating + g.staff->ability / 20.0);
    } else {
        dep.rating = static_cast<uint8_t>(rating);
    }
}

int applyDepartmentError(Game& g, int value, int d) {
    const int q = g.label->department[static_cast<std::size_t>(d)].rating;
    const int e1 = static_cast<int>(std::floor(g.rng.draw() * (100 - q)));
    const int e2 = static_cast<int>(std::floor(g.rng.draw() * (100 - q)));
    const int moved = value + toInteger(value * e1 / 100.0) - toInteger(value * e2 / 100.0);
    return std::clamp(moved, 0, 100);
}

void setStaffWage(Game& g) {
    const auto& r = g.staff->reputation;
    double standing = roundHalfEven((r[0] * 8 + r[1] * 10 + r[2] * 7 + r[3] * 5 + r[4] * 3) / 33.0);
    g.staff->wage = moneyUnits(roundTo<int32_t>(standing * 2 * g.staff->ability * 32 / 52.0));
}

}  // namespace trovane

#include "label/departments.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "world/game.h"

namespace trovane {

int departmentRatingOf(const Department& dep, int headAbility) {
    const auto& s = dep.staffAtLevel;
    int weighted = s[0] * 5 + s[1] * 4 + s[2] * 3 + s[3] * 2 + s[4];
    int rating = std::min(weighted / 10 * 8, 80);
    if (headAbility < 0) return rating;
    return roundTo<uint8_t>(rating + headAbility / 20.0);
}

void setDepartmentRating(Game& g, int d) {
    Department& dep = g.label->department[static_cast<std::size_t>(d)];
    int headAbility = -1;
    if (dep.head > 0) {
        g.staff.read(dep.head);
        headAbility = g.staff->ability;
    }
    dep.rating = static_cast<uint8_t>(departmentRatingOf(dep, headAbility));
}

int32_t levelWages(const Department& dep) {
    int32_t pay = 0;
    for (std::size_t i = 0; i < kLevelPay.size(); ++i) pay += narrow<int16_t>(dep.staffAtLevel[i] * kLevelPay[i]);
    return pay;
}

Money departmentWages(Game& g, int d) {
    const Department& dep = g.label->department[static_cast<std::size_t>(d)];
    Money wages = moneyUnits(levelWages(dep));
    if (dep.head > 0) {
        g.staff.read(dep.head);
        wages += g.staff->wage;
    }
    return wages;
}

void updateWageBill(Game& g) {
    Money bill = 0;
    for (int d = 0; d < 6; ++d) bill += departmentWages(g, d);
    g.label->wageBill = bill;
}

std::string checkDepartmentLevels(int d, const std::array<int, 5>& levels) {
    if (d < 0 || d > 5) return fmt::format("There is no department {}: they are numbered 0 to 5", d);
    for (std::size_t i = 0; i < levels.size(); ++i)
        if (levels[i] < 0 || levels[i] > kLevelBounds[i])
            return fmt::format("Level {} takes 0 to {} staff, not {}", i + 1, kLevelBounds[i], levels[i]);
    return "";
}

void setDepartmentLevels(Game& g, int d, const std::array<int, 5>& levels) {
    g.label.read(g.player.playerLabel);
    Department& dep = g.label->department[static_cast<std::size_t>(d)];
    for (std::size_t i = 0; i < levels.size(); ++i) dep.staffAtLevel[i] = narrow<uint8_t>(levels[i]);
    setDepartmentRating(g, d);
    updateWageBill(g);
    g.label.write();
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

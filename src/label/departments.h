#pragma once
// A label's six departments and the people who head them.
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "world/numbers.h"

namespace trovane {

class Game;

enum DepartmentNo : int {
    artistAndRepertoire = 0,
    financeAndLaw = 1,
    hospitality = 2,
    marketing = 3,
    publicRelations = 4,
    security = 5,
};

inline constexpr std::array<std::string_view, 6> kDepartmentNames = {
    "Artist and Repertoire", "Finance and Law", "Hospitality", "Marketing", "Public Relations", "Security"};

// A week's pay of one member of staff at each level, best first.
inline constexpr std::array<int, 5> kLevelPay = {1500, 1350, 1200, 1100, 1000};
// The most staff a level may have: a level's wages are a 16-bit figure.
inline constexpr std::array<int, 5> kLevelBounds = {21, 24, 27, 29, 32};

struct Department;

// The wages of a department's staff by level, in whole units, before its
// head. A level whose wages pass 32,767 is a fatal error.
int32_t levelWages(const Department& dep);
// A department's rating from its staff and, when it has a head (headAbility
// 0 or more; -1 for none), the head's ability.
int departmentRatingOf(const Department& dep, int headAbility);

// A week's wages of the current label's department d: its staff by level and
// its head's wage. A level whose wages pass 32,767 is a fatal error. Reads
// the head into the staff buffer.
Money departmentWages(Game& g, int d);
// The current label's wageBill: the six departments' wages. Not written.
void updateWageBill(Game& g);

// Why the player's label cannot take these level counts in department d, or
// "" when it can. Changes nothing.
std::string checkDepartmentLevels(int d, const std::array<int, 5>& levels);
// cmdHireFire's lock: the player's label takes the counts, the department's
// rating and the wage bill follow, and the label is written.
void setDepartmentLevels(Game& g, int d, const std::array<int, 5>& levels);

// The current label's department d: staff give at most 80, the head at most 5 more.
void setDepartmentRating(Game& g, int d);
// A staff report's reading of a true figure (0 to 100) by department d of the
// current label: two draws of up to 100 less the department's rating percent,
// one added and one taken away, held 0 to 100. A rating of 100 reads true.
int applyDepartmentError(Game& g, int value, int d);
// The current staff member's weekly wage from reputation and ability.
void setStaffWage(Game& g);

}  // namespace trovane

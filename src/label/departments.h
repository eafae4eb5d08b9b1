#pragma once
// A label's six departments and the people who head them.
#include <cstdint>

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

// The current label's department d: staff give at most 80, the head at most 5 more.
void setDepartmentRating(Game& g, int d);
// A staff report's reading of a true figure (0 to 100) by department d of the
// current label: two draws of up to 100 less the department's rating percent,
// one added and one taken away, held 0 to 100. A rating of 100 reads true.
int applyDepartmentError(Game& g, int value, int d);
// The current staff member's weekly wage from reputation and ability.
void setStaffWage(Game& g);

}  // namespace trovane

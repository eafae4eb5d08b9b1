#pragma once
// The label's staff: hiring and releasing department heads and their people.

namespace trovane {

class Game;

// Schedule type 2: the staff member of the entry starts in the entry's department.
void hireStaff(Game& g);
// Schedule type 3: the staff member of the entry is released.
void fireStaff(Game& g);

}  // namespace trovane

#include "label/staff.h"

#include "world/game.h"

namespace trovane {

// Not built yet: staff come and go once the departments are written.
void hireStaff(Game& g) { static_cast<void>(g); }
void fireStaff(Game& g) { static_cast<void>(g); }

}  // namespace trovane

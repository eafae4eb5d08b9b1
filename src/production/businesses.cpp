#include "production/businesses.h"

#include "world/game.h"

namespace trovane {

// Not built yet: each runs as an empty step of the day until its rules are written.
void subtractBusinessRunningCosts(Game& g) { static_cast<void>(g); }
void setBusinessCharge(Game& g) { static_cast<void>(g); }

// Not built yet: facilities do not open until businesses are written.
void openBusiness(Game& g) { static_cast<void>(g); }

}  // namespace trovane

#include "production/disc_release.h"

#include "world/game.h"
#include "world/strings.h"

namespace trovane {

// Not built yet: discs are released once pressing and release are written.
void releaseDay(Game& g) { static_cast<void>(g); }
void pressWeek(Game& g) { static_cast<void>(g); }
void distributorNeeded(Game& g) { static_cast<void>(g); }

}  // namespace trovane

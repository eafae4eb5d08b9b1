#include "rivals/rival_touring.h"

#include "world/game.h"

namespace trovane {

// Not built yet: rivals do not tour until their touring is written.
void offerSupportSlot(Game& g) { static_cast<void>(g); }

}  // namespace trovane

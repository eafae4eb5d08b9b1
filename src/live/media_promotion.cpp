#include "live/media_promotion.h"

#include "world/game.h"

namespace trovane {

// Not built yet: appearances do nothing until promotion is written.
void performAppearance(Game& g) { static_cast<void>(g); }

}  // namespace trovane

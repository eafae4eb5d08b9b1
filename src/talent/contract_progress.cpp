#include "talent/contract_progress.h"

#include "world/game.h"

namespace trovane {

// Not built yet: each runs as an empty step of the day until its rules are written.
void updateMonthsRemainingOnOption(Game& g) { static_cast<void>(g); }

// Not built yet: an option's end does nothing until contract progress is written.
void contractPoint(Game& g) { static_cast<void>(g); }

}  // namespace trovane

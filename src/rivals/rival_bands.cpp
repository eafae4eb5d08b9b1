#include "rivals/rival_bands.h"

#include "world/game.h"

namespace trovane {

// Not built yet: each runs as an empty step of the day until its rules are written.
void computerCheckBands(Game& g) { static_cast<void>(g); }

// Not built yet: rivals release no follow-up singles until this is written.
void rivalFollowUpSingle(Game& g) { static_cast<void>(g); }

// Not built yet: a rival takes no decision on an ended option until its rules are written.
void rivalOptionDecision(Game& g) { static_cast<void>(g); }

}  // namespace trovane

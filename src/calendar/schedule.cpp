#include "calendar/schedule.h"

#include "world/game.h"

namespace trovane {

// Not built yet: the dispatch comes with the schedule.
void performDaysEvents(Game& g) { static_cast<void>(g); }

}  // namespace trovane

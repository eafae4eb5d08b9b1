#include "calendar/schedule.h"

#include "world/game.h"

namespace trovane {

// Not built yet: the dispatch comes with the schedule.
void performDaysEvents(Game& g) { static_cast<void>(g); }

// Not built yet: the day index comes with the schedule.
void addScheduleYear(Game& g, int year) {
    static_cast<void>(g);
    static_cast<void>(year);
}

}  // namespace trovane

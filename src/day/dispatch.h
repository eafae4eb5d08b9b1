#pragma once
// Which operation each type of schedule entry runs, and the tests an entry
// must pass before it runs.
#include <cstdint>
#include <string_view>

namespace trovane {

class Game;

// What an entry's band must be for its handler to run.
enum class ScheduleGuard {
    none,
    bandNotRetired,        // signing and offers
    bandFitAndNotRetired,  // a recording day
    gigCanGoAhead,         // a gig
    appearanceCanGoAhead,  // a promotion appearance: a band, fit and not retired
};

struct ScheduleHandler {
    std::string_view name;
    void (*run)(Game&);
    ScheduleGuard guard;
};

// The handler of a type, or nullptr for a type that only occupies its band
// (10 travel, 11 rest), marks something (23) or was called off (255).
const ScheduleHandler* scheduleHandler(int type);

// Runs the entry in the schedule buffer: its guard, its handler, then the
// energy its band spent. A recording day lost to rest extends the booking.
void runScheduleEntry(Game& g);

// True when no member of the current band is away resting (negative energy);
// the first such member decides. A band without members is fit.
bool membersFit(Game& g);

// The guard of a gig, for the entry in the schedule buffer: the gig needs a
// headliner and a tour that has a band or a festival; an entry without a band
// goes ahead; otherwise the entry's band must be neither retired nor resting.
bool gigCanGoAhead(Game& g);

// Carries out every schedule entry of gameDate, in the order they were filed.
// Entries filed for the same day by the handlers wait for nothing: they are
// in the day file, but not run today.
void performDaysEvents(Game& g);

}  // namespace trovane

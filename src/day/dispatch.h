#pragma once
// Which operation each type of schedule entry runs, and the tests an entry
// must pass before it runs.
#include <cstdint>
#include <string_view>

#include "world/records.h"

namespace trovane {

class Game;

// The day's half of a schedule type (its data half is scheduleTypeInfo): the
// operation an entry of the type runs, and what a yes or a no to the news item
// linked to the entry carries out. Each is nullptr where the type has none.
struct ScheduleAction {
    std::string_view name;  // the operation's name, as traces show it
    void (*run)(Game&);
    void (*onYes)(Game&, const ScheduleRecord&);
    void (*onNo)(Game&, const ScheduleRecord&);
};

// The action of a type; a type that runs nothing (10 travel, 11 rest, 23 a
// festival invitation's link, 255 called off) has an empty one.
const ScheduleAction& scheduleAction(int type);

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

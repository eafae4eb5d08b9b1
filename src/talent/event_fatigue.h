#pragma once
// What a day's work costs a band: energy and morale after each schedule entry.

namespace trovane {

class Game;
struct ScheduleRecord;

// Wears out the members of the entry's band for a recording day (7), a gig
// (8), a travel day (10), a rest day (11) or an appearance (17); other types
// cost nothing. A band of the player's worn below a mean energy of 35 asks
// for a break, once until it has recovered.
void applyEventFatigue(Game& g, const ScheduleRecord& entry);

}  // namespace trovane

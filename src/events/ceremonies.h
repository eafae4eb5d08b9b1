#pragma once
// The yearly award ceremonies.

namespace trovane {

class Game;

// The night of a ceremony placed on weekday `weekday` (Sunday 1) of week `week`
// of the year, week 1 starting on 1 January.
double ceremonyNight(int year, int week, int weekday);

// Files the schedule entries of every ceremony of the given year.
void scheduleCeremonies(Game& g, int year);

// Schedule type 13: the ceremony of the entry is held.
void finishCeremony(Game& g);
// Schedule type 14: the nominations of the entry's ceremony.
void judgeCeremony(Game& g);
// Schedule type 21: the player is invited to the entry's ceremony.
void inviteToCeremony(Game& g);

}  // namespace trovane

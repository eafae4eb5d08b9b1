#pragma once
// The yearly award ceremonies.

namespace trovane {

class Game;

// Files the schedule entries of every ceremony of the given year.
void scheduleCeremonies(Game& g, int year);

}  // namespace trovane

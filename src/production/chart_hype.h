#pragma once
// A rise in an act's standing reaches the discs that chart.
#include <cstdint>

namespace trovane {

class Game;

// Adds `rise` to hype[t] (held 1 to 100) of each disc in territory t's album
// and single charts that belongs to `who`: in mode 0 a label, in mode 1 a
// band, in mode 2 the disc itself. Each disc is written. The chart file is
// opened for the walk and closed after unless it is open already. Leaves the
// disc buffer on the last disc read.
void spreadHypeRise(Game& g, int mode, int t, int32_t who, int rise);

}  // namespace trovane

#pragma once
// A working set with no world in it: every table present and empty.

namespace trovane {

class Game;

// The first day of every game: Thursday 5 August 2004.
double gameStartDay();

// Makes g.dataDir a complete, empty working set (the zero-length empty.gam,
// every table of the set as an empty .vel file, prefs.gam and highscore.gam
// when missing, the day files of 2004 and 2005) with the session on the
// first day, and opens it.
void createEmptyWorkingSet(Game& g);

}  // namespace trovane

#pragma once
// Releasing a disc: release day, pressing and distribution.
#include <string>

namespace trovane {

class Game;

// Schedule type 15: the entry's disc comes out.
void releaseDay(Game& g);
// Schedule type 25: a week of pressing of the entry's disc is done.
void pressWeek(Game& g);
// Schedule type 26: the entry's disc needs a distributor before it comes out.
void distributorNeeded(Game& g);

}  // namespace trovane

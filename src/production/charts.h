#pragma once
// The ten weekly charts: 0 to 4 the albums of UK, US, Europe, Oceania and the
// rest of the world, 5 to 9 the singles.

namespace trovane {

class Game;

// Four times a year each chart file is rewritten: the first 199 rows stay, and
// of the rows below only those whose disc has not yet sold in the territory.
void tidyCharts(Game& g);
// The charts of the first week, from the discs already on the market.
void seedCharts(Game& g);

}  // namespace trovane

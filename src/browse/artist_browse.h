#pragma once
// The artist browser and the rich list.
#include "browse/grid.h"

namespace trovane {

class Game;

// "Name", "Age", "Job", "Nationality", "Band", "Wealth" for every artist who
// has not retired, in table order; a name filter, when not blank, keeps the
// artist whose trimmed full name equals it. The rich list (richList true)
// opens by wealth, highest first, until a label is clicked.
void populateArtistGrid(Game& g, bool richList, const std::string& name, const GridSort& sort, Grid& grid);

}  // namespace trovane

#pragma once
// The staff and label browsers. As every browser: records in table order until
// a label is clicked, and a name, when not blank, matched by trimmed equality.
#include <string>

#include "browse/grid.h"

namespace trovane {

class Game;

// "Name", "Age", "Nationality", "Label", "Department", "Wage (per week)".
void populateStaffGrid(Game& g, const std::string& name, const GridSort& sort, Grid& grid);
// "Name", "Style"; a label of no one style shows "All Styles".
void populateLabelGrid(Game& g, const std::string& name, const GridSort& sort, Grid& grid);

}  // namespace trovane

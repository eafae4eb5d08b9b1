#pragma once
// The browsers of the other tables: venue, disc, song, business, media,
// festival, tour, gig, style and ceremony. As the band browser: records in
// table order until a label is clicked, a name kept by trimmed equality, and
// each column offering a choice of its values.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "browse/grid.h"

namespace trovane {

class Game;

enum class BrowseTable { venue, disc, song, business, media, festival, tour, gig, style, ceremony };

// One column's choice: its cell text, or a range of its value, both ends kept.
struct ColumnChoice {
    int column = 0;
    std::optional<std::string> text;
    double min = 0, max = 0;
};

// The filter every one of these browsers keeps until reset.
struct BrowseFilter {
    std::string name;                   // "" keeps every name
    std::vector<ColumnChoice> choices;  // all must hold
    int16_t band = 0;                   // disc, song, tour, gig: the band's own; 0 all
};

// The table of a trovane-sim name ("venue", ...); nullopt if none.
std::optional<BrowseTable> browseTableNamed(const std::string& name);

// Fills the grid with the records that pass the filter, then sorts.
void populateTableGrid(Game& g, BrowseTable table, const BrowseFilter& filter, const GridSort& sort, Grid& grid);

// Whether a row passes the name and the column choices.
bool rowPasses(const BrowseFilter& filter, const GridRow& row);

// The distinct texts of a column, in the order they first appear: the few
// values a column's choice offers.
std::vector<std::string> columnValues(const Grid& grid, int column);

// A region letter as a name: "E" Europe, "N" North America, "O" Oceania,
// "S" South America, "F" Africa, "A" Asia, "X" World.
std::string regionName(const std::string& letter);

}  // namespace trovane

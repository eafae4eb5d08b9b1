#include "browse/grid.h"

#include <algorithm>

namespace trovane {

void clickColumnLabel(GridSort& sort, const Grid& grid, int index) {
    if (index >= 0 && index < static_cast<int>(grid.columns.size()) &&
        grid.columns[static_cast<std::size_t>(index)].label == "Advance")
        ++index;
    if (!sort.clicked || index != sort.column) {
        sort.column = index;
        sort.direction = 1;
    } else {
        sort.direction = 3 - sort.direction;
    }
    sort.clicked = true;
}

namespace {

// Negative, zero or positive as a sorts before, with or after b.
int compareCells(const GridCell& a, const GridCell& b) {
    if (a.key && b.key) return *a.key < *b.key ? -1 : (*b.key < *a.key ? 1 : 0);
    return a.text.compare(b.text);
}

}  // namespace

void sortGrid(Grid& grid, const GridSort& sort) {
    if (!sort.clicked || sort.column < 0 || sort.column >= static_cast<int>(grid.columns.size())) return;
    const auto c = static_cast<std::size_t>(sort.column);
    const bool descending = sort.direction == 2;
    std::stable_sort(grid.rows.begin(), grid.rows.end(), [&](const GridRow& a, const GridRow& b) {
        int r = compareCells(a.cells[c], b.cells[c]);
        return descending ? r > 0 : r < 0;
    });
}

std::vector<int> visibleColumns(const Grid& grid) {
    std::vector<int> v;
    for (std::size_t i = 0; i < grid.columns.size(); ++i)
        if (!grid.columns[i].hidden) v.push_back(static_cast<int>(i));
    return v;
}

}  // namespace trovane

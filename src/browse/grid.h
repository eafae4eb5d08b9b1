#pragma once
// The grid a browser fills: labels, rows of cells, the record number of each
// row, and the sort a click on a label asks for. No Qt: the screens and
// trovane-sim show the same grid.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace trovane {

struct GridCell {
    std::string text;
    // Money, counts, ages and dates sort by this value; text by the text.
    std::optional<double> key;
};

struct GridColumn {
    std::string label;
    int width = 0;
    bool hidden = false;
};

struct GridRow {
    std::vector<GridCell> cells;  // one per column, hidden ones included
    int32_t record = 0;           // the hidden record number after the last column
};

struct Grid {
    std::string caption;
    std::vector<GridColumn> columns;
    std::vector<GridRow> rows;
};

// A browser's sort, kept across all its openings. Until a label is clicked
// the rows stand in the order the filling wrote them.
struct GridSort {
    int column = 0;
    int direction = 1;  // 1 ascending, 2 descending
    bool clicked = false;
};

// The click on the label with index i: "Advance" sorts on the hidden column
// just after it; the same label again turns the direction round.
void clickColumnLabel(GridSort& sort, const Grid& grid, int index);

// Applies the sort to the rows; ties keep their order.
void sortGrid(Grid& grid, const GridSort& sort);

// Visible column indexes, in order.
std::vector<int> visibleColumns(const Grid& grid);

}  // namespace trovane

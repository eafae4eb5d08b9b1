#pragma once
// Reads record n of a table into its buffer, runs the change (which works on the
// buffer), and writes the record back.
#include <cstdint>

// In namespace trovane so that a table of the game finds it from any test.
namespace trovane {

template <class Table, class Change>
void amend(Table& table, int32_t n, Change change) {
    table.read(n);
    change();
    table.write();
}

}  // namespace trovane

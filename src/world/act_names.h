#pragma once
// Names of acts, answered from side indexes so that no lookup walks a table or
// touches its buffer.
//
// How each keeps in step:
// - the names in use by acts not retired are told of every write to the band
//   table (TableBase::watchWrites): a write that renames an act, retires it or
//   adds one moves its name in or out. The index is built from the records at
//   the first lookup after the table is opened or emptied.
// - the bank of names for new bands does not change in play; it is read again
//   only when its table is opened or emptied or gains records.
#include <cstdint>
#include <string>
#include <vector>

namespace trovane {

class Game;

// Whether an act that has not retired bears the name (names compared trimmed).
bool actNameInUse(Game& g, const std::string& name);

// Every name in use by acts not retired, once per act bearing it, sorted.
std::vector<std::string> activeActNameList(Game& g);

// The names for new bands of the style in record order; every name when no
// row is of the style.
const std::vector<std::string>& newBandNamesFor(Game& g, int style);

// Starts telling the index of names in use of the band table's writes, and
// the rows a draw of an artist's names reads of the forename and surname
// tables' writes; the game does it once when it is made.
void watchActNames(Game& g);

}  // namespace trovane

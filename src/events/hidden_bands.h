#pragma once
// Hidden acts, unlocked by the name a player types for a new game.

#include <string>
#include <string_view>

namespace trovane {

class Game;

// The act a full name typed for a new game unlocks, or "" (exact, capitals too).
std::string hiddenBandFor(std::string_view typedName);

// The act for the player's name, copied from the bank to the end of the band
// and artist tables and signed to the player's label.
void unlockHiddenBand(Game& g);

}  // namespace trovane

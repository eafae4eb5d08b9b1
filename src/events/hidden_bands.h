#pragma once
// Hidden acts, unlocked by the name a player types for a new game.

namespace trovane {

class Game;

void unlockHiddenBand(Game& g);

}  // namespace trovane

#pragma once
// Appearances in newspapers, magazines, radio and TV.

namespace trovane {

class Game;

// Schedule type 17: the entry's band appears in the entry's outlet.
void performAppearance(Game& g);

}  // namespace trovane

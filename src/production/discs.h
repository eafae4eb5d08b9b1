#pragma once
// Discs: release, pressing and the single drawn from an album.

namespace trovane {

class Game;

// A disc of the starting world, already released, brought to a consistent state.
void setUpReleasedDisc(Game& g);
// The discs of the current band, signed in the starting world, made ready with it.
void setUpBandDiscs(Game& g);

}  // namespace trovane

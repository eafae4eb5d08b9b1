#pragma once
// The passes of the day that change an act without anyone acting on it.
#include <string>
#include <vector>

namespace trovane {

class Game;

void dropBandHype(Game& g);
void checkBandEnergy(Game& g);
void checkPlayerControlledBands(Game& g);
void bandPotentialCalculations(Game& g);
void increaseBandAges(Game& g);
void increaseArtistEnergy(Game& g);

// How the current artist feels about the work, one line per complaint of the
// band (the artist buffer is kept; the band buffer is left on the band).
std::vector<std::string> artistFeelings(Game& g);

}  // namespace trovane

#pragma once
// The passes of the day that change an act without anyone acting on it.

namespace trovane {

class Game;

void dropBandHype(Game& g);
void checkBandEnergy(Game& g);
void checkPlayerControlledBands(Game& g);
void bandPotentialCalculations(Game& g);
void increaseBandAges(Game& g);
void increaseArtistEnergy(Game& g);

}  // namespace trovane

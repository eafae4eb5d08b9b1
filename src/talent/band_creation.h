#pragma once
// New acts joining the world, and the acts of the starting world made ready.

namespace trovane {

class Game;

// Adds a new unsigned act of a drawn style with its members.
void createBand(Game& g);
// Adds a new unsigned solo artist.
void createSoloArtist(Game& g);
// The current band, signed in the starting world: its contract and deal as the data gives them.
void setUpSignedContract(Game& g);
// The current band's hype starts at minus its reputation, and its members share its reputation.
void setUpBandReputation(Game& g);

}  // namespace trovane

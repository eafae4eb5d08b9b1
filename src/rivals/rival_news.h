#pragma once
// What the press hears of a rival's records.
#include <array>

namespace trovane {

class Game;

// True when the player hears of the current band's records: on the player's
// shortlist, or a rating above 90 (the player's own acts too when ownActs).
bool pressFollows(Game& g, bool ownActs);
// The current disc has gone into the studio (disc and band buffers).
void announceStudio(Game& g);
// The current disc is recorded and dated in the flagged territories.
void announceCompletion(Game& g);

}  // namespace trovane

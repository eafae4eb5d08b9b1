#pragma once
// How the computer-run labels tour and promote their acts.

namespace trovane {

class Game;

// Schedule type 19: a rival's tour asks the player's band of the entry to support it.
void offerSupportSlot(Game& g);

}  // namespace trovane

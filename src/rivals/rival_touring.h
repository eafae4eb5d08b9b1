#pragma once
// How the computer-run labels tour and promote their acts.

namespace trovane {

class Game;

// Schedule type 19: a rival's tour asks the player's band of the entry to support it.
void offerSupportSlot(Game& g);
// A tour for the current band after its album; mode 1 follows a new album.
void planTour(Game& g, int mode);
// Promotion for the current band's current disc.
void bookAllPromotion(Game& g, int flags);

}  // namespace trovane

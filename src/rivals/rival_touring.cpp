#include "rivals/rival_touring.h"

#include "world/game.h"

namespace trovane {

// Not built yet: rivals do not tour until their touring is written.
void offerSupportSlot(Game& g) { static_cast<void>(g); }

// Not built yet: a rival's album is followed by no tour until touring is written.
void planTour(Game& g, int mode) {
    static_cast<void>(g);
    static_cast<void>(mode);
}

// Not built yet: rivals book no promotion until promotion is written.
void bookAllPromotion(Game& g, int flags) {
    static_cast<void>(g);
    static_cast<void>(flags);
}

}  // namespace trovane

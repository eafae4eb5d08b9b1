#include "talent/contracts.h"

#include "world/game.h"

namespace trovane {

// Not built yet: contracts are negotiated once their rules are written.
void decideOffers(Game& g) { static_cast<void>(g); }
void signBand(Game& g) { static_cast<void>(g); }
void scheduleSigning(Game& g) { static_cast<void>(g); }
void voidOffers(Game& g, int16_t band) {
    static_cast<void>(g);
    static_cast<void>(band);
}

}  // namespace trovane

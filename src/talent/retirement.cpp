#include "talent/retirement.h"

#include "world/game.h"

namespace trovane {

// Not built yet: nobody retires or leaves until the lifecycle is written.
void announceBandRetirement(Game& g) { static_cast<void>(g); }
void retireBand(Game& g, bool now) {
    static_cast<void>(g);
    static_cast<void>(now);
}
void announceArtistRetirement(Game& g) { static_cast<void>(g); }
void retireArtist(Game& g, int mode, int16_t artist) {
    static_cast<void>(g);
    static_cast<void>(mode);
    static_cast<void>(artist);
}
void memberLeaves(Game& g) { static_cast<void>(g); }

}  // namespace trovane

namespace trovane {

// Not built yet: no band retires after an album until the lifecycle rules are written.
void considerRetirement(Game& g) { static_cast<void>(g); }

}  // namespace trovane

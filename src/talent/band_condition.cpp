#include "talent/band_condition.h"

#include <algorithm>

#include "world/game.h"

namespace trovane {

// Not built yet: empty steps of the day until their rules are written.
void dropBandHype(Game& g) { static_cast<void>(g); }
void checkBandEnergy(Game& g) { static_cast<void>(g); }
void checkPlayerControlledBands(Game& g) { static_cast<void>(g); }
void bandPotentialCalculations(Game& g) { static_cast<void>(g); }

// Every band grows a year older on 31 December, retired ones too.
void increaseBandAges(Game& g) {
    for (int32_t n = 1; n != g.band.recordCount(); ++n) {
        g.band.read(n);
        g.band->age = narrow<uint8_t>(g.band->age + 1);
        g.band.write(n);
    }
}

// A burnt-out artist (energy below 0) is away one more day, and comes back at
// full strength; everyone else recovers by stamina, and writers sharpen their focus.
void increaseArtistEnergy(Game& g) {
    for (int32_t n = 1; n != g.artist.recordCount(); ++n) {
        g.artist.read(n);
        ArtistRecord& a = g.artist.rec;
        if (a.energy < 0) {
            a.energy = a.energy == -1 ? int16_t{100} : narrow<int16_t>(a.energy + 1);
        } else {
            double recovered = a.energy + a.stamina / 32.0 + 1;
            a.energy = std::clamp<int16_t>(toInteger(recovered), 0, 100);
            if (a.songQuality > 0) a.writingFocus = static_cast<uint8_t>(std::min(a.writingFocus + 3, 100));
        }
        g.artist.write(n);
    }
}

}  // namespace trovane

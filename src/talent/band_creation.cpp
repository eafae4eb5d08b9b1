#include "talent/band_creation.h"

#include "world/game.h"

namespace trovane {

// Not built yet: new acts come with the acts' lifecycle.
void createBand(Game& g) { static_cast<void>(g); }
void createSoloArtist(Game& g) { static_cast<void>(g); }
void setUpSignedContract(Game& g) { static_cast<void>(g); }

void setUpBandReputation(Game& g) {
    BandRecord& b = g.band.rec;
    for (std::size_t m = 0; m < 5; ++m) b.hype[m] = static_cast<int16_t>(-b.reputation[m]);
    BandRecord band = b;
    for (int i = 0; i < band.memberCount && i < 10; ++i) {
        int16_t member = band.members[static_cast<std::size_t>(i)];
        if (member < 1) continue;
        g.artist.read(member);
        g.artist->reputation = band.reputation;
        g.artist.write(member);
    }
    g.band.rec = band;
}

}  // namespace trovane

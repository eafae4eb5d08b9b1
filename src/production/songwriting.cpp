#include "production/songwriting.h"

#include "world/game.h"
#include "world/strings.h"

namespace trovane {

// Not built yet: each runs as an empty step of the day until its rules are written.
void updateSongs(Game& g) { static_cast<void>(g); }
void seedAlbumPlan(Game& g) { static_cast<void>(g); }
void briefPlayerAlbums(Game& g) { static_cast<void>(g); }

std::string pickSongTitle(Game& g) {
    constexpr int kTries = 50;
    const int32_t titles = g.newsong.recordCount() - 1;
    if (titles < 1) return "Untitled";
    const uint8_t style = g.band->style;
    int32_t n = 0;
    for (int tries = 0; tries < kTries; ++tries) {
        n = g.rng.between(1, titles);
        g.newsong.read(n);
        if (g.newsong->style == style && g.rng.between(0, 99) >= g.newsong->uses) break;
    }
    // After the last try the last title drawn is used whatever its fit.
    if (g.newsong->uses < 255) g.newsong->uses = static_cast<uint8_t>(g.newsong->uses + 1);
    g.newsong.write(n);
    return trim(g.newsong->title.value);
}

}  // namespace trovane

#include "label/image.h"

#include <algorithm>

#include "world/game.h"

namespace trovane {

// Not built yet: each runs as an empty step of the day until its rules are written.
void deliverMarketingReports(Game& g) { static_cast<void>(g); }

uint8_t rateLook(Game& g) {
    const ArtistRecord& a = g.artist.rec;
    const LookRecord& look = g.look.rec;
    // Attributes in the order of the look's bounds.
    const int values[8] = {a.charisma, a.controversy, a.flair, a.dancing, a.live, a.attitude, a.angst, a.visual};
    int penalty = 0;
    for (std::size_t i = 0; i < 8; ++i) {
        int low = look.bounds[2 * i], high = look.bounds[2 * i + 1];
        if (values[i] < low)
            penalty += low - values[i];
        else if (values[i] > high)
            penalty += values[i] - high;
    }
    int rating = 50 - penalty;
    for (int32_t n = 1; n != g.asslook.recordCount(); ++n) {
        g.asslook.read(n);
        if (g.asslook->a == look.id && g.asslook->b == a.style) {
            rating += g.asslook->weight;
            break;
        }
    }
    return static_cast<uint8_t>(std::clamp(rating, 0, 100));
}
int32_t bestLook(Game& g) {
    const int sex = g.artist->male != kFalse ? 1 : 2;
    int32_t best = 0;
    int bestRating = -1;
    for (int32_t n = 1; n < g.look.recordCount(); ++n) {
        g.look.read(n);
        if (g.look->sex != 0 && g.look->sex != sex) continue;
        int rating = rateLook(g);
        if (rating > bestRating) {
            bestRating = rating;
            best = n;
        }
    }
    if (best != 0) g.look.read(best);
    return best;
}

// Not built yet: images do not change until image and marketing are written.
void imageReport(Game& g) { static_cast<void>(g); }
void changeLook(Game& g) { static_cast<void>(g); }

}  // namespace trovane

#include "talent/reputation.h"

#include <algorithm>

#include "label/finances.h"
#include "production/charts.h"
#include "world/game.h"
#include "world/numbers.h"

namespace trovane {

namespace {

int held(int v, int low, int high) { return std::clamp(v, low, high); }

}  // namespace

void changeHype(Game& g, int16_t amount, int market, int reason) {
    auto m = static_cast<std::size_t>(market);
    int a = amount * 2;
    int r = g.band->reputation[m];
    int h = g.band->hype[m];
    int change = 0;
    // A boost first recovers the whole slump.
    if (h < -r && a > 0) h = -r;
    h += a;
    while (h > r) {
        int gain = held(toLong(static_cast<double>(h) / r), 1, 5);
        change += gain;
        r = held(r + gain, 2, 100);
        h = held(h - r, 0, 100);
    }
    if (h < -100) {
        int before = r;
        r = held(r - 1, 2, 100);
        change = r - before;
        h = held(-r, -80, 0);
    }
    if (market != 4 && change != 0) {
        int mode = g.band->label > 0 ? 0 : 1;
        const BandRecord band = g.band.rec;
        spreadHypeRise(g, mode, market, change, reason);
        g.band.rec = band;
    }
    g.band->hype[m] = narrow<int16_t>(h);
    g.band.write();
    if (change != 0) {
        std::array<int16_t, 5> deltas{};
        deltas[m] = narrow<int16_t>(change);
        applyReputationChange(g, deltas);
    }
}

void applyReputationChange(Game& g, const std::array<int16_t, 5>& deltas) {
    for (std::size_t m = 0; m < 5; ++m)
        g.band->reputation[m] = narrow<uint8_t>(held(g.band->reputation[m] + deltas[m], 2, 100));
    g.band.write();
    const BandRecord band = g.band.rec;
    int members = std::min<int>(band.memberCount, static_cast<int>(band.members.size()));
    for (int i = 0; i < members; ++i) {
        int16_t who = band.members[static_cast<std::size_t>(i)];
        if (who < 1) continue;
        g.artist.read(who);
        int rank = 1;
        if (members > 1 && g.artist->job > 0) {
            g.job.read(g.artist->job);
            rank = std::max<int>(1, g.job->rank);
        }
        for (std::size_t m = 0; m < 5; ++m) {
            int move = members == 1 ? deltas[m] : toLong(deltas[m] * 3.0 / rank);
            g.artist->reputation[m] = narrow<uint8_t>(held(g.artist->reputation[m] + move, 0, 100));
        }
        g.artist.write();
    }
    if (band.label > 0) {
        g.label.read(band.label);
        addLabelHype(g, deltas);
    }
    g.band.rec = band;
}

}  // namespace trovane

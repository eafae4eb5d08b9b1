#include "talent/reputation.h"

#include <algorithm>
#include <cmath>

#include "label/finances.h"
#include "production/chart_hype.h"
#include "world/game.h"

namespace trovane {

namespace {

int held(int v, int low, int high) { return std::clamp(v, low, high); }

}  // namespace

void changeHype(Game& g, int16_t amount, int market, int reason) {
    static_cast<void>(reason);
    const auto m = static_cast<std::size_t>(market);
    const int doubled = amount * 2;
    const int before = g.band->reputation[m];
    int r = before;
    int h = g.band->hype[m];
    int change = 0;
    if (h < -r && doubled > 0) h = -r;
    h += doubled;
    while (h > r) {
        // A reputation of 0 makes the quotient infinite, which the hold takes to 5.
        int gain = static_cast<int>(std::clamp(roundHalfEven(static_cast<double>(h) / r), 1.0, 5.0));
        change += gain;
        r = held(r + gain, 2, 100);
        h = held(h - r, 0, 100);
    }
    if (h < -100) {
        r = held(r - 1, 2, 100);
        change = r - before;
        h = held(-r, -80, 0);
    }
    if (market != 4 && change != 0 && g.band->label > 0) {
        const BandRecord band = g.band.rec;
        spreadHypeRise(g, 0, market, band.label, change);
        g.band.rec = band;
    }
    g.band->hype[m] = narrow<int16_t>(h);
    if (change != 0) {
        std::array<int16_t, 5> deltas{};
        deltas[m] = narrow<int16_t>(change);
        applyReputationChange(g, deltas);
    }
    g.band.write();
}

void applyReputationChange(Game& g, const std::array<int16_t, 5>& deltas) {
    BandRecord& b = g.band.rec;
    for (std::size_t m = 0; m < 5; ++m)
        b.reputation[m] = static_cast<uint8_t>(held(b.reputation[m] + deltas[m], 2, 100));
    g.band.write();
    const BandRecord band = g.band.rec;
    const int members = std::min<int>(band.memberCount, static_cast<int>(band.members.size()));
    for (int i = 0; i < members; ++i) {
        const int16_t who = band.members[static_cast<std::size_t>(i)];
        if (who < 1) continue;
        g.artist.read(who);
        double rank = 1;
        if (band.memberCount != 1 && g.artist->job > 0) {
            g.job.read(g.artist->job);
            rank = std::max<int16_t>(g.job->rank, 1);  // a rank of 0 would divide by zero
        }
        for (std::size_t m = 0; m < 5; ++m) {
            int move = band.memberCount == 1 ? deltas[m] : roundTo<int>(deltas[m] * 3 / rank);
            g.artist->reputation[m] = static_cast<uint8_t>(held(g.artist->reputation[m] + move, 0, 100));
        }
        g.artist.write(who);
    }
    if (band.label > 0) {
        g.label.read(band.label);
        addLabelHype(g, deltas);
    }
}

}  // namespace trovane

#include "talent/reputation.h"

#include <algorithm>
#include <cmath>

#include "label/finances.h"
#include "production/chart_hype.h"
#include "world/game.h"
#include "world/record_bytes.h"

namespace trovane {

namespace {

int held(int v, int low, int high) { return std::clamp(v, low, high); }

}  // namespace

HypeStep hypeStep(int reputation, int hype, int amount) {
    const int doubled = amount * 2;
    const int before = reputation;
    int r = before;
    int h = hype;
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
    return {h, change};
}

namespace {

void moveHype(Game& g, int16_t amount, int market, bool bufferAsRead) {
    static const std::size_t kBandHype = offsetIn<BandRecord>("hype");
    const auto m = static_cast<std::size_t>(market);
    const auto [h, change] = hypeStep(g.band->reputation[m], g.band->hype[m], amount);
    // The spread reads and writes only the charts and the discs.
    if (market != 4 && change != 0 && g.band->label > 0) spreadHypeRise(g, 0, market, g.band->label, change);
    g.band->hype[m] = narrow<int16_t>(h);
    if (change == 0) {
        if (bufferAsRead)
            putFieldIn(g.band, g.band->id, kBandHype + m * sizeof(int16_t), g.band->hype[m]);
        else
            g.band.write();
        return;
    }
    std::array<int16_t, 5> deltas{};
    deltas[m] = narrow<int16_t>(change);
    applyReputationChange(g, deltas);  // writes the band
}

}  // namespace

void changeHype(Game& g, int16_t amount, int market, int reason) {
    static_cast<void>(reason);
    moveHype(g, amount, market, false);
}

void changeHypeOfReadBand(Game& g, int16_t amount, int market, int reason) {
    static_cast<void>(reason);
    moveHype(g, amount, market, true);
}

void applyReputationChange(Game& g, const std::array<int16_t, 5>& deltas) {
    BandRecord& b = g.band.rec;
    for (std::size_t m = 0; m < 5; ++m)
        b.reputation[m] = static_cast<uint8_t>(held(b.reputation[m] + deltas[m], 2, 100));
    g.band.write();
    // The members and the label are changed without touching the band's buffer.
    const BandRecord& band = g.band.rec;
    const int members = std::min<int>(band.memberCount, static_cast<int>(band.members.size()));
    // The members move in their records' bytes; the artist and job buffers
    // end on the last ones, as reading and writing each in turn leaves them.
    static const std::size_t kArtistJob = offsetIn<ArtistRecord>("job");
    static const std::size_t kArtistReputation = offsetIn<ArtistRecord>("reputation");
    static const std::size_t kJobRank = offsetIn<JobRecord>("rank");
    int16_t lastArtist = 0;
    uint8_t lastJob = 0;
    for (int i = 0; i < members; ++i) {
        const int16_t who = band.members[static_cast<std::size_t>(i)];
        if (who < 1) continue;
        double rank = 1;
        const auto job = fieldAt<uint8_t>(g.artist.bytesOf(who), kArtistJob);
        if (band.memberCount != 1 && job > 0) {
            lastJob = job;
            // a rank of 0 would divide by zero
            rank = std::max<int16_t>(fieldAt<int16_t>(g.job.bytesOf(job), kJobRank), 1);
        }
        patchField<std::array<uint8_t, 5>>(g.artist, who, kArtistReputation, [&](std::array<uint8_t, 5> r) {
            for (std::size_t m = 0; m < 5; ++m) {
                int move = band.memberCount == 1 ? deltas[m] : roundTo<int>(deltas[m] * 3 / rank);
                r[m] = static_cast<uint8_t>(held(r[m] + move, 0, 100));
            }
            return r;
        });
        lastArtist = who;
    }
    if (lastJob > 0) g.job.read(lastJob);
    if (lastArtist > 0) g.artist.read(lastArtist);
    if (band.label > 0) {
        g.label.read(band.label);
        addLabelHype(g, deltas);
    }
}

}  // namespace trovane

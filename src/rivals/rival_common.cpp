#include "rivals/rival_common.h"

#include <algorithm>

#include "label/scouting.h"
#include "world/band_lookups.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/numbers.h"

namespace trovane {

bool isRivalBand(const Game& g) { return g.band->label > 0 && g.band->label != g.player.playerLabel; }

int trackQuality(const SongRecord& song) { return roundTo<int>((song.quality + song.commerciality) / 2.0); }

bool songIsSingle(const SongRecord& song) {
    return std::any_of(song.singleDisc.begin(), song.singleDisc.end(), [](int16_t d) { return d > 0; });
}

namespace {

template <class Visit>
void eachDiscOf(Game& g, int16_t band, Visit visit) {
    DiscRecord d{};
    for (int32_t n : discsOfBand(g, band)) {
        decodeRecord(g.disc.bytesOf(n).data(), d);
        visit(n, d);
    }
}

}  // namespace

int16_t latestAlbum(Game& g, int16_t band) {
    int16_t latest = 0;
    double when = kNoDate;
    eachDiscOf(g, band, [&](int32_t n, const DiscRecord& d) {
        if (d.isSingle != 0) return;
        for (double date : d.releaseDate)
            if (date > when) when = date, latest = static_cast<int16_t>(n);
    });
    return latest;
}

double latestReleaseOf(Game& g, int16_t band, int isSingle, int territory) {
    double when = kNoDate;
    eachDiscOf(g, band, [&](int32_t, const DiscRecord& d) {
        if ((d.isSingle != 0) != (isSingle != 0)) return;
        for (int t = 0; t < 5; ++t)
            if (territory < 0 || t == territory) when = std::max(when, d.releaseDate[static_cast<std::size_t>(t)]);
    });
    return when;
}

bool playerWatches(Game& g, int16_t band) {
    for (int16_t b : playerShortlist(g))
        if (b == band) return true;
    return false;
}

int rivalStrength(Game& g, int16_t band) {
    g.band.read(band);
    const BandRecord b = g.band.rec;
    int sum = 0;
    int count = 0;
    for (int i = 0; i < std::min<int>(b.memberCount, 10); ++i) {
        const int16_t who = b.members[static_cast<std::size_t>(i)];
        if (who < 1) continue;
        g.artist.read(who);
        sum += g.artist->songQuality;
        ++count;
    }
    const int skill = count > 0 ? roundTo<int>(static_cast<double>(sum) / count) : 0;
    const int top = *std::max_element(b.reputation.begin(), b.reputation.end());
    g.band.read(band);
    return std::max(skill, top);
}

}  // namespace trovane

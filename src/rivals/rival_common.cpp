#include "rivals/rival_common.h"

#include <algorithm>
#include <array>

#include "label/scouting.h"
#include "world/band_lookups.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/numbers.h"
#include "world/record_bytes.h"

namespace trovane {

bool isRivalBand(const Game& g) { return g.band->label > 0 && g.band->label != g.player.playerLabel; }

int trackQuality(const SongRecord& song) { return roundTo<int>((song.quality + song.commerciality) / 2.0); }

bool songIsSingle(const SongRecord& song) {
    return std::any_of(song.singleDisc.begin(), song.singleDisc.end(), [](int16_t d) { return d > 0; });
}

namespace {

const std::size_t kDiscIsSingle = offsetIn<DiscRecord>("isSingle");
const std::size_t kDiscReleaseDate = offsetIn<DiscRecord>("releaseDate");

// Each disc of the band with whether it is a single and its release dates,
// read from its bytes.
template <class Visit>
void eachDiscOf(Game& g, int16_t band, Visit visit) {
    std::array<double, 5> dates{};
    for (int32_t n : discsOfBand(g, band)) {
        const auto bytes = g.disc.bytesOf(n);
        for (std::size_t t = 0; t < dates.size(); ++t) dates[t] = fieldAt<double>(bytes, kDiscReleaseDate + 8 * t);
        visit(n, fieldAt<uint8_t>(bytes, kDiscIsSingle) != 0, dates);
    }
}

}  // namespace

int16_t latestAlbum(Game& g, int16_t band) {
    int16_t latest = 0;
    double when = kNoDate;
    eachDiscOf(g, band, [&](int32_t n, bool single, const std::array<double, 5>& dates) {
        if (single) return;
        for (double date : dates)
            if (date > when) when = date, latest = static_cast<int16_t>(n);
    });
    return latest;
}

double latestReleaseOf(Game& g, int16_t band, int isSingle, int territory) {
    double when = kNoDate;
    eachDiscOf(g, band, [&](int32_t, bool single, const std::array<double, 5>& dates) {
        if (single != (isSingle != 0)) return;
        for (int t = 0; t < 5; ++t)
            if (territory < 0 || t == territory) when = std::max(when, dates[static_cast<std::size_t>(t)]);
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

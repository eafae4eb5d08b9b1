#include "rivals/rival_albums.h"

#include <algorithm>
#include <span>
#include <utility>
#include <vector>

#include "production/businesses.h"
#include "production/discs.h"
#include "production/recording.h"
#include "production/songwriting.h"
#include "rivals/rival_common.h"
#include "rivals/rival_news.h"
#include "world/band_lookups.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr uint16_t kNotOnDisc = 65535;
constexpr int kMaxGathered = 50;

const std::size_t kBandRetired = offsetIn<BandRecord>("retired");
const std::size_t kBandLabel = offsetIn<BandRecord>("label");
const std::size_t kBandAlbumStatus = offsetIn<BandRecord>("albumStatus");
const std::size_t kBandSongsWritten = offsetIn<BandRecord>("songsWritten");
const std::size_t kBusinessKind = offsetIn<BusinessRecord>("kind");
const std::size_t kBusinessQuality = offsetIn<BusinessRecord>("quality");
const std::size_t kBusinessOpen = offsetIn<BusinessRecord>("open");
const std::size_t kSongQuality = offsetIn<SongRecord>("quality");
const std::size_t kSongCommerciality = offsetIn<SongRecord>("commerciality");

bool isRivalBandRecord(const BandRecord& b, int16_t player) {
    return b.retired == 0 && b.label > 0 && b.label != player;
}

// The same test on a band's bytes.
bool isRivalBandBytes(std::span<const uint8_t> b, int16_t player) {
    const auto label = fieldAt<int16_t>(b, kBandLabel);
    return fieldAt<int16_t>(b, kBandRetired) == 0 && label > 0 && label != player;
}

}  // namespace

int writingPaceFor(int m) {
    if (m < 0 || m > 100) return -1;
    if (m < 30) return 4;
    if (m < 50) return 3;
    if (m < 60) return 2;
    if (m < 80) return 1;
    return 0;
}

int songsNeededFor(int m) { return std::clamp(roundTo<int>(m / 4.0), 10, 20); }

int trackTargetFor(const int* qualities, int count) {
    if (count == 0) return 0;
    const int cutoff = roundTo<int>(qualities[0] * 100 / 125.0);
    int target = 10;
    for (int pos = 19; pos >= 10; --pos) {
        if (pos < count && qualities[pos] > cutoff) {
            target = pos + 1;
            break;
        }
    }
    return std::min(target, count);
}

void computerRecordAlbum(Game& g) {
    const int16_t player = g.player.playerLabel;
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        // Bands that cannot qualify are passed over on their bytes; the last
        // is read whatever it is, as a walk reading each leaves the buffer.
        const auto bytes = g.band.bytesOf(n);
        const bool candidate = fieldAt<uint8_t>(bytes, kBandAlbumStatus) == 0 && isRivalBandBytes(bytes, player);
        if (!candidate && n + 1 < g.band.recordCount()) continue;
        g.band.read(n);
        if (g.band->albumStatus != 0 || !isRivalBandRecord(g.band.rec, player)) continue;
        const auto band = static_cast<int16_t>(n);
        const double last = latestReleaseOf(g, band, 0, -1);
        if (last > kNoDate && g.gameDate - last <= 230) continue;
        const int m = rivalStrength(g, band);
        const int pace = writingPaceFor(m);
        if (pace >= 0) g.band->materialBudget = static_cast<uint8_t>(pace);
        g.band->albumStatus = 1;
        g.band.write();
    }
}

void computerCheckAlbumProgress(Game& g) {
    const int16_t player = g.player.playerLabel;
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        const auto bytes = g.band.bytesOf(n);
        const bool candidate = fieldAt<uint8_t>(bytes, kBandAlbumStatus) <= 1 && isRivalBandBytes(bytes, player) &&
                               fieldAt<int32_t>(bytes, kBandSongsWritten) >= 10;
        if (!candidate && n + 1 < g.band.recordCount()) continue;
        g.band.read(n);
        if (g.band->albumStatus > 1 || !isRivalBandRecord(g.band.rec, player)) continue;
        if (g.band->songsWritten < 10) continue;
        const int needed = songsNeededFor(rivalStrength(g, static_cast<int16_t>(n)));
        if (g.band->songsWritten >= needed) rivalStartAlbum(g);
    }
}

void rivalStartAlbum(Game& g) {
    const int16_t band = g.band->id;
    std::vector<std::pair<int, int32_t>> gathered;  // quality, song
    SongRecord s{};
    for (int32_t n : unusedSongsOf(g, band)) {
        if (std::ssize(gathered) >= kMaxGathered) break;
        const auto bytes = g.song.bytesOf(n);
        s.quality = fieldAt<uint8_t>(bytes, kSongQuality);
        s.commerciality = fieldAt<uint8_t>(bytes, kSongCommerciality);
        gathered.emplace_back(trackQuality(s), n);
    }
    if (gathered.empty()) return;
    std::stable_sort(gathered.begin(), gathered.end(), [](auto& a, auto& b) { return a.first > b.first; });
    std::vector<int> qualities;
    for (auto& [q, song] : gathered) qualities.push_back(q);
    const int target = trackTargetFor(qualities.data(), static_cast<int>(qualities.size()));
    std::vector<int32_t> tracks;
    for (int i = 0; i < target; ++i) tracks.push_back(gathered[static_cast<std::size_t>(i)].second);
    std::sort(tracks.begin(), tracks.end());
    for (int32_t song : tracks) {
        g.song.read(song);
        if (trim(g.song->title.value) != "Untitled") continue;
        g.band.read(band);
        const std::string title = pickSongTitle(g);
        g.song.read(song);
        g.song->title = title;
        g.song.write();
    }
    const int16_t disc = finaliseAlbum(g, band, tracks);
    g.band.read(band);
    const std::string title = pickAlbumTitle(g);
    g.disc.read(disc);
    g.disc->title = title;
    g.disc->coverImage = std::string("none.jpg");
    g.disc.write();
    g.band.read(band);
    rivalChooseStudio(g);
}

void rivalChooseStudio(Game& g) {
    const int16_t disc = g.disc->id;
    const int16_t band = g.disc->band;
    const int m = rivalStrength(g, band);
    const int low = std::clamp(roundTo<int>(m - m / 10.0), 0, 255);
    const int high = std::clamp(roundTo<int>(m + m / 10.0), 0, 255);
    const int32_t firms = g.business.recordCount() - 1;
    bool anyStudio = false;
    for (int32_t n = 1; n <= firms && !anyStudio; ++n) {
        g.business.read(n);
        anyStudio = g.business->kind == kStudio;
    }
    if (!anyStudio) return;  // a world without studios records nothing
    // The firms drawn are tested on their bytes; the draws end on a studio,
    // which is read, as reading each would leave it.
    int16_t studio = 0;
    for (int draws = 1;; ++draws) {
        const int32_t n = g.rng.between(1, firms);
        const auto firm = g.business.bytesOf(n);
        if (fieldAt<uint8_t>(firm, kBusinessKind) != kStudio) continue;
        const auto quality = fieldAt<uint8_t>(firm, kBusinessQuality);
        const bool fits = fieldAt<int16_t>(firm, kBusinessOpen) == kFirmOpen && low <= quality && quality <= high;
        if (fits || draws > 100) {
            studio = static_cast<int16_t>(n);
            g.business.read(n);
            break;
        }
    }
    bookStudio(g, disc, studio);
    g.disc.read(disc);
    g.band.read(band);
    announceStudio(g);
    g.disc.read(disc);
    g.band.read(band);
}

void rivalMakeSingle(Game& g) {
    const DiscRecord album = g.disc.rec;
    const int16_t band = album.band;
    int32_t lead = 0;
    int leadQuality = -1;
    std::vector<std::pair<int, int32_t>> others;
    for (int i = 0; i < std::min<int>(album.trackCount, 20); ++i) {
        const int32_t song = album.tracks[static_cast<std::size_t>(i)];
        if (song < 1) continue;
        g.song.read(song);
        const int q = trackQuality(g.song.rec);
        others.emplace_back(q, song);
        if (!songIsSingle(g.song.rec) && q > leadQuality) leadQuality = q, lead = song;
    }
    if (lead == 0) return;
    std::array<int32_t, 2> bSides{};
    std::size_t taken = 0;
    const std::vector<int32_t> unused = unusedSongsOf(g, band);
    for (auto it = unused.rbegin(); it != unused.rend() && taken < 2; ++it) bSides[taken++] = *it;
    std::stable_sort(others.begin(), others.end(), [](auto& a, auto& b) { return a.first < b.first; });
    for (auto& [q, song] : others)
        if (taken < 2 && song != lead) bSides[taken++] = song;
    const int16_t single = makeSingle(g, album.id, lead, bSides);
    g.disc.read(single);
    g.disc->coverImage = std::string("none.jpg");
    g.disc->releaseDate.fill(kNoDate);
    g.disc->recordingDue = kNoDate;
    computeDiscRatings(g);
    g.disc.write();
    for (int32_t b : bSides) {
        if (b < 1) continue;
        g.song.read(b);
        if (g.song->disc != kNotOnDisc) continue;
        g.song->disc = static_cast<uint16_t>(single);
        g.song.write();
    }
    g.disc.read(single);
    g.band.read(band);
    rivalChooseStudio(g);
}

}  // namespace trovane

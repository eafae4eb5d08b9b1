#include "production/discs.h"

#include "production/businesses.h"

#include <algorithm>

#include "production/disc_release.h"
#include "world/band_lookups.h"
#include "world/dates.h"
#include "world/game.h"

namespace trovane {

namespace {
std::size_t at(int v) { return static_cast<std::size_t>(v); }
}  // namespace

void setUpReleasedDisc(Game& g) {
    DiscRecord& d = g.disc.rec;
    if (d.band < 1) return;
    for (int t = 0; t < 5; ++t) {
        auto i = at(t);
        d.hype[i] = std::clamp<uint8_t>(d.hype[i], 1, 100);
        d.promotion[i] = std::clamp<uint8_t>(d.promotion[i], 1, 100);
        d.lifetimeSales[i] = std::max(d.lifetimeSales[i], d.totalSales[i]);
        bool released = d.releaseDate[i] > kNoDate && d.releaseDate[i] <= g.gameDate;
        if (!released) {
            // Nothing is on sale where the disc is not out yet.
            d.totalSales[i] = 0;
            d.weekSales[i] = 0;
            d.stock[i] = 0;
            continue;
        }
        if (d.distributor[i] < 1) {
            const DiscRecord disc = g.disc.rec;
            const BandRecord band = g.band.rec;
            int16_t firm = rivalChooseDistributor(g, t);
            g.disc.rec = disc;
            g.band.rec = band;
            g.disc->distributor[i] = firm;
        }
    }
}

void setUpBandDiscs(Game& g) {
    BandRecord band = g.band.rec;
    const DiscRecord held = g.disc.rec;
    int64_t biggest[2] = {0, 0};
    int64_t bestWeek[2] = {0, 0};
    for (int32_t n : discsOfBand(g, band.id)) {
        decodeRecord(g.disc.bytesOf(n).data(), g.disc.rec);
        int64_t week = 0, total = 0;
        for (int t = 0; t < 5; ++t) {
            week += g.disc->weekSales[at(t)];
            total += g.disc->totalSales[at(t)];
        }
        int k = g.disc->isSingle ? 0 : 1;
        int32_t& best = k == 0 ? band.biggestSingle : band.biggestAlbum;
        int32_t& weekDisc = k == 0 ? band.bestWeekSingle : band.bestWeekAlbum;
        int32_t& weekCopies = k == 0 ? band.bestWeekSingleCopies : band.bestWeekAlbumCopies;
        if (total > biggest[k]) {
            biggest[k] = total;
            best = g.disc->id;
        }
        if (week > bestWeek[k]) {
            bestWeek[k] = week;
            weekDisc = g.disc->id;
            weekCopies = static_cast<int32_t>(week);
        }
    }
    g.disc.rec = held;
    g.band.rec = band;
}

}  // namespace trovane

#include "world/strings.h"

namespace trovane {

std::vector<int32_t> freeSingleTracks(Game& g, int16_t album) {
    g.disc.read(album);
    const DiscRecord disc = g.disc.rec;
    std::vector<int32_t> out;
    for (std::size_t i = 0; i < std::min<std::size_t>(disc.trackCount, disc.tracks.size()); ++i) {
        int32_t song = disc.tracks[i];
        if (song < 1 || song >= g.song.recordCount()) continue;
        g.song.read(song);
        if (std::all_of(g.song->singleDisc.begin(), g.song->singleDisc.end(), [](int16_t d) { return d < 1; }))
            out.push_back(song);
    }
    return out;
}

std::array<int32_t, 2> defaultBSides(Game& g, int16_t album, int32_t lead) {
    g.disc.read(album);
    const DiscRecord disc = g.disc.rec;
    std::vector<std::pair<int, int32_t>> others;
    for (std::size_t i = 0; i < std::min<std::size_t>(disc.trackCount, disc.tracks.size()); ++i) {
        int32_t song = disc.tracks[i];
        if (song < 1 || song == lead || song >= g.song.recordCount()) continue;
        g.song.read(song);
        others.emplace_back(g.song->quality + g.song->commerciality, song);
    }
    std::stable_sort(others.begin(), others.end(), [](auto& a, auto& b) { return a.first < b.first; });
    std::array<int32_t, 2> out{};
    for (std::size_t i = 0; i < 2 && i < others.size(); ++i) out[i] = others[i].second;
    return out;
}

std::string makeSingleRefusal(Game& g, int16_t album, int32_t lead, const std::array<int32_t, 2>& bSides) {
    if (album < 1 || album >= g.disc.recordCount()) return "There is no such disc.";
    g.disc.read(album);
    std::string title = trim(g.disc->title.value);
    if (g.player.playerLabel < 1 || g.disc->label != g.player.playerLabel)
        return title + " is not a disc of your label.";
    if (g.disc->isSingle) return title + " is a single, not an album.";
    if (g.disc->trackCount == 0 || g.disc->tracksRecorded < g.disc->trackCount)
        return title + " has not been recorded yet.";
    auto free = freeSingleTracks(g, album);
    if (std::find(free.begin(), free.end(), lead) == free.end())
        return "That song is not a track of " + title + " that can still be a single.";
    g.disc.read(album);
    const DiscRecord disc = g.disc.rec;
    for (int32_t b : bSides) {
        bool onAlbum = std::find(disc.tracks.begin(), disc.tracks.begin() + disc.trackCount, b) !=
                       disc.tracks.begin() + disc.trackCount;
        if (b == lead || !onAlbum) return "The B-sides must be two other tracks of " + title + ".";
    }
    if (bSides[0] == bSides[1]) return "The B-sides must be two different tracks.";
    return "";
}

int16_t makeSingle(Game& g, int16_t album, int32_t lead, const std::array<int32_t, 2>& bSides) {
    g.disc.read(album);
    DiscRecord single = g.disc.rec;
    g.song.read(lead);
    const SongRecord song = g.song.rec;
    single.isSingle = 1;
    single.trackCount = 3;
    single.tracksRecorded = 0;
    single.tracks = {};
    single.tracks[0] = lead;
    single.tracks[1] = bSides[0];
    single.tracks[2] = bSides[1];
    single.title = trim(song.title.value);
    single.coverImage = "";
    single.band = song.band;
    single.quality = song.quality;
    single.commerciality = song.commerciality;
    for (std::size_t t = 0; t < 5; ++t) {
        single.hype[t] = 1;
        single.promotion[t] = 1;
        single.chartPoints[t] = 0;
        single.totalSales[t] = 0;
        single.lifetimeSales[t] = 0;
        single.weekSales[t] = 0;
        single.stock[t] = 0;
        single.pressingOrder[t] = 0;
        single.distributor[t] = 0;
        single.bestPosition[t] = 0;
        single.releaseDate[t] = 0;
    }
    single.peakPosition = {};
    single.weeksOnChart = {};
    single.income = 0;
    single.recordingDue = 0;
    g.band.read(song.band);
    single.label = g.band->label;
    g.disc.rec = single;
    return static_cast<int16_t>(g.disc.append());
}

std::string recordSingleRefusal(Game& g, int16_t album, int32_t lead, const std::array<int32_t, 2>& bSides,
                                int16_t studio) {
    std::string refusal = makeSingleRefusal(g, album, lead, bSides);
    if (!refusal.empty()) return refusal;
    if (!g.business.readIfPresent(studio) || g.business->kind != kStudio || g.business->open != kFirmOpen)
        return "Please choose an open studio from the list.";
    return {};
}

RecordedSingle recordSingle(Game& g, int16_t album, int32_t lead, const std::array<int32_t, 2>& bSides,
                            int16_t studio) {
    RecordedSingle r;
    r.disc = makeSingle(g, album, lead, bSides);
    r.booking = bookStudio(g, r.disc, studio);
    return r;
}

}  // namespace trovane

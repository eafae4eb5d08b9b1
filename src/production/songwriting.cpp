#include "production/songwriting.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "floor/formats.h"
#include "floor/grammar.h"
#include "floor/news_post.h"
#include "label/finances.h"
#include "talent/contract_progress.h"
#include "world/band_lookups.h"
#include "world/dates.h"
#include "world/disc_title_lookups.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/strings.h"

namespace trovane {

namespace {

const std::size_t kArtistSongQuality = offsetIn<ArtistRecord>("songQuality");
const std::size_t kArtistBand = offsetIn<ArtistRecord>("band");
const std::size_t kArtistRetired = offsetIn<ArtistRecord>("retired");
const std::size_t kDiscIsSingle = offsetIn<DiscRecord>("isSingle");
const std::size_t kDiscReleaseDate = offsetIn<DiscRecord>("releaseDate");
const std::size_t kNewAlbumStyle = offsetIn<NewAlbumRecord>("style");
const std::size_t kNewAlbumTitle = offsetIn<NewAlbumRecord>("title");
static_assert(decltype(NewAlbumRecord::title)::width == decltype(DiscRecord::title)::width);

constexpr std::array<int32_t, 5> kPrice = {50000, 20000, 5000, 2500, 500};
constexpr std::array<int, 5> kQualityBase = {90, 80, 65, 50, 40};

int budgetLevel(int b) { return std::clamp(b, 0, 4); }

uint8_t percent(double v) { return narrow<uint8_t>(std::clamp(roundHalfEven(v), 1.0, 100.0)); }

// v with up to a tenth of itself added and taken away.
uint8_t noisyFigure(Game& g, int v) {
    double r1 = g.rng.draw();
    double r2 = g.rng.draw();
    return percent(v + intFloor(v / 10.0 * r1) - intFloor(v / 10.0 * r2));
}

bool contractEndSet(const BandRecord& b) { return b.contractEnd > kNoDate; }

bool isPlayersBand(const Game& g) { return g.player.playerLabel > 0 && g.band->label == g.player.playerLabel; }

std::string bandName(const Game& g) { return trim(g.band->name.value); }

void progressNews(Game& g) {
    const int32_t n = g.band->songsWritten;
    std::string tail = g.band->albumStatus == 1 ? " for " + grammarWord(g, 5, false) + " forthcoming album."
                                                : " ready to appear on a future album.";
    std::string who = grammarWord(g, 1, false) + " " + grammarWord(g, 7, false);
    postNews(g, {.date = g.gameDate + 1,
                 .title = bandName(g) + " album update.",
                 .text = "In a progress meeting today " + bandName(g) + " informed you that " + who + " now written " +
                         std::to_string(n) + " tracks " + tail});
}

void payFirstInstallment(Game& g) {
    const int16_t band = g.band->id;
    const Money amount = payAdvanceThird(g);
    g.band.read(band);
    g.band->firstInstallmentDue = 0;
    g.band.write();
    if (!isPlayersBand(g)) return;
    const std::string name = bandName(g);
    const std::string their = grammarWord(g, 5, false);
    postNews(g, {.date = g.gameDate + 1,
                 .title = "" + name + " paid the first installment of " + their + " advance.",
                 .text = "The first installment of " + name + "'s advance (" + formatMoney(g, amount, "###,###,##0") +
                         ") has been paid from your accounts."});
    g.band.read(band);
}

// The latest first release of the band's albums, or none.
double latestAlbumRelease(Game& g, int16_t band) {
    double latest = 0;
    for (int32_t n : discsOfBand(g, band)) {
        const auto bytes = g.disc.bytesOf(n);
        if (fieldAt<uint8_t>(bytes, kDiscIsSingle) != 0) continue;
        double first = 0;
        for (std::size_t t = 0; t < 5; ++t) {
            const auto d = fieldAt<double>(bytes, kDiscReleaseDate + 8 * t);
            if (d > kNoDate && (first == 0 || d < first)) first = d;
        }
        latest = std::max(latest, first);
    }
    return latest;
}

bool hasWriter(Game& g, const BandRecord& b) {
    for (int i = 0; i < std::min<int>(b.memberCount, 10); ++i) {
        int16_t m = b.members[static_cast<std::size_t>(i)];
        if (m > 0 && g.artist.readIfPresent(m) && g.artist->songQuality > 0) return true;
    }
    return false;
}

}  // namespace

int32_t materialPrice(int budget) { return kPrice[static_cast<std::size_t>(budgetLevel(budget))]; }
int materialQualityBase(int budget) { return kQualityBase[static_cast<std::size_t>(budgetLevel(budget))]; }

void updateSongs(Game& g) {
    const int32_t artists = g.artist.recordCount();
    for (int32_t a = 1; a < artists; ++a) {
        // Artists who write nothing are passed over on their bytes; the last
        // is read whatever it is, as a walk reading each leaves the buffer.
        const auto bytes = g.artist.bytesOf(a);
        const bool writes = fieldAt<uint8_t>(bytes, kArtistSongQuality) != 0 &&
                            fieldAt<int16_t>(bytes, kArtistBand) >= 1 &&
                            fieldAt<int16_t>(bytes, kArtistRetired) == kFalse;
        if (!writes && a + 1 < artists) continue;
        g.artist.read(a);
        if (g.artist->songQuality == 0 || g.artist->band < 1 || g.artist->retired != kFalse) continue;
        g.band.read(g.artist->band);
        const bool ownWorkStopped = g.band->albumStatus > 1 || contractEndSet(g.band.rec);
        bool wrote = false;
        if (!ownWorkStopped && writesThisWeek(g)) {
            writeSong(g, true, false);
            wrote = true;
        }
        if (wrote) continue;
        g.artist.read(a);
        g.band.read(g.artist->band);
        if (contractEndSet(g.band.rec)) continue;
        if (g.rng.between(0, 99) < g.artist->writingRate && g.band->albumStatus == 1 && g.band->members[0] == a)
            writeSong(g, false, false);
    }
}

bool writesThisWeek(Game& g) {
    const double focus = g.band->albumStatus == 1 ? 100 : g.artist->writingFocus;
    const double c = roundHalfEven(g.artist->writingRate * 7 * focus / 100);
    return c > g.rng.between(0, 899);
}

void writeSong(Game& g, bool fromArtist, bool silent) {
    const ArtistRecord writer = g.artist.rec;
    const int16_t band = g.band->id;
    SongRecord s{};
    s.title = isPlayersBand(g) ? pickSongTitle(g) : std::string("Untitled");
    s.written = g.gameDate;
    s.style = writer.style;
    s.disc = kSongFree;
    s.band = band;
    if (fromArtist) {
        s.writer = writer.id;
        s.writerForename = writer.forename.value;
        s.writerSurname = writer.surname.value;
        s.commerciality = noisyFigure(g, writer.songCommerciality);
        s.quality = noisyFigure(g, writer.songQuality);
    } else {
        s.writerForename = std::string("Unknown");
        s.writerSurname = std::string();
        s.writer = 0;
        const int b = budgetLevel(g.band->materialBudget);
        const int base = g.style.readIfPresent(writer.style) ? g.style->commerciality : 0;
        const double r1 = g.rng.draw();
        const double r2 = g.rng.draw();
        s.commerciality = percent(intFloor(r1 * 10) + base - intFloor(r2 * (b * 10 + 10)));
        const double r3 = g.rng.draw();
        const double r4 = g.rng.draw();
        s.quality = percent(intFloor(r3 * 10) + kQualityBase[static_cast<std::size_t>(b)] - intFloor(r4 * 10));
        if (g.band->label > 0 && g.label.readIfPresent(g.band->label))
            addExpense(g, moneyUnits(kPrice[static_cast<std::size_t>(b)]), ledgerOtherExpense);
    }
    g.band.read(band);
    g.band->songsWritten = narrow<int32_t>(static_cast<int64_t>(g.band->songsWritten) + 1);
    g.band.write();
    if (g.band->firstInstallmentDue == 1) payFirstInstallment(g);
    if (!silent && isPlayersBand(g) && g.band->songsWritten >= 10 && g.band->songsWritten <= 50) {
        progressNews(g);
        g.band.read(band);
    }
    g.song.rec = s;
    g.song.append();
    g.artist.read(writer.id);
}

std::string pickAlbumTitle(Game& g) {
    const int32_t count = g.newalbum.recordCount();
    if (count < 2) return "Untitled";
    const uint8_t style = g.band->style;
    // The titles drawn and the discs' titles are compared on their bytes,
    // trimmed, which match exactly when the titles do. The buffers are left
    // at the last title drawn and the disc where the last comparison stopped.
    int32_t drawn = 0;
    int32_t stoppedAt = 0;
    bool found = false;
    for (int attempt = 0; attempt < 1001 && !found; ++attempt) {
        drawn = g.rng.between(1, count - 1);
        const auto entry = g.newalbum.bytesOf(drawn);
        if (fieldAt<uint8_t>(entry, kNewAlbumStyle) != style) continue;
        // A walk of the discs would stop at the first bearing the title, or run to the last.
        const int32_t taken = firstDiscTitled(g, storedTitle(entry, kNewAlbumTitle));
        found = taken == 0;
        stoppedAt = found ? g.disc.recordCount() - 1 : taken;
    }
    g.newalbum.read(drawn);
    if (stoppedAt > 0) g.disc.read(stoppedAt);
    return trim(g.newalbum->title.value);
}

bool isAlreadySingle(const SongRecord& song) {
    return std::any_of(song.singleDisc.begin(), song.singleDisc.end(), [](int16_t d) { return d >= 1; });
}

int songMean(const SongRecord& song) { return toLong((song.quality + song.commerciality) / 2.0); }

void holdBandSongs(Game& g, int16_t band) {
    for (int32_t n : unusedSongsOf(g, band)) {
        g.song.read(n);
        g.song->disc = kSongHeld;
        g.song.write();
    }
}

void seedAlbumPlan(Game& g) {
    const BandRecord band = g.band.rec;
    if (band.label < 1) return;
    const double latest = latestAlbumRelease(g, band.id);
    if (latest != 0 && g.gameDate - latest <= 180) {
        g.band.rec = band;
        return;
    }
    int songs = g.rng.between(0, 19);
    if (!hasWriter(g, band)) songs = std::min(songs, 5);
    g.band.rec = band;
    const int members = std::min<int>(band.memberCount, 10);
    for (int i = 0; i < songs && members > 0; ++i) {
        bool found = false;
        for (int attempt = 0; attempt < 100 && !found; ++attempt) {
            int16_t m = band.members[static_cast<std::size_t>(g.rng.between(0, members - 1))];
            if (m < 1 || !g.artist.readIfPresent(m)) continue;
            found = g.artist->songQuality > 0 && g.rng.between(0, 99) < g.artist->writingRate;
        }
        if (!found) g.artist.readIfPresent(band.members[0]);
        writeSong(g, found, true);
        g.band.read(band.id);
    }
}

void briefNewPlayerOnAlbums(Game& g) {
    std::string lines;
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        g.band.read(n);
        if (!isPlayersBand(g) || g.band->albumStatus >= 2 || g.band->songsWritten < 1) continue;
        const int32_t count = g.band->songsWritten;
        lines += "\n- " + bandName(g) + " : written " + std::to_string(count) + " track" + (count != 1 ? "s" : "") +
                 " to appear on a future album.";
    }
    if (lines.empty()) return;
    postNews(g, {.date = g.gameDate,
                 .title = "Introductory album progress briefing",
                 .text = "In one of your introductory meetings today you were briefed on how the bands on signed to "
                         "your new label are progressing on forthcoming albums, the report can be seen below :-" +
                         lines});
}

std::string pickSongTitle(Game& g) {
    constexpr int kTries = 50;
    const int32_t titles = g.newsong.recordCount() - 1;
    if (titles < 1) return "Untitled";
    const uint8_t style = g.band->style;
    for (int tries = 0; tries < kTries; ++tries) {
        const int32_t n = g.rng.between(1, titles);
        g.newsong.read(n);
        if (g.newsong->style == style && g.rng.between(0, 99) >= g.newsong->uses) {
            if (g.newsong->uses < 255) g.newsong->uses = static_cast<uint8_t>(g.newsong->uses + 1);
            g.newsong.write(n);
            return trim(g.newsong->title.value);
        }
    }
    // After the last try the last title drawn is used whatever its fit, and no use is counted.
    return trim(g.newsong->title.value);
}

}  // namespace trovane

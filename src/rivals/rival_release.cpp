#include <algorithm>
#include <array>

#include "production/businesses.h"
#include "production/disc_release.h"
#include "rivals/rival_albums.h"
#include "rivals/rival_common.h"
#include "rivals/rival_news.h"
#include "rivals/rival_touring.h"
#include "schedule/band_calendar.h"
#include "schedule/schedule.h"
#include "world/band_lookups.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/record_bytes.h"

namespace trovane {

namespace {

// The song's singleDisc fields run UK, US, Global, Europe, Oceania.
constexpr std::array<std::size_t, 5> kSingleDiscField = {0, 1, 3, 4, 2};

const std::size_t kEntryType = offsetIn<ScheduleRecord>("type");
const std::size_t kEntryBand = offsetIn<ScheduleRecord>("band");
const std::size_t kDiscReleaseDate = offsetIn<DiscRecord>("releaseDate");
const std::size_t kDiscIsSingle = offsetIn<DiscRecord>("isSingle");
const std::size_t kDiscBand = offsetIn<DiscRecord>("band");
const std::size_t kBandReputation = offsetIn<BandRecord>("reputation");
const std::size_t kBusinessKind = offsetIn<BusinessRecord>("kind");
const std::size_t kBusinessOpen = offsetIn<BusinessRecord>("open");

// The entries and discs below are read from their bytes; no buffer changes
// but the day's, left at the last day read as reading each day leaves it.
bool gigBooked(Game& g, int16_t band, double from, double to) {
    DayFileReader days(g);
    bool found = false;
    for (double day = from; day <= to && !found; ++day) {
        for (int32_t id : days.entries(day)) {
            const auto e = g.schedule.bytesOf(id);
            if (fieldAt<uint8_t>(e, kEntryType) == 8 && fieldAt<int16_t>(e, kEntryBand) == band) {
                found = true;
                break;
            }
        }
    }
    days.finish();
    return found;
}

// Three discs of the type out that day in t by bands of about the same standing.
bool crowded(Game& g, const DiscRecord& disc, int t, double date, int r) {
    const int low = std::clamp(roundTo<int>(r - r / 4.0), 0, 255);
    const int high = std::clamp(roundTo<int>(r + r / 4.0), 0, 255);
    int equals = 0;
    const auto territory = static_cast<std::size_t>(t);
    for (int32_t n : discsOutOn(g, date)) {
        const auto d = g.disc.bytesOf(n);
        if (fieldAt<double>(d, kDiscReleaseDate + 8 * territory) != date ||
            fieldAt<uint8_t>(d, kDiscIsSingle) != disc.isSingle || n == disc.id)
            continue;
        const auto band = fieldAt<int16_t>(d, kDiscBand);
        if (band < 1 || band >= g.band.recordCount()) continue;
        const int rep = fieldAt<uint8_t>(g.band.bytesOf(band), kBandReputation + territory);
        if (low <= rep && rep <= high && ++equals >= 3) return true;
    }
    return false;
}

}  // namespace

void rivalChooseReleaseDate(Game& g, int territory) {
    const int t = territory - 1;
    const DiscRecord disc = g.disc.rec;
    const int16_t band = disc.band;
    double candidate = g.gameDate + 48;
    const double gap = disc.isSingle == 0 ? 180 : 45;
    const double last = latestReleaseOf(g, band, disc.isSingle, t);
    if (last > kNoDate && last + gap > candidate) candidate = last + gap;
    candidate = candidate - weekdayOf(candidate) + 2;
    g.band.read(band);
    const int r = g.band->reputation[static_cast<std::size_t>(t)];
    bool accepted = false;
    // The free days from today are counted on from the last date tried, a
    // week at a time: the buffers end as a count from today leaves them.
    int32_t freeDays = 0;
    double countedTo = g.gameDate;
    for (int week = 0; week < 11 && !accepted; ++week) {
        g.band.read(band);
        freeDays += countFreeDays(g, countedTo, candidate);
        countedTo = candidate;
        g.band.read(band);
        const bool freeThatDay = bandEngagement(g, 1, candidate) == 0;
        accepted = freeDays >= 42 && freeThatDay && !crowded(g, disc, t, candidate, r);
        if (!accepted) candidate += 7;
    }
    if (!accepted) candidate -= 7.0 * g.rng.between(0, 8);
    g.disc.rec = disc;
    g.disc->releaseDate[static_cast<std::size_t>(t)] = candidate;
    g.disc.write();
    g.band.read(band);
}

void rivalPressDisc(Game& g) {
    const int16_t disc = g.disc->id;
    const PressForecast forecast = pressForecast(g);
    std::array<int32_t, 5> copies{};
    int64_t total = 0;
    for (std::size_t t = 0; t < 5; ++t) {
        if (g.disc->releaseDate[t] <= kNoDate) continue;
        copies[t] = forecast.figure[t];
        total += copies[t];
    }
    if (total <= 0) return;
    const int32_t required = roundTo<int32_t>(static_cast<double>(total) / 35);
    const int32_t firms = g.business.recordCount() - 1;
    // The firms drawn are tested on their bytes and only open plants read;
    // the buffer is left at the last firm drawn, as reading each leaves it.
    int16_t plant = 0;
    int32_t unread = 0;
    for (int draw = 0; draw < 1001 && firms > 0; ++draw) {
        const int32_t n = g.rng.between(1, firms);
        const auto firm = g.business.bytesOf(n);
        unread = n;
        if (fieldAt<uint8_t>(firm, kBusinessKind) != kPlant || fieldAt<int16_t>(firm, kBusinessOpen) != kFirmOpen)
            continue;
        g.business.read(n);
        unread = 0;
        plant = static_cast<int16_t>(n);
        if (plantDailyCapacity(g) > required) break;
    }
    if (unread > 0) g.business.read(unread);
    if (plant == 0) return;  // no plant for hire anywhere: the disc waits unpressed
    pressDiscs(g, disc, plant, copies);
    g.disc.read(disc);
}

void rivalRecordingComplete(Game& g) {
    const int16_t disc = g.disc->id;
    const int16_t band = g.band->id;
    if (!isRivalBand(g)) return;
    const auto& rep = g.band->reputation;
    const int best = *std::max_element(rep.begin(), rep.end());
    std::array<bool, 5> flagged{};
    for (std::size_t i = 0; i < 5; ++i) flagged[i] = std::clamp(roundTo<int>(rep[i] * 125 / 100.0), 0, 255) >= best;
    if (flagged[0] && flagged[1] && flagged[2] && flagged[3]) flagged[4] = true;
    for (int i = 0; i < 5; ++i) {
        if (!flagged[static_cast<std::size_t>(i)]) continue;
        g.disc.read(disc);
        rivalChooseReleaseDate(g, i + 1);
    }
    g.disc.read(disc);
    const DiscRecord dated = g.disc.rec;
    if (dated.isSingle != 0) {
        g.song.read(dated.tracks[0]);
        for (std::size_t i = 0; i < 5; ++i)
            if (flagged[i]) g.song->singleDisc[kSingleDiscField[i]] = disc;
        g.song.write();
    }
    g.disc.read(disc);
    scheduleRelease(g);
    g.disc.read(disc);
    g.band.read(band);
    rivalPressDisc(g);
    double lastDate = g.gameDate;
    for (double d : dated.releaseDate) lastDate = std::max(lastDate, d);
    if (dated.isSingle == 0 && !gigBooked(g, band, g.gameDate, lastDate)) {
        g.disc.read(disc);
        g.band.read(band);
        planTour(g, 1);
    }
    g.disc.read(disc);
    g.band.read(band);
    bookAllPromotion(g, 0);
    g.disc.read(disc);
    g.band.read(band);
    announceCompletion(g);
    g.disc.read(disc);
    g.band.read(band);
    // Every album comes with a first single.
    if (dated.isSingle == 0 && g.band->label > 0) rivalMakeSingle(g);
}

}  // namespace trovane

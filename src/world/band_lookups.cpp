#include "world/band_lookups.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <optional>
#include <span>

#include "world/dates.h"
#include "world/fatal_error.h"
#include "world/game.h"
#include "world/record_bytes.h"

namespace trovane {

namespace {

const std::size_t kSongBand = offsetIn<SongRecord>("band");
const std::size_t kSongDisc = offsetIn<SongRecord>("disc");
const std::size_t kDiscBand = offsetIn<DiscRecord>("band");
const std::size_t kDiscDates = offsetIn<DiscRecord>("releaseDate");

constexpr uint16_t kNotOnDisc = 65535;

// The whole day a release date falls on, or none for a date not set.
std::optional<int64_t> releaseDayOf(double date) {
    if (!(date > kNoDate)) return std::nullopt;
    return static_cast<int64_t>(std::floor(date));
}

std::array<double, 5> datesIn(std::span<const uint8_t> bytes) {
    std::array<double, 5> out{};
    for (std::size_t t = 0; t < 5; ++t) out[t] = fieldAt<double>(bytes, kDiscDates + 8 * t);
    return out;
}

void addDates(DayIndex& index, int32_t disc, std::span<const uint8_t> bytes) {
    for (double date : datesIn(bytes))
        if (auto day = releaseDayOf(date)) index.add(*day, disc);
}

void removeDates(DayIndex& index, int32_t disc, std::span<const uint8_t> bytes) {
    for (double date : datesIn(bytes))
        if (auto day = releaseDayOf(date)) index.remove(*day, disc);
}

// Takes in the records added since the last lookup; starts again when the
// table was opened or emptied since.
template <class Table>
const SideIndex& refreshByBand(SideIndex& index, const Table& table, std::size_t bandAt) {
    const int32_t last = table.recordCount() - 1;
    if (index.generation != table.generation() || index.covered > last) index.reset(table.generation());
    for (int32_t n = index.covered + 1; n <= last; ++n) {
        index.add(fieldAt<int16_t>(table.bytesOf(n), bandAt), n);
        index.covered = n;
    }
    return index;
}

const DayIndex& refreshByDay(Game& g) {
    DayIndex& index = g.discsByDay;
    const int32_t last = g.disc.recordCount() - 1;
    if (index.generation != g.disc.generation() || index.covered > last) index.reset(g.disc.generation());
    for (int32_t n = index.covered + 1; n <= last; ++n) {
        addDates(index, n, g.disc.bytesOf(n));
        index.covered = n;
    }
    return index;
}

}  // namespace

std::vector<int32_t> songsOfBand(Game& g, int16_t band) {
    return refreshByBand(g.songsByBand, g.song, kSongBand).of(band);
}

std::vector<int32_t> unusedSongsOf(Game& g, int16_t band) {
    std::vector<int32_t> out;
    for (int32_t n : refreshByBand(g.songsByBand, g.song, kSongBand).of(band))
        if (fieldAt<uint16_t>(g.song.bytesOf(n), kSongDisc) == kNotOnDisc) out.push_back(n);
    return out;
}

std::vector<int32_t> discsOfBand(Game& g, int16_t band) {
    return refreshByBand(g.discsByBand, g.disc, kDiscBand).of(band);
}

std::vector<int32_t> discsOutOn(Game& g, double date) {
    std::vector<int32_t> out;
    const auto day = releaseDayOf(date);
    if (!day) return out;
    for (int32_t n : refreshByDay(g).of(*day)) {
        const auto dates = datesIn(g.disc.bytesOf(n));
        if (std::find(dates.begin(), dates.end(), date) != dates.end()) out.push_back(n);
    }
    std::sort(out.begin(), out.end());
    return out;
}

void watchDiscDates(Game& g) {
    g.disc.watchWrites(&g.discsByDay,
                       [&g](int32_t n, std::span<const uint8_t> before, std::span<const uint8_t> after) {
                           DayIndex& index = g.discsByDay;
                           // A record the index has not taken in yet is read whole at the next lookup.
                           if (index.generation != g.disc.generation() || n > index.covered) return;
                           if (!before.empty() && datesIn(before) == datesIn(after)) return;
                           if (!before.empty()) removeDates(index, n, before);
                           addDates(index, n, after);
                       },
                       {{kDiscDates, sizeof(DiscRecord::releaseDate)}});
}

}  // namespace trovane

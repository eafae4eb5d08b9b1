#pragma once
// Worlds for the benchmarks: the shipped game played a year on, the same world
// grown to the size of year ten by writing records, and a way to put the
// schedule's day files back as they were so each iteration starts alike.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "schedule/schedule.h"
#include "shipped_game.h"
#include "world/dates.h"
#include "world/record_store.h"

namespace trovane::bench {

// The shipped game a year into the player's take-over of label 1.
struct YearOnGame : ShippedGame {
    explicit YearOnGame(const char* name) : ShippedGame(name) { play(365); }
};

// Grows the world to about what ten years of play leave: `artists` more
// artists in acts of three (copies of the acts that are there, renamed and
// reshuffled), and the discs of nine more years at the rate of the first year
// (copies of its discs, shifted back a year at a time, with their sales). The
// records are written straight into the tables; nothing is played.
inline void growToYearTen(Game& g, int artists = 10'000) {
    const int32_t firstBands = g.band.recordCount();
    const int32_t firstArtists = g.artist.recordCount();
    const int32_t firstDiscs = g.disc.recordCount();
    for (int i = 0; i < artists / 3; ++i) {
        g.band.read(1 + i % (firstBands - 1));
        BandRecord band = g.band.rec;
        band.name = "Act " + std::to_string(i * 7919 % 10'007);
        band.label = static_cast<int16_t>(i % 5 == 0 ? 0 : band.label);
        band.retired = 0;
        band.age = static_cast<uint8_t>(i % 10);
        band.ability = static_cast<uint8_t>(i * 37 % 101);
        band.controversy = static_cast<uint8_t>(i * 13 % 101);
        for (auto& r : band.reputation) r = static_cast<uint8_t>((i * 53 + r) % 101);
        band.memberCount = 3;
        band.members.fill(0);
        g.band.rec = band;
        const auto id = static_cast<int16_t>(g.band.append());
        for (int m = 0; m < 3; ++m) {
            g.artist.read(1 + (3 * i + m) % (firstArtists - 1));
            ArtistRecord a = g.artist.rec;
            a.retired = 0;
            a.band = id;
            a.age = static_cast<uint8_t>(17 + (i + m) % 40);
            a.birthDate = g.gameDate - 365.25 * a.age - (i * 31 + m * 101) % 365;
            a.ability = static_cast<uint8_t>((i + 7 * m) * 41 % 101);
            a.charisma = static_cast<uint8_t>((i + m) * 29 % 101);
            a.male = static_cast<int16_t>((i + m) % 2 == 0 ? kTrue : kFalse);
            g.artist.rec = a;
            band.members[static_cast<std::size_t>(m)] = static_cast<int16_t>(g.artist.append());
        }
        g.band.rec = band;
        g.band->id = id;
        g.band.write();
    }
    const int32_t bands = g.band.recordCount();
    for (int year = 1; year < 10; ++year) {
        for (int32_t n = 1; n < firstDiscs && g.disc.recordCount() < 32'000; ++n) {
            g.disc.read(n);
            DiscRecord d = g.disc.rec;
            for (double& r : d.releaseDate)
                if (r > 0) r -= 365.0 * year;
            if (n % 2 == 0) d.band = static_cast<int16_t>(firstBands + (n * 7 + year) % (bands - firstBands));
            for (std::size_t t = 0; t < d.lifetimeSales.size(); ++t) {
                d.lifetimeSales[t] = static_cast<int32_t>((n * 977 + year * 4001 + t * 313) % 400'000);
                d.totalSales[t] = d.lifetimeSales[t];
            }
            d.quality = static_cast<uint8_t>((n + year) * 23 % 101);
            g.disc.rec = d;
            g.disc.append();
        }
    }
}

// The schedule's day files of some years as they are now, put back by
// restore(): entries filed since are no longer listed on their days (their
// schedule records stay, unlisted, as a called-off entry would).
class DayFilesCheckpoint {
public:
    DayFilesCheckpoint(Game& g, std::vector<int> years) : g_(g) {
        for (int year : years) {
            if (year > g.lastScheduleYear) addScheduleYear(g, year);
            openDayFile(g, year);
            std::vector<DayRecord> days;
            for (int32_t d = 1; d <= daysInYear(year); ++d) {
                g.dayIndex.read(d);
                days.push_back(g.dayIndex.rec);
            }
            closeDayFile(g);
            kept_.push_back({year, std::move(days)});
        }
        lastYear_ = g.lastScheduleYear;
    }
    void restore() {
        for (const auto& [year, days] : kept_) {
            openDayFile(g_, year);
            for (std::size_t d = 0; d < days.size(); ++d) {
                g_.dayIndex.rec = days[d];
                g_.dayIndex.write(static_cast<int32_t>(d + 1));
            }
            closeDayFile(g_);
        }
        g_.lastScheduleYear = lastYear_;
    }

private:
    Game& g_;
    std::vector<std::pair<int, std::vector<DayRecord>>> kept_;
    int16_t lastYear_ = 0;
};

}  // namespace trovane::bench

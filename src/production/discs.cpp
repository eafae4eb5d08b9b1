#include "production/discs.h"

#include <algorithm>

#include "production/disc_release.h"
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
    for (int32_t n = 1; n < g.disc.recordCount(); ++n) {
        g.disc.read(n);
        if (g.disc->band != band.id) continue;
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

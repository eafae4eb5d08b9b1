#include "rivals/rival_promotion.h"

#include <algorithm>
#include <cstddef>

#include "live/media_promotion.h"
#include "schedule/band_calendar.h"
#include "world/dates.h"
#include "world/game.h"

namespace trovane {

namespace {

constexpr int kSixWeeks = 42;
constexpr int kEnough = 150;

}  // namespace

FreeDays freeDaysOf(Game& g, double from, double to) {
    const BandRecord band = g.band.rec;
    FreeDays out{.first = std::max(from, g.gameDate + 1)};
    if (out.first > to) return out;
    // One pass counts the free days and a second lists them. Asking day by
    // day reads what a walk of the whole stretch reads, so the days after
    // the last free one are walked too, and the buffers end as they would.
    out.free.assign(static_cast<std::size_t>(to - out.first) + 1, false);
    const int32_t free = countFreeDays(g, out.first, to + 1);
    g.band.rec = band;
    if (free > 0) {
        const std::vector<double> dates = nextFreeDates(g, out.first, free);
        for (double d : dates) out.free[static_cast<std::size_t>(d - out.first)] = true;
        g.band.rec = band;
        countFreeDays(g, dates.back() + 1, to + 1);
    }
    g.band.rec = band;
    return out;
}

int bookOutlet(Game& g, double day, double release, uint8_t kind, int value, FreeDays& days) {
    const BandRecord band = g.band.rec;
    const MediaRecord m = g.media.rec;
    if (band.retired != 0) return 0;
    for (double d = day; d >= release - kSixWeeks && d > g.gameDate; --d) {
        auto at = static_cast<std::ptrdiff_t>(d - days.first);
        if (at < 0 || at >= static_cast<std::ptrdiff_t>(days.free.size())) continue;
        if (!days.free[static_cast<std::size_t>(at)] || !isIssueDay(m, d)) continue;
        bookAppearance(g, m.mediaNumber, d, kind);
        days.free[static_cast<std::size_t>(at)] = false;
        g.band.rec = band;
        g.media.rec = m;
        return value;
    }
    g.band.rec = band;
    g.media.rec = m;
    return 0;
}

void bookRivalPromotion(Game& g, int territory) {
    const BandRecord band = g.band.rec;
    const DiscRecord disc = g.disc.rec;
    auto t = static_cast<std::size_t>(territory);
    double release = disc.releaseDate[t];
    if (release <= kNoDate) return;
    int demand = disc.promotion[t];
    if (demand > kEnough) return;
    std::vector<MediaOffer> offers = findMediaOffers(g, territory);
    if (offers.empty()) return;
    g.band.rec = band;
    FreeDays days = freeDaysOf(g, release - kSixWeeks, release - 1);
    for (const MediaOffer& o : offers) {
        g.band.rec = band;
        g.media.read(o.media);
        demand += bookOutlet(g, release - 1, release, o.kind, o.value, days);
        if (demand > kEnough) break;
    }
    g.band.rec = band;
    g.disc.rec = disc;
}

void bookAllPromotionNow(Game& g, int flags) {
    const BandRecord band = g.band.rec;
    const DiscRecord disc = g.disc.rec;
    for (int t = 0; t < 5; ++t) {
        if (flags != 0 && (flags & (1 << t)) == 0) continue;
        if (disc.releaseDate[static_cast<std::size_t>(t)] <= kNoDate) continue;
        g.band.rec = band;
        g.disc.rec = disc;
        bookRivalPromotion(g, t);
    }
    g.band.rec = band;
    g.disc.rec = disc;
}

}  // namespace trovane

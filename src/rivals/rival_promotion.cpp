#include "rivals/rival_promotion.h"

#include "live/media_promotion.h"
#include "schedule/band_calendar.h"
#include "world/dates.h"
#include "world/game.h"

namespace trovane {

namespace {

constexpr int kSixWeeks = 42;
constexpr int kEnough = 150;

}  // namespace

int bookOutlet(Game& g, double day, double release, uint8_t kind, int value) {
    const BandRecord band = g.band.rec;
    const MediaRecord m = g.media.rec;
    if (band.retired != 0) return 0;
    for (double d = day; d >= release - kSixWeeks && d > g.gameDate; --d) {
        if (!isIssueDay(m, d)) continue;
        g.band.rec = band;
        if (bandEngagement(g, 1, d) != 0) continue;
        g.band.rec = band;
        bookAppearance(g, m.mediaNumber, d, kind);
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
    for (const MediaOffer& o : findMediaOffers(g, territory)) {
        g.band.rec = band;
        g.media.read(o.media);
        demand += bookOutlet(g, release - 1, release, o.kind, o.value);
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

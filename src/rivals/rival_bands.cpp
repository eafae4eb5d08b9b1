#include "rivals/rival_bands.h"

#include <cmath>
#include <cstdlib>

#include "label/scouting.h"
#include "rivals/rival_albums.h"
#include "rivals/rival_common.h"
#include "talent/contract_progress.h"
#include "talent/contract_terms.h"
#include "world/game.h"

namespace trovane {

void computerCheckBands(Game& g) {
    const int16_t player = g.player.playerLabel;
    for (int32_t l = 1; l < g.label.recordCount(); ++l) {
        if (l == player) continue;
        for (int32_t b = 1; b < g.band.recordCount(); ++b) {
            g.band.read(b);
            if (g.band->retired != kFalse) continue;
            g.label.read(l);
            considerForShortlist(g, 0);
        }
    }
}

void rivalFollowUpSingle(Game& g) {
    const int16_t band = g.schedule->band;
    const int16_t album = g.schedule->disc;
    if (!g.band.readIfPresent(band) || !isRivalBand(g)) return;
    if (!g.disc.readIfPresent(album)) return;
    const DiscRecord disc = g.disc.rec;
    int released = 0;
    int best = -1;
    int next = -1;
    for (int i = 0; i < disc.trackCount && i < 20; ++i) {
        g.song.read(disc.tracks[static_cast<std::size_t>(i)]);
        const int q = trackQuality(g.song.rec);
        if (q > best) best = q;
        if (songIsSingle(g.song.rec)) {
            ++released;
        } else if (q > next) {
            next = q;
        }
    }
    if (released >= 5 || next < 0) return;
    if (next * 1.2 < best) return;
    g.disc.read(album);
    g.band.read(band);
    rivalMakeSingle(g);
}

void rivalOptionDecision(Game& g) {
    if (!isRivalBand(g)) return;
    const int16_t band = g.band->id;
    g.offer.rec = OfferRecord{};
    if (g.band->optionsRemaining - 1 == g.band->additionalAdvanceCount) {
        g.offer->additionalAdvance = roundTo<int32_t>(moneyToDouble(g.band->additionalAdvance));
        g.offer->additionalAdvanceCount = g.band->additionalAdvanceCount;
    } else {
        g.offer->additionalAdvance = roundTo<int32_t>(moneyToDouble(g.band->initialAdvance));
        g.offer->additionalAdvanceCount = 1;
    }
    g.offer->royalty = g.band->royaltyRate;
    const BandRecord saved = g.band.rec;
    g.label.read(saved.label);
    setAskingTerms(g);
    const int rating = rateContract(g, 2).score;
    g.band.rec = saved;
    if (rating > 110) {
        releaseBand(g, 1);
        return;
    }
    const int16_t latest = latestAlbum(g, band);
    g.band.read(band);
    if (latest == 0) {
        extendContract(g);  // no album finished: the band is kept
        return;
    }
    const double net = moneyToDouble(g.band->grossIncome) - moneyToDouble(g.band->costs);
    bool dropIt = false;
    g.disc.read(latest);
    const double income = moneyToDouble(g.disc->income);
    if (net < 0) {
        g.label.read(g.disc->label);
        const float ratio = static_cast<float>(std::fabs(net) / moneyToDouble(g.label->cashBalance));
        const int n = g.rng.between(0, 99);
        dropIt = ratio > 0.1f || n > 75;
    }
    g.band.read(band);
    if (income >= 0 && !dropIt)
        extendContract(g);
    else
        releaseBand(g, 1);
}

}  // namespace trovane

#include "rivals/rival_bands.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "label/scouting.h"
#include "rivals/rival_albums.h"
#include "rivals/rival_common.h"
#include "talent/contract_progress.h"
#include "talent/contract_terms.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/shortlist_lookups.h"

namespace trovane {

void computerCheckBands(Game& g) {
    const int16_t player = g.player.playerLabel;
    // A signed band never qualifies and draws nothing, so only the free acts
    // are read, once; judging lists bands and signs none, so no band or label
    // changes while it runs and a copy of each record stands for a read of it.
    static const std::size_t kRetired = offsetIn<BandRecord>("retired");
    static const std::size_t kLabel = offsetIn<BandRecord>("label");
    auto isFree = [&](int32_t n) {
        const auto bytes = g.band.bytesOf(n);
        return fieldAt<int16_t>(bytes, kRetired) == kFalse && fieldAt<int16_t>(bytes, kLabel) == 0;
    };
    std::size_t count = 0;
    for (int32_t n = 1; n < g.band.recordCount(); ++n) count += isFree(n) ? 1 : 0;
    std::vector<BandRecord> free(count);
    auto next = free.begin();
    for (int32_t n = 1; n < g.band.recordCount(); ++n)
        if (isFree(n)) decodeRecord(g.band.bytesOf(n).data(), *next++);
    // Each pair is tested on the copies. The styles do not change, so a
    // label's walk from each style is made once.
    struct KnownWalk {
        bool known = false;
        StyleWalk walk;
    };
    std::array<KnownWalk, 256> walks{};
    int walksFrom = -1;  // the label style the known walks lead to
    const StyleWalker walk = [&](int labelStyle, int bandStyle) {
        if (bandStyle < 0 || bandStyle >= static_cast<int>(walks.size())) return walkStyles(g, labelStyle, bandStyle);
        if (labelStyle != walksFrom) {
            walks.fill({});
            walksFrom = labelStyle;
        }
        KnownWalk& k = walks[static_cast<std::size_t>(bandStyle)];
        if (!k.known) k = {true, walkStyles(g, labelStyle, bandStyle)};
        return k.walk;
    };
    // Listing a pair reads buffers (band, label, style, shortlist) and
    // appends the pair when it is not listed yet. Each buffer is set once, at
    // the end, as the last test or listing to set it leaves it: after the
    // last test the band and label buffers hold the last band and label
    // tested, whether that pair was listed or not.
    int lastStyleRead = 0;
    int32_t listedLast = 0;  // the record of the last pair found listed, when no pair was added after it
    bool tested = false;
    LabelRecord label{};
    for (int32_t l = 1; l < g.label.recordCount(); ++l) {
        if (l == player) continue;
        decodeRecord(g.label.bytesOf(l).data(), label);
        for (const BandRecord& band : free) {
            const ShortlistVerdict v = shortlistVerdict(g, label, band, 0, walk);
            if (v.styleRead > 0) lastStyleRead = v.styleRead;
            tested = true;
            if (!v.qualifies || g.rng.between(0, 99) <= 50) continue;
            listedLast = shortlistRecordOf(g, band.id, label.id);
            if (listedLast != 0) continue;
            g.shortlist.rec = ShortlistRecord{};
            g.shortlist->band = band.id;
            g.shortlist->label = label.id;
            g.shortlist.append();
        }
    }
    if (tested) {
        g.band.rec = free.back();
        g.label.rec = label;
    }
    if (lastStyleRead > 0) g.style.read(lastStyleRead);
    if (listedLast != 0) g.shortlist.read(listedLast);
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
    OptionFacts facts;
    facts.rating = rateContract(g, 2).score;
    g.band.rec = saved;
    const int16_t latest = facts.rating > 110 ? 0 : latestAlbum(g, band);
    if (latest != 0) {
        g.band.read(band);
        facts.hasAlbum = true;
        facts.net = moneyToDouble(g.band->grossIncome) - moneyToDouble(g.band->costs);
        g.disc.read(latest);
        facts.albumIncome = moneyToDouble(g.disc->income);
        g.label.read(g.disc->label);
        facts.labelBalance = moneyToDouble(g.label->cashBalance);
    }
    const bool keep = rivalKeepsBand(facts, [&g] { return g.rng.between(0, 99); });
    g.band.read(band);
    if (facts.rating > 110) g.band.rec = saved;
    if (keep)
        extendContract(g);
    else
        releaseBand(g, 1);
}

bool rivalKeepsBand(const OptionFacts& f, const std::function<int()>& drawPercent) {
    if (f.rating > 110) return false;
    if (!f.hasAlbum) return true;  // no album out yet: the band is kept
    bool dropIt = false;
    if (f.net < 0) {
        // Single precision, as the game has it: a zero balance gives infinity and drops the band.
        const float ratio = static_cast<float>(std::fabs(f.net) / f.labelBalance);
        dropIt = ratio > 0.1f;
        const int n = drawPercent();
        dropIt = dropIt || n > 75;
    }
    return f.albumIncome >= 0 && !dropIt;
}

}  // namespace trovane

#include "rivals/rival_signing.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "floor/grammar.h"
#include "floor/news_post.h"
#include "rivals/rival_common.h"
#include "schedule/schedule.h"
#include "talent/contract_terms.h"
#include "talent/contracts.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/strings.h"

namespace trovane {

namespace {

const std::size_t kRowBand = offsetIn<ShortlistRecord>("band");
const std::size_t kRowLabel = offsetIn<ShortlistRecord>("label");
const std::size_t kBandLabel = offsetIn<BandRecord>("label");
const std::size_t kBandRetired = offsetIn<BandRecord>("retired");

// Whether a row of the shortlist may lead to a bid, from the bytes of the
// row and its band: a label other than the player's, and a free act.
bool mayBid(Game& g, int32_t row, int16_t player) {
    const auto r = g.shortlist.bytesOf(row);
    const auto label = fieldAt<int16_t>(r, kRowLabel);
    const auto band = fieldAt<int16_t>(r, kRowBand);
    if (label < 1 || label == player || label >= g.label.recordCount()) return false;
    if (band < 1 || band >= g.band.recordCount()) return false;
    const auto b = g.band.bytesOf(band);
    return fieldAt<int16_t>(b, kBandLabel) == 0 && fieldAt<int16_t>(b, kBandRetired) == kFalse;
}

int32_t scaled(double value, double scale, double high) {
    return roundTo<int32_t>(std::clamp(roundHalfEven(value * scale), 0.0, high));
}

}  // namespace

void adjustOfferTerms(Game& g, int percent, bool lower) {
    const double scale = lower ? (100.0 - percent) / 100.0 : 1.0 + percent / 100.0;
    g.offer->royalty = static_cast<uint8_t>(scaled(g.offer->royalty, scale, 100));
    g.offer->additionalAdvance = scaled(g.offer->additionalAdvance, scale, 50'000'000);
    g.offer->initialAdvance = scaled(g.offer->initialAdvance, scale, 50'000'000);
}

int bestRatingOnFile(Game& g, int16_t band) {
    int best = 0;
    const OfferRecord saved = g.offer.rec;
    for (int32_t n : offersOnBand(g, band)) {
        g.offer.read(n);
        if (g.offer->decisionDate < g.gameDate) continue;
        g.label.read(g.offer->label);
        g.band.read(band);
        best = std::max(best, rateContract(g, 1).score);
    }
    g.offer.rec = saved;
    g.band.read(band);
    return best;
}

double firstOfferDate(Game& g, int16_t band) {
    OfferRecord o{};
    for (int32_t n : offersOnBand(g, band)) {
        decodeRecord(g.offer.bytesOf(n).data(), o);
        if (o.decisionDate >= g.gameDate) return o.decisionDate;
    }
    return 0;
}

void computerApproachBands(Game& g) {
    const int16_t player = g.player.playerLabel;
    std::vector<std::vector<int16_t>> bidders(static_cast<std::size_t>(std::max(g.band.recordCount(), 1)));
    for (int32_t s = 1; s < g.shortlist.recordCount(); ++s) {
        // A row that cannot lead to a bid is passed over on its bytes; the
        // last is read whatever it is, as a walk reading each leaves the buffers.
        if (!mayBid(g, s, player) && s + 1 < g.shortlist.recordCount()) continue;
        g.shortlist.read(s);
        const int16_t label = g.shortlist->label;
        const int16_t band = g.shortlist->band;
        if (label == 0 || label == player || band < 1) continue;
        if (!g.band.readIfPresent(band) || !g.label.readIfPresent(label)) continue;
        if (g.band->label != 0 || g.band->retired != kFalse) continue;  // a signed band never qualifies
        const double spare = moneyToDouble(g.label->cashBalance) - moneyToDouble(g.band->initialAdvance) / 2;
        const bool affords = spare > moneyToDouble(g.label->cashReserve);
        if (hasOfferFrom(g, label, band) != 0 || g.label->maxBands <= g.label->bandCount || !affords) continue;

        bestRatingOnFile(g, band);
        g.label.read(label);  // the ratings left another label in the buffer
        double date = firstOfferDate(g, band);
        const bool newDecision = date == 0;
        if (newDecision) date = g.gameDate + 7;
        const int target = 90 + g.rng.between(0, 59);

        g.band.read(band);
        g.offer.rec = OfferRecord{};
        g.offer->decisionDate = date;
        g.offer->label = label;
        g.offer->band = band;
        g.offer->initialAdvance = roundTo<int32_t>(moneyToDouble(g.band->initialAdvance));
        g.offer->additionalAdvance = roundTo<int32_t>(moneyToDouble(g.band->additionalAdvance));
        g.offer->additionalAdvanceCount = g.band->additionalAdvanceCount;
        g.offer->optionLength = 18;
        g.offer->royalty = g.band->royaltyRate;
        const int low = roundTo<int>(target - target / 10.0);
        const int high = roundTo<int>(target + target / 5.0);
        for (int tries = 0;;) {
            const int rating = rateContract(g, 1).score;
            if (low <= rating && rating <= high) break;
            const bool lower = target + target / 10.0 < rating;
            const int percent = std::min(roundTo<int>(std::fabs(static_cast<double>(rating) / target * 100 - 100)), 33);
            adjustOfferTerms(g, percent, lower);
            if (++tries == 100) {
                g.offer->royalty = g.band->royaltyRate;
                g.offer->initialAdvance = roundTo<int32_t>(moneyToDouble(g.band->initialAdvance));
                g.offer->additionalAdvance = roundTo<int32_t>(moneyToDouble(g.band->additionalAdvance));
                break;
            }
        }
        const int32_t id = g.offer.recordCount();
        g.offer->id = id;
        g.offer.append();

        auto& column = bidders[static_cast<std::size_t>(band)];
        if (!column.empty() || playerWatches(g, band)) column.push_back(label);
        if (newDecision) {
            ScheduleRecord r{};
            r.type = 4;
            r.date = date;
            r.band = band;
            r.label = label;
            r.offer = id;
            addSchedule(g, r);
        }
    }
    for (std::size_t b = 0; b < bidders.size(); ++b) {
        if (bidders[b].empty()) continue;
        std::string list;
        for (int16_t label : bidders[b]) {
            g.label.read(label);
            list += "- " + trim(g.label->name.value) + "\r\n";
        }
        g.band.read(static_cast<int32_t>(b));
        const std::string name = trim(g.band->name.value);
        const std::string possessive = grammarWord(g, 5, false);
        g.band.read(static_cast<int32_t>(b));
        const std::string object = grammarWord(g, 4, false);
        postNews(g, {.date = g.gameDate + 1,
                     .title = "Rival offers for " + name,
                     .text = "As you are registered as interested in " + name + " " + possessive +
                             " manager has chosen to inform you that the following labels have offered " + object +
                             " a contract :-\r\n\r\n" + list});
    }
}

}  // namespace trovane

#include "talent/band_offers.h"

#include "floor/formats.h"
#include "floor/grammar.h"
#include "floor/number_helpers.h"
#include "label/scouting.h"
#include "schedule/schedule.h"
#include "talent/contracts.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kDaysToDecide = 7;

double exchangeRate(const Game& g) {
    const double rate = g.prefs.rec.exchangeRate;
    return rate == 0 ? 1 : rate;
}

int32_t shown(const Game& g, double wholeMoney) {
    int32_t v = roundTo<int32_t>(wholeMoney * exchangeRate(g));
    return roundToMoneyStep(v);
}

int32_t base(const Game& g, int32_t displayed) { return roundTo<int32_t>(displayed / exchangeRate(g)); }

// A type 4 entry of the band still stands on the date.
bool decisionFiled(Game& g, int16_t band, double date) {
    for (int32_t id : entriesOfDay(g, date)) {
        g.schedule.read(id);
        if (g.schedule->type == 4 && g.schedule->band == band) return true;
    }
    return false;
}

// The date of another label's live offer that a decision entry still stands
// for, or 0.
double dateToJoin(Game& g, int16_t band) {
    for (int32_t n : offersOnBand(g, band)) {
        g.offer.read(n);
        const double date = g.offer->decisionDate;
        if (date < g.gameDate) continue;
        if (decisionFiled(g, band, date)) return date;
    }
    return 0;
}

}  // namespace

std::string offerFormTitle(Game& g, int16_t band) {
    g.band.read(band);
    return "Offer " + trim(g.band->name.value) + " Contract";
}

OfferTerms askedTerms(Game& g, int16_t band) {
    g.band.read(band);
    const BandRecord& b = g.band.rec;
    return {shown(g, moneyToDouble(b.initialAdvance)), shown(g, moneyToDouble(b.additionalAdvance)),
            b.additionalAdvanceCount, b.optionLength, b.royaltyRate};
}

std::string demandsText(Game& g, int16_t band) {
    const OfferTerms t = askedTerms(g, band);
    const std::string symbol = g.prefs.rec.currencySymbol.value;
    const std::string name = trim(g.band->name.value);
    const std::string is = grammarWord(g, 0, false);
    const std::string They = grammarWord(g, 1, true);
    const std::string s = grammarWord(g, 2, false);
    return name + " " + is + " demanding " + symbol + formatNumber(t.initialAdvance, "###,###,##0") +
           " as an initial advance with a further " + std::to_string(t.options) + " options all carrying advances of " +
           symbol + formatNumber(t.additionalAdvance, "###,###,##0") + " being negotiable in no more than " +
           std::to_string(t.months) + " months time. " + They + " also expect" + s + " a royalty rate of " +
           std::to_string(t.royalty) + " percent.";
}

OfferTerms offerFormStart(Game& g, int16_t band) {
    const int32_t pending = hasOfferFrom(g, g.player.playerLabel, band);
    if (pending == 0) return askedTerms(g, band);
    g.offer.read(pending);
    const OfferRecord& o = g.offer.rec;
    return {shown(g, o.initialAdvance), shown(g, o.additionalAdvance), o.additionalAdvanceCount, o.optionLength,
            o.royalty};
}

std::string checkOffer(Game& g, int16_t band, const OfferTerms& t) {
    g.band.read(band);
    const std::string name = trim(g.band->name.value);
    if (g.band->retired != kFalse) return name + " " + grammarWord(g, 7, false) + " retired from the industry.";
    if (g.band->label != 0) {
        const std::string have = grammarWord(g, 7, false);
        g.label.read(g.band->label);
        return name + " " + have + " already signed for " + trim(g.label->name.value) + ".";
    }
    if (t.initialAdvance < 0 || t.additionalAdvance < 0) return "An advance cannot be below nothing.";
    if (t.options < 1 || t.options > 5) return "A contract carries 1 to 5 further options.";
    if (t.months != 12 && t.months != 18) return "An option runs 12 or 18 months.";
    if (t.royalty < 5 || t.royalty > 30) return "The royalty rate is 5 to 30 percent.";
    return {};
}

OfferMade makeOffer(Game& g, int16_t band, const OfferTerms& t) {
    const int16_t player = g.player.playerLabel;
    const int32_t pending = hasOfferFrom(g, player, band);
    OfferMade made{};
    if (pending != 0) {
        g.offer.read(pending);
        made = {pending, g.offer->decisionDate, false};
    } else {
        const double joinDate = dateToJoin(g, band);
        made.joined = joinDate != 0;
        made.decisionDate = made.joined ? joinDate : g.gameDate + kDaysToDecide;
    }
    g.offer.rec = OfferRecord{};
    g.offer->decisionDate = made.decisionDate;
    g.offer->label = player;
    g.offer->band = band;
    g.offer->initialAdvance = base(g, t.initialAdvance);
    g.offer->additionalAdvance = base(g, t.additionalAdvance);
    g.offer->additionalAdvanceCount = narrow<uint8_t>(t.options);
    g.offer->optionLength = narrow<uint8_t>(t.months);
    g.offer->royalty = narrow<uint8_t>(t.royalty);
    if (pending != 0) {
        g.offer->id = pending;
        g.offer.write(pending);
    } else {
        made.offer = g.offer.append();
        if (!made.joined) {
            ScheduleRecord r{};
            r.type = 4;
            r.date = made.decisionDate;
            r.band = band;
            r.label = player;
            r.offer = made.offer;
            addSchedule(g, r);
        }
    }
    g.band.read(band);
    g.label.read(player);
    shortlistAdd(g);
    return made;
}

std::string checkWithdraw(Game& g, int16_t band) {
    const int32_t pending = hasOfferFrom(g, g.player.playerLabel, band);
    g.band.read(band);
    const std::string name = trim(g.band->name.value);
    if (pending == 0) return "You have no offer before " + name + ".";
    g.offer.read(pending);
    if (g.offer->decisionDate <= g.gameDate)
        return name + " " + grammarWord(g, 0, false) + " deciding on the offers today: it is too late to withdraw.";
    return {};
}

void withdrawOffer(Game& g, int16_t band) {
    const int16_t player = g.player.playerLabel;
    const int32_t pending = hasOfferFrom(g, player, band);
    if (pending == 0) return;
    g.offer.read(pending);
    const double date = g.offer->decisionDate;
    if (date <= g.gameDate) return;
    for (int32_t id : entriesOfDay(g, date)) {
        g.schedule.read(id);
        if (g.schedule->type != 4 || g.schedule->band != band || g.schedule->label != player) continue;
        g.schedule->type = 255;
        g.schedule.write(id);
        const int32_t offer = g.schedule->offer;
        if (offer > 0 && offer < g.offer.recordCount()) {
            g.offer.read(offer);
            g.offer->band = kVoidOffer;
            g.offer.write(offer);
        }
    }
    // An offer that joined another label's date has no entry of its own.
    g.offer.read(pending);
    g.offer->band = kVoidOffer;
    g.offer.write(pending);
}

}  // namespace trovane

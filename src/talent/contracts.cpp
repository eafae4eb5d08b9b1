#include "talent/contracts.h"

#include "floor/grammar.h"
#include "floor/news_post.h"
#include "label/scouting.h"
#include "production/songwriting.h"
#include "schedule/schedule.h"
#include "talent/band_functions.h"
#include "talent/contract_news.h"
#include "talent/contract_terms.h"
#include "world/band_lookups.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

OfferRecord offerBytes(Game& g, int32_t n) {
    OfferRecord r{};
    decodeRecord(g.offer.bytesOf(n).data(), r);
    return r;
}

// Brings the index up to the end of the table. A rewritten offer keeps its
// band (or turns void), so what was indexed stays true but for voids, which
// offersOnBand leaves out as it reads.
void refreshOfferIndex(Game& g) {
    SideIndex& index = g.offersByBand;
    if (index.generation != g.offer.generation()) index.reset(g.offer.generation());
    if (index.covered > g.offer.recordCount() - 1) index.reset(g.offer.generation());
    for (int32_t n = index.covered + 1; n < g.offer.recordCount(); ++n) {
        index.add(offerBytes(g, n).band, n);
        index.covered = n;
    }
}

bool onPlayersShortlist(Game& g, int16_t band) {
    for (int16_t b : playerShortlist(g))
        if (b == band) return true;
    return false;
}

void pickTitlesForUntitledSongs(Game& g, int16_t band) {
    for (int32_t n : songsOfBand(g, band)) {
        g.song.read(n);
        if (trim(g.song->title.value) != "Untitled") continue;
        g.band.read(band);
        const std::string title = pickSongTitle(g);
        g.song.read(n);
        g.song->title = title;
        g.song.write(n);
    }
}

}  // namespace

std::vector<int32_t> offersOnBand(Game& g, int16_t band) {
    refreshOfferIndex(g);
    std::vector<int32_t> out;
    for (int32_t n : g.offersByBand.of(band))
        if (offerBytes(g, n).band == band) out.push_back(n);
    return out;
}

int32_t hasOfferFrom(Game& g, int16_t label, int16_t band) {
    for (int32_t n : offersOnBand(g, band)) {
        const OfferRecord o = offerBytes(g, n);
        if (o.label == label && o.decisionDate >= g.gameDate) return n;
    }
    return 0;
}

void voidOffers(Game& g, int16_t band) {
    for (int32_t n : offersOnBand(g, band)) {
        g.offer.read(n);
        g.offer->band = kVoidOffer;
        g.offer.write(n);
    }
}

void decideOffers(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    const int16_t band = entry.band;
    const int16_t player = g.player.playerLabel;
    bool playerInvolved = false;
    int best = 0;
    int32_t winner = 0;
    int bestReason = 0;
    for (int32_t n : offersOnBand(g, band)) {
        g.offer.read(n);
        if (g.offer->decisionDate != entry.date) continue;
        if (player > 0 && g.offer->label == player) playerInvolved = true;
        g.label.read(g.offer->label);
        g.band.read(band);
        const ContractRating r = rateContract(g, 1);
        if (r.score >= best) {
            best = r.score;
            winner = n;
            bestReason = r.bestReason;
        }
    }
    if (!playerInvolved) playerInvolved = onPlayersShortlist(g, band);
    if (winner == 0) return;

    g.offer.read(winner);
    g.label.read(g.offer->label);
    g.band.read(band);
    if (best <= 90) {
        const int32_t players = player > 0 ? hasOfferFrom(g, player, band) : 0;
        if (playerInvolved && players != 0) {
            // The player's offer is weighed again with the winner's label still current.
            g.offer.read(players);
            g.band.read(band);
            const ContractRating r = rateContract(g, 1);
            postRejection(g, r.score, r.worstReason);
        }
        voidOffers(g, band);
        return;
    }
    g.schedule.read(entry.id);
    g.schedule->offer = winner;
    g.schedule.write(entry.id);
    g.offer.read(winner);
    g.band.read(band);
    if (!playerInvolved) {
        scheduleSigning(g);
        return;
    }
    const bool playersWin = g.offer->label == player;
    postAgreement(g, bestReason, playersWin, entry.id);
    if (!playersWin) {
        g.offer.read(winner);
        g.band.read(band);
        scheduleSigning(g);
    }
}

void scheduleSigning(Game& g) {
    ScheduleRecord r{};
    r.type = 5;
    const bool players = g.player.playerLabel > 0 && g.offer->label == g.player.playerLabel;
    r.date = players ? g.gameDate : g.gameDate + 1;
    r.band = g.band->id;
    r.label = g.offer->label;
    r.offer = g.offer->id;
    addSchedule(g, r);
}

void signBand(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (entry.offer < 1 || entry.offer >= g.offer.recordCount()) return;
    g.offer.read(entry.offer);
    const OfferRecord offer = g.offer.rec;
    if (offer.band <= 0) return;
    const int16_t player = g.player.playerLabel;
    const bool watched = onPlayersShortlist(g, offer.band);

    g.label.read(offer.label);
    g.label->bandCount = narrow<int16_t>(g.label->bandCount + 1);
    g.label.write();
    g.band.read(offer.band);
    BandRecord& b = g.band.rec;
    b.firstInstallmentDue = 1;
    b.label = offer.label;
    b.initialAdvance = moneyUnits(offer.initialAdvance);
    b.additionalAdvance = moneyUnits(offer.additionalAdvance);
    b.additionalAdvanceCount = offer.additionalAdvanceCount;
    b.optionLength = offer.optionLength;
    b.royaltyRate = offer.royalty;
    b.grossIncome = 0;
    b.costs = 0;
    b.advanceToPay = b.initialAdvance;
    b.optionMonthsLeft = offer.optionLength;
    b.optionsRemaining = narrow<uint8_t>(offer.additionalAdvanceCount + 1);
    b.signedOn = g.gameDate;
    g.band.write();
    setRoyaltyShares(g);
    g.band.read(offer.band);

    const bool players = player > 0 && offer.label == player;
    if (bandRating(g) > 60 || players || watched) {
        const std::string name = trim(g.band->name.value);
        const std::string s = grammarWord(g, 2, false);
        const std::string their = grammarWord(g, 5, false);
        g.label.read(offer.label);
        const std::string label = trim(g.label->name.value);
        postNews(g, {.date = g.gameDate + 1,
                     .title = name + " sign" + s + " for " + label + ".",
                     .text = name + " completed " + their + " move to " + label +
                             " today after initially agreeing contracts yesterday."});
    }
    if (players) pickTitlesForUntitledSongs(g, offer.band);
    voidOffers(g, offer.band);
    g.band.read(offer.band);
    tidyShortlistForBand(g);
    g.band.read(offer.band);
    roundAskedTerms(g);
    g.band.write();
}

}  // namespace trovane

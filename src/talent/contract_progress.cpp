#include "talent/contract_progress.h"

#include "floor/formats.h"
#include "floor/grammar.h"
#include "floor/news_post.h"
#include "floor/number_helpers.h"
#include "label/finances.h"
#include "rivals/rival_bands.h"
#include "schedule/schedule.h"
#include "talent/band_functions.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/shortlist_lookups.h"
#include "world/strings.h"

namespace trovane {

namespace {

std::string bandName(const Game& g) { return trim(g.band->name.value); }

std::string labelName(Game& g, int16_t label) {
    if (!g.label.readIfPresent(label)) return {};
    return trim(g.label->name.value);
}

std::string word(Game& g, int code, bool capital = false) { return grammarWord(g, code, capital); }

bool onPlayersShortlist(Game& g, int16_t band) {
    return findShortlistPair(g, band, g.player.playerLabel) != 0;
}

std::string money(const Game& g, Money amount) { return formatMoney(g, amount, "###,###,##0"); }

// The same day of the month three months later, or the month's last day.
double threeMonthsLater(double date) {
    CivilDate d = civilFromSerial(date);
    int index = d.year * 12 + static_cast<int>(d.month) - 1 + 3;
    int year = index / 12;
    auto month = static_cast<unsigned>(index % 12 + 1);
    return serialFromCivil(year, month, std::min(d.day, daysInMonth(year, month)));
}

void sueForBreach(Game& g) {
    const int16_t band = g.band->id;
    const int16_t label = g.band->label;
    int32_t units = toLong(moneyToDouble(g.band->initialAdvance) * 0.75);
    const Money damages = moneyUnits(roundToMoneyStep(units));
    if (label == g.player.playerLabel) {
        const std::string name = bandName(g);
        postNews(g, {.date = g.gameDate + 1,
                     .title = name + " sued for breach of contract",
                     .text = "Due to your label not fulfilling contract obligations with " + name + " " + word(g, 1) +
                             " " + word(g, 7) + " successfully sued you for breach of contract. " + word(g, 1, true) +
                             " " + word(g, 0) + " now released from " + word(g, 5) +
                             " contract. You have also been forced to pay " + money(g, damages) + " in damages."});
    }
    if (g.label.readIfPresent(label)) addExpense(g, damages, ledgerOtherExpense);
    g.band.read(band);
    payArtistsEvenly(g, damages);
    g.band.read(band);
    releaseBand(g, 0);
}

}  // namespace

bool firstTermRuns(const Game& g) {
    return g.band->optionsRemaining == g.band->additionalAdvanceCount + g.band->offerStage;
}

void updateMonthsRemainingOnOption(Game& g) {
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        g.band.read(n);
        if (g.band->label < 1 || !firstTermRuns(g)) continue;
        if (g.band->optionMonthsLeft == 100 || g.band->optionMonthsLeft == 0) continue;
        --g.band->optionMonthsLeft;
        g.band.write();
        if (g.band->optionMonthsLeft == 6 && g.band->label == g.player.playerLabel) {
            const std::string name = bandName(g);
            postNews(
                g, {.date = g.gameDate + 1,
                    .title = "6 months remain on " + name + "'s option",
                    .text = "One of your assistants has informed you that there is now only 6 months left on " + name +
                            "'s initial option - if you do not release an album within this time then you will "
                            "be in breach of your contract agreement."});
        } else if (g.band->optionMonthsLeft == 0) {
            sueForBreach(g);
        }
    }
}

Money payAdvanceThird(Game& g) {
    const int16_t band = g.band->id;
    const Money amount = static_cast<Money>(roundHalfEven(static_cast<double>(g.band->advanceToPay) / 3.0));
    addBandCost(g, amount, ledgerAdvances);
    g.band.read(band);
    payArtistsEvenly(g, amount);
    g.band.read(band);
    return amount;
}

void contractPoint(Game& g) {
    const int16_t band = g.schedule->band;
    const int32_t entry = g.schedule->id;
    if (!g.band.readIfPresent(band) || g.band->retired != kFalse || g.band->label < 1) return;
    if (g.band->optionsRemaining > 0) {
        if (g.band->label != g.player.playerLabel) {
            rivalOptionDecision(g);
            return;
        }
        const std::string name = bandName(g);
        const std::string s = word(g, 2);
        postNews(g,
                 {.date = g.gameDate + 1,
                  .title = name + " request" + s + " decision on contract.",
                  .text = name + " " + word(g, 7) + " finished " + word(g, 5) + " option, as a result " + word(g, 1) +
                          " request" + s + " you make a decision regarding " + word(g, 5) + " future options.",
                  .kind = kNewsOk,
                  .scheduleLink = entry,
                  .mustReply = true});
        return;
    }
    const std::string label = labelName(g, g.band->label);
    g.band.read(band);
    releaseBand(g, 1, true);
    g.band.read(band);
    const std::string name = bandName(g);
    postNews(g, {.date = g.gameDate + 1,
                 .title = name + " complete" + word(g, 2) + " contractual obligations with " + label + ".",
                 .text = name + " today announced that " + word(g, 1) + " " + word(g, 7) + " now fulfilled " +
                         word(g, 5) + " contractual obligation with label " + label + ". As a result " + word(g, 1) +
                         " " + word(g, 0) + " on the lookout for a new deal. Insiders claim the " + word(g, 9) +
                         " will hold out for a deal carrying advances in the region of " +
                         money(g, g.band->initialAdvance) + "."});
}

void extendContract(Game& g) {
    const int16_t band = g.band->id;
    const int remaining = g.band->optionsRemaining;
    g.band->advanceToPay = g.band->additionalAdvance;
    g.band->optionsRemaining = narrow<uint8_t>(remaining - 1);
    g.band->firstInstallmentDue = 1;
    g.band->albumStatus = 0;
    g.band->songsWritten = 0;
    g.band.write();
    if (!onPlayersShortlist(g, band)) {
        g.band.read(band);
        return;
    }
    g.band.read(band);
    const std::string label = labelName(g, g.band->label);
    g.band.read(band);
    const std::string name = bandName(g);
    postNews(g, {.date = g.gameDate + 1,
                 .title = name + "'s contract extended by " + label + ".",
                 .text = label + " announced today that they are extending " + name +
                         "'s contract. As a result they are now committed to producing at least " +
                         std::to_string(remaining) + " more album" + (remaining != 1 ? "s" : "") + " with the " +
                         word(g, 9) + "."});
    g.band.read(band);
}

void scheduleContractPoint(Game& g, double date) {
    if (g.band->optionsRemaining > 0 && g.band->optionsRemaining > g.band->additionalAdvanceCount) {
        extendContract(g);
        return;
    }
    ScheduleRecord e{};
    e.type = 18;
    e.date = threeMonthsLater(date);
    e.band = g.band->id;
    e.label = g.band->label;
    addSchedule(g, e);
}

void releaseBand(Game& g, int mode, bool silent) {
    if (g.band->label < 1) return;
    const int16_t band = g.band->id;
    const int16_t former = g.band->label;
    g.band->label = 0;
    g.band->albumStatus = 0;
    g.band->songsWritten = 0;
    g.band->advanceToPay = g.band->initialAdvance;
    g.band->grossIncome = 0;
    g.band->costs = 0;
    g.band.write();
    std::string label;
    if (g.label.readIfPresent(former)) {
        label = trim(g.label->name.value);
        g.label->bandCount = narrow<int16_t>(g.label->bandCount - 1);
        g.label.write();
    }
    g.band.read(band);
    if (silent || g.band->retired != kFalse) return;
    if (bandRating(g) < 51 && !onPlayersShortlist(g, band)) return;
    g.band.read(band);
    const std::string name = bandName(g);
    const std::string tail =
        " As a result, " + name + " will be looking for a new label to represent " + word(g, 4) + ".";
    if (mode == 1)
        postNews(g, {.date = g.gameDate + 1,
                     .title = name + " released by " + label,
                     .text = label + " have announced they are releasing " + name + " from " + word(g, 5) +
                             " contract with them." + tail});
    else
        postNews(g, {.date = g.gameDate + 1,
                     .title = name + " leave" + word(g, 2) + " " + label,
                     .text = name + " have announced they are leaving " + label +
                             " after the label failed to deliver on their contractual promises." + tail});
    g.band.read(band);
}

std::string optionDecisionTitle(Game& g) { return bandName(g) + " Option Decision"; }

std::string optionDecisionText(Game& g) {
    const int remaining = g.band->optionsRemaining;
    const Money amount = firstTermRuns(g) ? g.band->initialAdvance : g.band->additionalAdvance;
    const std::string s = remaining != 1 ? "s" : "";
    return "You must choose whether to extend " + bandName(g) +
           "'s contract or terminate it. If you choose to extend the contract you will be committed to producing " +
           std::to_string(remaining) + " futher album" + s + ". " + word(g, 1, true) + " will be paid " +
           money(g, amount) + " for " + (remaining == 1 ? "this" : "each of these") + " album" + s +
           ". Do you wish to extend the contract?";
}

std::string checkOptionDecision(Game& g) {
    if (g.schedule->type != 18) return "There is no option decision to make.";
    if (!g.band.readIfPresent(g.schedule->band)) return "There is no option decision to make.";
    if (g.band->label != g.player.playerLabel || g.player.playerLabel < 1)
        return trim(g.band->name.value) + " are no longer signed to your label.";
    if (g.band->optionsRemaining == 0) return "There are no further options to take up.";
    return {};
}

void decideOption(Game& g, bool extend) {
    g.band.read(g.schedule->band);
    if (extend)
        extendContract(g);
    else
        releaseBand(g, 1);
}

}  // namespace trovane

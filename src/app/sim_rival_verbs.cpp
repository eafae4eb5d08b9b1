// The verbs of the rival labels' dealings: offers on an act, and the held-item answers of advance --auto.
#include <fmt/format.h>

#include <memory>
#include <string>

#include "app/sim_context.h"
#include "day/news_inbox.h"
#include "floor/formats.h"
#include "floor/news_post.h"
#include "talent/contract_progress.h"
#include "talent/contract_terms.h"
#include "talent/contracts.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/record_dump.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane::sim {

namespace {

struct OffersOptions {
    std::string band;
};

// An act by record number or exact name, or 0 after telling why.
int16_t findBand(SimContext& ctx, Game& g, const std::string& which) {
    const int32_t n = recordNamed(g, FileNo::fileBand, which);
    if (n == 0) {
        printError(ctx.json, fmt::format("There is no band {}", which), kExitBadArgs);
        ctx.exitCode = kExitBadArgs;
    }
    return static_cast<int16_t>(n);
}

}  // namespace

bool answerHeldItem(Game& g) {
    const int32_t item = g.news->id;
    const int32_t entry = g.news->scheduleLink;
    const bool option =
        entry > 0 && g.news->kind == kNewsOk && g.schedule.readIfPresent(entry) && g.schedule->type == 18;
    g.news.read(item);
    openNewsItem(g);
    pressNewsCmd1(g);
    if (option) {
        g.schedule.read(entry);
        decideOption(g, true);
    } else {
        confirmDistributorForm(g);
    }
    g.currentScreen = Screen::frmNews;
    g.news.read(item);
    if (g.news->replied == 0) {
        // An ok item carries no action of its own: pressing it is the answer.
        g.news->replied = kTrue;
        g.news.write();
    }
    return true;
}

std::string labelStandingOf(Game& g, int32_t id, bool json) {
    g.label.read(id);
    const LabelRecord& l = g.label.rec;
    const auto& t = l.reputationTarget;
    const auto& r = l.reputation;
    const bool players = g.player.playerLabel > 0 && id == g.player.playerLabel;
    if (json)
        return fmt::format(
            ",\"bands\":{},\"maxBands\":{},\"cash\":{},\"reserve\":{},\"targets\":[{},{},{},{},{}],"
            "\"reputation\":[{},{},{},{},{}],\"player\":{}",
            l.bandCount, l.maxBands, l.cashBalance, l.cashReserve, t[0], t[1], t[2], t[3], t[4], r[0], r[1], r[2], r[3],
            r[4], players);
    return fmt::format("  {:>3}/{:<3} {:>16.0f} {:>14.0f}  targets {}/{}/{}/{}/{}  reputation {}/{}/{}/{}/{}{}",
                       l.bandCount, l.maxBands, moneyToDouble(l.cashBalance), moneyToDouble(l.cashReserve), t[0], t[1],
                       t[2], t[3], t[4], r[0], r[1], r[2], r[3], r[4], players ? "  (yours)" : "");
}

void addRivalVerbs(CLI::App& app, SimContext& ctx) {
    auto opts = std::make_shared<OffersOptions>();
    auto* offers = app.add_subcommand("offers", "Show the offers on file for an act, with today's rating of each");
    offers->add_option("BAND", opts->band, "The act, by number or exact name")->required();
    offers->callback([&ctx, opts] {
        Game& g = ctx.openGame();
        const int16_t band = findBand(ctx, g, opts->band);
        if (band > 0) {
            std::string json = "[";
            bool first = true;
            for (int32_t n : offersOnBand(g, band)) {
                g.offer.read(n);
                const OfferRecord o = g.offer.rec;
                g.label.read(o.label);
                const std::string label = trim(g.label->name.value);
                g.band.read(band);
                const int rating = rateContract(g, 1).score;
                const bool stale = o.decisionDate < g.gameDate;
                if (ctx.json) {
                    json += fmt::format(
                        "{}{{\"id\":{},\"label\":{},\"labelName\":{},\"decision\":\"{}\",\"initialAdvance\":{},"
                        "\"additionalAdvance\":{},\"count\":{},\"months\":{},\"royalty\":{},\"void\":{},"
                        "\"rating\":{}}}",
                        first ? "" : ",", o.id, o.label, jsonQuote(label), formatDate(o.decisionDate, "yyyy-mm-dd"),
                        moneyUnits(o.initialAdvance), moneyUnits(o.additionalAdvance), o.additionalAdvanceCount,
                        o.optionLength, o.royalty, stale, rating);
                } else {
                    std::printf("Offer %d from %s, decided %s: %s + %s x %d, %d months, %d%% royalty%s; rated %d\n",
                                o.id, label.c_str(), formatDate(o.decisionDate, "d/m/yyyy").c_str(),
                                formatMoney(g, moneyUnits(o.initialAdvance), "###,###,##0").c_str(),
                                formatMoney(g, moneyUnits(o.additionalAdvance), "###,###,##0").c_str(),
                                o.additionalAdvanceCount, o.optionLength, o.royalty, stale ? " (void)" : "", rating);
                }
                first = false;
            }
            if (ctx.json)
                std::printf("%s]\n", json.c_str());
            else if (first)
                std::printf("No offers on file.\n");
        }
        ctx.closeGame();
    });
}

}  // namespace trovane::sim

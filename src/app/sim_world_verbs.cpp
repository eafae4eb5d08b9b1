// The verbs that make, run and inspect a working set: init, status, advance, dump.
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "day/daily_cycle.h"
#include "floor/formats.h"
#include "floor/preferences.h"
#include "session/empty_world.h"
#include "session/invariants.h"
#include "session/session_record.h"
#include "session/working_set_check.h"
#include "world/journal.h"
#include "world/record_dump.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane::sim {

namespace {

// The ceremony night the player watched today: {"id", "name", "steps": [[line, ...]]}.
std::string showJson(Game& g) {
    std::string name = g.ceremony.readIfPresent(g.showCeremony) ? trim(g.ceremony->name.value) : "";
    std::string out = fmt::format("{{\"id\":{},\"name\":{},\"steps\":[", g.showCeremony, jsonQuote(name));
    for (std::size_t i = 0; i < g.showSteps.size(); ++i) {
        out += i ? ",[" : "[";
        for (std::size_t k = 0; k < g.showSteps[i].size(); ++k) out += (k ? "," : "") + jsonQuote(g.showSteps[i][k]);
        out += "]";
    }
    return out + "]}";
}

// The options of each verb, held by the verb's callback.
struct AdvanceOptions {
    int days = 1;
    bool trace = false;
    bool check = false;
    bool autoReply = false;
};
struct DumpOptions {
    std::string table;
};

}  // namespace

void addWorldVerbs(CLI::App& app, SimContext& ctx) {
    auto* init = app.add_subcommand("init", "Make an empty working set in the data folder, on 5 August 2004");
    init->callback([&ctx] {
        Game& g = ctx.freshGame();
        createEmptyWorkingSet(g);
        ctx.closeGame();
        if (ctx.json)
            std::printf("{\"data\":%s,\"date\":\"%s\"}\n", jsonQuote(ctx.dataDir.string()).c_str(),
                        isoDate(g.gameDate).c_str());
        else
            std::printf("Made an empty working set in %s; the game stands on %s\n", ctx.dataDir.c_str(),
                        formatDate(g.gameDate, "dddd d mmmm yyyy").c_str());
    });

    auto* status = app.add_subcommand("status", "Show the date, cash, label and player");
    status->callback([&ctx] {
        Game& g = ctx.openGame();
        StatusBarTexts s = statusBarTexts(g);
        if (ctx.json)
            std::printf("{\"date\":\"%s\",\"cash\":%s,\"label\":%s,\"player\":%s}\n", isoDate(g.gameDate).c_str(),
                        fmt::format("{:.4f}", moneyToDouble(g.player.playerLabelCash)).c_str(),
                        jsonQuote(s.company).c_str(), jsonQuote(s.name).c_str());
        else
            std::printf("Date:   %s\nCash:   %s\nLabel:  %s\nPlayer: %s\n", s.date.c_str(), s.cash.c_str(),
                        s.company.c_str(), s.name.c_str());
        ctx.closeGame();
    });

    auto* advance = app.add_subcommand("advance", "Run days of the game");
    auto adv = std::make_shared<AdvanceOptions>();
    advance->add_option("N", adv->days, "How many days")->required()->check(CLI::Range(0, 100000));
    advance->add_flag("--trace", adv->trace, "Show each step each day runs");
    advance->add_flag("--auto", adv->autoReply,
                      "An item that holds the calendar gets the first reply it offers, and play goes on");
    advance->add_flag("--check", adv->check, "Check the invariants after every day; stop at the first break");
    advance->callback([&ctx, adv] {
        const int days = adv->days;
        const bool trace = adv->trace;
        const bool check = adv->check;
        const bool autoReply = adv->autoReply;
        Game& g = ctx.openGame();
        std::vector<std::string> steps;
        if (trace) g.trace = [&steps](std::string_view step) { steps.emplace_back(step); };
        std::string json = "[";
        for (int d = 0; d < days; ++d) {
            while (autoReply && !allRepliesGiven(g) && answerHeldItem(g)) {}
            if (!allRepliesGiven(g)) {
                ctx.exitCode = kExitHeld;
                const NewsRecord& n = g.news.rec;
                if (ctx.json)
                    json += fmt::format("{}{{\"held\":true,\"news\":{},\"title\":{},{}}}", d ? "," : "", n.id,
                                        jsonQuote(trim(n.title.value)), heldItemDetails(n, true));
                else
                    std::printf("Held on %s: news item %d must be answered first: %s\n%s\n",
                                formatDate(g.gameDate, "dddd d/m/yyyy").c_str(), n.id, trim(n.title.value).c_str(),
                                heldItemDetails(n, false).c_str());
                break;
            }
            double day = g.gameDate;
            steps.clear();
            g.showCeremony = 0;
            checkDaysSchedule(g);
            // Each day reaches the disk whole: a run killed later keeps it.
            commitWorkingGame(g);
            if (check) {
                if (auto broken = checkInvariants(g)) {
                    printError(ctx.json, "after " + isoDate(day) + ": " + describeBreak(*broken), kExitInvariant);
                    ctx.exitCode = kExitInvariant;
                    break;
                }
            }
            if (ctx.json) {
                json += fmt::format("{}{{\"date\":\"{}\"", d ? "," : "", isoDate(day));
                if (trace) {
                    json += ",\"steps\":[";
                    for (std::size_t i = 0; i < steps.size(); ++i) json += (i ? "," : "") + jsonQuote(steps[i]);
                    json += "]";
                }
                if (g.showCeremony > 0) json += ",\"ceremony\":" + showJson(g);
                json += "}";
            } else {
                std::printf("%s", formatDate(day, "dddd d/m/yyyy").c_str());
                if (trace)
                    for (const auto& s : steps) std::printf("\n  %s", s.c_str());
                std::printf("\n");
                if (g.showCeremony > 0)
                    for (const auto& step : g.showSteps)
                        for (const auto& line : step) std::printf("  %s\n", line.c_str());
            }
            // The night has been shown; the run goes on from the news.
            if (g.showCeremony > 0 && g.currentScreen == Screen::frmAwardCeremony) g.currentScreen = g.previousScreen;
        }
        if (ctx.json) std::printf("%s]\n", json.c_str());
        ctx.closeGame();
    });

    auto* dump = app.add_subcommand(
        "dump", "Show the records of a table: of the working set, or of the base set when no game is in progress");
    auto dumpOpts = std::make_shared<DumpOptions>();
    dump->add_option("TABLE", dumpOpts->table,
                     "A table name (band, news, ...), chart0 to chart9, or a year's day index")
        ->required();
    dump->callback([&ctx, dumpOpts] {
        const std::string& table = dumpOpts->table;
        recoverJournal(ctx.dataDir);  // what a killed run left half written is finished or dropped first
        std::filesystem::path file;
        std::optional<FileNo> n = fileNoByTableName(table);
        if (n && catalogueEntry(*n).kind == FileKind::perUse) {
            if (*n == FileNo::fileSvar)
                file = ctx.dataDir / "svar.vel";
            else
                file = ctx.dataDir / (table + ".gam");
        } else if (!ctx.gameInProgress()) {
            file = baseSetFolder(ctx.dataDir) / (table + ".gam");
            if (!n || !std::filesystem::exists(file))
                throw SimError(kExitBadArgs, fmt::format("The base set has no table called {}", table));
        } else {
            file = ctx.dataDir / (table + ".vel");
            n = tableOfFile(file);
        }
        if (!n) throw SimError(kExitBadArgs, fmt::format("There is no table called {}", table));
        std::string out = dumpTableFile(file, *n, ctx.json ? DumpFormat::json : DumpFormat::text);
        std::fwrite(out.data(), 1, out.size(), stdout);
    });
}

}  // namespace trovane::sim

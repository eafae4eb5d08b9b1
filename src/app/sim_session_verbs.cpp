// The verbs of a playing session: new, save, load, slots, quit.
#include <unistd.h>

#include <cstdio>
#include <memory>
#include <string>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "floor/formats.h"
#include "floor/preferences.h"
#include "floor/text_rules.h"
#include "session/new_game.h"
#include "session/new_game_checks.h"
#include "session/save_load.h"
#include "session/session_record.h"
#include "world/dates.h"
#include "world/record_dump.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane::sim {

namespace fs = std::filesystem;

namespace {

// The base set copied into a data folder that has none of its own.
void ensureBaseSet(const fs::path& dataDir) {
    fs::path base = baseSetFolder(dataDir);
    if (base == dataDir) return;
    std::error_code ec;
    fs::create_directories(dataDir, ec);
    for (const auto& e : fs::directory_iterator(base))
        if (e.path().extension() == ".gam" && !fs::exists(dataDir / e.path().filename()))
            fs::copy_file(e.path(), dataDir / e.path().filename(), ec);
}

// The list verb that shows the valid words of a field.
std::string_view listFor(NewGameField f) {
    switch (f) {
    case NewGameField::nationality: return "nationalities";
    case NewGameField::country: return "countries";
    case NewGameField::city: return "cities";
    case NewGameField::style: return "styles";
    case NewGameField::label: return "labels";
    default: return "";
    }
}

// A refused choice of the new-game forms: status 2, the form's sentence, and the
// valid words where they are few.
[[noreturn]] void refuseChoice(const InputRefusal& r) {
    std::string text = r.text;
    if (!r.choices.empty() && r.choices.size() <= 40) {
        text += " Choose one of: ";
        for (std::size_t i = 0; i < r.choices.size(); ++i) text += (i ? ", " : "") + r.choices[i];
        text += ".";
    } else if (std::string_view list = listFor(r.field); !list.empty()) {
        text += fmt::format(" See trovane-sim list {}.", list);
    }
    throw SimError(kExitBadArgs, text);
}

struct NewOptions {
    std::string forename, surname, born, sex = "male", nationality;
    std::string found, continent, country, city, style = "All Styles", takeOver;
};
struct SlotOptions {
    int slot = 0;
    std::string name = "Untitled";
};

}  // namespace

void addSessionVerbs(CLI::App& app, SimContext& ctx) {
    auto* newGame = app.add_subcommand("new", "Start a new game: the player, then a new label or one taken over");
    auto opts = std::make_shared<NewOptions>();
    NewOptions& a = *opts;
    newGame->add_option("--forename", a.forename)->required();
    newGame->add_option("--surname", a.surname)->required();
    newGame->add_option("--born", a.born, "YYYY-MM-DD")->required();
    newGame->add_option("--sex", a.sex)->check(CLI::IsMember({"male", "female"}));
    newGame->add_option("--nationality", a.nationality, "As a player writes it: English, Brazilian...")->required();
    auto* found = newGame->add_option("--found", a.found, "The name of a new label");
    newGame->add_option("--continent", a.continent)->needs(found);
    newGame->add_option("--country", a.country)->needs(found);
    newGame->add_option("--city", a.city)->needs(found);
    newGame->add_option("--style", a.style)->needs(found);
    auto* take = newGame->add_option("--take-over", a.takeOver, "The name of an existing label");
    found->excludes(take);
    newGame->callback([&ctx, opts] {
        const NewOptions& a = *opts;
        if (a.found.empty() == a.takeOver.empty())
            throw SimError(kExitBadArgs,
                           "Give either --found NAME (with --continent, --country, --city, --style) or --take-over "
                           "LABEL");
        PlayerChoices p;
        p.forename = a.forename;
        p.surname = a.surname;
        unsigned bornDay = 0;
        char tail = 0;
        if (std::sscanf(a.born.c_str(), "%d-%u-%u%c", &p.birthYear, &p.birthMonth, &bornDay, &tail) != 3)
            throw SimError(kExitBadArgs, fmt::format("--born {}: give the date of birth as YYYY-MM-DD", a.born));
        p.birthDay = bornDay > 31 ? 0 : static_cast<int>(bornDay);
        p.male = a.sex == "male";
        p.nationality = a.nationality;
        p.createNewLabel = !a.found.empty();
        LabelChoices l;
        l.name = a.found;
        l.continent = a.continent;
        l.country = a.country;
        l.city = a.city;
        l.style = a.style;
        // The choices are checked against the base set before the working set is touched.
        int16_t label = 0;
        {
            Game& base = ctx.baseSetGame();
            for (FileNo f : {FileNo::fileCountry, FileNo::fileCity, FileNo::fileStyle, FileNo::fileLabel})
                openTable(base, f, "gam");
            InputRefusal r = checkPlayerChoices(base, p);
            if (!r) r = p.createNewLabel ? checkLabelChoices(base, l) : checkTakeOver(base, a.takeOver, label);
            closeAllTables(base);
            if (r) refuseChoice(r);
        }
        ensureBaseSet(ctx.dataDir);
        Game& g = ctx.freshGame();
        readPrefs(g);
        beginNewGame(g);
        try {
            NewPlayer player = confirmPlayer(g, p);
            if (p.createNewLabel)
                foundLabel(g, player, l);
            else
                takeOverLabel(g, player, label);
        } catch (...) {
            discardWorkingSet(g);
            throw;
        }
        ctx.closeGame();
        if (ctx.json)
            std::printf("{\"date\":\"%s\",\"label\":%s,\"game\":%d}\n", formatDate(g.gameDate, "yyyy-mm-dd").c_str(),
                        jsonQuote(trim(g.player.playerLabelName.value)).c_str(), g.player.gameNumber);
        else
            std::printf("A new game has begun on %s: %s %s heads %s.\n",
                        formatDate(g.gameDate, "dddd d mmmm yyyy").c_str(), trim(g.player.playerForename.value).c_str(),
                        trim(g.player.playerSurname.value).c_str(), trim(g.player.playerLabelName.value).c_str());
    });

    auto* save = app.add_subcommand("save", "Save the game into a slot (0 to 9)");
    auto saveOpts = std::make_shared<SlotOptions>();
    save->add_option("SLOT", saveOpts->slot)->required()->check(CLI::Range(0, 9));
    save->add_option("--name", saveOpts->name, "The save's name, at most 32 characters")->capture_default_str();
    save->callback([&ctx, saveOpts] {
        const int slot = saveOpts->slot;
        const std::string& name = saveOpts->name;
        if (std::string why = saveNameRefusal(name); !why.empty()) throw SimError(kExitBadArgs, why);
        Game& g = ctx.openGame();
        saveGame(g, slot, name);
        ctx.closeGame();
        if (ctx.json)
            std::printf("{\"slot\":%d,\"name\":%s}\n", slot, jsonQuote(trim(name)).c_str());
        else
            std::printf("Saved in slot %d as %s\n", slot, trim(name).c_str());
    });

    auto* load = app.add_subcommand("load", "Load the game of a slot (0 to 9)");
    auto loadOpts = std::make_shared<SlotOptions>();
    load->add_option("SLOT", loadOpts->slot)->required()->check(CLI::Range(0, 9));
    load->callback([&ctx, loadOpts] {
        const int slot = loadOpts->slot;
        Game& g = ctx.freshGame();
        readPrefs(g);
        if (g.prefs->slotUsed[static_cast<std::size_t>(slot)] == kFalse)
            throw SimError(kExitRefused, fmt::format("Slot {} holds no game", slot));
        loadGame(g, slot);
        ctx.closeGame();
        if (ctx.json)
            std::printf("{\"slot\":%d,\"date\":\"%s\"}\n", slot, formatDate(g.gameDate, "yyyy-mm-dd").c_str());
        else
            std::printf("Loaded slot %d: %s\n", slot, formatDate(g.gameDate, "dddd d/m/yyyy").c_str());
    });

    auto* slots = app.add_subcommand("slots", "List the ten save slots");
    slots->callback([&ctx] {
        Game& g = ctx.freshGame();
        recoverInterruptedSaves(g);
        std::string json = "[";
        for (int s = 0; s < kSlotCount; ++s) {
            std::string n = slotName(g, s);
            if (ctx.json) {
                json += fmt::format("{}{{\"slot\":{},\"name\":{}", s ? "," : "", s, jsonQuote(n));
                auto fault = slotFault(g, s);
                if (fault) json += fmt::format(",\"broken\":{}", jsonQuote(*fault));
                if (n != "None" && !fault) {
                    try {
                        SlotDetails d = slotDetails(g, s);
                        json += fmt::format(",\"date\":\"{}\",\"label\":{},\"cash\":{:.4f}",
                                            formatDate(d.gameDate, "yyyy-mm-dd"), jsonQuote(d.labelName),
                                            moneyToDouble(d.cash));
                    } catch (const std::exception&) {}
                }
                json += "}";
            } else if (auto fault = slotFault(g, s)) {
                std::printf("%d : (damaged) %s\n", s, fault->c_str());
            } else {
                std::printf("%d : %s\n", s, n.c_str());
            }
        }
        if (ctx.json) std::printf("%s]\n", json.c_str());
    });

    auto* quit = app.add_subcommand("quit", "End the game: the working set is deleted, what was not saved is gone");
    quit->callback([&ctx] {
        if (!ctx.gameInProgress()) throw SimError(kExitRefused, kNoGame);
        Game& g = ctx.freshGame();
        discardWorkingSet(g);
        if (!ctx.json)
            std::printf("The game is over; the working set in %s is gone.\n", ctx.dataDir.c_str());
        else
            std::printf("{\"quit\":true}\n");
    });
}

}  // namespace trovane::sim

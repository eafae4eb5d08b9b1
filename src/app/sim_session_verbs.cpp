// The verbs of a playing session: new, save, load, slots, quit.
#include <unistd.h>

#include <cstdio>
#include <string>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "floor/formats.h"
#include "floor/preferences.h"
#include "session/new_game.h"
#include "session/save_load.h"
#include "session/session_record.h"
#include "world/dates.h"
#include "world/record_dump.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane::sim {

namespace fs = std::filesystem;

namespace {

// The base world beside the program, copied into a data folder that has none.
void ensureBaseSet(const fs::path& dataDir) {
    if (fs::exists(dataDir / "country.gam")) return;
    std::error_code ec;
    fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    fs::path base = exe.parent_path() / "Data";
    if (ec || !fs::exists(base / "country.gam"))
        throw FatalError(
            fmt::format("{} holds no base world (country.gam and the rest), and none was found beside "
                        "the program",
                        dataDir.string()));
    fs::create_directories(dataDir, ec);
    for (const auto& e : fs::directory_iterator(base))
        if (e.path().extension() == ".gam" && !fs::exists(dataDir / e.path().filename()))
            fs::copy_file(e.path(), dataDir / e.path().filename(), ec);
}

int parseDate(const std::string& text, int& y, unsigned& m, unsigned& d) {
    return std::sscanf(text.c_str(), "%d-%u-%u", &y, &m, &d);
}

}  // namespace

void addSessionVerbs(CLI::App& app, SimContext& ctx) {
    auto* newGame = app.add_subcommand("new", "Start a new game: the player, then a new label or one taken over");
    struct NewArgs {
        std::string forename, surname, born, sex = "male", nationality;
        std::string found, continent, country, city, style = "All Styles", takeOver;
    };
    static NewArgs a;
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
    newGame->callback([&ctx] {
        if (a.found.empty() == a.takeOver.empty())
            throw FatalError(
                "Give either --found NAME (with --continent, --country, --city, --style) or --take-over LABEL");
        PlayerChoices p;
        p.forename = a.forename;
        p.surname = a.surname;
        unsigned bornDay = 0;
        int fields = parseDate(a.born, p.birthYear, p.birthMonth, bornDay);
        p.birthDay = static_cast<int>(bornDay);
        if (fields != 3 || p.birthMonth < 1 || p.birthMonth > 12 || p.birthYear < 1880 || p.birthYear > 2003 ||
            p.birthDay < 1 || p.birthDay > daysInBirthMonth(p.birthYear, p.birthMonth))
            throw FatalError(fmt::format("--born {}: give a real date from 1880 to 2003 as YYYY-MM-DD", a.born));
        p.male = a.sex == "male";
        p.nationality = a.nationality;
        p.createNewLabel = !a.found.empty();
        ensureBaseSet(ctx.dataDir);
        Game& g = ctx.freshGame();
        readPrefs(g);
        beginNewGame(g);
        try {
            if (findRecordByName(g, FileNo::fileCountry, p.nationality) == 0)
                throw FatalError(fmt::format("There is no nationality {}", p.nationality));
            NewPlayer player = confirmPlayer(g, p);
            if (p.createNewLabel) {
                LabelChoices l;
                l.name = a.found;
                l.continent = a.continent;
                l.country = a.country;
                l.city = a.city;
                l.style = a.style;
                foundLabel(g, player, l);
            } else {
                int32_t label = findRecordByName(g, FileNo::fileLabel, a.takeOver);
                if (label == 0) throw FatalError(fmt::format("There is no label called {}", a.takeOver));
                takeOverLabel(g, player, narrow<int16_t>(label));
            }
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
    static int slot = 0;
    static std::string name = "Untitled";
    save->add_option("SLOT", slot)->required()->check(CLI::Range(0, 9));
    save->add_option("--name", name, "The save's name")->capture_default_str();
    save->callback([&ctx] {
        Game& g = ctx.openGame();
        saveGame(g, slot, name);
        ctx.closeGame();
        if (ctx.json)
            std::printf("{\"slot\":%d,\"name\":%s}\n", slot, jsonQuote(trim(name)).c_str());
        else
            std::printf("Saved in slot %d as %s\n", slot, trim(name).c_str());
    });

    auto* load = app.add_subcommand("load", "Load the game of a slot (0 to 9)");
    load->add_option("SLOT", slot)->required()->check(CLI::Range(0, 9));
    load->callback([&ctx] {
        Game& g = ctx.freshGame();
        readPrefs(g);
        if (g.prefs->slotUsed[static_cast<std::size_t>(slot)] == kFalse)
            throw SlotError(fmt::format("Slot {} holds no game", slot));
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
        Game& g = ctx.freshGame();
        discardWorkingSet(g);
        if (!ctx.json)
            std::printf("The game is over; the working set in %s is gone.\n", ctx.dataDir.c_str());
        else
            std::printf("{\"quit\":true}\n");
    });
}

}  // namespace trovane::sim

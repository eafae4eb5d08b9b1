// The list verb: the words a new game takes (continents, countries, cities, styles,
// nationalities) and the labels a player may take over, before or during a game.
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "floor/list_fillers.h"
#include "session/new_game.h"
#include "session/session_record.h"
#include "world/record_dump.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane::sim {

namespace {

struct ListOptions {
    std::string what;
    std::string country;
};

// One row of a list: its record number, its name and, for labels, the city and style.
struct Row {
    int32_t id;
    std::string name;
    std::string city;
    std::string style;
};

std::string nameOf(Game& g, FileNo table, int32_t n) {
    if (n < 1 || n >= recordCount(g, table)) return {};
    if (table == FileNo::fileCity) {
        g.city.read(n);
        return trim(g.city->name.value);
    }
    g.style.read(n);
    return trim(g.style->name.value);
}

std::vector<Row> labelRows(Game& g) {
    std::vector<Row> rows;
    for (const ListRow& l : listLabels(g, 1)) {
        g.label.read(l.recordNumber);
        int32_t city = g.label->city;
        int32_t style = g.label->labelStyle;
        rows.push_back({l.recordNumber, l.text, nameOf(g, FileNo::fileCity, city),
                        style == 0 ? "All Styles" : nameOf(g, FileNo::fileStyle, style)});
    }
    return rows;
}

std::vector<Row> rowsOf(Game& g, const ListOptions& o) {
    std::vector<ListRow> list;
    if (o.what == "continents") {
        std::vector<Row> rows;
        for (const Continent& c : continents()) rows.push_back({0, c.name, {}, {}});
        return rows;
    }
    if (o.what == "countries") {
        list = listCountries(g, 2, "");
    } else if (o.what == "nationalities") {
        list = listCountries(g, 1, "");
    } else if (o.what == "styles") {
        list = listStyles(g, 2);
    } else if (o.what == "cities") {
        if (o.country.empty()) {
            list = listCities(g, 1, 0);
        } else {
            int32_t country = 0;
            for (const ListRow& c : listCountries(g, 2, ""))
                if (c.text == trim(o.country)) country = c.recordNumber;
            if (country == 0) throw SimError(kExitBadArgs, fmt::format("There is no country \"{}\".", trim(o.country)));
            list = listCities(g, 2, country);
        }
    } else {
        return labelRows(g);
    }
    std::vector<Row> rows;
    for (ListRow& r : list) rows.push_back({r.recordNumber, std::move(r.text), {}, {}});
    return rows;
}

}  // namespace

void addListVerbs(CLI::App& app, SimContext& ctx) {
    auto opts = std::make_shared<ListOptions>();
    auto* list =
        app.add_subcommand("list",
                           "List the continents, countries, cities, styles or nationalities a new game takes, or the "
                           "labels a player may take over (of the base set when no game is in progress)");
    list->add_option("WHAT", opts->what, "continents, countries, cities, styles, nationalities or labels")
        ->required()
        ->check(CLI::IsMember({"continents", "countries", "cities", "styles", "nationalities", "labels"}));
    list->add_option("--country", opts->country, "With cities: only the cities of this country");
    list->callback([&ctx, opts] {
        if (!opts->country.empty() && opts->what != "cities")
            throw SimError(kExitBadArgs, "--country goes with list cities only");
        bool inGame = ctx.gameInProgress();
        Game& g = inGame ? ctx.freshGame() : ctx.baseSetGame();
        const char* ext = inGame ? "vel" : "gam";
        for (FileNo f : {FileNo::fileCountry, FileNo::fileCity, FileNo::fileStyle, FileNo::fileLabel})
            openTable(g, f, ext);
        std::vector<Row> rows = rowsOf(g, *opts);
        bool labels = opts->what == "labels";
        std::vector<std::string> standing(rows.size());
        if (labels && inGame) {
            readSessionFile(g, workingSessionFile(g));
            for (std::size_t i = 0; i < rows.size(); ++i) standing[i] = labelStandingOf(g, rows[i].id, ctx.json);
        }
        closeAllTables(g);
        if (ctx.json) {
            std::string out = "[";
            for (std::size_t i = 0; i < rows.size(); ++i) {
                out += fmt::format("{}{{\"id\":{},\"name\":{}", i ? "," : "", rows[i].id, jsonQuote(rows[i].name));
                if (labels)
                    out += fmt::format(",\"city\":{},\"style\":{}", jsonQuote(rows[i].city), jsonQuote(rows[i].style)) +
                           standing[i];
                out += "}";
            }
            std::printf("%s]\n", out.c_str());
            return;
        }
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const Row& r = rows[i];
            if (labels)
                fmt::print("{:4}  {:<32}  {:<20}  {}{}\n", r.id, r.name.c_str(), r.city.c_str(), r.style.c_str(),
                           standing[i].c_str());
            else if (r.id == 0)
                std::printf("      %s\n", r.name.c_str());
            else
                std::printf("%4d  %s\n", r.id, r.name.c_str());
        }
    });
}

}  // namespace trovane::sim

// The browsers from the command line: browse (the band browser and its
// filter), image (the yes of "Confirm Image Analysis"), birthday and highscores.
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "browse/achievement_browse.h"
#include "browse/artist_browse.h"
#include "browse/band_browse.h"
#include "browse/people_browse.h"
#include "browse/table_browse.h"
#include "events/scores.h"
#include "floor/formats.h"
#include "label/image.h"
#include "world/record_dump.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane::sim {

namespace {

struct BrowseOptions {
    std::string table;
    std::vector<std::string> where;
    std::string sort;
    bool desc = false;
    std::string style;
    bool unsignedOnly = false;
    std::string advance, royalty, gig, age, name;
    std::vector<std::string> reputation;
    bool shortlist = false;
    std::string band;
};

struct Range {
    double min, max;
};

// "MIN..MAX" as two numbers; anything else is a bad argument.
Range parseRange(const std::string& flag, const std::string& text) {
    const auto dots = text.find("..");
    try {
        if (dots == std::string::npos) throw std::invalid_argument("");
        std::size_t used = 0;
        const std::string lo = text.substr(0, dots), hi = text.substr(dots + 2);
        Range r{std::stod(lo, &used), 0};
        if (used != lo.size()) throw std::invalid_argument("");
        r.max = std::stod(hi, &used);
        if (used != hi.size() || r.min < 0 || r.max < r.min) throw std::invalid_argument("");
        return r;
    } catch (const std::exception&) {
        throw SimError(kExitBadArgs, fmt::format("{} takes MIN..MAX, not \"{}\"", flag, text));
    }
}

template <typename T>
void setRange(const std::string& flag, const std::string& text, double top, T& lo, T& hi) {
    if (text.empty()) return;
    const Range r = parseRange(flag, text);
    if (r.max > top) throw SimError(kExitBadArgs, fmt::format("{} goes up to {}", flag, top));
    lo = static_cast<T>(r.min);
    hi = static_cast<T>(r.max);
}

BandFilter bandFilterFrom(Game& g, const BrowseOptions& o) {
    BandFilter f;
    resetBandFilter(g, f);
    if (!o.style.empty()) {
        int32_t s = findRecordByName(g, FileNo::fileStyle, o.style);
        if (s == 0) throw SimError(kExitBadArgs, fmt::format("There is no style called {}", o.style));
        f.style = narrow<uint8_t>(s);
    }
    if (o.unsignedOnly) f.label = 0;
    if (!o.advance.empty()) {
        const Range r = parseRange("--advance", o.advance);
        f.advanceMin = moneyFromDisplay(g, r.min);
        f.advanceMax = moneyFromDisplay(g, r.max);
    }
    setRange("--royalty", o.royalty, 100, f.royaltyMin, f.royaltyMax);
    setRange("--gig", o.gig, 100, f.gigMin, f.gigMax);
    setRange("--age", o.age, 255, f.ageMin, f.ageMax);
    f.name = o.name;
    static const char* const kTerritories[] = {"uk", "us", "europe", "oceania", "global"};
    for (const std::string& rep : o.reputation) {
        const auto eq = rep.find('=');
        int t = -1;
        for (int i = 0; i < 5 && eq != std::string::npos; ++i)
            if (rep.substr(0, eq) == kTerritories[i]) t = i;
        if (t < 0) throw SimError(kExitBadArgs, fmt::format("--reputation takes uk|us|europe|oceania|global=MIN..MAX"));
        setRange("--reputation", rep.substr(eq + 1), 100, f.reputationMin[static_cast<std::size_t>(t)],
                 f.reputationMax[static_cast<std::size_t>(t)]);
    }
    for (const std::string& w : o.where) {
        const auto eq = w.find('=');
        const std::string column = eq == std::string::npos ? "" : w.substr(0, eq);
        if (column == "Name")
            f.name = w.substr(eq + 1);
        else
            throw SimError(kExitBadArgs, fmt::format("The band browser cannot filter by \"{}\"", w));
    }
    f.shortlistOnly = o.shortlist;
    return f;
}

void printGrid(const SimContext& ctx, const std::string& table, const Grid& grid, const GridSort& sort) {
    const std::vector<int> shown = visibleColumns(grid);
    if (ctx.json) {
        std::string out =
            fmt::format("{{\"table\":{},\"caption\":{},\"columns\":[", jsonQuote(table), jsonQuote(grid.caption));
        for (std::size_t i = 0; i < shown.size(); ++i)
            out += (i ? "," : "") + jsonQuote(grid.columns[static_cast<std::size_t>(shown[i])].label);
        out += "],\"sort\":{";
        if (sort.clicked)
            out += fmt::format(
                "\"column\":{},\"direction\":{}",
                jsonQuote(grid.columns[static_cast<std::size_t>(sort.column)].label.empty() && sort.column > 0
                              ? grid.columns[static_cast<std::size_t>(sort.column - 1)].label
                              : grid.columns[static_cast<std::size_t>(sort.column)].label),
                sort.direction == 1 ? "\"ascending\"" : "\"descending\"");
        else
            out += "\"column\":null,\"direction\":null";
        out += "},\"rows\":[";
        for (std::size_t r = 0; r < grid.rows.size(); ++r) {
            out += fmt::format("{}{{\"id\":{},\"cells\":[", r ? "," : "", grid.rows[r].record);
            for (std::size_t i = 0; i < shown.size(); ++i)
                out += (i ? "," : "") + jsonQuote(grid.rows[r].cells[static_cast<std::size_t>(shown[i])].text);
            out += "]}";
        }
        std::printf("%s]}\n", out.c_str());
        return;
    }
    std::printf("%s\n", grid.caption.c_str());
    for (const GridRow& row : grid.rows) {
        std::string line = fmt::format("{:5}", row.record);
        for (int c : shown) line += "  " + row.cells[static_cast<std::size_t>(c)].text;
        std::printf("%s\n", line.c_str());
    }
}

// The label to click for --sort: by its caption.
int columnIndex(const Grid& grid, const std::string& caption) {
    for (std::size_t i = 0; i < grid.columns.size(); ++i)
        if (!grid.columns[i].hidden && grid.columns[i].label == caption) return static_cast<int>(i);
    throw SimError(kExitBadArgs, fmt::format("There is no column \"{}\"", caption));
}

// The artist browser's filter: a name by --where Name=TEXT.
std::string artistNameFrom(const BrowseOptions& o) {
    std::string name;
    for (const std::string& w : o.where) {
        const auto eq = w.find('=');
        if (eq == std::string::npos || w.substr(0, eq) != "Name")
            throw SimError(kExitBadArgs, fmt::format("This browser cannot filter by \"{}\"", w));
        name = w.substr(eq + 1);
    }
    return name;
}

// The browsers that take only a name: artist (or the rich list), staff, label.
void runArtistBrowse(SimContext& ctx, const BrowseOptions& o, bool richList) {
    const std::string name = artistNameFrom(o);
    if (o.desc && o.sort.empty()) throw SimError(kExitBadArgs, "--desc goes with --sort");
    Game& g = ctx.openGame();
    GridSort sort;
    Grid grid;
    if (o.table == "staff")
        populateStaffGrid(g, name, sort, grid);
    else if (o.table == "label")
        populateLabelGrid(g, name, sort, grid);
    else
        populateArtistGrid(g, richList, name, sort, grid);
    if (!o.sort.empty()) {
        int i = -1;
        try {
            i = columnIndex(grid, o.sort);
        } catch (const SimError&) {
            ctx.closeGame();
            throw;
        }
        clickColumnLabel(sort, grid, i);
        if (o.desc) clickColumnLabel(sort, grid, i);
        sortGrid(grid, sort);
    }
    printGrid(ctx, richList ? "richlist" : o.table, grid, sort);
    ctx.closeGame();
}

// Whether any of the band browser's own flags was given.
bool bandFlagsGiven(const BrowseOptions& o) {
    return !o.style.empty() || o.unsignedOnly || !o.advance.empty() || !o.royalty.empty() || !o.gig.empty() ||
           !o.age.empty() || !o.name.empty() || !o.reputation.empty() || o.shortlist;
}

// A band by number or exact name, 0 if there is none.
int16_t bandNamedOrNone(Game& g, const std::string& which) {
    if (!which.empty() && which.find_first_not_of("0123456789") == std::string::npos && which.size() < 7) {
        const int n = std::stoi(which);
        return n >= 1 && n < g.band.recordCount() ? static_cast<int16_t>(n) : 0;
    }
    return static_cast<int16_t>(findRecordByName(g, FileNo::fileBand, which));
}

// The other tables: --where by any column's header, a text or MIN..MAX; --band
// for a band's own discs, songs, tours and gigs.
void runTableBrowse(SimContext& ctx, const BrowseOptions& o, BrowseTable table) {
    if (bandFlagsGiven(o))
        throw SimError(kExitBadArgs, fmt::format("browse {} takes --where and --sort; those flags are the band "
                                                 "browser's",
                                                 o.table));
    const bool ownsBand = table == BrowseTable::disc || table == BrowseTable::song || table == BrowseTable::tour ||
                          table == BrowseTable::gig;
    if (!o.band.empty() && !ownsBand)
        throw SimError(kExitBadArgs, fmt::format("browse {} does not take --band", o.table));
    if (o.desc && o.sort.empty()) throw SimError(kExitBadArgs, "--desc goes with --sort");
    Game& g = ctx.openGame();
    auto fail = [&](std::string why) {
        ctx.closeGame();
        throw SimError(kExitBadArgs, std::move(why));
    };
    BrowseFilter filter;
    if (!o.band.empty()) {
        filter.band = bandNamedOrNone(g, o.band);
        if (filter.band == 0) fail(fmt::format("There is no band called {}", o.band));
    }
    GridSort sort;
    Grid grid;
    populateTableGrid(g, table, filter, sort, grid);  // for its headers
    for (const std::string& w : o.where) {
        const auto eq = w.find('=');
        if (eq == std::string::npos) fail(fmt::format("--where takes COLUMN=TEXT or COLUMN=MIN..MAX, not \"{}\"", w));
        const std::string column = w.substr(0, eq), value = w.substr(eq + 1);
        int index = -1;
        for (std::size_t i = 0; i < grid.columns.size(); ++i)
            if (grid.columns[i].label == column) index = static_cast<int>(i);
        if (index < 0) fail(fmt::format("There is no column \"{}\"", column));
        ColumnChoice choice{.column = index};
        if (value.find("..") != std::string::npos) {
            Range r{0, 0};
            try {
                r = parseRange("--where " + column, value);
            } catch (const SimError& e) { fail(e.what()); }
            choice.min = r.min;
            choice.max = r.max;
        } else {
            choice.text = value;
        }
        filter.choices.push_back(choice);
    }
    int clicked = -1;
    if (!o.sort.empty()) {
        for (std::size_t i = 0; i < grid.columns.size(); ++i)
            if (grid.columns[i].label == o.sort) clicked = static_cast<int>(i);
        if (clicked < 0) fail(fmt::format("There is no column \"{}\"", o.sort));
        clickColumnLabel(sort, grid, clicked);
        if (o.desc) clickColumnLabel(sort, grid, clicked);
    }
    populateTableGrid(g, table, filter, sort, grid);
    printGrid(ctx, o.table, grid, sort);
    ctx.closeGame();
}

void runBrowse(SimContext& ctx, const BrowseOptions& o) {
    if (o.table != "band" && !o.band.empty() && !browseTableNamed(o.table))
        throw SimError(kExitBadArgs, fmt::format("browse {} does not take --band", o.table));
    if (auto t = browseTableNamed(o.table)) return runTableBrowse(ctx, o, *t);
    if (o.table != "band" && bandFlagsGiven(o))
        throw SimError(kExitBadArgs, fmt::format("browse {} takes --where and --sort; those flags are the band "
                                                 "browser's",
                                                 o.table));
    if (o.table == "band" && !o.band.empty()) throw SimError(kExitBadArgs, "browse band does not take --band");
    if (o.table == "artist" || o.table == "staff" || o.table == "label") return runArtistBrowse(ctx, o, false);
    Game& g = ctx.openGame();
    BandFilter filter = bandFilterFrom(g, o);
    GridSort sort;
    Grid grid;
    populateBandGrid(g, 1, filter, kBandSearchColumns, sort, grid);
    if (!o.sort.empty()) {
        const int i = columnIndex(grid, o.sort);
        clickColumnLabel(sort, grid, i);
        if (o.desc) clickColumnLabel(sort, grid, i);
        sortGrid(grid, sort);
    } else if (o.desc) {
        throw SimError(kExitBadArgs, "--desc goes with --sort");
    }
    grid.caption = o.shortlist ? "Shortlisted Bands" : "Band Search";
    printGrid(ctx, o.table, grid, sort);
    ctx.closeGame();
}

int16_t artistNamed(SimContext& ctx, Game& g, const std::string& which) {
    const int32_t count = g.artist.recordCount();
    if (!which.empty() && which.find_first_not_of("0123456789") == std::string::npos && which.size() < 7) {
        const int n = std::stoi(which);
        if (n >= 1 && n < count) return static_cast<int16_t>(n);
    } else {
        for (int32_t n = 1; n < count; ++n) {
            g.artist.read(n);
            if (trim(g.artist->forename.value) + " " + trim(g.artist->surname.value) == trim(which))
                return static_cast<int16_t>(n);
        }
    }
    ctx.closeGame();
    throw SimError(kExitBadArgs, fmt::format("There is no artist called {}", which));
}

}  // namespace

void addBrowseVerbs(CLI::App& app, SimContext& ctx) {
    auto o = std::make_shared<BrowseOptions>();
    auto* browse = app.add_subcommand("browse", "List a table through its browser's filter and sort");
    browse
        ->add_option("TABLE", o->table,
                     "band artist staff label venue disc song business media festival ceremony style tour gig")
        ->required()
        ->check(CLI::IsMember({"band", "artist", "staff", "label", "venue", "disc", "song", "business", "media",
                               "festival", "ceremony", "style", "tour", "gig"}));
    browse->add_option("--where", o->where,
                       "COLUMN=TEXT or COLUMN=MIN..MAX by a column's header (band, artist, staff, label: Name)");
    browse->add_option("--band", o->band, "disc, song, tour, gig: only this band's (number or exact name)");
    browse->add_option("--sort", o->sort, "A column's header: one click on it");
    browse->add_flag("--desc", o->desc, "A second click: descending");
    browse->add_option("--style", o->style, "band: only this style");
    browse->add_flag("--unsigned", o->unsignedOnly, "band: only unsigned acts");
    browse->add_option("--advance", o->advance, "band: MIN..MAX in the display currency");
    browse->add_option("--royalty", o->royalty, "band: MIN..MAX percent");
    browse->add_option("--gig", o->gig, "band: best share MIN..MAX");
    browse->add_option("--age", o->age, "band: MIN..MAX years");
    browse->add_option("--name", o->name, "band: the exact name");
    browse->add_option("--reputation", o->reputation, "band: TERRITORY=MIN..MAX");
    browse->add_flag("--shortlist", o->shortlist, "band: the player's shortlist");
    browse->callback([&ctx, o] { runBrowse(ctx, *o); });

    auto r = std::make_shared<BrowseOptions>();
    auto* richlist = app.add_subcommand("richlist", "The artists by wealth, highest first");
    richlist->add_option("--where", r->where, "Name=TEXT");
    richlist->add_option("--sort", r->sort, "A column's header: one click on it");
    richlist->add_flag("--desc", r->desc, "A second click: descending");
    richlist->callback([&ctx, r] { runArtistBrowse(ctx, *r, true); });

    auto artist = std::make_shared<std::string>();
    auto* image = app.add_subcommand("image", "Ask Marketing to analyse an artist's image (a report in a week)");
    image->add_option("ARTIST", *artist, "An artist by number or \"Forename Surname\"")->required();
    image->callback([&ctx, artist] {
        Game& g = ctx.openGame();
        const int16_t a = artistNamed(ctx, g, *artist);
        const std::string why = checkImageAnalysis(g, a);
        if (!why.empty()) {
            ctx.refuse(why);
            ctx.closeGame();
            return;
        }
        const int32_t entry = requestImageAnalysis(g, a);
        g.schedule.read(entry);
        const double date = g.schedule->date;
        ctx.closeGame();
        if (ctx.json)
            std::printf("{\"artist\":%d,\"entry\":%d,\"date\":%s}\n", a, entry, fmt::format("{}", date).c_str());
        else
            std::printf("Marketing will report on the image of artist %d on day %s.\n", a,
                        fmt::format("{}", date).c_str());
    });

    struct AchievementOptions {
        std::string band, artist, label, staff;
    };
    auto a = std::make_shared<AchievementOptions>();
    auto* achievements = app.add_subcommand("achievements", "The achievements of one record, newest first");
    auto* ob = achievements->add_option("--band", a->band, "A band by number or exact name");
    auto* oa = achievements->add_option("--artist", a->artist, "An artist by number or \"Forename Surname\"");
    auto* ol = achievements->add_option("--label", a->label, "A label by number or exact name");
    auto* os = achievements->add_option("--staff", a->staff, "A member of staff by number or \"Forename Surname\"");
    ob->excludes(oa, ol, os);
    oa->excludes(ol, os);
    ol->excludes(os);
    achievements->callback([&ctx, a] {
        int kind = !a->band.empty() ? 0 : !a->artist.empty() ? 1 : !a->label.empty() ? 2 : !a->staff.empty() ? 3 : -1;
        if (kind < 0) throw SimError(kExitBadArgs, "achievements takes one of --band, --artist, --label, --staff");
        Game& g = ctx.openGame();
        int16_t who = 0;
        if (kind == 1) {
            who = artistNamed(ctx, g, a->artist);
        } else {
            const FileNo table = kind == 0 ? FileNo::fileBand : kind == 2 ? FileNo::fileLabel : FileNo::fileStaff;
            const std::string& what = kind == 0 ? a->band : kind == 2 ? a->label : a->staff;
            const int32_t n = recordNamed(g, table, trim(what));
            if (n == 0) {
                ctx.closeGame();
                throw SimError(kExitBadArgs, fmt::format("There is no record called {}", what));
            }
            who = static_cast<int16_t>(n);
        }
        const std::vector<AchievementRow> rows = achievementsOf(g, kind, who);
        ctx.closeGame();
        if (ctx.json) {
            std::string out = "[";
            for (std::size_t i = 0; i < rows.size(); ++i)
                out += fmt::format("{}{{\"date\":{},\"kind\":{},\"who\":{},\"text\":{}}}", i ? "," : "",
                                   jsonQuote(formatDate(rows[i].date, "yyyy-mm-dd")), rows[i].kind, rows[i].who,
                                   jsonQuote(rows[i].text));
            std::printf("%s]\n", out.c_str());
            return;
        }
        for (const AchievementRow& r : rows)
            std::printf("%s  %s\n", formatDate(r.date, "dd/mm/yyyy").c_str(), r.text.c_str());
    });

    auto* birthday = app.add_subcommand("birthday", "The birthday note: who shares the player's day and month");
    birthday->callback([&ctx] {
        Game& g = ctx.openGame();
        const BirthdayNote note = birthdayNote(g);
        ctx.closeGame();
        if (ctx.json)
            std::printf("{\"title\":%s,\"text\":%s}\n", jsonQuote(note.title).c_str(), jsonQuote(note.text).c_str());
        else
            std::printf("%s\n\n%s\n", note.title.c_str(), note.text.c_str());
    });

    auto* highscores = app.add_subcommand("highscores", "The high-score table, highest first");
    highscores->callback([&ctx] {
        const bool inGame = ctx.gameInProgress();
        Game& g = inGame ? ctx.openGame() : ctx.freshGame();
        const std::vector<HighScoreRow> rows = highScoreRows(g);
        // This career's row is marked, as the table marks it.
        const int32_t thisGame = inGame ? g.player.gameNumber : -1;
        if (inGame) ctx.closeGame();
        if (ctx.json) {
            std::string out = "[";
            for (std::size_t i = 0; i < rows.size(); ++i)
                out += fmt::format("{}{{\"position\":{},\"score\":{},\"player\":{},\"label\":{},\"game\":{}}}",
                                   i ? "," : "", rows[i].position, rows[i].score, jsonQuote(rows[i].player),
                                   jsonQuote(rows[i].label), rows[i].game);
            std::printf("%s]\n", out.c_str());
            return;
        }
        std::printf("Pos  %-11s  %-32s  %s\n", "Score", "Player", "Label");
        for (const HighScoreRow& r : rows)
            fmt::print("{:3}{} {:>11}  {:<32}  {}\n", r.position, r.game == thisGame ? '*' : ' ',
                       formatNumber(r.score, "###,###,##0").c_str(), r.player.c_str(), r.label.c_str());
    });
}

}  // namespace trovane::sim

// The verbs of songs, records and firms: work, songs, album, progress, firms,
// build, and the answer to an ended option.
#include <cstdio>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "day/news_inbox.h"
#include "floor/formats.h"
#include "production/businesses.h"
#include "production/recording.h"
#include "production/songwriting.h"
#include "talent/contract_progress.h"
#include "world/record_dump.h"
#include "world/strings.h"

namespace trovane::sim {

namespace {

constexpr int kExitRefused = 1;
constexpr int kExitBadArgument = 2;

void refuse(SimContext& ctx, const std::string& why) {
    std::fprintf(stderr, "trovane-sim: %s\n", why.c_str());
    ctx.exitCode = kExitRefused;
}

void badArgument(SimContext& ctx, const std::string& why) {
    std::fprintf(stderr, "trovane-sim: %s\n", why.c_str());
    ctx.exitCode = kExitBadArgument;
}

std::optional<int32_t> wholeNumber(const std::string& text) {
    if (text.empty() || text.size() > 9) return std::nullopt;
    for (char c : text)
        if (c < '0' || c > '9') return std::nullopt;
    return std::stoi(text);
}

int16_t findBand(SimContext& ctx, Game& g, const std::string& what) {
    auto n = recordNamed(g, FileNo::fileBand, what);
    if (n == 0) badArgument(ctx, "There is no band " + what);
    return static_cast<int16_t>(n);
}

std::optional<int> firmKind(SimContext& ctx, const std::string& word) {
    if (word == "studio") return kStudio;
    if (word == "plant") return kPlant;
    if (word == "distributor") return kDistributor;
    badArgument(ctx, word + " is not studio, plant or distributor");
    return std::nullopt;
}

std::optional<std::vector<int32_t>> trackList(const std::string& text) {
    std::vector<int32_t> ids;
    std::stringstream in(text);
    std::string part;
    while (std::getline(in, part, ',')) {
        auto n = wholeNumber(trim(part));
        if (!n) return std::nullopt;
        ids.push_back(*n);
    }
    if (ids.empty()) return std::nullopt;
    return ids;
}

// What the verbs below are given on the command line.
struct WorkOptions {
    std::string band;
    int budget = -1;
};

void addWorkVerb(CLI::App& app, SimContext& ctx) {
    auto workOpts = std::make_shared<WorkOptions>();
    auto* v = app.add_subcommand("work", "Ask a band of yours to work full time on a new album");
    v->add_option("BAND", workOpts->band, "The band, by number or exact name")->required();
    v->add_option("--budget", workOpts->budget, "The budget for bought-in songs, 0 (dearest) to 4 (cheapest)")
        ->required();
    v->callback([&ctx, workOpts] {
        if (workOpts->budget < 0 || workOpts->budget > 4) return badArgument(ctx, "The budget must be from 0 to 4");
        Game& g = ctx.openGame();
        if (int16_t b = findBand(ctx, g, workOpts->band)) {
            if (std::string why = checkWorkOnAlbum(g, b); !why.empty()) {
                refuse(ctx, why);
            } else {
                workOnAlbum(g, b, workOpts->budget);
                if (ctx.json)
                    std::printf("{\"band\":%d,\"albumStatus\":1,\"materialBudget\":%d}\n", b, workOpts->budget);
                else
                    std::printf("%s\n", materialBudgetText(g, b).c_str());
            }
        }
        ctx.closeGame();
    });
}

// What the verbs below are given on the command line.
struct SongsOptions {
    std::string band;
};

void addSongsVerb(CLI::App& app, SimContext& ctx) {
    auto songsOpts = std::make_shared<SongsOptions>();
    auto* v = app.add_subcommand("songs", "The songs a band has in hand");
    v->add_option("BAND", songsOpts->band, "The band, by number or exact name")->required();
    v->callback([&ctx, songsOpts] {
        Game& g = ctx.openGame();
        if (int16_t b = findBand(ctx, g, songsOpts->band)) {
            std::string out = "[";
            for (int32_t id : songsInHand(g, b)) {
                g.song.read(id);
                const SongRecord& s = g.song.rec;
                std::string writer = trim(s.writerForename.value + " " + s.writerSurname.value);
                if (ctx.json)
                    out += fmt::format(
                        "{}{{\"id\":{},\"title\":{},\"writer\":{},\"quality\":{},\"commerciality\":{},"
                        "\"written\":\"{}\"}}",
                        out.size() > 1 ? "," : "", s.id, jsonQuote(trim(s.title.value)), jsonQuote(writer), s.quality,
                        s.commerciality, isoDate(s.written));
                else
                    fmt::print("{:6}  {:<40}  {:<28}  q {:3}  c {:3}  {}\n", s.id, trim(s.title.value).c_str(),
                               writer.c_str(), s.quality, s.commerciality, isoDate(s.written).c_str());
            }
            if (ctx.json) std::printf("%s]\n", out.c_str());
        }
        ctx.closeGame();
    });
}

// What the verbs below are given on the command line.
struct AlbumOptions {
    std::string band;
    std::string tracks;
    std::string studio;
    std::optional<std::string> title;
};

void addAlbumVerb(CLI::App& app, SimContext& ctx) {
    auto albumOpts = std::make_shared<AlbumOptions>();
    auto* v = app.add_subcommand("album", "Finalise a band's album, title it and book the studio");
    v->add_option("BAND", albumOpts->band, "The band, by number or exact name")->required();
    v->add_option("--tracks", albumOpts->tracks,
                  "The songs, by number: ID,ID,... (left out, an album already finalised is booked)");
    v->add_option("--studio", albumOpts->studio, "The studio, by number or exact name")->required();
    v->add_option("--title", albumOpts->title, "The album's title (default: the assistants' suggestion)");
    v->callback([&ctx, albumOpts] {
        std::optional<std::vector<int32_t>> ids;
        if (!albumOpts->tracks.empty()) {
            ids = trackList(albumOpts->tracks);
            if (!ids) return badArgument(ctx, "--tracks takes song numbers separated by commas");
        }
        Game& g = ctx.openGame();
        int16_t b = findBand(ctx, g, albumOpts->band);
        auto firm = b ? recordNamed(g, FileNo::fileBusiness, albumOpts->studio) : 0;
        if (b && firm == 0) badArgument(ctx, "There is no firm " + albumOpts->studio);
        // A tracklist fixed on the screens without a studio is booked as it stands.
        int16_t waiting = b && !ids ? discAwaitingStudio(g, b) : 0;
        std::string why;
        if (b && firm) {
            if (!waiting) why = checkFinaliseAlbum(g, b, ids.value_or(std::vector<int32_t>{}));
            if (waiting) {
                g.band.read(b);
                if (g.band->label != g.player.playerLabel)
                    why = trim(g.band->name.value) + " are not signed to your label.";
            }
            if (why.empty() && waiting) why = checkBookStudio(g, waiting, static_cast<int16_t>(firm));
            if (why.empty()) {
                g.business.read(firm);
                if (g.business->kind != kStudio || g.business->open != kFirmOpen)
                    why = "Please choose an open studio from the list.";
            }
            if (why.empty() && albumOpts->title) why = checkDiscTitle(*albumOpts->title);
            if (!why.empty()) refuse(ctx, why);
        }
        if (b && firm && why.empty()) {
            int16_t disc = waiting ? waiting : finaliseAlbum(g, b, *ids);
            g.disc.read(disc);
            std::string name = trim(g.disc->title.value);
            g.band.read(b);
            if (albumOpts->title)
                name = trim(*albumOpts->title);
            else if (name.empty())
                name = pickAlbumTitle(g);
            setDiscTitle(g, disc, name);
            StudioBooking k = bookStudio(g, disc, static_cast<int16_t>(firm));
            if (ctx.json)
                std::printf(
                    "{\"disc\":%d,\"title\":%s,\"sessions\":%d,\"firstStudioDay\":\"%s\",\"recordingDue\":"
                    "\"%s\",\"cost\":%lld}\n",
                    disc, jsonQuote(name).c_str(), k.sessions, isoDate(k.firstDay).c_str(),
                    isoDate(k.recordingDue).c_str(), static_cast<long long>(k.cost));
            else
                std::printf("Disc %d \"%s\": %d sessions from %s, booked until %s, cost %s\n", disc, name.c_str(),
                            k.sessions, isoDate(k.firstDay).c_str(), isoDate(k.recordingDue).c_str(),
                            formatMoney(g, k.cost, "###,###,##0").c_str());
        }
        ctx.closeGame();
    });
}

// What the verbs below are given on the command line.
struct ProgressOptions {
    std::string band;
};

void addProgressVerb(CLI::App& app, SimContext& ctx) {
    auto progressOpts = std::make_shared<ProgressOptions>();
    auto* v = app.add_subcommand("progress", "How a band's album is coming on");
    v->add_option("BAND", progressOpts->band, "The band, by number or exact name")->required();
    v->callback([&ctx, progressOpts] {
        Game& g = ctx.openGame();
        if (int16_t b = findBand(ctx, g, progressOpts->band)) {
            g.band.read(b);
            std::string title, text;
            if (g.band->albumStatus >= 2 && g.band->songsWritten > 0 && g.band->songsWritten < g.disc.recordCount()) {
                auto disc = static_cast<int16_t>(g.band->songsWritten);
                title = recordingProgressTitle(g, disc);
                text = recordingProgressText(g, disc);
            } else {
                title = "Album Progress";
                text = albumProgressText(g, b);
            }
            if (ctx.json)
                std::printf("{\"title\":%s,\"text\":%s}\n", jsonQuote(title).c_str(), jsonQuote(text).c_str());
            else
                std::printf("%s\n%s\n", title.c_str(), text.c_str());
        }
        ctx.closeGame();
    });
}

// What the verbs below are given on the command line.
struct FirmsOptions {
    std::string kindWord;
};

void addFirmsVerb(CLI::App& app, SimContext& ctx) {
    auto firmsOpts = std::make_shared<FirmsOptions>();
    auto* v = app.add_subcommand("firms", "The open firms of a kind");
    v->add_option("KIND", firmsOpts->kindWord, "studio, plant or distributor")->required();
    v->callback([&ctx, firmsOpts] {
        auto kind = firmKind(ctx, firmsOpts->kindWord);
        if (!kind) return;
        Game& g = ctx.openGame();
        std::string out = "[";
        for (int16_t n : chooseBusiness(g, *kind)) {
            g.business.read(n);
            const BusinessRecord f = g.business.rec;
            const int32_t perDay = *kind == kStudio  ? studioDayCost(g)
                                   : *kind == kPlant ? plantDailyCapacity(g)
                                                     : distributorDailyCapacity(g);
            std::string city = g.city.readIfPresent(f.city) ? trim(g.city->name.value) : std::string();
            std::string owner = f.owner > 0 && g.label.readIfPresent(f.owner) ? trim(g.label->name.value)
                                                                              : std::string("Independent Company");
            if (ctx.json)
                out += fmt::format(
                    "{}{{\"id\":{},\"name\":{},\"city\":{},\"quality\":{},\"owner\":{},\"{}\":{},"
                    "\"runningCost\":{}}}",
                    out.size() > 1 ? "," : "", f.id, jsonQuote(trim(f.name.value)), jsonQuote(city), f.quality,
                    jsonQuote(owner), *kind == kStudio ? "costPerDay" : "capacityPerDay",
                    *kind == kStudio ? moneyUnits(perDay) : perDay, moneyUnits(f.runningCost));
            else
                fmt::print("{:5}  {:<32}  {:<20}  {:3}%  {:<28}  {} {}  running {}\n", f.id, trim(f.name.value).c_str(),
                           city.c_str(), f.quality, owner.c_str(), *kind == kStudio ? "day" : "capacity",
                           *kind == kStudio ? formatMoney(g, moneyUnits(perDay), "###,###,##0").c_str()
                                            : formatNumber(perDay, "###,###,##0").c_str(),
                           formatMoney(g, moneyUnits(f.runningCost), "###,###,##0").c_str());
        }
        if (ctx.json) std::printf("%s]\n", out.c_str());
        ctx.closeGame();
    });
}

// What the verbs below are given on the command line.
struct BuildOptions {
    std::string kindWord;
    std::string name;
    std::string city;
    int quality = 0;
};

void addBuildVerb(CLI::App& app, SimContext& ctx) {
    auto buildOpts = std::make_shared<BuildOptions>();
    auto* v = app.add_subcommand("build", "Build a firm of your own");
    v->add_option("KIND", buildOpts->kindWord, "studio, plant or distributor")->required();
    v->add_option("--name", buildOpts->name, "Its name")->required();
    v->add_option("--quality", buildOpts->quality, "Its quality, 1 to 100")->required();
    v->add_option("--city", buildOpts->city, "Where, by number or exact name")->required();
    v->callback([&ctx, buildOpts] {
        auto kind = firmKind(ctx, buildOpts->kindWord);
        if (!kind) return;
        if (buildOpts->quality < 1 || buildOpts->quality > 100)
            return badArgument(ctx, "The quality must be from 1 to 100");
        Game& g = ctx.openGame();
        auto c = recordNamed(g, FileNo::fileCity, buildOpts->city);
        if (c == 0) {
            badArgument(ctx, "There is no city " + buildOpts->city);
        } else {
            FacilityOrder order{
                .kind = *kind, .name = buildOpts->name, .quality = buildOpts->quality, .city = static_cast<int16_t>(c)};
            if (std::string why = checkBuildFacility(g, order); !why.empty()) {
                refuse(ctx, why);
            } else {
                int16_t firm = buildFacility(g, order);
                int64_t cost = buildCost(buildOpts->quality, *kind);
                if (ctx.json)
                    std::printf("{\"id\":%d,\"cost\":%lld,\"runningCost\":%lld}\n", firm,
                                static_cast<long long>(moneyUnits(cost)),
                                static_cast<long long>(moneyUnits(g.business->runningCost)));
                else
                    std::printf("Firm %d planned: %s, opening in six months\n", firm,
                                formatMoney(g, moneyUnits(cost), "###,###,##0").c_str());
            }
        }
        ctx.closeGame();
    });
}

}  // namespace

bool replyToOption(SimContext& ctx, Game& g, const std::string& word) {
    const bool decision = word == "extend" || word == "release";
    const bool optionItem = g.news->scheduleLink > 0 && g.news->kind == kNewsOk &&
                            g.schedule.readIfPresent(g.news->scheduleLink) && g.schedule->type == 18;
    if (!optionItem) {
        if (decision) refuse(ctx, fmt::format("News item {} is not an option decision", g.news->id));
        return decision;
    }
    if (g.news->replied != 0) {
        refuse(ctx, fmt::format("News item {} has already been answered", g.news->id));
        return true;
    }
    if (!decision) {
        refuse(ctx, fmt::format("News item {} needs a decision: extend or release", g.news->id));
        return true;
    }
    if (std::string why = checkOptionDecision(g); !why.empty()) {
        refuse(ctx, why);
        return true;
    }
    const int16_t item = g.news->id;
    const int32_t entry = g.news->scheduleLink;
    pressNewsCmd1(g);
    g.schedule.read(entry);
    decideOption(g, word == "extend");
    if (ctx.json)
        std::printf("{\"id\":%d,\"reply\":\"%s\"}\n", item, word.c_str());
    else
        std::printf("Answered news item %d: %s\n", item, word.c_str());
    return true;
}

void addAlbumVerbs(CLI::App& app, SimContext& ctx) {
    addWorkVerb(app, ctx);
    addSongsVerb(app, ctx);
    addAlbumVerb(app, ctx);
    addProgressVerb(app, ctx);
    addFirmsVerb(app, ctx);
    addBuildVerb(app, ctx);
}

}  // namespace trovane::sim

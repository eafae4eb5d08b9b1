// The verbs of discs and charts: release, forecast, press, distribute,
// single, disc, chart and run.
#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "floor/formats.h"
#include "production/chart_history.h"
#include "production/charts.h"
#include "production/disc_release.h"
#include "production/discs.h"
#include "production/weekly_sales.h"
#include "world/dates.h"
#include "world/record_dump.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane::sim {

namespace {

constexpr int kExitRefused = 1;
constexpr int kExitBadArgument = 2;
constexpr std::array<const char*, 5> kTerritoryNames = {"UK", "US", "Europe", "Oceania", "Other"};

std::size_t at(int v) { return static_cast<std::size_t>(v); }

void refuse(SimContext& ctx, const std::string& why) {
    std::fprintf(stderr, "trovane-sim: %s\n", why.c_str());
    ctx.exitCode = kExitRefused;
}
void badArgument(SimContext& ctx, const std::string& why) {
    std::fprintf(stderr, "trovane-sim: %s\n", why.c_str());
    ctx.exitCode = kExitBadArgument;
}

// A disc by number or exact title; 0 when none.
int16_t findDisc(Game& g, const std::string& key) {
    return static_cast<int16_t>(recordNamed(g, FileNo::fileDisc, key));
}

int16_t findFirm(Game& g, const std::string& key) {
    return static_cast<int16_t>(recordNamed(g, FileNo::fileBusiness, key));
}

int32_t findSong(Game& g, const std::string& key) { return recordNamed(g, FileNo::fileSong, key); }

std::string bandName(Game& g, int16_t band) {
    if (band < 1 || band >= g.band.recordCount()) return "";
    g.band.read(band);
    return trim(g.band->name.value);
}
std::string labelName(Game& g, int16_t label) {
    if (label < 1 || label >= g.label.recordCount()) return "";
    g.label.read(label);
    return trim(g.label->name.value);
}
std::string firmName(Game& g, int16_t firm) {
    if (firm < 1 || firm >= g.business.recordCount()) return "";
    g.business.read(firm);
    return trim(g.business->name.value);
}

// --- release ---------------------------------------------------------------

struct ReleaseArgs {
    std::string disc, date, in = "uk,us,europe,oceania,other";
    bool earliest = false;
};

void runRelease(SimContext& ctx, const ReleaseArgs& a) {
    std::array<bool, 5> chosen{};
    std::stringstream list(a.in);
    for (std::string item; std::getline(list, item, ',');) {
        auto it = std::find(kTerritoryKeys.begin(), kTerritoryKeys.end(), item);
        if (it == kTerritoryKeys.end()) return badArgument(ctx, "--in takes uk, us, europe, oceania and other");
        chosen[at(static_cast<int>(it - kTerritoryKeys.begin()))] = true;
    }
    std::optional<double> date;
    if (!a.earliest) {
        date = parseIsoDate(a.date);
        if (!date) return badArgument(ctx, a.date + " is not a date of the form YYYY-MM-DD");
    }
    Game& g = ctx.openGame();
    int16_t disc = findDisc(g, a.disc);
    if (disc == 0) {
        ctx.closeGame();
        return badArgument(ctx, "There is no disc " + a.disc);
    }
    std::array<double, 5> dates{};
    if (a.earliest) {
        g.disc.read(disc);
        g.band.read(g.disc->band);
        for (int t = 0; t < 5; ++t) {
            if (!chosen[at(t)]) continue;
            g.disc.read(disc);
            dates[at(t)] = firstOfferedReleaseDate(g, t);
        }
    } else {
        for (int t = 0; t < 5; ++t) dates[at(t)] = chosen[at(t)] ? *date : 0.0;
    }
    std::string refusal = setReleaseDatesRefusal(g, disc, dates);
    if (!refusal.empty()) {
        refuse(ctx, refusal);
    } else {
        setReleaseDates(g, disc, dates);
        if (ctx.json) {
            std::string out = fmt::format("{{\"disc\":{},\"dates\":{{", disc);
            for (int t = 0; t < 5; ++t)
                out += fmt::format("{}\"{}\":\"{}\"", t ? "," : "", kTerritoryKeys[at(t)], isoDateIfSet(dates[at(t)]));
            std::printf("%s}}}\n", out.c_str());
        } else {
            for (int t = 0; t < 5; ++t)
                if (dates[at(t)] > kNoDate)
                    std::printf("%s: %s\n", kTerritoryNames[at(t)], formatDate(dates[at(t)], "dddd d/m/yyyy").c_str());
        }
    }
    ctx.closeGame();
}

// --- forecast and press ----------------------------------------------------

void printForecast(SimContext& ctx, const PressForecast& f) {
    if (ctx.json) {
        std::string out = "{\"text\":" + jsonQuote(f.text) + ",\"figures\":{";
        for (int t = 0; t < 5; ++t)
            out += fmt::format("{}\"{}\":{}", t ? "," : "", kTerritoryKeys[at(t)], f.figure[at(t)]);
        std::printf("%s}}\n", out.c_str());
    } else {
        std::printf("%s\n", f.text.c_str());
    }
}

struct PressArgs {
    std::string disc, plant;
    std::optional<int32_t> copies;
    std::array<std::optional<int32_t>, 5> per;
};

bool listed(int32_t n) {
    return std::find(kPressQuantities.begin(), kPressQuantities.end(), n) != kPressQuantities.end();
}

void runPress(SimContext& ctx, const PressArgs& a) {
    bool any = std::any_of(a.per.begin(), a.per.end(), [](auto& o) { return o.has_value(); });
    if (a.copies.has_value() == any) return badArgument(ctx, "Give either --copies or the territories' quantities");
    std::vector<int32_t> given;
    if (a.copies) given.push_back(*a.copies);
    for (auto& o : a.per)
        if (o) given.push_back(*o);
    for (int32_t n : given)
        if (!listed(n)) return badArgument(ctx, fmt::format("{} is not a quantity the press form offers", n));
    Game& g = ctx.openGame();
    int16_t disc = findDisc(g, a.disc);
    int16_t plant = findFirm(g, a.plant);
    if (disc == 0 || plant == 0) {
        ctx.closeGame();
        return badArgument(ctx, disc == 0 ? "There is no disc " + a.disc : "There is no firm " + a.plant);
    }
    std::array<int32_t, 5> copies{};
    g.disc.read(disc);
    for (int t = 0; t < 5; ++t) {
        if (a.copies)
            copies[at(t)] = g.disc->releaseDate[at(t)] > kNoDate ? *a.copies : 0;
        else
            copies[at(t)] = a.per[at(t)].value_or(0);
    }
    std::string refusal = pressDiscsRefusal(g, disc, plant, copies);
    if (!refusal.empty()) {
        refuse(ctx, refusal);
    } else {
        pressDiscs(g, disc, plant, copies);
        int32_t total = 0;
        for (int32_t c : copies) total += c;
        if (ctx.json)
            std::printf("{\"disc\":%d,\"plant\":%d,\"copies\":%d,\"cost\":%lld}\n", disc, plant, total,
                        static_cast<long long>(pressingCost(total)));
        else
            std::printf("%s will press %s copies for %s.\n", firmName(g, plant).c_str(),
                        formatNumber(total, "###,###,##0").c_str(),
                        formatMoney(g, pressingCost(total), "###,###,##0").c_str());
    }
    ctx.closeGame();
}

// --- distribute ------------------------------------------------------------

void runDistribute(SimContext& ctx, const std::string& discKey, const std::array<std::string, 5>& firmKeys) {
    Game& g = ctx.openGame();
    int16_t disc = findDisc(g, discKey);
    std::array<int16_t, 5> firms{};
    for (int t = 0; t < 5; ++t) {
        if (firmKeys[at(t)].empty()) continue;
        firms[at(t)] = findFirm(g, firmKeys[at(t)]);
        if (firms[at(t)] == 0) {
            ctx.closeGame();
            return badArgument(ctx, "There is no firm " + firmKeys[at(t)]);
        }
    }
    if (disc == 0) {
        ctx.closeGame();
        return badArgument(ctx, "There is no disc " + discKey);
    }
    std::string refusal = distributorsRefusal(g, disc, firms);
    if (!refusal.empty()) {
        refuse(ctx, refusal);
    } else {
        chooseDistributors(g, disc, firms);
        g.disc.read(disc);
        const DiscRecord d = g.disc.rec;
        std::string out = fmt::format("{{\"disc\":{},\"distributors\":{{", disc);
        for (int t = 0; t < 5; ++t) {
            out += fmt::format("{}\"{}\":{}", t ? "," : "", kTerritoryKeys[at(t)], d.distributor[at(t)]);
            if (!ctx.json && d.distributor[at(t)] > 0)
                std::printf("%s: %s\n", kTerritoryNames[at(t)], firmName(g, d.distributor[at(t)]).c_str());
        }
        if (ctx.json) std::printf("%s}}}\n", out.c_str());
    }
    ctx.closeGame();
}

// --- single ------------------------------------------------------------------

void runSingle(SimContext& ctx, const std::string& albumKey, const std::string& leadKey, const std::string& bSides,
               const std::string& studioKey) {
    Game& g = ctx.openGame();
    int16_t album = findDisc(g, albumKey);
    int32_t lead = findSong(g, leadKey);
    int16_t studio = findFirm(g, studioKey);
    if (album == 0 || lead == 0 || studio == 0) {
        ctx.closeGame();
        return badArgument(ctx, album == 0  ? "There is no disc " + albumKey
                                : lead == 0 ? "There is no song " + leadKey
                                            : "There is no firm " + studioKey);
    }
    std::array<int32_t, 2> sides{};
    if (bSides.empty()) {
        sides = defaultBSides(g, album, lead);
    } else {
        std::stringstream list(bSides);
        std::size_t i = 0;
        for (std::string item; std::getline(list, item, ',');) {
            if (i == 2 || (sides[i++] = findSong(g, item)) == 0) {
                ctx.closeGame();
                return badArgument(ctx, "--b-sides takes two songs, by number or title");
            }
        }
        if (i != 2) {
            ctx.closeGame();
            return badArgument(ctx, "--b-sides takes two songs, by number or title");
        }
    }
    std::string refusal = recordSingleRefusal(g, album, lead, sides, studio);
    if (!refusal.empty()) {
        refuse(ctx, refusal);
    } else {
        const RecordedSingle r = recordSingle(g, album, lead, sides, studio);
        if (ctx.json)
            std::printf(
                "{\"disc\":%d,\"tracks\":[%d,%d,%d],\"sessions\":%d,\"firstStudioDay\":\"%s\","
                "\"recordingDue\":\"%s\",\"cost\":%s}\n",
                r.disc, lead, sides[0], sides[1], r.booking.sessions,
                formatDate(r.booking.firstDay, "yyyy-mm-dd").c_str(),
                formatDate(r.booking.recordingDue, "yyyy-mm-dd").c_str(),
                fmt::format("{:.4f}", moneyToDouble(r.booking.cost)).c_str());
        else
            std::printf("Single %d: %d sessions at %s from %s, due %s, cost %s\n", r.disc, r.booking.sessions,
                        firmName(g, studio).c_str(), formatDate(r.booking.firstDay, "d/m/yyyy").c_str(),
                        formatDate(r.booking.recordingDue, "d/m/yyyy").c_str(),
                        formatMoney(g, r.booking.cost, "###,###,##0").c_str());
    }
    ctx.closeGame();
}

// --- disc ------------------------------------------------------------------

void runDisc(SimContext& ctx, const std::string& key) {
    Game& g = ctx.openGame();
    int16_t id = findDisc(g, key);
    if (id == 0) {
        ctx.closeGame();
        return badArgument(ctx, "There is no disc " + key);
    }
    g.disc.read(id);
    const DiscRecord d = g.disc.rec;
    std::string band = bandName(g, d.band), label = labelName(g, d.label);
    std::vector<std::string> tracks;
    for (std::size_t i = 0; i < std::min<std::size_t>(d.trackCount, d.tracks.size()); ++i) {
        int32_t s = d.tracks[i];
        if (s < 1 || s >= g.song.recordCount()) continue;
        g.song.read(s);
        tracks.push_back(trim(g.song->title.value));
    }
    std::array<std::string, 5> positions;
    for (int t = 0; t < 5; ++t) {
        g.disc.read(id);
        positions[at(t)] = currentPosition(g, t);
    }
    if (ctx.json) {
        std::string out = fmt::format(
            "{{\"disc\":{},\"title\":{},\"band\":{},\"label\":{},\"kind\":\"{}\",\"tracks\":[", id,
            jsonQuote(trim(d.title.value)), jsonQuote(band), jsonQuote(label), d.isSingle ? "single" : "album");
        for (std::size_t i = 0; i < tracks.size(); ++i) out += (i ? "," : "") + jsonQuote(tracks[i]);
        out += fmt::format("],\"income\":{},\"territories\":[", d.income);
        for (int t = 0; t < 5; ++t) {
            auto i = at(t);
            out += fmt::format(
                "{}{{\"territory\":\"{}\",\"date\":\"{}\",\"distributor\":{},\"stock\":{},\"order\":{},"
                "\"sales\":{},\"weekSales\":{},\"award\":\"{}\",\"position\":\"{}\"}}",
                t ? "," : "", kTerritoryKeys[i], isoDateIfSet(d.releaseDate[i]),
                jsonQuote(firmName(g, d.distributor[i])), d.stock[i], d.pressingOrder[i], d.totalSales[i],
                d.weekSales[i], awardLetter(t, d.totalSales[i]), positions[i]);
        }
        std::printf("%s]}\n", out.c_str());
    } else {
        std::printf("%s (%s) by %s, %s\n", trim(d.title.value).c_str(), d.isSingle ? "single" : "album", band.c_str(),
                    label.c_str());
        for (std::size_t i = 0; i < tracks.size(); ++i) std::printf("%2zu. %s\n", i + 1, tracks[i].c_str());
        std::printf("%-8s %-10s %-28s %10s %10s %10s %5s %4s\n", "", "Released", "Distributor", "Stock", "Order",
                    "Sales", "Award", "Pos");
        for (int t = 0; t < 5; ++t) {
            auto i = at(t);
            fmt::print("{:<8} {:<10} {:<28} {:10} {:10} {:10} {:>5} {:>4}\n", kTerritoryNames[i],
                       isoDateIfSet(d.releaseDate[i]).c_str(), firmName(g, d.distributor[i]).c_str(), d.stock[i],
                       d.pressingOrder[i], d.totalSales[i], awardLetter(t, d.totalSales[i]), positions[i].c_str());
        }
    }
    ctx.closeGame();
}

// --- chart and run ---------------------------------------------------------

void runChart(SimContext& ctx, int chart, const std::string& weekText, bool csv) {
    if (chart < 0 || chart > 9) return badArgument(ctx, "chart takes 0 to 9");
    std::optional<double> week;
    if (!weekText.empty()) {
        week = parseIsoDate(weekText);
        if (!week) return badArgument(ctx, weekText + " is not a date of the form YYYY-MM-DD");
    }
    Game& g = ctx.openGame();
    if (week) {
        std::vector<double> weeks = chartWeeks(g, chart);
        if (std::find(weeks.begin(), weeks.end(), *week) == weeks.end()) {
            ctx.closeGame();
            return refuse(ctx, fmt::format("No {} was published on {}", chartTitle(chart), weekText));
        }
    }
    double shown = 0;
    std::vector<ChartLine> lines = publishedChart(g, chart, week.value_or(0), shown);
    if (csv) {
        std::string out = chartCsv(lines);
        std::fwrite(out.data(), 1, out.size(), stdout);
    } else if (ctx.json) {
        std::string out = fmt::format("{{\"chart\":{},\"title\":{},\"week\":\"{}\",\"size\":{},\"rows\":[", chart,
                                      jsonQuote(chartTitle(chart)), isoDateIfSet(shown), publishedLength(chart));
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const ChartLine& l = lines[i];
            out += fmt::format(
                "{}{{\"position\":{},\"movement\":\"{}\",\"lastWeek\":{},\"peak\":{},\"weeks\":{},"
                "\"entry\":\"{}\",\"disc\":{},\"title\":{},\"band\":{},\"label\":{},\"sales\":{},"
                "\"award\":\"{}\"}}",
                i ? "," : "", l.e.position, l.e.movement, l.e.lastWeek, l.e.peak, l.e.weeks, l.e.entry, l.e.disc,
                jsonQuote(l.title), jsonQuote(l.band), jsonQuote(l.label), l.e.sales, l.award);
        }
        std::printf("%s]}\n", out.c_str());
    } else {
        std::printf("%s, Top %d%s\n", chartTitle(chart), publishedLength(chart),
                    shown > 0 ? (", week of " + formatDate(shown, "d/m/yyyy")).c_str() : "");
        for (const ChartLine& l : lines)
            fmt::print("{:3} {:>4} {:<8} {:<40} {:<30} {:10} {}\n", l.e.position, l.e.movement.c_str(),
                       l.e.entry.c_str(), l.title.c_str(), l.band.c_str(), l.e.sales, l.award.c_str());
    }
    ctx.closeGame();
}

void runRun(SimContext& ctx, const std::string& key) {
    Game& g = ctx.openGame();
    int16_t disc = findDisc(g, key);
    if (disc == 0) {
        ctx.closeGame();
        return badArgument(ctx, "There is no disc " + key);
    }
    std::vector<RunWeek> run = discRun(g, disc);
    if (ctx.json) {
        std::string out = fmt::format("{{\"disc\":{},\"weeks\":[", disc);
        for (std::size_t i = 0; i < run.size(); ++i)
            out += fmt::format("{}{{\"week\":\"{}\",\"chart\":{},\"position\":{},\"sales\":{}}}", i ? "," : "",
                               isoDateIfSet(run[i].week), run[i].chart, run[i].position, run[i].sales);
        std::printf("%s]}\n", out.c_str());
    } else {
        if (run.empty()) std::printf("Not yet in a published chart.\n");
        for (const RunWeek& w : run)
            fmt::print("{}  {:<22} {:3} {:10}\n", formatDate(w.week, "d/m/yyyy").c_str(), chartTitle(w.chart),
                       w.position, w.sales);
    }
    ctx.closeGame();
}

}  // namespace

void confirmDistributorForm(Game& g) {
    if (g.currentScreen != Screen::frmChooseDistributor) return;
    int16_t disc = g.disc->id;
    if (distributorsRefusal(g, disc, {}).empty()) chooseDistributors(g, disc, {});
    g.currentScreen = Screen::frmNews;
}

// What the verbs below are given on the command line.
struct ReleaseOptions {
    ReleaseArgs rel;
};

struct ForecastOptions {
    std::string forecastDisc;
};

struct PressOptions {
    PressArgs pa;
};

struct DistributeOptions {
    std::string distDisc;
    std::array<std::string, 5> distFirms;
};

struct SingleOptions {
    std::string singleAlbum;
    std::string singleLead;
    std::string singleSides;
    std::string singleStudio;
};

struct DiscOptions {
    std::string detailsDisc;
};

struct ChartOptions {
    int chartNumber = 0;
    std::string chartWeekText;
    bool chartCsv = false;
};

struct RunOptions {
    std::string runDiscKey;
};

void addDiscVerbs(CLI::App& app, SimContext& ctx) {
    auto releaseOpts = std::make_shared<ReleaseOptions>();
    auto* release = app.add_subcommand("release", "Set the release dates of one of your recorded discs");
    release->add_option("DISC", releaseOpts->rel.disc, "The disc, by number or title")->required();
    auto* date = release->add_option("--date", releaseOpts->rel.date, "YYYY-MM-DD, a Monday");
    auto* earliest =
        release->add_flag("--earliest", releaseOpts->rel.earliest, "The earliest date each territory offers");
    date->excludes(earliest);
    release->add_option("--in", releaseOpts->rel.in, "Territories: uk,us,europe,oceania,other (all five by default)");
    release->callback([&ctx, releaseOpts] {
        if (releaseOpts->rel.date.empty() && !releaseOpts->rel.earliest)
            return badArgument(ctx, "Give --date or --earliest");
        runRelease(ctx, releaseOpts->rel);
    });

    auto forecastOpts = std::make_shared<ForecastOptions>();
    auto* forecast = app.add_subcommand("forecast", "The press form's forecast for a dated disc");
    forecast->add_option("DISC", forecastOpts->forecastDisc, "The disc, by number or title")->required();
    forecast->callback([&ctx, forecastOpts] {
        Game& g = ctx.openGame();
        int16_t disc = findDisc(g, forecastOpts->forecastDisc);
        if (disc == 0) {
            ctx.closeGame();
            return badArgument(ctx, "There is no disc " + forecastOpts->forecastDisc);
        }
        g.disc.read(disc);
        if (g.player.playerLabel < 1 || g.disc->label != g.player.playerLabel)
            refuse(ctx, trim(g.disc->title.value) + " is not a disc of your label.");
        else
            printForecast(ctx, pressForecast(g));
        ctx.closeGame();
    });

    auto pressOpts = std::make_shared<PressOptions>();
    auto* press = app.add_subcommand("press", "Press copies of one of your dated discs at a plant");
    press->add_option("DISC", pressOpts->pa.disc, "The disc, by number or title")->required();
    press->add_option("--plant", pressOpts->pa.plant, "The plant, by number or name")->required();
    press->add_option("--copies", pressOpts->pa.copies, "The same quantity in every territory the disc is dated in");
    for (int t = 0; t < 5; ++t)
        press->add_option(std::string("--") + kTerritoryKeys[at(t)], pressOpts->pa.per[at(t)],
                          "Copies for the territory");
    press->callback([&ctx, pressOpts] { runPress(ctx, pressOpts->pa); });

    auto distributeOpts = std::make_shared<DistributeOptions>();
    auto* distribute = app.add_subcommand("distribute", "Choose the distributors of a disc out within the week");
    distribute->add_option("DISC", distributeOpts->distDisc, "The disc, by number or title")->required();
    for (int t = 0; t < 5; ++t)
        distribute->add_option(std::string("--") + kTerritoryKeys[at(t)], distributeOpts->distFirms[at(t)],
                               "The firm, by number or name");
    distribute->callback(
        [&ctx, distributeOpts] { runDistribute(ctx, distributeOpts->distDisc, distributeOpts->distFirms); });

    auto singleOpts = std::make_shared<SingleOptions>();
    auto* single = app.add_subcommand("single", "Draw a single from one of your albums");
    single->add_option("ALBUM", singleOpts->singleAlbum, "The album, by number or title")->required();
    single->add_option("--lead", singleOpts->singleLead, "The lead song, by number or title")->required();
    single->add_option("--b-sides", singleOpts->singleSides, "Two songs ID,ID (the two weakest tracks by default)");
    single->add_option("--studio", singleOpts->singleStudio, "The studio, by number or name")->required();
    single->callback([&ctx, singleOpts] {
        runSingle(ctx, singleOpts->singleAlbum, singleOpts->singleLead, singleOpts->singleSides,
                  singleOpts->singleStudio);
    });

    auto discOpts = std::make_shared<DiscOptions>();
    auto* disc = app.add_subcommand("disc", "Disc Details");
    disc->add_option("DISC", discOpts->detailsDisc, "The disc, by number or title")->required();
    disc->callback([&ctx, discOpts] { runDisc(ctx, discOpts->detailsDisc); });

    auto chartOpts = std::make_shared<ChartOptions>();
    auto* chart = app.add_subcommand("chart", "The published part of chart 0 to 9");
    chart->add_option("N", chartOpts->chartNumber, "0 to 4 albums, 5 to 9 singles: UK, US, Europe, Oceania, Global")
        ->required();
    chart->add_option("--week", chartOpts->chartWeekText, "A past week's Sunday, YYYY-MM-DD");
    chart->add_flag("--csv", chartOpts->chartCsv, "Comma-separated values with a header line");
    chart->callback(
        [&ctx, chartOpts] { runChart(ctx, chartOpts->chartNumber, chartOpts->chartWeekText, chartOpts->chartCsv); });

    auto runOpts = std::make_shared<RunOptions>();
    auto* run = app.add_subcommand("run", "A disc's chart run, week by week");
    run->add_option("DISC", runOpts->runDiscKey, "The disc, by number or title")->required();
    run->callback([&ctx, runOpts] { runRun(ctx, runOpts->runDiscKey); });
}

}  // namespace trovane::sim

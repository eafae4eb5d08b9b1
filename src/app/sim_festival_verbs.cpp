// The verbs of the festivals: festivals (the year's list) and festival (each
// day of one, its bill, crowd and quality, and the review's title).
#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "floor/formats.h"
#include "live/festivals.h"
#include "world/dates.h"
#include "world/record_dump.h"
#include "world/strings.h"

namespace trovane::sim {

namespace {

int16_t findFestival(Game& g, const std::string& key) {
    bool number = !key.empty() && key.size() < 6 &&
                  std::all_of(key.begin(), key.end(), [](unsigned char c) { return std::isdigit(c); });
    if (number) {
        int n = std::stoi(key);
        return n >= 1 && n < g.festival.recordCount() ? static_cast<int16_t>(n) : 0;
    }
    for (int32_t n = 1; n < g.festival.recordCount(); ++n) {
        g.festival.read(n);
        if (trim(g.festival->festivalName.value) == key) return static_cast<int16_t>(n);
    }
    return 0;
}

int yearOrNow(const Game& g, std::optional<int> year) { return year ? *year : yearOf(g.gameDate); }

void runFestivals(SimContext& ctx, std::optional<int> yearOption) {
    Game& g = ctx.openGame();
    std::string out;
    for (const FestivalYear& f : festivalsOfYear(g, yearOrNow(g, yearOption))) {
        std::string first = f.dayList.empty() ? "" : isoDate(f.dayList.front().date);
        std::string last = f.dayList.empty() ? "" : isoDate(f.dayList.back().date);
        std::size_t billed = f.dayList.empty() ? 0 : f.dayList.front().bill.size();
        if (ctx.json)
            out += fmt::format(
                "{}{{\"id\":{},\"name\":{},\"style\":{},\"territory\":{},\"prestige\":{},\"days\":{},"
                "\"first\":{},\"last\":{},\"billed\":{}}}",
                out.empty() ? "" : ",", f.festival, jsonQuote(f.name), jsonQuote(f.style), jsonQuote(f.territory),
                f.prestige, f.days, jsonQuote(first), jsonQuote(last), billed);
        else
            fmt::print("{:4}  {:<40} {:<16} {:<8} {:3} {:3}  {:<10} {:<10} {:3}\n", f.festival, f.name.c_str(),
                       f.style.c_str(), f.territory.c_str(), f.prestige, f.days, first.c_str(), last.c_str(), billed);
    }
    if (ctx.json) std::printf("[%s]\n", out.c_str());
    ctx.closeGame();
}

void runFestival(SimContext& ctx, const std::string& key, std::optional<int> yearOption) {
    Game& g = ctx.openGame();
    int16_t n = findFestival(g, key);
    if (n == 0) {
        ctx.closeGame();
        throw SimError(kExitBadArgs, "There is no festival " + key);
    }
    const FestivalYear f = festivalYear(g, n, yearOrNow(g, yearOption));
    if (!ctx.json) std::printf("%s (%d)\n", f.name.c_str(), f.year);
    std::string days;
    for (const FestivalDay& day : f.dayList) {
        if (!ctx.json)
            std::printf("\n%s  %s%s\n", isoDate(day.date).c_str(), day.venue.c_str(),
                        day.played ? fmt::format("  crowd {}  overall {}", day.crowd, day.overall).c_str() : "");
        std::string bill;
        for (const FestivalAct& act : day.bill) {
            if (ctx.json)
                bill +=
                    fmt::format("{}{{\"band\":{},\"name\":{},\"label\":{},\"reputation\":{}}}", bill.empty() ? "" : ",",
                                act.band, jsonQuote(act.name), jsonQuote(act.label), act.reputation);
            else
                fmt::print("  {:<40} {:<30} {:3}\n", act.name.c_str(), act.label.c_str(), act.reputation);
        }
        if (ctx.json)
            days += fmt::format("{}{{\"gig\":{},\"date\":{},\"venue\":{},\"bill\":[{}],\"crowd\":{},\"overall\":{}}}",
                                days.empty() ? "" : ",", day.gig, jsonQuote(isoDate(day.date)), jsonQuote(day.venue),
                                bill, day.crowd, day.overall);
    }
    if (ctx.json)
        std::printf("{\"id\":%d,\"name\":%s,\"year\":%d,\"days\":[%s],\"review\":%s}\n", n, jsonQuote(f.name).c_str(),
                    f.year, days.c_str(), jsonQuote(f.reviewTitle).c_str());
    else if (f.dayList.empty())
        std::printf("Not held in %d.\n", f.year);
    else if (!f.reviewTitle.empty())
        std::printf("\nReview: %s\n", f.reviewTitle.c_str());
    ctx.closeGame();
}

}  // namespace

void addFestivalVerbs(CLI::App& app, SimContext& ctx) {
    auto year = std::make_shared<std::optional<int>>();
    auto* l =
        app.add_subcommand("festivals", "The year's festivals: style, territory, prestige, days, dates, acts billed");
    l->add_option("--year", *year, "The year; this year by default");
    l->callback([&ctx, year] { runFestivals(ctx, *year); });

    auto key = std::make_shared<std::string>();
    auto dayYear = std::make_shared<std::optional<int>>();
    auto* d = app.add_subcommand("festival", "Each day of a festival: date, venue, bill, crowd, overall; the review");
    d->add_option("F", *key, "The festival, by number or name")->required();
    d->add_option("--year", *dayYear, "The year; this year by default");
    d->callback([&ctx, key, dayYear] { runFestival(ctx, *key, *dayYear); });
}

}  // namespace trovane::sim

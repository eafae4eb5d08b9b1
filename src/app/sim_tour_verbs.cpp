// The verbs of tours: tour (book one by hand or by the assistant), tours,
// tourinfo, unsupport and sponsors.
#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "floor/formats.h"
#include "live/gigs.h"
#include "live/sponsors.h"
#include "live/tour_provisions.h"
#include "live/tours.h"
#include "rivals/rival_touring.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/record_dump.h"
#include "world/strings.h"

namespace trovane::sim {

namespace {

bool isNumber(const std::string& s) {
    return !s.empty() && s.size() < 10 &&
           std::all_of(s.begin(), s.end(), [](unsigned char c) { return std::isdigit(c); });
}

int16_t findBand(Game& g, const std::string& key) {
    return static_cast<int16_t>(recordNamed(g, FileNo::fileBand, key));
}

[[noreturn]] void badArgument(SimContext& ctx, const std::string& why) {
    ctx.closeGame();
    throw SimError(kExitBadArgs, why);
}

int16_t needBand(SimContext& ctx, Game& g, const std::string& key) {
    int16_t band = findBand(g, key);
    if (band == 0) badArgument(ctx, "There is no band " + key);
    return band;
}

struct AreaWord {
    const char* word;
    const char* code;
};
constexpr AreaWord kAreas[] = {{"uk", "E"},   {"europe", "E"},  {"north-america", "N"}, {"south-america", "S"},
                               {"asia", "A"}, {"oceania", "O"}, {"africa", "F"}};

// The area code and nation of --area and --nation: "uk" is Europe with England.
TourPlace parsePlace(SimContext& ctx, Game& g, int16_t band, const std::string& area, const std::string& nation) {
    const AreaWord* found = nullptr;
    for (const AreaWord& a : kAreas)
        if (area == a.word) found = &a;
    if (found == nullptr)
        badArgument(ctx, area + " is not an area: uk, europe, north-america, south-america, asia, oceania or africa");
    TourPlace place{.band = band, .area = found->code, .nation = 0};
    std::string country = nation;
    if (area == "uk") {
        if (!nation.empty()) badArgument(ctx, "--nation goes with an area other than uk");
        country = "England";
    }
    if (country.empty()) return place;
    int32_t n = recordNamed(g, FileNo::fileCountry, country);
    if (n == 0) badArgument(ctx, "There is no country " + country);
    g.country.read(n);
    if (trim(g.country->region.value) != place.area) badArgument(ctx, country + " is not in that area");
    place.nation = static_cast<uint8_t>(n);
    return place;
}

struct TourOptions {
    std::string band, area, nation, sponsor;
    std::vector<std::string> gigs, supports;
    bool autoPlan = false;
    int content = 2, hospitality = 2, accommodation = 2;
};

struct GigWish {
    int16_t venue = 0;
    double date = 0;
};

std::vector<GigWish> parseGigs(SimContext& ctx, Game& g, const std::vector<std::string>& texts) {
    std::vector<GigWish> out;
    for (const std::string& text : texts) {
        auto at = text.rfind('@');
        if (at == std::string::npos) badArgument(ctx, text + " is not of the form VENUE@YYYY-MM-DD");
        std::string key = text.substr(0, at);
        auto date = parseIsoDate(text.substr(at + 1));
        if (!date) badArgument(ctx, text.substr(at + 1) + " is not a date of the form YYYY-MM-DD");
        int32_t venue = recordNamed(g, FileNo::fileVenue, key);
        if (venue == 0) badArgument(ctx, "There is no venue " + key);
        out.push_back({static_cast<int16_t>(venue), *date});
    }
    return out;
}

void printBookedTour(SimContext& ctx, Game& g, int16_t tour, const std::string& text) {
    g.tour.read(tour);
    const TourRecord t = g.tour.rec;
    std::string gigs;
    if (!ctx.json) std::printf("Tour %d\n", tour);
    for (std::size_t i = 0; i < t.gigCount; ++i) {
        g.gig.read(t.gigs[i]);
        const GigRecord gig = g.gig.rec;
        g.venue.read(gig.venue);
        std::string venue = trim(g.venue->name.value);
        if (ctx.json)
            gigs += fmt::format("{}{{\"gig\":{},\"date\":\"{}\",\"venue\":{}}}", i ? "," : "", t.gigs[i],
                                isoDate(gig.gigDate), jsonQuote(venue));
        else
            std::printf("  gig %d  %s  %s\n", t.gigs[i], isoDate(gig.gigDate).c_str(), venue.c_str());
    }
    if (ctx.json)
        std::printf("{\"tour\":%d,\"gigs\":[%s],\"text\":%s}\n", tour, gigs.c_str(), jsonQuote(text).c_str());
    else
        std::printf("%s\n", text.c_str());
}

void runTour(SimContext& ctx, const TourOptions& o) {
    for (int level : {o.content, o.hospitality, o.accommodation})
        if (level < 0 || level > 4) throw SimError(kExitBadArgs, "Production levels run from 0 to 4");
    if (o.autoPlan == !o.gigs.empty()) throw SimError(kExitBadArgs, "Give either --gig (one or more) or --auto");
    Game& g = ctx.openGame();
    const int16_t band = needBand(ctx, g, o.band);
    const TourPlace place = parsePlace(ctx, g, band, o.area, o.nation);
    const std::vector<GigWish> wishes = parseGigs(ctx, g, o.gigs);
    std::vector<int16_t> supports;
    for (const std::string& s : o.supports) supports.push_back(needBand(ctx, g, s));
    int16_t sponsor = -1;
    if (!o.sponsor.empty()) {
        sponsor = static_cast<int16_t>(recordNamed(g, FileNo::fileProduct, o.sponsor));
        if (sponsor == 0) badArgument(ctx, "There is no product " + o.sponsor);
    }
    auto refuse = [&](const std::string& why) {
        ctx.refuse(why);
        ctx.closeGame();
    };
    if (std::string why = tourStartRefusal(g, band); !why.empty()) return refuse(why);
    if (o.autoPlan && place.area == "F") return refuse("Your assistant can't plan a tour of Africa.");

    // Every gig, support and sponsor is tried before anything is filed.
    TourSoFar so{.band = band, .area = place.area, .nation = place.nation};
    double first = 0;
    for (const GigWish& w : wishes) {
        if (std::string why = nextGigRefusal(g, so, w.venue, w.date); !why.empty()) return refuse(why);
        if (so.gigCount == 0) first = w.date;
        so.gigCount += 1;
        so.lastVenue = w.venue;
        so.lastDate = w.date;
    }
    if (sponsor > 0 && !productFitsPlace(g, place, sponsor)) {
        g.product.read(sponsor);
        return refuse(trim(g.product->name.value) + " isn't willing to sponsor this tour.");
    }
    std::vector<int16_t> placed;
    if (!o.autoPlan) {
        for (int16_t s : supports) {
            if (std::string why = supportRefusalOver(g, band, first, so.lastDate, placed, s); !why.empty())
                return refuse(why);
            placed.push_back(s);
        }
    }

    int16_t tour = 0;
    std::string text;
    if (o.autoPlan) {
        AssistantTour planned = planAssistantTour(g, band, place.area, place.nation);
        if (planned.tour == 0)
            return refuse(planned.refusal.empty() ? "Your assistant found no tour." : planned.refusal);
        tour = planned.tour;
        text = planned.question;
        for (int16_t s : supports) {
            if (std::string why = supportRefusal(g, tour, s); !why.empty()) {
                cancelTour(g, tour);
                return refuse(why);
            }
            addSupportBand(g, tour, s);
        }
    } else {
        g.band.read(band);
        tour = createTour(g, place.area, place.nation);
        for (const GigWish& w : wishes) addTourGig(g, tour, w.venue, w.date);
        for (int16_t s : placed) addSupportBand(g, tour, s);
    }
    setTourLevels(g, tour, o.content, o.hospitality, o.accommodation);
    if (sponsor < 0) {
        std::vector<SponsorOffer> offers = fittingSponsors(g, tour);
        sponsor = offers.empty() ? 0 : offers.front().product;
    }
    setTourSponsor(g, tour, sponsor);
    finaliseTour(g, tour);
    if (!o.autoPlan) text = tourSummary(g, tour);
    printBookedTour(ctx, g, tour, text);
    ctx.closeGame();
}

struct ToursOptions {
    std::string band, label;
    bool festivals = false;
    int year = 0;
};

std::string levelsText(const TourRecord& t) {
    return fmt::format("{}/{}/{}", contentLevelName(t.contentLevel), hospitalityLevelName(t.hospitalityLevel),
                       accommodationLevelName(t.accommodationLevel));
}

void runTours(SimContext& ctx, const ToursOptions& o) {
    Game& g = ctx.openGame();
    int16_t band = o.band.empty() ? 0 : needBand(ctx, g, o.band);
    int16_t label = 0;
    if (!o.label.empty()) {
        label = static_cast<int16_t>(recordNamed(g, FileNo::fileLabel, o.label));
        if (label == 0) badArgument(ctx, "There is no label " + o.label);
    }
    std::string out;
    for (int32_t n = 1; n < g.tour.recordCount(); ++n) {
        g.tour.read(n);
        const TourRecord t = g.tour.rec;
        if (t.gigCount == 0) continue;
        if (o.festivals != (t.festival != 0)) continue;
        if (band && t.band != band) continue;
        std::string act;
        if (t.festival != 0) {
            g.festival.read(t.festival);
            act = trim(g.festival->festivalName.value);
        } else {
            g.band.read(t.band);
            if (label && g.band->label != label) continue;
            act = trim(g.band->name.value);
        }
        g.gig.read(t.gigs[0]);
        const double first = g.gig->gigDate;
        g.gig.read(t.gigs[t.gigCount - 1u]);
        const double last = g.gig->gigDate;
        if (o.year && yearOf(first) != o.year && yearOf(last) != o.year) continue;
        std::string nation;
        if (t.nation > 0) {
            g.country.read(t.nation);
            nation = trim(g.country->name.value);
        }
        std::string sponsor;
        int32_t fee = 0;
        if (t.sponsorProduct > 0) {
            g.product.read(t.sponsorProduct);
            sponsor = trim(g.product->name.value);
            fee = sponsorFee(g.product->minimumReputation);
        }
        if (ctx.json)
            out += fmt::format(
                "{}{{\"id\":{},\"act\":{},\"area\":\"{}\",\"nation\":{},\"gigs\":{},\"first\":\"{}\",\"last\":\"{}\","
                "\"supports\":{},\"content\":{},\"hospitality\":{},\"accommodation\":{},\"sponsor\":{},"
                "\"fee\":{}}}",
                out.empty() ? "" : ",", n, jsonQuote(act), trim(t.areaCode.value), jsonQuote(nation), t.gigCount,
                isoDate(first), isoDate(last), t.supportCount, t.contentLevel, t.hospitalityLevel, t.accommodationLevel,
                jsonQuote(sponsor), moneyUnits(fee));
        else
            fmt::print("{:5}  {:<30} {} {:<16} {:2}  {}  {}  {}  {:<30} {:<20} {}\n", n, act.c_str(),
                       trim(t.areaCode.value).c_str(), nation.c_str(), t.gigCount, isoDate(first).c_str(),
                       isoDate(last).c_str(), t.supportCount, levelsText(t).c_str(), sponsor.c_str(),
                       fee ? formatMoneyValue(g, fee, "###,###,##0").c_str() : "");
    }
    if (ctx.json) std::printf("[%s]\n", out.c_str());
    ctx.closeGame();
}

void runTourInfo(SimContext& ctx, const std::string& key) {
    Game& g = ctx.openGame();
    if (!isNumber(key) || std::stoi(key) < 1 || std::stoi(key) >= g.tour.recordCount())
        badArgument(ctx, "There is no tour " + key);
    const auto tour = static_cast<int16_t>(std::stoi(key));
    g.tour.read(tour);
    const TourRecord t = g.tour.rec;
    std::string gigs, road;
    double previous = 0;
    int64_t total = 0;
    for (std::size_t i = 0; i < t.gigCount; ++i) {
        g.gig.read(t.gigs[i]);
        const GigRecord gig = g.gig.rec;
        for (double d = i ? previous + 1 : gig.gigDate; d < gig.gigDate; ++d)
            for (int32_t id : entriesOfDay(g, d)) {
                g.schedule.read(id);
                const ScheduleRecord e = g.schedule.rec;
                if (e.gig != t.gigs[i] || (e.type != 10 && e.type != 11)) continue;
                const char* kind = e.type == 10 ? "travel" : "rest";
                if (ctx.json)
                    road +=
                        fmt::format("{}{{\"date\":\"{}\",\"kind\":\"{}\"}}", road.empty() ? "" : ",", isoDate(d), kind);
                else
                    std::printf("        %s  %s\n", isoDate(d).c_str(), kind);
            }
        previous = gig.gigDate;
        g.venue.read(gig.venue);
        g.city.read(g.venue->city);
        std::string venue = trim(g.venue->name.value), city = trim(g.city->name.value), bill, billJson;
        for (int16_t b : gig.bill) {
            if (b == 0) break;
            g.band.read(b);
            bill += (bill.empty() ? "" : ", ") + trim(g.band->name.value);
            billJson += (billJson.empty() ? "" : ",") + jsonQuote(trim(g.band->name.value));
        }
        total += gig.profit;
        if (ctx.json)
            gigs += fmt::format(
                "{}{{\"gig\":{},\"date\":\"{}\",\"venue\":{},\"city\":{},\"bill\":[{}],\"crowd\":{},\"overall\":{},"
                "\"profit\":{}}}",
                i ? "," : "", t.gigs[i], isoDate(gig.gigDate), jsonQuote(venue), jsonQuote(city), billJson,
                gig.attendance, gig.overallQuality, moneyUnits(gig.profit));
        else
            fmt::print("{:6}  {}  {:<32} {:<20} {:9} {:3} {:>12}  {}\n", t.gigs[i], isoDate(gig.gigDate).c_str(),
                       venue.c_str(), city.c_str(), gig.attendance, gig.overallQuality,
                       formatMoneyValue(g, static_cast<double>(gig.profit), "###,###,##0").c_str(), bill.c_str());
    }
    if (ctx.json)
        std::printf("{\"tour\":%d,\"gigs\":[%s],\"road\":[%s],\"profit\":%lld}\n", tour, gigs.c_str(), road.c_str(),
                    static_cast<long long>(moneyUnits(total)));
    else
        std::printf("Profit in all: %s\n", formatMoneyValue(g, static_cast<double>(total), "###,###,###,##0").c_str());
    ctx.closeGame();
}

void runUnsupport(SimContext& ctx, const std::string& tourKey, const std::string& bandKey) {
    Game& g = ctx.openGame();
    if (!isNumber(tourKey) || std::stoi(tourKey) < 1 || std::stoi(tourKey) >= g.tour.recordCount())
        badArgument(ctx, "There is no tour " + tourKey);
    const auto tour = static_cast<int16_t>(std::stoi(tourKey));
    const int16_t band = needBand(ctx, g, bandKey);
    g.tour.read(tour);
    std::string why;
    if (g.tour->festival != 0 || g.player.playerLabel < 1) {
        why = "That tour isn't one of your bands'.";
    } else {
        g.band.read(g.tour->band);
        if (g.band->label != g.player.playerLabel) why = "That tour isn't one of your bands'.";
    }
    std::vector<int16_t> supports = supportsOf(g, tour);
    g.band.read(band);
    if (why.empty() && std::find(supports.begin(), supports.end(), band) == supports.end())
        why = trim(g.band->name.value) + " isn't supporting that tour.";
    if (!why.empty()) {
        ctx.refuse(why);
        ctx.closeGame();
        return;
    }
    removeSupportBand(g, tour, band);
    g.tour.read(tour);
    if (ctx.json)
        std::printf("{\"tour\":%d,\"band\":%d,\"supports\":%d}\n", tour, band, g.tour->supportCount);
    else
        std::printf("%s no longer supports tour %d.\n", trim(g.band->name.value).c_str(), tour);
    ctx.closeGame();
}

struct SponsorsOptions {
    std::string band, area, nation;
};

void runSponsors(SimContext& ctx, const SponsorsOptions& o) {
    Game& g = ctx.openGame();
    const int16_t band = needBand(ctx, g, o.band);
    const TourPlace place = parsePlace(ctx, g, band, o.area, o.nation);
    std::string out;
    for (const SponsorOffer& s : sponsorsForPlace(g, place)) {
        g.product.read(s.product);
        std::string name = trim(g.product->name.value);
        if (ctx.json)
            out += fmt::format("{}{{\"id\":{},\"name\":{},\"minimum\":{},\"fee\":{}}}", out.empty() ? "" : ",",
                               s.product, jsonQuote(name), g.product->minimumReputation, moneyUnits(s.feePerGig));
        else
            fmt::print("{:4}  {:<32} {:3} {:>12}\n", s.product, name.c_str(), g.product->minimumReputation,
                       formatMoneyValue(g, s.feePerGig, "###,###,##0").c_str());
    }
    if (ctx.json) std::printf("[%s]\n", out.c_str());
    ctx.closeGame();
}

}  // namespace

void addTourVerbs(CLI::App& app, SimContext& ctx) {
    auto tour = std::make_shared<TourOptions>();
    auto* t = app.add_subcommand("tour", "Book a tour for one of your bands, gig by gig or by your assistant");
    t->add_option("BAND", tour->band, "The band, by number or name")->required();
    t->add_option("--area", tour->area, "uk, europe, north-america, south-america, asia, oceania or africa")
        ->required();
    t->add_option("--nation", tour->nation, "One country of the area, by number or name");
    t->add_option("--gig", tour->gigs, "VENUE@YYYY-MM-DD, in date order; repeat for each gig");
    t->add_flag("--auto", tour->autoPlan, "Let your assistant plan the gigs");
    t->add_option("--content", tour->content, "Production 0 (Extravagant) to 4 (Basic); 2 by default");
    t->add_option("--hospitality", tour->hospitality, "Hospitality 0 (Excessive) to 4 (None); 2 by default");
    t->add_option("--accommodation", tour->accommodation, "Beds 0 (Decadent) to 4 (Basic); 2 by default");
    t->add_option("--support", tour->supports, "A band of yours to support the tour; up to three");
    t->add_option("--sponsor", tour->sponsor, "The sponsoring product; the best fitting by default");
    t->callback([&ctx, tour] { runTour(ctx, *tour); });

    auto tours = std::make_shared<ToursOptions>();
    auto* l = app.add_subcommand("tours", "Tours: act, area, gigs, dates, supports, levels and sponsor");
    l->add_option("--band", tours->band, "Only this band's tours");
    l->add_option("--label", tours->label, "Only the tours of this label's bands");
    l->add_flag("--festivals", tours->festivals, "The festivals' tours instead of the bands'");
    l->add_option("--year", tours->year, "Only tours with a gig in this year");
    l->callback([&ctx, tours] { runTours(ctx, *tours); });

    auto info = std::make_shared<std::string>();
    auto* i = app.add_subcommand("tourinfo", "A tour's gigs, bills, crowds and profits, and its days on the road");
    i->add_option("TOUR", *info, "The tour's number")->required();
    i->callback([&ctx, info] { runTourInfo(ctx, *info); });

    auto un = std::make_shared<std::pair<std::string, std::string>>();
    auto* u = app.add_subcommand("unsupport", "Take a support band off one of your tours");
    u->add_option("TOUR", un->first, "The tour's number")->required();
    u->add_option("BAND", un->second, "The support band, by number or name")->required();
    u->callback([&ctx, un] { runUnsupport(ctx, un->first, un->second); });

    auto sp = std::make_shared<SponsorsOptions>();
    auto* s = app.add_subcommand("sponsors", "The products that would sponsor a band's tour, best fee first");
    s->add_option("BAND", sp->band, "The band, by number or name")->required();
    s->add_option("--area", sp->area, "uk, europe, north-america, south-america, asia, oceania or africa")->required();
    s->add_option("--nation", sp->nation, "One country of the area, by number or name");
    s->callback([&ctx, sp] { runSponsors(ctx, *sp); });
}

}  // namespace trovane::sim

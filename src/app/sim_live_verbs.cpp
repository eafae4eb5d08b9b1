// The verbs of gigs and ceremonies: venues, gig (book one night), gigs (a
// band's nights), ceremonies and ceremony.
#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "events/ceremony_details.h"
#include "floor/formats.h"
#include "live/gigs.h"
#include "live/tours.h"
#include "talent/band_functions.h"
#include "world/dates.h"
#include "world/record_dump.h"
#include "world/strings.h"

namespace trovane::sim {

namespace {

int16_t findBand(Game& g, const std::string& key) {
    return static_cast<int16_t>(recordNamed(g, FileNo::fileBand, key));
}
int16_t findVenue(Game& g, const std::string& key) {
    return static_cast<int16_t>(recordNamed(g, FileNo::fileVenue, key));
}

// Loads the venue with its city and country into their buffers.
void loadVenue(Game& g, int16_t venue) {
    g.venue.read(venue);
    g.city.read(g.venue->city);
    g.country.read(g.city->country);
}

// The crowd the band in the band buffer would draw at the venue in the buffers.
int32_t estimatedCrowd(Game& g) {
    const auto& r = g.band->reputation;
    int rep = r[static_cast<std::size_t>(venueMarket(g))];
    auto standing = toInteger((8.0 * r[0] + 10.0 * r[1] + 7.0 * r[2] + 5.0 * r[3] + 3.0 * r[4]) / 7);
    g.tour.rec = TourRecord{};
    return expectedAttendance(g, 1, rep, standing);
}

struct VenuesOptions {
    std::string country, band;
};

void runVenues(SimContext& ctx, const VenuesOptions& o) {
    Game& g = ctx.openGame();
    int16_t band = 0;
    if (!o.band.empty() && (band = findBand(g, o.band)) == 0) {
        ctx.closeGame();
        throw SimError(kExitBadArgs, "There is no band " + o.band);
    }
    std::string out;
    for (int32_t n = 1; n < g.venue.recordCount(); ++n) {
        loadVenue(g, static_cast<int16_t>(n));
        std::string country = trim(g.country->name.value);
        if (!o.country.empty() && country != o.country && std::to_string(g.country->id) != o.country) continue;
        const VenueRecord v = g.venue.rec;
        std::string city = trim(g.city->name.value);
        std::optional<int32_t> crowd;
        if (band) {
            g.band.read(band);
            crowd = estimatedCrowd(g);
        }
        if (ctx.json) {
            out += fmt::format("{}{{\"id\":{},\"name\":{},\"city\":{},\"country\":{},\"capacity\":{},\"rating\":{}",
                               out.empty() ? "" : ",", n, jsonQuote(trim(v.name.value)), jsonQuote(city),
                               jsonQuote(country), v.capacity, v.rating);
            out += crowd ? fmt::format(",\"expected\":{}}}", *crowd) : "}";
        } else {
            fmt::print("{:5}  {:<32} {:<20} {:<20} {:9} {:3}", n, trim(v.name.value).c_str(), city.c_str(),
                       country.c_str(), v.capacity, v.rating);
            if (crowd) std::printf(" %9d", *crowd);
            std::printf("\n");
        }
    }
    if (ctx.json) std::printf("[%s]\n", out.c_str());
    ctx.closeGame();
}

struct GigOptions {
    std::string band, venue, date;
    int content = 2, hospitality = 2, accommodation = 2;
};

void runGig(SimContext& ctx, const GigOptions& o) {
    std::optional<double> date = parseIsoDate(o.date);
    if (!date) throw SimError(kExitBadArgs, o.date + " is not a date of the form YYYY-MM-DD");
    for (int level : {o.content, o.hospitality, o.accommodation})
        if (level < 0 || level > 4) throw SimError(kExitBadArgs, "Production levels run from 0 to 4");
    Game& g = ctx.openGame();
    int16_t band = findBand(g, o.band);
    int16_t venue = findVenue(g, o.venue);
    if (band == 0 || venue == 0) {
        ctx.closeGame();
        throw SimError(kExitBadArgs, band == 0 ? "There is no band " + o.band : "There is no venue " + o.venue);
    }
    GigBooking booking{.band = band,
                       .venue = venue,
                       .date = *date,
                       .contentLevel = static_cast<uint8_t>(o.content),
                       .hospitalityLevel = static_cast<uint8_t>(o.hospitality),
                       .accommodationLevel = static_cast<uint8_t>(o.accommodation)};
    std::string refusal = gigBookingRefusal(g, booking);
    if (!refusal.empty()) {
        ctx.refuse(refusal);
        ctx.closeGame();
        return;
    }
    BookedGig booked = bookGig(g, booking);
    loadVenue(g, venue);
    g.band.read(band);
    int32_t crowd = estimatedCrowd(g);
    std::string venueName = trim(g.venue->name.value);
    if (ctx.json)
        std::printf("{\"gig\":%d,\"tour\":%d,\"date\":\"%s\",\"venue\":%s,\"expected\":%d}\n", booked.gig, booked.tour,
                    isoDate(*date).c_str(), jsonQuote(venueName).c_str(), crowd);
    else
        std::printf("Gig %d (tour %d): %s at %s on %s, about %s expected.\n", booked.gig, booked.tour,
                    trim(g.band->name.value).c_str(), venueName.c_str(), formatDate(*date, "dddd d/m/yyyy").c_str(),
                    formatNumber(crowd, "###,###,##0").c_str());
    ctx.closeGame();
}

void runGigs(SimContext& ctx, const std::string& key) {
    Game& g = ctx.openGame();
    int16_t band = findBand(g, key);
    if (band == 0) {
        ctx.closeGame();
        throw SimError(kExitBadArgs, "There is no band " + key);
    }
    std::string out;
    for (int32_t n = 1; n < g.gig.recordCount(); ++n) {
        g.gig.read(n);
        const GigRecord gig = g.gig.rec;
        if (std::find(gig.bill.begin(), gig.bill.end(), band) == gig.bill.end()) continue;
        loadVenue(g, gig.venue);
        std::string venue = trim(g.venue->name.value), city = trim(g.city->name.value);
        if (ctx.json)
            out += fmt::format(
                "{}{{\"id\":{},\"date\":\"{}\",\"venue\":{},\"city\":{},\"capacity\":{},\"attendance\":{},"
                "\"overall\":{},\"profit\":{}}}",
                out.empty() ? "" : ",", n, isoDate(gig.gigDate), jsonQuote(venue), jsonQuote(city), g.venue->capacity,
                gig.attendance, gig.overallQuality, moneyUnits(gig.profit));
        else
            fmt::print("{:6}  {}  {:<32} {:<20} {:9} {:9} {:3} {:>12}\n", n, isoDate(gig.gigDate).c_str(),
                       venue.c_str(), city.c_str(), g.venue->capacity, gig.attendance, gig.overallQuality,
                       formatMoney(g, moneyUnits(gig.profit), "###,###,##0").c_str());
    }
    if (ctx.json) std::printf("[%s]\n", out.c_str());
    ctx.closeGame();
}

std::string countryName(Game& g, int n) {
    if (!g.country.readIfPresent(n)) return "";
    return trim(g.country->name.value);
}

void runCeremonies(SimContext& ctx) {
    Game& g = ctx.openGame();
    std::string out;
    for (int32_t n = 1; n < g.ceremony.recordCount(); ++n) {
        g.ceremony.read(n);
        const CeremonyRecord c = g.ceremony.rec;
        std::string country = countryName(g, c.country);
        std::string night = c.date > 0 ? isoDate(c.date) : "";
        bool attending = c.playerInvited == kTrue;
        if (ctx.json)
            out += fmt::format("{}{{\"id\":{},\"name\":{},\"country\":{},\"night\":{},\"attending\":{},\"held\":{}}}",
                               out.empty() ? "" : ",", n, jsonQuote(trim(c.name.value)), jsonQuote(country),
                               jsonQuote(night), attending, c.held);
        else
            fmt::print("{:4}  {:<40} {:<20} {:<10} {:<3} {}\n", n, trim(c.name.value).c_str(), country.c_str(),
                       night.c_str(), attending ? "yes" : "no", c.held);
    }
    if (ctx.json) std::printf("[%s]\n", out.c_str());
    ctx.closeGame();
}

void runCeremony(SimContext& ctx, const std::string& key) {
    Game& g = ctx.openGame();
    int32_t n = recordNamed(g, FileNo::fileCeremony, key);
    if (n == 0) {
        ctx.closeGame();
        throw SimError(kExitBadArgs, "There is no ceremony " + key);
    }
    const CeremonyDetails d = ceremonyDetails(g, static_cast<int16_t>(n));
    const std::string night = d.night > 0 ? isoDate(d.night) : "";
    if (!ctx.json)
        std::printf("%s\nNight:   %s\nCountry: %s\nHeld:    %s\n", d.name.c_str(), night.c_str(), d.country.c_str(),
                    d.held > 0 ? std::to_string(d.held).c_str() : "never");
    std::string awards;
    for (const CeremonyAward& a : d.awards) {
        std::string nominees;
        int winner = 0;
        if (!ctx.json) std::printf("\n%s (%s)\n", a.name.c_str(), a.candidates.c_str());
        for (std::size_t k = 0; k < a.nominees.size(); ++k) {
            const AwardNominee& who = a.nominees[k];
            if (who.winner) winner = static_cast<int>(k) + 1;
            if (ctx.json)
                nominees += fmt::format("{}{{\"name\":{},\"score\":{}}}", k ? "," : "", jsonQuote(who.name), who.score);
            else
                fmt::print("  {:<65} {:3}{}\n", who.name.c_str(), who.score, who.winner ? "  winner" : "");
        }
        if (!ctx.json && a.state == AwardState::notAwarded) std::printf("  not awarded\n");
        if (ctx.json)
            awards += fmt::format("{}{{\"id\":{},\"name\":{},\"for\":{},\"nominees\":[{}],\"winner\":{}}}",
                                  awards.empty() ? "" : ",", a.award, jsonQuote(a.name), jsonQuote(a.candidates),
                                  nominees, winner);
    }
    if (ctx.json)
        std::printf("{\"id\":%d,\"name\":%s,\"night\":%s,\"country\":%s,\"held\":%d,\"awards\":[%s]}\n", n,
                    jsonQuote(d.name).c_str(), jsonQuote(night).c_str(), jsonQuote(d.country).c_str(), d.held,
                    awards.c_str());
    ctx.closeGame();
}

}  // namespace

void addLiveVerbs(CLI::App& app, SimContext& ctx) {
    auto venues = std::make_shared<VenuesOptions>();
    auto* v = app.add_subcommand("venues", "The venues, with the crowd a band would draw");
    v->add_option("--country", venues->country, "Only the venues of a country, by number or name");
    v->add_option("--band", venues->band, "Show the crowd this band would draw");
    v->callback([&ctx, venues] { runVenues(ctx, *venues); });

    auto gig = std::make_shared<GigOptions>();
    auto* b = app.add_subcommand("gig", "Book one of your bands to play a venue on a date");
    b->add_option("BAND", gig->band, "The band, by number or name")->required();
    b->add_option("--venue", gig->venue, "The venue, by number or name")->required();
    b->add_option("--date", gig->date, "YYYY-MM-DD, at least six weeks ahead")->required();
    b->add_option("--content", gig->content, "Production 0 (Extravagant) to 4 (Basic); 2 by default");
    b->add_option("--hospitality", gig->hospitality, "Hospitality 0 (Excessive) to 4 (None); 2 by default");
    b->add_option("--accommodation", gig->accommodation, "Beds 0 (Decadent) to 4 (Basic); 2 by default");
    b->callback([&ctx, gig] { runGig(ctx, *gig); });

    auto gigsBand = std::make_shared<std::string>();
    auto* l = app.add_subcommand("gigs", "A band's gigs: date, venue, crowd, performance and profit");
    l->add_option("BAND", *gigsBand, "The band, by number or name")->required();
    l->callback([&ctx, gigsBand] { runGigs(ctx, *gigsBand); });
    auto* cl = app.add_subcommand("ceremonies", "The award ceremonies: night, host country, attendance, last held");
    cl->callback([&ctx] { runCeremonies(ctx); });

    auto ceremonyKey = std::make_shared<std::string>();
    auto* cd = app.add_subcommand("ceremony", "A ceremony's night, country and each award's nominees and winner");
    cd->add_option("ID", *ceremonyKey, "The ceremony, by number or name")->required();
    cd->callback([&ctx, ceremonyKey] { runCeremony(ctx, *ceremonyKey); });
}

}  // namespace trovane::sim

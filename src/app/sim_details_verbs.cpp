// The verbs of the details screens: artist and venue (band is with scouting).
#include <cstdio>
#include <memory>
#include <string>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "floor/formats.h"
#include "live/venue_details.h"
#include "talent/artist_details.h"
#include "world/record_dump.h"
#include "world/record_store.h"

namespace trovane::sim {

namespace {

// A record by number or exact name, or a bad argument (status 2).
int16_t recordNamed(SimContext& ctx, Game& g, FileNo file, int32_t count, const char* what, const std::string& which) {
    int32_t n = 0;
    if (!which.empty() && which.find_first_not_of("0123456789") == std::string::npos && which.size() < 6) {
        n = std::stoi(which);
        if (n < 1 || n >= count) n = 0;
    } else {
        n = findRecordByName(g, file, which);
    }
    if (n == 0) {
        ctx.closeGame();
        throw SimError(kExitBadArgs, fmt::format("There is no {} {}", what, which));
    }
    return static_cast<int16_t>(n);
}

std::string figuresJson(const std::vector<FigureLine>& lines) {
    std::string out = "[";
    for (std::size_t i = 0; i < lines.size(); ++i)
        out += fmt::format("{}{{\"caption\":{},\"value\":{}}}", i ? "," : "", jsonQuote(lines[i].caption),
                           jsonQuote(lines[i].value));
    return out + "]";
}

std::string achievementsJson(const std::vector<AchievementLine>& lines) {
    std::string out = "[";
    for (std::size_t i = 0; i < lines.size(); ++i)
        out += fmt::format("{}{{\"date\":{},\"text\":{}}}", i ? "," : "", jsonQuote(isoDate(lines[i].date)),
                           jsonQuote(lines[i].text));
    return out + "]";
}

std::string artistText(const ArtistDetails& d) {
    std::string out = d.name + "\n";
    if (d.retired)
        out += d.retirementDate > 0 ? "Retired " + formatDate(d.retirementDate, "d/m/yyyy") + "\n" : "Retired\n";
    out += fmt::format("Born:        {}\nAge:         {}\nJob:         {}\nNationality: {}\nBand:        {}\n", d.born,
                       d.age, d.job, d.nationality, d.band.empty() ? "None" : d.band);
    for (const auto& f : d.feelings) out += "Feelings:    " + f + "\n";
    if (d.players) {
        out += fmt::format("Look:        {}\nImage:       {}\n", d.look.empty() ? "None" : d.look, d.imageRating);
        for (const auto& a : d.attributes) out += fmt::format("{:<13}{}\n", a.caption + ":", a.value);
    }
    if (!d.achievements.empty()) out += "Achievements:\n";
    for (const auto& a : d.achievements) out += "  " + formatDate(a.date, "d/m/yyyy") + "  " + a.text + "\n";
    return out;
}

std::string artistJson(const ArtistDetails& d) {
    std::string feelings = "[";
    for (std::size_t i = 0; i < d.feelings.size(); ++i) feelings += (i ? "," : "") + jsonQuote(d.feelings[i]);
    feelings += "]";
    std::string out = fmt::format(
        "{{\"id\":{},\"name\":{},\"born\":{},\"age\":{},\"job\":{},\"nationality\":{},\"band\":{},\"retired\":{},"
        "\"retirementDate\":{},\"feelings\":{}",
        d.id, jsonQuote(d.name), jsonQuote(d.born), d.age, jsonQuote(d.job), jsonQuote(d.nationality), d.bandId,
        d.retired ? "true" : "false", d.retirementDate > 0 ? jsonQuote(isoDate(d.retirementDate)) : "null", feelings);
    if (d.players)
        out += fmt::format(",\"look\":{},\"imageRating\":{},\"attributes\":{}", jsonQuote(d.look), d.imageRating,
                           figuresJson(d.attributes));
    return out + ",\"achievements\":" + achievementsJson(d.achievements) + "}";
}

std::string venueText(const VenueDetails& d) {
    std::string out = fmt::format("{}\nCity:     {}\nCountry:  {}\nCapacity: {}\nRating:   {}\nGigs:\n", d.name, d.city,
                                  d.country, formatNumber(d.capacity, "###,###,##0"), d.rating);
    if (d.gigs.empty()) out += "  None\n";
    for (const auto& gig : d.gigs)
        out += fmt::format("  {}  {}  {} ({}%)\n", formatDate(gig.date, "d/m/yyyy"), gig.headliner,
                           formatNumber(gig.attendance, "###,###,##0"), gig.quality);
    return out;
}

std::string venueJson(const VenueDetails& d) {
    std::string gigs = "[";
    for (std::size_t i = 0; i < d.gigs.size(); ++i)
        gigs += fmt::format("{}{{\"gig\":{},\"date\":{},\"headliner\":{},\"attendance\":{},\"quality\":{}}}",
                            i ? "," : "", d.gigs[i].gig, jsonQuote(isoDate(d.gigs[i].date)),
                            jsonQuote(d.gigs[i].headliner), d.gigs[i].attendance, d.gigs[i].quality);
    gigs += "]";
    return fmt::format("{{\"id\":{},\"name\":{},\"city\":{},\"country\":{},\"capacity\":{},\"rating\":{},\"gigs\":{}}}",
                       d.id, jsonQuote(d.name), jsonQuote(d.city), jsonQuote(d.country), d.capacity, d.rating, gigs);
}

}  // namespace

void addDetailsVerbs(CLI::App& app, SimContext& ctx) {
    auto artist = std::make_shared<std::string>();
    auto* a = app.add_subcommand("artist", "Show Artist Details' figures of an artist");
    a->add_option("ARTIST", *artist, "An artist by number or exact forename and surname")->required();
    a->callback([&ctx, artist] {
        Game& g = ctx.openGame();
        const int16_t n = recordNamed(ctx, g, FileNo::fileArtist, g.artist.recordCount(), "artist", *artist);
        const ArtistDetails d = artistDetails(g, n);
        std::printf("%s\n", ctx.json ? artistJson(d).c_str() : artistText(d).c_str());
        ctx.closeGame();
    });

    auto venue = std::make_shared<std::string>();
    auto* v = app.add_subcommand("venue", "Show a venue's card: where, how big, and its gigs");
    v->add_option("VENUE", *venue, "A venue by number or exact name")->required();
    v->callback([&ctx, venue] {
        Game& g = ctx.openGame();
        const int16_t n = recordNamed(ctx, g, FileNo::fileVenue, g.venue.recordCount(), "venue", *venue);
        const VenueDetails d = venueDetails(g, n);
        std::printf("%s\n", ctx.json ? venueJson(d).c_str() : venueText(d).c_str());
        ctx.closeGame();
    });
}

}  // namespace trovane::sim

// The verbs of scouting and signing: band, terms, offer, withdraw, scout, shortlist.
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "floor/formats.h"
#include "label/scouting.h"
#include "talent/band_details.h"
#include "talent/band_offers.h"
#include "world/record_dump.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane::sim {

namespace {

void fail(SimContext& ctx, int status, const std::string& why) {
    printError(ctx.json, why, status);
    ctx.exitCode = status;
}

// What the band verbs are given on the command line.
struct BandVerbOptions {
    std::string band;
    std::optional<int32_t> initial, additional;
    std::optional<int> options, months, royalty;
};

std::string money(Money m) { return fmt::format("{:.4f}", moneyToDouble(m)); }

// A band by record number or exact name, or 0 after telling why.
int16_t bandNamed(SimContext& ctx, Game& g, const std::string& which) {
    const int32_t n = recordNamed(g, FileNo::fileBand, which);
    if (n == 0) fail(ctx, kExitBadArgs, fmt::format("There is no band {}", which));
    return static_cast<int16_t>(n);
}

std::string detailsText(const BandDetails& d) {
    std::string out = fmt::format("{}\nStyle:      {}\nLabel:      {}\nFormed:     {}\nAge:        {}\n", d.name,
                                  d.style, d.label, d.formed, d.age);
    if (d.retired) out += "Retired\n";
    out += "Members:\n";
    for (const auto& m : d.members) out += fmt::format("  {} ({}, {})\n", m.name, m.job, m.age);
    out += fmt::format("Reputation: UK {} US {} Europe {} Oceania {} Rest of the world {}\n", d.reputation[0],
                       d.reputation[1], d.reputation[2], d.reputation[3], d.reputation[4]);
    if (d.asked) out += "Asks:       " + d.asked->demands + "\n";
    out += "Interested: ";
    for (std::size_t i = 0; i < d.interested.size(); ++i) out += (i ? ", " : "") + d.interested[i];
    out += "\n";
    if (d.players) {
        out += fmt::format("Ability:    {}\nEnergy:     {}\n", d.ability, d.energy);
        for (const auto& c : d.complaints) out += "Feelings:   " + c + "\n";
        for (const auto& a : d.attributes) out += fmt::format("{:<12}{}\n", a.caption + ":", a.value);
    }
    out += "Activity:   " + d.activity + "\n";
    if (d.announcedEnd > 0) out += "Ends:       " + formatDate(d.announcedEnd, "d/m/yyyy") + "\n";
    for (const auto& f : d.record) out += fmt::format("{:<20}{}\n", f.caption + ":", f.value);
    out += "Tours:\n";
    if (d.tours.empty()) out += "  None\n";
    for (const auto& t : d.tours) out += fmt::format("  {}  {}  {}\n", t.name, t.role, t.area);
    if (!d.achievements.empty()) out += "Achievements:\n";
    for (const auto& a : d.achievements) out += "  " + formatDate(a.date, "d/m/yyyy") + "  " + a.text + "\n";
    return out;
}

std::string detailsJson(const BandDetails& d) {
    std::string members = "[";
    for (std::size_t i = 0; i < d.members.size(); ++i)
        members += fmt::format("{}{{\"name\":{},\"job\":{},\"age\":{}}}", i ? "," : "", jsonQuote(d.members[i].name),
                               jsonQuote(d.members[i].job), d.members[i].age);
    members += "]";
    std::string interested = "[";
    for (std::size_t i = 0; i < d.interested.size(); ++i) interested += (i ? "," : "") + jsonQuote(d.interested[i]);
    interested += "]";
    std::string out = fmt::format(
        "{{\"id\":{},\"name\":{},\"style\":{},\"label\":{},\"formed\":{},\"age\":{},\"retired\":{},\"members\":{},"
        "\"reputation\":[{},{},{},{},{}],\"interested\":{}",
        d.id, jsonQuote(d.name), jsonQuote(d.style), jsonQuote(d.label), jsonQuote(d.formed), d.age,
        d.retired ? "true" : "false", members, d.reputation[0], d.reputation[1], d.reputation[2], d.reputation[3],
        d.reputation[4], interested);
    if (d.asked)
        out += fmt::format(
            ",\"asked\":{{\"initialAdvance\":{},\"additionalAdvance\":{},\"options\":{},\"months\":{},"
            "\"royalty\":{}}}",
            money(d.asked->initialAdvance), money(d.asked->additionalAdvance), d.asked->options, d.asked->months,
            d.asked->royalty);
    if (d.players) {
        std::string complaints = "[";
        for (std::size_t i = 0; i < d.complaints.size(); ++i) complaints += (i ? "," : "") + jsonQuote(d.complaints[i]);
        out += fmt::format(",\"ability\":{},\"energy\":{},\"feelings\":{}]", d.ability, d.energy, complaints);
        out += ",\"attributes\":{";
        for (std::size_t i = 0; i < d.attributes.size(); ++i)
            out += fmt::format("{}{}:{}", i ? "," : "", jsonQuote(d.attributes[i].caption), d.attributes[i].value);
        out += "}";
    }
    out += fmt::format(",\"activity\":{},\"announcedEnd\":{},\"bestShare\":{}", jsonQuote(d.activity),
                       d.announcedEnd > 0 ? jsonQuote(isoDate(d.announcedEnd)) : "null", jsonQuote(d.bestShare));
    out += ",\"record\":{";
    for (std::size_t i = 0; i < d.record.size(); ++i)
        out += fmt::format("{}{}:{}", i ? "," : "", jsonQuote(d.record[i].caption), jsonQuote(d.record[i].value));
    out += "},\"tours\":[";
    for (std::size_t i = 0; i < d.tours.size(); ++i)
        out += fmt::format("{}{{\"tour\":{},\"name\":{},\"role\":{},\"area\":{}}}", i ? "," : "", d.tours[i].tour,
                           jsonQuote(d.tours[i].name), jsonQuote(d.tours[i].role), jsonQuote(d.tours[i].area));
    out += "],\"achievements\":[";
    for (std::size_t i = 0; i < d.achievements.size(); ++i)
        out += fmt::format("{}{{\"date\":{},\"text\":{}}}", i ? "," : "", jsonQuote(isoDate(d.achievements[i].date)),
                           jsonQuote(d.achievements[i].text));
    return out + "]}";
}

// The panel of an unsigned act is there for scouting and the shortlist.
bool panelOpen(SimContext& ctx, Game& g, int16_t band) {
    std::string why = checkBandPanel(g, band);
    if (why.empty()) return true;
    fail(ctx, kExitRefused, why);
    return false;
}

}  // namespace

void addBandVerbs(CLI::App& app, SimContext& ctx) {
    auto bandOpts = std::make_shared<BandVerbOptions>();
    auto* band = app.add_subcommand("band", "Show Band Details' figures of a band");
    band->add_option("BAND", bandOpts->band, "A band by number or exact name")->required();
    band->callback([&ctx, bandOpts] {
        Game& g = ctx.openGame();
        if (int16_t b = bandNamed(ctx, g, bandOpts->band)) {
            BandDetails d = bandDetails(g, b);
            std::printf("%s\n", ctx.json ? detailsJson(d).c_str() : detailsText(d).c_str());
        }
        ctx.closeGame();
    });

    auto termsOpts = std::make_shared<BandVerbOptions>();
    auto* terms = app.add_subcommand("terms", "Show the terms a band asks");
    terms->add_option("BAND", termsOpts->band, "A band by number or exact name")->required();
    terms->callback([&ctx, termsOpts] {
        Game& g = ctx.openGame();
        if (int16_t b = bandNamed(ctx, g, termsOpts->band)) {
            g.band.read(b);
            const BandRecord r = g.band.rec;
            std::string demands = demandsText(g, b);
            if (ctx.json)
                std::printf(
                    "{\"band\":%d,\"initialAdvance\":%s,\"additionalAdvance\":%s,\"options\":%d,\"months\":%d,"
                    "\"royalty\":%d,\"demands\":%s}\n",
                    b, money(r.initialAdvance).c_str(), money(r.additionalAdvance).c_str(), r.additionalAdvanceCount,
                    r.optionLength, r.royaltyRate, jsonQuote(demands).c_str());
            else
                std::printf("%s\n", demands.c_str());
        }
        ctx.closeGame();
    });

    auto offerOpts = std::make_shared<BandVerbOptions>();
    auto* offer = app.add_subcommand("offer", "Offer a band a contract (frmBandContract's Ok)");
    offer->add_option("BAND", offerOpts->band, "A band by number or exact name")->required();
    offer->add_option("--initial", offerOpts->initial, "Initial advance, in the display currency");
    offer->add_option("--additional", offerOpts->additional, "Advance of each later option, in the display currency");
    offer->add_option("--options", offerOpts->options, "Further options, 1 to 5");
    offer->add_option("--months", offerOpts->months, "Months of an option, 12 or 18");
    offer->add_option("--royalty", offerOpts->royalty, "Royalty percent, 5 to 30");
    offer->callback([&ctx, offerOpts] {
        // The form's spinners cannot go past these; a script that does is told so.
        std::string bad;
        if (offerOpts->initial.value_or(0) < 0 || offerOpts->additional.value_or(0) < 0)
            bad = "An advance cannot be below 0";
        if (offerOpts->options && (*offerOpts->options < 1 || *offerOpts->options > 5)) bad = "--options is 1 to 5";
        if (offerOpts->months && *offerOpts->months != 12 && *offerOpts->months != 18) bad = "--months is 12 or 18";
        if (offerOpts->royalty && (*offerOpts->royalty < 5 || *offerOpts->royalty > 30)) bad = "--royalty is 5 to 30";
        if (!bad.empty()) return fail(ctx, kExitBadArgs, bad);
        Game& g = ctx.openGame();
        if (int16_t b = bandNamed(ctx, g, offerOpts->band)) {
            OfferTerms t = offerFormStart(g, b);
            t.initialAdvance = offerOpts->initial.value_or(t.initialAdvance);
            t.additionalAdvance = offerOpts->additional.value_or(t.additionalAdvance);
            t.options = offerOpts->options.value_or(t.options);
            t.months = offerOpts->months.value_or(t.months);
            t.royalty = offerOpts->royalty.value_or(t.royalty);
            if (std::string why = checkOffer(g, b, t); !why.empty()) {
                fail(ctx, kExitRefused, why);
            } else {
                OfferMade m = makeOffer(g, b, t);
                if (ctx.json)
                    std::printf("{\"offer\":%d,\"decisionDate\":\"%s\",\"joined\":%s}\n", m.offer,
                                isoDate(m.decisionDate).c_str(), m.joined ? "true" : "false");
                else
                    std::printf("Offer %d: the band decides on %s%s\n", m.offer,
                                formatDate(m.decisionDate, "dddd d/m/yyyy").c_str(),
                                m.joined ? ", with another label's offer" : "");
            }
        }
        ctx.closeGame();
    });

    auto withdrawOpts = std::make_shared<BandVerbOptions>();
    auto* withdraw = app.add_subcommand("withdraw", "Withdraw the player's offer to a band");
    withdraw->add_option("BAND", withdrawOpts->band, "A band by number or exact name")->required();
    withdraw->callback([&ctx, withdrawOpts] {
        Game& g = ctx.openGame();
        if (int16_t b = bandNamed(ctx, g, withdrawOpts->band)) {
            if (std::string why = checkWithdraw(g, b); !why.empty()) {
                fail(ctx, kExitRefused, why);
            } else {
                withdrawOffer(g, b);
                std::printf(ctx.json ? "{\"withdrawn\":true}\n" : "Offer withdrawn\n");
            }
        }
        ctx.closeGame();
    });

    auto scoutOpts = std::make_shared<BandVerbOptions>();
    auto* scout = app.add_subcommand("scout", "Ask A&R for a week-long report on a band");
    scout->add_option("BAND", scoutOpts->band, "A band by number or exact name")->required();
    scout->callback([&ctx, scoutOpts] {
        Game& g = ctx.openGame();
        if (int16_t b = bandNamed(ctx, g, scoutOpts->band); b && panelOpen(ctx, g, b)) {
            double date = scoutBand(g, b);
            if (ctx.json)
                std::printf("{\"report\":\"%s\"}\n", isoDate(date).c_str());
            else
                std::printf("The report arrives on %s\n", formatDate(date, "dddd d/m/yyyy").c_str());
        }
        ctx.closeGame();
    });

    auto shortlistOpts = std::make_shared<BandVerbOptions>();
    auto* shortlist = app.add_subcommand("shortlist", "Show the player's shortlist, or add or remove a band");
    shortlist->add_option("BAND", shortlistOpts->band, "A band by number or exact name");
    shortlist->callback([&ctx, shortlistOpts] {
        Game& g = ctx.openGame();
        if (shortlistOpts->band.empty()) {
            std::string json = "[";
            for (int16_t b : playerShortlist(g)) {
                BandDetails d = bandDetails(g, b);
                g.band.read(b);
                if (ctx.json)
                    json += fmt::format("{}{{\"id\":{},\"name\":{},\"style\":{},\"advance\":{},\"label\":{}}}",
                                        json.size() > 1 ? "," : "", b, jsonQuote(d.name), jsonQuote(d.style),
                                        money(g.band->initialAdvance), jsonQuote(d.label));
                else
                    fmt::print("{:5}  {:<32} {:<20} {:>14}  {}\n", b, d.name.c_str(), d.style.c_str(),
                               formatMoney(g, g.band->initialAdvance, "###,###,##0").c_str(), d.label.c_str());
            }
            if (ctx.json) std::printf("%s]\n", json.c_str());
        } else if (int16_t b = bandNamed(ctx, g, shortlistOpts->band); b && panelOpen(ctx, g, b)) {
            bool added = toggleShortlist(g, b);
            if (ctx.json)
                std::printf("{\"shortlisted\":%s}\n", added ? "true" : "false");
            else
                std::printf(added ? "Added to the shortlist\n" : "Removed from the shortlist\n");
        }
        ctx.closeGame();
    });
}

}  // namespace trovane::sim

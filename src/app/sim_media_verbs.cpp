// The verbs of the media: media (an act's offers), promote (book an
// appearance) and appearances (the booked and played ones).
#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "floor/formats.h"
#include "live/media_promotion.h"
#include "world/dates.h"
#include "world/record_dump.h"
#include "world/strings.h"

namespace trovane::sim {

namespace {

const char* const kTerritories[] = {"uk", "us", "europe", "oceania", "other"};
const char* const kKindWords[] = {"interview", "live", "both", "small", "large"};

int indexOf(const char* const* words, int count, const std::string& word) {
    for (int i = 0; i < count; ++i)
        if (word == words[i]) return i;
    return -1;
}

int16_t bandOf(Game& g, const std::string& key) { return static_cast<int16_t>(recordNamed(g, FileNo::fileBand, key)); }
int16_t outletOf(Game& g, const std::string& key) {
    return static_cast<int16_t>(recordNamed(g, FileNo::fileMedia, key));
}

int16_t requireBand(SimContext& ctx, Game& g, const std::string& key) {
    int16_t band = bandOf(g, key);
    if (band == 0) {
        ctx.closeGame();
        throw SimError(kExitBadArgs, "There is no band " + key);
    }
    return band;
}

void runMedia(SimContext& ctx, const std::string& bandKey, const std::string& territoryWord) {
    int territory = indexOf(kTerritories, 5, territoryWord);
    if (territory < 0) throw SimError(kExitBadArgs, "The territory is one of uk, us, europe, oceania, other");
    Game& g = ctx.openGame();
    int16_t band = requireBand(ctx, g, bandKey);
    g.band.read(band);
    std::string out;
    for (const MediaOffer& o : findMediaOffers(g, territory)) {
        g.media.read(o.media);
        std::string name = trim(g.media->mediaName.value), type = mediaTypeName(g.media->mediaType),
                    kind = mediaKindName(o.kind);
        if (ctx.json)
            out += fmt::format("{}{{\"media\":{},\"name\":{},\"type\":{},\"kind\":{},\"value\":{}}}",
                               out.empty() ? "" : ",", o.media, jsonQuote(name), jsonQuote(type), jsonQuote(kind),
                               o.value);
        else
            fmt::print("{:5}  {:<40} {:<11} {:<28} {:4}\n", o.media, name.c_str(), type.c_str(), kind.c_str(), o.value);
    }
    if (ctx.json) std::printf("[%s]\n", out.c_str());
    ctx.closeGame();
}

struct PromoteOptions {
    std::string band, media, kind, date;
};

void runPromote(SimContext& ctx, const PromoteOptions& o) {
    int kind = indexOf(kKindWords, 5, o.kind);
    if (kind < 0) throw SimError(kExitBadArgs, "The kind is one of interview, live, both, small, large");
    std::optional<double> date = parseIsoDate(o.date);
    if (!date) throw SimError(kExitBadArgs, o.date + " is not a date of the form YYYY-MM-DD");
    Game& g = ctx.openGame();
    int16_t band = requireBand(ctx, g, o.band);
    int16_t media = outletOf(g, o.media);
    if (media == 0) {
        ctx.closeGame();
        throw SimError(kExitBadArgs, "There is no outlet " + o.media);
    }
    g.band.read(band);
    std::string refusal = checkAppearance(g, media, kind, *date);
    if (!refusal.empty()) {
        ctx.refuse(refusal);
        ctx.closeGame();
        return;
    }
    g.band.read(band);
    int32_t entry = bookAppearance(g, media, *date, kind);
    g.media.read(media);
    g.band.read(band);
    std::string outlet = trim(g.media->mediaName.value);
    if (ctx.json)
        std::printf("{\"entry\":%d,\"date\":\"%s\",\"band\":%d,\"media\":%d,\"kind\":%s}\n", entry,
                    isoDate(*date).c_str(), band, media, jsonQuote(mediaKindName(kind)).c_str());
    else
        std::printf("Entry %d: %s, %s in %s on %s.\n", entry, trim(g.band->name.value).c_str(),
                    mediaKindName(kind).c_str(), outlet.c_str(), formatDate(*date, "dddd d/m/yyyy").c_str());
    ctx.closeGame();
}

void runAppearances(SimContext& ctx, const std::string& bandKey) {
    Game& g = ctx.openGame();
    int16_t only = bandKey.empty() ? 0 : requireBand(ctx, g, bandKey);
    std::string out;
    for (int32_t n = 1; n < g.schedule.recordCount(); ++n) {
        g.schedule.read(n);
        const ScheduleRecord e = g.schedule.rec;
        if (e.type != 17 || (only != 0 && e.band != only)) continue;
        std::string act = g.band.readIfPresent(e.band) ? trim(g.band->name.value) : "";
        std::string outlet = g.media.readIfPresent(e.media) ? trim(g.media->mediaName.value) : "";
        std::string label = g.label.readIfPresent(e.label) ? trim(g.label->name.value) : "";
        bool played = e.mediaFlag != 0;
        double effect = e.value / 100.0;
        if (ctx.json) {
            out += fmt::format("{}{{\"entry\":{},\"date\":\"{}\",\"band\":{},\"media\":{},\"kind\":{},\"label\":{}",
                               out.empty() ? "" : ",", n, isoDate(e.date), jsonQuote(act), jsonQuote(outlet),
                               jsonQuote(mediaKindName(e.mediaOption)), jsonQuote(label));
            out += played ? fmt::format(",\"effect\":{:.2f}}}", effect) : "}";
        } else {
            // The label is padded only where the effect follows it, so no line ends in blanks.
            std::string line = fmt::format("{:6}  {}  {:<30} {:<34} {:<28} {:<24}", n, isoDate(e.date), act, outlet,
                                           mediaKindName(e.mediaOption), label);
            if (played)
                line += fmt::format(" {:+.2f}", effect);
            else
                line.erase(line.find_last_not_of(' ') + 1);
            std::printf("%s\n", line.c_str());
        }
    }
    if (ctx.json) std::printf("[%s]\n", out.c_str());
    ctx.closeGame();
}

}  // namespace

void addMediaVerbs(CLI::App& app, SimContext& ctx) {
    auto* media = app.add_subcommand("media", "The outlets that would have an act, best first");
    auto mediaBand = std::make_shared<std::string>();
    auto territory = std::make_shared<std::string>();
    media->add_option("BAND", *mediaBand, "The act, by number or name")->required();
    media->add_option("--territory", *territory, "uk, us, europe, oceania or other")->required();
    media->callback([&ctx, mediaBand, territory] { runMedia(ctx, *mediaBand, *territory); });

    auto* promote = app.add_subcommand("promote", "Book an appearance in the media for one of your acts");
    auto p = std::make_shared<PromoteOptions>();
    promote->add_option("BAND", p->band, "The act, by number or name")->required();
    promote->add_option("--media", p->media, "The outlet, by number or name")->required();
    promote->add_option("--kind", p->kind, "interview, live, both, small or large")->required();
    promote->add_option("--date", p->date, "The day of issue, YYYY-MM-DD")->required();
    promote->callback([&ctx, p] { runPromote(ctx, *p); });

    auto* appearances = app.add_subcommand("appearances", "Appearances booked in the media, and their effect");
    auto only = std::make_shared<std::string>();
    appearances->add_option("--band", *only, "Only this act");
    appearances->callback([&ctx, only] { runAppearances(ctx, *only); });
}

}  // namespace trovane::sim

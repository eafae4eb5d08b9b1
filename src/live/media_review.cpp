// The player's review of an appearance in the media.
#include <utility>

#include "floor/formats.h"
#include "floor/grammar.h"
#include "live/media_promotion.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

// 0 up to 60, 1 up to 80, 2 up to 94, 3 above: the bands of a night's review.
int verdictBand(int rating) {
    if (rating <= 60) return 0;
    if (rating <= 80) return 1;
    if (rating <= 94) return 2;
    return 3;
}

// Where the appearance ran: "in the 5 March 2005 edition of X newspaper" and so on.
std::string outletPhrase(const MediaRecord& m, double date) {
    const std::string name = trim(m.mediaName.value);
    const std::string when = formatDate(date, "d mmmm yyyy");
    switch (m.mediaType) {
    case 0: return "in" + std::string(" the ") + when + " edition of " + name + " newspaper";
    case 1: return "in the " + when + " issue of " + name + " magazine";
    case 2: return "on" + std::string(" the ") + when + " broadcast of " + name + " radio show";
    default: return "on the " + when + " broadcast of " + name + " TV show";
    }
}

// What the audience did with it: read, heard or watched.
std::string audienceVerb(const MediaRecord& m) {
    if (m.mediaType == 2) return "heard";
    if (m.mediaType == 3) return "watched";
    return "read";
}

std::string outletKind(const MediaRecord& m) {
    static const char* const kKinds[] = {"newspaper", "magazine", "radio show", "TV show"};
    return m.mediaType < 4 ? kKinds[m.mediaType] : "show";
}

// What the act played: its latest single or album, or its set.
std::string subject(Game& g) {
    const BandRecord band = g.band.rec;
    int16_t latest = 0;
    double when = 0;
    for (int32_t n = 1; n < g.disc.recordCount(); ++n) {
        g.disc.read(n);
        if (g.disc->band != band.id) continue;
        for (double d : g.disc->releaseDate)
            if (d > kNoDate && d <= g.gameDate && d >= when) {
                when = d;
                latest = g.disc->id;
            }
    }
    g.band.rec = band;
    const std::string their = grammarWord(g, 5, false);
    if (latest == 0) return "a few songs from " + their + " live set.";
    g.disc.read(latest);
    if (g.disc->isSingle != 0) return "the " + trim(band.name.value) + "'s new single.";
    return "a track from " + their + " latest album.";
}

std::string interviewVerdict(const MediaRecord& m, const std::string& band, int rating) {
    static const char* const kPieces[] = {
        " seemed completely uninterested throughout and despite the interviewer's best efforts the whole thing was a "
        "little painful to watch.",
        " was thoroughly lacking in substance, though it had one or two moments worth remembering.",
        " was a huge success.",
        " in particular was thoroughly entertaining throughout the course of the interview.",
    };
    return "The " + outletKind(m) + " featured an interview with the " + band + " which" + kPieces[verdictBand(rating)];
}

std::string liveVerdict(Game& g, const MediaRecord& m, int rating) {
    const std::string verb = audienceVerb(m);
    const std::string them = grammarWord(g, 4, false);
    switch (verdictBand(rating)) {
    case 0:
        return "It was a performance best forgotten, and few who " + verb +
               " it will be rushing out to buy the record.";
    case 1: return "It was a solid if unspectacular performance that will have done no harm.";
    case 2: return "It was a fine performance that will have won " + them + " a good few new fans.";
    default:
        return "It was a stunning performance, and everyone who " + verb + " it will be talking about it for weeks.";
    }
}

std::string articleVerdict(Game& g, const MediaRecord& m, int rating) {
    const std::string their = grammarWord(g, 5, false);
    switch (verdictBand(rating)) {
    case 0: return "Readers found it thoroughly lacking in substance, and it did little for " + their + " standing.";
    case 1: return "It made for a pleasant enough " + outletKind(m) + " piece, if nothing out of the ordinary.";
    case 2: return "It was a lively read that will have done " + their + " profile a lot of good.";
    default: return "It was a superb piece, the talk of the " + outletKind(m) + "'s readers for days afterwards.";
    }
}

}  // namespace

std::pair<std::string, std::string> appearanceReview(Game& g, int kind, int rating, double date) {
    const MediaRecord m = g.media.rec;
    const std::string band = trim(g.band->name.value);
    const std::string outlet = trim(m.mediaName.value);
    const std::string where = outletPhrase(m, date);
    std::string text;
    if (kind == smallArticle || kind == largeArticle) {
        text = band + " featured in a " + (kind == smallArticle ? "small" : "large") + " article " + where + ". " +
               articleVerdict(g, m, rating);
        return {band + " in " + outlet, text};
    }
    if (kind == interviewKind || kind == bothKind) text = interviewVerdict(m, band, rating);
    if (kind == liveKind || kind == bothKind) {
        if (!text.empty()) text += " ";
        text += band + " performed " + subject(g) + " " + liveVerdict(g, m, rating);
    }
    return {band + " on " + outlet, band + " appeared " + where + ". " + text};
}

}  // namespace trovane

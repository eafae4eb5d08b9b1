#include "live/media_promotion.h"

#include <algorithm>
#include <cmath>

#include "floor/formats.h"
#include "floor/grammar.h"
#include "floor/news_post.h"
#include "label/scouting.h"
#include "live/gigs.h"
#include "schedule/band_calendar.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "talent/band_functions.h"
#include "talent/reputation.h"
#include "world/band_lookups.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/numbers.h"
#include "world/record_bytes.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kGlobalReach = 2;
constexpr int kOther = 4;
constexpr int kAppearanceReason = 17;
constexpr int kSixWeeks = 42;

double spread(Game& g, double v) {
    double r1 = g.rng.draw();
    double r2 = g.rng.draw();
    return v + intFloor(v / 10 * r1) - intFloor(v / 10 * r2);
}

int held(double v) { return static_cast<int>(std::clamp(v, 0.0, 100.0)); }

// The members' mean energy; the band buffer is kept.
int meanEnergy(Game& g) {
    // The energies are read in the members' bytes; the artist buffer is left
    // as reading each member in turn leaves it.
    static const std::size_t kEnergy = offsetIn<ArtistRecord>("energy");
    const BandRecord& band = g.band.rec;
    int members = std::min<int>(band.memberCount, static_cast<int>(band.members.size()));
    double sum = 0;
    int counted = 0;
    int16_t lastAsked = 0;
    for (int i = 0; i < members; ++i) {
        int16_t who = band.members[static_cast<std::size_t>(i)];
        if (who < 1) continue;
        lastAsked = who;
        if (who >= g.artist.recordCount()) continue;
        sum += fieldAt<decltype(ArtistRecord::energy)>(g.artist.bytesOf(who), kEnergy);
        ++counted;
    }
    if (lastAsked > 0) g.artist.readIfPresent(lastAsked);
    return counted == 0 ? 0 : static_cast<int>(roundHalfEven(sum / counted));
}

// A tired band loses at most a third of a result.
int tired(int v, int avg) {
    double third = roundHalfEven(roundHalfEven(v / 3.0 * avg) / 100);
    return static_cast<int>(roundHalfEven(2.0 * v / 3 + third));
}

bool isBroadcast(const MediaRecord& m) { return m.mediaType == 2 || m.mediaType == 3; }

// The skill shown in an appearance of the kind, with fresh draws.
int skillFor(Game& g, int kind) {
    switch (kind) {
    case liveKind: return liveRating(g);
    case bothKind: {
        int live = liveRating(g);
        int talk = interviewRating(g);
        return roundTo<int>((live + talk) / 2.0);
    }
    default: return interviewRating(g);
    }
}

// The minimum and value of a kind at the outlet; both 0 when it does not take it.
std::pair<int, int> kindTerms(const MediaRecord& m, int kind) {
    bool broadcast = isBroadcast(m);
    switch (kind) {
    case interviewKind: return broadcast ? std::pair{m.interviewMinimum + 0, m.interviewValue + 0} : std::pair{0, 0};
    case liveKind: return broadcast ? std::pair{m.liveMinimum + 0, m.liveValue + 0} : std::pair{0, 0};
    case bothKind:
        if (!broadcast || m.interviewMinimum == 0 || m.liveMinimum == 0 || m.bothValue == 0) return {0, 0};
        return {std::max<int>(m.interviewMinimum, m.liveMinimum), m.bothValue};
    case smallArticle: return broadcast ? std::pair{0, 0} : std::pair{m.smallMinimum + 0, m.smallValue + 0};
    case largeArticle: return broadcast ? std::pair{0, 0} : std::pair{m.largeMinimum + 0, m.largeValue + 0};
    default: return {0, 0};
    }
}

bool offered(const MediaRecord& m, int kind, int rep) {
    auto [minimum, value] = kindTerms(m, kind);
    return minimum > 0 && rep >= minimum;
}

// The n-th (1 to 4) weekday (Sunday 1) of the month.
double nthWeekday(int year, unsigned month, int weekday, int n) {
    double first = serialFromCivil(year, month, 1);
    int offset = ((weekday - weekdayOf(first)) % 7 + 7) % 7;
    return first + offset + 7.0 * (n - 1);
}

// The annual issue on or after `today`: this year's date, or next year's when it is past.
double nextAnnualIssue(const MediaRecord& m, double today) {
    int year = yearOf(today);
    auto month = std::clamp<unsigned>(m.issueMonth, 1, 12);
    auto day = std::clamp<unsigned>(m.issueDay, 1, daysInMonth(year, month));
    double date = serialFromCivil(year, month, day);
    if (date < today)
        date = serialFromCivil(year + 1, month, std::clamp<unsigned>(m.issueDay, 1, daysInMonth(year + 1, month)));
    return date;
}

const std::size_t kDiscId = offsetIn<DiscRecord>("id");
const std::size_t kDiscReleaseDate = offsetIn<DiscRecord>("releaseDate");
const std::size_t kMediaReach = offsetIn<MediaRecord>("reach");
const std::size_t kMediaCountry = offsetIn<MediaRecord>("country");

// The band's latest disc released in the territory by today, 0 when none.
// Only the band's own discs are looked at, from their bytes; when none is
// found the disc buffer is left at the table's last record, as a walk of
// every disc leaves it (one found is read by the caller).
int16_t latestDiscIn(Game& g, int16_t band, int territory) {
    int16_t best = 0;
    double when = 0;
    const std::size_t at = kDiscReleaseDate + 8 * static_cast<std::size_t>(territory);
    for (int32_t n : discsOfBand(g, band)) {
        const auto bytes = g.disc.bytesOf(n);
        const auto d = fieldAt<double>(bytes, at);
        if (d <= kNoDate || d > g.gameDate || d < when) continue;
        when = d;
        best = fieldAt<int16_t>(bytes, kDiscId);
    }
    if (best == 0 && g.disc.recordCount() > 1) g.disc.read(g.disc.recordCount() - 1);
    return best;
}

// The territory of outlet n as mediaTerritory finds it, from the outlet's and
// its country's bytes; the market of each country is worked out once.
int territoryOfOutlet(Game& g, int32_t n, std::vector<int>& marketOf) {
    const auto bytes = g.media.bytesOf(n);
    if (fieldAt<uint8_t>(bytes, kMediaReach) == kGlobalReach) return kOther;
    const uint8_t country = fieldAt<uint8_t>(bytes, kMediaCountry);
    if (country < 1 || country >= g.country.recordCount()) return kOther;
    if (marketOf.empty()) marketOf.assign(static_cast<std::size_t>(g.country.recordCount()), -1);
    int& market = marketOf[country];
    if (market < 0) {
        const CountryRecord held = g.country.rec;
        decodeRecord(g.country.bytesOf(country).data(), g.country.rec);
        market = venueMarket(g);
        g.country.rec = held;
    }
    return market;
}

}  // namespace

std::string mediaKindName(int kind) {
    static const char* const kNames[] = {"Interview", "Live Performance", "Interview & Live Performance",
                                         "Small Article", "Large Article"};
    return kind >= 0 && kind < 5 ? kNames[kind] : "";
}

std::string mediaTypeName(int mediaType) {
    static const char* const kNames[] = {"Newspaper", "Magazine", "Radio Show", "TV Show"};
    return mediaType >= 0 && mediaType < 4 ? kNames[mediaType] : "";
}

int mediaTerritory(Game& g) {
    if (g.media->reach == kGlobalReach) return kOther;
    if (!g.country.readIfPresent(g.media->country)) return kOther;
    return venueMarket(g);
}

int mediaReputation(Game& g) {
    if (g.media->reach == kGlobalReach) return bandRating(g);
    return g.band->reputation[static_cast<std::size_t>(mediaTerritory(g))];
}

bool mediaOpenTo(Game& g) {
    const auto& m = g.media.rec;
    int controversy = g.band->controversy;
    if (controversy < m.minControversy || controversy > m.maxControversy) return false;
    return m.mediaStyle == 0 || stylesAssociated(g, m.mediaStyle, g.band->style);
}

int liveRating(Game& g) {
    const BandRecord band = g.band.rec;
    double sing = band.live > 70 ? band.live : band.ability;
    int result = held(spread(g, sing));
    if (g.media->mediaType == 3 && g.style.readIfPresent(band.style)) {
        double both = g.style->singingWeight + g.style->dancingWeight;
        double ws = both > 0 ? roundHalfEven(g.style->singingWeight * 100 / both) : 100;
        double wd = both > 0 ? roundHalfEven(g.style->dancingWeight * 100 / both) : 0;
        int dance = held(spread(g, band.dancing));
        result = held(roundHalfEven((result * ws + dance * wd) / 100));
    }
    return tired(result, meanEnergy(g));
}

int interviewRating(Game& g) {
    double c = g.band->controversy;
    return tired(held(spread(g, c)), meanEnergy(g));
}

float appearanceEffect(float skill, float kindValue, float rep) {
    float r = rep < 1.0f ? 1.0f : rep;
    float ratio = skill / r;
    float q = ratio * ratio * ratio;
    float up = kindValue * q;
    float down = -(100.0f - kindValue) * q;
    float effect = (down * 65.0f + up * 35.0f) / 10000.0f;
    return std::clamp(effect, -20.0f, 20.0f);
}

MediaOffer bestMediaOffer(Game& g) {
    MediaOffer best{.media = g.media->mediaNumber};
    if (!mediaOpenTo(g)) return best;
    const MediaRecord m = g.media.rec;
    int rep = mediaReputation(g);
    for (int kind = interviewKind; kind <= largeArticle; ++kind) {
        if (!offered(m, kind, rep)) continue;
        int skill = skillFor(g, kind);
        g.media.rec = m;
        int value = roundTo<int>(10.0 * appearanceEffect(static_cast<float>(skill),
                                                         static_cast<float>(kindTerms(m, kind).second),
                                                         static_cast<float>(rep)));
        if (value > best.value) {
            best.value = value;
            best.kind = static_cast<uint8_t>(kind);
        }
    }
    return best;
}

std::vector<MediaOffer> findMediaOffers(Game& g, int territory) {
    std::vector<MediaOffer> out;
    std::vector<int> marketOf;
    const int32_t outlets = g.media.recordCount();
    for (int32_t n = 1; n < outlets; ++n) {
        // Outlets of other territories are passed over on their bytes; the
        // last is read as a walk reading each would leave the buffers.
        if (territoryOfOutlet(g, n, marketOf) != territory && n + 1 < outlets) continue;
        g.media.read(n);
        if (mediaTerritory(g) != territory) continue;
        MediaOffer o = bestMediaOffer(g);
        if (o.value > 0) out.push_back(o);
    }
    // The country buffer holds the country of the last outlet whose country was read.
    for (int32_t n = outlets - 1; n >= 1; --n) {
        const auto bytes = g.media.bytesOf(n);
        if (fieldAt<uint8_t>(bytes, kMediaReach) == kGlobalReach) continue;
        g.country.readIfPresent(fieldAt<uint8_t>(bytes, kMediaCountry));
        break;
    }
    std::stable_sort(out.begin(), out.end(),
                     [](const MediaOffer& a, const MediaOffer& b) { return a.value > b.value; });
    return out;
}

bool isIssueDay(const MediaRecord& m, double date) {
    switch (m.frequency) {
    case 0: return true;
    case 1: {
        int mondayFirst = (weekdayOf(date) + 5) % 7;
        return m.airDay[static_cast<std::size_t>(mondayFirst)] != 0;
    }
    case 2: {
        if (m.issueMonth < 1 || m.issueMonth > 7 || m.issueWeek < 1 || m.issueWeek > 4) return false;
        return date == nthWeekday(yearOf(date), monthOf(date), m.issueMonth, m.issueWeek);
    }
    case 3: return monthOf(date) == m.issueMonth && dayOf(date) == m.issueDay;
    default: return false;
    }
}

std::vector<double> freeIssueDays(Game& g, const MediaRecord& m, double today, int days) {
    std::vector<double> out;
    const BandRecord band = g.band.rec;
    double annual = m.frequency == 3 ? nextAnnualIssue(m, today + 1) : 0;
    for (double d = today + 1; d <= today + days; ++d) {
        if (!isIssueDay(m, d)) continue;
        if (m.frequency == 3 && (d != annual || d > today + kSixWeeks)) continue;
        g.band.rec = band;
        if (bandEngagement(g, 1, d) == 0) out.push_back(d);
    }
    g.band.rec = band;
    return out;
}

std::string checkAppearance(Game& g, int16_t media, int kind, double date) {
    const BandRecord band = g.band.rec;
    if (band.label != g.player.playerLabel || band.label < 1) return trim(band.name.value) + " is not signed to you.";
    if (band.retired != 0) return trim(band.name.value) + " has retired.";
    if (!g.media.readIfPresent(media)) return "There is no such outlet.";
    const MediaRecord m = g.media.rec;
    if (!mediaOpenTo(g) || !offered(m, kind, mediaReputation(g)))
        return trim(m.mediaName.value) + " is not offering " + trim(band.name.value) + " " +
               (kind == interviewKind || kind == bothKind ? "an " : "a ") + mediaKindName(kind) + ".";
    if (date <= g.gameDate) return "The appearance must be booked for a day after today.";
    bool annualTooFar = m.frequency == 3 && date > g.gameDate + kSixWeeks;
    if (!isIssueDay(m, date) || annualTooFar)
        return trim(m.mediaName.value) + " does not come out on " + formatDate(date, "d/m/yyyy") + ".";
    g.band.rec = band;
    if (bandEngagement(g, 1, date) != 0) {
        g.band.rec = band;
        return trim(band.name.value) + " " + grammarWord(g, 0, false) + " busy on " + formatDate(date, "d/m/yyyy") +
               ".";
    }
    g.band.rec = band;
    g.media.rec = m;
    return {};
}

int32_t bookAppearance(Game& g, int16_t media, double date, int kind) {
    ScheduleRecord e{};
    e.type = static_cast<uint8_t>(ScheduleType::mediaAppearance);
    e.date = date;
    e.band = g.band->id;
    e.label = g.band->label;
    e.media = media;
    e.mediaOption = static_cast<uint8_t>(kind);
    std::vector<int32_t> ids = addSchedules(g, {e});
    return ids.empty() ? 0 : ids.front();
}

std::string mediaConfirmText(const std::string& band, const std::string& outlet, int kind, double date) {
    static const char* const kPhrases[] = {
        " to be the subject of an interview on ",
        " to perform live on ",
        " to do both an interview and a live performance on ",
        " to appear in a small article in ",
        " to appear in a large article in ",
    };
    const char* phrase = kind >= 0 && kind < 5 ? kPhrases[kind] : kPhrases[0];
    return "You have selected " + band + phrase + outlet + " on " + formatDate(date, "d/m/yyyy") + " confirm?";
}

void performAppearance(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (!g.band.readIfPresent(entry.band) || !g.media.readIfPresent(entry.media)) return;
    if (g.band->retired != 0) return;
    const MediaRecord m = g.media.rec;
    const int16_t band = g.band->id;
    const int kind = entry.mediaOption;
    const int rep = mediaReputation(g);
    const int skill = skillFor(g, kind);
    const float effect = appearanceEffect(static_cast<float>(skill), static_cast<float>(kindTerms(m, kind).second),
                                          static_cast<float>(rep));
    const auto hype = static_cast<int16_t>(std::clamp(roundTo<int>(effect * 10.0), -100, 100));
    const int moved = roundTo<int>(static_cast<double>(effect));
    g.media.rec = m;
    const int home = mediaTerritory(g);
    for (int t = 0; t < 5; ++t) {
        if (m.reach != kGlobalReach && t != home) continue;
        g.band.read(band);
        changeHype(g, hype, t, kAppearanceReason);
        if (int16_t disc = latestDiscIn(g, band, t); disc > 0) {
            g.disc.read(disc);
            auto& p = g.disc->promotion[static_cast<std::size_t>(t)];
            p = static_cast<uint8_t>(std::clamp(p + moved, 1, 100));
            g.disc.write();
        }
    }
    g.schedule.rec = entry;
    g.schedule->value = roundTo<int32_t>(effect * 100.0);
    g.schedule->mediaFlag = 1;
    g.schedule.write();
    g.band.read(band);
    g.media.rec = m;
    if (g.band->label > 0 && g.band->label == g.player.playerLabel) {
        auto [title, text] = appearanceReview(g, kind, skill, entry.date);
        postNews(g, {.date = g.gameDate, .title = title, .text = text});
    }
    g.schedule.rec = entry;
}

}  // namespace trovane

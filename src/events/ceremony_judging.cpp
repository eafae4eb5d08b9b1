#include "events/ceremony_judging.h"

#include <algorithm>

#include "label/scouting.h"
#include "live/gigs.h"
#include "world/game.h"
#include "world/numbers.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kOriginUnitedKingdom = -2;
constexpr int kOriginEurope = -3;
constexpr int kOriginOutsideUnitedKingdom = -4;

bool homeNation(const std::string& name) {
    return name == "England" || name == "Scotland" || name == "Wales" || name == "Northern Ireland";
}

// The award in `a`; the host market in `market`; the day of judging.
struct Judging {
    AwardRecord a;
    int market = 0;
    double today = 0;
};

bool eligible(const Judging& j, const ArtistRecord& artist) {
    if (j.a.genderRule == 1 && artist.male == kFalse) return false;
    if (j.a.genderRule == 2 && artist.male == kTrue) return false;
    if (j.a.ageClass != 0 && j.a.ageClass != artist.age) return false;
    return true;
}

bool within(int v, const std::array<uint8_t, 2>& range) { return v >= range[0] && v <= range[1]; }

// An act's origin: formedIn is a city when formedInCity is set, else a country.
bool originPasses(Game& g, const Judging& j, const BandRecord& band) {
    if (j.a.originRule == 0) return true;
    int country = band.formedIn;
    if (band.formedInCity != 0) {
        if (!g.city.readIfPresent(band.formedIn)) return false;
        country = g.city->country;
    }
    if (!g.country.readIfPresent(country)) return false;
    std::string name = trim(g.country->name.value);
    switch (j.a.originRule) {
    case kOriginUnitedKingdom: return homeNation(name);
    case kOriginEurope: return trim(g.country->region.value) == "E";
    case kOriginOutsideUnitedKingdom: return !homeNation(name);
    default: return g.country->id == j.a.originRule;
    }
}

bool sizePasses(const Judging& j, int members) {
    switch (j.a.sizeRule) {
    case 1: return members == 1;
    case 2: return members >= 2;
    case 3: return members == 2;
    default: return true;
    }
}

bool styleFits(Game& g, const Judging& j, int style) {
    return j.a.styleRule == 0 || stylesAssociated(g, j.a.styleRule, style);
}

// Every member of the band in the band buffer passes eligible().
bool membersEligible(Game& g, const Judging& j) {
    const BandRecord band = g.band.rec;
    int n = std::min<int>(band.memberCount, static_cast<int>(band.members.size()));
    for (int i = 0; i < n; ++i) {
        if (!g.artist.readIfPresent(band.members[static_cast<std::size_t>(i)])) continue;
        if (!eligible(j, g.artist.rec)) return false;
    }
    return true;
}

void judgeArtists(Game& g, const Judging& j, NomineeList& list) {
    for (int32_t n = 1; n < g.artist.recordCount(); ++n) {
        g.artist.read(n);
        const ArtistRecord artist = g.artist.rec;
        if (artist.retired != kFalse) continue;
        int h = artist.reputation[static_cast<std::size_t>(j.market)];
        if (artist.band > 0 && g.band.readIfPresent(artist.band)) {
            if (g.band->retired != kFalse) continue;
            h = g.band->reputation[static_cast<std::size_t>(j.market)];
        }
        if (!styleFits(g, j, artist.style) || !within(artist.controversy, j.a.controversyRange) || !eligible(j, artist))
            continue;
        int figure = j.a.basis == 2 ? artist.charisma : j.a.basis == 5 ? artist.imageRating : artist.ability;
        insertNominee(list, mix(j.a.weight, figure, h), static_cast<int16_t>(n),
                      trim(artist.forename.value) + " " + trim(artist.surname.value));
    }
}

void judgeBands(Game& g, const Judging& j, NomineeList& list) {
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        g.band.read(n);
        const BandRecord band = g.band.rec;
        if (band.retired != kFalse) continue;
        if (!styleFits(g, j, band.style) || !within(band.controversy, j.a.controversyRange)) continue;
        if (!originPasses(g, j, band) || !sizePasses(j, band.memberCount)) continue;
        g.band.rec = band;
        if (band.memberCount == 1 && !membersEligible(g, j)) continue;
        if (j.a.basis == 4 && band.age >= 2) continue;
        int h = band.reputation[static_cast<std::size_t>(j.market)];
        int score = 0;
        if (j.a.basis == 0 || j.a.basis == 4) score = mix(j.a.weight, band.ability, h);
        if (j.a.basis == 6) score = mix(j.a.weight, band.live, h);
        insertNominee(list, score, static_cast<int16_t>(n), trim(band.name.value));
    }
}

bool releasedInTheLastYear(const DiscRecord& d, double today) {
    return std::any_of(d.releaseDate.begin(), d.releaseDate.end(),
                       [today](double r) { return r > today - 365 && r <= today; });
}

void judgeDiscs(Game& g, const Judging& j, NomineeList& list) {
    const bool singles = j.a.kind == 4;
    for (int32_t n = 1; n < g.disc.recordCount(); ++n) {
        g.disc.read(n);
        const DiscRecord disc = g.disc.rec;
        if (disc.band < 1 || (disc.isSingle != 0) != singles || !releasedInTheLastYear(disc, j.today)) continue;
        if (!g.band.readIfPresent(disc.band)) continue;
        const BandRecord band = g.band.rec;
        if (!styleFits(g, j, band.style) || !originPasses(g, j, band) ||
            !within(band.controversy, j.a.controversyRange) || !within(disc.commerciality, j.a.commercialityRange))
            continue;
        if (j.a.basis == 4 && band.age >= 2) continue;
        int h = band.reputation[static_cast<std::size_t>(j.market)];
        int q = static_cast<int>(roundHalfEven((disc.quality + disc.commerciality) / 2.0));
        int score = 0;
        if (j.a.basis == 0 || j.a.basis == 4) score = mix(j.a.weight, q, h);
        if (j.a.basis == 1) {
            int64_t world = 0;
            for (int32_t s : disc.lifetimeSales) world += s;
            score = salesScore(world);
        }
        if (j.a.basis == 6) score = mix(j.a.weight, band.live, h);
        g.band.rec = band;
        if (!membersEligible(g, j) || !sizePasses(j, band.memberCount)) continue;
        insertNominee(list, score, static_cast<int16_t>(n), trim(disc.title.value) + " by " + trim(band.name.value));
    }
}

}  // namespace

int mix(int weight, int a, int b) {
    return static_cast<int>(
        roundHalfEven((weight * static_cast<double>(a) + (100 - weight) * static_cast<double>(b)) / 100));
}

void insertNominee(NomineeList& list, int score, int16_t id, const std::string& name) {
    auto size = static_cast<int>(list.entries.size());
    int at = 0;
    while (at < list.count && list.entries[static_cast<std::size_t>(at)].score >= score) ++at;
    if (at >= size) return;
    for (int i = std::min(list.count, size - 1); i > at; --i)
        list.entries[static_cast<std::size_t>(i)] = list.entries[static_cast<std::size_t>(i - 1)];
    list.entries[static_cast<std::size_t>(at)] = {score, id, name};
    list.count = std::min(list.count + 1, size);
}

void clearNominees(Game& g) {
    g.award->nominees.fill(0);
    for (auto& n : g.award->nomineeNames) n = "";
    g.award->scores.fill(0);
    g.award->winner = 0;
    g.award->nomineeCount = 0;
}

void fixNominees(Game& g, const NomineeList& list) {
    clearNominees(g);
    for (int i = 0; i < list.count; ++i) {
        auto at = static_cast<std::size_t>(i);
        g.award->nominees[at] = list.entries[at].id;
        g.award->nomineeNames[at] = list.entries[at].name;
        g.award->scores[at] = narrow<uint8_t>(std::clamp(list.entries[at].score, 0, 255));
    }
    g.award->nomineeCount = narrow<uint8_t>(list.count);
}

int salesScore(int64_t worldSales) {
    return static_cast<int>(std::clamp(roundHalfEven(static_cast<double>(worldSales) / 100000), 0.0, 100.0));
}

NomineeList judgeAward(Game& g) {
    Judging j{g.award.rec, venueMarket(g), g.gameDate};
    NomineeList list;
    switch (j.a.kind) {
    case 0:
    case 4: judgeDiscs(g, j, list); break;
    case 1: judgeArtists(g, j, list); break;
    case 2: judgeBands(g, j, list); break;
    default: break;
    }
    g.award.rec = j.a;
    return list;
}

}  // namespace trovane

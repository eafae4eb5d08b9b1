#include "events/ceremony_judging.h"

#include <algorithm>
#include <array>
#include <unordered_map>

#include "label/scouting.h"
#include "live/gigs.h"
#include "world/game.h"
#include "world/numbers.h"
#include "world/record_bytes.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kOriginUnitedKingdom = -2;
constexpr int kOriginEurope = -3;
constexpr int kOriginOutsideUnitedKingdom = -4;

bool homeNation(const std::string& name) {
    return name == "England" || name == "Scotland" || name == "Wales" || name == "Northern Ireland";
}

// Fields read straight from a record's bytes: a candidate that cannot place
// costs no decoding of its names and leaves the artist, band and disc
// buffers alone.
struct ArtistFields {
    std::size_t retired = offsetIn<ArtistRecord>("retired");
    std::size_t band = offsetIn<ArtistRecord>("band");
    std::size_t reputation = offsetIn<ArtistRecord>("reputation");
    std::size_t style = offsetIn<ArtistRecord>("style");
    std::size_t controversy = offsetIn<ArtistRecord>("controversy");
    std::size_t male = offsetIn<ArtistRecord>("male");
    std::size_t age = offsetIn<ArtistRecord>("age");
    std::size_t ability = offsetIn<ArtistRecord>("ability");
    std::size_t charisma = offsetIn<ArtistRecord>("charisma");
    std::size_t imageRating = offsetIn<ArtistRecord>("imageRating");
};

struct BandFields {
    std::size_t retired = offsetIn<BandRecord>("retired");
    std::size_t reputation = offsetIn<BandRecord>("reputation");
    std::size_t style = offsetIn<BandRecord>("style");
    std::size_t controversy = offsetIn<BandRecord>("controversy");
    std::size_t formedIn = offsetIn<BandRecord>("formedIn");
    std::size_t formedInCity = offsetIn<BandRecord>("formedInCity");
    std::size_t memberCount = offsetIn<BandRecord>("memberCount");
    std::size_t members = offsetIn<BandRecord>("members");
    std::size_t age = offsetIn<BandRecord>("age");
    std::size_t ability = offsetIn<BandRecord>("ability");
    std::size_t live = offsetIn<BandRecord>("live");
};

struct DiscFields {
    std::size_t band = offsetIn<DiscRecord>("band");
    std::size_t isSingle = offsetIn<DiscRecord>("isSingle");
    std::size_t releaseDate = offsetIn<DiscRecord>("releaseDate");
    std::size_t quality = offsetIn<DiscRecord>("quality");
    std::size_t commerciality = offsetIn<DiscRecord>("commerciality");
    std::size_t lifetimeSales = offsetIn<DiscRecord>("lifetimeSales");
};

const ArtistFields& artistFields() {
    static const ArtistFields f;
    return f;
}
const BandFields& bandFields() {
    static const BandFields f;
    return f;
}
const DiscFields& discFields() {
    static const DiscFields f;
    return f;
}

// The award in `a`; the host market in `market`; the day of judging; what the
// style and origin rules said of each style and birthplace met so far.
struct Judging {
    AwardRecord a;
    int market = 0;
    double today = 0;
    std::array<int8_t, 256> styleFit{};           // 0 not asked yet, 1 fits, -1 does not
    std::unordered_map<int32_t, bool> originFit;  // by formedIn, doubled, plus one for a city
};

bool eligible(const Judging& j, int16_t male, uint8_t age) {
    if (j.a.genderRule == 1 && male == kFalse) return false;
    if (j.a.genderRule == 2 && male == kTrue) return false;
    if (j.a.ageClass != 0 && j.a.ageClass != age) return false;
    return true;
}

bool within(int v, const std::array<uint8_t, 2>& range) { return v >= range[0] && v <= range[1]; }

// An act's origin: formedIn is a city when formedInCity is set, else a country.
bool originOf(Game& g, const Judging& j, int16_t formedInCity, int16_t formedIn) {
    int country = formedIn;
    if (formedInCity != 0) {
        if (!g.city.readIfPresent(formedIn)) return false;
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

bool originPasses(Game& g, Judging& j, const uint8_t* band) {
    if (j.a.originRule == 0) return true;
    const auto& f = bandFields();
    const auto inCity = fieldAt<int16_t>(band, f.formedInCity);
    const auto formedIn = fieldAt<int16_t>(band, f.formedIn);
    const int32_t key = formedIn * 2 + (inCity != 0 ? 1 : 0);
    auto known = j.originFit.find(key);
    if (known == j.originFit.end()) known = j.originFit.emplace(key, originOf(g, j, inCity, formedIn)).first;
    return known->second;
}

bool sizePasses(const Judging& j, int members) {
    switch (j.a.sizeRule) {
    case 1: return members == 1;
    case 2: return members >= 2;
    case 3: return members == 2;
    default: return true;
    }
}

bool styleFits(Game& g, Judging& j, uint8_t style) {
    if (j.a.styleRule == 0) return true;
    int8_t& known = j.styleFit[style];
    if (known == 0) known = stylesAssociated(g, j.a.styleRule, style) ? 1 : -1;
    return known > 0;
}

// Every member of the band passes eligible().
bool membersEligible(Game& g, const Judging& j, const uint8_t* band) {
    if (j.a.genderRule == 0 && j.a.ageClass == 0) return true;
    const auto& f = bandFields();
    const auto& af = artistFields();
    const int n = std::min<int>(band[f.memberCount], 10);
    for (int i = 0; i < n; ++i) {
        const auto who = fieldAt<int16_t>(band, f.members + 2 * static_cast<std::size_t>(i));
        if (who < 1 || who >= g.artist.recordCount()) continue;
        const uint8_t* a = g.artist.bytesOf(who).data();
        if (!eligible(j, fieldAt<int16_t>(a, af.male), a[af.age])) return false;
    }
    return true;
}

// Whether a candidate of that score would be put on the list.
bool places(const NomineeList& list, int score) {
    const auto size = static_cast<int>(list.entries.size());
    return list.count < size || list.entries[static_cast<std::size_t>(size - 1)].score < score;
}

void judgeArtists(Game& g, Judging& j, NomineeList& list) {
    const auto& f = artistFields();
    const auto& bf = bandFields();
    const auto market = static_cast<std::size_t>(j.market);
    const int32_t bands = g.band.recordCount();
    for (int32_t n = 1; n < g.artist.recordCount(); ++n) {
        const uint8_t* a = g.artist.bytesOf(n).data();
        if (fieldAt<int16_t>(a, f.retired) != kFalse) continue;
        int h = a[f.reputation + market];
        const auto band = fieldAt<int16_t>(a, f.band);
        if (band > 0 && band < bands) {
            const uint8_t* b = g.band.bytesOf(band).data();
            if (fieldAt<int16_t>(b, bf.retired) != kFalse) continue;
            h = b[bf.reputation + market];
        }
        if (!styleFits(g, j, a[f.style]) || !within(a[f.controversy], j.a.controversyRange) ||
            !eligible(j, fieldAt<int16_t>(a, f.male), a[f.age]))
            continue;
        int figure = j.a.basis == 2 ? a[f.charisma] : j.a.basis == 5 ? a[f.imageRating] : a[f.ability];
        const int score = mix(j.a.weight, figure, h);
        if (!places(list, score)) continue;
        g.artist.read(n);
        insertNominee(list, score, static_cast<int16_t>(n),
                      trim(g.artist->forename.value) + " " + trim(g.artist->surname.value));
    }
}

void judgeBands(Game& g, Judging& j, NomineeList& list) {
    const auto& f = bandFields();
    const auto market = static_cast<std::size_t>(j.market);
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        const uint8_t* b = g.band.bytesOf(n).data();
        if (fieldAt<int16_t>(b, f.retired) != kFalse) continue;
        if (!styleFits(g, j, b[f.style]) || !within(b[f.controversy], j.a.controversyRange)) continue;
        const int members = b[f.memberCount];
        if (!originPasses(g, j, b) || !sizePasses(j, members)) continue;
        if (members == 1 && !membersEligible(g, j, b)) continue;
        if (j.a.basis == 4 && b[f.age] >= 2) continue;
        const int h = b[f.reputation + market];
        int score = 0;
        if (j.a.basis == 0 || j.a.basis == 4) score = mix(j.a.weight, b[f.ability], h);
        if (j.a.basis == 6) score = mix(j.a.weight, b[f.live], h);
        if (!places(list, score)) continue;
        g.band.read(n);
        insertNominee(list, score, static_cast<int16_t>(n), trim(g.band->name.value));
    }
}

bool releasedInTheLastYear(const uint8_t* disc, double today) {
    const std::size_t at = discFields().releaseDate;
    for (std::size_t t = 0; t < 5; ++t) {
        const auto r = fieldAt<double>(disc, at + 8 * t);
        if (r > today - 365 && r <= today) return true;
    }
    return false;
}

void judgeDiscs(Game& g, Judging& j, NomineeList& list) {
    const auto& f = discFields();
    const auto& bf = bandFields();
    const auto market = static_cast<std::size_t>(j.market);
    const bool singles = j.a.kind == 4;
    const int32_t bands = g.band.recordCount();
    for (int32_t n = 1; n < g.disc.recordCount(); ++n) {
        const uint8_t* d = g.disc.bytesOf(n).data();
        const auto band = fieldAt<int16_t>(d, f.band);
        if (band < 1 || (d[f.isSingle] != 0) != singles || !releasedInTheLastYear(d, j.today)) continue;
        if (band >= bands) continue;
        const uint8_t* b = g.band.bytesOf(band).data();
        if (!styleFits(g, j, b[bf.style]) || !originPasses(g, j, b) ||
            !within(b[bf.controversy], j.a.controversyRange) || !within(d[f.commerciality], j.a.commercialityRange))
            continue;
        if (j.a.basis == 4 && b[bf.age] >= 2) continue;
        const int h = b[bf.reputation + market];
        const int q = static_cast<int>(roundHalfEven((d[f.quality] + d[f.commerciality]) / 2.0));
        int score = 0;
        if (j.a.basis == 0 || j.a.basis == 4) score = mix(j.a.weight, q, h);
        if (j.a.basis == 1) {
            int64_t world = 0;
            for (std::size_t t = 0; t < 5; ++t) world += fieldAt<int32_t>(d, f.lifetimeSales + 4 * t);
            score = salesScore(world);
        }
        if (j.a.basis == 6) score = mix(j.a.weight, b[bf.live], h);
        if (!membersEligible(g, j, b) || !sizePasses(j, b[bf.memberCount])) continue;
        if (!places(list, score)) continue;
        g.disc.read(n);
        g.band.read(band);
        insertNominee(list, score, static_cast<int16_t>(n),
                      trim(g.disc->title.value) + " by " + trim(g.band->name.value));
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
    Judging j;
    j.a = g.award.rec;
    j.market = venueMarket(g);
    j.today = g.gameDate;
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

#include "talent/band_creation.h"

#include <vector>

#include "events/scores.h"
#include "floor/date_helpers.h"
#include "floor/number_helpers.h"
#include "label/image.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "talent/artist_functions.h"
#include "talent/artist_names.h"
#include "talent/band_functions.h"
#include "talent/contract_terms.h"
#include "world/act_names.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kNameDraws = 1000;
constexpr int kCityDraws = 1000;
constexpr int kStyleDraws = 100000;

const std::size_t kAssA = offsetIn<AssRecord>("a");
const std::size_t kAssB = offsetIn<AssRecord>("b");
const std::size_t kAssWeight = offsetIn<AssRecord>("weight");

std::string fullName(const ArtistRecord& a) { return trim(trim(a.forename.value) + " " + trim(a.surname.value)); }

struct NewMember {
    int style;
    int job;
    int country;
    int16_t band;
};

// Draws a person of the style and job, born in the country, and appends it.
int32_t addArtist(Game& g, const NewMember& m, bool keepReputation) {
    g.style.read(m.style);
    const int genderRule = g.style->genderRule;
    g.artist.rec = ArtistRecord{};
    ArtistRecord& a = g.artist.rec;
    a.style = narrow<uint8_t>(m.style);
    a.job = narrow<uint8_t>(m.job);
    a.country = narrow<uint8_t>(m.country);
    int city = pickBirthCity(g, m.country);
    g.artist->city = narrow<int16_t>(city);
    bool male = g.rng.between(0, 99) > 50;
    if (genderRule == 1) male = true;
    if (genderRule == 2) male = false;
    g.artist->male = boolean(male);
    g.artist->band = m.band;
    uint8_t age = setNewArtistAge(g);
    g.artist->age = age;
    g.artist->birthDate = randomBirthDate(g, age);
    setArtistStats(g, 40 + g.rng.between(0, 50));
    setArtistWriting(g);
    drawArtistName(g);
    if (bestLook(g) != 0) {
        g.artist->look = narrow<uint8_t>(g.look->id);
        g.artist->imageRating = rateLook(g);
    }
    g.artist->energy = 100;
    g.artist->morale = 100;
    g.artist->listed = -1;
    g.artist->retired = kFalse;
    if (!keepReputation) g.artist->reputation = {};
    const int32_t n = g.artist.append();
    // Born in play: this year's birthday, when still to come, is filed now.
    // On 31 December the year's birthdays are filed already; the coming year's is this artist's next.
    int year = yearOf(g.gameDate);
    if (monthOf(g.gameDate) == 12 && dayOf(g.gameDate) == 31) ++year;
    const double birthday = birthdayIn(g.artist->birthDate, year);
    if (g.gameDate > g.player.dateBegun && birthday > g.gameDate) {
        ScheduleRecord e{};
        e.type = static_cast<uint8_t>(ScheduleType::artistBirthday);
        e.date = birthday;
        e.artist = narrow<int16_t>(n);
        addSchedule(g, e);
    }
    g.artist.read(n);
    return n;
}

// The country and size of every city, read from the table's bytes when the
// table is new to the game or was written (see watchActNames).
const std::vector<CityRows::Row>& cityRowsOf(Game& g) {
    CityRows& index = g.cityRows;
    if (index.generation == g.city.generation() && index.records == g.city.recordCount()) return index.rows;
    index.generation = g.city.generation();
    index.records = g.city.recordCount();
    index.rows.clear();
    CityRecord c{};
    for (int32_t n = 1; n < g.city.recordCount(); ++n) {
        decodeRecord(g.city.bytesOf(n).data(), c);
        index.rows.push_back({c.country, c.size});
    }
    return index.rows;
}

// The links of a home country, of weight above 0, in the nations' table's
// order; read from the table's bytes when the table is new to the game or was
// written (see watchActNames). Null for a country with none.
const std::vector<NationLinks::Link>* nationLinksOf(Game& g, int home) {
    NationLinks& index = g.nationLinks;
    if (index.generation != g.assnation.generation() || index.records != g.assnation.recordCount()) {
        index.generation = g.assnation.generation();
        index.records = g.assnation.recordCount();
        index.byHome.clear();
        for (int32_t n = 1; n < g.assnation.recordCount(); ++n) {
            const auto bytes = g.assnation.bytesOf(n);
            const int weight = fieldAt<uint8_t>(bytes, kAssWeight);
            if (weight == 0) continue;
            const int a = fieldAt<uint8_t>(bytes, kAssA), b = fieldAt<uint8_t>(bytes, kAssB);
            index.byHome[a].push_back({b, weight});
            if (b != a) index.byHome[b].push_back({a, weight});
        }
    }
    auto it = index.byHome.find(home);
    return it == index.byHome.end() ? nullptr : &it->second;
}

}  // namespace

int32_t pickStyle(Game& g) {
    const int32_t last = g.style.recordCount() - 1;
    if (last < 2) return 0;  // a world without styles to draw from makes no acts
    for (int i = 0; i < kStyleDraws; ++i) {
        int32_t n = g.rng.between(1, last - 1);
        g.style.read(n);
        if (trim(g.style->name.value) == "Legend") continue;
        int32_t draw = static_cast<int32_t>(intFloor(g.rng.draw() * 75.0));
        int32_t edge = stylePopularity(g) - 25;
        if (draw * draw <= edge * edge) return n;
    }
    throw FatalError("No style could be drawn for a new act");
}

int pickBandSize(Game& g) {
    const StyleRecord& s = g.style.rec;
    if (g.rng.between(0, 99) <= 50) return s.membersUsual;
    int d = s.membersHigh - s.membersUsual;
    int size = s.membersUsual + static_cast<int>(intFloor(g.rng.draw() * 2.0 * d)) - d;
    return std::max<int>(size, s.membersLow);
}

std::string pickBandName(Game& g, int style) {
    const std::vector<std::string>& bank = newBandNamesFor(g, style);
    if (bank.empty()) return {};
    std::string name;
    for (int i = 0; i < kNameDraws; ++i) {
        name = bank[static_cast<std::size_t>(g.rng.between(0, static_cast<int32_t>(bank.size()) - 1))];
        if (!actNameInUse(g, name)) break;
    }
    return name;
}

int pickBirthCountry(Game& g, int home, bool solo) {
    if (solo || g.rng.between(0, 99) < 70) return home;
    const std::vector<NationLinks::Link>* links = nationLinksOf(g, home);
    const int32_t last = g.assnation.recordCount() - 1;
    if (last >= 1) g.assnation.read(last);  // the buffer as a walk of them leaves it
    int total = 0;
    if (links != nullptr)
        for (const NationLinks::Link& l : *links) total += l.weight;
    if (total == 0) return home;
    int draw = g.rng.between(0, total - 1);
    for (const NationLinks::Link& l : *links) {
        if (draw < l.weight) return l.country;
        draw -= l.weight;
    }
    return home;
}

int pickBirthCity(Game& g, int country) {
    std::vector<std::pair<int, int>> cities;  // number, size
    const std::vector<CityRows::Row>& rows = cityRowsOf(g);
    for (int32_t n = 1; n <= static_cast<int32_t>(rows.size()); ++n) {
        const CityRows::Row& row = rows[static_cast<std::size_t>(n - 1)];
        if (country == -1 || row.country == country) cities.emplace_back(n, row.size);
    }
    if (!rows.empty()) g.city.read(static_cast<int32_t>(rows.size()));  // the buffer as a walk of them leaves it
    if (cities.empty()) return 0;
    int city = 0;
    for (int i = 0; i < kCityDraws; ++i) {
        auto [n, size] = cities[static_cast<std::size_t>(g.rng.between(0, static_cast<int32_t>(cities.size()) - 1))];
        city = n;
        if (g.rng.between(0, 99) < size) break;
    }
    return city;
}

std::array<int, 5> homeOrder(const Game& g) {
    std::string region = trim(g.country->region.value);
    if (region == "E") {
        std::string name = trim(g.country->name.value);
        if (name == "England" || name == "Scotland" || name == "Wales" || name == "Northern Ireland")
            return {0, 2, 1, 3, 4};
        return {2, 0, 1, 3, 4};
    }
    if (region == "N") return {1, 0, 3, 2, 4};
    if (region == "O") return {3, 1, 0, 2, 4};
    return {4, 3, 2, 0, 1};
}

int32_t createArtist(Game& g, int mode) {
    if (mode != 1) throw FatalError("createArtist has no mode " + std::to_string(mode));
    const ArtistRecord retiree = g.artist.rec;
    return addArtist(g, {.style = retiree.style, .job = retiree.job, .country = retiree.country, .band = 0}, false);
}

namespace {

int32_t newAct(Game& g, bool forceSolo) {
    const int style = pickStyle(g);
    if (style == 0) return 0;
    bool solo = forceSolo || g.rng.between(0, 99) < g.style->soloPercent;
    int size = solo ? 1 : pickBandSize(g);
    size = std::clamp(size, 1, 10);
    const int city = pickBirthCity(g, -1);
    int home = 0;
    if (city != 0) {
        g.city.read(city);
        home = g.city->country;
    }
    const int32_t number = g.band.recordCount();
    std::array<int16_t, 10> members{};
    std::string soloName;
    for (int i = 0; i < size; ++i) {
        g.style.read(style);
        int job = jobForPlace(g, i, solo);
        int country = pickBirthCountry(g, home, solo);
        members[static_cast<std::size_t>(i)] = narrow<int16_t>(
            addArtist(g, {.style = style, .job = job, .country = country, .band = narrow<int16_t>(number)}, false));
        if (solo) soloName = fullName(g.artist.rec);
    }
    std::string name = solo ? soloName : pickBandName(g, style);
    g.band.rec = BandRecord{};
    BandRecord& b = g.band.rec;
    b.name = name;
    b.style = narrow<uint8_t>(style);
    b.formedInCity = narrow<int16_t>(city);
    b.formedIn = narrow<int16_t>(home);
    b.memberCount = narrow<uint8_t>(size);
    b.members = members;
    b.retired = kFalse;
    b.label = 0;
    b.age = 0;
    b.monthsUnsigned = 0;
    b.id = narrow<int16_t>(number);
    g.band.write(number);
    setBandStats(g);
    b.age = 0;
    b.label = 0;
    g.style.read(style);
    if (home != 0)
        g.country.read(home);
    else
        g.country.rec = CountryRecord{};
    auto order = homeOrder(g);
    std::array<uint8_t, 5> shares{};
    setRegionalShares(g, 2, shares[0], shares[1], shares[2], shares[3], shares[4]);
    for (std::size_t i = 0; i < 5; ++i)
        b.reputation[static_cast<std::size_t>(order[i])] = std::max<uint8_t>(shares[i], 2);
    setAskingTerms(g);
    setUpBandReputation(g);
    g.band.write(number);
    return number;
}

}  // namespace

int32_t createBand(Game& g) { return newAct(g, false); }
int32_t createSoloArtist(Game& g) { return newAct(g, true); }

void setUpSignedContract(Game& g) { static_cast<void>(g); }

void setUpBandReputation(Game& g) {
    BandRecord& b = g.band.rec;
    for (std::size_t m = 0; m < 5; ++m) b.hype[m] = static_cast<int16_t>(-b.reputation[m]);
    BandRecord band = b;
    for (int i = 0; i < band.memberCount && i < 10; ++i) {
        int16_t member = band.members[static_cast<std::size_t>(i)];
        if (member < 1) continue;
        g.artist.read(member);
        g.artist->reputation = band.reputation;
        g.artist.write(member);
    }
    g.band.rec = band;
}

}  // namespace trovane

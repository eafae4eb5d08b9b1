#include "live/tour_planner.h"

#include <algorithm>
#include <tuple>

#include "label/scouting.h"
#include "live/gigs.h"
#include "live/sponsors.h"
#include "live/tours.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "talent/band_functions.h"
#include "world/game.h"
#include "world/numbers.h"
#include "world/record_bytes.h"
#include "world/strings.h"

namespace trovane {

namespace {

const std::size_t kVenueId = offsetIn<VenueRecord>("id");
const std::size_t kVenueCapacity = offsetIn<VenueRecord>("capacity");
const std::size_t kVenueCity = offsetIn<VenueRecord>("city");
const std::size_t kVenueRating = offsetIn<VenueRecord>("rating");
const std::size_t kCityCountry = offsetIn<CityRecord>("country");
const std::size_t kCountryName = offsetIn<CountryRecord>("name");
const std::size_t kCountryRegion = offsetIn<CountryRecord>("region");
const std::size_t kBandRetired = offsetIn<BandRecord>("retired");
const std::size_t kBandLabel = offsetIn<BandRecord>("label");
const std::size_t kBandStyle = offsetIn<BandRecord>("style");
const std::size_t kBandReputation = offsetIn<BandRecord>("reputation");
const std::size_t kEntryType = offsetIn<ScheduleRecord>("type");
const std::size_t kEntryBand = offsetIn<ScheduleRecord>("band");
const std::size_t kEntryGig = offsetIn<ScheduleRecord>("gig");
const std::size_t kGigBill = offsetIn<GigRecord>("bill");
constexpr std::size_t kBillSlots = std::tuple_size_v<decltype(GigRecord::bill)>;

constexpr int32_t kBigVenue = 25000;
constexpr int kMostGigs = 40;
// A nation-less tour moves on once this many gigs stand in one country.
constexpr int kGigsBeforeMovingOn = 6;

bool isHomeNation(const std::string& region, const std::string& name) {
    return region == "E" && (name == "England" || name == "Scotland" || name == "Wales" || name == "Northern Ireland");
}

bool isHomeNation(const CountryRecord& c) { return isHomeNation(trim(c.region.value), trim(c.name.value)); }

// The planner's four regions: "E" 0, "N" 1, "O" 2, the rest of the world 3.
int regionIndex(const std::string& region) {
    if (region == "E") return 0;
    if (region == "N") return 1;
    if (region == "O") return 2;
    if (region == "S" || region == "F" || region == "A") return 3;
    return -1;
}

// The reputation the assistant sizes a player's tour by: the nation's market,
// or the area's (Europe, the US, Oceania, the world's weighted figure for "X",
// the rest of the world otherwise).
int assistantReputation(Game& g, const std::string& areaCode, uint8_t nation) {
    const auto& rep = g.band->reputation;
    if (nation > 0 && g.country.readIfPresent(nation)) return reputationInCountry(g);
    if (areaCode == "E") return rep[2];
    if (areaCode == "N") return rep[1];
    if (areaCode == "O") return rep[3];
    if (areaCode == "X") return bandRating(g);
    return rep[4];
}

}  // namespace

TourFlags chooseTourRegions(const Game& g) {
    const auto& rep = g.band.rec.reputation;
    const int top = bandBestMarket(g);
    const double t = rep[static_cast<std::size_t>(top)];
    TourFlags f{};
    if (t > 50) {
        f[0] = !(rep[0] <= 70 && 2.0 * rep[0] <= t && rep[2] * 1.25 < t && rep[2] <= 70);
        f[1] = !(rep[1] < 71 && 2.0 * rep[1] <= t);
        f[2] = !(rep[3] < 71 && 2.0 * rep[3] <= t);
        if (int(f[0]) + int(f[1]) + int(f[2]) >= 2) f[kWorldFlag] = true;
    } else if (top == 0 || top == 2) {
        f[0] = true;
    } else if (top == 1) {
        f[1] = true;
    } else if (top == 3) {
        f[2] = true;
    }
    if (top == 4) f[kWorldFlag] = true;
    return f;
}

int32_t tourCrowdSize(Game& g, int r) {
    const auto& rep = g.band->reputation;
    auto standing = toInteger((8.0 * rep[0] + 10.0 * rep[1] + 7.0 * rep[2] + 5.0 * rep[3] + 3.0 * rep[4]) / 7);
    // The estimate is a band's own tour, never a festival's.
    const TourRecord held = g.tour.rec;
    g.tour.rec = TourRecord{};
    int32_t estimate = expectedAttendance(g, 1, r, standing);
    g.tour.rec = held;
    return toLong(estimate * 0.66);
}

std::vector<TourVenue> listTourVenues(Game& g, int mode, const TourFlags& flags, const std::string& areaCode,
                                      uint8_t nation) {
    const auto& rep = g.band->reputation;
    std::array<int, 4> r{};
    std::array<int32_t, 4> size{};
    bool homeTour = false;
    if (mode == 2) {
        r[0] = assistantReputation(g, areaCode, nation);
        size[0] = tourCrowdSize(g, r[0]);
        if (nation > 0 && g.country.readIfPresent(nation)) homeTour = isHomeNation(g.country.rec);
    } else {
        r = {toInteger((rep[0] + rep[2]) / 2.0), rep[1], rep[3], rep[4]};
        for (std::size_t k = 0; k < 4; ++k) size[k] = tourCrowdSize(g, r[k]);
    }

    // Each country's area and where it stands for this tour, worked out once:
    // for a planned tour its region's index (-1: none of the four), for the
    // assistant's whether its venues are in the place asked for.
    const int32_t countries = g.country.recordCount();
    std::vector<std::string> regionOf(static_cast<std::size_t>(std::max(countries, 1)));
    std::vector<int8_t> placeOf(regionOf.size(), -1);
    for (int32_t c = 1; c < countries; ++c) {
        const auto bytes = g.country.bytesOf(c);
        const auto at = static_cast<std::size_t>(c);
        regionOf[at] = textAt<decltype(CountryRecord::region)>(bytes, kCountryRegion);
        if (mode != 2) {
            placeOf[at] = static_cast<int8_t>(regionIndex(regionOf[at]));
            continue;
        }
        bool inPlace = c == nation;
        if (nation == 0)
            inPlace = areaCode == "X" || regionOf[at] == areaCode;
        else if (homeTour)
            inPlace = isHomeNation(regionOf[at], textAt<decltype(CountryRecord::name)>(bytes, kCountryName));
        placeOf[at] = inPlace ? 0 : -1;
    }
    if (countries > 1) g.country.read(countries - 1);  // as a walk reading each country leaves it

    // The venues are read from their bytes, and their cities'.
    std::vector<TourVenue> out;
    const int32_t venues = g.venue.recordCount();
    const int32_t cities = g.city.recordCount();
    for (int32_t v = 1; v < venues; ++v) {
        const auto bytes = g.venue.bytesOf(v);
        VenueRecord venue;
        venue.id = fieldAt<int16_t>(bytes, kVenueId);
        venue.capacity = fieldAt<int32_t>(bytes, kVenueCapacity);
        venue.city = fieldAt<int16_t>(bytes, kVenueCity);
        venue.rating = fieldAt<uint8_t>(bytes, kVenueRating);
        if (venue.city < 1 || venue.city >= cities) continue;
        const int16_t country = fieldAt<uint8_t>(g.city.bytesOf(venue.city), kCityCountry);
        if (country < 1 || country >= countries) continue;
        const int k = placeOf[static_cast<std::size_t>(country)];
        if (k < 0) continue;
        const auto kk = static_cast<std::size_t>(k);
        if (mode == 2) {
            if (venue.capacity >= 2 * size[0]) continue;
            if (venue.capacity < size[0] && venue.capacity < kBigVenue) continue;
            if (r[0] <= venue.rating) continue;
        } else {
            if (!flags[kWorldFlag] && (k == 3 || !flags[kk])) continue;
            if (venue.capacity < size[kk] && venue.capacity < kBigVenue) continue;
            if (venue.capacity >= 2 * size[kk]) continue;
            if (r[kk] < venue.rating) continue;
        }
        const std::string& region = regionOf[static_cast<std::size_t>(country)];
        out.push_back({.venue = venue.id,
                       .capacity = venue.capacity,
                       .city = venue.city,
                       .country = country,
                       .region = region,
                       .used = false});
    }
    // The buffers are left as a walk reading each venue and its city leaves them.
    if (venues > 1) {
        g.venue.read(venues - 1);
        g.city.readIfPresent(g.venue->city);
    }
    return out;
}

void sortVenuesBySize(std::vector<TourVenue>& venues) {
    std::stable_sort(venues.begin(), venues.end(),
                     [](const TourVenue& a, const TourVenue& b) { return a.capacity > b.capacity; });
}

int32_t plannedGap(const TourVenue& from, const TourVenue& to) {
    return gapBetween({from.city, from.country, from.region}, {to.city, to.country, to.region});
}

int pickNextVenue(const std::vector<TourVenue>& venues, const std::vector<PlannedGig>& gigs, uint8_t nation) {
    if (gigs.empty()) return !venues.empty() && !venues[0].used ? 0 : -1;
    const TourVenue& last = venues[gigs.back().venue];
    int inCountry = 0;
    for (const PlannedGig& p : gigs)
        if (venues[p.venue].country == last.country) ++inCountry;
    const bool moveOn = nation == 0 && inCountry > kGigsBeforeMovingOn;
    int sameCountry = -1;
    int anywhere = -1;
    for (std::size_t i = 0; i < venues.size(); ++i) {
        const TourVenue& v = venues[i];
        if (v.used) continue;
        const bool here = v.country == last.country;
        if (here && moveOn) continue;
        if (v.city == last.city) return static_cast<int>(i);
        if (here && sameCountry < 0) sameCountry = static_cast<int>(i);
        if (anywhere < 0) anywhere = static_cast<int>(i);
    }
    return sameCountry >= 0 ? sameCountry : anywhere;
}

std::vector<PlannedGig> planTourGigs(Game& g, std::vector<TourVenue>& venues, double firstDate, uint8_t nation) {
    std::vector<PlannedGig> plan;
    int target = std::min(static_cast<int>(venues.size()), kMostGigs);
    int booked = 0;
    while (plan.size() < kMostGigs - 1 && booked < target) {
        int pick = pickNextVenue(venues, plan, nation);
        if (pick < 0) {
            --target;
            continue;
        }
        auto at = static_cast<std::size_t>(pick);
        double date = firstDate;
        int32_t rest = 0;
        if (!plan.empty()) {
            rest = plannedGap(venues[plan.back().venue], venues[at]);
            date = plan.back().date + rest;
        }
        if (rest > 0) --rest;
        const int nights = g.rng.between(0, 99) < 75 && booked <= 38 ? 2 : 1;
        int extra = 0;
        if (!plan.empty()) {
            extra = g.rng.between(0, 3);
            if (target / 2.0 < booked) ++extra;
        }
        for (int night = 0; night < nights; ++night)
            plan.push_back({.venue = at, .date = date + night + extra, .rest = night == 0 ? rest : 0});
        ++booked;
        venues[at].used = true;
    }
    return plan;
}

void bookTourGigs(Game& g, const std::vector<TourVenue>& venues, const std::vector<PlannedGig>& plan) {
    const int16_t tour = g.tour->tourNumber;
    for (const PlannedGig& p : plan) {
        g.tour.read(tour);
        g.venue.read(venues[p.venue].venue);
        addGigToTour(g, p.date, p.rest);
    }
    g.tour.read(tour);
}

uint8_t hospitalityLevelFor(int topAttitudeLevel) {
    if (topAttitudeLevel < 20) return 4;
    if (topAttitudeLevel < 40) return 3;
    if (topAttitudeLevel < 70) return 2;
    if (topAttitudeLevel < 90) return 1;
    return 0;
}

uint8_t contentLevelFor(int contentWeight) {
    if (contentWeight < 4) return 4;
    if (contentWeight < 9) return 3;
    if (contentWeight < 15) return 2;
    if (contentWeight < 20) return 1;
    return 0;
}

int16_t chooseSponsor(Game& g, int16_t tour) {
    std::vector<SponsorOffer> offers = fittingSponsors(g, tour);
    return offers.empty() ? int16_t{-1} : offers.front().product;
}

int16_t createRivalTour(Game& g, const TourFlags& flags) {
    const BandRecord band = g.band.rec;
    std::string area = flags[kWorldFlag] ? "X" : flags[0] ? "E" : flags[1] ? "N" : "O";
    g.style.readIfPresent(band.style);
    const uint8_t content = contentLevelFor(g.style->contentWeight);
    int16_t tour = createTour(g, area, 0);
    g.tour.read(tour);
    g.tour->hospitalityLevel = hospitalityLevelFor(band.topAttitudeLevel);
    g.tour->accommodationLevel = g.tour->hospitalityLevel;
    g.tour->contentLevel = content;
    g.tour.write();
    int16_t sponsor = chooseSponsor(g, tour);
    g.tour.read(tour);
    g.tour->sponsorProduct = sponsor;
    g.tour.write();
    g.band.rec = band;
    return tour;
}

namespace {

// Every act named by an entry dated from `first` to `last`, or on the bill of
// a gig on those days.
std::vector<bool> actsBusyBetween(Game& g, double first, double last) {
    std::vector<bool> busy(static_cast<std::size_t>(std::max(g.band.recordCount(), 1)));
    auto mark = [&](int32_t band) {
        if (band > 0 && band < static_cast<int32_t>(busy.size())) busy[static_cast<std::size_t>(band)] = true;
    };
    // The entries and gigs are read from their bytes; no buffer changes but
    // the day's, left at the last day read as reading each day leaves it.
    DayFileReader days(g);
    for (double d = first; d <= last; ++d) {
        for (int32_t id : days.entries(d)) {
            if (id < 1 || id >= g.schedule.recordCount()) continue;
            const auto e = g.schedule.bytesOf(id);
            const auto type = fieldAt<uint8_t>(e, kEntryType);
            if (type == static_cast<uint8_t>(ScheduleType::calledOff)) continue;
            mark(fieldAt<int16_t>(e, kEntryBand));
            const auto gig = fieldAt<int32_t>(e, kEntryGig);
            if (type != static_cast<uint8_t>(ScheduleType::gig) || gig < 1 || gig >= g.gig.recordCount()) continue;
            const auto bill = g.gig.bytesOf(gig);
            for (std::size_t slot = 0; slot < kBillSlots; ++slot) mark(fieldAt<int16_t>(bill, kGigBill + 2 * slot));
        }
    }
    days.finish();
    return busy;
}

struct SupportCandidate {
    int16_t band = 0;
    int32_t rating = 0;
    bool players = false;
};

}  // namespace

int chooseSupportBands(Game& g, int16_t tour) {
    if (!g.tour.readIfPresent(tour)) return 0;
    const TourRecord t = g.tour.rec;
    if (t.gigCount == 0 || !g.band.readIfPresent(t.band)) return 0;
    const BandRecord headliner = g.band.rec;
    const int32_t worth = bandRating(g);
    g.gig.read(t.gigs[0]);
    const double first = g.gig->gigDate;
    g.gig.read(t.gigs[t.gigCount - 1u]);
    const double last = g.gig->gigDate;
    const std::vector<bool> busy = actsBusyBetween(g, first, last);
    const int16_t player = g.player.playerLabel;

    // Each act is read from its bytes: the rating goes by the reputation
    // alone, so only that is put in the band buffer.
    std::vector<SupportCandidate> found;
    // Whether a style is of the headliner's family is asked once a style.
    // The style buffer is left by the last question that read a style, so
    // that one is asked again at the end.
    std::array<int8_t, 256> family{};
    family.fill(-1);
    int lastStyleRead = -1;
    for (int32_t b = 1; b < g.band.recordCount(); ++b) {
        const auto bytes = g.band.bytesOf(b);
        if (fieldAt<int16_t>(bytes, kBandRetired) != kFalse || b == headliner.id) continue;
        const auto label = fieldAt<int16_t>(bytes, kBandLabel);
        const bool sameLabel = label == headliner.label;
        const auto style = fieldAt<uint8_t>(bytes, kBandStyle);
        if (style > 0 && style != headliner.style && style < g.style.recordCount()) lastStyleRead = style;
        if (family[style] < 0) family[style] = stylesAssociated(g, headliner.style, style) ? 1 : 0;
        if (family[style] == 0 || busy[static_cast<std::size_t>(b)]) continue;
        for (std::size_t m = 0; m < g.band.rec.reputation.size(); ++m)
            g.band.rec.reputation[m] = fieldAt<uint8_t>(bytes, kBandReputation + m);
        int32_t worth2 = bandRating(g);
        if (!sameLabel) worth2 *= 2;
        if (worth2 > worth) continue;
        found.push_back({.band = static_cast<int16_t>(b),
                         .rating = sameLabel ? worth2 * 2 : toLong(worth2 / 2.0),
                         .players = player > 0 && label == player});
    }
    if (lastStyleRead >= 0) stylesAssociated(g, headliner.style, lastStyleRead);
    // The buffer is left at the last act, as a walk reading each leaves it.
    if (g.band.recordCount() > 1) g.band.read(g.band.recordCount() - 1);
    std::stable_sort(found.begin(), found.end(),
                     [](const SupportCandidate& a, const SupportCandidate& b) { return a.rating > b.rating; });
    if (found.size() > 3) found.resize(3);

    int placed = 0;
    for (const SupportCandidate& c : found)
        if (!c.players) ++placed;
    for (int i = 0; i < t.gigCount; ++i) {
        g.gig.read(t.gigs[static_cast<std::size_t>(i)]);
        std::size_t place = 1;
        for (const SupportCandidate& c : found)
            if (!c.players) g.gig->bill[place++] = c.band;
        g.gig.write();
    }
    for (const SupportCandidate& c : found) {
        if (!c.players) continue;
        // The player is asked once for the whole tour, the day after it is made.
        ScheduleRecord offer{};
        offer.type = static_cast<uint8_t>(ScheduleType::supportSlotOffer);
        offer.date = g.gameDate + 1;
        offer.band = c.band;
        offer.label = player;
        offer.gig = t.gigs[0];
        addSchedule(g, offer);
    }
    g.band.rec = headliner;
    g.tour.read(tour);
    return placed;
}

double actRetirementDate(Game& g) {
    const BandRecord band = g.band.rec;
    double earliest = 0;
    const int members = std::min<int>(band.memberCount, static_cast<int>(band.members.size()));
    for (int i = 0; i < members; ++i) {
        int16_t who = band.members[static_cast<std::size_t>(i)];
        if (!g.artist.readIfPresent(who)) continue;
        // 1 January 1900 (serial 2) and earlier mean no date was set.
        double date = g.artist->retirementDate;
        if (date > 2 && (earliest == 0 || date < earliest)) earliest = date;
    }
    return earliest;
}

}  // namespace trovane

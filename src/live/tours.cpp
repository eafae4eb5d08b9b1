#include "live/tours.h"

#include <algorithm>

#include "floor/formats.h"
#include "floor/grammar.h"
#include "schedule/band_calendar.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kFirstGigNotice = 42;

// The earliest date on which one of the band's members is due to retire, or 0.
double retirementDateOfBand(Game& g) {
    const BandRecord band = g.band.rec;
    double earliest = 0;
    int members = std::min<int>(band.memberCount, static_cast<int>(band.members.size()));
    for (int i = 0; i < members; ++i) {
        int16_t who = band.members[static_cast<std::size_t>(i)];
        if (who < 1) continue;
        g.artist.read(who);
        double date = g.artist->retirementDate;
        if (date > 0 && (earliest == 0 || date < earliest)) earliest = date;
    }
    return earliest;
}

// The game keeps no assistant of its own, so the assistant is a he.
std::string retirementMessage(const std::string& band) {
    return "Your assistant has informed you he feels there is insufficient time before " + band +
           "'s retirement to book a tour.";
}

ScheduleRecord entryFor(const Game& g, ScheduleType type, double date, int32_t gig) {
    ScheduleRecord e{};
    e.type = static_cast<uint8_t>(type);
    e.date = date;
    e.band = g.tour->band;
    e.gig = gig;
    return e;
}

}  // namespace

int16_t createTour(Game& g, const std::string& areaCode, uint8_t nation) {
    g.tour.rec = TourRecord{};
    g.tour->areaCode = areaCode;
    g.tour->nation = nation;
    g.tour->band = g.band->id;
    g.tour->sponsorProduct = -1;
    g.tour->contentLevel = 2;
    g.tour->hospitalityLevel = 2;
    g.tour->accommodationLevel = 2;
    return narrow<int16_t>(g.tour.append());
}

int32_t addGigToTour(Game& g, double date, int32_t restDays) {
    const TourRecord tour = g.tour.rec;
    if (tour.gigCount >= tour.gigs.size()) return 0;
    double previous = date;
    if (tour.gigCount > 0) {
        g.gig.read(tour.gigs[tour.gigCount - 1u]);
        previous = g.gig->gigDate;
    }
    g.gig.rec = GigRecord{};
    g.gig->bill[0] = tour.band;
    g.gig->venue = g.venue->id;
    g.gig->gigDate = date;
    g.gig->tour = tour.tourNumber;
    int32_t gig = g.gig.append();
    // The days on the road carry the gig they lead to, so a support act is
    // kept busy on them and cancelling finds them.
    std::vector<ScheduleRecord> entries;
    g.tour.rec = tour;
    for (double d = previous + 1; d < date; ++d) {
        bool travelling = d - previous <= restDays;
        entries.push_back(entryFor(g, travelling ? ScheduleType::travelDay : ScheduleType::restDay, d, gig));
    }
    g.tour->gigs[g.tour->gigCount] = gig;
    g.tour->gigCount = narrow<uint8_t>(g.tour->gigCount + 1);
    g.tour.write();
    entries.push_back(entryFor(g, ScheduleType::gig, date, gig));
    addSchedules(g, entries);
    g.gig.read(gig);
    return gig;
}

double earliestFirstGig(const Game& g) { return g.gameDate + kFirstGigNotice; }

std::string gigBookingRefusal(Game& g, const GigBooking& booking) {
    if (booking.band < 1 || booking.band >= g.band.recordCount()) return "There is no such band.";
    if (booking.venue < 1 || booking.venue >= g.venue.recordCount()) return "There is no such venue.";
    if (booking.contentLevel > 4 || booking.hospitalityLevel > 4 || booking.accommodationLevel > 4)
        return "Production levels run from 0 to 4.";
    g.band.read(booking.band);
    std::string name = trim(g.band->name.value);
    if (g.band->label != g.player.playerLabel || g.player.playerLabel < 1) return name + " isn't signed to your label.";
    if (g.band->retired != kFalse) return name + " has retired.";
    double retirement = retirementDateOfBand(g);
    g.band.read(booking.band);
    if (retirement > 0 && booking.date >= retirement) return retirementMessage(name);
    if (booking.date < earliestFirstGig(g)) return "A gig must be booked at least six weeks ahead.";
    if (bandEngagement(g, 1, booking.date) != 0) {
        g.band.read(booking.band);
        return name + " " + grammarWord(g, 0, false) + " already busy on that day.";
    }
    g.band.read(booking.band);
    return {};
}

BookedGig bookGig(Game& g, const GigBooking& booking) {
    g.band.read(booking.band);
    g.venue.read(booking.venue);
    g.city.read(g.venue->city);
    g.country.read(g.city->country);
    BookedGig out;
    out.tour = createTour(g, trim(g.country->region.value), static_cast<uint8_t>(g.country->id));
    g.tour->contentLevel = booking.contentLevel;
    g.tour->hospitalityLevel = booking.hospitalityLevel;
    g.tour->accommodationLevel = booking.accommodationLevel;
    // A single night is booked without a sponsor; tours bring the choice.
    g.tour->sponsorProduct = 0;
    g.tour.write(out.tour);
    g.tour.read(out.tour);
    out.gig = addGigToTour(g, booking.date, 0);
    return out;
}

void cancelTour(Game& g, int16_t tour) {
    g.tour.read(tour);
    const TourRecord t = g.tour.rec;
    const int32_t onRoad[] = {static_cast<int32_t>(ScheduleType::gig), static_cast<int32_t>(ScheduleType::travelDay),
                              static_cast<int32_t>(ScheduleType::restDay)};
    double previous = 0;
    for (std::size_t i = 0; i < t.gigCount; ++i) {
        const int32_t gig = t.gigs[i];
        g.gig.read(gig);
        const double date = g.gig->gigDate;
        for (double d = i == 0 ? date : previous + 1; d <= date; ++d) {
            for (int32_t id : entriesOfDay(g, d)) {
                g.schedule.read(id);
                const auto type = static_cast<int32_t>(g.schedule->type);
                if (g.schedule->gig != gig || std::find(std::begin(onRoad), std::end(onRoad), type) == std::end(onRoad))
                    continue;
                g.schedule->type = static_cast<uint8_t>(ScheduleType::calledOff);
                g.schedule.write();
            }
        }
        previous = date;
    }
    g.tour.read(tour);
    g.tour->gigCount = 0;
    g.tour.write();
}

const char* const kCantAddGigText =
    "The tour you are booking already contains 40 gigs - this is the maximum allowed for a single tour, as a "
    "result this gig cannot be added. Please either finalise or cancel the tour (by pressing the relevant buttons "
    "on the next screen.)";

int32_t gapBetween(const GigPlace& from, const GigPlace& to) {
    if (to.city == from.city) return 1;
    if (to.country == from.country) return 2;
    return to.area == from.area ? 3 : 5;
}

int32_t gapToNextGig(Game& g, int16_t fromVenue, int16_t toVenue) {
    auto placeOf = [&g](int16_t venue) {
        g.venue.read(venue);
        g.city.read(g.venue->city);
        GigPlace p{.city = g.city->id, .country = g.city->country};
        g.country.read(p.country);
        p.area = trim(g.country->region.value);
        return p;
    };
    const GigPlace from = placeOf(fromVenue);
    return gapBetween(from, placeOf(toVenue));
}

NextGig earliestNextGig(Game& g, int16_t venue, int32_t firstNotice) {
    const TourRecord tour = g.tour.rec;
    if (tour.gigCount == 0) return {g.gameDate + firstNotice, 0};
    g.gig.read(tour.gigs[tour.gigCount - 1u]);
    const double last = g.gig->gigDate;
    const int32_t gap = gapToNextGig(g, g.gig->venue, venue);
    g.tour.rec = tour;
    return {last + gap, gap};
}

namespace {

bool isHomeNation(const std::string& name) {
    return name == "England" || name == "Scotland" || name == "Wales" || name == "Northern Ireland";
}

}  // namespace

bool venueInArea(Game& g, const std::string& area, uint8_t nation, int16_t venue) {
    g.venue.read(venue);
    g.city.read(g.venue->city);
    g.country.read(g.city->country);
    const std::string country = trim(g.country->name.value);
    const int16_t countryId = g.country->id;
    if (nation == 0) return area == "X" || trim(g.country->region.value) == area;
    if (countryId == nation) return true;
    g.country.read(nation);
    return isHomeNation(trim(g.country->name.value)) && isHomeNation(country);
}

bool tourTakesVenue(Game& g, int16_t tour, int16_t venue) {
    g.tour.read(tour);
    return venueInArea(g, trim(g.tour->areaCode.value), g.tour->nation, venue);
}

std::string tourStartRefusal(Game& g, int16_t band) {
    if (band < 1 || band >= g.band.recordCount()) return "There is no such band.";
    g.band.read(band);
    const std::string name = trim(g.band->name.value);
    if (g.band->label != g.player.playerLabel || g.player.playerLabel < 1) return name + " isn't signed to your label.";
    if (g.band->retired != kFalse) return name + " has retired.";
    const double retirement = retirementDateOfBand(g);
    g.band.read(band);
    if (retirement > 0 && retirement <= earliestFirstGig(g)) return retirementMessage(name);
    return {};
}

TourSoFar tourSoFar(Game& g, int16_t tour) {
    g.tour.read(tour);
    const TourRecord t = g.tour.rec;
    TourSoFar so{.band = t.band, .area = trim(t.areaCode.value), .nation = t.nation, .gigCount = t.gigCount};
    if (t.gigCount > 0) {
        g.gig.read(t.gigs[t.gigCount - 1u]);
        so.lastVenue = g.gig->venue;
        so.lastDate = g.gig->gigDate;
    }
    g.tour.rec = t;
    return so;
}

std::string nextGigRefusal(Game& g, const TourSoFar& so, int16_t venue, double date) {
    if (venue < 1 || venue >= g.venue.recordCount()) return "There is no such venue.";
    if (so.gigCount >= 40) return kCantAddGigText;
    std::string start = tourStartRefusal(g, so.band);
    if (!start.empty()) return start;
    if (!venueInArea(g, so.area, so.nation, venue)) return trim(g.venue->name.value) + " lies outside the tour's area.";
    const std::string venueName = trim(g.venue->name.value);
    if (so.gigCount == 0 && date < earliestFirstGig(g)) return "A gig must be booked at least six weeks ahead.";
    if (so.gigCount > 0) {
        const double earliest = so.lastDate + gapToNextGig(g, so.lastVenue, venue);
        if (date < earliest)
            return "The tour can't reach " + venueName + " before " + formatDate(earliest, "d/m/yyyy") + ".";
    }
    g.band.read(so.band);
    const std::string name = trim(g.band->name.value);
    const double retirement = retirementDateOfBand(g);
    g.band.read(so.band);
    if (retirement > 0 && date >= retirement) return retirementMessage(name);
    // The days on the road to it must be free as well as the night itself.
    const double from = so.gigCount > 0 ? so.lastDate + 1 : date;
    if (countFreeDays(g, from, date + 1) != static_cast<int32_t>(date + 1 - from)) {
        g.band.read(so.band);
        return name + " " + grammarWord(g, 0, false) + " already busy on that day" +
               (from < date ? " or on the way." : ".");
    }
    g.band.read(so.band);
    return {};
}

std::string tourGigRefusal(Game& g, int16_t tour, int16_t venue, double date) {
    if (tour < 1 || tour >= g.tour.recordCount()) return "There is no such tour.";
    const TourSoFar so = tourSoFar(g, tour);
    std::string refusal = nextGigRefusal(g, so, venue, date);
    g.tour.read(tour);
    return refusal;
}

int32_t addTourGig(Game& g, int16_t tour, int16_t venue, double date) {
    g.tour.read(tour);
    const NextGig next = earliestNextGig(g, venue);
    g.venue.read(venue);
    return addGigToTour(g, date, std::max(0, next.rest - 1));
}

std::string confirmGigDateText(Game& g, int16_t band, int16_t venue, double date) {
    g.band.read(band);
    g.venue.read(venue);
    return "Are you sure you want " + trim(g.band->name.value) + " to play " + trim(g.venue->name.value) + " on " +
           formatDate(date, "dddd") + " " + formatDate(date, "d/m/yyyy") + "?";
}

}  // namespace trovane

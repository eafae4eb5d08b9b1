// The year's festivals: each one's days, sites, tour and gigs, and the day its
// bill is filled.
#include <algorithm>

#include "live/festivals.h"
#include "live/gigs.h"
#include "live/tours.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/numbers.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kFillNotice = 60;
constexpr int kVenueDraws = 50;

bool travels(const FestivalRecord& f) { return f.travelling != 0; }
bool movesEveryDay(const FestivalRecord& f) { return f.movesDaily != 0; }

// The venues of the festival's area, in record order; every venue when the
// area is the world or names no region.
std::vector<VenueRecord> venuesOfArea(Game& g, const std::string& area) {
    const bool anywhere = area.empty() || area == "X";
    std::vector<std::string> regionOfCountry(static_cast<std::size_t>(g.country.recordCount()));
    for (int32_t n = 1; n < g.country.recordCount(); ++n) {
        g.country.read(n);
        regionOfCountry[static_cast<std::size_t>(n)] = trim(g.country->region.value);
    }
    std::vector<VenueRecord> found;
    for (int32_t n = 1; n < g.venue.recordCount(); ++n) {
        g.venue.read(n);
        const VenueRecord v = g.venue.rec;
        if (!anywhere) {
            if (!g.city.readIfPresent(v.city)) continue;
            auto country = static_cast<std::size_t>(g.city->country);
            if (country >= regionOfCountry.size() || regionOfCountry[country] != area) continue;
        }
        found.push_back(v);
    }
    return found;
}

// A site with room for the expected crowd, drawn at random; after 50 draws
// that found none, the largest of the area.
int16_t drawFestivalSite(Game& g, const std::vector<VenueRecord>& venues, int32_t crowd) {
    if (venues.empty()) return 0;
    for (int i = 0; i < kVenueDraws; ++i) {
        auto at = static_cast<std::size_t>(intFloor(static_cast<double>(g.rng.draw()) * venues.size()));
        at = std::min(at, venues.size() - 1);
        if (venues[at].capacity >= crowd) return venues[at].id;
    }
    auto largest = std::max_element(venues.begin(), venues.end(),
                                    [](const VenueRecord& a, const VenueRecord& b) { return a.capacity < b.capacity; });
    return largest->id;
}

ScheduleRecord entry(ScheduleType type, double date, int32_t gig) {
    ScheduleRecord e{};
    e.type = static_cast<uint8_t>(type);
    e.date = date;
    e.gig = gig;
    return e;
}

void scheduleFestival(Game& g, int year) {
    const FestivalRecord festival = g.festival.rec;
    const int days = std::min<int>(festival.days, 40);
    if (days < 1) return;
    const std::vector<double> dates = festivalDates(festival, year);

    // A festival is a tour with no band of its own.
    int16_t tour = createTour(g, trim(festival.areaCode.value), 0);
    g.tour->band = 0;
    g.tour->festival = festival.festivalNumber;
    // Its levels are 0, the top ones: a festival is an easier day for its acts than a gig of their own.
    g.tour->contentLevel = 0;
    g.tour->hospitalityLevel = 0;
    g.tour->accommodationLevel = 0;
    g.tour.write(tour);

    std::vector<int16_t> sites(static_cast<std::size_t>(days), 0);
    if (!travels(festival)) {
        for (int i = 0; i < days; ++i)
            sites[static_cast<std::size_t>(i)] = festival.fixedVenue[static_cast<std::size_t>(i)];
    } else {
        g.festival.rec = festival;
        int16_t standing = 0;
        const int32_t crowd = expectedAttendance(g, 1, 0, standing);
        const auto venues = venuesOfArea(g, trim(festival.areaCode.value));
        for (int i = 0; i < days; ++i) {
            auto at = static_cast<std::size_t>(i);
            sites[at] = i == 0 || movesEveryDay(festival) ? drawFestivalSite(g, venues, crowd) : sites[0];
        }
    }

    std::vector<int32_t> gigs;
    for (int i = 0; i < days; ++i) {
        g.gig.rec = GigRecord{};
        g.gig->venue = sites[static_cast<std::size_t>(i)];
        g.gig->gigDate = dates[static_cast<std::size_t>(i)];
        g.gig->tour = tour;
        gigs.push_back(g.gig.append());
    }
    g.tour.read(tour);
    for (int i = 0; i < days; ++i) g.tour->gigs[static_cast<std::size_t>(i)] = gigs[static_cast<std::size_t>(i)];
    g.tour->gigCount = narrow<uint8_t>(days);
    g.tour.write();

    // The fill comes first, so a bill filled on the first day plays that day.
    std::vector<ScheduleRecord> entries;
    if (dates[0] > g.gameDate)
        entries.push_back(entry(ScheduleType::festivalBillFill, festivalFillDate(dates[0], g.gameDate), gigs[0]));
    for (int i = 0; i < days; ++i)
        entries.push_back(
            entry(ScheduleType::gig, dates[static_cast<std::size_t>(i)], gigs[static_cast<std::size_t>(i)]));
    addSchedules(g, entries);
    g.tour.read(tour);
    g.festival.rec = festival;
}

}  // namespace

std::vector<double> festivalDates(const FestivalRecord& festival, int year) {
    const int days = std::min<int>(festival.days, 40);
    std::vector<double> dates;
    const double newYear = serialFromCivil(year, 1, 1);
    for (int i = 0; i < days; ++i) {
        auto at = static_cast<std::size_t>(i);
        double date = newYear + 7.0 * (festival.week[at] - 1);
        int move = festival.weekday[at] - weekdayOf(date);
        if (move < 0) move += 7;
        date += move;
        if (i > 0 && date < dates.back()) date += 7;
        dates.push_back(date);
    }
    return dates;
}

double festivalFillDate(double firstDay, double today) { return std::max(firstDay - kFillNotice, today + 1); }

void scheduleFestivals(Game& g, int year) {
    for (int32_t n = 1; n < g.festival.recordCount(); ++n) {
        g.festival.read(n);
        scheduleFestival(g, year);
    }
}

}  // namespace trovane

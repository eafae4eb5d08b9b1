#include "live/tours.h"

#include <algorithm>

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
    std::vector<ScheduleRecord> between;
    if (tour.gigCount > 0) {
        g.gig.read(tour.gigs[tour.gigCount - 1u]);
        double previous = g.gig->gigDate;
        for (double d = previous + 1; d < date; ++d) {
            bool travelling = d - previous <= restDays;
            between.push_back(entryFor(g, travelling ? ScheduleType::travelDay : ScheduleType::restDay, d, 0));
        }
    }
    g.gig.rec = GigRecord{};
    g.gig->bill[0] = tour.band;
    g.gig->venue = g.venue->id;
    g.gig->gigDate = date;
    g.gig->tour = tour.tourNumber;
    int32_t gig = g.gig.append();
    g.tour.rec = tour;
    g.tour->gigs[g.tour->gigCount] = gig;
    g.tour->gigCount = narrow<uint8_t>(g.tour->gigCount + 1);
    g.tour.write();
    between.push_back(entryFor(g, ScheduleType::gig, date, gig));
    addSchedules(g, between);
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
    if (retirement > 0 && booking.date >= retirement) {
        // The game keeps no assistant of its own, so the assistant is a he.
        return "Your assistant has informed you he feels there is insufficient time before " + name +
               "'s retirement to book a tour.";
    }
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

// Not built yet: a tour once filed stays until cancelling is written.
void cancelTour(Game& g, int16_t tour) {
    static_cast<void>(g);
    static_cast<void>(tour);
}

}  // namespace trovane

#include "live/venue_details.h"

#include <algorithm>

#include "world/game.h"
#include "world/strings.h"

namespace trovane {

VenueDetails venueDetails(Game& g, int16_t venue) {
    g.venue.read(venue);
    const VenueRecord v = g.venue.rec;
    VenueDetails d{};
    d.id = venue;
    d.name = trim(v.name.value);
    d.capacity = v.capacity;
    d.rating = v.rating;
    if (v.city > 0 && v.city < g.city.recordCount()) {
        g.city.read(v.city);
        d.city = trim(g.city->name.value);
        const int16_t country = g.city->country;
        if (country > 0 && country < g.country.recordCount()) {
            g.country.read(country);
            d.country = trim(g.country->name.value);
        }
    }
    for (int32_t n = 1; n < g.gig.recordCount(); ++n) {
        g.gig.read(n);
        if (g.gig->venue != venue) continue;
        const GigRecord r = g.gig.rec;
        std::string headliner;
        if (r.bill[0] > 0 && r.bill[0] < g.band.recordCount()) {
            g.band.read(r.bill[0]);
            headliner = trim(g.band->name.value);
        }
        d.gigs.push_back({n, r.gigDate, headliner, r.attendance, r.overallQuality});
    }
    std::stable_sort(d.gigs.begin(), d.gigs.end(), [](const VenueGigLine& a, const VenueGigLine& b) {
        return a.date != b.date ? a.date > b.date : a.gig > b.gig;
    });
    g.venue.read(venue);
    return d;
}

}  // namespace trovane

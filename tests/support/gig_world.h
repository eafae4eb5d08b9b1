#pragma once
// The disc world's label and band of two, with countries, cities and venues
// to play, for the gig and booking tests.
#include "live/tours.h"
#include "support/amend.h"
#include "support/disc_world.h"

namespace trovane::test {

class GigWorld : public DiscWorld {
public:
    int16_t england = 0, france = 0, brazil = 0;
    int16_t leeds = 0, paris = 0, rio = 0;

    GigWorld() {
        g.gameDate = serialFromCivil(2004, 1, 5);
        g.gameStartDate = g.gameDate;
        england = addCountry("England", "E");
        france = addCountry("France", "E");
        brazil = addCountry("Brazil", "S");
        leeds = addCity("Leeds", england);
        paris = addCity("Paris", france);
        rio = addCity("Rio", brazil);
        amend(g.style, style, [&] {
            g.style->singingWeight = 50;
            g.style->dancingWeight = 30;
            g.style->contentWeight = 20;
        });
    }

    int16_t addCountry(const char* name, const char* region) {
        g.country.rec = CountryRecord{.name = name, .region = region};
        return static_cast<int16_t>(g.country.append());
    }
    int16_t addCity(const char* name, int16_t country) {
        g.city.rec = CityRecord{.name = name, .country = static_cast<uint8_t>(country)};
        return static_cast<int16_t>(g.city.append());
    }
    int16_t addVenue(const char* name, int32_t capacity, int16_t city) {
        g.venue.rec = VenueRecord{.name = name, .capacity = capacity, .city = city};
        return static_cast<int16_t>(g.venue.append());
    }

    // A tour of one gig at the venue for the band, at the given levels; the
    // gig, tour, venue, city and country buffers hold it.
    int32_t oneGig(int16_t venue, uint8_t content = 4, uint8_t hospitality = 4, uint8_t accommodation = 4) {
        g.band.read(band);
        g.venue.read(venue);
        int16_t tour = createTour(g, "E", 0);
        g.tour->contentLevel = content;
        g.tour->hospitalityLevel = hospitality;
        g.tour->accommodationLevel = accommodation;
        g.tour->sponsorProduct = 0;
        g.tour.write(tour);
        int32_t gig = addGigToTour(g, g.gameDate, 0);
        load(gig);
        return gig;
    }
    void load(int32_t gig) {
        g.gig.read(gig);
        g.tour.read(g.gig->tour);
        g.venue.read(g.gig->venue);
        g.city.read(g.venue->city);
        g.country.read(g.city->country);
        g.band.read(g.gig->bill[0]);
    }
    void setMembers(int16_t energy, int32_t wealth = 0) {
        g.band.read(band);
        for (int i = 0; i < 2; ++i) {
            amend(g.artist, g.band->members[static_cast<std::size_t>(i)], [&] {
                g.artist->energy = energy;
                g.artist->wealth = wealth;
            });
        }
    }
    int32_t wealthOfFirstMember() {
        g.band.read(band);
        g.artist.read(g.band->members[0]);
        return g.artist->wealth;
    }
};

}  // namespace trovane::test

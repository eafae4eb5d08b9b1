#pragma once
// The gig world with Scotland, the US and a rival act, for the tour planner:
// venues are added with the rating they ask of an act.
#include "support/amend.h"
#include "support/gig_world.h"

namespace trovane::test {

class TourWorld : public GigWorld {
public:
    int16_t scotland = 0, usa = 0;
    int16_t glasgow = 0, york = 0, lyon = 0, boston = 0;
    int16_t rivalBand = 0;

    TourWorld() {
        scotland = addCountry("Scotland", "E");
        usa = addCountry("USA", "N");
        glasgow = addCity("Glasgow", scotland);
        york = addCity("York", england);
        lyon = addCity("Lyon", france);
        boston = addCity("Boston", usa);
        rivalBand = addBand("The Others", rival);
    }

    int16_t addRatedVenue(const char* name, int32_t capacity, int16_t city, uint8_t rating = 0) {
        int16_t v = addVenue(name, capacity, city);
        amend(g.venue, v, [&] { g.venue->rating = rating; });
        return v;
    }
    void setReputation(int16_t act, std::array<uint8_t, 5> rep) {
        amend(g.band, act, [&] { g.band->reputation = rep; });
    }
    // n venues of the given capacity, in the English cities by turns.
    void addEnglishVenues(int n, int32_t capacity) {
        for (int i = 0; i < n; ++i) addRatedVenue("Hall", capacity, i % 2 == 0 ? leeds : york);
    }
    int32_t liveTours() {
        int32_t count = 0;
        for (int32_t n = 1; n < g.tour.recordCount(); ++n) {
            g.tour.read(n);
            if (g.tour->gigCount > 0) ++count;
        }
        return count;
    }
};

}  // namespace trovane::test

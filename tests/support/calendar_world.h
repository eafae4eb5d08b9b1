#pragma once
// A few hand-made records for the schedule and inbox tests.
#include <initializer_list>
#include <string>
#include <vector>

#include "schedule/schedule.h"
#include "support/amend.h"
#include "world/dates.h"
#include "world/game.h"

namespace trovane::test {

inline double day(int y, unsigned m, unsigned d) { return serialFromCivil(y, m, d); }

// A band whose members have the given energies (a negative one is resting).
inline int16_t addBand(Game& g, std::initializer_list<int> energies, int16_t label = 0,
                       const std::string& name = "The Testers") {
    std::vector<int16_t> members;
    for (int e : energies) {
        g.artist.rec = ArtistRecord{.male = kTrue, .energy = static_cast<int16_t>(e), .morale = 50};
        members.push_back(static_cast<int16_t>(g.artist.append()));
    }
    g.band.rec = BandRecord{.name = name, .label = label, .memberCount = static_cast<uint8_t>(members.size())};
    for (std::size_t i = 0; i < members.size(); ++i) g.band->members[i] = members[i];
    int16_t id = static_cast<int16_t>(g.band.append());
    for (int16_t m : members) {
        amend(g.artist, m, [&] { g.artist->band = id; });
    }
    return id;
}

// A one-gig tour headlined by `headliner` (0 leaves the first act slot empty).
inline int32_t addGig(Game& g, int16_t headliner, double date, std::initializer_list<int16_t> support = {},
                      int16_t tourBand = -2, int16_t festival = 0) {
    g.tour.rec = TourRecord{.band = tourBand == -2 ? headliner : tourBand,
                            .festival = festival,
                            .supportCount = static_cast<uint8_t>(support.size())};
    int16_t tour = static_cast<int16_t>(g.tour.append());
    g.gig.rec = GigRecord{.bill = {headliner}, .tour = tour, .gigDate = date};
    std::size_t slot = 1;
    for (int16_t s : support) g.gig->bill[slot++] = s;
    int32_t gig = g.gig.append();
    amend(g.tour, tour, [&] {
        g.tour->gigCount = 1;
        g.tour->gigs[0] = gig;
    });
    return gig;
}

inline int32_t file(Game& g, uint8_t type, double date, int16_t band = 0, int32_t gig = 0) {
    return addSchedule(g, ScheduleRecord{.type = type, .date = date, .band = band, .gig = gig});
}

}  // namespace trovane::test

#pragma once
// A venue's card: where it is, how big, and the gigs played there.
#include <cstdint>
#include <string>
#include <vector>

namespace trovane {

class Game;

struct VenueGigLine {
    int32_t gig;
    double date;
    std::string headliner;  // the first act of the bill, "" when the slot is empty
    int32_t attendance;
    int quality;  // overall, percent
};

struct VenueDetails {
    int16_t id;
    std::string name;
    std::string city;
    std::string country;
    int32_t capacity;
    int rating;
    std::vector<VenueGigLine> gigs;  // the latest first; a later record first among one date
};

VenueDetails venueDetails(Game& g, int16_t venue);

}  // namespace trovane

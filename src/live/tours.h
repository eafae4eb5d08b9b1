#pragma once
// A band's tour: its record, its gigs one by one, and the player's booking of
// a single night as a tour of one.
#include <cstdint>
#include <string>

namespace trovane {

class Game;

// Adds a tour for the band in the band buffer, with no sponsor chosen yet
// (sponsorProduct -1). The tour buffer holds it. Returns its number.
int16_t createTour(Game& g, const std::string& areaCode, uint8_t nation);

// Adds a gig at the venue in the venue buffer to the tour in the tour buffer.
// After the first gig, `restDays` travel days follow the previous gig and rest
// days fill the rest up to the day before. Files the type 8 entry. Returns the
// gig's number; the tour and gig buffers hold the tour and its new gig.
int32_t addGigToTour(Game& g, double date, int32_t restDays);

// The player books band `band` to play venue `venue` on `date` at the three
// production levels (0 top to 4 bottom).
struct GigBooking {
    int16_t band = 0;
    int16_t venue = 0;
    double date = 0;
    uint8_t contentLevel = 2;
    uint8_t hospitalityLevel = 2;
    uint8_t accommodationLevel = 2;
};

// The first day a tour's first gig may be played: six weeks from today.
double earliestFirstGig(const Game& g);

// Why the booking can't be made, in the game's words; empty when it can.
// Changes nothing the game keeps (buffers may move).
std::string gigBookingRefusal(Game& g, const GigBooking& booking);

struct BookedGig {
    int16_t tour = 0;
    int32_t gig = 0;
};
// Books the gig as a tour of one: no support acts, no sponsor. The caller
// has had an empty refusal.
BookedGig bookGig(Game& g, const GigBooking& booking);

// Removes tour `tour`: its entries become type 255 and its gigCount 0;
// nothing is deleted.
void cancelTour(Game& g, int16_t tour);

}  // namespace trovane

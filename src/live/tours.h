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

// Removes tour `tour`: the entries of its gigs and of the travel and rest
// days between them become type 255 and its gigCount 0; nothing is deleted.
void cancelTour(Game& g, int16_t tour);

// Where a gig is played, as far as travel goes.
struct GigPlace {
    int16_t city = 0;
    int16_t country = 0;
    std::string area;
};

// The days a band needs from one place to the next: 1 within a city, 2 within
// a country, 3 within an area, 5 to another area.
int32_t gapBetween(const GigPlace& from, const GigPlace& to);
// The same from one venue to the next.
int32_t gapToNextGig(Game& g, int16_t fromVenue, int16_t toVenue);

// The first date the tour in the tour buffer may play `venue`: its last gig's
// date plus the gap, with `rest` the gap in days; with no gig yet, today plus
// `firstNotice` days and no rest. The tour buffer is kept.
struct NextGig {
    double date = 0;
    int32_t rest = 0;
};
NextGig earliestNextGig(Game& g, int16_t venue, int32_t firstNotice = 42);

// Whether tour `tour` may play `venue`: a nation takes its own venues (England,
// the UK, takes the four home nations'), an area without one takes the area's
// and a world tour takes any.
bool tourTakesVenue(Game& g, int16_t tour, int16_t venue);
bool venueInArea(Game& g, const std::string& area, uint8_t nation, int16_t venue);

// The message of a tour that already holds 40 gigs.
extern const char* const kCantAddGigText;

// Why the player's tour can't be started for the band, in the game's words;
// empty when it can.
std::string tourStartRefusal(Game& g, int16_t band);

// Where a tour stands while gigs are added to it: what the next gig is
// tested against.
struct TourSoFar {
    int16_t band = 0;
    std::string area;
    uint8_t nation = 0;
    int gigCount = 0;
    int16_t lastVenue = 0;
    double lastDate = 0;
};
TourSoFar tourSoFar(Game& g, int16_t tour);

// Why `venue` on `date` can't follow the gigs so far; empty when it can. A
// 41st gig gets kCantAddGigText; the band must be free on the night and on
// the road to it. Changes nothing the game keeps.
std::string nextGigRefusal(Game& g, const TourSoFar& so, int16_t venue, double date);
// The same for the player's tour `tour` as it stands.
std::string tourGigRefusal(Game& g, int16_t tour, int16_t venue, double date);

// Adds the gig to the tour, with the gap less one of travel days after the
// previous gig and rest days after them. The caller has had an empty refusal.
int32_t addTourGig(Game& g, int16_t tour, int16_t venue, double date);

// The "Confirm Gig Date" question.
std::string confirmGigDateText(Game& g, int16_t band, int16_t venue, double date);

}  // namespace trovane

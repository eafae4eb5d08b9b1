#pragma once
// The tour planner: a whole tour made from an act's standing, with no hand in
// it. The rival labels use it after an album (mode 1) and for a follow-up tour
// (mode 3); the player's assistant uses it for the tour the player asked for
// (mode 2). Every step works on the act in the band buffer.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace trovane {

class Game;

// Where a rival tour goes: 0 the UK and Europe, 1 North America, 2 Oceania,
// 3 the whole world (every venue of every area).
using TourFlags = std::array<bool, 4>;
inline constexpr std::size_t kWorldFlag = 3;

TourFlags chooseTourRegions(const Game& g);

// A venue that may take a gig of the tour, with what the planner needs of it.
struct TourVenue {
    int16_t venue = 0;
    int32_t capacity = 0;
    int16_t city = 0;
    int16_t country = 0;
    std::string region;
    bool used = false;
};

// The crowd the act would draw with reputation r, as the planner sizes
// venues: the plain estimate x 0.66.
int32_t tourCrowdSize(Game& g, int r);

// The venues that suit the act. Modes 1 and 3 go by the flags; mode 2 by the
// area (and nation, 0 for none) of the player's tour.
std::vector<TourVenue> listTourVenues(Game& g, int mode, const TourFlags& flags, const std::string& areaCode,
                                      uint8_t nation);
// Largest first; equal capacities keep their order.
void sortVenuesBySize(std::vector<TourVenue>& venues);

// The days from one venue to the next: same city 1, country 2, area 3, else 5.
int32_t plannedGap(const TourVenue& from, const TourVenue& to);

struct PlannedGig {
    std::size_t venue = 0;  // index into the venue list
    double date = 0;
    int32_t rest = 0;  // travel days before it
};

// The index of the next free venue for a tour that holds `gigs` so far
// (venue indexes, in order), or -1 when none may be taken.
int pickNextVenue(const std::vector<TourVenue>& venues, const std::vector<PlannedGig>& gigs, uint8_t nation);

// Chooses the nights of the tour (it draws on g.rng) without filing anything.
// `firstDate` is the earliest day of the first gig.
std::vector<PlannedGig> planTourGigs(Game& g, std::vector<TourVenue>& venues, double firstDate, uint8_t nation);
// Files the planned gigs on the tour in the tour buffer.
void bookTourGigs(Game& g, const std::vector<TourVenue>& venues, const std::vector<PlannedGig>& plan);

// The levels a rival sets from the act's demands and its style's content weight.
uint8_t hospitalityLevelFor(int topAttitudeLevel);
uint8_t contentLevelFor(int contentWeight);

// The best-paying product that fits tour `tour`, or -1 for none.
int16_t chooseSponsor(Game& g, int16_t tour);

// A rival's tour for the act: area from the flags, levels, sponsor. The tour
// buffer holds it; returns its number.
int16_t createRivalTour(Game& g, const TourFlags& flags);

// Up to three acts of the headliner's style family, free for the whole tour
// and no bigger draw than the headliner, join every gig of tour `tour`; an
// act of the player's is asked instead (one offer for the tour). Returns the
// number placed.
int chooseSupportBands(Game& g, int16_t tour);

// The earliest retirement date among the act's members, or 0 for none.
double actRetirementDate(Game& g);

}  // namespace trovane

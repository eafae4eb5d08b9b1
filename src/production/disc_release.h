#pragma once
// Releasing a disc: dates, pressing, distribution and release day.
#include <array>
#include <cstdint>
#include <string>

#include "world/numbers.h"

namespace trovane {

class Game;

// Schedule type 15: the entry's disc comes out.
void releaseDay(Game& g);
// Schedule type 25: a week of pressing of the entry's disc is done.
void pressWeek(Game& g);
// Schedule type 26: the entry's disc needs a distributor before it comes out.
void distributorNeeded(Game& g);

// The marketing department's lift on a reputation: the label of the current
// band, held 1 to 100. A perfect department adds 25.
int releaseHype(Game& g, int reputation);

// For the current disc and band: today + 42, pushed to 180 days (45 for a
// single) after each other disc of the band of the same kind dated in t.
double earliestReleaseDate(Game& g, int t);
// The first Monday the form offers for the current disc and band in t, or 0.
double firstOfferedReleaseDate(Game& g, int t);
// Why the current disc of the current band cannot come out in t on date, in
// the game's words, or "" when it can. Changes nothing but buffers.
std::string releaseDateRefusal(Game& g, int t, double date);
// For each future releaseDate of the current disc: a release entry (15) on
// the day and a distributor entry (26) a week before, once per date. Earlier
// release entries of the disc, and their distributor entries, become 255.
void scheduleRelease(Game& g);

// Setting the release dates of the player's disc: the check and the action.
// dates[t] of kNoDate leaves the territory unreleased.
std::string setReleaseDatesRefusal(Game& g, int16_t disc, const std::array<double, 5>& dates);
void setReleaseDates(Game& g, int16_t disc, const std::array<double, 5>& dates);

// The copies a disc is foreseen to sell in t over its whole run (current disc).
int32_t forecastSales(Game& g, int t);
// The press form's five figures (0 where the disc is not released) and its
// text. Sets promotion and hype of each released territory on the disc
// buffer (not written).
struct PressForecast {
    std::array<int32_t, 5> figure{};
    std::string text;
};
PressForecast pressForecast(Game& g);

// The quantities the press form offers.
inline constexpr std::array<int32_t, 15> kPressQuantities = {0,       1000,    5000,     10000,    25000,
                                                             50000,   100000,  250000,   500000,   1000000,
                                                             2500000, 5000000, 10000000, 15000000, 20000000};

float pressingCostPerUnit(int32_t copies);
Money pressingCost(int32_t copies);
Money distributionCost(int32_t copies, int quality, bool single);

// Pressing the player's disc at a plant: the check and the action.
std::string pressDiscsRefusal(Game& g, int16_t disc, int16_t plant, const std::array<int32_t, 5>& copies);
void pressDiscs(Game& g, int16_t disc, int16_t plant, const std::array<int32_t, 5>& copies);

// The firm the rivals would choose to distribute the current disc in t.
int16_t rivalChooseDistributor(Game& g, int t);
// Every territory of the current disc dated a week from today takes the
// rivals' choice; the disc is written.
void rivalAssignDistributors(Game& g);

// Choosing distributors for the player's disc: the territories dated within
// the week, the check and the action (empty choices take the proposal), and
// the bill for the territories released today + 6 (+ 7 for a rival).
std::string distributorsRefusal(Game& g, int16_t disc, const std::array<int16_t, 5>& firms);
void chooseDistributors(Game& g, int16_t disc, const std::array<int16_t, 5>& firms);
void chargeDistribution(Game& g, int daysAhead);

// Territory names as the game writes them in different places.
inline constexpr std::array<const char*, 5> kTerritoryKeys = {"uk", "us", "europe", "oceania", "other"};

}  // namespace trovane

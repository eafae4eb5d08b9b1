#pragma once
// The band browser: its filter and the filling of its grid.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "browse/grid.h"
#include "world/numbers.h"

namespace trovane {

class Game;

// The band browser's filter, kept for the session. Money in the base currency.
struct BandFilter {
    uint8_t style = 0;   // 0 all
    int16_t label = -1;  // -1 all, 0 unsigned
    Money advanceMin = 0;
    Money advanceMax = 0;
    uint8_t royaltyMin = 0, royaltyMax = 100;
    float gigMin = 0, gigMax = 100;
    uint8_t ageMin = 0, ageMax = 50;
    std::string name;
    std::array<uint8_t, 5> reputationMin{};
    std::array<uint8_t, 5> reputationMax{100, 100, 100, 100, 100};
    int16_t referenceBand = 0;
    bool sameStyleOnly = false;
    bool supportOnly = false;
    bool shortlistOnly = false;
};

// Column codes of the band browser.
enum BandColumn : int {
    bcName = 20,
    bcStyle = 21,
    bcAdvance = 22,
    bcLabel = 23,
    bcAdded = 24,
    bcPos = 25,
    bcAdvanceValue = 26,
    bcActivity = 27,
};

// The defaults; the advance's top is 50,000,000 of the display currency.
void resetBandFilter(const Game& g, BandFilter& filter);

// The exchange rate money is shown at; a rate of 0 counts as 1.
double displayRate(const Game& g);
// A whole amount typed in the display currency, in the base currency.
Money moneyFromDisplay(const Game& g, double displayAmount);

// The amounts the filter's money combos offer, in the display currency.
inline constexpr std::array<double, 12> kAdvanceSteps = {0,          50'000,     100'000,    250'000,
                                                         500'000,    1'000'000,  2'500'000,  5'000'000,
                                                         10'000'000, 15'000'000, 20'000'000, 25'000'000};
// The next listed amount above `shown` (direction 1) or below it (-1); at
// either end of the list the amount stays.
double stepAdvance(double shown, int direction);

// Fills the grid. Mode 1 walks every band that has not retired through the
// filter; modes 2 and 3 list the bands on the bill of the gig buffer, as
// many as the tour buffer holds (mode 2 one more than mode 3), unfiltered.
// Below mode 3 the grid is then sorted by `sort`.
void populateBandGrid(Game& g, int mode, const BandFilter& filter, const std::vector<int>& columns,
                      const GridSort& sort, Grid& grid);

// The search and shortlist columns of frmBandBrowse, and its booking columns.
inline const std::vector<int> kBandSearchColumns = {bcName, bcStyle, bcAdvance, bcAdvanceValue, bcLabel};
inline const std::vector<int> kBandBookingColumns = {bcAdded, bcName, bcStyle, bcAdvance, bcAdvanceValue};

}  // namespace trovane

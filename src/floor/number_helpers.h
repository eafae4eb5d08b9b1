#pragma once
// Small number helpers every part of the game leans on: clamps that keep
// fields in range, the money steps of the offer spinners, typed amounts, and
// the regional reputation of a band.
#include <cstdint>
#include <string_view>

namespace trovane {

class Game;

// Holds value to [low, high], writes the limit back when it was passed, and
// returns the result. 16-bit fields go through it before any sum that could
// overflow them.
int16_t clampInteger(int16_t& value, int16_t low, int16_t high);
// The same for 32-bit values.
int32_t clampLong(int32_t& value, int32_t low, int32_t high);

// The step of the money spinners for an amount: 5 below 100, growing with the
// amount, and 500,000 from 10,000,000 up and for negative amounts.
int32_t moneyStep(int32_t value);

// Rounds value to the nearest multiple of its step (halves to the even
// multiple), writes it back and returns it. Wages, advances, costs and fees
// are shown as round sums this way.
int32_t roundToMoneyStep(int32_t& value);

// One click of an up or down arrow: adds or takes away the step of the amount
// as it stands before the click; going down stops at 0.
int32_t stepMoney(bool up, int32_t& value);

// The digits of a typed text, in order, read as one whole number ("£1,250"
// gives 1250). A text without any digit, or with a number too large for 32
// bits, is a fatal error.
int32_t digitsOf(std::string_view text);

// The current band's five regional reputations weighted 8, 10, 7, 5 and 3.
int32_t bandGlobalReputation(const Game& g);

// Fills five regional reputation bytes, given in order of importance (the
// caller orders them by the home market). Mode 1, a new label: 40, 20, 15, 10
// and 5. Mode 2, a new band: shares of the current band's ability with a
// random spread, one draw each, none below 2. Any other mode changes nothing.
void setRegionalShares(Game& g, int mode, uint8_t& a, uint8_t& b, uint8_t& c, uint8_t& d, uint8_t& e);

}  // namespace trovane

#pragma once
// The number and date masks the game shows figures with.
#include <string>
#include <string_view>

#include "world/numbers.h"

namespace trovane {

class Game;

// A number through a mask of '#' (digit if any), '0' (digit always), ','
// (group thousands) and '.' (decimal point), as "###,###,##0" or "##0.00".
// Halves round away from zero. Only '#' digits before the point means a zero
// shows as nothing at all, as the game's masks do.
std::string formatNumber(double value, std::string_view mask);

// A date serial through a mask of d, dd, ddd, dddd, m, mm, mmm, mmmm, yy and
// yyyy; any other character stands as it is ("dddd d/m/yyyy ").
std::string formatDate(double serial, std::string_view mask);

// The weekday's and the month's names, English as the game shows them.
std::string_view weekdayName(int weekday);   // 1 Sunday
std::string_view monthName(unsigned month);  // 1 January

// Game money as the player sees it: the preferences' symbol, then the amount
// times the exchange rate through the mask. A rate of 0 counts as 1.
std::string formatMoney(const Game& g, Money amount, std::string_view mask);
// A plain figure already in whole base units (advances, fees) shown the same way.
std::string formatMoneyValue(const Game& g, double units, std::string_view mask);

}  // namespace trovane

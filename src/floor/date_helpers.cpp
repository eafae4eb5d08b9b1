#include "floor/date_helpers.h"

#include <cmath>

#include "world/dates.h"
#include "world/game.h"

namespace trovane {

int16_t dayOfYear(double date) {
    return static_cast<int16_t>(std::floor(date) - serialFromCivil(yearOf(date), 1, 1) + 1);
}

int16_t weekOfYear(double date) {
    int firstWeekday = weekdayOf(serialFromCivil(yearOf(date), 1, 1));
    return static_cast<int16_t>((dayOfYear(date) + firstWeekday - 2) / 7 + 1);
}

double randomBirthDate(Game& g, uint8_t age) {
    auto day = static_cast<unsigned>(g.rng.between(1, 30));
    auto month = static_cast<unsigned>(g.rng.between(1, 11));
    int year = yearOf(g.gameDate) - age;
    // The day of the year, not the calendar day, decides, so across a leap
    // year a birthday next to today's can land a year off.
    if (dayOfYear(serialFromCivil(year, month, day)) > dayOfYear(g.gameDate)) --year;
    return serialFromCivil(year, month, day);
}

}  // namespace trovane

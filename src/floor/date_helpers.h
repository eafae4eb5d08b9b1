#pragma once
// Date helpers of the game logic. Weeks start on Sunday and the week that
// holds 1 January is week 1.
#include <cstdint>

namespace trovane {

class Game;

// 1 for 1 January up to 365 or 366; the record number of the date in a day file.
int16_t dayOfYear(double date);

// The week of the year, 1 for the week that holds 1 January; weeks start on Sunday.
int16_t weekOfYear(double date);

// A birth date for someone who is `age` today: a random day from 1 to 30 of a
// random month from January to November (so never a 31st nor December; 29
// and 30 February run on into March) in the year of the game date less `age`,
// one year earlier when its day of the year lies past today's.
double randomBirthDate(Game& g, uint8_t age);

}  // namespace trovane

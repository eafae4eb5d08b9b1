#pragma once
// The schedule: every later happening is a dated entry, listed in the day
// index of its year and carried out on its day.

namespace trovane {

class Game;

// Carries out every schedule entry of gameDate, in the order they were filed.
void performDaysEvents(Game& g);

// Makes the day index file of a year.
void addScheduleYear(Game& g, int year);

}  // namespace trovane

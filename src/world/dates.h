#pragma once
// The game's dates: whole days since 30 December 1899, held in a double.
// Weekdays count from Sunday = 1 to Saturday = 7.
#include <chrono>
#include <cstdint>

namespace trovane {

struct CivilDate {
    int year;
    unsigned month;  // 1 to 12
    unsigned day;    // 1 to 31
};

// 1 January 1900 in a date field means "none".
inline constexpr double kNoDate = 2.0;

double serialFromCivil(int year, unsigned month, unsigned day);
CivilDate civilFromSerial(double serial);

// 1 Sunday ... 7 Saturday.
int weekdayOf(double serial);
int yearOf(double serial);
unsigned monthOf(double serial);
unsigned dayOf(double serial);
bool isLeapYear(int year);
int daysInYear(int year);
unsigned daysInMonth(int year, unsigned month);

}  // namespace trovane

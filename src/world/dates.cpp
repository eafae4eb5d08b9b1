#include "world/dates.h"

#include <cmath>

namespace trovane {
namespace {

using namespace std::chrono;

constexpr sys_days kEpoch = sys_days{year{1899} / December / 30};

sys_days daysOf(double serial) { return kEpoch + days{static_cast<int64_t>(std::floor(serial))}; }

}  // namespace

double serialFromCivil(int y, unsigned m, unsigned d) {
    sys_days sd{year{y} / month{m} / day{d}};
    return static_cast<double>((sd - kEpoch).count());
}

CivilDate civilFromSerial(double serial) {
    year_month_day ymd{daysOf(serial)};
    return {static_cast<int>(ymd.year()), static_cast<unsigned>(ymd.month()), static_cast<unsigned>(ymd.day())};
}

int weekdayOf(double serial) { return static_cast<int>(weekday{daysOf(serial)}.c_encoding()) + 1; }
int yearOf(double serial) { return civilFromSerial(serial).year; }
unsigned monthOf(double serial) { return civilFromSerial(serial).month; }
unsigned dayOf(double serial) { return civilFromSerial(serial).day; }
bool isLeapYear(int y) { return year{y}.is_leap(); }
int daysInYear(int y) { return isLeapYear(y) ? 366 : 365; }

unsigned daysInMonth(int y, unsigned m) { return static_cast<unsigned>((year{y} / month{m} / last).day()); }

}  // namespace trovane

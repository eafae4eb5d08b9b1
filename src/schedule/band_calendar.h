#pragma once
// A band's calendar: which entry keeps it busy on a day, free stretches, and
// the month calendar on which an appearance is booked (frmChooseDate).
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace trovane {

class Game;

// The id of the entry that occupies the band in the band buffer on date, or 0.
// Its own recording, gig, travel, rest, signing, release, appearance or
// retirement makes it busy at once; a place on another act's bill (support
// slots of a tour, any slot of a festival) makes it busy too, and the last
// such entry of the day is the answer. Only mode 1 tests anything. A year
// without a day file is free. Leaves the schedule, gig, tour and festival
// buffers as a walk of the day's entries leaves them, and no day file open;
// the answer comes from the engagement index, or from that walk when the
// index cannot give it (a day file was open).
int32_t bandEngagement(Game& g, int mode, double date);

// The same answer found by walking every entry of the day, as the index's
// check; leaves the schedule, gig, tour and festival buffers changed.
int32_t bandEngagementByWalk(Game& g, double date);

// Days from `from` up to but not including `to` on which the current band is
// free. These three leave the buffers as a walk of every day they test does.
int32_t countFreeDays(Game& g, double from, double to);

// The first date on or after `from` on which the current band is free.
double nextFreeDate(Game& g, double from);

// The first `count` dates on or after `from` on which the current band is free, in order.
std::vector<double> nextFreeDates(Game& g, double from, int count);

// What the calendar shows for an entry: "None" for 0, an empty text for a
// type that doesn't occupy a band.
std::string scheduleActivityText(Game& g, int32_t id);

// "st", "nd", "rd" or "th" after a day of the month.
std::string_view daySuffix(unsigned day);

struct CalendarMonth {
    int year;
    unsigned month;  // 1 to 12
    friend bool operator==(const CalendarMonth&, const CalendarMonth&) = default;
};

// The month frmChooseDate opens on: the month after gameDate's in mode 1,
// the month of gameDate plus six weeks in mode 2.
CalendarMonth firstCalendarMonth(const Game& g, int mode);

// The month `months` away: -1 and 1 for cmdMonthLeft and cmdMonthRight, -12
// and 12 for cmdYearLeft and cmdYearRight.
CalendarMonth stepCalendarMonth(CalendarMonth m, int months);

struct CalendarCell {
    bool visible = false;  // days past the month's last are hidden
    double date = 0;
    std::string dayText;   // "Thu : 5th"
    std::string activity;  // shown and used as the tool tip
    bool choosable = false;
};

struct MonthCalendarView {
    std::string monthText;  // "August"
    std::string yearText;   // "2004"
    std::array<CalendarCell, 31> cells;
};

// The month of the band in the band buffer, one cell per day.
MonthCalendarView monthCalendar(Game& g, CalendarMonth m);

// The date a click on cell `day` (1 to 31) returns to the screen that asked,
// or nothing for a hidden or busy day.
std::optional<double> chooseCalendarDay(const MonthCalendarView& view, unsigned day);

}  // namespace trovane

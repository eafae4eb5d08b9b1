#include "schedule/band_calendar.h"

#include <algorithm>

#include "floor/formats.h"
#include "schedule/engagement_index.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane {

namespace {

// Keeps one year's day file open while a stretch of dates is tested, so a
// stretch costs one opening per year and not one per day.
class DayReader {
public:
    explicit DayReader(Game& g) : g_(g) {}
    DayReader(const DayReader&) = delete;
    DayReader& operator=(const DayReader&) = delete;
    ~DayReader() {
        try {
            closeDayFile(g_);
        } catch (...) {}
    }

    // The day's record in the day buffer, or nullptr when its year has no file.
    const DayRecord* day(double date) {
        int year = yearOf(date);
        if (year != year_) {
            year_ = year;
            present_ = hasDayFile(g_, year);
            // A walk may cross the year's end: the old year's file is closed first.
            closeDayFile(g_);
            if (present_) openDayFile(g_, year);
        }
        if (!present_) return nullptr;
        g_.dayIndex.read(dayNumberInYear(date));
        return &g_.dayIndex.rec;
    }

private:
    Game& g_;
    int year_ = 0;
    bool present_ = false;
};

// True when the band stands on the bill of the entry's gig as a support act
// (a tour) or anywhere on a festival's bill.
bool onTheBill(Game& g, const ScheduleRecord& e, int16_t band) {
    if (e.gig < 1) return false;
    g.gig.read(e.gig);
    if (g.gig->tour > 0)
        g.tour.read(g.gig->tour);
    else
        g.tour.rec = TourRecord{};
    int first = 1;
    int last = g.tour->supportCount;
    if (g.tour->festival != 0) {
        g.festival.read(g.tour->festival);
        first = 0;
        last = g.festival->billSize - 1;
    }
    last = std::min(last, static_cast<int>(g.gig->bill.size()) - 1);
    bool found = false;
    for (int slot = first; slot <= last; ++slot)
        if (g.gig->bill[static_cast<std::size_t>(slot)] == band) found = true;
    return found;
}

int32_t walkTheDay(Game& g, const DayRecord* d) {
    if (d == nullptr) return 0;
    int16_t band = g.band->id;
    int32_t supporting = 0;
    int32_t count = std::clamp(d->count, 0, kMaxEntriesPerDay);
    for (int32_t i = 0; i < count; ++i) {
        g.schedule.read(d->entries[static_cast<std::size_t>(i)]);
        const ScheduleRecord e = g.schedule.rec;
        if (e.band == band) {
            if (scheduleTypeInfo(e.type).occupiesBand) return e.id;
        } else if (scheduleTypeInfo(e.type).occupiesTheBill && onTheBill(g, e, band)) {
            supporting = e.id;
        }
    }
    return supporting;
}

// The index answers when it can; the walk of the day's entries otherwise.
int32_t engagementOn(Game& g, DayReader& reader, double date) {
    if (auto id = indexedEngagement(g, g.band->id, date)) return *id;
    return walkTheDay(g, reader.day(date));
}

}  // namespace

int32_t bandEngagementByWalk(Game& g, double date) {
    DayReader reader(g);
    return walkTheDay(g, reader.day(date));
}

int32_t bandEngagement(Game& g, int mode, double date) {
    if (mode != 1) return 0;
    DayReader reader(g);
    return engagementOn(g, reader, date);
}

int32_t countFreeDays(Game& g, double from, double to) {
    if (from >= to) return 0;
    DayReader reader(g);
    int32_t free = 0;
    for (double d = from; d < to; d += 1)
        if (engagementOn(g, reader, d) == 0) ++free;
    return free;
}

double nextFreeDate(Game& g, double from) {
    DayReader reader(g);
    double d = from;
    while (engagementOn(g, reader, d) != 0) d += 1;
    return d;
}

std::vector<double> nextFreeDates(Game& g, double from, int count) {
    DayReader reader(g);
    std::vector<double> dates;
    for (double d = from; static_cast<int>(dates.size()) < count; d += 1)
        if (engagementOn(g, reader, d) == 0) dates.push_back(d);
    return dates;
}

std::string scheduleActivityText(Game& g, int32_t id) {
    if (id == 0) return "None";
    g.schedule.read(id);
    const ScheduleRecord e = g.schedule.rec;
    const auto activity = scheduleTypeInfo(e.type).activity;
    return activity != nullptr ? activity(g, e) : "";
}

std::string_view daySuffix(unsigned day) {
    switch (day) {
    case 1:
    case 21:
    case 31: return "st";
    case 2:
    case 22: return "nd";
    case 3:
    case 23: return "rd";
    default: return "th";
    }
}

CalendarMonth firstCalendarMonth(const Game& g, int mode) {
    if (mode == 2) {
        CivilDate d = civilFromSerial(g.gameDate + 42);
        return {d.year, d.month};
    }
    CivilDate d = civilFromSerial(g.gameDate);
    return stepCalendarMonth({d.year, d.month}, 1);
}

CalendarMonth stepCalendarMonth(CalendarMonth m, int months) {
    int index = m.year * 12 + static_cast<int>(m.month) - 1 + months;
    int year = index >= 0 ? index / 12 : (index - 11) / 12;
    return {year, static_cast<unsigned>(index - year * 12 + 1)};
}

MonthCalendarView monthCalendar(Game& g, CalendarMonth m) {
    MonthCalendarView view;
    double first = serialFromCivil(m.year, m.month, 1);
    view.monthText = formatDate(first, "mmmm");
    view.yearText = formatDate(first, "yyyy");
    unsigned last = daysInMonth(m.year, m.month);
    DayReader reader(g);
    for (unsigned day = 1; day <= last; ++day) {
        CalendarCell& cell = view.cells[day - 1];
        cell.visible = true;
        cell.date = first + (day - 1);
        cell.dayText = formatDate(cell.date, "ddd") + " : " + std::to_string(day) + std::string(daySuffix(day));
        int32_t busyWith = engagementOn(g, reader, cell.date);
        cell.activity = scheduleActivityText(g, busyWith);
        cell.choosable = cell.activity == "None";
    }
    return view;
}

std::optional<double> chooseCalendarDay(const MonthCalendarView& view, unsigned day) {
    if (day < 1 || day > view.cells.size()) return std::nullopt;
    const CalendarCell& cell = view.cells[day - 1];
    if (!cell.visible || !cell.choosable) return std::nullopt;
    return cell.date;
}

}  // namespace trovane

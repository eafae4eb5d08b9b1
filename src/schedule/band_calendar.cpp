#include "schedule/band_calendar.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

#include "floor/formats.h"
#include "schedule/engagement_index.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "world/dates.h"
#include "world/fatal_error.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane {

namespace {

const std::size_t kEntryType = offsetIn<ScheduleRecord>("type");
const std::size_t kEntryBand = offsetIn<ScheduleRecord>("band");
const std::size_t kEntryGig = offsetIn<ScheduleRecord>("gig");
const std::size_t kGigTour = offsetIn<GigRecord>("tour");
const std::size_t kTourFestival = offsetIn<TourRecord>("festival");

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

// The festival a bill's test reads, found from the bytes of the gig and its
// tour: 0 when the test reads none.
int16_t festivalOfGig(Game& g, int32_t gig) {
    const auto tour = fieldAt<int16_t>(g.gig.bytesOf(gig), kGigTour);
    if (tour <= 0) return 0;
    return fieldAt<int16_t>(g.tour.bytesOf(tour), kTourFestival);
}

// Leaves the schedule, gig, tour and festival buffers as a walk of the days
// from `from` to `last` leaves them: the schedule at the last entry the walk
// read (where it stopped, on the last day with entries), the gig and tour as
// the last test of a bill read them, the festival as the last test that read
// one. Days are looked at from the last back, only their entries' bytes
// read, until all are found.
void leaveBuffersAsTheWalk(Game& g, DayFileReader& reader, int16_t band, double from, double last) {
    // The schedule's bytes stand still while the walk reads them; the types'
    // two tests are looked up in a table made once.
    static const std::array<uint8_t, 256> kTests = [] {
        std::array<uint8_t, 256> t{};
        for (int type = 0; type < 256; ++type)
            t[static_cast<std::size_t>(type)] = static_cast<uint8_t>((scheduleTypeInfo(type).occupiesBand ? 1 : 0) |
                                                                     (scheduleTypeInfo(type).occupiesTheBill ? 2 : 0));
        return t;
    }();
    const int32_t entries = g.schedule.recordCount();
    const std::size_t length = g.schedule.recordLength();
    const uint8_t* base = entries > 1 ? g.schedule.bytesOf(1).data() : nullptr;
    struct Peek {
        uint8_t tests = 0;
        int16_t band = 0;
        int32_t gig = 0;
    };
    auto peek = [&](int32_t id) -> Peek {
        if (id < 1 || id >= entries) return {kTests[255], 0, 0};
        const uint8_t* e = base + static_cast<std::size_t>(id - 1) * length;
        return {kTests[fieldAt<uint8_t>(e, kEntryType)], fieldAt<int16_t>(e, kEntryBand),
                fieldAt<int32_t>(e, kEntryGig)};
    };
    bool scheduleLeft = false;
    bool gigLeft = false;
    bool festivalLeft = false;
    for (double d = last; d >= from && !(scheduleLeft && gigLeft && festivalLeft); d -= 1) {
        const std::span<const int32_t> ids = reader.entries(d);
        if (ids.empty()) continue;
        std::size_t stop = ids.size() - 1;
        for (std::size_t i = 0; i < ids.size(); ++i) {
            const Peek e = peek(ids[i]);
            if (e.band == band && (e.tests & 1) != 0) {
                stop = i;
                break;
            }
        }
        if (!scheduleLeft) {
            g.schedule.read(ids[stop]);
            scheduleLeft = true;
        }
        for (std::size_t i = stop + 1; i-- > 0 && !(gigLeft && festivalLeft);) {
            const Peek e = peek(ids[i]);
            if (e.band == band || (e.tests & 2) == 0 || e.gig < 1) continue;
            const int16_t festival = festivalOfGig(g, e.gig);
            if (!gigLeft) {
                ScheduleRecord bill{};
                bill.gig = e.gig;
                static_cast<void>(onTheBill(g, bill, band));
                gigLeft = true;
                festivalLeft = festival != 0;
            } else if (festival != 0) {
                g.festival.read(festival);
                festivalLeft = true;
            }
        }
    }
}

// The index answers when it can; the walk of the day's entries otherwise.
int32_t engagementOn(Game& g, DayFileReader& reader, double date) {
    const int16_t band = g.band->id;
    if (auto id = indexedEngagement(g, band, date)) {
        leaveBuffersAsTheWalk(g, reader, band, date, date);
        return *id;
    }
    return walkTheDay(g, reader.day(date));
}

// Whether the band is free on each day of a stretch, the buffers left as the
// walk of the whole stretch leaves them.
class StretchTester {
public:
    explicit StretchTester(Game& g) : g_(g), reader_(g), band_(g.band->id) {}
    StretchTester(const StretchTester&) = delete;
    StretchTester& operator=(const StretchTester&) = delete;

    // Called once the stretch is tested.
    void finish() {
        if (indexed_ && walked_) leaveBuffersAsTheWalk(g_, reader_, band_, first_, last_);
    }

    bool isFree(double date) {
        if (!walked_) first_ = date;
        walked_ = true;
        last_ = date;
        if (auto id = indexedEngagement(g_, band_, date)) {
            indexed_ = true;
            return *id == 0;
        }
        indexed_ = false;
        return walkTheDay(g_, reader_.day(date)) == 0;
    }

private:
    Game& g_;
    DayFileReader reader_;
    int16_t band_;
    bool walked_ = false;
    bool indexed_ = false;
    double first_ = 0;
    double last_ = 0;
};

}  // namespace

int32_t bandEngagementByWalk(Game& g, double date) {
    DayFileReader reader(g);
    return walkTheDay(g, reader.day(date));
}

int32_t bandEngagement(Game& g, int mode, double date) {
    if (mode != 1) return 0;
    DayFileReader reader(g);
    return engagementOn(g, reader, date);
}

int32_t countFreeDays(Game& g, double from, double to) {
    if (from >= to) return 0;
    StretchTester days(g);
    int32_t free = 0;
    for (double d = from; d < to; d += 1)
        if (days.isFree(d)) ++free;
    days.finish();
    return free;
}

double nextFreeDate(Game& g, double from) {
    StretchTester days(g);
    double d = from;
    while (!days.isFree(d)) d += 1;
    days.finish();
    return d;
}

std::vector<double> nextFreeDates(Game& g, double from, int count) {
    StretchTester days(g);
    std::vector<double> dates;
    for (double d = from; static_cast<int>(dates.size()) < count; d += 1)
        if (days.isFree(d)) dates.push_back(d);
    days.finish();
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
    DayFileReader reader(g);
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

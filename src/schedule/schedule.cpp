#include "schedule/schedule.h"
#include "schedule/schedule_types.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <string>

#include <fmt/format.h>

#include "world/dates.h"
#include "world/fatal_error.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/record_store.h"

namespace trovane {

namespace {

const std::size_t kDayEntries = offsetIn<DayRecord>("entries");
const std::size_t kDayCount = offsetIn<DayRecord>("count");

}  // namespace

int32_t dayNumberInYear(double date) {
    int year = yearOf(date);
    return static_cast<int32_t>(date - serialFromCivil(year, 1, 1)) + 1;
}

bool hasDayFile(const Game& g, int year) { return dataFileExists(g, dayFilePath(g, year)); }

void addScheduleYear(Game& g, int year) {
    // No year may be skipped: a date two years ahead makes both, in order.
    if (g.lastScheduleYear != 0 && g.lastScheduleYear < year - 1) addScheduleYear(g, year - 1);
    openNewDayFile(g, year);
    g.dayIndex.rec = DayRecord{};
    for (int32_t day = 1; day <= daysInYear(year); ++day) g.dayIndex.write(day);
    closeDayFile(g);
    g.lastScheduleYear = narrow<int16_t>(year);
}

int32_t addSchedule(Game& g, ScheduleRecord record) {
    if (record.date < g.gameStartDate) return 0;
    if (!scheduleTypeInfo(record.type).keepsItsNumber || record.id == 0) record.id = g.schedule.recordCount();

    ScheduleRecord kept = g.schedule.rec;
    g.schedule.rec = record;
    g.schedule.write(record.id);
    g.schedule.rec = kept;

    int year = yearOf(record.date);
    if (year > g.lastScheduleYear) addScheduleYear(g, year);

    int32_t day = dayNumberInYear(record.date);
    openDayFile(g, year);
    g.dayIndex.read(day);
    DayRecord& d = g.dayIndex.rec;
    if (d.count < 0 || d.count >= kMaxEntriesPerDay) {
        closeDayFile(g);
        throw FatalError(
            fmt::format("Subscript out of range: day {} of {} already holds {} schedule entries", day, year, d.count));
    }
    d.entries[static_cast<std::size_t>(d.count)] = record.id;
    d.count += 1;
    g.dayIndex.write(day);
    closeDayFile(g);
    return record.id;
}

std::vector<int32_t> addSchedules(Game& g, const std::vector<ScheduleRecord>& records) {
    std::vector<int32_t> ids;
    ids.reserve(records.size());
    const ScheduleRecord kept = g.schedule.rec;
    int openYear = 0;
    int32_t lastDay = 0;
    for (ScheduleRecord record : records) {
        if (record.date < g.gameStartDate) {
            ids.push_back(0);
            continue;
        }
        if (record.type != 17 || record.id == 0) record.id = g.schedule.recordCount();
        g.schedule.rec = record;
        g.schedule.write(record.id);
        const int year = yearOf(record.date);
        if (year != openYear) {
            closeDayFile(g);
            if (year > g.lastScheduleYear) addScheduleYear(g, year);
            openDayFile(g, year);
            openYear = year;
        }
        const int32_t day = dayNumberInYear(record.date);
        // The entry and the count are written in the day's bytes, the entry
        // first; the buffer is set to the last day written before the file closes.
        const auto count = fieldAt<int32_t>(g.dayIndex.bytesOf(day), kDayCount);
        if (count < 0 || count >= kMaxEntriesPerDay) {
            g.dayIndex.read(day);
            closeDayFile(g);
            g.schedule.rec = kept;
            throw FatalError(fmt::format("Subscript out of range: day {} of {} already holds {} schedule entries", day,
                                         year, count));
        }
        putFieldIn(g.dayIndex, day, kDayEntries + sizeof(int32_t) * static_cast<std::size_t>(count), record.id);
        putFieldIn(g.dayIndex, day, kDayCount, count + 1);
        lastDay = day;
        ids.push_back(record.id);
    }
    if (lastDay > 0) g.dayIndex.read(lastDay);
    closeDayFile(g);
    g.schedule.rec = kept;
    return ids;
}

std::vector<int32_t> entriesOfDay(Game& g, double date) {
    int year = yearOf(date);
    if (!hasDayFile(g, year)) return {};
    openDayFile(g, year);
    g.dayIndex.read(dayNumberInYear(date));
    const DayRecord& d = g.dayIndex.rec;
    int32_t count = d.count;
    if (count < 0 || count > kMaxEntriesPerDay) {
        closeDayFile(g);
        throw FatalError(fmt::format("The day index of {} is damaged: a day lists {} entries", year, count));
    }
    std::vector<int32_t> ids(d.entries.begin(), d.entries.begin() + count);
    closeDayFile(g);
    return ids;
}

DayFileReader::~DayFileReader() {
    try {
        closeDayFile(g_);
    } catch (...) {}
}

bool DayFileReader::hasFile(double date) {
    if (date >= yearStart_ && date < yearEnd_) return present_;
    const int year = yearOf(date);
    // A walk may cross the year's end: the old year's file is closed first.
    closeDayFile(g_);
    yearStart_ = yearEnd_ = 0;
    present_ = hasDayFile(g_, year);
    if (present_) openDayFile(g_, year);
    yearStart_ = serialFromCivil(year, 1, 1);
    yearEnd_ = serialFromCivil(year + 1, 1, 1);
    return present_;
}

const DayRecord* DayFileReader::day(double date) {
    if (!hasFile(date)) return nullptr;
    g_.dayIndex.read(static_cast<int32_t>(date - yearStart_) + 1);
    return &g_.dayIndex.rec;
}

std::span<const int32_t> DayFileReader::entries(double date) {
    if (!hasFile(date)) return {};
    lastAsked_ = date;
    // The day's number in the open year, from its 1 January as dayNumberInYear counts it.
    const auto bytes = g_.dayIndex.bytesOf(static_cast<int32_t>(date - yearStart_) + 1);
    const int32_t count = std::clamp(fieldAt<int32_t>(bytes, kDayCount), 0, kMaxEntriesPerDay);
    ids_.resize(static_cast<std::size_t>(count));
    if (count > 0) std::memcpy(ids_.data(), bytes.data() + kDayEntries, ids_.size() * sizeof(int32_t));
    return ids_;
}

void DayFileReader::finish() {
    if (lastAsked_ > 0) day(lastAsked_);
}

}  // namespace trovane

#pragma once
// The schedule: every later happening is a dated entry, listed in the day
// index of its year and carried out on its day.
#include <cstdint>
#include <span>
#include <vector>

#include "world/records.h"

namespace trovane {

class Game;

// The most entries one day can hold.
inline constexpr int32_t kMaxEntriesPerDay = 1000;

// Files an entry: writes it to the schedule table and appends it to its day.
// A record dated before the first day of the game (a blank one) is ignored.
// A type 17 entry that already has an id is rewritten in place, so a rebooked
// appearance keeps its number; every other entry gets the next free number.
// Years without a day file up to the entry's year are made first. Returns
// the entry's number, or 0 when nothing was filed. The schedule buffer is
// left as it was.
int32_t addSchedule(Game& g, ScheduleRecord record);

// Files several entries as addSchedule files each, in order, opening a year's
// day file once for all its entries. Returns their numbers (0 for one not filed).
std::vector<int32_t> addSchedules(Game& g, const std::vector<ScheduleRecord>& records);

// Makes the day file of a year, one blank day per day of the year, after
// first making any year missing between lastScheduleYear and it.
void addScheduleYear(Game& g, int year);

// The record number of a date in its year's day file: 1 for 1 January.
int32_t dayNumberInYear(double date);

// True when the year has a day file.
bool hasDayFile(const Game& g, int year);

// The entries listed on a date, in the order they were filed; none for a
// year that has no day file.
std::vector<int32_t> entriesOfDay(Game& g, double date);

// Keeps one year's day file open while a stretch of dates is read, so a
// stretch costs one opening per year and not one per day. The file is closed
// when the reader goes.
class DayFileReader {
public:
    explicit DayFileReader(Game& g) : g_(g) {}
    DayFileReader(const DayFileReader&) = delete;
    DayFileReader& operator=(const DayFileReader&) = delete;
    ~DayFileReader();

    // Whether the date's year has a day file.
    bool hasFile(double date);
    // The day's record in the day buffer, or nullptr when its year has no file.
    const DayRecord* day(double date);
    // The day's entries, read from the file's bytes without the day buffer;
    // none when its year has no file. They hold until the next call.
    std::span<const int32_t> entries(double date);
    // Leaves the day buffer at the last day whose entries were asked for, as
    // reading each of those days in turn would leave it.
    void finish();

private:
    Game& g_;
    bool present_ = false;
    double yearStart_ = 0;  // the serials of the open year's 1 January and the next
    double yearEnd_ = 0;
    double lastAsked_ = 0;  // 0: no day's entries asked for
    std::vector<int32_t> ids_;
};

}  // namespace trovane

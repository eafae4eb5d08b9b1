#pragma once
// The schedule, its per-year day index, and the news inbox.
#include "world/record_codec.h"

namespace trovane {

// One dated entry of the schedule; a type uses the fields it needs.
#define SCHEDULE_FIELDS(X)  \
    X(type, uint8_t)        \
    X(date, double)         \
    X(band, int16_t)        \
    X(label, int16_t)       \
    X(department, int16_t)  \
    X(gig, int32_t)         \
    X(media, int16_t)       \
    X(mediaOption, uint8_t) \
    X(mediaFlag, uint8_t)   \
    X(artist, int16_t)      \
    X(artist2, int16_t)     \
    X(staff, int16_t)       \
    X(disc, int32_t)        \
    X(business, int16_t)    \
    X(eventRecord, int16_t) \
    X(value, int32_t)       \
    X(look, int16_t)        \
    X(offer, int32_t)       \
    X(id, int32_t)          \
    X(ceremony, int16_t)
TROVANE_RECORD(ScheduleRecord, 53, id, SCHEDULE_FIELDS);

// One day of a year's day index: the schedule entries of that date.
#define DAY_FIELDS(X)                     \
    X(entries, std::array<int32_t, 1000>) \
    X(count, int32_t)
TROVANE_RECORD_NOID(DayRecord, 4004, DAY_FIELDS);

#define NEWS_FIELDS(X)       \
    X(id, int16_t)           \
    X(date, double)          \
    X(kind, uint8_t)         \
    X(title, Text<256>)      \
    X(text, Text<1024>)      \
    X(scheduleLink, int32_t) \
    X(eventLink, int16_t)    \
    X(replied, int16_t)      \
    X(read, int16_t)         \
    X(mustReply, int16_t)    \
    X(extra, Text<512>)      \
    X(deleted, int16_t)
TROVANE_RECORD(NewsRecord, 1817, id, NEWS_FIELDS);

}  // namespace trovane

#pragma once
// Gigs, tours, festivals and the media.
#include "world/record_codec.h"

namespace trovane {

// bill[0] is the headliner; 0 ends the bill.
#define GIG_FIELDS(X)                   \
    X(gigNumber, int32_t)               \
    X(bill, std::array<int16_t, 40>)    \
    X(venue, int16_t)                   \
    X(attendance, int32_t)              \
    X(tour, int16_t)                    \
    X(quality, std::array<uint8_t, 40>) \
    X(singing, std::array<uint8_t, 40>) \
    X(dancing, std::array<uint8_t, 40>) \
    X(overallSinging, uint8_t)          \
    X(overallDancing, uint8_t)          \
    X(overallQuality, uint8_t)          \
    X(gigDate, double)                  \
    X(profit, int32_t)
TROVANE_RECORD(GigRecord, 227, gigNumber, GIG_FIELDS);

#define TOUR_FIELDS(X)               \
    X(tourNumber, int16_t)           \
    X(gigCount, uint8_t)             \
    X(gigs, std::array<int32_t, 40>) \
    X(areaCode, Text<1>)             \
    X(nation, uint8_t)               \
    X(band, int16_t)                 \
    X(contentLevel, uint8_t)         \
    X(hospitalityLevel, uint8_t)     \
    X(accommodationLevel, uint8_t)   \
    X(festival, int16_t)             \
    X(supportCount, uint8_t)         \
    X(sponsorProduct, int16_t)       \
    X(averageQuality, float)
TROVANE_RECORD(TourRecord, 179, tourNumber, TOUR_FIELDS);

#define FESTIVAL_FIELDS(X)                 \
    X(festivalNumber, int16_t)             \
    X(prestige, uint8_t)                   \
    X(travelling, int16_t)                 \
    X(movesDaily, int16_t)                 \
    X(billSize, uint8_t)                   \
    X(festivalStyle, uint8_t)              \
    X(days, uint8_t)                       \
    X(weekday, std::array<uint8_t, 50>)    \
    X(week, std::array<uint8_t, 50>)       \
    X(fixedVenue, std::array<int16_t, 50>) \
    X(territory, uint8_t)                  \
    X(areaCode, Text<1>)                   \
    X(festivalName, Text<64>)
TROVANE_RECORD(FestivalRecord, 276, festivalNumber, FESTIVAL_FIELDS);

// mediaType: 0 newspaper, 1 magazine, 2 radio show, 3 TV show.
// frequency: 0 daily, 1 weekly, 2 monthly, 3 annual. airDay is Monday first.
#define MEDIA_FIELDS(X)               \
    X(mediaNumber, int16_t)           \
    X(mediaName, Text<50>)            \
    X(mediaType, uint8_t)             \
    X(reach, uint8_t)                 \
    X(frequency, uint8_t)             \
    X(airDay, std::array<int16_t, 7>) \
    X(issueDay, uint8_t)              \
    X(issueMonth, uint8_t)            \
    X(issueWeek, uint8_t)             \
    X(issueOption, uint8_t)           \
    X(interviewMinimum, uint8_t)      \
    X(interviewValue, uint8_t)        \
    X(liveMinimum, uint8_t)           \
    X(liveValue, uint8_t)             \
    X(bothValue, uint8_t)             \
    X(reserved78, Reserved<4>)        \
    X(smallMinimum, uint8_t)          \
    X(smallValue, uint8_t)            \
    X(largeMinimum, uint8_t)          \
    X(largeValue, uint8_t)            \
    X(minControversy, uint8_t)        \
    X(maxControversy, uint8_t)        \
    X(mediaStyle, uint8_t)            \
    X(country, uint8_t)               \
    X(reserved90, Reserved<2>)
TROVANE_RECORD(MediaRecord, 92, mediaNumber, MEDIA_FIELDS);

}  // namespace trovane

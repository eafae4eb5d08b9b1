#pragma once
// Songs, discs, the charts, and the firms that record, press and ship.
#include "world/record_codec.h"

namespace trovane {

// disc: 65535 not yet on a disc, 65534 held for the band's tracklist.
#define SONG_FIELDS(X)          \
    X(id, int32_t)              \
    X(title, Text<50>)          \
    X(writerForename, Text<32>) \
    X(writerSurname, Text<32>)  \
    X(writer, int16_t)          \
    X(band, int16_t)            \
    X(quality, uint8_t)         \
    X(commerciality, uint8_t)   \
    X(disc, uint16_t)           \
    X(written, double)          \
    X(style, uint8_t)           \
    X(singleDisc, std::array<int16_t, 5>)
TROVANE_RECORD(SongRecord, 145, id, SONG_FIELDS);

// Territory arrays are UK, US, Europe, Oceania, Other.
#define DISC_FIELDS(X)                       \
    X(id, int16_t)                           \
    X(title, Text<50>)                       \
    X(coverImage, Text<25>)                  \
    X(hype, std::array<uint8_t, 5>)          \
    X(chartPoints, std::array<int16_t, 5>)   \
    X(promotion, std::array<uint8_t, 5>)     \
    X(totalSales, std::array<int32_t, 5>)    \
    X(lifetimeSales, std::array<int32_t, 5>) \
    X(weekSales, std::array<int32_t, 5>)     \
    X(stock, std::array<int32_t, 5>)         \
    X(pressingOrder, std::array<int32_t, 5>) \
    X(distributor, std::array<int16_t, 5>)   \
    X(reserved207, Reserved<20>)             \
    X(peakPosition, std::array<uint8_t, 4>)  \
    X(weeksOnChart, std::array<int16_t, 4>)  \
    X(bestPosition, std::array<uint8_t, 5>)  \
    X(releaseDate, std::array<double, 5>)    \
    X(isSingle, uint8_t)                     \
    X(quality, uint8_t)                      \
    X(commerciality, uint8_t)                \
    X(reserved287, Reserved<1>)              \
    X(studio, int16_t)                       \
    X(band, int16_t)                         \
    X(reserved292, Reserved<2>)              \
    X(label, int16_t)                        \
    X(income, Money)                         \
    X(tracks, std::array<int32_t, 20>)       \
    X(trackCount, uint8_t)                   \
    X(tracksRecorded, uint8_t)               \
    X(reserved386, Reserved<5>)              \
    X(recordingDue, double)
TROVANE_RECORD(DiscRecord, 399, id, DISC_FIELDS);

// One row of one of the ten chart files; the file's order is the chart's order.
#define CHART_ROW_FIELDS(X)      \
    X(row, int32_t)              \
    X(previousPosition, uint8_t) \
    X(disc, int16_t)             \
    X(lastHype, uint8_t)         \
    X(territory, uint8_t)
TROVANE_RECORD(ChartRow, 9, row, CHART_ROW_FIELDS);

#define CHART_HOLDER_FIELDS(X) \
    X(value, int32_t)          \
    X(who, int32_t)            \
    X(text, Text<68>)
TROVANE_RECORD_NOID(ChartHolder, 76, CHART_HOLDER_FIELDS);

// Record N + 1 holds the records of chart N.
#define CHART_RECORDS_FIELDS(X)             \
    X(spare, uint8_t)                       \
    X(holder, std::array<ChartHolder, 20>)  \
    X(labelSales, std::array<int32_t, 101>) \
    X(labelSlot, std::array<int16_t, 100>)
TROVANE_RECORD_NOID(ChartRecords, 2125, CHART_RECORDS_FIELDS);

// kind: 0 studio, 1 manufacturing plant, 2 distribution firm.
// open: 65535 (-1) when open for business, 0 while being built.
#define BUSINESS_FIELDS(X) \
    X(id, int16_t)         \
    X(name, Text<50>)      \
    X(kind, uint8_t)       \
    X(city, int16_t)       \
    X(quality, uint8_t)    \
    X(owner, int16_t)      \
    X(open, int16_t)       \
    X(continent, int16_t)  \
    X(runningCost, int32_t)
TROVANE_RECORD(BusinessRecord, 66, id, BUSINESS_FIELDS);

}  // namespace trovane

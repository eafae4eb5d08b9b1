#pragma once
// The ten weekly charts: 0 to 4 the albums of UK, US, Europe, Oceania and the
// rest of the world, 5 to 9 the singles.
#include <cstdint>
#include <string>

namespace trovane {

class Game;

inline constexpr int kChartCount = 10;

// "UK Album Chart" ... "Global Single Chart".
const char* chartTitle(int chart);
// How many rows of the chart are published: 40 for the albums, 75, 100, 75,
// 40 and 20 for the singles.
int publishedLength(int chart);

// Appends the chart buffer to the open chart, its row number the new record's.
void addChartRow(Game& g);

// The points one week at a position is worth: 100, 78, 59, 48, 42 ...
int positionValue(int position);

// On the current disc: chart points in territory t, and the same to its band
// and the band's label (with the label's boss and heads).
void addDiscPoints(Game& g, int t, int32_t points);

// The second half of the week for the open chart N: weeks, points,
// reputation, hit counters and the chart's records.
void awardChartPoints(Game& g, int chart);
// The record holders of chart N, from the open chart file.
void updateChartRecords(Game& g, int chart);

// The current disc's position in the chart of territory t, as text: "" when
// it has no row in the published part.
std::string currentPosition(Game& g, int t);

// On the current band and the band's label: the hit counter of the class of
// position (1; 2 to 10; 11 to 20; 21 to 40) in territory t moves by delta,
// held 0 to 100.
void bandChartHits(Game& g, int t, int position, int delta);

// Four times a year each chart file is rewritten: the first 199 rows stay, and
// of the rows below only those whose disc has not yet sold in the territory.
void tidyCharts(Game& g);
// The charts of the first week, from the discs already on the market.
void seedCharts(Game& g);

}  // namespace trovane

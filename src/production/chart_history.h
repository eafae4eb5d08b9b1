#pragma once
// The charts as they were published each Sunday: positions, runs and entries.
#include <cstdint>
#include <string>
#include <vector>

namespace trovane {

class Game;

// Appends the published rows of the open chart N, as sorted this week.
void recordChartWeek(Game& g, int chart);

// One published row of a past or present week, with its run up to that week.
struct ChartEntry {
    int position = 0;
    int16_t disc = 0;
    int32_t sales = 0;
    int lastWeek = 0;   // last week's position, 0 when out
    int peak = 0;       // best position up to this week
    int weeks = 0;      // weeks in the published chart up to this week
    std::string entry;  // "New", "Re-entry" (back after a week out) or ""
    std::string movement;
};
// The published chart N of the week (a Sunday), in chart order.
std::vector<ChartEntry> chartWeek(Game& g, int chart, double week);
// The Sundays on which chart N was published, oldest first.
std::vector<double> chartWeeks(Game& g, int chart);

// The published chart N as the file holds it now, before any week is recorded.
std::vector<ChartEntry> liveChart(Game& g, int chart);

// A published row with the names a chart shows.
struct ChartLine {
    ChartEntry e;
    std::string title, band, label, award;
    int16_t style = 0;
};
// The published chart N of the week, or of the latest recorded week when week
// is 0 (the live file when none is recorded yet); shown is the week given.
std::vector<ChartLine> publishedChart(Game& g, int chart, double week, double& shown);
// The lines as comma-separated values under a header line.
std::string chartCsv(const std::vector<ChartLine>& lines);

struct RunWeek {
    double week = 0;
    int chart = 0;
    int position = 0;
    int32_t sales = 0;
};
// Every published week of the disc, in every chart, oldest first.
std::vector<RunWeek> discRun(Game& g, int16_t disc);

}  // namespace trovane

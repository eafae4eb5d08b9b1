#include "production/chart_history.h"

#include <algorithm>
#include <map>

#include "production/charts.h"
#include "world/game.h"

namespace trovane {

void recordChartWeek(Game& g, int chart) {
    int32_t last = std::min<int32_t>(g.chart.recordCount() - 1, publishedLength(chart));
    int t = chart % 5;
    for (int32_t i = 1; i <= last; ++i) {
        g.chart.read(i);
        g.disc.read(g.chart->disc);
        g.chartrun.rec = ChartRunRecord{};
        g.chartrun->week = g.gameDate;
        g.chartrun->chart = static_cast<uint8_t>(chart);
        g.chartrun->position = static_cast<int16_t>(i);
        g.chartrun->disc = g.chart->disc;
        g.chartrun->sales = g.disc->weekSales[static_cast<std::size_t>(t)];
        g.chartrun.append();
    }
}

std::vector<ChartEntry> chartWeek(Game& g, int chart, double week) {
    struct Past {
        int weeks = 0, peak = 0, lastWeek = 0;
        bool before = false;
    };
    std::map<int16_t, Past> past;
    std::vector<ChartEntry> rows;
    for (int32_t n = 1; n < g.chartrun.recordCount(); ++n) {
        g.chartrun.read(n);
        const ChartRunRecord& r = g.chartrun.rec;
        if (r.chart != chart || r.week > week) continue;
        Past& p = past[r.disc];
        ++p.weeks;
        p.peak = p.peak == 0 ? r.position : std::min<int>(p.peak, r.position);
        if (r.week == week) {
            rows.push_back({.position = r.position, .disc = r.disc, .sales = r.sales});
        } else {
            p.before = true;
            if (r.week == week - 7) p.lastWeek = r.position;
        }
    }
    std::sort(rows.begin(), rows.end(),
              [](const ChartEntry& a, const ChartEntry& b) { return a.position < b.position; });
    for (ChartEntry& e : rows) {
        const Past& p = past[e.disc];
        e.lastWeek = p.lastWeek;
        e.peak = p.peak;
        e.weeks = p.weeks;
        e.entry = !p.before ? "New" : p.lastWeek == 0 ? "Re-entry" : "";
        e.movement = p.lastWeek == 0 ? "NE" : p.lastWeek == e.position ? "-" : std::to_string(p.lastWeek);
    }
    return rows;
}

std::vector<double> chartWeeks(Game& g, int chart) {
    std::vector<double> weeks;
    for (int32_t n = 1; n < g.chartrun.recordCount(); ++n) {
        g.chartrun.read(n);
        if (g.chartrun->chart == chart && (weeks.empty() || weeks.back() != g.chartrun->week))
            weeks.push_back(g.chartrun->week);
    }
    return weeks;
}

std::vector<RunWeek> discRun(Game& g, int16_t disc) {
    std::vector<RunWeek> run;
    for (int32_t n = 1; n < g.chartrun.recordCount(); ++n) {
        g.chartrun.read(n);
        if (g.chartrun->disc == disc)
            run.push_back({g.chartrun->week, g.chartrun->chart, g.chartrun->position, g.chartrun->sales});
    }
    return run;
}

}  // namespace trovane

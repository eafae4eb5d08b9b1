#include "production/chart_history.h"

#include <algorithm>
#include <map>

#include "production/charts.h"
#include "production/weekly_sales.h"
#include "world/game.h"
#include "world/record_store.h"
#include "world/strings.h"

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

std::vector<ChartEntry> liveChart(Game& g, int chart) {
    std::vector<ChartRow> file;
    openChart(g, chart);
    int32_t last = std::min<int32_t>(g.chart.recordCount() - 1, publishedLength(chart));
    for (int32_t i = 1; i <= last; ++i) {
        g.chart.read(i);
        file.push_back(g.chart.rec);
    }
    closeChart(g);
    auto t = static_cast<std::size_t>(chart % 5);
    std::vector<ChartEntry> rows;
    for (std::size_t i = 0; i < file.size(); ++i) {
        g.disc.read(file[i].disc);
        ChartEntry e;
        e.position = static_cast<int>(i + 1);
        e.disc = file[i].disc;
        e.sales = g.disc->weekSales[t];
        e.lastWeek = file[i].previousPosition;
        e.peak = g.disc->bestPosition[t];
        e.weeks = t < 4 ? g.disc->weeksOnChart[t] : 0;
        e.movement = e.lastWeek == 0 ? "NE" : e.lastWeek == e.position ? "-" : std::to_string(e.lastWeek);
        rows.push_back(e);
    }
    return rows;
}

std::vector<ChartLine> publishedChart(Game& g, int chart, double week, double& shown) {
    std::vector<ChartEntry> rows;
    shown = week;
    if (week == 0) {
        std::vector<double> weeks = chartWeeks(g, chart);
        shown = weeks.empty() ? 0 : weeks.back();
    }
    rows = shown == 0 ? liveChart(g, chart) : chartWeek(g, chart, shown);
    int t = chart % 5;
    std::vector<ChartLine> lines;
    for (const ChartEntry& e : rows) {
        g.disc.read(e.disc);
        const DiscRecord d = g.disc.rec;
        ChartLine line{e, trim(d.title.value), "", "", awardLetter(t, d.totalSales[static_cast<std::size_t>(t)]), 0};
        if (d.band > 0 && d.band < g.band.recordCount()) {
            g.band.read(d.band);
            line.band = trim(g.band->name.value);
            line.style = g.band->style;
        }
        if (d.label > 0 && d.label < g.label.recordCount()) {
            g.label.read(d.label);
            line.label = trim(g.label->name.value);
        }
        lines.push_back(line);
    }
    return lines;
}

namespace {
std::string csvField(const std::string& s) {
    if (s.find_first_of(",\"\n") == std::string::npos) return s;
    std::string out = "\"";
    for (char c : s) out += c == '"' ? std::string("\"\"") : std::string(1, c);
    return out + "\"";
}
}  // namespace

std::string chartCsv(const std::vector<ChartLine>& lines) {
    std::string out = "position,movement,lastWeek,peak,weeks,entry,disc,title,band,label,sales,award\n";
    for (const ChartLine& l : lines)
        out += std::to_string(l.e.position) + "," + l.e.movement + "," + std::to_string(l.e.lastWeek) + "," +
               std::to_string(l.e.peak) + "," + std::to_string(l.e.weeks) + "," + l.e.entry + "," +
               std::to_string(l.e.disc) + "," + csvField(l.title) + "," + csvField(l.band) + "," + csvField(l.label) +
               "," + std::to_string(l.e.sales) + "," + l.award + "\n";
    return out;
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

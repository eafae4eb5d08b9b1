#include "production/charts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <vector>

#include "label/finances.h"
#include "production/disc_release.h"
#include "production/weekly_sales.h"
#include "talent/band_functions.h"
#include "talent/reputation.h"
#include "world/dates.h"
#include "world/record_bytes.h"
#include "world/record_store.h"

namespace trovane {

namespace {

constexpr std::array<const char*, kChartCount> kTitles = {
    "UK Album Chart",  "US Album Chart",  "European Album Chart",  "Oceanic Album Chart",  "Global Album Chart",
    "UK Single Chart", "US Single Chart", "European Single Chart", "Oceanic Single Chart", "Global Single Chart"};
constexpr std::array<int, kChartCount> kLengths = {40, 40, 40, 40, 40, 75, 100, 75, 40, 20};

std::size_t at(int v) { return static_cast<std::size_t>(v); }

// Whole weeks between two dates, either way round.
int32_t weeksBetween(double from, double to) { return static_cast<int32_t>(std::abs(intFloor((to - from) / 7))); }

int hitClass(int position) {
    if (position == 1) return 0;
    if (position <= 10) return 1;
    if (position <= 20) return 2;
    return 3;
}

void moveCounter(std::array<uint8_t, 16>& peaks, int t, int cls, int delta) {
    auto i = at(t * 4 + cls);
    peaks[i] = static_cast<uint8_t>(std::clamp(peaks[i] + delta, 0, 100));
}

// A week on the chart for the disc, its band and the disc's label; returns
// the disc's new count.
int32_t countWeek(Game& g, int chart, int t) {
    auto counter = at(t + 4 * (chart / 5));
    static const std::size_t kBandCounts = offsetIn<BandRecord>("chartCounts");
    static const std::size_t kLabelCounts = offsetIn<LabelRecord>("chartCounts");
    const int16_t weeks = narrow<int16_t>(g.disc->weeksOnChart[at(t)] + 1);
    g.disc->weeksOnChart[at(t)] = weeks;
    const int16_t band = g.disc->band;
    const int16_t label = g.disc->label;
    // The counters move in the records' bytes; the buffers are then read, so
    // they hold the band and label as written.
    auto oneMore = [](int16_t count) { return narrow<int16_t>(count + 1); };
    patchField<int16_t>(g.band, band, kBandCounts + counter * sizeof(int16_t), oneMore);
    g.band.read(band);
    if (label > 0) {
        patchField<int16_t>(g.label, label, kLabelCounts + counter * sizeof(int16_t), oneMore);
        g.label.read(label);
    }
    return weeks;
}

// A row's points, as addDiscPoints gives them, for a disc buffer that holds
// its record as read but for the week countWeek counted on it: the points and
// that week move in the record's bytes and the buffer alike, as writing the
// disc would move them, and the band's points likewise once the band is read.
// The band buffer ends on the disc's band, as it stands in the table.
void addRowPoints(Game& g, int t, int32_t points) {
    static const std::size_t kDiscPoints = offsetIn<DiscRecord>("chartPoints");
    static const std::size_t kDiscWeeks = offsetIn<DiscRecord>("weeksOnChart");
    static const std::size_t kBandPoints = offsetIn<BandRecord>("bandPoints");
    DiscRecord& d = g.disc.rec;
    if (d.id != g.chart->disc) {  // a disc whose number is not its own is written whole
        addDiscPoints(g, t, points);
        if (g.band->id != g.disc->band) g.band.read(g.disc->band);
        return;
    }
    const auto ti = at(t);
    d.chartPoints[ti] = static_cast<int16_t>(std::min<int32_t>(d.chartPoints[ti] + points, INT16_MAX));
    putFieldIn(g.disc, d.id, kDiscWeeks + ti * sizeof(int16_t), d.weeksOnChart[ti]);
    putFieldIn(g.disc, d.id, kDiscPoints + ti * sizeof(int16_t), d.chartPoints[ti]);
    g.band.read(d.band);
    BandRecord& b = g.band.rec;
    b.bandPoints[ti] = narrow<int32_t>(static_cast<int64_t>(b.bandPoints[ti]) + points);
    putFieldIn(g.band, b.id, kBandPoints + ti * sizeof(int32_t), b.bandPoints[ti]);
    if (b.label > 0) addLabelPoints(g, b.label, t, points);
}

void countHits(Game& g, int chart) {
    int t = chart;
    int32_t last = std::min(g.chart.recordCount() - 1, 40);
    for (int32_t i = 1; i <= last; ++i) {
        g.chart.read(i);
        g.disc.read(g.chart->disc);
        int b = g.disc->bestPosition[at(t)];
        if (b != 0 && b <= i) continue;
        bool newHit = b == 0;
        g.band.read(g.disc->band);
        if (b >= 2 && b <= 10 && i == 1) {
            newHit = true;
            bandChartHits(g, t, 2, -1);
        } else if (b >= 11 && b <= 20 && i < 11) {
            newHit = true;
            bandChartHits(g, t, 11, -1);
        } else if (b >= 21 && b <= 40 && i < 21) {
            newHit = true;
            bandChartHits(g, t, 21, -1);
        }
        if (newHit) bandChartHits(g, t, i, 1);
        g.disc->bestPosition[at(t)] = static_cast<uint8_t>(i);
        g.disc.write();
    }
}

}  // namespace

const char* chartTitle(int chart) { return kTitles[at(chart)]; }
int publishedLength(int chart) { return kLengths[at(chart)]; }

void addChartRow(Game& g) {
    int32_t n = g.chart.recordCount();
    g.chart->row = n;
    g.chart.write(n);
}

namespace {

int positionValueWorkedOut(int position) {
    double r = 100;
    double p = 100;
    for (int i = 2; i <= position; ++i) {
        float gi = static_cast<float>(i) / (static_cast<float>(i - 1) + 0.3f);
        r = roundHalfEven(r / gi);
        double u = roundHalfEven(static_cast<double>(gi) * 10 + r);
        float e = static_cast<float>((100 - u) / 10);
        p = roundHalfEven(u - static_cast<double>(e));
    }
    return static_cast<int>(p);
}

// The values of the hundred places a chart pays for, worked out once.
constexpr int kValuedPlaces = 100;
const std::array<int, kValuedPlaces + 1> kPlaceValues = [] {
    std::array<int, kValuedPlaces + 1> values{};
    for (int i = 1; i <= kValuedPlaces; ++i) values[static_cast<std::size_t>(i)] = positionValueWorkedOut(i);
    return values;
}();

}  // namespace

int positionValue(int position) {
    if (position >= 1 && position <= kValuedPlaces) return kPlaceValues[static_cast<std::size_t>(position)];
    return positionValueWorkedOut(position);
}

void addDiscPoints(Game& g, int t, int32_t points) {
    // A disc that has charted for years holds its points at the field's top.
    g.disc->chartPoints[at(t)] =
        static_cast<int16_t>(std::min<int32_t>(g.disc->chartPoints[at(t)] + points, INT16_MAX));
    g.disc.write();
    // The band's and label's points touch neither the disc nor its buffer; the
    // band buffer is kept when it holds another band.
    const int16_t discBand = g.disc->band;
    std::optional<BandRecord> other;
    if (g.band->id != discBand) other = g.band.rec;
    g.band.read(discBand);
    addBandPoints(g, t, points);
    if (other) g.band.rec = std::move(*other);
}

void bandChartHits(Game& g, int t, int position, int delta) {
    if (t > 3) return;
    int cls = hitClass(position);
    moveCounter(g.band->chartPeaks, t, cls, delta);
    g.band.write();
    if (g.band->label < 1) return;
    const BandRecord band = g.band.rec;
    g.label.read(band.label);
    moveCounter(g.label->chartPeaks, t, cls, delta);
    g.label.write();
    g.band.rec = band;
}

void awardChartPoints(Game& g, int chart) {
    int t = chart % 5;
    int length = publishedLength(chart);
    int32_t last = std::min(g.chart.recordCount() - 1, 100);
    for (int32_t i = 1; i <= last; ++i) {
        g.chart.read(i);
        g.disc.read(g.chart->disc);
        int32_t w;
        if (t == 4)
            w = weeksBetween(g.disc->releaseDate[4], g.gameDate);
        else if (i <= length)
            w = countWeek(g, chart, t);
        else
            w = g.disc->weeksOnChart[at(t)];
        double p = positionValue(i);
        double d = roundHalfEven(p - std::pow(0.8, w - 1) * p);
        double x = roundHalfEven(d * p / 100);
        auto f = roundTo<int16_t>((p - x) / 2);
        addRowPoints(g, t, 101 - i);
        // The rise is spread over this open chart, whose buffer moves with it.
        changeHypeOfReadBand(g, f, t, chart);
    }
    if (chart < 4) countHits(g, chart);
    updateChartRecords(g, chart);
}

std::string currentPosition(Game& g, int t) {
    int chart = t + 5 * g.disc->isSingle;
    int16_t disc = g.disc->id;
    openChart(g, chart);
    int32_t last = std::min(g.chart.recordCount() - 1, publishedLength(chart));
    int32_t found = 0;
    for (int32_t n = 1; n <= last && found == 0; ++n) {
        g.chart.read(n);
        if (g.chart->disc == disc) found = n;
    }
    closeChart(g);
    return found == 0 ? std::string() : std::to_string(found);
}

void tidyCharts(Game& g) {
    for (int chartNumber = 0; chartNumber <= 9; ++chartNumber) {
        openChart(g, chartNumber);
        int territory = chartNumber % 5;
        int32_t row = 0;
        compactTable(g, g.chart, [&](const ChartRow& r) {
            ++row;
            if (row < 200) return true;
            g.disc.read(r.disc);
            return g.disc->totalSales[static_cast<std::size_t>(territory)] == 0;
        });
        closeChart(g);
    }
}

void seedCharts(Game& g) {
    std::array<std::vector<ChartRow>, kChartCount> rows;
    for (int32_t n = 1; n < g.disc.recordCount(); ++n) {
        g.disc.read(n);
        if (g.disc->band < 1) continue;
        bool future = false;
        for (int t = 0; t < 5; ++t) {
            double released = g.disc->releaseDate[at(t)];
            if (released <= kNoDate) continue;
            if (released > g.gameDate) {
                future = true;
                continue;
            }
            int32_t weeks = weeksBetween(released, g.gameDate);
            if (t < 4) g.disc->weeksOnChart[at(t)] = narrow<int16_t>(weeks);
            const DiscRecord disc = g.disc.rec;
            g.band.read(disc.band);
            int hype = releaseHype(g, g.band->reputation[at(t)]);
            g.disc.rec = disc;
            for (int32_t w = 1; w < weeks; ++w) hype = std::clamp(toLong(hype * 0.8), 1, 100);
            g.disc->hype[at(t)] = static_cast<uint8_t>(hype);
            ChartRow row{};
            row.previousPosition = t < 4 ? g.disc->peakPosition[at(t)] : uint8_t{0};
            row.disc = g.disc->id;
            row.lastHype = static_cast<uint8_t>(hype);
            row.territory = static_cast<uint8_t>(t);
            rows[at(t + 5 * g.disc->isSingle)].push_back(row);
        }
        g.disc.write();
        if (future) scheduleRelease(g);
    }
    for (int chart = 0; chart < kChartCount; ++chart) {
        openChart(g, chart);
        for (const ChartRow& row : rows[at(chart)]) {
            g.chart.rec = row;
            addChartRow(g);
        }
        sortChartBySales(g);
        closeChart(g);
    }
}

}  // namespace trovane

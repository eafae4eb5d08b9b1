// The record holders of a played chart answer what a plain walk decoding
// every row, band and label would, and leave the buffers where it would.
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "production/charts.h"
#include "support/played_world.h"
#include "world/strings.h"

using namespace trovane;

namespace {

struct Best {
    int64_t value = 0;
    int32_t who = 0;
    std::string text;
    void offer(int64_t v, int32_t w, const std::string& t) {
        if (v <= value) return;
        value = v;
        who = w;
        text = t;
    }
};

void expectHolder(const ChartHolder& h, const Best& b, const char* what) {
    EXPECT_EQ(std::tuple(h.value, h.who, h.text.value), std::tuple(b.value, b.who, b.text)) << what;
}

TEST(ChartRecords, APlayedChartsHoldersMatchAPlainWalk) {
    test::PlayedWorld w;
    Game& g = w.g;
    w.play(70);
    for (int chart : {1, 7, 4}) {
        const int t = chart % 5;
        const auto pair = static_cast<std::size_t>(t * 2 + (chart >= 5 ? 0 : 1));
        Best bandTotal, labelPoints, discWeek, discLifetime, discPointsPublished;
        std::vector<std::pair<int16_t, int64_t>> labelWeeks;
        DiscRecord d{};
        BandRecord b{};
        LabelRecord l{};
        openChart(g, chart);
        const int32_t rows = g.chart.recordCount() - 1;
        ASSERT_GT(rows, 20) << "the week's chart should be a full one";
        int16_t lastDisc = 0;
        for (int32_t i = 1; i <= rows; ++i) {
            g.chart.read(i);
            lastDisc = g.chart->disc;
            decodeRecord(g.disc.bytesOf(lastDisc).data(), d);
            if (d.band < 1) continue;
            decodeRecord(g.band.bytesOf(d.band).data(), b);
            const std::string text = trim(d.title.value) + " by " + trim(b.name.value);
            discWeek.offer(d.weekSales[static_cast<std::size_t>(t)], d.id, text);
            discLifetime.offer(d.lifetimeSales[static_cast<std::size_t>(t)], d.id, text);
            if (i > publishedLength(chart)) continue;
            discPointsPublished.offer(d.chartPoints[static_cast<std::size_t>(t)], d.id, text);
            // A label's week: its discs' sales in the published chart, labels in order of first row.
            if (d.label < 1) continue;
            auto it = std::find_if(labelWeeks.begin(), labelWeeks.end(), [&](auto& p) { return p.first == d.label; });
            if (it == labelWeeks.end()) it = labelWeeks.insert(it, {d.label, 0});
            it->second += d.weekSales[static_cast<std::size_t>(t)];
        }
        Best labelWeek;
        for (auto [label, sales] : labelWeeks) {
            decodeRecord(g.label.bytesOf(label).data(), l);
            labelWeek.offer(sales, label, trim(l.name.value));
        }
        for (int32_t n = 1; n < g.band.recordCount(); ++n) {
            decodeRecord(g.band.bytesOf(n).data(), b);
            bandTotal.offer(b.salesTotals[pair], b.id, trim(b.name.value));
        }
        for (int32_t n = 1; n < g.label.recordCount(); ++n) {
            decodeRecord(g.label.bytesOf(n).data(), l);
            labelPoints.offer(l.points[static_cast<std::size_t>(t)], l.id, trim(l.name.value));
        }
        // From an empty set of records every holder is this week's best.
        g.chartrecs.rec = ChartRecords{};
        g.chartrecs.write(chart + 1);
        updateChartRecords(g, chart);
        ChartRow lastRow{};
        decodeRecord(g.chart.bytesOf(rows).data(), lastRow);
        EXPECT_TRUE(g.chart.rec == lastRow);
        EXPECT_EQ(g.disc->id, lastDisc);
        closeChart(g);
        g.chartrecs.read(chart + 1);
        const auto& h = g.chartrecs->holder;
        EXPECT_GT(discWeek.value, 0);
        expectHolder(h[0], bandTotal, "band sales");
        expectHolder(h[2], discWeek, "disc week");
        expectHolder(h[4], discLifetime, "disc lifetime");
        expectHolder(h[10], discPointsPublished, "disc points in the published chart");
        expectHolder(h[12], labelPoints, "label points");
        expectHolder(h[16], labelWeek, "label week");
        if (t == 4) { EXPECT_EQ(h[8].value, 0) << "the Global chart counts no label's weeks"; }
    }
}

// A week later only the bands whose figures changed are tested again; ties
// still go to the lower record number, and holders not left as the chart left
// them (a loaded game, a cleared record) have every band tested again.
TEST(ChartRecords, BandsWhoseFiguresChangedSinceTheLastLookAreTestedInRecordOrder) {
    test::PlayedWorld w;
    Game& g = w.g;
    w.play(70);
    const int chart = 1;
    const auto pair = static_cast<std::size_t>(chart * 2 + 1);
    auto bandHolder = [&] {
        g.chartrecs.read(chart + 1);
        return g.chartrecs->holder[0];
    };
    auto update = [&](int c) {
        openChart(g, c);
        updateChartRecords(g, c);
        closeChart(g);
    };
    // Every chart looks once, so no band is left marked from the weeks played.
    for (int c = 0; c < 10; ++c) update(c);
    const ChartHolder first = bandHolder();
    ASSERT_GT(first.value, 0);
    // Two bands other than the holder.
    const int32_t low = first.who == 3 ? 4 : 3;
    const int32_t high = g.band.recordCount() - (first.who == g.band.recordCount() - 2 ? 3 : 2);
    ASSERT_GT(high, low);
    auto raise = [&](int32_t band, int32_t to) {
        g.band.read(band);
        g.band->salesTotals[pair] = to;
        g.band.write();
    };
    // The higher record is written first; the tie goes to the lower all the same.
    raise(high, first.value + 5);
    raise(low, first.value + 5);
    update(chart);
    EXPECT_EQ(bandHolder().value, first.value + 5);
    EXPECT_EQ(bandHolder().who, low);

    // A band lowered and another raised past it: only the raised one counts.
    raise(low, 1);
    raise(high, first.value + 9);
    update(chart);
    EXPECT_EQ(bandHolder().value, first.value + 9);
    EXPECT_EQ(bandHolder().who, high);

    // Holders emptied behind the chart's back: every band is tested again.
    g.chartrecs.rec = ChartRecords{};
    g.chartrecs.write(chart + 1);
    raise(high, 2);
    update(chart);
    EXPECT_EQ(bandHolder().value, first.value) << "the band that held it before holds it again";
    EXPECT_EQ(bandHolder().who, first.who);
}

}  // namespace

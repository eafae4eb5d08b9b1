// Chart points, weeks, hit counters, the spread of a rise in hype, the
// quarterly tidy and the first week's charts.
#include <gtest/gtest.h>

#include "production/chart_hype.h"
#include "production/charts.h"
#include "production/weekly_sales.h"
#include "support/amend.h"
#include "support/disc_world.h"

using namespace trovane;

namespace {

class Charts : public test::DiscWorld, public ::testing::Test {
protected:
    // A chart of n discs of the band in row order; returns them.
    std::vector<int16_t> fill(int chart, int n) {
        std::vector<int16_t> out;
        for (int i = 0; i < n; ++i) {
            out.push_back(addDisc("Hit", 1000, 0, chart >= 5 ? 1 : 0));
            addRow(chart, out.back());
        }
        return out;
    }
    void award(int chart) {
        openChart(g, chart);
        awardChartPoints(g, chart);
        closeChart(g);
    }
    void setBest(int16_t d, uint8_t best) {
        amend(g.disc, d, [&] { g.disc->bestPosition[0] = best; });
    }
    void sellTo(int16_t d, int16_t to) {
        amend(g.disc, d, [&] { g.disc->label = to; });
    }
    std::array<uint8_t, 4> ukPeaks() {
        BandRecord b = bandRec(band);
        return {b.chartPeaks[0], b.chartPeaks[1], b.chartPeaks[2], b.chartPeaks[3]};
    }
};

// Rows 1 and 5 are new; row 10 climbs from a best of 11; the rest were at 1.
TEST_F(Charts, AHitCountsOnceInTheBestClassReachedAndLeavesTheClassBelow) {
    auto discs = fill(0, 10);
    for (std::size_t i : {1u, 2u, 3u, 5u, 6u, 7u, 8u}) setBest(discs[i], 1);
    setBest(discs[9], 11);
    amend(g.band, band, [&] { g.band->chartPeaks[2] = 1; });  // the climbing disc's Top 20 hit
    award(0);
    EXPECT_EQ(ukPeaks(), (std::array<uint8_t, 4>{1, 2, 0, 0}));
    EXPECT_EQ(labelRec(label).chartPeaks[1], 2);
    EXPECT_EQ(disc(discs[4]).bestPosition[0], 5);
    award(0);  // the same places again: nothing new
    EXPECT_EQ(ukPeaks(), (std::array<uint8_t, 4>{1, 2, 0, 0}));
}

TEST_F(Charts, EachRowOfTheGlobalChartRaisesItsOwnBandAndKeepsNoWeeksNorHits) {
    int16_t other = addBand("Others", label);
    int16_t ours = addDisc("Ours");
    addRow(4, ours);
    addRow(4, addDisc("Theirs", 1000, other));
    award(4);
    // Row 1: f 50, doubled 100 against R 50: gain 2, R 52, H 48. Row 2 (a
    // week out): p 78, d 0, f 39, doubled 78: gain round(78 / 50) = 2, R 52, H 26.
    EXPECT_EQ(std::tuple(bandRec(band).reputation[4], bandRec(band).hype[4], bandRec(other).reputation[4],
                         bandRec(other).hype[4], bandRec(other).bandPoints[4]),
              std::tuple(uint8_t{52}, int16_t{48}, uint8_t{52}, int16_t{26}, 99));
    EXPECT_EQ(std::tuple(disc(ours).chartPoints[4], disc(ours).bestPosition[4]), std::tuple(int16_t{100}, uint8_t{0}));
    EXPECT_EQ(bandRec(band).chartCounts, (std::array<int16_t, 8>{}));
}

TEST_F(Charts, ANumberOneInItsFirstWeekRaisesTheBandAndItsLabelsDiscs) {
    int16_t ours = addDisc("Ours");
    int16_t theirs = addDisc("Theirs", 1000, addBand("Others", rival));
    sellTo(theirs, rival);
    addRow(0, ours);
    addRow(0, theirs);
    award(0);
    // Position 1, week 1: p 100, d 0, f 50; doubled to 100 against R 50, H 0:
    // gain round(100 / 50) = 2, R 52, H 48.
    // The rise reaches the label's charting discs.
    BandRecord b = bandRec(band);
    EXPECT_EQ(std::tuple(b.reputation[0], b.hype[0], disc(ours).hype[0], b.bandPoints[0]),
              std::tuple(uint8_t{52}, int16_t{48}, uint8_t{52}, 100));
    EXPECT_EQ(std::tuple(disc(ours).chartPoints[0], disc(theirs).chartPoints[0], disc(ours).weeksOnChart[0]),
              std::tuple(int16_t{100}, int16_t{99}, int16_t{1}));
    EXPECT_EQ(labelRec(label).points[0], 100);
}

TEST_F(Charts, ARiseSpreadsOverTheDiscsItNames) {
    int16_t other = addBand("Others", label);
    int16_t ours = addDisc("Ours"), theirs = addDisc("Theirs", 1000, other), single = addDisc("S", 0, 0, 1);
    int16_t elsewhere = addDisc("Away", 1000, addBand("Away", rival));
    sellTo(elsewhere, rival);
    for (int16_t d : {ours, theirs, elsewhere}) addRow(0, d);
    addRow(5, single);
    g.band.read(band);
    auto hypes = [&](std::vector<int16_t> discs) {
        std::vector<int> out;
        for (int16_t d : discs) out.push_back(disc(d).hype[0]);
        return out;
    };
    spreadHypeRise(g, 1, 0, band, 7);
    EXPECT_EQ(hypes({ours, single, theirs}), (std::vector{57, 57, 50}));
    g.band.read(band);
    spreadHypeRise(g, 0, 0, label, 60);
    EXPECT_EQ(hypes({ours, theirs, elsewhere}), (std::vector{100, 100, 50}));
    // A disc that changes hands, and then a row added, are seen by the next rise.
    sellTo(theirs, rival);
    spreadHypeRise(g, 0, 0, rival, -20);
    EXPECT_EQ(hypes({theirs, elsewhere, ours}), (std::vector{80, 30, 100}));
    int16_t late = addDisc("Late");
    addRow(0, late);
    spreadHypeRise(g, 0, 0, label, -10);
    EXPECT_EQ(hypes({late, ours, theirs}), (std::vector{40, 90, 80}));
}

TEST_F(Charts, ARiseByDiscReachesThatDiscAndLeavesTheBuffersAtTheLastRow) {
    int16_t first = addDisc("First"), second = addDisc("Second");
    addRow(0, first);
    addRow(0, second);
    addRow(0, 0);  // an empty row is passed over
    spreadHypeRise(g, 2, 0, first, 5);
    EXPECT_EQ(g.disc->id, second);  // the last disc the chart names
    EXPECT_EQ(g.disc->hype[0], 50);
    EXPECT_EQ(disc(first).hype[0], 55);
    openChart(g, 0);
    spreadHypeRise(g, 2, 0, second, 5);
    EXPECT_EQ(g.chart->row, 3);
    EXPECT_EQ(g.disc->hype[0], 55);  // read back after its rise
    // A row given another disc while the chart stays open is seen by the next rise.
    g.chart.read(1);
    g.chart->disc = second;
    g.chart.write(1);
    spreadHypeRise(g, 2, 0, first, 5);
    EXPECT_EQ(disc(first).hype[0], 55);
    spreadHypeRise(g, 2, 0, second, 5);
    EXPECT_EQ(disc(second).hype[0], 65);  // named by two rows, raised by each
    closeChart(g);
}

TEST_F(Charts, TidyingKeeps199RowsAndTheUnsoldBelowAndPositionValuesFallFromAHundred) {
    int16_t sold = addDisc("Sold"), unsold = addDisc("Unsold");
    amend(g.disc, sold, [&] { g.disc->totalSales[0] = 1; });
    for (int i = 0; i < 199; ++i) addRow(0, sold);
    for (int i = 0; i < 6; ++i) addRow(0, i % 2 ? unsold : sold);
    tidyCharts(g);
    auto rows = chartDiscs(0);
    ASSERT_EQ(rows.size(), 202u);
    EXPECT_EQ(rows[199], unsold);
    EXPECT_EQ(rows[201], unsold);
    // Position values fall from a hundred.
    EXPECT_EQ((std::array{positionValue(1), positionValue(2), positionValue(3), positionValue(4), positionValue(5)}),
              (std::array{100, 78, 59, 48, 42}));
    EXPECT_EQ(publishedLength(6), 100);
    EXPECT_EQ(publishedLength(9), 20);
}

TEST_F(Charts, SeedingDerivesWeeksHypeAndTheEntryPosition) {
    amend(g.label, label, [&] { g.label->department[3].rating = 100; });  // a perfect marketing department adds 25
    int16_t d = addDisc("Old");
    amend(g.disc, d, [&] {
        g.disc->releaseDate = {g.gameDate - 21, g.gameDate - 21, 0, g.gameDate + 14, g.gameDate - 21};
        g.disc->peakPosition = {7, 3, 0, 0};
    });
    seedCharts(g);
    DiscRecord r = disc(d);
    // 75, then x 0.8 twice: 60, 48.
    EXPECT_EQ(std::tuple(r.weeksOnChart[0], r.hype[0]), std::tuple(int16_t{3}, uint8_t{48}));
    auto firstRow = [&](int chart) {
        openChart(g, chart);
        g.chart.read(1);
        std::pair<int, int> row(g.chart->previousPosition, g.chart->lastHype);
        closeChart(g);
        return row;
    };
    EXPECT_EQ(firstRow(0), (std::pair{7, 48}));
    EXPECT_EQ(firstRow(4).first, 0);
    EXPECT_TRUE(chartDiscs(2).empty());
    EXPECT_TRUE(chartDiscs(3).empty());  // Oceania's date is still to come
}

}  // namespace

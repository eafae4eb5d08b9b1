// Whole stretches of play on the shipped world: an album of the player's
// label from its release date to the charts, a first Sunday that sells the
// world's discs, and two years of Sundays and tidy days.
#include <gtest/gtest.h>

#include <algorithm>

#include "production/chart_history.h"
#include "production/charts.h"
#include "production/disc_release.h"
#include "support/taken_over_game.h"

using namespace trovane;

namespace {

class ShippedWorld : public ::testing::Test, public test::TakenOverGame {
protected:
    ShippedWorld() : TakenOverGame(2004, test::StartWorld::shipped) {
        takeOver(labelNamed("Halcyon Records"), annLee());
    }
};

TEST_F(ShippedWorld, AnAlbumOfThePlayersLabelGoesFromItsDateToTheCharts) {
    ASSERT_GT(band, 0);
    g.disc.rec = DiscRecord{.title = "Road To A Hit",
                            .hype = {1, 1, 1, 1, 1},
                            .promotion = {1, 1, 1, 1, 1},
                            .quality = 90,
                            .commerciality = 90,
                            .band = band,
                            .label = g.player.playerLabel,
                            .trackCount = 10,
                            .tracksRecorded = 10};
    auto disc = static_cast<int16_t>(g.disc.append());

    std::array<double, 5> dates{};
    g.disc.read(disc);
    g.band.read(band);
    for (int t = 0; t < 5; ++t) dates[static_cast<std::size_t>(t)] = firstOfferedReleaseDate(g, t);
    ASSERT_EQ(setReleaseDatesRefusal(g, disc, dates), "");
    setReleaseDates(g, disc, dates);

    int16_t plant = 0;
    for (int32_t n = 1; n < g.business.recordCount(); ++n) {
        g.business.read(n);
        if (g.business->kind == 1 && g.business->open == -1) plant = static_cast<int16_t>(n);
    }
    ASSERT_GT(plant, 0);
    std::array<int32_t, 5> copies{250000, 250000, 250000, 100000, 250000};
    ASSERT_EQ(pressDiscsRefusal(g, disc, plant, copies), "");
    pressDiscs(g, disc, plant, copies);

    bool distributed = false;
    double until = dates[0] + 35;
    while (g.gameDate < until) {
        ASSERT_NO_FATAL_FAILURE(playDay());
        g.disc.read(disc);
        for (int t = 0; t < 5; ++t) {
            ASSERT_GE(g.disc->stock[static_cast<std::size_t>(t)], 0);
            ASSERT_GE(g.disc->pressingOrder[static_cast<std::size_t>(t)], 0);
        }
        if (!distributed && g.gameDate >= dates[0] - 6) {
            ASSERT_EQ(distributorsRefusal(g, disc, {}), "");
            chooseDistributors(g, disc, {});
            distributed = true;
        }
    }
    g.disc.read(disc);
    EXPECT_GT(g.disc->distributor[0], 0);
    EXPECT_GT(g.disc->totalSales[0], 0);
    EXPECT_GT(g.disc->bestPosition[0], 0);
    std::vector<RunWeek> run = discRun(g, disc);
    EXPECT_TRUE(std::any_of(run.begin(), run.end(), [](const RunWeek& w) { return w.chart == 0 && w.position <= 40; }));
    g.label.read(g.player.playerLabel);
    EXPECT_GT(g.label->period[2].income[1], 0);  // record sales this year
}

TEST_F(ShippedWorld, TheFirstSundaySellsThroughAllTenChartsAndTwoYearsOfSundaysRunThrough) {
    const double end = g.gameDate + 731;
    while (weekdayOf(g.gameDate) != 1) ASSERT_NO_FATAL_FAILURE(playDay());
    ASSERT_NO_FATAL_FAILURE(playDay());
    for (int chart = 0; chart < kChartCount; ++chart) {
        ASSERT_EQ(chartWeeks(g, chart).size(), 1u) << chart;
        std::vector<ChartEntry> rows = chartWeek(g, chart, g.gameDate - 1);
        ASSERT_FALSE(rows.empty()) << chart;
        EXPECT_GT(rows.front().sales, 0) << chart;
        EXPECT_EQ(rows.front().entry, "New");
    }
    while (g.gameDate < end) ASSERT_NO_FATAL_FAILURE(playDay());
    for (int chart = 0; chart < kChartCount; ++chart) {
        openChart(g, chart);
        EXPECT_LE(g.chart.recordCount() - 1, 400) << chart;
        closeChart(g);
    }
    EXPECT_EQ(chartWeeks(g, 0).size(), 104u);
}

}  // namespace

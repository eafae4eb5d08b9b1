// The Sunday sales: what a disc sells, what stock and the distributor allow,
// the certifications, the money, and the order of the charts.
#include <gtest/gtest.h>

#include "label/finances.h"
#include "production/charts.h"
#include "production/weekly_sales.h"
#include "support/amend.h"
#include "support/disc_world.h"
#include "world/strings.h"

using namespace trovane;

namespace {

class WeeklySales : public test::DiscWorld, public ::testing::Test {
protected:
    // The spread the next two draws will give to a figure.
    double nextSpread(double v) {
        Random copy = g.rng;
        double r1 = copy.draw();
        double r2 = copy.draw();
        return std::floor(v / 10 * r1) - std::floor(v / 10 * r2);
    }
    void current(int16_t d) {
        g.disc.read(d);
        g.band.read(g.disc->band);
    }
    int32_t sellIn(int16_t d, int t, int32_t oldTotal, int32_t sales) {
        amend(g.disc, d, [&] { g.disc->totalSales[static_cast<std::size_t>(t)] = oldTotal; });
        current(d);
        limitAndCertify(g, sales, t);
        return disc(d).chartPoints[static_cast<std::size_t>(t)];
    }
};

TEST_F(WeeklySales, FirstWeekOfTheWorkedAlbumAndItsSingleThenTheNextWeeks) {
    int16_t album = addDisc("Worked");
    g.disc.read(album);
    // W 80, hype 50 -> H 40; (80^4 / 2000 x 5 x 1.2 + 50 x 50 x 4) / 3 x 60% = 26576.
    double expected = 26576 + nextSpread(26576);
    EXPECT_EQ(firstWeekSales(g, 0), static_cast<int32_t>(expected));
    int16_t single = addDisc("Worked Single", 0, 0, 1);
    g.disc.read(single);
    // The same in the US (divisor 1): 132880 x 0.6 = 79728, a fifth of it for a single.
    expected = std::nearbyint((79728 + nextSpread(79728)) / 5);
    EXPECT_EQ(firstWeekSales(g, 1), static_cast<int32_t>(expected));
    // The next week follows the hype and holds both hypes: 10000 - 1000 = 9000; ratio 40/50 - 1 = -0.2 -> 7200.
    int now = 40, last = 50;
    expected = 7200 + nextSpread(7200);
    EXPECT_EQ(nextWeekSales(g, 10000, now, last), static_cast<int32_t>(expected));
    now = 0;
    last = 150;
    nextWeekSales(g, 0, now, last);
    EXPECT_EQ(std::tuple(now, last), std::tuple(1, 100));
    now = 150;
    last = 0;
    nextWeekSales(g, 0, now, last);
    EXPECT_EQ(std::tuple(now, last), std::tuple(100, 1));
}

TEST_F(WeeklySales, SalesAreHeldByCapacityThenStock) {
    int16_t d = addDisc("Small", 5000);
    // 2 x 125 = 250 a day, 1750 a week
    amend(g.disc, d, [&] { g.disc->distributor[0] = addFirm(2, 5, 0); });
    current(d);
    limitAndCertify(g, 1751, 0);
    EXPECT_EQ(std::tuple(disc(d).weekSales[0], disc(d).stock[0]), std::tuple(1750, 3250));
    current(d);
    limitAndCertify(g, 800, 1);  // US: the big distributor, 5000 in stock
    EXPECT_EQ(disc(d).weekSales[1], 800);
    current(d);
    limitAndCertify(g, 5001, 2);
    EXPECT_EQ(std::tuple(disc(d).weekSales[2], disc(d).stock[2]), std::tuple(5000, 0));
}

TEST_F(WeeklySales, TheFirstAwardEachTerritoryCanGiveAndNeverTheUnawardedLevel) {
    // UK and Other: silver at 60000; US: gold at 500000; Europe: platinum at
    // 1000000; Oceania: gold at 35000.
    const std::tuple<int, int32_t, int32_t> firsts[] = {
        {0, 60000, 100}, {1, 500000, 250}, {2, 1000000, 500}, {3, 35000, 250}, {4, 60000, 100}};
    for (auto [t, threshold, points] : firsts) {
        int16_t d = addDisc("Award");
        EXPECT_EQ(sellIn(d, t, threshold - 2, 1), 0) << t;
        EXPECT_EQ(sellIn(d, t, threshold - 1, 1), points) << t;
        EXPECT_EQ(sellIn(d, t, threshold, 1), points) << "no second award at " << t;
    }
    // The unawarded level is never given even when reached: Europe's 49999999 -> 50000000
    // crosses only platinum level 50.
    EXPECT_EQ(sellIn(addDisc("Huge"), 2, 49999999, 1), 500);
}

TEST_F(WeeklySales, AWeekAcrossTwoPlatinumMultiplesGivesTwoAwards) {
    int16_t d = addDisc("Big");
    int32_t newsBefore = g.news.recordCount();
    // UK platinum 300000: 500000 -> 1100000 passes levels 2 and 3.
    EXPECT_EQ(sellIn(d, 0, 500000, 600000), 1000);
    EXPECT_EQ(g.news.recordCount() - newsBefore, 2);
    // Each award: one row for the band and one for each of its two members.
    EXPECT_EQ(g.achieve.recordCount() - 1, 6);
    g.achieve.read(1);
    EXPECT_EQ(trim(g.achieve->text.value), "Big (album) achieves  2 x platinum certification in the United Kingdom.");
}

TEST_F(WeeklySales, OnlyThePlayersDiscsAndShortlistBringCertificationNews) {
    int16_t other = addBand("Others", rival);
    int16_t d = addDisc("Theirs", 1000000, other);
    amend(g.disc, d, [&] { g.disc->label = rival; });
    int32_t before = g.news.recordCount();
    sellIn(d, 0, 0, 60000);
    EXPECT_EQ(g.news.recordCount(), before);
    g.shortlist.rec = ShortlistRecord{.band = other, .label = label};
    g.shortlist.append();
    sellIn(d, 0, 60000, 40000);  // gold at 100000
    ASSERT_EQ(g.news.recordCount(), before + 1);
    g.news.read(before);
    EXPECT_EQ(trim(g.news->title.value), "Others's album gets gold certification");
}

// 1000 albums: gross 7500, 20% royalty -> artists 1500, label 6000; a debt
// is recouped from the artists' share first.
TEST_F(WeeklySales, DiscIncomeRecoupsTheBandsDebtFromItsShare) {
    // 0 + 1500 - 1000 = 500: the asymmetric figure, not + 1000. A debt of
    // exactly the share takes it all and counts it all as earned.
    // costs, recouped, disc income, gross, each member's wealth
    const std::tuple<int64_t, int64_t, int64_t, int64_t, int32_t> rows[] = {
        {0, 0, 6000, 0, 750}, {2000, 1500, 7500, 1500, 0}, {1500, 1500, 7500, 1500, 0}, {1000, 1000, 7000, 500, 250}};
    for (auto [costs, recouped, discIncome, gross, memberWealth] : rows) {
        SCOPED_TRACE(costs);
        DiscWorld fresh;
        Game& h = fresh.g;
        int16_t d = fresh.addDisc("Paid");
        amend(h.band, fresh.band, [&] {
            h.band->royaltyRate = 20;
            h.band->costs = moneyUnits(costs);
        });
        amend(h.disc, d, [&] { h.disc->weekSales[0] = 1000; });
        h.disc.read(d);
        h.band.read(fresh.band);
        payDiscIncome(h, 0);
        LabelRecord l = fresh.labelRec(fresh.label);
        EXPECT_EQ(std::tuple(ledgerEntry(l, 0, ledgerRecordSales), ledgerEntry(l, 0, ledgerRecoupedAdvances),
                             fresh.disc(d).income, fresh.bandRec(fresh.band).grossIncome),
                  std::tuple(moneyUnits(6000), moneyUnits(recouped), moneyUnits(discIncome), moneyUnits(gross)));
        for (int m : {0, 1})
            EXPECT_EQ((h.artist.read(fresh.bandRec(fresh.band).members[m]), h.artist->wealth), memberWealth);
    }
}

TEST_F(WeeklySales, EqualSalesKeepLastWeeksOrder) {
    int16_t a = addDisc("A"), b = addDisc("B"), c = addDisc("C"), e = addDisc("E");
    for (auto [disc, sales] : {std::pair{a, 10}, {b, 20}, {c, 10}, {e, 21}}) {
        amend(g.disc, disc, [&] { g.disc->weekSales[0] = sales; });
        addRow(0, disc);
    }
    openChart(g, 0);
    sortChartBySales(g);
    closeChart(g);
    EXPECT_EQ(chartDiscs(0), (std::vector<int16_t>{e, b, a, c}));
}

TEST_F(WeeklySales, Row200IsANewEntryAndRow199Remembers) {
    int16_t d = addDisc("Many", 0);
    for (int i = 0; i < 200; ++i) addRow(0, d);
    calculateWeeklySales(g);
    openChart(g, 0);
    EXPECT_EQ((g.chart.read(199), g.chart->previousPosition), 199);
    EXPECT_EQ((g.chart.read(200), g.chart->previousPosition), 0);
    closeChart(g);
}

TEST_F(WeeklySales, Position41SellsButCountsNoWeek) {
    std::vector<int16_t> discs;
    // Stock below any first week, falling: the chart's order is the row order.
    for (int i = 0; i < 41; ++i) {
        discs.push_back(addDisc("Row", 2000 - i * 10));
        addRow(0, discs.back());
    }
    calculateWeeklySales(g);
    EXPECT_EQ(chartDiscs(0).at(40), discs[40]);
    EXPECT_EQ(std::tuple(disc(discs[40]).weekSales[0], disc(discs[40]).weeksOnChart[0]), std::tuple(1600, int16_t{0}));
    EXPECT_EQ(disc(discs[39]).weeksOnChart[0], 1);
    EXPECT_EQ(bandRec(band).chartCounts[0], 40);
}

TEST_F(WeeklySales, AfterTheWeekTotalsAndHypeMoveOn) {
    int16_t d = addDisc("Week", 3000);
    addRow(0, d, 77);
    calculateWeeklySales(g);
    DiscRecord r = disc(d);
    // The band's and label's UK album totals come after their UK single's; promotion 20 x 0.8.
    EXPECT_EQ(std::tuple(r.weekSales[0], r.totalSales[0], r.lifetimeSales[0], bandRec(band).salesTotals[1],
                         labelRec(label).salesTotals[1], r.promotion[0]),
              std::tuple(3000, 3000, 3000, 3000, 3000, uint8_t{16}));
    openChart(g, 0);
    EXPECT_EQ((g.chart.read(1), g.chart->lastHype), 50);  // the hype before this week's fall
    closeChart(g);
    EXPECT_EQ(bandRec(band).biggestAlbum, d);
}

// A week that crosses silver: the certification's 100 points and row 1's 100
// reach the disc and stay on the band when the week's totals are written.
TEST_F(WeeklySales, TheWeeksCertificationPointsStayOnTheBand) {
    int16_t d = addDisc("Silver", 3000);
    amend(g.disc, d, [&] {
        g.disc->totalSales[0] = 59999;
        g.disc->weekSales[0] = 3000;
    });
    addRow(0, d);
    calculateWeeklySales(g);
    EXPECT_EQ(std::tuple(disc(d).chartPoints[0], bandRec(band).bandPoints[0]), std::tuple(int16_t{200}, 200));
}

TEST_F(WeeklySales, ASoldOutDiscNeverSellsAgainButAnUnsoldOneWaits) {
    int16_t soldOut = addDisc("Gone", 0), waiting = addDisc("Waiting", 0);
    amend(g.disc, soldOut, [&] { g.disc->totalSales[0] = 100; });
    addRow(0, soldOut);
    addRow(0, waiting);
    calculateWeeklySales(g);
    EXPECT_EQ(disc(waiting).weekSales[0], 0);
    for (int16_t d : {soldOut, waiting}) {
        amend(g.disc, d, [&] { g.disc->stock[0] = 100000; });
    }
    calculateWeeklySales(g);
    EXPECT_EQ(disc(soldOut).weekSales[0], 0);
    EXPECT_GT(disc(waiting).weekSales[0], 0);
}

TEST_F(WeeklySales, TheBiggestDiscAndBestWeekGoToTheBandAndLabelByKind) {
    auto sold = [&](int16_t d, int32_t week, int32_t total) {
        // 1 more elsewhere
        amend(g.disc, d, [&] {
            g.disc->weekSales = {week, 0, 0, 0, 1};
            g.disc->totalSales = {total, 0, 0, 0, 1};
        });
    };
    int16_t a = addDisc("A"), b = addDisc("B"), s = addDisc("S", 1000, 0, 1);
    sold(a, 100, 500);  // week 101, total 501
    sold(b, 50, 800);   // week 51, total 801
    sold(s, 7, 9);      // week 8, total 10
    updateBestSellers(g);
    BandRecord r = bandRec(band);
    // B's 801 beats A's 501; B's week of 51 does not beat A's 101.
    EXPECT_EQ(
        std::tuple(r.biggestAlbum, r.bestWeekAlbum, r.bestWeekAlbumCopies, r.biggestSingle, r.bestWeekSingleCopies),
        std::tuple(b, a, 101, s, 8));
    LabelRecord l = labelRec(label);
    EXPECT_EQ((std::array{l.biggestAlbum, l.bestWeekAlbum, l.biggestSingle, l.bestWeekSingle}),
              (std::array{b, a, s, s}));
    EXPECT_EQ((std::array{l.bestWeekAlbumCopies, l.bestWeekSingleCopies}), (std::array{101, 8}));
    EXPECT_EQ(g.band->biggestAlbum, b);  // the buffer holds the band as written
    sold(a, 52, 800);                    // 801, level with B, is not bigger; 53 is not a better week
    updateBestSellers(g);
    EXPECT_EQ(std::tuple(bandRec(band).biggestAlbum, bandRec(band).bestWeekAlbumCopies), std::tuple(b, 101));
}

}  // namespace

// The chart screen: the ten charts, past weeks, sorting, the run and CSV.
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QSortFilterProxyModel>
#include <QTabWidget>
#include <QTableView>

#include "production/chart_history.h"
#include "screen_fixture.h"
#include "screens/chart_screens.h"

using namespace trovane;

namespace {

class ChartScreen : public test::ScreenTest {
protected:
    int16_t addDisc(const char* title, int32_t weekSales) {
        game->disc.rec = DiscRecord{.title = title, .totalSales = {weekSales * 3}, .weekSales = {weekSales}};
        return static_cast<int16_t>(game->disc.append());
    }
    void publish(double week, int16_t disc, int position) {
        Game& g = *game;
        g.disc.read(disc);
        g.chartrun.rec = ChartRunRecord{.week = week,
                                        .chart = 0,
                                        .position = static_cast<int16_t>(position),
                                        .disc = disc,
                                        .sales = g.disc->weekSales[0]};
        g.chartrun.append();
    }
    // Three weeks: A climbs to the top, B enters, C drops out and comes back.
    void threeWeeks() {
        a = addDisc("Alpha", 300000);
        b = addDisc("Bravo, Live", 50000);
        c = addDisc("Charlie", 90000);
        double w = game->gameDate;
        publish(w - 14, c, 1);
        publish(w - 14, a, 2);
        publish(w - 7, a, 1);
        publish(w, a, 1);
        publish(w, c, 2);
        publish(w, b, 3);
    }
    int16_t a = 0, b = 0, c = 0;
};

TEST_F(ChartScreen, MovementsEntriesPastWeeksAndOtherChartsSortedAndExported) {
    startNewGameAsPlayer();
    threeWeeks();
    screens::frmChartForm form(*window);
    const auto& lines = form.model()->lines();
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(std::tuple(lines[0].e.movement, lines[0].e.weeks), std::tuple(std::string("-"), 3));
    EXPECT_EQ(std::tuple(lines[1].e.entry, lines[1].e.peak), std::tuple(std::string("Re-entry"), 1));
    EXPECT_EQ(std::tuple(lines[2].e.entry, lines[2].e.movement), std::tuple(std::string("New"), std::string("NE")));
    EXPECT_EQ(std::tuple(form.cmbChart->count(), form.cmbWeek->count(), form.lblChartSizeR->text()),
              std::tuple(10, 3, QStringLiteral("Top 40")));
    form.resize(1280, 800);
    form.show();
    screenshotOf(&form, QStringLiteral("30_frmChartForm"));
    form.TabChartTab->setCurrentIndex(3);
    screenshotOf(&form, QStringLiteral("31_frmChartForm_styles"));

    form.cmbWeek->setCurrentIndex(2);  // the oldest week
    ASSERT_EQ(form.model()->lines().size(), 2u);
    EXPECT_EQ(form.model()->lines()[0].e.disc, c);
    form.cmbWeek->setCurrentIndex(0);
    EXPECT_EQ(form.model()->lines().size(), 3u) << "back to the latest week";
    form.cmbChart->setCurrentIndex(9);
    EXPECT_EQ(form.lblTitle->text(), QStringLiteral("Global Single Chart"));
    EXPECT_EQ(form.lblChartSizeR->text(), QStringLiteral("Top 20"));
    EXPECT_TRUE(form.model()->lines().empty());

    form.cmbChart->setCurrentIndex(0);  // sorted by sales, then exported as shown
    EXPECT_EQ(form.flxEntries->model()->columnCount(), 11);
    form.flxEntries->sortByColumn(5, Qt::AscendingOrder);
    QModelIndex first = form.flxEntries->model()->index(0, 2);
    EXPECT_EQ(first.data().toString(), QStringLiteral("Bravo, Live"));
    QString path = folder.path().string().c_str() + QStringLiteral("/chart.csv");
    ASSERT_TRUE(form.exportCsv(path));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList rows = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows[0], QStringLiteral("position,movement,lastWeek,peak,weeks,entry,disc,title,band,label,sales,award"));
    EXPECT_TRUE(rows[1].startsWith(QStringLiteral("3,NE,0,3,1,New,"))) << rows[1].toStdString();
    EXPECT_TRUE(rows[1].contains(QStringLiteral("\"Bravo, Live\""))) << rows[1].toStdString();
}

TEST_F(ChartScreen, TheRecordsTabShowsFiguresAndPercentagesAndThePanelOpensAChart) {
    startNewGameAsPlayer();
    Game& g = *game;
    g.chartrecs.read(10);  // the records of the last chart, the Global single chart
    g.chartrecs->holder[16] = {.value = 123456, .text = "Halcyon"};
    g.chartrecs->holder[17] = {.value = 1234, .text = "Alpha"};
    g.chartrecs.write(10);
    screens::frmChartForm form(*window);
    form.cmbChart->setCurrentIndex(9);
    auto shown = [&](const char* name) { return form.findChild<QLabel*>(name)->text(); };
    EXPECT_EQ(shown("lblMostWeeklySalesLabelR"), "Halcyon  123,456");
    EXPECT_EQ(shown("lblHighestBandPercentageR"), "Alpha  12.34%") << "1234 hundredths of a percent";
    EXPECT_EQ(shown("lblMostTotalSalesR"), "-") << "no holder yet";

    click("btnCharts");
    click("lblUSSingleChart");
    EXPECT_EQ(screen(), Screen::frmChartForm);
    auto* opened = find<screens::frmChartForm>("frmChartForm");
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(opened->chart(), 6);
}

}  // namespace

// Find's festivals: this year's list, a festival's days and bill, and last year's.
#include <QLabel>
#include <QTableWidget>

#include "live/festivals.h"
#include "schedule/schedule.h"
#include "screen_fixture.h"
#include "screens/browse_grid_widget.h"
#include "screens/festival_screens.h"
#include "screens/side_bar.h"
#include "world/dates.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane::test {

TEST_F(ScreenTest, FindFestivalsListsThisYearAndOpensADaysBill) {
    startNewGameAsPlayer();
    Game& g = *game;
    // A two-day festival eight weeks on, its bill drawn up at once.
    const double first = g.gameDate + 56;
    const int year = yearOf(first);
    g.festival.rec = FestivalRecord{.prestige = 60, .billSize = 4, .days = 2, .festivalName = "Long Meadow Weekend"};
    const auto week = static_cast<uint8_t>(static_cast<int>(first - serialFromCivil(year, 1, 1)) / 7 + 1);
    g.festival->weekday = {static_cast<uint8_t>(weekdayOf(first)), static_cast<uint8_t>(weekdayOf(first + 1))};
    g.festival->week = {week, week};
    g.festival->fixedVenue = {1, 1};
    const auto festival = static_cast<int16_t>(g.festival.append());
    scheduleFestivals(g, year);
    g.tour.read(g.tour.recordCount() - 1);
    const ScheduleRecord fill{.type = 22, .gig = g.tour->gigs[0]};
    g.schedule.rec = fill;
    fillFestivalBill(g);
    const auto billed = billOf(g, fill.gig);
    ASSERT_FALSE(billed.empty());

    click(window->sideBar()->btnFind);
    click("lblFestivals");
    ASSERT_EQ(screen(), Screen::frmFestivalBrowse);
    auto* list = qobject_cast<screens::BrowseGridWidget*>(findShown("flxGrid"));
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->model()->rowCount(), 1);
    EXPECT_EQ(list->model()->index(0, 0).data().toString(), "Long Meadow Weekend");
    screenshot("70_frmFestivalBrowse");

    list->setFocus();
    QTest::keyClick(list, Qt::Key_Return);
    ASSERT_EQ(screen(), Screen::frmFestivalDetails);
    EXPECT_EQ(window->festivalOnScreen, festival);
    auto* bill = find<QTableWidget>("flxBill");
    EXPECT_EQ(bill->rowCount(), static_cast<int>(2 * billed.size()));
    g.band.read(billed[0]);
    EXPECT_EQ(bill->item(0, 3)->text().toStdString(), trim(g.band->name.value));
    EXPECT_EQ(bill->item(0, 6)->text(), "") << "no crowd before the day";
    screenshot("71_frmFestivalDetails");

    click("cmdLastYear");
    ASSERT_EQ(screen(), Screen::frmHistoricalFestivalDetails);
    EXPECT_EQ(find<QLabel>("lblReviewR")->text(), "No review");
    EXPECT_NE(findShown("lblNotHeld"), nullptr);
    screenshot("72_frmHistoricalFestivalDetails");
}

}  // namespace trovane::test

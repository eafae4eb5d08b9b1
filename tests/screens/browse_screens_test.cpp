// The browsers: each Find entry opens its own; labels sort by click and by
// Ctrl+number; typing finds a name; Enter opens a row and the way back finds
// the same list, sort and row; the band filter's money goes through the rate.
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>

#include "screen_fixture.h"
#include "screens/band_browse_screens.h"
#include "screens/browse_grid_widget.h"
#include "screens/browse_memory.h"
#include "screens/screen_page.h"
#include "screens/side_bar.h"
#include "screens/table_browse_screens.h"

namespace trovane::test {

namespace {

int16_t addBand(Game& g, const char* name, int64_t advance) {
    g.band.rec =
        BandRecord{.name = name, .style = 1, .reputation = {10, 10, 10, 10, 10}, .advanceToPay = moneyUnits(advance)};
    return static_cast<int16_t>(g.band.append());
}

}  // namespace

class BrowseScreens : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        startNewGameAsPlayer();
        // The small world's unused band records stand aside, so the lists hold only the bands a test adds.
        Game& g = *game;
        for (int32_t n = 1; n < g.band.recordCount(); ++n) {
            g.band.read(n);
            if (g.band->name.value.empty()) {
                g.band->retired = kTrue;
                g.band.write();
            }
        }
        firstAdded = static_cast<int16_t>(g.band.recordCount());
    }
    int16_t firstAdded = 0;
    screens::BrowseGridWidget* shownGrid(const char* name) {
        return qobject_cast<screens::BrowseGridWidget*>(findShown(name));
    }
    void findEntry(const char* entry) {
        click(window->sideBar()->btnFind);
        click(window->sideBar()->findOptions()->entry(QString::fromLatin1(entry)));
    }
    QStringList column(screens::BrowseGridWidget* grid, int c = 0) {
        QStringList v;
        for (int r = 0; r < grid->model()->rowCount(); ++r) v << grid->model()->index(r, c).data().toString();
        return v;
    }
};

TEST_F(BrowseScreens, EachFindEntryOpensItsBrowser) {
    // Bands, Staff, Venues, Businesses, Media, Awards and Festivals are opened by the tests of their lists.
    using E = std::tuple<const char*, Screen, const char*>;  // entry, screen, title (none: not checked)
    for (auto [entry, expected, title] :
         {E{"lblArtists", Screen::frmArtistBrowse, nullptr}, E{"lblLabels", Screen::frmLabelBrowse, nullptr},
          E{"lblSongs", Screen::frmSongBrowse, nullptr}, E{"lblRichList", Screen::frmRichList, "Rich List"},
          E{"lblShortlist", Screen::frmBandBrowse, "Shortlisted Bands"},
          E{"lblBands", Screen::frmBandBrowse, "Band Search"}}) {
        findEntry(entry);
        EXPECT_EQ(screen(), expected) << entry;
        auto* page = qobject_cast<screens::ScreenPage*>(window->currentScreenWidget());
        if (!title) continue;
        EXPECT_EQ(page ? page->titleLabel()->text() : QString(), title) << entry;
    }
}

TEST_F(BrowseScreens, BandsSortByClicksAndKeysAndComeBackAsTheyWere) {
    addBand(*game, "Bravo", 500);
    addBand(*game, "Alpha", 20'000);
    addBand(*game, "Charlie", 3'000);
    findEntry("lblBands");
    auto* grid = qobject_cast<screens::BrowseGridWidget*>(findShown("flxBands"));
    EXPECT_EQ(column(grid), (QStringList{"Tess Calloway", "Bravo", "Alpha", "Charlie"}));  // table order
    grid->horizontalHeader()->sectionClicked(0);
    EXPECT_EQ(column(grid), (QStringList{"Alpha", "Bravo", "Charlie", "Tess Calloway"}));
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_1, Qt::ControlModifier);  // the same label again: descending
    EXPECT_EQ(column(grid), (QStringList{"Tess Calloway", "Charlie", "Bravo", "Alpha"}));
    // Advance sorts by amount: 0, 500, 3,000, 20,000 (by text "20,000" would come before "3,000").
    QTest::keyClick(grid, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(column(grid), (QStringList{"Tess Calloway", "Bravo", "Charlie", "Alpha"}));
    screenshot("browse_01_band_search", {"flxBands", "cmdFilter"});

    QTest::keyClicks(grid, "ch");
    EXPECT_EQ(grid->currentRecord(), firstAdded + 2) << "typing finds Charlie";
    QTest::keyClick(grid, Qt::Key_1);  // a digit without Ctrl is typed, not a sort
    EXPECT_EQ(column(grid), (QStringList{"Tess Calloway", "Bravo", "Charlie", "Alpha"}));
    QTest::keyClick(grid, Qt::Key_1, Qt::ControlModifier);  // by name, ascending
    QTest::qWait(1100);                                     // a pause starts a new search
    QTest::keyClicks(grid, "te");
    EXPECT_EQ(grid->currentRow(), 3);
    QTest::keyClick(grid, Qt::Key_Return);  // Tess Calloway, the small world's own act
    ASSERT_EQ(screen(), Screen::frmBandDetails);
    window->returnToPreviousScreen();
    ASSERT_EQ(screen(), Screen::frmBandBrowse);
    grid = shownGrid("flxBands");
    ASSERT_NE(grid, nullptr);
    EXPECT_EQ(column(grid), (QStringList{"Alpha", "Bravo", "Charlie", "Tess Calloway"})) << "the same sort";
    EXPECT_EQ(grid->currentRow(), 3) << "the same row";
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_Escape);
    EXPECT_NE(screen(), Screen::frmBandBrowse);
}

TEST_F(BrowseScreens, TheBandFilterTakesMoneyInTheDisplayCurrency) {
    game->prefs.rec.exchangeRate = 1.47f;
    addBand(*game, "Dear", 100'000);
    addBand(*game, "Dearer", 100'001);
    findEntry("lblBands");
    BandFilter& kept = screens::browseMemory().band.filter;
    // The top is 50,000,000 of the display currency: 50,000,000 / 1.47 = 34,013,605.4 -> 34,013,605.
    EXPECT_EQ(kept.advanceMax, moneyUnits(34'013'605));
    {
        screens::frmBandFilter form(*window, kept);
        form.show();
        form.cmbAdvanceMax->setCurrentText("250,000");
        click(form.cmdAdvanceMaxDec);
        EXPECT_EQ(form.cmbAdvanceMax->currentText(), "100,000");
        form.cmbAdvanceMax->setCurrentText("147,000");  // 147,000 / 1.47 = 100,000
        click(form.cmdAgeMaxInc);
        EXPECT_EQ(form.cmbAgeMax->currentText(), "51");
        form.cmdOkClick();
        screenshotOf(&form, "browse_02_band_filter");
    }
    // "Only the style" unticked: any style.
    EXPECT_EQ(std::tuple(kept.style, kept.advanceMax, kept.ageMax), std::tuple(0, moneyUnits(100'000), 51));
    qobject_cast<screens::frmBandBrowse*>(findShown("frmBandBrowse"))->refill();
    auto* grid = shownGrid("flxBands");
    EXPECT_EQ(column(grid), (QStringList{"Tess Calloway", "Dear"})) << "the maximum itself stays, one over goes";

    // Kept when the browser is left and opened again.
    click(window->sideBar()->btnNews);
    findEntry("lblBands");
    EXPECT_EQ(shownGrid("flxBands")->model()->rowCount(), 2);
    {
        screens::frmBandFilter form(*window, kept);
        form.show();
        click(form.cmdReset);
        EXPECT_EQ(kept.advanceMax, moneyUnits(34'013'605));
        EXPECT_EQ(QStringList({form.cmbAdvanceMax->currentText(), form.cmbAgeMax->currentText()}),
                  QStringList({"50,000,000", "50"}));
    }
    kept.name = "Dear";
    window->quitGame();
    EXPECT_FALSE(screens::browseMemory().band.filterReady) << "the start form forgets the filter";
    EXPECT_EQ(screens::browseMemory().band.filter.name, "");
}

TEST_F(BrowseScreens, TheBookingListHandsTheChosenBandToItsCaller) {
    const int16_t support = addBand(*game, "Support Act", 100);
    int16_t chosen = 0;
    screens::frmBandBrowse::openBooking(*window, 1, [&chosen](int16_t b) { chosen = b; });
    ASSERT_EQ(screen(), Screen::frmBandBrowse);
    auto* grid = shownGrid("flxBands");
    EXPECT_EQ(grid->model()->headerData(0, Qt::Horizontal).toString(), "Added");
    EXPECT_TRUE(findShown("cmdConfirm")->isVisible());
    EXPECT_FALSE(qobject_cast<screens::frmBandBrowse*>(findShown("frmBandBrowse"))->cmdFilter->isVisible());
    ASSERT_TRUE(grid->typeAhead(QStringLiteral("Support")));
    click("cmdConfirm");
    EXPECT_EQ(chosen, support);
    findEntry("lblBands");
    EXPECT_FALSE(qobject_cast<screens::frmBandBrowse*>(findShown("frmBandBrowse"))->cmdConfirm->isVisible())
        << "Find opens the search, not the booking";
}

TEST_F(BrowseScreens, AVenueListSortsChoosesAndResets) {
    addVenue(*game, "Olympia", 1, 12'500);  // in London
    addVenue(*game, "Roxy", 4, 900);        // in Toronto
    addVenue(*game, "Arena", 1, 12'500);
    findEntry("lblVenues");
    auto* grid = qobject_cast<screens::BrowseGridWidget*>(findShown("flxGrid"));
    grid->horizontalHeader()->sectionClicked(4);
    EXPECT_EQ(column(grid), (QStringList{"Roxy", "Olympia", "Arena"})) << "by capacity; ties in table order";
    EXPECT_EQ(window->findChild<QComboBox*>("cmbColumn4"), nullptr) << "figures are sorted, not chosen";
    auto* city = qobject_cast<QComboBox*>(findShown("cmbColumn1"));
    city->setCurrentText("London");
    EXPECT_EQ(column(grid), (QStringList{"Olympia", "Arena"}));
    screenshot("browse_03_venues", {"flxGrid", "cmdReset"});
    click(window->sideBar()->btnNews);
    findEntry("lblVenues");
    grid = shownGrid("flxGrid");
    EXPECT_EQ(column(grid), (QStringList{"Olympia", "Arena"})) << "the choice is kept";
    click("cmdReset");
    EXPECT_EQ(column(grid), (QStringList{"Roxy", "Olympia", "Arena"})) << "reset keeps the sort";
    auto* name = qobject_cast<QLineEdit*>(findShown("txtName"));
    name->setText(" Arena ");
    QTest::keyClick(name, Qt::Key_Return);
    EXPECT_EQ(column(grid), (QStringList{"Arena"}));
}

}  // namespace trovane::test

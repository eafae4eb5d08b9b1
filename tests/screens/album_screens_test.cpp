// The road of an album on screen: from the signed band's panel through the
// request, the budget, the tracks, the title and the studio to the recording
// progress; and building a studio from the label's facilities.
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTableWidget>

#include <QTabWidget>
#include <QTimer>

#include "production/businesses.h"
#include "screen_fixture.h"
#include "screens/album_screens.h"
#include "screens/business_screens.h"
#include "screens/label_details_screen.h"
#include "screens/side_bar.h"
#include "support/amend.h"
#include "talent/contract_progress.h"
#include "world/strings.h"

using namespace trovane;
using test::ScreenTest;

namespace {

// An act of two signed to the player, and an open independent studio.
int16_t addSignedBand(Game& g) {
    const int16_t band = test::addHartbeats(g, 2, 0);
    g.business.rec = BusinessRecord{.name = std::string("Harbour Studios"), .city = 1, .quality = 40, .open = -1};
    g.business.append();
    return band;
}

void clickRow(QTableWidget* t, int row) {
    QRect r = t->visualItemRect(t->item(row, 0));
    QTest::mouseClick(t->viewport(), Qt::LeftButton, {}, r.center());
    QApplication::processEvents();
}

}  // namespace

TEST_F(ScreenTest, AnAlbumFromTheBandsPanelToTheStudio) {
    startNewGameAsPlayer();
    Game& g = *game;
    const int16_t band = addSignedBand(g);
    auto* panel = new screens::frmBandOptionsSigned(*window, band, window.get());
    panel->move(260, 120);
    panel->show();
    EXPECT_FALSE(panel->lblAlbumProgress->isEnabled()) << "no songs yet";
    EXPECT_TRUE(panel->lblTour->isEnabled());
    screenshot("30_frmBandOptionsSigned");
    click(panel->lblAlbum);

    auto* work = dialog<screens::frmWorkOnAlbum>("frmWorkOnAlbum");
    ASSERT_NE(work, nullptr);
    screenshotOf(work, "31_frmWorkOnAlbum");
    click(work->cmdYes);
    EXPECT_EQ(work->optBudget[0]->text().toStdString(), "Quality 90%, £50,000 a song");
    screenshotOf(work, "32_frmWorkOnAlbum_budget");
    click(work->optBudget[3]);
    click(work->cmdConfirm);
    g.band.read(band);
    EXPECT_EQ(std::tuple(g.band->albumStatus, g.band->materialBudget), std::tuple(1, 3));

    for (const char* title : {"Low Tide", "Night Bus", "Glass Roof"}) {
        g.song.rec = SongRecord{
            .title = title, .band = band, .quality = 60, .commerciality = 40, .disc = 65535, .written = g.gameDate};
        g.song.append();
    }
    amend(g.band, band, [&] { g.band->songsWritten = 3; });
    panel = new screens::frmBandOptionsSigned(*window, band, window.get());
    panel->show();
    EXPECT_FALSE(panel->lblAlbum->isEnabled()) << "an album in hand";
    click(panel->lblAlbumProgress);

    auto* progress = dialog<screens::frmAlbumProgress>("frmAlbumProgress");
    ASSERT_NE(progress, nullptr);
    EXPECT_FALSE(progress->cmdFinalise->isEnabled());
    clickRow(progress->flxSongs, 0);
    clickRow(progress->flxSongs, 1);
    clickRow(progress->flxSongs, 1);  // unmarked again
    clickRow(progress->flxSongs, 2);
    EXPECT_EQ(progress->marked().size(), 2u);
    EXPECT_EQ(progress->flxSongs->item(0, 5)->text().toStdString(), "Added");
    screenshotOf(progress, "33_frmAlbumProgress");
    click(progress->cmdFinalise);

    auto* title = dialog<screens::frmFinaliseAlbum>("frmFinaliseAlbum");
    ASSERT_NE(title, nullptr);
    title->txtTitle->clear();
    click(title->cmdConfirm);
    EXPECT_EQ(title->findChild<QLabel*>("lblRefusal")->text().toStdString(), "Please enter a title for the album.");
    QTest::keyClicks(title->txtTitle, "Harbour Lights");
    screenshotOf(title, "34_frmFinaliseAlbum");
    click(title->cmdConfirm);

    auto* studio = dialog<screens::frmChooseStudio>("frmChooseStudio");
    ASSERT_NE(studio, nullptr);
    EXPECT_FALSE(studio->cmdChoose->isEnabled());
    clickRow(studio->flxBusinesses, 0);
    // 2 tracks, 4 sessions at 40 x 40 x 1.5 = 2,400.
    EXPECT_EQ(studio->details->lblCost->text().toStdString(), "Estimated Cost : £9,600");
    EXPECT_EQ(studio->details->lblOwner->text().toStdString(), "Independent Company");
    screenshotOf(studio, "35_frmChooseStudio");
    const Money cash = g.player.playerLabelCash;
    click(studio->cmdChoose);
    EXPECT_EQ(g.player.playerLabelCash, cash - moneyUnits(9600));

    auto* recording = dialog<screens::frmRecordingProgress>("frmRecordingProgress");
    ASSERT_NE(recording, nullptr);
    EXPECT_EQ(recording->windowTitle().toStdString(), "Album Progress");
    screenshotOf(recording, "36_frmRecordingProgress");
    click(recording->cmdOk);
    g.band.read(band);
    EXPECT_EQ(g.band->albumStatus, 2);
    g.disc.read(g.band->songsWritten);
    EXPECT_EQ(trim(g.disc->title.value), "Harbour Lights");
}

TEST_F(ScreenTest, ARecordedAlbumIsReleasedFromTheBandsPanelAndAStudioBuiltFromTheFacilities) {
    startNewGameAsPlayer();
    Game& g = *game;
    const int16_t band = addSignedBand(g);
    g.disc.rec = DiscRecord{
        .title = "Harbour Lights", .band = band, .label = g.player.playerLabel, .trackCount = 10, .tracksRecorded = 10};
    const auto disc = static_cast<int16_t>(g.disc.append());
    // recorded; the disc's number is held in songsWritten
    amend(g.band, band, [&] {
        g.band->albumStatus = 3;
        g.band->songsWritten = disc;
    });
    auto* panel = new screens::frmBandOptionsSigned(*window, band, window.get());
    panel->show();
    EXPECT_EQ(panel->lblAlbumProgress->text().toStdString(), "Release Album");
    EXPECT_FALSE(panel->lblAlbum->isEnabled()) << "an album is in hand";
    QString opened;
    QTimer::singleShot(0, [&opened] {
        if (auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            opened = d->objectName();
            d->reject();
        }
    });
    click(panel->lblAlbumProgress);
    EXPECT_EQ(opened.toStdString(), "frmSetReleaseDate");

    // A studio is built from the label's facilities.
    click(window->sideBar()->btnLabelOptions);
    ASSERT_EQ(screen(), Screen::frmLabelDetails);
    auto* page = find<screens::frmLabelDetails>("frmLabelDetails");
    ASSERT_EQ(page->tabs->count(), 5);  // Details, Finances, Departments, Facilities, Achievements
    EXPECT_EQ(page->tabs->tabText(3), "Facilities");
    page->tabs->setCurrentIndex(3);
    auto* facilities = find<screens::LabelFacilities>("LabelFacilities");
    EXPECT_EQ(facilities->flxBusinesses->rowCount(), 0);
    click(facilities->cmdBuild);
    auto* build = dialog<screens::frmBuildNewFacility>("frmBuildNewFacility");
    ASSERT_NE(build, nullptr);
    EXPECT_EQ(build->windowTitle().toStdString(), "Build New Studio");
    EXPECT_EQ(build->cmbCountry->currentText().toStdString(), "England");
    click(build->cmdConfirm);
    EXPECT_TRUE(build->isVisible()) << "no name: refused";
    QTest::keyClicks(build->txtName, "Nightjar Rooms");
    for (int i = 0; i < 5; ++i) click(build->cmdQualityDown);  // 50 down to 45
    EXPECT_EQ(QStringList({build->lblQuality->text(), build->lblCost->text(), build->lblRunningCost->text()}),
              QStringList({"45%", "£990,000", "£20,250 per month"}));
    screenshotOf(build, "37_frmBuildNewFacility");
    click(build->cmdConfirm);
    ASSERT_EQ(facilities->flxBusinesses->rowCount(), 1);
    EXPECT_EQ(facilities->flxBusinesses->item(0, 3)->text().toStdString(), "Under Construction");
    g.business.read(g.business.recordCount() - 1);
    EXPECT_EQ(std::tuple(trim(g.business->name.value), g.business->open), std::tuple(std::string("Nightjar Rooms"), 0));
    screenshotOf(facilities, "38_LabelFacilities");
    delete facilities;
}

TEST_F(ScreenTest, AnEndedOptionIsDecidedOnItsOwnScreen) {
    startNewGameAsPlayer();
    Game& g = *game;
    const int16_t band = addSignedBand(g);
    // the second term has ended
    amend(g.band, band, [&] {
        g.band->offerStage = 1;
        g.band->additionalAdvanceCount = 2;
        g.band->optionsRemaining = 2;
        g.band->additionalAdvance = moneyUnits(30000);
    });
    g.schedule.rec = ScheduleRecord{.type = 18, .date = g.gameDate, .band = band};
    g.schedule.append();
    contractPoint(g);  // the band asks for a decision: an item that holds the calendar
    click(window->sideBar()->btnContinueGame);
    ASSERT_EQ(screen(), Screen::frmNewsFull);
    EXPECT_EQ(find<QLabel>("lblHeadline")->text().toStdString(), "The Hartbeats request decision on contract.");
    click("cmd1");
    ASSERT_EQ(screen(), Screen::frmBandOptionDecision);
    auto* text = find<QLabel>("lblText");
    ASSERT_NE(text, nullptr);
    EXPECT_TRUE(text->text().startsWith("You must choose whether to extend The Hartbeats's contract"));
    screenshot("39_frmBandOptionDecision");
    click("cmdYes");
    g.band.read(band);
    EXPECT_EQ(std::tuple(g.band->optionsRemaining, g.band->advanceToPay), std::tuple(1, moneyUnits(30000)));
    EXPECT_EQ(screen(), Screen::frmNews);
}

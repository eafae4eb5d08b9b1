// Find's band lists, "Band Details", its options and the offer form.
#include <QLabel>
#include <QListWidget>
#include <QTableWidget>

#include "label/scouting.h"
#include "schedule/schedule.h"
#include "screen_fixture.h"
#include "screens/browse_grid_widget.h"
#include "screens/side_bar.h"
#include "talent/contracts.h"
#include "world/strings.h"

namespace trovane::test {

class BandScreens : public ScreenTest {
protected:
    int16_t band = 0;

    void SetUp() override {
        ScreenTest::SetUp();
        startNewGameAsPlayer();
        band = addMarshAct(*game, "The Marsh Lights");
    }
    void openFromSearch(const QString& name) {
        click(window->sideBar()->btnFind);
        click(window->sideBar()->findOptions()->entry("lblBands"));
        ASSERT_EQ(screen(), Screen::frmBandBrowse);
        auto* list = find<screens::BrowseGridWidget>("flxBands");
        ASSERT_TRUE(list->typeAhead(name));
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Return);
        ASSERT_EQ(screen(), Screen::frmBandDetails);
    }
    QPushButton* extraEntry(const char* name) {
        click(window->sideBar()->cmdExtra);
        screens::OptionPanel* panel = window->sideBar()->extraPanel();
        EXPECT_NE(panel, nullptr);
        return panel ? panel->entry(QString::fromLatin1(name)) : nullptr;
    }
    void closeDialog() {
        if (QWidget* d = dialog("refusalDialog")) d->close();
    }
};

TEST_F(BandScreens, TheBandSearchOpensBandDetailsWhoseShortlistEntrySaysWhetherItAddsOrRemoves) {
    click(window->sideBar()->btnFind);
    click("lblBands");
    EXPECT_EQ(find<screens::BrowseGridWidget>("flxBands")->model()->headerData(2, Qt::Horizontal).toString(),
              "Advance");
    screenshot("band_01_band_search");
    openFromSearch("The Marsh Lights");
    EXPECT_EQ(find<QLabel>("lblLabel")->text(), "Unsigned");
    EXPECT_EQ(find<QTableWidget>("flxArtists")->rowCount(), 2);
    EXPECT_EQ(items(find<QListWidget>("lstInterested")), QStringList{"None"});
    EXPECT_TRUE(find<QLabel>("lblDemands")->text().startsWith("The Marsh Lights are demanding"));
    EXPECT_EQ(window->findChild<QLabel*>("lblAbility"), nullptr) << "ability is shown for the player's acts only";
    screenshot("band_02_band_details");

    QPushButton* entry = extraEntry("lblShortlist");
    EXPECT_EQ(entry->text(), "Add to Shortlist");
    screenshot("band_03_options_unsigned");
    click(entry);
    EXPECT_EQ(playerShortlist(*game), std::vector<int16_t>{band});
    EXPECT_EQ(items(find<QListWidget>("lstInterested")), QStringList{"Nightjar Records"});
    EXPECT_EQ(extraEntry("lblShortlist")->text(), "Remove from Shortlist");
    click(window->sideBar()->cmdExtra);  // closes
    click(window->sideBar()->btnFind);
    click(window->sideBar()->findOptions()->entry("lblShortlist"));
    EXPECT_EQ(find<screens::BrowseGridWidget>("flxBands")->model()->rowCount(), 1);
    screenshot("band_04_shortlisted_bands");
}

TEST_F(BandScreens, AnOfferIsMadeChangedAndWithdrawn) {
    openFromSearch("The Marsh Lights");
    click(extraEntry("lblApproach"));
    ASSERT_EQ(screen(), Screen::frmBandContract);
    EXPECT_EQ(find<QLabel>("lblTitle")->text(), "Offer The Marsh Lights Contract");
    EXPECT_EQ(find<QLabel>("lblDemands")->text(),
              "The Marsh Lights are demanding £60,000 as an initial advance with a further 3 options all carrying "
              "advances of £60,000 being negotiable in no more than 18 months time. They also expect a royalty rate "
              "of 10 percent.");
    click("cmdRoyaltyInc");
    click("cmdOptionLengthDec");
    click("cmdOptionLengthDec");    // 12 stays 12
    click("cmdInitialAdvanceInc");  // 60,000 + its step of 5,000
    EXPECT_EQ(texts({"lblRoyalty", "lblOptionLength"}), (QStringList{"11 percent", "12 months"}));
    click("cmdOptionLengthInc");
    click("cmdOptionLengthInc");  // 18 stays 18
    EXPECT_EQ(find<QLabel>("lblOptionLength")->text(), "18 months");
    click("cmdOptionLengthDec");
    screenshot("band_05_band_contract");
    click("cmdOk");
    closeDialog();
    int32_t offer = hasOfferFrom(*game, game->player.playerLabel, band);
    ASSERT_NE(offer, 0);
    game->offer.read(offer);
    EXPECT_EQ(std::tuple(game->offer->initialAdvance, game->offer->royalty, game->offer->optionLength),
              std::tuple(65'000, 11, 12));
    ASSERT_EQ(screen(), Screen::frmBandDetails);

    click(extraEntry("lblChange"));
    EXPECT_EQ(find<QLabel>("lblRoyalty")->text(), "11 percent") << "the form opens on the pending offer";
    click("cmdCancel");
    QPushButton* withdraw = extraEntry("lblWithdraw");
    screenshot("band_06_options_approached");
    click(withdraw);
    EXPECT_EQ(hasOfferFrom(*game, game->player.playerLabel, band), 0);
}

TEST_F(BandScreens, ScoutFilesTheReportWithinAWeekAndADiscOfTheBandOpensDiscDetails) {
    game->disc.rec = DiscRecord{.title = "Marsh Single", .isSingle = 1, .band = band};
    game->disc.append();
    game->disc.rec = DiscRecord{
        .title = "Marsh Songs", .releaseDate = {game->gameDate - 30, 0, game->gameDate - 44, 0, 0}, .band = band};
    const auto disc = static_cast<int16_t>(game->disc.append());
    openFromSearch("The Marsh Lights");
    click(extraEntry("lblScout"));
    bool filed = false;
    for (int d = 5; d <= 7; ++d)
        for (int32_t id : entriesOfDay(*game, game->gameDate + d)) {
            game->schedule.read(id);
            filed = filed || (game->schedule->type == 6 && game->schedule->band == band);
        }
    EXPECT_TRUE(filed);
    closeDialog();
    auto* discs = find<QTableWidget>("flxDiscs");
    ASSERT_EQ(discs->rowCount(), 2);
    EXPECT_EQ(cells(discs, 1, {1, 2}), (QStringList{"Single", "Not released"}));
    // The album's date is its first release anywhere.
    EXPECT_EQ(cells(discs, 0, {0, 1, 2}), (QStringList{"Marsh Songs", "Album", "22/6/2004"}));
    discs->setCurrentCell(0, 0);
    discs->setFocus();
    QTest::keyClick(discs, Qt::Key_Return);
    ASSERT_EQ(screen(), Screen::frmDiscDetails);
    EXPECT_EQ(window->discOnScreen, disc);
}

}  // namespace trovane::test

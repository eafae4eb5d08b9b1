// The forms that date, press and ship a disc, and Disc Details.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>

#include "screen_fixture.h"
#include "screens/disc_screens.h"
#include "screens/single_screens.h"
#include "support/amend.h"
#include "world/dates.h"
#include "world/strings.h"

using namespace trovane;

namespace {

class DiscForms : public test::ScreenTest {
protected:
    int16_t disc = 0, plant = 0, firm = 0;
    void SetUp() override {
        ScreenTest::SetUp();
        startNewGameAsPlayer();
        Game& g = *game;
        const int16_t label = g.player.playerLabel;
        g.band.rec = BandRecord{.name = "The Testers", .style = 1, .label = label, .reputation = {50, 50, 50, 50, 50}};
        auto band = static_cast<int16_t>(g.band.append());
        g.disc.rec = DiscRecord{.title = "Forms",
                                .quality = 70,
                                .commerciality = 70,
                                .band = band,
                                .label = label,
                                .trackCount = 10,
                                .tracksRecorded = 10};
        disc = static_cast<int16_t>(g.disc.append());
        for (uint8_t kind : {uint8_t{1}, uint8_t{2}}) {
            g.business.rec =
                BusinessRecord{.name = kind == 1 ? "Disc Press" : "Van Lines", .kind = kind, .quality = 40, .open = -1};
            (kind == 1 ? plant : firm) = static_cast<int16_t>(g.business.append());
        }
    }
    DiscRecord record() {
        game->disc.read(disc);
        return game->disc.rec;
    }
};

TEST_F(DiscForms, TheDateFormOffersValidMondaysOnlySetsTheTickedTerritoriesAndNoneWithoutADay) {
    {
        screens::frmSetReleaseDate none(*game, disc);
        none.show();
        none.cmbYear[0]->setCurrentIndex(1);
        EXPECT_EQ(none.cmbMonth[0]->count(), 12) << "2005 from January";
        for (auto* box : none.chkTerritories) box->setChecked(false);
        click(none.cmdConfirm);
        EXPECT_EQ(none.result(), QDialog::Rejected) << "nothing ticked acts as cancel";
        EXPECT_EQ(record().releaseDate, (std::array<double, 5>{}));
    }
    screens::frmSetReleaseDate form(*game, disc);
    form.show();
    // 5 August 2004 + 42 is Thursday 16 September: the first Monday is the 20th.
    EXPECT_EQ(form.chosenDate(0), serialFromCivil(2004, 9, 20));
    for (int i = 0; i < form.cmbDay[0]->count(); ++i) EXPECT_EQ(weekdayOf(form.cmbDay[0]->itemData(i).toDouble()), 2);
    form.cmbMonth[0]->setCurrentIndex(1);  // October: 4, 11, 18 and 25
    EXPECT_EQ(form.cmbDay[0]->count(), 4);
    screenshotOf(&form, QStringLiteral("32_frmSetReleaseDate"));
    for (int t = 1; t < 5; ++t) form.chkTerritories[static_cast<std::size_t>(t)]->setChecked(false);
    click(form.cmdConfirm);
    EXPECT_EQ(record().releaseDate[0], serialFromCivil(2004, 10, 4));
    EXPECT_EQ(record().releaseDate[1], 0.0);

    // An act whose contract ends before the earliest release date leaves every
    // territory without a day: none ticked, none to tick.
    amend(game->band, record().band, [&] { game->band->contractEnd = game->gameDate + 10; });
    screens::frmSetReleaseDate ended(*game, disc);
    for (auto* box : ended.chkTerritories) {
        EXPECT_FALSE(box->isChecked());
        EXPECT_FALSE(box->isEnabled());
    }
}

// Pressing needs a recorded, dated disc of the player's; dating needs one not yet on sale.
TEST_F(DiscForms, TheOptionsOfferWhatTheDiscIsReadyFor) {
    auto offered = [&] {
        screens::frmDiscOptions options(*game, disc);
        return std::pair(options.lblSetReleaseDate->isEnabled(), options.lblPressDiscs->isEnabled());
    };
    EXPECT_EQ(offered(), std::pair(true, false)) << "recorded, not dated";
    amend(game->disc, disc, [&] { game->disc->releaseDate[2] = game->gameDate + 1; });
    EXPECT_EQ(offered(), std::pair(true, true)) << "dated, out tomorrow";
    amend(game->disc, disc, [&] { game->disc->releaseDate[2] = game->gameDate; });
    EXPECT_EQ(offered(), std::pair(false, true)) << "out today";
    amend(game->disc, disc, [&] { game->disc->tracksRecorded = 9; });
    EXPECT_EQ(offered(), std::pair(false, false)) << "a track still to record";
    amend(game->disc, disc, [&] { game->disc->trackCount = game->disc->tracksRecorded = 0; });
    EXPECT_EQ(offered(), std::pair(false, false)) << "no tracks at all";
}

TEST_F(DiscForms, ThePressFormStepsThroughTheQuantitiesOfDatedTerritoriesAndDiscDetailsShowThem) {
    amend(game->disc, disc, [&] { game->disc->releaseDate[0] = serialFromCivil(2004, 9, 20); });
    screens::frmPressDiscs form(*game, disc);
    form.show();
    EXPECT_FALSE(form.cmbQuantities[1]->isEnabled());
    for (int i = 0; i < 3; ++i) click(form.cmdQuantitiesInc[0]);
    click(form.cmdQuantitiesDec[0]);
    EXPECT_EQ(form.cmbQuantities[0]->currentText(), QStringLiteral("5,000"));
    EXPECT_TRUE(form.lblCost->text().startsWith(QStringLiteral("Estimated Cost : ")))
        << form.lblCost->text().toStdString();
    EXPECT_TRUE(form.lblForecast->text().contains(QStringLiteral("- UK : ")));
    screenshotOf(&form, QStringLiteral("33_frmPressDiscs"));
    click(form.cmdConfirm);
    EXPECT_EQ(record().pressingOrder[0], 5000);

    amend(game->disc, disc, [&] {
        game->disc->stock[0] = 12000;
        game->disc->totalSales[0] = 61000;
    });
    screens::frmDiscDetails details(*window, disc);
    details.resize(1280, 800);
    details.show();
    EXPECT_EQ(cells(details.flxTerritories, 0, {0, 2, 5}), (QStringList{"20/9/2004", "12,000", "S"}));
    EXPECT_TRUE(details.cmdExtra->isEnabled());
    screenshotOf(&details, QStringLiteral("35_frmDiscDetails"));
}

TEST_F(DiscForms, TheDistributorFormListsTheWeeksTerritoriesAndConfirms) {
    amend(game->disc, disc, [&] { game->disc->releaseDate = {game->gameDate + 6, game->gameDate + 30, 0, 0, 0}; });
    game->business.rec = BusinessRecord{.name = "Half Built", .kind = 2, .quality = 90, .open = 0};
    const int32_t building = game->business.append();
    screens::frmChooseDistributor form(*game, disc);
    form.show();
    ASSERT_NE(form.cmbFirm[0], nullptr);
    EXPECT_GE(form.cmbFirm[0]->findData(firm), 0);
    EXPECT_EQ(form.cmbFirm[0]->findData(plant), -1) << "a pressing plant ships nothing";
    EXPECT_EQ(form.cmbFirm[0]->findData(building), -1) << "nor does a firm still being built";
    EXPECT_EQ(form.cmbFirm[1], nullptr);
    EXPECT_FALSE(form.cmbFirm[0]->isEnabled());
    click(form.cmdChange[0]);
    EXPECT_TRUE(form.cmbFirm[0]->isEnabled());
    screenshotOf(&form, QStringLiteral("34_frmChooseDistributor"));
    click(form.cmdConfirm);
    EXPECT_EQ(record().distributor[0], firm);
}

TEST_F(DiscForms, ASingleTakesAFreeLeadAndTheTwoWeakestOtherTracks) {
    Game& g = *game;
    game->disc.read(disc);
    int16_t band = g.disc->band;
    std::array<int32_t, 4> songs{};
    // Means of quality and commerciality: 80, 30, 50, 40.
    const std::array<std::pair<uint8_t, uint8_t>, 4> marks = {{{80, 80}, {20, 40}, {50, 50}, {40, 40}}};
    for (std::size_t i = 0; i < 4; ++i) {
        g.song.rec = SongRecord{.title = "Song " + std::to_string(i + 1),
                                .band = band,
                                .quality = marks[i].first,
                                .commerciality = marks[i].second};
        if (i == 3) g.song->singleDisc[2] = 99;  // already a single in Europe
        songs[i] = g.song.append();
    }
    g.disc.read(disc);
    g.disc->trackCount = 4;
    g.disc->tracksRecorded = 4;
    for (std::size_t i = 0; i < 4; ++i) g.disc->tracks[i] = songs[i];
    g.disc.write();
    screens::frmReleaseSingle pick(g, disc);
    EXPECT_EQ(pick.lstSongs->count(), 3);  // song 4 has been a single
    const int32_t discsBefore = g.disc.recordCount();
    {
        screens::frmChooseBSides noStudio(g, disc, songs[0]);
        noStudio.show();
        click(noStudio.cmdConfirm);
        EXPECT_EQ(noStudio.single, 0);
        EXPECT_EQ(noStudio.lblRefusal->text().toStdString(), "Please choose an open studio from the list.");
        EXPECT_EQ(g.disc.recordCount(), discsBefore) << "a refusal makes nothing";
    }
    g.business.rec = BusinessRecord{.name = "Tin Roof", .kind = 0, .quality = 40, .open = -1};
    const auto studio = static_cast<int16_t>(g.business.append());
    screens::frmChooseBSides sides(g, disc, songs[0]);
    sides.show();
    EXPECT_EQ(sides.cmbBSide[0]->currentData().toInt(), songs[1]);
    EXPECT_EQ(sides.cmbBSide[1]->currentData().toInt(), songs[3]);
    EXPECT_EQ(sides.cmbBSide[0]->count(), 3) << "every track but the lead";
    EXPECT_EQ(sides.cmbBSide[1]->findData(songs[0]), -1);
    click(sides.cmdConfirm);
    ASSERT_GT(sides.single, 0);
    g.disc.read(sides.single);
    EXPECT_EQ(g.disc->studio, studio) << "the single is booked into the chosen studio";
    EXPECT_EQ(std::tuple(g.disc->isSingle, trim(g.disc->title.value), g.disc->quality, g.disc->tracks[1],
                         g.disc->totalSales[0]),
              std::tuple(1, std::string("Song 1"), 80, songs[1], 0));
}

}  // namespace

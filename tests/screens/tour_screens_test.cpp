// A tour booked on screen: from the signed band's panel through the area, two
// venues with their dates, the finalising, the provisions with a sponsor, to
// the tour's details with its days on the road.
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QTableWidget>

#include "screen_fixture.h"
#include "screens/album_screens.h"
#include "screens/choose_date.h"
#include "screens/tour_screens.h"
#include "world/strings.h"

using namespace trovane;
using test::ScreenTest;

namespace {

int rowOf(QTableWidget* t, const char* name) {
    for (int r = 0; r < t->rowCount(); ++r)
        if (t->item(r, 0)->text() == QLatin1String(name)) return r;
    return -1;
}

}  // namespace

TEST_F(ScreenTest, ATourFromTheBandsPanelToItsDetails) {
    startNewGameAsPlayer();
    Game& g = *game;
    const int16_t band = test::addHartbeats(g);
    const int16_t london = test::addVenue(g, "The Long Room", 1, 800);  // London, England
    const int16_t paris = test::addVenue(g, "Le Grand Salon", 3, 800);  // Paris, France
    // 20^4 / 5 = 32,000; / 100 = 320; + 450 = 770 a gig
    g.product.rec = ProductRecord{.name = "Fizzco Cola", .minimumReputation = 20, .area = "E", .maxControversy = 100};
    g.product.append();

    auto* panel = new screens::frmBandOptionsSigned(*window, band, window.get());
    panel->show();
    click(panel->lblTour);
    auto* arrange = dialog<screens::frmArrangeTour>("frmArrangeTour");
    ASSERT_NE(arrange, nullptr);
    EXPECT_EQ(arrange->lblPrompt->text().toStdString(),
              "Please choose the area you would like The Hartbeats to tour :-");
    click(arrange->optAreas[6]);
    EXPECT_FALSE(arrange->cmdAuto->isEnabled()) << "no assistant for Africa";
    click(arrange->optAreas[1]);
    EXPECT_TRUE(arrange->cmdAuto->isEnabled());
    screenshotOf(arrange, "70_frmArrangeTour");
    click(arrange->cmdOk);

    auto* venues = dialog<screens::frmTourVenues>("frmTourVenues");
    ASSERT_NE(venues, nullptr);
    const double first = g.gameDate + 42;
    for (auto [name, venue, date] :
         {std::tuple{"The Long Room", london, first}, {"Le Grand Salon", paris, first + 3}}) {
        venues->flxVenues->selectRow(rowOf(venues->flxVenues, name));
        click(venues->cmdAddGig);
        auto* calendar = dialog<screens::frmChooseDate>("frmChooseDate");
        ASSERT_NE(calendar, nullptr);
        emit calendar->dateChosen(date);
        calendar->accept();
        QApplication::processEvents();
        auto* ask = dialog<screens::frmConfirm>("frmConfirm");
        ASSERT_NE(ask, nullptr);
        EXPECT_EQ(ask->windowTitle().toStdString(), "Confirm Gig Date");
        EXPECT_TRUE(
            ask->lblQuestion->text().startsWith(QStringLiteral("Are you sure you want The Hartbeats to play ")));
        if (venue == paris) screenshotOf(ask, "72_frmConfirm_gig_date");
        click(ask->cmdYes);
    }
    screenshotOf(venues, "71_frmTourVenues");
    click(venues->cmdFinalise);
    auto* finalise = dialog<screens::frmConfirm>("frmConfirm");
    ASSERT_NE(finalise, nullptr);
    EXPECT_EQ(finalise->windowTitle().toStdString(), "Finalise Tour");
    EXPECT_TRUE(finalise->lblQuestion->text().endsWith(QStringLiteral(". Finalise the tour?")));
    for (int i = 0; i < 4; ++i) test::addHartbeats(g);  // four more acts of ours, free throughout
    click(finalise->cmdYes);

    auto* provisions = dialog<screens::frmChooseProvisions>("frmChooseProvisions");
    ASSERT_NE(provisions, nullptr);
    QListWidget* supports = provisions->lstSupports;
    ASSERT_EQ(supports->count(), 4);
    for (int i = 0; i < 4; ++i) supports->item(i)->setCheckState(Qt::Checked);
    EXPECT_EQ(supports->item(2)->checkState(), Qt::Checked);
    EXPECT_EQ(supports->item(3)->checkState(), Qt::Unchecked) << "three support acts at the most";
    for (int i = 0; i < 4; ++i) supports->item(i)->setCheckState(Qt::Unchecked);
    ASSERT_EQ(provisions->flxSponsors->rowCount(), 1);
    EXPECT_FALSE(provisions->cmdConfirm->isEnabled()) << "a sponsor fits, so one must be chosen";
    provisions->flxSponsors->selectRow(0);
    EXPECT_TRUE(provisions->cmdConfirm->isEnabled());
    provisions->cmbContent->setCurrentIndex(0);
    screenshotOf(provisions, "73_frmChooseProvisions");
    click(provisions->cmdConfirm);
    auto* sponsor = dialog<screens::frmConfirm>("frmConfirm");
    ASSERT_NE(sponsor, nullptr);
    EXPECT_EQ(sponsor->lblQuestion->text().toStdString(),
              "You have chosen Fizzco Cola to sponsor The Hartbeats's tour, they are willing to pay £1,540 (£770 per "
              "gig) for this, finalise?");
    click(sponsor->cmdYes);

    auto* details = dialog<screens::frmTourDetails>("frmTourDetails");
    ASSERT_NE(details, nullptr);
    ASSERT_EQ(details->flxGigs->rowCount(), 2);
    // England to France: 3 days, so 2 of travel and none of rest; no crowd before the night.
    EXPECT_EQ(cells(details->flxGigs, 1, {0, 4, 5, 6}), (QStringList{"Le Grand Salon", "2", "0", ""}));
    EXPECT_TRUE(details->lblSummary->text().contains(QStringLiteral("Content : Extravagant")));
    screenshotOf(details, "74_frmTourDetails");
    g.tour.read(g.tour.recordCount() - 1);
    EXPECT_EQ(std::tuple(g.tour->gigCount, g.tour->sponsorProduct), std::tuple(2, 1));
    click(details->cmdClose);
}

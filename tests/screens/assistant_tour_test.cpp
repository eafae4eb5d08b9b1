// The assistant's tour on screen: frmArrangeTour's Assistant plans the tour,
// Confirm Tour and the provisions finish it, and the records hold its gigs.
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QTableWidget>
#include <set>

#include "schedule/schedule.h"
#include "screen_fixture.h"
#include "screens/album_screens.h"
#include "screens/tour_screens.h"
#include "world/strings.h"

using namespace trovane;
using test::ScreenTest;

TEST_F(ScreenTest, TheAssistantPlansATourOfTheHomeNationsThatTheRecordsKeep) {
    startNewGameAsPlayer();
    Game& g = *game;
    const int16_t band = test::addHartbeats(g);
    // The assistant sizes venues by the act's draw in England, reputation 30: 970 to 1,939 seats
    // (the edges are the planner's own tests). It needs six that fit; France is not a home nation.
    std::set<int16_t> fitting;
    for (int i = 0; i < 4; ++i) fitting.insert(test::addVenue(g, "London Hall " + std::to_string(i), 1, 970 + 300 * i));
    fitting.insert(test::addVenue(g, "Glasgow Barrowland", 2, 1939));
    fitting.insert(test::addVenue(g, "Glasgow Corn Exchange", 2, 1200));
    test::addVenue(g, "London Cellar", 1, 500);
    test::addVenue(g, "Paris Olympia", 3, 1200);

    auto* panel = new screens::frmBandOptionsSigned(*window, band, window.get());
    panel->show();
    click(panel->lblTour);
    auto* arrange = dialog<screens::frmArrangeTour>("frmArrangeTour");
    ASSERT_NE(arrange, nullptr);
    ASSERT_TRUE(arrange->optAreas[0]->isChecked());
    EXPECT_EQ(arrange->cmbNation->currentText(), "England");
    EXPECT_EQ(arrange->cmbNation->currentData().toInt(), 1) << "the small world's first country";
    EXPECT_FALSE(arrange->cmbNation->isEnabled()) << "a tour of England names its nation";
    arrange->optAreas[1]->setChecked(true);  // Europe: all its nations, or one
    EXPECT_TRUE(arrange->cmbNation->isEnabled());
    EXPECT_EQ(arrange->cmbNation->currentText(), "All nations");
    EXPECT_GE(arrange->cmbNation->findText("France"), 1);
    EXPECT_TRUE(arrange->cmdAuto->isEnabled());
    arrange->optAreas[6]->setChecked(true);
    EXPECT_FALSE(arrange->cmdAuto->isEnabled()) << "the assistant does not plan tours of Africa";
    arrange->optAreas[0]->setChecked(true);
    click(arrange->cmdAuto);

    auto* ask = dialog<screens::frmConfirm>("frmConfirm");
    ASSERT_NE(ask, nullptr);
    EXPECT_EQ(ask->windowTitle().toStdString(), "Confirm Tour");
    EXPECT_TRUE(ask->lblQuestion->text().startsWith(
        QStringLiteral("Your assistant has presented his plan for The Hartbeats's tour, which consists of ")));
    screenshotOf(ask, "75_frmConfirm_assistant_tour");
    click(ask->cmdYes);
    auto* provisions = dialog<screens::frmChooseProvisions>("frmChooseProvisions");
    ASSERT_NE(provisions, nullptr);
    ASSERT_TRUE(provisions->cmdConfirm->isEnabled()) << "no sponsor fits, so none is needed";
    click(provisions->cmdConfirm);
    auto* details = dialog<screens::frmTourDetails>("frmTourDetails");
    ASSERT_NE(details, nullptr);

    g.tour.read(g.tour.recordCount() - 1);
    const TourRecord tour = g.tour.rec;
    EXPECT_EQ(details->flxGigs->rowCount(), tour.gigCount);
    // Every fitting venue once or twice (one or two nights each), nothing else.
    ASSERT_GE(tour.gigCount, 6);
    ASSERT_LE(tour.gigCount, 12);
    std::set<int16_t> played;
    for (int i = 0; i < tour.gigCount; ++i) {
        const int32_t gig = tour.gigs[static_cast<std::size_t>(i)];
        g.gig.read(gig);
        const GigRecord night = g.gig.rec;
        EXPECT_EQ(std::tuple(night.bill[0], night.tour), std::tuple(band, tour.tourNumber));
        played.insert(night.venue);
        int entries = 0;
        for (int32_t id : entriesOfDay(g, night.gigDate)) {
            g.schedule.read(id);
            if (g.schedule->type == 8 && g.schedule->gig == gig && g.schedule->band == band) ++entries;
        }
        EXPECT_EQ(entries, 1) << "gig " << gig;
    }
    EXPECT_EQ(played, fitting);
    screenshotOf(details, "76_frmTourDetails_assistant");
    click(details->cmdClose);
}

// Promotion on screen: the band's Promote opens the outlets that want it, an
// outlet shows its details and free issue days, and Book asks before it books.
#include <QLabel>
#include <QListWidget>
#include <QTableWidget>

#include "screen_fixture.h"
#include "screens/media_screens.h"
#include "screens/save_game_screen.h"
#include "screens/theme.h"
#include "support/amend.h"
#include "world/strings.h"

using namespace trovane;

namespace {

class PromotionScreen : public test::ScreenTest {
protected:
    // A new label has no acts: the first act of the world signs for it.
    int16_t ourBand() {
        Game& g = *game;
        amend(g.band, 1, [&] {
            g.band->label = g.player.playerLabel;
            g.band->retired = kFalse;
        });
        return 1;
    }
};

TEST_F(PromotionScreen, AnOutletIsChosenADayPickedAndTheBookingConfirmed) {
    startNewGameAsPlayer();
    Game& g = *game;
    int16_t band = ourBand();
    // An outspoken act of modest standing: an article is worth a lot to it.
    amend(g.band, band, [&] {
        g.band->reputation = {30, 30, 30, 30, 30};
        g.band->controversy = 100;
    });
    g.media.rec = MediaRecord{.mediaName = "Worldwide Weekly",
                              .mediaType = 1,
                              .reach = 2,
                              .frequency = 1,
                              .airDay = {-1, 0, 0, 0, 0, 0, 0},  // Mondays
                              .largeMinimum = 20,
                              .largeValue = 90,
                              .maxControversy = 100};
    int16_t outlet = static_cast<int16_t>(g.media.append());

    auto* form = new screens::frmPromotion(*window, band);
    form->show();
    form->cmbTerritory->setCurrentIndex(4);  // a global outlet is of the Other territory
    ASSERT_GE(form->flxMedia->rowCount(), 1);
    EXPECT_EQ(cells(form->flxMedia, 0, {0, 2, 4}), (QStringList{"Worldwide Weekly", "Global", "Large Article"}));
    EXPECT_TRUE(form->lblMediaDetails->text().contains("Weekly: Monday"));
    // Six weeks hold six Mondays; a day the act is busy is left out.
    ASSERT_GE(form->lstDates->count(), 1);
    EXPECT_LE(form->lstDates->count(), 6);
    EXPECT_FALSE(form->cmdBook->isEnabled());
    form->lstDates->setCurrentRow(0);
    ASSERT_TRUE(form->cmdBook->isEnabled());
    screenshotOf(form, "frmPromotion");
    const double day = form->lstDates->item(0)->data(Qt::UserRole).toDouble();
    click(form->cmdBook);
    auto* sure = dialog<screens::frmSure>("frmSure");
    ASSERT_NE(sure, nullptr);
    click(sure->lblConfirm);
    g.schedule.read(g.schedule.recordCount() - 1);
    EXPECT_EQ(std::tuple(g.schedule->type, g.schedule->media, g.schedule->mediaOption, g.schedule->date),
              std::tuple(17, outlet, 4, day));
}

}  // namespace

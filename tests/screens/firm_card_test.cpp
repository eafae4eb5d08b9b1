// A row of the firms' list opens the firm's particulars over the list.
#include <QLabel>
#include <QTest>

#include "screen_fixture.h"
#include "screens/browse_grid_widget.h"
#include "screens/business_screens.h"
#include "screens/side_bar.h"
#include "world/strings.h"

namespace trovane::test {

class FirmCard : public ScreenTest {};

TEST_F(FirmCard, AFirmRowOpensItsParticulars) {
    startNewGameAsPlayer();
    Game& g = *game;
    g.business.rec = BusinessRecord{};
    g.business->name = std::string("Marsh Lane Pressing");
    g.business->kind = 1;
    g.business->quality = 10;
    g.business->owner = g.player.playerLabel;
    g.business->open = -1;
    g.business->runningCost = 15'000;
    const int16_t firm = static_cast<int16_t>(g.business.append());

    click(window->sideBar()->btnFind);
    click(window->sideBar()->findOptions()->entry(QStringLiteral("lblBusinesses")));
    ASSERT_EQ(screen(), Screen::frmBusinessBrowse);
    auto* grid = qobject_cast<screens::BrowseGridWidget*>(findShown("flxGrid"));
    ASSERT_NE(grid, nullptr);
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_End);
    ASSERT_EQ(grid->currentRecord(), firm);
    QTest::keyClick(grid, Qt::Key_Return);

    auto* card = dialog<screens::frmFirmCard>("frmFirmCard");
    ASSERT_NE(card, nullptr);
    g.label.read(g.player.playerLabel);
    EXPECT_EQ(card->details->lblName->text(), "Marsh Lane Pressing");
    EXPECT_EQ(card->details->lblQuality->text(), "Quality : 10%");
    EXPECT_EQ(card->details->lblOwner->text(), "Owned by " + QString::fromStdString(trim(g.label->name.value)));
    EXPECT_TRUE(card->details->lblRunningCost->text().endsWith("15,000 per month"));
    // A plant of quality 10 presses 2 x 1,000 = 2,000 units a day.
    EXPECT_EQ(card->details->lblCost->text(), "2,000 units per day");
    screenshotOf(card, "49_frmFirmCard");
    card->close();
    EXPECT_EQ(screen(), Screen::frmBusinessBrowse);
}

}  // namespace trovane::test

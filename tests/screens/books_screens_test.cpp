// The label's details, its books and departments, and the staff screens:
// Find's list, a person, the options on a person, the contract form and a
// release through frmSure.
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QSlider>
#include <QTabWidget>
#include <QTableWidget>

#include "label/staff.h"
#include "screen_fixture.h"
#include "screens/browse_grid_widget.h"
#include "screens/label_details_screen.h"
#include "screens/option_panels.h"
#include "screens/save_game_screen.h"
#include "screens/side_bar.h"
#include "screens/staff_screens.h"
#include "world/record_store.h"

namespace trovane::test {

namespace {

int16_t addPerson(Game& g, const char* forename, int16_t employer, Money wage) {
    g.staff.rec = StaffRecord{
        .forename = forename, .surname = "Quill", .male = kTrue, .ability = 60, .employer = employer, .wage = wage};
    return static_cast<int16_t>(g.staff.append());
}

}  // namespace

TEST_F(ScreenTest, LabelDetailsShowTheBooksAndLockDepartmentChangesIn) {
    startNewGameAsPlayer();
    click(window->sideBar()->btnLabelOptions);
    ASSERT_EQ(screen(), Screen::frmLabelDetails);
    auto* page = find<screens::frmLabelDetails>("frmLabelDetails");
    EXPECT_EQ(page->titleLabel()->text(), "Nightjar Records");
    EXPECT_EQ(texts({"lblGenreR", "lblIndependenceR", "lblBossR", "lblFormedR", "lblUkReputationR"}),
              (QStringList{"Indie Rock", "Independent Label", "Ann Lee", "London, this year", "40%"}));
    screenshot("60_frmLabelDetails");

    page->tabs->setCurrentIndex(1);
    auto* sheet = find<QTableWidget>("flxBalanceSheet");
    ASSERT_EQ(sheet->rowCount(), 5 + 1 + 8 + 1);
    EXPECT_EQ(sheet->horizontalHeaderItem(1)->text(), "This Month");
    EXPECT_EQ(sheet->item(6, 0)->text(), "Wages");
    EXPECT_EQ(find<QTableWidget>("flxHistory")->rowCount(), 1) << "the opening row";
    screenshot("61_frmLabelDetails_finances");

    page->tabs->setCurrentIndex(2);
    page->lstDepartments->setCurrentRow(1);
    EXPECT_FALSE(page->sldNoOfEachAbility[0]->isEnabled());
    click("cmdHireFire");
    ASSERT_TRUE(page->sldNoOfEachAbility[0]->isEnabled());
    page->sldNoOfEachAbility[0]->setValue(2);
    page->sldNoOfEachAbility[4]->setValue(3);
    EXPECT_EQ(page->lblNoOfEachAbility[4]->text(), "3");
    screenshot("62_frmLabelDetails_department_unlocked");
    click("cmdHireFire");
    EXPECT_FALSE(page->sldNoOfEachAbility[0]->isEnabled());
    // weighted 2 x 5 + 3 = 13 -> 8; wages 2 x 1,500 + 3 x 1,000 = 6,000
    EXPECT_EQ(QStringList({page->lblQualityR->text(), page->lblWageBillR->text()}), QStringList({"8%", "£6,000"}));
    game->label.read(game->player.playerLabel);
    EXPECT_EQ(std::tuple(game->label->department[1].staffAtLevel[0], game->label->department[1].rating,
                         game->label->wageBill),
              std::tuple(2, 8, moneyUnits(6000)));
    screenshot("63_frmLabelDetails_department_locked");

    window->labelOnScreen = 1;  // a rival's shows the same, locked
    window->openScreen(Screen::frmLabelDetails);
    EXPECT_EQ(find<screens::frmLabelDetails>("frmLabelDetails")->titleLabel()->text(), "Greystone Music");
    EXPECT_FALSE(find<QPushButton>("cmdHireFire")->isEnabled());
}

TEST_F(ScreenTest, FindStaffOpensAPersonWhoseOptionsFollowTheirState) {
    startNewGameAsPlayer();
    const int16_t player = game->player.playerLabel;
    const int16_t free = addPerson(*game, "Fern", 0, moneyUnits(1234));
    const int16_t ours = addPerson(*game, "Oona", player, moneyUnits(800));
    screens::frmSideBar* bar = window->sideBar();

    click(bar->btnFind);
    click("lblStaff");
    ASSERT_EQ(screen(), Screen::frmStaffBrowse);
    auto* list = find<screens::BrowseGridWidget>("flxGrid");
    QAbstractItemModel* model = list->model();
    EXPECT_EQ(model->headerData(5, Qt::Horizontal).toString(), "Wage (per week)");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_6, Qt::ControlModifier);  // the wage label, ascending
    QTest::keyClick(list, Qt::Key_6, Qt::ControlModifier);  // and descending
    EXPECT_EQ(model->index(0, 0).data().toString(), "Morag Dunbar")
        << "wages sort as amounts: 2,511 over 1,234 and 800";
    screenshot("64_frmStaffBrowse");
    ASSERT_TRUE(list->typeAhead(QStringLiteral("Morag Dunbar")));
    QTest::keyClick(list, Qt::Key_Return);
    QApplication::processEvents();
    ASSERT_EQ(screen(), Screen::frmStaffDetails);
    EXPECT_EQ(find<QLabel>("lblEmployerR")->text(), "Greystone Music");
    click(bar->cmdExtra);
    screens::OptionPanel* panel = bar->openPanel();
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->objectName(), "frmStaffOptionsUnsigned");
    EXPECT_FALSE(panel->entry("lblApproach")->isEnabled()) << "she works for another label";
    screenshot("65_frmStaffDetails_options");
    click(bar->cmdExtra);

    window->staffOnScreen = game->player.playerStaff;
    window->openScreen(Screen::frmStaffDetails);
    click(bar->cmdExtra);
    EXPECT_EQ(bar->openPanel(), nullptr) << "nothing on the player's own record";

    window->staffOnScreen = free;
    window->openScreen(Screen::frmStaffDetails);
    click(bar->cmdExtra);
    click("lblApproach");
    auto* form = dialog<screens::frmStaffContract>("frmStaffContract");
    ASSERT_NE(form, nullptr);
    // 1,234 to its step of 250 is 1,250; a year is 52 weeks: 65,000
    EXPECT_EQ(form->lblDemands->text(),
              "Fern Quill is demanding £1,250 per week  (£65,000 per year) for a period of 3 years.");
    click(form->cmdLengthInc);
    form->cmbRole->setCurrentIndex(5);
    screenshotOf(form, "66_frmStaffContract");
    click(form->cmdOk);
    game->staff.read(free);
    EXPECT_EQ(std::tuple(game->staff->offerLabel, game->staff->offerYears, game->staff->offerWage),
              std::tuple(player, 4, moneyUnits(1250)));
    game->schedule.read(game->schedule.recordCount() - 1);
    EXPECT_EQ(std::tuple(game->schedule->type, game->schedule->department), std::tuple(1, 5));

    click(bar->cmdExtra);
    ASSERT_EQ(bar->openPanel()->objectName(), "frmStaffOptionsApproached");
    click("lblWithdraw");
    game->staff.read(free);
    EXPECT_EQ(game->staff->offerLabel, 0);

    window->staffOnScreen = ours;
    window->openScreen(Screen::frmStaffDetails);
    click(bar->cmdExtra);
    ASSERT_EQ(bar->openPanel()->objectName(), "frmStaffOptionsSigned");
    click("lblTerminate");
    auto* sure = dialog<screens::frmSure>("frmSure");
    ASSERT_NE(sure, nullptr);
    click(sure->lblConfirm);
    game->schedule.read(game->schedule.recordCount() - 1);
    EXPECT_EQ(std::tuple(game->schedule->type, game->schedule->staff, game->schedule->date),
              std::tuple(3, ours, game->gameDate));
}

}  // namespace trovane::test

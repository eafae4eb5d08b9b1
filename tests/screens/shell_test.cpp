// The shell around the screens: the option panels, the turn key, a reply
// that holds the calendar, the currency, and a fatal error of the logic.
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QTableView>
#include <fstream>

#include "floor/news_post.h"
#include "floor/preferences.h"
#include "schedule/schedule.h"
#include "screen_fixture.h"
#include "screens/choose_date.h"
#include "screens/game_option_screens.h"
#include "screens/loading_screen.h"
#include "screens/option_panels.h"
#include "screens/side_bar.h"
#include "screens/status_bar.h"
#include "world/dates.h"

namespace trovane::test {

using screens::OptionPanel;

TEST_F(ScreenTest, PanelsToggleSwapAndCloseWithEscapeAndAtTheEndOfTheDayAndTheCurrencyPanelWorks) {
    startNewGameAsPlayer();
    screens::frmSideBar* bar = window->sideBar();
    for (auto [button, panel] : {std::pair<QPushButton*, OptionPanel*>{bar->btnFind, bar->findOptions()},
                                 {bar->btnCharts, bar->chartOptions()},
                                 {bar->btnGameOptions, bar->gameOptions()},
                                 {bar->btnQuit, bar->quitOptions()}}) {
        SCOPED_TRACE(panel->objectName().toStdString());
        click(button);
        EXPECT_EQ(std::tuple(bar->openPanel(), button->isChecked()), std::tuple(panel, true));
        click(button);  // a second click closes it
        EXPECT_EQ(std::tuple(bar->openPanel(), button->isChecked()), (std::tuple<OptionPanel*, bool>(nullptr, false)));
    }
    click(bar->btnFind);
    click(bar->btnGameOptions);  // another button swaps the panels
    EXPECT_EQ(bar->openPanel(), bar->gameOptions());
    EXPECT_FALSE(bar->findOptions()->isVisible());
    EXPECT_TRUE(bar->gameOptions()->isAncestorOf(QApplication::focusWidget()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(bar->openPanel(), nullptr);
    EXPECT_EQ(QApplication::focusWidget(), bar->btnGameOptions) << "the keyboard goes back to the panel's button";
    click(bar->btnFind);
    auto* news = find<QTableView>("flxNews");
    news->setFocus();
    bar->CloseOtherWindows();
    EXPECT_EQ(QApplication::focusWidget(), news) << "a panel without the keyboard takes it nowhere";

    click(bar->btnCharts);
    continueOneDay();
    EXPECT_EQ(bar->openPanel(), nullptr);
    EXPECT_EQ(screen(), Screen::frmNews);

    // The currency changes the cash shown, never the cash held.
    const Money held = game->player.playerLabelCash;
    click(window->sideBar()->btnGameOptions);
    click("lblCurrency");
    auto* currency = dialog<QDialog>("frmChangeCurrency");
    ASSERT_NE(currency, nullptr);
    EXPECT_TRUE(currency->findChild<QAbstractButton*>("optCurrency0")->isChecked());
    click(currency->findChild<QAbstractButton*>("optCurrency1"));
    click(currency->findChild<QAbstractButton*>("cmdConfirm"));
    EXPECT_EQ(window->gameStatusBar()->lblCash->text(), "$1,770,000");
    EXPECT_EQ(game->player.playerLabelCash, held);
    EXPECT_EQ(window->sideBar()->openPanel(), nullptr);
}

TEST_F(ScreenTest, ContinueHasKeysAndShowsTheLoadingScreenBeforeTheDayRuns) {
    startNewGameAsPlayer();
    bool loadingSeenBeforeDay = false;
    const double today = game->gameDate;
    game->trace = [&](std::string_view) {
        auto* loading = qobject_cast<screens::frmLoading*>(window->currentScreenWidget());
        if (loading && loading->isVisible() && loading->hasPainted() && game->gameDate == today)
            loadingSeenBeforeDay = true;
    };
    QTest::keyClick(window->currentScreenWidget(), Qt::Key_F5);
    ASSERT_TRUE(waitFor([&] { return game->gameDate == today + 1 && !window->turnUnderWay(); }));
    EXPECT_TRUE(loadingSeenBeforeDay);
    QTest::keyClick(window->currentScreenWidget(), Qt::Key_Return, Qt::ControlModifier);
    ASSERT_TRUE(waitFor([&] { return game->gameDate == today + 2 && !window->turnUnderWay(); }));
}

TEST_F(ScreenTest, AnUnansweredQuestionHoldsTheDayAndTheSidebarUntilAnswered) {
    startNewGameAsPlayer();
    postNews(*game, {.date = game->gameDate,
                     .title = "Will you play the Harbour Festival?",
                     .text = "The organisers need an answer.",
                     .kind = 1,
                     .mustReply = true,
                     .extra = "Answer yes to put your act on the bill."});
    const double today = game->gameDate;
    for (int press = 0; press < 2; ++press) {  // a second press shows the same item again
        if (press == 0)
            click(window->sideBar()->btnContinueGame);
        else
            window->continueGame();
        ASSERT_EQ(screen(), Screen::frmNewsFull);
        EXPECT_EQ(game->gameDate, today);
        EXPECT_EQ(find<QLabel>("lblHeadline")->text(), "Will you play the Harbour Festival?");
        EXPECT_FALSE(window->sideBar()->btnContinueGame->isEnabled());
        EXPECT_FALSE(window->sideBar()->cmdExtra->isEnabled());
        EXPECT_FALSE(find<QPushButton>("cmdDelete")->isEnabled());
    }
    screenshot("25_frmNewsFull_must_reply");
    click("cmdHelp");
    auto* help = dialog<QDialog>("frmHelpForm");
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(help->findChild<QLabel*>("lblText")->text(), "Answer yes to put your act on the bill.");
    click(help->findChild<QPushButton*>("btnOk"));
    click("cmd1");
    EXPECT_EQ(screen(), Screen::frmNews);
    EXPECT_TRUE(window->sideBar()->btnContinueGame->isEnabled());
    EXPECT_TRUE(window->sideBar()->cmdExtra->isEnabled());
    continueOneDay();
}

TEST_F(ScreenTest, NewsSortsByItsHeadersAndDeletedItemsLeaveTheList) {
    startNewGameAsPlayer();
    postNews(*game, {.date = game->gameDate, .title = "Zebra Crossing sign with Greystone", .text = ""});
    postNews(*game, {.date = game->gameDate, .title = "Attic Lights split", .text = ""});
    window->openScreen(Screen::frmNews);
    auto titles = [&] {
        auto* m = find<QTableView>("flxNews")->model();
        QStringList t;
        for (int r = 0; r < m->rowCount(); ++r) t << m->index(r, 2).data().toString().left(5);
        return t.join(',');
    };
    EXPECT_EQ(titles(), "Attic,Zebra,New i");  // newest first
    auto clickHeader = [&](int section) {
        auto* header = find<QTableView>("flxNews")->horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(section) + 10, header->height() / 2));
    };
    clickHeader(2);
    EXPECT_EQ(titles(), "Attic,New i,Zebra");
    clickHeader(2);
    EXPECT_EQ(titles(), "Zebra,New i,Attic");
    clickHeader(1);  // the date sorts by record number
    EXPECT_EQ(titles(), "New i,Zebra,Attic");
    clickHeader(1);
    EXPECT_EQ(titles(), "Attic,Zebra,New i");

    auto* grid = find<QTableView>("flxNews");
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_Return);  // the keyboard opens the current row too
    ASSERT_EQ(screen(), Screen::frmNewsFull);
    click("cmdDelete");
    EXPECT_EQ(screen(), Screen::frmNews);
    EXPECT_EQ(titles(), "Zebra,New i");  // and the sort lasts
    EXPECT_FALSE(find<QLabel>("lblNoNews")->isVisible());
    for (int left = 2; left > 0; --left) {
        find<QTableView>("flxNews")->setFocus();
        QTest::keyClick(find<QTableView>("flxNews"), Qt::Key_Return);
        click("cmdDelete");
    }
    EXPECT_TRUE(find<QLabel>("lblNoNews")->isVisible()) << "an empty inbox says so";
}

TEST_F(ScreenTest, TheDayListFollowsTheMonthAndCancelDropsTheWorkingSet) {
    click("btnStartNewGame");
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "band.vel"));
    auto* day = find<QComboBox>("cmbDay");
    EXPECT_EQ(day->currentText(), "20");  // 20 July 1982 when nothing was chosen before
    EXPECT_EQ(find<QComboBox>("cmbMonth")->currentText(), "July");
    find<QComboBox>("cmbYear")->setCurrentText("2000");
    find<QComboBox>("cmbMonth")->setCurrentText("February");
    EXPECT_EQ(day->count(), 29);
    find<QComboBox>("cmbMonth")->setCurrentText("March");
    day->setCurrentText("31");
    find<QComboBox>("cmbMonth")->setCurrentText("April");
    EXPECT_EQ(day->count(), 30);
    EXPECT_EQ(day->currentText(), "1");
    click("cmdCancel");
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "band.vel"));
    EXPECT_EQ(screen(), Screen::frmQuellmarkGames);
}

TEST_F(ScreenTest, TakingOverALabelStartsTheGameAtItsHelm) {
    click("btnStartNewGame");
    QTest::keyClicks(find<QLineEdit>("txtName"), "Raj");
    QTest::keyClicks(find<QLineEdit>("txtSurname"), "Patel");
    click("optCreateNew1");
    click("cmdOk");
    ASSERT_EQ(screen(), Screen::frmManageExistingLabel);
    auto* labels = find<QListWidget>("lstLabel");
    ASSERT_EQ(labels->count(), 1);
    EXPECT_EQ(find<QTableView>("flxBands")->model()->index(0, 0).data().toString(), "Tess Calloway");
    click("cmdOk");
    ASSERT_TRUE(waitFor([&] { return window->gameRunning() && screen() == Screen::frmNews; }));
    EXPECT_EQ(window->gameStatusBar()->lblCompany->text(), "Greystone Music");
    // The appointment is news of the first day, beside the briefing on the label's albums.
    QAbstractItemModel* news = find<QTableView>("flxNews")->model();
    QStringList titles;
    for (int row = 0; row < news->rowCount(); ++row) titles << news->index(row, 2).data().toString();
    EXPECT_TRUE(titles.contains("Raj Patel appointed as new boss of Greystone Music"))
        << titles.join(", ").toStdString();
}

TEST_F(ScreenTest, ABrokenSlotIsRefusedAndAFatalErrorIsShownBeforeTheEnd) {
    // A slot marked used whose files are missing: the load is refused, the program goes on.
    readPrefs(*game);
    game->prefs->slotUsed[4] = kTrue;
    writePrefs(*game);
    click("btnLoad");
    find<QListWidget>("lstSaves")->setCurrentRow(4);
    EXPECT_FALSE(find<QPushButton>("cmdOverwrite")->isVisible());
    EXPECT_TRUE(find<QPushButton>("cmdDelete")->isVisible());
    click("cmdDelete");
    auto* sure = dialog<QDialog>("frmSure");
    ASSERT_NE(sure, nullptr);
    click(sure->findChild<QAbstractButton*>("lblConfirm"));
    EXPECT_EQ(find<QListWidget>("lstSaves")->item(4)->text(), "4 : None");
    click("btnOk");

    // A base table whose length is no whole number of records stops the game with its message.
    std::ofstream(folder.path() / "country.gam", std::ios::binary | std::ios::app) << "xyz";
    QString shown;
    QObject::connect(window.get(), &screens::mdiParentForm::fatalErrorShown, [&](const QString& m) { shown = m; });
    click("btnStartNewGame");
    EXPECT_TRUE(shown.contains("country")) << shown.toStdString();
    auto* box = dialog<QMessageBox>("fatalDialog");
    ASSERT_NE(box, nullptr);
    screenshotOf(box, "26_fatalDialog");
    EXPECT_EQ(endedWith, -1);
    click(box->button(QMessageBox::Ok));
    EXPECT_EQ(endedWith, 1);
}

TEST_F(ScreenTest, TheCalendarOffersFreeDaysOnlyAndStepsByMonthAndYear) {
    startNewGameAsPlayer();
    game->band.read(1);
    // Resting keeps the band busy.
    addSchedule(*game, ScheduleRecord{.type = 11, .date = serialFromCivil(2004, 9, 14), .band = 1});
    game->band.read(1);
    QPointer<screens::frmChooseDate> calendar = new screens::frmChooseDate(*window, 1);
    calendar->open();
    double chosen = 0;
    QObject::connect(calendar.data(), &screens::frmChooseDate::dateChosen, [&](double d) { chosen = d; });
    // The month after today's.
    EXPECT_EQ(QStringList({calendar->lblMonth->text(), calendar->lblYear->text()}), QStringList({"September", "2004"}));
    EXPECT_EQ(calendar->lblEvent[13]->text(), "Resting");
    EXPECT_FALSE(calendar->lblDayOfMonth[30]->isVisible());  // no 31 September
    // 1 September 2004 was a Wednesday, the 5th a Sunday and the 6th a Monday: each stands under its weekday.
    QApplication::processEvents();
    auto under = [&](int day, const char* weekday) {
        QWidget* cell = calendar->lblDayOfMonth[static_cast<std::size_t>(day - 1)];
        for (QLabel* head : calendar->findChildren<QLabel*>())
            if (head->objectName().startsWith("lblWeekday") && head->text() == weekday)
                return head->geometry().center().x() > cell->geometry().left() &&
                       head->geometry().center().x() < cell->geometry().right() &&
                       head->geometry().bottom() < cell->geometry().top();
        return false;
    };
    EXPECT_EQ(std::tuple(under(1, "WED"), under(5, "SUN"), under(6, "MON"), under(1, "MON")),
              std::tuple(true, true, true, false));
    screenshotOf(calendar.data(), "24_frmChooseDate");
    click(calendar->lblDayOfMonth[13]);
    EXPECT_EQ(chosen, 0);  // a busy day cannot be chosen
    click(calendar->cmdYearRight);
    for (int i = 0; i < 5; ++i) click(calendar->cmdMonthRight);
    EXPECT_EQ(QStringList({calendar->lblMonth->text(), calendar->lblYear->text()}), QStringList({"February", "2006"}));
    EXPECT_TRUE(calendar->lblDayOfMonth[27]->isVisible());
    EXPECT_FALSE(calendar->lblDayOfMonth[28]->isVisible());
    click(calendar->lblDayOfMonth[1]);
    EXPECT_EQ(chosen, serialFromCivil(2006, 2, 2));
    EXPECT_TRUE(calendar.isNull() || !calendar->isVisible());  // it closes itself
}

}  // namespace trovane::test

// A new player's first session, clicked through as a player would: start,
// describe yourself, found a label, play three days, read and answer the
// news, save, quit, and load the same game back.
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QTableView>

#include "screen_fixture.h"
#include "screens/side_bar.h"
#include "screens/status_bar.h"
#include "world/dates.h"

namespace trovane::test {

namespace {

// What the news list shows, row by row: the mark, the date, the title.
std::vector<std::string> newsRows(QTableView* grid) {
    std::vector<std::string> rows;
    auto* m = grid->model();
    for (int r = 0; r < m->rowCount(); ++r)
        rows.push_back((m->index(r, 0).data().toString() + "|" + m->index(r, 1).data().toString() + "|" +
                        m->index(r, 2).data().toString())
                           .toStdString());
    return rows;
}

}  // namespace

TEST_F(ScreenTest, NewPlayerPlaysSavesQuitsAndLoadsTheSameGame) {
    startNewGameAsPlayer();
    auto* news = find<QTableView>("flxNews");
    ASSERT_EQ(news->model()->rowCount(), 1);
    EXPECT_EQ(newsRows(news)[0], "Unread|Thu 05/08/2004|New indie label founded by Ann Lee");
    EXPECT_EQ(find<QLabel>("lblTitle")->text(), "Ann Lee's News");
    EXPECT_EQ(window->gameStatusBar()->lblCompany->text(), "Nightjar Records");
    EXPECT_EQ(window->gameStatusBar()->lblCash->text(), "£1,000,000");

    for (int day = 0; day < 3; ++day) continueOneDay();
    EXPECT_EQ(game->gameDate, serialFromCivil(2004, 8, 8));
    ASSERT_EQ(screen(), Screen::frmNews);

    news = find<QTableView>("flxNews");
    QTest::mouseClick(news->viewport(), Qt::LeftButton, {}, news->visualRect(news->model()->index(0, 2)).center());
    ASSERT_EQ(screen(), Screen::frmNewsFull);
    EXPECT_EQ(find<QLabel>("lblHeadline")->text(), "New indie label founded by Ann Lee");
    EXPECT_TRUE(find<QLabel>("lblText")->text().startsWith("New independent record label Nightjar Records opened"));
    click("cmd1");
    ASSERT_EQ(screen(), Screen::frmNews);
    EXPECT_EQ(find<QTableView>("flxNews")->model()->index(0, 0).data().toString(), "");

    click(window->sideBar()->btnGameOptions);
    click("lblSaveGame");
    ASSERT_EQ(screen(), Screen::frmSaveGame);
    find<QListWidget>("lstSaves")->setCurrentRow(2);
    auto* saveName = find<QLineEdit>("txtSaveName");
    EXPECT_EQ(saveName->text(), "Untitled");
    saveName->setText("Before the tour");
    click("cmdSave");
    EXPECT_EQ(find<QListWidget>("lstSaves")->item(2)->text(), "2 : Before the tour");
    click("btnOk");
    ASSERT_EQ(screen(), Screen::frmNews);
    const double date = game->gameDate;
    const QString cash = window->gameStatusBar()->lblCash->text();
    const auto rows = newsRows(find<QTableView>("flxNews"));

    click(window->sideBar()->btnQuit);
    click("lblQuit");
    ASSERT_EQ(screen(), Screen::frmStartForm);

    restartProgram();
    click("btnLoad");
    auto* slotList = find<QListWidget>("lstSaves");
    EXPECT_EQ(slotList->item(2)->text(), "2 : Before the tour");
    slotList->setCurrentRow(2);
    EXPECT_EQ(find<QLabel>("lblLabel")->text(), "Nightjar Records");
    click("cmdOverwrite");
    ASSERT_TRUE(waitFor([&] { return window->gameRunning() && screen() == Screen::frmNews; }));
    EXPECT_EQ(game->gameDate, date);
    EXPECT_EQ(window->gameStatusBar()->lblCash->text(), cash);
    EXPECT_EQ(window->gameStatusBar()->lblName->text(), "Ann Lee");
    EXPECT_EQ(newsRows(find<QTableView>("flxNews")), rows);
    continueOneDay();
}

}  // namespace trovane::test

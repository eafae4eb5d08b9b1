// What the desktop asks before it drops played days, what its forms refuse and
// how they show it, and the shell at its smallest.
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "screen_fixture.h"
#include "screens/side_bar.h"
#include "screens/status_bar.h"

namespace trovane::test {

class AbandonGuardTest : public ScreenTest {
protected:
    void pressQuit() {
        screens::frmSideBar* bar = window->sideBar();
        if (bar->openPanel() != bar->quitOptions()) click(bar->btnQuit);
        click("lblQuit");
    }
    void saveInSlot(int slot) {
        window->openSaveScreen(false);
        find<QListWidget>("lstSaves")->setCurrentRow(slot);
        click("cmdSave");
        click("btnOk");
    }
    // The one abandon question, or null when none is open.
    QDialog* question() { return dialog<QDialog>("frmSure"); }
    QString questionText() { return question()->findChild<QLabel*>("lblQuestion")->text(); }
};

TEST_F(AbandonGuardTest, QuitAfterAPlayedDayAsksEscapeKeepsTheGameAndConfirmDropsIt) {
    startNewGameAsPlayer();
    pressQuit();
    EXPECT_EQ(question(), nullptr) << "no day played";
    EXPECT_EQ(screen(), Screen::frmStartForm);
    startNewGameAsPlayer();
    continueOneDay();
    pressQuit();
    ASSERT_NE(question(), nullptr);
    // The game began on 5/8/2004 and nothing was saved since.
    EXPECT_EQ(questionText(), "Abandon this game? What you played since 5/8/2004 will be lost.");
    QTest::keyClick(static_cast<QWidget*>(question()), Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_EQ(question(), nullptr);
    EXPECT_TRUE(window->gameRunning());
    EXPECT_EQ(window->gameStatusBar()->lblDate->text(), "Friday 6/8/2004");
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "band.vel"));

    pressQuit();
    ASSERT_NE(question(), nullptr);
    click(question()->findChild<QPushButton*>("lblConfirm"));
    EXPECT_FALSE(window->gameRunning());
    EXPECT_EQ(screen(), Screen::frmStartForm);
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "band.vel"));
}

TEST_F(AbandonGuardTest, LoadingInGameNamesTheLastSaveAndBringsItsDayBack) {
    startNewGameAsPlayer();
    continueOneDay();  // 6/8/2004
    saveInSlot(1);
    const double savedOn = game->gameDate;
    pressQuit();
    EXPECT_EQ(question(), nullptr) << "nothing played since the save";
    EXPECT_EQ(screen(), Screen::frmStartForm);
    window->loadSavedGame(1);
    ASSERT_TRUE(waitFor([&] { return game->gameDate == savedOn && screen() == Screen::frmNews; }));
    continueOneDay();  // 7/8/2004, played since the save on the 6th
    click(window->sideBar()->btnGameOptions);
    click("lblLoadGame");
    find<QListWidget>("lstSaves")->setCurrentRow(1);
    click("cmdOverwrite");
    ASSERT_NE(question(), nullptr);
    EXPECT_EQ(questionText(), "Abandon this game? What you played since 6/8/2004 will be lost.");
    click(question()->findChild<QPushButton*>("lblConfirm"));
    ASSERT_TRUE(waitFor([&] { return game->gameDate == savedOn && screen() == Screen::frmNews; }));
    EXPECT_EQ(window->gameStatusBar()->lblDate->text(), "Friday 6/8/2004");
}

TEST_F(ScreenTest, TheNewGameFormsRefuseAtTheFieldAndKeepWhatWasTyped) {
    click("btnStartNewGame");
    auto* name = find<QLineEdit>("txtName");
    auto* surname = find<QLineEdit>("txtSurname");
    name->setText("   ");
    surname->setText(QString::fromUtf8("Zoë"));
    click("cmdOk");
    EXPECT_EQ(screen(), Screen::frmStartNewGame);
    EXPECT_TRUE(find<QLabel>("lblRefusalName")->isVisible());
    EXPECT_EQ(find<QLabel>("lblRefusalName")->text(), "The forename cannot be blank.");
    EXPECT_FALSE(find<QLabel>("lblRefusalSurname")->isVisible());
    EXPECT_EQ(surname->text(), QString::fromUtf8("Zoë"));
    EXPECT_TRUE(name->hasFocus());

    name->setText("Ann");
    surname->setText(QString(33, QChar('x')));
    click("cmdOk");
    EXPECT_EQ(find<QLabel>("lblRefusalSurname")->text(), "The surname is 33 characters long; it may be at most 32.");
    EXPECT_EQ(surname->text().size(), 33) << "what was typed stays";
    surname->setText(QString(32, QChar('x')));
    click("cmdOk");
    ASSERT_EQ(screen(), Screen::frmCreateNewLabel);

    find<QLineEdit>("txtName")->setText("  greystone MUSIC ");
    click("cmdOk");
    EXPECT_EQ(screen(), Screen::frmCreateNewLabel);
    EXPECT_FALSE(window->gameRunning());
    EXPECT_EQ(find<QLabel>("lblRefusalName")->text(), "There is already a label called Greystone Music.");
    EXPECT_EQ(find<QLineEdit>("txtName")->text(), "  greystone MUSIC ");
}

TEST_F(ScreenTest, TheSaveScreenRefusesANameItCannotStoreAndTheStatusBarShowsLongFiguresInFull) {
    startNewGameAsPlayer();
    window->openSaveScreen(false);
    find<QListWidget>("lstSaves")->setCurrentRow(3);
    auto* name = find<QLineEdit>("txtSaveName");
    name->setText(QString::fromUtf8("Tour Ω"));
    click("cmdSave");
    EXPECT_EQ(find<QLabel>("lblRefusalSaveName")->text(),
              QString::fromUtf8("The save's name holds \"Ω\", a character the game cannot store."));
    EXPECT_EQ(find<QListWidget>("lstSaves")->item(3)->text(), "3 : None");
    EXPECT_EQ(name->text(), QString::fromUtf8("Tour Ω"));

    // At the minimum size the status bar shows every figure in full.
    // Long texts as players type them: a label name of the full 32 characters, long
    // names, the longest weekday and a cash figure in the thousands of millions.
    game->player.playerLabelName = "Featherstonehaugh & Cholmondeley";
    game->player.playerForename = "Bartholomew-Alexander";
    game->player.playerSurname = "Featherstonehaugh-Smythe";
    game->player.playerLabelCash = moneyUnits(-1234567890);
    window->refreshStatusBar();
    window->resize(window->minimumSize());
    QApplication::processEvents();
    screens::frmStatusBar* bar = window->gameStatusBar();
    for (QLabel* l : {bar->lblDate, bar->lblCash, bar->lblCompany, bar->lblName}) {
        EXPECT_GE(l->width(), l->sizeHint().width()) << l->objectName().toStdString() << " is cut short";
        expectWhole(l, QStringLiteral("minimum size"));
    }
    for (QPushButton* b : window->sideBar()->findChildren<QPushButton*>())
        if (b->isVisible()) expectWhole(b, QStringLiteral("minimum size"));
}

}  // namespace trovane::test

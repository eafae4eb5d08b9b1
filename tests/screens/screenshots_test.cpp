// Pictures of every screen at the window's minimum size and at 1920x1080,
// written under the build folder (screenshots/) for a person to look at. Each
// picture is checked to be the size it claims, with the screen's controls
// shown whole, and the shell's sidebar and status bar whole with every figure's
// text at full width.
#include <fmt/format.h>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>

#include "floor/news_post.h"
#include "screen_fixture.h"
#include "screens/game_option_screens.h"
#include "screens/loading_screen.h"
#include "screens/save_game_screen.h"
#include "screens/side_bar.h"

namespace trovane::test {

namespace {

// A long story: one sentence seven times over.
const std::string kLongText = QStringLiteral(
                                  "Assembled journalists were left somewhat surprised today when the band announced a "
                                  "forty-date tour of the country's smallest venues. ")
                                  .repeated(7)
                                  .toStdString();

// The shell's frame, shown whole wherever a game is on screen.
constexpr std::initializer_list<const char*> kShell = {"frmSideBar", "frmStatusBar", "btnContinueGame", "btnNews",
                                                       "btnFind",    "btnCharts",    "btnGameOptions",  "btnQuit"};

}  // namespace

TEST_F(ScreenTest, ScreenshotsOfEveryScreenAtBothSizes) {
    window->showSplash();
    screenshot("01_frmQuellmarkGames", {"picLogo"});
    window->showStartForm();
    screenshot("02_frmStartForm", {"btnStartNewGame", "btnLoad", "btnQuit"});
    click("btnLoad");
    screenshot("03_frmSaveGame_load_from_start", {"lstSaves", "btnOk"});
    click("btnOk");
    click("btnStartNewGame");
    find<QLineEdit>("txtName")->clear();
    click("cmdOk");
    screenshot("04_frmStartNewGame_refused",
               {"txtName", "lblRefusalName", "txtSurname", "cmbDay", "cmbMonth", "cmbYear", "cmbNationality",
                "optCreateNew0", "optCreateNew1", "cmdOk", "cmdCancel"});
    click("optCreateNew1");
    QTest::keyClicks(find<QLineEdit>("txtName"), "Ann");
    QTest::keyClicks(find<QLineEdit>("txtSurname"), "Lee");
    click("cmdOk");
    screenshot("05_frmManageExistingLabel", {"lstLabel", "flxBands", "lblCash", "cmdOk", "cmdCancel"});
    click("cmdCancel");
    click("optCreateNew0");
    click("cmdOk");
    find<QLineEdit>("txtName")->setText(QStringLiteral("GREYSTONE music"));
    click("cmdOk");
    screenshot("06_frmCreateNewLabel_refused",
               {"txtName", "lblRefusalName", "cmbContinent", "cmbNationality", "cmbCity", "cmbStyle", "cmdOk"});
    click("cmdCancel");
    click("cmdCancel");

    bool shot = false;
    window->runBehindLoadingScreen(
        [&] {
            qobject_cast<screens::frmLoading*>(window->startScreenWidget())->setProgress(40);
            screenshot("07_frmLoading_new_game");
            shot = true;
            return false;
        },
        [&] { window->showStartForm(); });
    ASSERT_TRUE(waitFor([&] { return shot; }));

    startNewGameAsPlayer();
    for (int i = 0; i < 30; ++i)
        postNews(*game, {.date = game->gameDate + 1,
                         .title = fmt::format("Item {} of a busy week in the music business", i),
                         .text = kLongText});
    postNews(
        *game,
        {.date = game->gameDate + 1,
         .title =
             "The Paper Lanterns' singer caught in a row with a photographer outside a London club late last night",
         .text = kLongText,
         .kind = 4});
    postNews(*game, {.date = game->gameDate + 1,
                     .title = "Greystone Music want to sign Tess Calloway's support act",
                     .text = "Will you let them go?",
                     .kind = 1,
                     .extra = "Saying yes lets the act leave your label at once."});
    for (QSize size : {QSize(1280, 800), QSize(1920, 1080)}) {
        window->resize(size);
        QApplication::processEvents();
        game->trace = [&, size](std::string_view) {
            if (qobject_cast<screens::frmLoading*>(window->currentScreenWidget()))
                screenshotOf(window.get(),
                             QStringLiteral("08_frmLoading_day_%1x%2").arg(size.width()).arg(size.height()));
            game->trace = nullptr;
        };
        continueOneDay();
    }
    window->resize(1280, 800);
    screenshot("09_frmNews", kShell);
    expectWhole(find("flxNews"), "09_frmNews");
    window->newsItemOnScreen = game->news.recordCount() - 2;
    window->openScreen(Screen::frmNewsFull);
    screenshot("10_frmNewsFull_media_story", {"lblHeadline", "lblText", "cmdDelete"});
    window->returnToPreviousScreen();
    window->newsItemOnScreen = game->news.recordCount() - 1;
    window->openScreen(Screen::frmNewsFull);
    screenshot("11_frmNewsFull_question", {"lblHeadline", "cmdHelp"});
    click("cmdHelp");
    screenshotOf(dialog("frmHelpForm"), "12_frmHelpForm");
    dialog("frmHelpForm")->close();

    screens::frmSideBar* bar = window->sideBar();
    for (auto [button, name] : {std::pair<QPushButton*, const char*>{bar->btnFind, "13_frmFindOptions"},
                                {bar->btnCharts, "14_frmChartOptions"},
                                {bar->btnGameOptions, "15_frmGameOptions"},
                                {bar->btnQuit, "16_frmQuitOptions"}}) {
        click(button);
        screenshot(name);
        click(button);
    }
    window->openSaveScreen(false);
    screenshot("17_frmSaveGame_save", {"lstSaves", "txtSaveName", "cmdSave", "btnOk"});
    find<QLineEdit>("txtSaveName")->setText(QStringLiteral("Tour \u03A9"));
    click("cmdSave");
    screenshot("17_frmSaveGame_name_refused", {"txtSaveName", "lblRefusalSaveName"});
    find<QLineEdit>("txtSaveName")->setText(QStringLiteral("Before the tour"));
    click("cmdSave");
    screenshot("18_frmSaveGame_after_save", {"lstSaves", "cmdOverwrite", "cmdDelete"});
    find<QListWidget>("lstSaves")->setCurrentRow(0);
    if (find<QPushButton>("cmdDelete")->isVisible()) {
        click("cmdDelete");
        screenshotOf(dialog("frmSure"), "19_frmSure");
        dialog("frmSure")->close();
    }
    window->openScreen(Screen::frmCredits);
    screenshot("20_frmCredits", {"lblCredits"});
    window->openScreen(Screen::frmDisclaimer);
    screenshot("21_frmDisclaimer", {"lblDisclaimer"});
    auto* currency = new screens::frmChangeCurrency(*window);
    currency->open();
    screenshotOf(currency, "22_frmChangeCurrency");
    currency->close();
    window->showRefusal("Load Game", "Slot 3 cannot be loaded: the file band.sg3 is missing.");
    QWidget* refusal = dialog("refusalDialog");
    ASSERT_NE(refusal, nullptr);
    screenshotOf(refusal, "23_refusal");
    refusal->close();
}

}  // namespace trovane::test

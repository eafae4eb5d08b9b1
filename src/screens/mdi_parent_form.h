#pragma once
// The game's one window. Before a game it shows the splash, the start form and
// the new-game forms over its whole area; while a game runs it is the shell:
// the sidebar on the left, the status bar on top, one main screen beside them,
// and the option panels over the main screen.
#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <optional>

#include "day/news_inbox.h"
#include "session/new_game.h"
#include "world/game.h"

class QStackedWidget;
class QTimer;
class QVBoxLayout;

namespace trovane::screens {

class frmSideBar;
class frmStatusBar;
class frmLoading;

class mdiParentForm : public QMainWindow {
    Q_OBJECT
public:
    explicit mdiParentForm(Game& g, QWidget* parent = nullptr);
    ~mdiParentForm() override;

    Game& game() { return g_; }

    // ---- Before a game ----
    void showSplash();
    void showStartForm();
    // frmStartNewGame.display: a fresh working set, then the form. Coming back
    // from a label form keeps the working set.
    void showStartNewGame(bool freshWorkingSet);
    // The second step of a new game, for the player confirmed on the first.
    void showLabelForm(NewPlayer player);
    void cancelNewGame();
    // frmSaveGame in loading mode, over the whole window.
    void showLoadFromStart();

    // ---- Long work behind the loading screen ----
    // Shows frmLoading with its progress bar and, once it has painted, runs
    // the work. On success the shell opens on the current screen; when the
    // work returns false (a refused load) `refused` runs instead.
    void runBehindLoadingScreen(std::function<bool()> work, std::function<void()> refused);
    // A new game's last step: found or take over the label, then the shell.
    void startGame(std::function<void()> foundOrTakeOver);
    // Loads a slot (from the start or in game); a broken slot shows its message and nothing changes.
    void loadSavedGame(int slot);

    // ---- The running game ----
    bool gameRunning() const { return gameRunning_; }
    void showCurrentScreen();
    void openScreen(Screen s);
    void returnToPreviousScreen();
    // The save screen opens in saving or in loading mode.
    void openSaveScreen(bool loading);
    bool saveScreenLoads() const { return saveScreenLoads_; }
    // btnContinueGame: the turn.
    void continueGame();
    // lblQuit: the game is dropped and the start form returns.
    void quitGame();
    // Runs `then` at once when nothing was played since the last save, load or
    // new game; otherwise only once the player agrees to lose those days.
    void askAbandon(std::function<void()> then);
    // The game as it stands is safe in a slot (a save, a load, a new game).
    void markSaved();
    bool playedSinceSave() const { return playedSinceSave_; }
    void refreshStatusBar();

    // Runs game logic. A fatal error shows its message, ends the program and returns false.
    bool guarded(const std::function<void()>& work);
    // Shows a refusal that lets the game go on.
    void showRefusal(const QString& title, const QString& message);

    frmSideBar* sideBar() const { return sideBar_; }
    frmStatusBar* gameStatusBar() const { return statusBar_; }
    QWidget* currentScreenWidget() const { return mainScreen_; }
    QWidget* startScreenWidget() const { return startScreen_; }
    NewsSort& newsSort() { return newsSort_; }
    // The news item frmNewsFull shows (its record number), so it can come back to it.
    int32_t newsItemOnScreen = 0;
    // The act frmBandDetails and frmBandContract show.
    int16_t bandOnScreen = 0;
    // The disc frmDiscDetails shows.
    int16_t discOnScreen = 0;
    // Band Details of an act, from a list or a panel.
    void openBand(int16_t band);
    // The artist frmArtistDetails shows, and the way there.
    int16_t artistOnScreen = 0;
    void openArtist(int16_t artist);
    // frmBirthday and frmHighScoreTable, over the screen on show.
    void openBirthday();
    void openHighScores();
    // A venue's card (frmVenueCard), over the screen on show.
    void openVenue(int16_t venue);
    // A firm's particulars over the screen.
    void openFirm(int16_t firm);
    // An outlet's particulars over the screen.
    void openOutlet(int16_t outlet);
    // The chart frmChartForm opens on (0 to 9).
    int chartShown = 0;
    // The label frmLabelDetails shows and the person frmStaffDetails shows.
    int16_t labelOnScreen = 0;
    int16_t staffOnScreen = 0;
    // The festival frmFestivalDetails and frmHistoricalFestivalDetails show.
    int16_t festivalOnScreen = 0;
    // The ceremony frmCeremonyDetails and frmHistoricalCeremonyDetails show,
    // and the screen the details return to (the list they were opened from).
    int16_t ceremonyOnScreen = 0;
    Screen ceremonyBackTo = Screen::none;

    // Milliseconds from the start of the last day to its first screen shown,
    // not counting the wait for the loading screen to paint.
    double lastTurnMilliseconds() const { return lastTurnMs_; }
    bool turnUnderWay() const { return turnUnderWay_; }

    // What ends the program after a fatal error (the screen tests replace it).
    std::function<void(int exitCode)> endProgram;

signals:
    void screenShown(trovane::Screen screen);
    void dayEnded();
    void fatalErrorShown(const QString& message);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void setStartScreen(QWidget* screen, Screen which);
    void setMainScreen(QWidget* screen);
    QWidget* createMainScreen(Screen s);
    void enterShell();
    void runDay();
    void fatal(const QString& message);

    Game& g_;
    QStackedWidget* pages_;
    QWidget* startArea_;
    QVBoxLayout* startLayout_;
    QWidget* shell_;
    QVBoxLayout* screenLayout_;
    frmSideBar* sideBar_;
    frmStatusBar* statusBar_;
    QPointer<QWidget> startScreen_;
    QPointer<QWidget> mainScreen_;
    QTimer* tmrGameTime_;
    std::optional<NewPlayer> pendingPlayer_;
    NewsSort newsSort_;
    bool gameRunning_ = false;
    bool turnUnderWay_ = false;
    bool saveScreenLoads_ = false;
    bool ended_ = false;
    bool leaving_ = false;
    bool playedSinceSave_ = false;
    double savedOn_ = 0;  // the game's date at the last save, load or new game
    double lastTurnMs_ = 0;
};

}  // namespace trovane::screens

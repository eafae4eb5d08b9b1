#include "screens/mdi_parent_form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <memory>

#include "day/daily_cycle.h"
#include "events/scores.h"
#include "floor/formats.h"
#include "floor/preferences.h"
#include "screens/artist_details_screen.h"
#include "screens/band_browse_screens.h"
#include "screens/band_contract_screens.h"
#include "screens/band_details_screen.h"
#include "screens/browse_memory.h"
#include "screens/business_screens.h"
#include "screens/ceremony_details_screens.h"
#include "screens/ceremony_screens.h"
#include "screens/chart_screens.h"
#include "screens/details_extra_screens.h"
#include "screens/disc_screens.h"
#include "screens/festival_screens.h"
#include "screens/game_option_screens.h"
#include "screens/glyphs.h"
#include "screens/label_details_screen.h"
#include "screens/loading_screen.h"
#include "screens/media_screens.h"
#include "screens/new_game_screens.h"
#include "screens/news_screens.h"
#include "screens/option_decision_screen.h"
#include "screens/save_game_screen.h"
#include "screens/side_bar.h"
#include "screens/staff_screens.h"
#include "screens/start_screens.h"
#include "screens/status_bar.h"
#include "screens/table_browse_screens.h"
#include "screens/theme.h"
#include "session/save_load.h"
#include "session/session_record.h"
#include "world/fatal_error.h"
#include "world/record_store.h"

namespace trovane::screens {

namespace {

constexpr int kPlayMinuteMs = 60'000;

// A screen that is closed leaves the window at once and is deleted when the
// event loop is next free (its own click handler may still be running).
void retire(QWidget* screen) {
    if (!screen) return;
    screen->hide();
    screen->setParent(nullptr);
    screen->deleteLater();
}

}  // namespace

mdiParentForm::mdiParentForm(Game& g, QWidget* parent) : QMainWindow(parent), g_(g) {
    setObjectName(QStringLiteral("mdiParentForm"));
    setWindowTitle(QStringLiteral("Trovane 3"));
    setMinimumSize(1100, 700);
    endProgram = [](int code) { QCoreApplication::exit(code); };

    pages_ = new QStackedWidget(this);
    setCentralWidget(pages_);

    startArea_ = new QWidget(pages_);
    startArea_->setObjectName(QStringLiteral("startArea"));
    startLayout_ = new QVBoxLayout(startArea_);
    startLayout_->setContentsMargins(0, 0, 0, 0);
    pages_->addWidget(startArea_);

    shell_ = new QWidget(pages_);
    shell_->setObjectName(QStringLiteral("shell"));
    auto* across = new QHBoxLayout(shell_);
    across->setContentsMargins(0, 0, 0, 0);
    across->setSpacing(0);
    sideBar_ = new frmSideBar(*this, shell_);
    across->addWidget(sideBar_);
    auto* right = new QVBoxLayout;
    right->setSpacing(0);
    statusBar_ = new frmStatusBar(*this, shell_);
    right->addWidget(statusBar_);
    screenLayout_ = new QVBoxLayout;
    screenLayout_->setContentsMargins(0, 0, 0, 0);
    right->addLayout(screenLayout_, 1);
    across->addLayout(right, 1);
    pages_->addWidget(shell_);

    // The turn key, and Escape for the panels, work wherever the keyboard is in the shell.
    for (QKeySequence key :
         {QKeySequence(Qt::Key_F5), QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter)}) {
        auto* s = new QShortcut(key, shell_);
        s->setContext(Qt::WidgetWithChildrenShortcut);
        connect(s, &QShortcut::activated, this, [this] {
            if (sideBar_->btnContinueGame->isEnabled()) sideBar_->btnContinueGame->click();
        });
    }
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), shell_);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, sideBar_, &frmSideBar::CloseOtherWindows);

    tmrGameTime_ = new QTimer(this);
    tmrGameTime_->setInterval(kPlayMinuteMs);
    connect(tmrGameTime_, &QTimer::timeout, this, [this] {
        if (gameRunning_ && !turnUnderWay_) guarded([this] { tickPlayMinute(g_); });
    });
}

mdiParentForm::~mdiParentForm() = default;

// ---------------------------------------------------------------- before a game

void mdiParentForm::setStartScreen(QWidget* screen, Screen which) {
    retire(startScreen_);
    startScreen_ = screen;
    g_.currentScreen = which;
    startLayout_->addWidget(screen);
    pages_->setCurrentWidget(startArea_);
    screen->show();
    screen->setFocus();
    emit screenShown(which);
}

void mdiParentForm::showSplash() {
    setStartScreen(new frmQuellmarkGames(*this, startArea_), Screen::frmQuellmarkGames);
}

void mdiParentForm::showStartForm() {
    forgetBrowsers();
    setStartScreen(new frmStartForm(*this, startArea_), Screen::frmStartForm);
}

void mdiParentForm::showStartNewGame(bool freshWorkingSet) {
    if (freshWorkingSet && !guarded([this] { beginNewGame(g_); })) return;
    setStartScreen(new frmStartNewGame(*this, startArea_), Screen::frmStartNewGame);
}

void mdiParentForm::showLabelForm(NewPlayer player) {
    if (player.choices.createNewLabel)
        setStartScreen(new frmCreateNewLabel(*this, std::move(player), startArea_), Screen::frmCreateNewLabel);
    else
        setStartScreen(new frmManageExistingLabel(*this, std::move(player), startArea_),
                       Screen::frmManageExistingLabel);
}

void mdiParentForm::cancelNewGame() {
    if (!guarded([this] { discardWorkingSet(g_); })) return;
    // The splash again, as after any cancelled new game.
    showSplash();
}

void mdiParentForm::showLoadFromStart() {
    saveScreenLoads_ = true;
    setStartScreen(new frmSaveGame(*this, true, startArea_), Screen::frmSaveGame);
}

// ---------------------------------------------------------------- long work

void mdiParentForm::runBehindLoadingScreen(std::function<bool()> work, std::function<void()> refused) {
    sideBar_->CloseOtherWindows();
    auto* loading = new frmLoading(*this, true, startArea_);
    setStartScreen(loading, Screen::frmLoading);
    QPointer<frmLoading> screen = loading;
    loading->whenPainted([this, screen, work = std::move(work), refused = std::move(refused)] {
        g_.progress = [screen](int percent) {
            if (screen) screen->setProgress(percent);
        };
        bool done = false;
        bool alive = guarded([&] { done = work(); });
        g_.progress = nullptr;
        if (!alive) return;
        if (!done) {
            refused();
            return;
        }
        enterShell();
    });
}

void mdiParentForm::startGame(std::function<void()> foundOrTakeOver) {
    runBehindLoadingScreen(
        [foundOrTakeOver = std::move(foundOrTakeOver)] {
            foundOrTakeOver();
            return true;
        },
        [] {});
}

void mdiParentForm::loadSavedGame(int slot) {
    bool wasRunning = gameRunning_;
    Screen wasOn = g_.currentScreen;
    auto message = std::make_shared<QString>();
    runBehindLoadingScreen(
        [this, slot, message] {
            try {
                loadGame(g_, slot);
            } catch (const SlotError& e) {
                *message = QString::fromStdString(e.what());
                return false;
            }
            readPrefs(g_);
            forgetBandBrowserSort();
            g_.label.read(g_.player.playerLabel);
            g_.previousScreen = Screen::none;
            g_.currentScreen = Screen::frmNews;
            return true;
        },
        [this, wasRunning, wasOn, message] {
            // The running game, if any, is untouched: back to where the player was.
            if (wasRunning) {
                g_.currentScreen = wasOn;
                pages_->setCurrentWidget(shell_);
                showCurrentScreen();
            } else {
                showLoadFromStart();
            }
            showRefusal(tr("Load Game"), *message);
        });
}

void mdiParentForm::enterShell() {
    retire(startScreen_);
    // The news list's sort lasts as long as the shell: a load in game keeps it.
    if (!gameRunning_) newsSort_ = NewsSort{};
    gameRunning_ = true;
    markSaved();
    sideBar_->CloseOtherWindows();
    sideBar_->enableSidebar(true);
    statusBar_->initialise();
    pages_->setCurrentWidget(shell_);
    tmrGameTime_->start();
    showCurrentScreen();
    // A session that starts on the player's birthday opens with the note.
    bool birthday = false;
    guarded([&] { birthday = isPlayersBirthday(g_); });
    if (birthday) openBirthday();
}

void mdiParentForm::openBirthday() {
    auto* note = new frmBirthday(g_, this);
    note->setAttribute(Qt::WA_DeleteOnClose);
    note->open();
}

void mdiParentForm::openVenue(int16_t venue) {
    if (venue < 1 || venue >= g_.venue.recordCount()) return;
    frmVenueCard* card = nullptr;
    if (!guarded([&] { card = new frmVenueCard(g_, venue, this); })) return;
    card->setAttribute(Qt::WA_DeleteOnClose);
    card->open();
}

void mdiParentForm::openFirm(int16_t firm) {
    if (firm < 1 || firm >= g_.business.recordCount()) return;
    frmFirmCard* card = nullptr;
    if (!guarded([&] { card = new frmFirmCard(g_, firm, this); })) return;
    card->setAttribute(Qt::WA_DeleteOnClose);
    card->open();
}

void mdiParentForm::openOutlet(int16_t outlet) {
    if (outlet < 1 || outlet >= g_.media.recordCount()) return;
    frmMediaCard* card = nullptr;
    if (!guarded([&] { card = new frmMediaCard(g_, outlet, this); })) return;
    card->setAttribute(Qt::WA_DeleteOnClose);
    card->open();
}

void mdiParentForm::openHighScores() {
    auto* table = new frmHighScoreTable(g_, this);
    table->setAttribute(Qt::WA_DeleteOnClose);
    table->open();
}

// ---------------------------------------------------------------- the running game

QWidget* mdiParentForm::createMainScreen(Screen s) {
    switch (s) {
    case Screen::frmNewsFull: return new frmNewsFull(*this);
    case Screen::frmSaveGame: return new frmSaveGame(*this, saveScreenLoads_);
    case Screen::frmCredits: return new frmCredits(*this);
    case Screen::frmDisclaimer: return new frmDisclaimer(*this);
    case Screen::frmBandOptionDecision: return new frmBandOptionDecision(*this);
    case Screen::frmBandDetails: return new frmBandDetails(*this, bandOnScreen);
    case Screen::frmBandContract: return new frmBandContract(*this, bandOnScreen);
    case Screen::frmDiscDetails: return new frmDiscDetails(*this, discOnScreen);
    case Screen::frmChartForm: {
        auto* form = new frmChartForm(*this);
        form->showChart(chartShown);
        return form;
    }
    case Screen::frmChooseDistributor: {
        // The form opens over the news, for the disc the item named.
        int16_t disc = g_.disc->id;
        g_.currentScreen = Screen::frmNews;
        QTimer::singleShot(0, this, [this, disc] {
            frmChooseDistributor form(g_, disc, this);
            form.exec();
        });
        return new frmNews(*this);
    }
    case Screen::frmLabelDetails: return new frmLabelDetails(*this, labelOnScreen);
    case Screen::frmStaffDetails: return new frmStaffDetails(*this, staffOnScreen);
    case Screen::frmBandBrowse: return new frmBandBrowse(*this);
    case Screen::frmArtistBrowse:
    case Screen::frmRichList:
    case Screen::frmStaffBrowse:
    case Screen::frmLabelBrowse:
    case Screen::frmVenueBrowse:
    case Screen::frmBusinessBrowse:
    case Screen::frmMediaBrowse:
    case Screen::frmSongBrowse:
    case Screen::frmFestivalBrowse:
    case Screen::frmCeremonyBrowse: return new frmTableBrowse(*this, s);
    case Screen::frmArtistDetails: return new frmArtistDetails(*this, artistOnScreen);
    case Screen::frmFestivalDetails: return new frmFestivalDetails(*this, festivalOnScreen);
    case Screen::frmHistoricalFestivalDetails: return new frmHistoricalFestivalDetails(*this, festivalOnScreen);
    case Screen::frmCeremonyDetails: return new frmCeremonyDetails(*this, ceremonyOnScreen);
    case Screen::frmHistoricalCeremonyDetails: return new frmHistoricalCeremonyDetails(*this, ceremonyOnScreen);
    case Screen::frmAwardCeremony:
        if (!g_.showSteps.empty()) return new frmAwardCeremony(*this);
        g_.currentScreen = Screen::frmNews;
        return new frmNews(*this);
    case Screen::frmNews:
    default: g_.currentScreen = Screen::frmNews; return new frmNews(*this);
    }
}

void mdiParentForm::setMainScreen(QWidget* screen) {
    retire(mainScreen_);
    mainScreen_ = screen;
    screenLayout_->addWidget(screen);
    screen->show();
    if (QPushButton* focused = qobject_cast<QPushButton*>(QApplication::focusWidget());
        !focused || !sideBar_->isAncestorOf(focused) || !focused->isEnabled())
        screen->setFocus();
}

void mdiParentForm::showCurrentScreen() {
    if (!gameRunning_) return;
    QWidget* screen = createMainScreen(g_.currentScreen);
    setMainScreen(screen);
    emit screenShown(g_.currentScreen);
}

void mdiParentForm::openScreen(Screen s) {
    if (!gameRunning_) return;
    sideBar_->CloseOtherWindows();
    if (g_.currentScreen != s) g_.previousScreen = g_.currentScreen;
    g_.currentScreen = s;
    showCurrentScreen();
}

void mdiParentForm::openBand(int16_t band) {
    bandOnScreen = band;
    if (g_.currentScreen == Screen::frmBandDetails) {
        sideBar_->CloseOtherWindows();
        showCurrentScreen();
        return;
    }
    openScreen(Screen::frmBandDetails);
}

void mdiParentForm::openArtist(int16_t artist) {
    artistOnScreen = artist;
    if (g_.currentScreen == Screen::frmArtistDetails) {
        sideBar_->CloseOtherWindows();
        showCurrentScreen();
        return;
    }
    openScreen(Screen::frmArtistDetails);
}

void mdiParentForm::openSaveScreen(bool loading) {
    saveScreenLoads_ = loading;
    if (g_.currentScreen == Screen::frmSaveGame) {
        sideBar_->CloseOtherWindows();
        showCurrentScreen();
        return;
    }
    openScreen(Screen::frmSaveGame);
}

void mdiParentForm::returnToPreviousScreen() {
    Screen back = g_.previousScreen == Screen::none ? Screen::frmNews : g_.previousScreen;
    g_.previousScreen = Screen::none;
    g_.currentScreen = back;
    sideBar_->CloseOtherWindows();
    showCurrentScreen();
}

void mdiParentForm::continueGame() {
    if (!gameRunning_ || turnUnderWay_ || ended_) return;
    bool free = false;
    if (!guarded([&] { free = allRepliesGiven(g_); })) return;
    if (!free) {
        // The item that waits for an answer; its screen holds the sidebar until it is given.
        sideBar_->CloseOtherWindows();
        // A second press on the same item must not make the item its own way back.
        if (g_.previousScreen == Screen::frmNewsFull) g_.previousScreen = Screen::frmNews;
        newsItemOnScreen = g_.news->id;
        showCurrentScreen();
        return;
    }
    sideBar_->CloseOtherWindows();
    turnUnderWay_ = true;
    sideBar_->enableSidebar(false);
    auto* loading = new frmLoading(*this, false);
    setMainScreen(loading);
    g_.currentScreen = Screen::frmLoading;
    loading->whenPainted([this] { runDay(); });
}

void mdiParentForm::runDay() {
    QElapsedTimer clock;
    clock.start();
    bool ok = guarded([this] {
        checkDaysSchedule(g_);
        // The day reaches the disk whole, the session record with it.
        commitWorkingGame(g_);
    });
    turnUnderWay_ = false;
    if (!ok) return;
    playedSinceSave_ = true;
    statusBar_->display();
    showCurrentScreen();  // the news, which gives the sidebar back
    lastTurnMs_ = static_cast<double>(clock.nsecsElapsed()) / 1e6;
    emit dayEnded();
}

void mdiParentForm::quitGame() {
    sideBar_->CloseOtherWindows();
    tmrGameTime_->stop();
    retire(mainScreen_);
    gameRunning_ = false;
    if (!guarded([this] { discardWorkingSet(g_); })) return;
    showStartForm();
}

void mdiParentForm::askAbandon(std::function<void()> then) {
    if (!gameRunning_ || !playedSinceSave_) {
        then();
        return;
    }
    askSure(this, QStringLiteral("abandon"),
            tr("Abandon this game? What you played since %1 will be lost.")
                .arg(QString::fromStdString(formatDate(savedOn_, "d/m/yyyy"))),
            std::move(then));
}

void mdiParentForm::markSaved() {
    playedSinceSave_ = false;
    savedOn_ = g_.gameDate;
}

void mdiParentForm::refreshStatusBar() {
    if (gameRunning_) statusBar_->display();
}

// ---------------------------------------------------------------- failures

bool mdiParentForm::guarded(const std::function<void()>& work) {
    if (ended_) return false;
    try {
        work();
        return true;
    } catch (const SlotError&) {
        throw;  // a refused slot is the caller's to show; the game goes on
    } catch (const FatalError& e) { fatal(QString::fromStdString(e.what())); } catch (const std::exception& e) {
        fatal(tr("Unexpected failure: %1").arg(QString::fromStdString(e.what())));
    }
    return false;
}

void mdiParentForm::fatal(const QString& message) {
    ended_ = true;
    tmrGameTime_->stop();
    g_.progress = nullptr;
    // The files keep the game as far as it got.
    try {
        closeAllTables(g_);
    } catch (const std::exception&) {}
    centralWidget()->setEnabled(false);
    auto* box = new QMessageBox(QMessageBox::Critical, tr("Trovane 3 has to stop"),
                                tr("The game cannot go on:\n\n%1").arg(message), QMessageBox::Ok, this);
    box->setObjectName(QStringLiteral("fatalDialog"));
    box->setIconPixmap(glyphPixmap(Glyph::no, palette::danger, 40, devicePixelRatioF()));
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QMessageBox::finished, this, [this] {
        if (endProgram) endProgram(1);
    });
    emit fatalErrorShown(message);
    box->open();
}

void mdiParentForm::showRefusal(const QString& title, const QString& message) {
    auto* box = new QMessageBox(QMessageBox::Warning, title, message, QMessageBox::Ok, this);
    box->setObjectName(QStringLiteral("refusalDialog"));
    box->setIconPixmap(glyphPixmap(Glyph::info, palette::accent, 40, devicePixelRatioF()));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void mdiParentForm::closeEvent(QCloseEvent* event) {
    if (!gameRunning_ || ended_ || leaving_) {
        event->accept();
        return;
    }
    event->ignore();
    askAbandon([this] {
        leaving_ = true;
        quitGame();
        close();
    });
}

}  // namespace trovane::screens

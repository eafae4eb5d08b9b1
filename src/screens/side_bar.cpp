#include "screens/side_bar.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "screens/artist_details_screen.h"
#include "screens/band_contract_screens.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/option_panels.h"
#include "screens/screen_page.h"
#include "screens/staff_screens.h"
#include "screens/theme.h"

namespace trovane::screens {

frmSideBar::frmSideBar(mdiParentForm& main, QWidget* panelHost) : main_(main), panelHost_(panelHost) {
    setObjectName(QStringLiteral("frmSideBar"));
    setFixedWidth(212);
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(14, 18, 14, 16);
    l->setSpacing(4);

    auto* logo = new QLabel(this);
    logo->setObjectName(QStringLiteral("picLogo"));
    logo->setPixmap(logoPixmap(30, devicePixelRatioF()));
    logo->setContentsMargins(4, 0, 0, 14);
    l->addWidget(logo);

    btnContinueGame =
        makeButton(QStringLiteral("btnContinueGame"), tr("&Continue"), Glyph::play, ButtonRole::sidebar, this);
    btnContinueGame->setToolTip(tr("Play the next day (F5 or Ctrl+Enter)"));
    l->addWidget(btnContinueGame);
    l->addSpacing(12);

    auto sideButton = [&](const char* name, const QString& caption, Glyph glyph, const QString& tip) {
        QPushButton* b = makeButton(QString::fromLatin1(name), caption, glyph, ButtonRole::sidebar, this);
        b->setToolTip(tip);
        l->addWidget(b);
        return b;
    };
    btnNews = sideButton("btnNews", tr("&News"), Glyph::news, tr("Your news"));
    btnLabelOptions = sideButton("btnLabelOptions", tr("My &Label"), Glyph::label, tr("Your label's details"));
    btnFind = sideButton("btnFind", tr("&Find"), Glyph::find, tr("Lists of artists, bands, staff, labels and more"));
    btnCharts = sideButton("btnCharts", tr("C&harts"), Glyph::charts, tr("The album and single charts"));
    l->addStretch(1);
    cmdExtra = sideButton("cmdExtra", tr("&Options"), Glyph::more, tr("What you can do with what is on screen"));
    btnGameOptions = sideButton("btnGameOptions", tr("&Game"), Glyph::options, tr("Save, load, currency, credits"));
    btnQuit = sideButton("btnQuit", tr("&Quit"), Glyph::power, tr("Leave this game"));
    for (QPushButton* b : {btnFind, btnCharts, btnGameOptions, btnQuit}) b->setCheckable(true);

    findOptions_ = new frmFindOptions(main, panelHost);
    chartOptions_ = new frmChartOptions(main, panelHost);
    gameOptions_ = new frmGameOptions(main, panelHost);
    quitOptions_ = new frmQuitOptions(main, panelHost);
    panelHost->installEventFilter(this);

    connect(btnContinueGame, &QPushButton::clicked, this, [this] { main_.continueGame(); });
    connect(btnNews, &QPushButton::clicked, this, [this] { main_.openScreen(Screen::frmNews); });
    connect(btnLabelOptions, &QPushButton::clicked, this, [this] {
        main_.labelOnScreen = main_.game().player.playerLabel;
        main_.openScreen(Screen::frmLabelDetails);
    });
    connect(btnFind, &QPushButton::clicked, this, &frmSideBar::loadFindOptions);
    connect(btnCharts, &QPushButton::clicked, this, &frmSideBar::loadChartOptions);
    connect(btnGameOptions, &QPushButton::clicked, this, &frmSideBar::loadGameOptions);
    connect(btnQuit, &QPushButton::clicked, this, &frmSideBar::loadQuitOptions);
    connect(cmdExtra, &QPushButton::clicked, this, &frmSideBar::extraOptions);
}

void frmSideBar::enableSidebar(bool on) {
    for (QPushButton* b :
         {btnContinueGame, btnNews, btnLabelOptions, btnFind, btnCharts, btnGameOptions, btnQuit, cmdExtra})
        b->setEnabled(on);
    if (!on) CloseOtherWindows();
}

void frmSideBar::CloseOtherWindows() {
    bool hadFocus = false;
    for (OptionPanel* p : {static_cast<OptionPanel*>(findOptions_), static_cast<OptionPanel*>(chartOptions_),
                           static_cast<OptionPanel*>(gameOptions_), static_cast<OptionPanel*>(quitOptions_),
                           static_cast<OptionPanel*>(extraPanel_)}) {
        if (!p || !p->isVisible()) continue;
        hadFocus = hadFocus || p->isAncestorOf(QApplication::focusWidget());
        p->hide();
    }
    if (hadFocus && anchorOfOpenPanel_ && anchorOfOpenPanel_->isEnabled()) anchorOfOpenPanel_->setFocus();
    anchorOfOpenPanel_ = nullptr;
    syncChecks();
}

void frmSideBar::loadFindOptions() { togglePanel(findOptions_, btnFind); }
void frmSideBar::loadChartOptions() { togglePanel(chartOptions_, btnCharts); }
void frmSideBar::loadGameOptions() { togglePanel(gameOptions_, btnGameOptions); }
void frmSideBar::loadQuitOptions() { togglePanel(quitOptions_, btnQuit); }

OptionPanel* frmSideBar::openPanel() const {
    for (OptionPanel* p : {static_cast<OptionPanel*>(findOptions_), static_cast<OptionPanel*>(chartOptions_),
                           static_cast<OptionPanel*>(gameOptions_), static_cast<OptionPanel*>(quitOptions_),
                           static_cast<OptionPanel*>(extraPanel_)})
        if (p && p->isVisible()) return p;
    return nullptr;
}

void frmSideBar::togglePanel(OptionPanel* panel, QPushButton* anchor) {
    if (panel->isVisible()) {
        CloseOtherWindows();
        return;
    }
    CloseOtherWindows();
    anchorOfOpenPanel_ = anchor;
    placePanel(panel, anchor);
    panel->show();
    panel->raise();
    panel->focusFirstEntry();
    syncChecks();
}

// Beside the sidebar, level with the button that opened it, and always whole on screen.
void frmSideBar::placePanel(OptionPanel* panel, QPushButton* anchor) {
    panel->adjustSize();
    QPoint at = anchor->mapTo(panelHost_, QPoint(0, 0));
    int x = mapTo(panelHost_, QPoint(width(), 0)).x() + 8;
    int y = at.y() - 12;
    int bottomRoom = panelHost_->height() - 10;
    if (y + panel->height() > bottomRoom) y = bottomRoom - panel->height();
    panel->move(x, qMax(10, y));
}

void frmSideBar::syncChecks() {
    btnFind->setChecked(findOptions_->isVisible());
    btnCharts->setChecked(chartOptions_->isVisible());
    btnGameOptions->setChecked(gameOptions_->isVisible());
    btnQuit->setChecked(quitOptions_->isVisible());
}

bool frmSideBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == panelHost_ && event->type() == QEvent::Resize && anchorOfOpenPanel_) {
        if (OptionPanel* p = openPanel()) placePanel(p, anchorOfOpenPanel_);
    }
    return QFrame::eventFilter(watched, event);
}

// The options of what is on screen, by its caption: a band's (Band Details),
// an artist's (Artist Details, the player's own only), a person's (Staff
// Details, none on the player's own record) or a disc's (Disc Details, the
// screen's own options). On a screen with no options (the news, the save
// screen...) the button does nothing.
void frmSideBar::extraOptions() {
    if (extraPanel_ && extraPanel_->isVisible()) {
        CloseOtherWindows();
        return;
    }
    CloseOtherWindows();
    delete extraPanel_;
    const QString caption = screenCaption();
    if (caption == QLatin1String("Band Details"))
        extraPanel_ = makeBandOptions(main_, panelHost_, main_.bandOnScreen);
    else if (caption == QLatin1String("Artist Details"))
        extraPanel_ = makeArtistOptions(main_, panelHost_, main_.artistOnScreen);
    else if (caption == QLatin1String("Staff Details"))
        extraPanel_ = makeStaffOptions(main_, panelHost_, main_.staffOnScreen);
    else if (caption == QLatin1String("Disc Details"))
        return loadDiscOptions();
    if (extraPanel_) togglePanel(extraPanel_, cmdExtra);
}

// The caption of the screen on show: its title.
QString frmSideBar::screenCaption() const {
    auto* page = qobject_cast<ScreenPage*>(main_.currentScreenWidget());
    return page && page->titleLabel() ? page->titleLabel()->text() : QString();
}

// Disc Details carries its own options: the same as its own button.
void frmSideBar::loadDiscOptions() {
    QWidget* screen = main_.currentScreenWidget();
    auto* own = screen ? screen->findChild<QPushButton*>(QStringLiteral("cmdExtra")) : nullptr;
    if (own && own->isEnabled()) own->click();
}

}  // namespace trovane::screens

#include "screens/option_panels.h"

#include <QGraphicsDropShadowEffect>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "screens/game_option_screens.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/side_bar.h"
#include "screens/theme.h"

namespace trovane::screens {

OptionPanel::OptionPanel(const QString& objectName, const QString& heading, QWidget* parent) : QFrame(parent) {
    setObjectName(objectName);
    setProperty("role", "panel");
    setFocusPolicy(Qt::NoFocus);
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(10, 12, 10, 10);
    l->setSpacing(4);
    QLabel* caption = makeCaption(heading, this);
    caption->setContentsMargins(8, 0, 8, 4);
    l->addWidget(caption);
    entries_ = new QVBoxLayout;
    entries_->setSpacing(2);
    l->addLayout(entries_);
    inertNote_ = new QLabel(tr("Not open in this version"), this);
    inertNote_->setObjectName(QStringLiteral("lblInert"));
    inertNote_->setStyleSheet(
        QStringLiteral("color: %1; font-size: 9pt; padding: 4px 8px 0 8px;").arg(palette::mutedText.name()));
    inertNote_->hide();
    l->addWidget(inertNote_);
    // Lifts the panel off the screen under it.
    auto* shadow = new QGraphicsDropShadowEffect(this);
    shadow->setBlurRadius(28);
    shadow->setOffset(0, 6);
    shadow->setColor(QColor(0, 0, 0, 150));
    setGraphicsEffect(shadow);
    hide();
}

QPushButton* OptionPanel::addEntry(const QString& objectName, const QString& caption, Glyph glyph,
                                   std::function<void()> action) {
    QPushButton* b = makeButton(objectName, caption, glyph, ButtonRole::panelEntry, this);
    b->setMinimumWidth(220);
    if (action) {
        connect(b, &QPushButton::clicked, this, [action] { action(); });
    } else {
        // A screen the game does not have yet: the entry is there and does nothing.
        b->setEnabled(false);
        b->setToolTip(tr("Not open in this version"));
    }
    // When nothing in the panel can be used yet, say so once under the entries.
    bool anyOpen = false;
    for (QPushButton* e : findChildren<QPushButton*>()) anyOpen = anyOpen || e->isEnabled();
    inertNote_->setVisible(!anyOpen);
    entries_->addWidget(b);
    adjustSize();
    return b;
}

QPushButton* OptionPanel::entry(const QString& objectName) const { return findChild<QPushButton*>(objectName); }

void OptionPanel::focusFirstEntry() {
    for (int i = 0; i < entries_->count(); ++i) {
        auto* b = qobject_cast<QPushButton*>(entries_->itemAt(i)->widget());
        if (b && b->isEnabled()) {
            b->setFocus(Qt::PopupFocusReason);
            return;
        }
    }
}

void OptionPanel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Down: focusNextChild(); return;
    case Qt::Key_Up: focusPreviousChild(); return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* b = qobject_cast<QPushButton*>(focusWidget()); b && isAncestorOf(b)) {
            b->click();
            return;
        }
        break;
    default: break;
    }
    QFrame::keyPressEvent(event);
}

frmFindOptions::frmFindOptions(mdiParentForm& main, QWidget* parent)
    : OptionPanel(QStringLiteral("frmFindOptions"), tr("Find"), parent) {
    addEntry(QStringLiteral("lblArtists"), tr("Artists"), Glyph::person);
    addEntry(QStringLiteral("lblBands"), tr("Bands"), Glyph::record, [&main] {
        main.bandListIsShortlist = false;
        main.openScreen(Screen::frmBandList);
    });
    addEntry(QStringLiteral("lblStaff"), tr("Staff"), Glyph::person,
             [&main] { main.openScreen(Screen::frmStaffList); });
    addEntry(QStringLiteral("lblLabels"), tr("Labels"), Glyph::label);
    addEntry(QStringLiteral("lblVenues"), tr("Venues"), Glyph::label);
    addEntry(QStringLiteral("lblBusinesses"), tr("Businesses"), Glyph::coins);
    addEntry(QStringLiteral("lblAwards"), tr("Awards"), Glyph::star);
    addEntry(QStringLiteral("lblFestivals"), tr("Festivals"), Glyph::calendar,
             [&main] { main.openScreen(Screen::frmFestivalBrowse); });
    addEntry(QStringLiteral("lblRichList"), tr("Rich List"), Glyph::coins);
    addEntry(QStringLiteral("lblShortlist"), tr("Shortlist"), Glyph::find, [&main] {
        main.bandListIsShortlist = true;
        main.openScreen(Screen::frmBandList);
    });
}

frmChartOptions::frmChartOptions(mdiParentForm& main, QWidget* parent)
    : OptionPanel(QStringLiteral("frmChartOptions"), tr("Charts"), parent) {
    auto open = [&main](int chart) {
        return [&main, chart] {
            main.chartShown = chart;
            main.openScreen(Screen::frmChartForm);
        };
    };
    addEntry(QStringLiteral("lblUKAlbumChart"), tr("UK Album Chart"), Glyph::charts, open(0));
    addEntry(QStringLiteral("lblUkSingleChart"), tr("UK Single Chart"), Glyph::charts, open(5));
    addEntry(QStringLiteral("lblUSAlbumChart"), tr("US Album Chart"), Glyph::charts, open(1));
    addEntry(QStringLiteral("lblUSSingleChart"), tr("US Single Chart"), Glyph::charts, open(6));
    addEntry(QStringLiteral("lblEuroAlbumChart"), tr("European Album Chart"), Glyph::charts, open(2));
    addEntry(QStringLiteral("lblEuroSingleChart"), tr("European Single Chart"), Glyph::charts, open(7));
    addEntry(QStringLiteral("lblOceanicAlbumChart"), tr("Oceanic Album Chart"), Glyph::charts, open(3));
    addEntry(QStringLiteral("lblOceanicSingleChart"), tr("Oceanic Single Chart"), Glyph::charts, open(8));
}

frmGameOptions::frmGameOptions(mdiParentForm& main, QWidget* parent)
    : OptionPanel(QStringLiteral("frmGameOptions"), tr("Game"), parent) {
    addEntry(QStringLiteral("lblSaveGame"), tr("Save Game"), Glyph::save, [&main] { main.openSaveScreen(false); });
    addEntry(QStringLiteral("lblLoadGame"), tr("Load Game"), Glyph::load, [&main] { main.openSaveScreen(true); });
    addEntry(QStringLiteral("lblCurrency"), tr("Currency"), Glyph::coins, [&main] {
        main.sideBar()->CloseOtherWindows();
        auto* dialog = new frmChangeCurrency(main);
        dialog->open();
    });
    addEntry(QStringLiteral("lblHallOfFame"), tr("Hall of Fame"), Glyph::star);
    addEntry(QStringLiteral("lblBirthday"), tr("Birthdays"), Glyph::calendar);
    addEntry(QStringLiteral("lblCredits"), tr("Credits"), Glyph::star,
             [&main] { main.openScreen(Screen::frmCredits); });
    addEntry(QStringLiteral("lblDisclaimer"), tr("Disclaimer"), Glyph::info,
             [&main] { main.openScreen(Screen::frmDisclaimer); });
}

frmQuitOptions::frmQuitOptions(mdiParentForm& main, QWidget* parent)
    : OptionPanel(QStringLiteral("frmQuitOptions"), tr("Quit"), parent) {
    QPushButton* quit = addEntry(QStringLiteral("lblQuit"), tr("Quit to the Start Screen"), Glyph::power,
                                 [&main] { main.askAbandon([&main] { main.quitGame(); }); });
    quit->setToolTip(tr("Whatever has not been saved will be lost"));
}

}  // namespace trovane::screens

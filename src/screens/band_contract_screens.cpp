#include "screens/band_contract_screens.h"

#include "screens/album_screens.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "floor/formats.h"
#include "floor/number_helpers.h"
#include "label/scouting.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/side_bar.h"
#include "screens/theme.h"
#include "talent/contracts.h"
#include "world/strings.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

// An entry that can be seen but not used, with the reason as its tip.
void refuseEntry(QPushButton* entry, const QString& why) {
    entry->setEnabled(false);
    entry->setToolTip(why);
}

}  // namespace

OptionPanel* makeBandOptions(mdiParentForm& main, QWidget* host, int16_t band) {
    Game& g = main.game();
    if (band < 1) return nullptr;
    g.band.read(band);
    if (g.player.playerLabel > 0 && g.band->label == g.player.playerLabel)
        return new frmBandOptionsSigned(main, band, host);
    if (hasOfferFrom(g, g.player.playerLabel, band) != 0) return new frmBandOptionsApproached(main, host, band);
    return new frmBandOptionsUnsigned(main, host, band);
}

frmBandOptionsUnsigned::frmBandOptionsUnsigned(mdiParentForm& main, QWidget* parent, int16_t band)
    : OptionPanel(QStringLiteral("frmBandOptionsUnsigned"), tr("Options"), parent) {
    Game& g = main.game();
    QPushButton* approach = addEntry(QStringLiteral("lblApproach"), tr("Offer a Contract"), Glyph::label,
                                     [&main] { main.openScreen(Screen::frmBandContract); });
    if (std::string why = checkOffer(g, band, offerFormStart(g, band)); !why.empty()) refuseEntry(approach, qs(why));
    addEntry(QStringLiteral("lblScout"), tr("Scout"), Glyph::find, [&main, band] {
        Game& game = main.game();
        double date = 0;
        main.guarded([&] { date = scoutBand(game, band); });
        main.sideBar()->CloseOtherWindows();
        main.showRefusal(tr("Scouting"), tr("Your Artist and Repertoire Department will report on %1 on %2.")
                                             .arg(qs(trim(game.band->name.value)))
                                             .arg(qs(formatDate(date, "dddd d mmmm yyyy"))));
    });
    g.band.read(band);
    g.label.read(g.player.playerLabel);
    const bool listed = isShortlisted(g);
    addEntry(QStringLiteral("lblShortlist"), listed ? tr("Remove from Shortlist") : tr("Add to Shortlist"), Glyph::star,
             [&main, band] {
                 main.guarded([&] { toggleShortlist(main.game(), band); });
                 main.openBand(band);
             });
}

frmBandOptionsApproached::frmBandOptionsApproached(mdiParentForm& main, QWidget* parent, int16_t band)
    : OptionPanel(QStringLiteral("frmBandOptionsApproached"), tr("Options"), parent) {
    Game& g = main.game();
    addEntry(QStringLiteral("lblChange"), tr("Change the Offer"), Glyph::label,
             [&main] { main.openScreen(Screen::frmBandContract); });
    QPushButton* withdraw = addEntry(QStringLiteral("lblWithdraw"), tr("Withdraw the Offer"), Glyph::no, [&main, band] {
        main.guarded([&] { withdrawOffer(main.game(), band); });
        main.openBand(band);
    });
    if (std::string why = checkWithdraw(g, band); !why.empty()) refuseEntry(withdraw, qs(why));
}

frmBandContract::frmBandContract(mdiParentForm& main, int16_t band, QWidget* parent)
    : ScreenPage(main, QStringLiteral("frmBandContract"), QString(), parent), band_(band) {
    Game& g = main.game();
    main.guarded([&] {
        titleLabel()->setText(qs(offerFormTitle(g, band)));
        titleLabel()->setObjectName(QStringLiteral("lblTitle"));
        terms_ = offerFormStart(g, band);
    });
    auto* card = new Card(this);
    card->setMaximumWidth(820);
    lblDemands = makeBody(qs(demandsText(g, band)), card);
    lblDemands->setObjectName(QStringLiteral("lblDemands"));
    lblDemands->setWordWrap(true);
    card->content()->addWidget(lblDemands);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(10);
    int row = 0;
    // One spinner: caption, value, and its two arrows, each changing the terms by `step`.
    auto spinner = [&](const QString& caption, const char* value, const char* inc, const char* dec,
                       std::function<void(bool up)> step) {
        grid->addWidget(makeCaption(caption, card), row, 0);
        QLabel* shown = makeBody(QString(), card);
        shown->setObjectName(QLatin1String(value));
        shown->setMinimumWidth(140);
        grid->addWidget(shown, row, 1);
        QPushButton* down =
            makeButton(QLatin1String(dec), QStringLiteral("-"), Glyph::back, ButtonRole::secondary, card);
        QPushButton* up = makeButton(QLatin1String(inc), QStringLiteral("+"), Glyph::more, ButtonRole::secondary, card);
        for (QPushButton* b : {down, up}) {
            b->setIcon(QIcon());
            b->setFixedWidth(56);
        }
        grid->addWidget(down, row, 2);
        grid->addWidget(up, row, 3);
        connect(down, &QPushButton::clicked, this, [this, step] {
            step(false);
            showTerms();
        });
        connect(up, &QPushButton::clicked, this, [this, step] {
            step(true);
            showTerms();
        });
        ++row;
        return shown;
    };
    lblInitialAdvance = spinner(tr("Initial advance"), "lblInitialAdvance", "cmdInitialAdvanceInc",
                                "cmdInitialAdvanceDec", [this](bool up) { stepMoney(up, terms_.initialAdvance); });
    lblSubsequentAdvances =
        spinner(tr("Advance of each further option"), "lblSubsequentAdvances", "cmdSubsequentAdvancesInc",
                "cmdSubsequentAdvancesDec", [this](bool up) { stepMoney(up, terms_.additionalAdvance); });
    lblOptionLength =
        spinner(tr("Option length"), "lblOptionLength", "cmdOptionLengthInc", "cmdOptionLengthDec", [this](bool up) {
            if (up && terms_.months == 12) terms_.months = 18;
            if (!up && terms_.months == 18) terms_.months = 12;
        });
    lblSubsequentOptions =
        spinner(tr("Further options"), "lblSubsequentOptions", "cmdSubsequentOptionsInc", "cmdSubsequentOptionsDec",
                [this](bool up) { terms_.options = std::clamp(terms_.options + (up ? 1 : -1), 1, 5); });
    lblRoyalty = spinner(tr("Royalty rate"), "lblRoyalty", "cmdRoyaltyInc", "cmdRoyaltyDec",
                         [this](bool up) { terms_.royalty = std::clamp(terms_.royalty + (up ? 1 : -1), 5, 30); });
    grid->setColumnStretch(1, 1);
    card->content()->addSpacing(8);
    card->content()->addLayout(grid);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    QPushButton* cancel = makeButton(QStringLiteral("cmdCancel"), tr("Cancel"), Glyph::no, ButtonRole::secondary, card);
    cmdOk = makeButton(QStringLiteral("cmdOk"), tr("Make the Offer"), Glyph::ok, ButtonRole::primary, card);
    buttons->addWidget(cancel);
    buttons->addWidget(cmdOk);
    card->content()->addLayout(buttons);
    body()->addWidget(card);
    body()->addStretch(1);

    connect(cancel, &QPushButton::clicked, this, [&main, band] { main.openBand(band); });
    connect(cmdOk, &QPushButton::clicked, this, [this, &main, band] {
        Game& game = main.game();
        std::string why;
        OfferMade made{};
        main.guarded([&] {
            why = checkOffer(game, band, terms_);
            if (why.empty()) made = makeOffer(game, band, terms_);
        });
        if (!why.empty()) {
            main.showRefusal(tr("Offer"), qs(why));
            return;
        }
        main.openBand(band);
        main.showRefusal(tr("Offer"), tr("The band will decide on %1%2.")
                                          .arg(qs(formatDate(made.decisionDate, "dddd d mmmm yyyy")))
                                          .arg(made.joined ? tr(", with another label's offer") : QString()));
    });
    showTerms();
}

void frmBandContract::showTerms() {
    Game& g = main_.game();
    const std::string symbol = g.prefs.rec.currencySymbol.value;
    lblInitialAdvance->setText(qs(symbol + formatNumber(terms_.initialAdvance, "###,###,##0")));
    lblSubsequentAdvances->setText(qs(symbol + formatNumber(terms_.additionalAdvance, "###,###,##0")));
    lblOptionLength->setText(tr("%1 months").arg(terms_.months));
    lblSubsequentOptions->setText(QString::number(terms_.options));
    lblRoyalty->setText(tr("%1 percent").arg(terms_.royalty));
}

}  // namespace trovane::screens

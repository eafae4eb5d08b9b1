#include "screens/game_option_screens.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "floor/preferences.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"

namespace trovane::screens {

namespace {

// The names beside the three symbols, in the order of the game's currencies.
constexpr const char* kCurrencyNames[3] = {"Pounds sterling", "US dollars", "Euros"};

// A plain text screen with a back button.
void addBack(ScreenPage* page, mdiParentForm& main) {
    QPushButton* back =
        makeButton(QStringLiteral("btnOk"), QObject::tr("Back to the Game"), Glyph::back, ButtonRole::secondary, page);
    page->headingExtras()->addWidget(back, 0, Qt::AlignTop);
    QObject::connect(back, &QPushButton::clicked, page, [&main] { main.returnToPreviousScreen(); });
}

}  // namespace

frmChangeCurrency::frmChangeCurrency(mdiParentForm& main) : QDialog(&main), main_(main) {
    setObjectName(QStringLiteral("frmChangeCurrency"));
    setWindowTitle(tr("Currency"));
    setModal(true);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(28, 24, 28, 20);
    l->setSpacing(14);
    l->addWidget(makeSubtitle(tr("Show money in"), this));
    auto* group = new QButtonGroup(this);
    int now = 0;
    main.guarded([&] {
        readPrefs(main.game());
        now = currentCurrency(main.game());
    });
    for (int i = 0; i < 3; ++i) {
        std::string_view symbol = kCurrencies[static_cast<std::size_t>(i)].symbol;
        optCurrency[i] = new QRadioButton(
            QStringLiteral("%1   %2").arg(QString::fromUtf8(symbol.data(), static_cast<qsizetype>(symbol.size())),
                                          tr(kCurrencyNames[i])),
            this);
        optCurrency[i]->setObjectName(QStringLiteral("optCurrency%1").arg(i));
        group->addButton(optCurrency[i], i);
        l->addWidget(optCurrency[i]);
    }
    optCurrency[now >= 0 ? now : 0]->setChecked(true);
    auto* note = new QLabel(tr("Your accounts are kept in pounds; this changes only how amounts are shown."), this);
    note->setWordWrap(true);
    note->setStyleSheet(QStringLiteral("color: %1;").arg(palette::mutedText.name()));
    l->addWidget(note);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    cmdCancel = makeButton(QStringLiteral("cmdCancel"), tr("Cancel"), Glyph::no, ButtonRole::secondary, this);
    cmdConfirm = makeButton(QStringLiteral("cmdConfirm"), tr("Confirm"), Glyph::ok, ButtonRole::primary, this);
    cmdConfirm->setDefault(true);
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdConfirm);
    l->addLayout(buttons);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdConfirm, &QPushButton::clicked, this, [this, group] {
        std::string_view symbol = kCurrencies[static_cast<std::size_t>(group->checkedId())].symbol;
        bool ok = main_.guarded([&] { changeCurrency(main_.game(), symbol); });
        if (ok) main_.refreshStatusBar();
        accept();
    });
    optCurrency[group->checkedId()]->setFocus();
}

frmCredits::frmCredits(mdiParentForm& main, QWidget* parent)
    : ScreenPage(main, QStringLiteral("frmCredits"), tr("Credits"), parent) {
    addBack(this, main);
    auto* card = new Card(this);
    card->setMaximumWidth(900);
    QLabel* text = makeBody(
        tr("<p><b>Trovane 3</b> is a game of the music business: sign the acts, make the records, fill the venues "
           "and outlast the majors.</p>"
           "<p><b>Design, programming and the world of 2004</b><br>The Trovane 3 team.</p>"
           "<p><b>Built with</b><br>Qt, GoogleTest, Google Benchmark, {fmt}, CLI11 and toml++. Our thanks to "
           "everyone who makes and keeps these libraries.</p>"
           "<p><b>Thank you</b><br>To everyone who has played, tested and argued about the charts with us, and to "
           "every band that ever loaded a van at two in the morning.</p>"),
        card);
    text->setObjectName(QStringLiteral("lblCredits"));
    text->setTextFormat(Qt::RichText);
    card->content()->addWidget(text);
    body()->addWidget(card);
    body()->addStretch(1);
}

frmDisclaimer::frmDisclaimer(mdiParentForm& main, QWidget* parent)
    : ScreenPage(main, QStringLiteral("frmDisclaimer"), tr("Disclaimer"), parent) {
    addBack(this, main);
    auto* card = new Card(this);
    card->setMaximumWidth(900);
    QLabel* text = makeBody(QString::fromUtf8(kDisclaimerText), card);
    text->setObjectName(QStringLiteral("lblDisclaimer"));
    text->setTextFormat(Qt::PlainText);
    card->content()->addWidget(text);
    body()->addWidget(card);
    body()->addStretch(1);
}

}  // namespace trovane::screens

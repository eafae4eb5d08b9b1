#include "screens/option_decision_screen.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"
#include "talent/contract_progress.h"
#include "world/game.h"

namespace trovane::screens {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

}  // namespace

frmBandOptionDecision::frmBandOptionDecision(mdiParentForm& main)
    : ScreenPage(main, QStringLiteral("frmBandOptionDecision"), QString()) {
    Game& g = main.game();
    const std::string why = checkOptionDecision(g);
    auto* card = new Card(this);
    lblText = makeBody(QString(), card);
    lblText->setObjectName(QStringLiteral("lblText"));
    lblText->setWordWrap(true);
    card->content()->addWidget(lblText);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    cmdNo = makeButton(QStringLiteral("cmdNo"), tr("No"), Glyph::no, ButtonRole::secondary, card);
    cmdYes = makeButton(QStringLiteral("cmdYes"), tr("Yes"), Glyph::ok, ButtonRole::primary, card);
    row->addWidget(cmdNo);
    row->addWidget(cmdYes);
    card->content()->addLayout(row);
    body()->addWidget(card);
    body()->addStretch(1);
    if (why.empty()) {
        g.band.read(g.schedule->band);
        titleLabel()->setText(qs(optionDecisionTitle(g)));
        lblText->setText(qs(optionDecisionText(g)));
    } else {
        titleLabel()->setText(tr("Option Decision"));
        lblText->setText(qs(why));
        cmdYes->setEnabled(false);
        cmdNo->setEnabled(false);
    }
    connect(cmdYes, &QPushButton::clicked, this, [this] { decide(true); });
    connect(cmdNo, &QPushButton::clicked, this, [this] { decide(false); });
}

void frmBandOptionDecision::decide(bool extend) {
    Game& g = main_.game();
    if (!checkOptionDecision(g).empty()) return;
    if (!main_.guarded([&] { decideOption(g, extend); })) return;
    main_.refreshStatusBar();
    main_.openScreen(Screen::frmNews);
}

}  // namespace trovane::screens

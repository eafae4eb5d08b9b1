#include "screens/ceremony_screens.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStringList>
#include <QTimer>
#include <QVBoxLayout>

#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"

namespace trovane::screens {

int frmAwardCeremony::revealInterval = 1200;

frmAwardCeremony::frmAwardCeremony(mdiParentForm& main)
    : ScreenPage(main, QStringLiteral("frmAwardCeremony"), tr("Award Ceremony")) {
    setSubtitle(tr("Press Next to see the rest of a step or to go on to the next."));
    auto* card = new Card(this);
    lblCeremony = makeBody(QString(), card);
    lblCeremony->setObjectName(QStringLiteral("lblCeremony"));
    lblCeremony->setWordWrap(true);
    lblCeremony->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    lblCeremony->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* scroll = new QScrollArea(card);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(lblCeremony);
    card->content()->addWidget(scroll, 1);
    body()->addWidget(card, 1);

    cmdNext = makeButton(QStringLiteral("cmdNext"), tr("Next"), Glyph::play, ButtonRole::primary, this);
    cmdNext->setDefault(true);
    cmdNext->setAutoDefault(true);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(cmdNext);
    body()->addLayout(row);

    tmrAward = new QTimer(this);
    tmrAward->setObjectName(QStringLiteral("tmrAward"));
    connect(tmrAward, &QTimer::timeout, this, &frmAwardCeremony::revealLine);
    connect(cmdNext, &QPushButton::clicked, this, &frmAwardCeremony::next);
    setFocusProxy(cmdNext);
    beginStep();
}

void frmAwardCeremony::beginStep() {
    lines_ = 0;
    tmrAward->stop();
    const auto& steps = main_.game().showSteps;
    if (step_ >= steps.size()) {
        showLines();
        return;
    }
    revealLine();
    tmrAward->start(revealInterval);
}

void frmAwardCeremony::revealLine() {
    const auto& steps = main_.game().showSteps;
    if (step_ < steps.size() && lines_ < steps[step_].size()) ++lines_;
    if (step_ >= steps.size() || lines_ >= steps[step_].size()) tmrAward->stop();
    showLines();
}

void frmAwardCeremony::showLines() {
    const auto& steps = main_.game().showSteps;
    QStringList shown;
    if (step_ < steps.size())
        for (std::size_t i = 0; i < lines_ && i < steps[step_].size(); ++i)
            shown << QString::fromStdString(steps[step_][i]);
    lblCeremony->setText(shown.join(QStringLiteral("\n\n")));
    bool last = step_ + 1 >= steps.size() && (step_ >= steps.size() || lines_ >= steps[step_].size());
    cmdNext->setText(last ? tr("Back to the News") : tr("Next"));
}

void frmAwardCeremony::next() {
    const auto& steps = main_.game().showSteps;
    if (step_ < steps.size() && lines_ < steps[step_].size()) {
        // The rest of the step at once.
        tmrAward->stop();
        lines_ = steps[step_].size();
        showLines();
        return;
    }
    if (step_ + 1 < steps.size()) {
        ++step_;
        beginStep();
        return;
    }
    tmrAward->stop();
    main_.game().previousScreen = Screen::none;
    main_.openScreen(Screen::frmNews);
}

}  // namespace trovane::screens

#include "screens/loading_screen.h"

#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QRandomGenerator>
#include <QTimer>
#include <QVBoxLayout>

#include "floor/loading_facts.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/screen_page.h"
#include "screens/theme.h"

namespace trovane::screens {

frmLoading::frmLoading(mdiParentForm& main, bool showProgress, QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("frmLoading"));
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(40, 40, 40, 40);
    outer->addStretch(2);

    auto* card = new Card(this);
    card->setMaximumWidth(720);
    card->setMinimumWidth(420);
    card->content()->setContentsMargins(36, 30, 36, 30);
    card->content()->setSpacing(16);

    auto* emblem = new QLabel(card);
    emblem->setPixmap(glyphPixmap(Glyph::record, palette::text, 72, devicePixelRatioF()));
    emblem->setAlignment(Qt::AlignCenter);
    card->content()->addWidget(emblem);
    QLabel* heading = makeSubtitle(showProgress ? tr("Setting the stage...") : tr("The day goes by..."), card);
    heading->setAlignment(Qt::AlignCenter);
    card->content()->addWidget(heading);

    progress_ = new QProgressBar(card);
    progress_->setObjectName(QStringLiteral("prgLoading"));
    progress_->setRange(0, 100);
    progress_->setValue(0);
    progress_->setTextVisible(false);
    progress_->setFixedHeight(12);
    progress_->setVisible(showProgress);
    card->content()->addWidget(progress_);

    // A line of the world's facts, drawn with a die of the screen's own so the game's random stream is untouched.
    std::string line;
    main.guarded([&] { line = loadingFact(main.game(), QRandomGenerator::global()->bounded(1u << 30)); });
    fact_ = makeBody(QString(), card);
    fact_->setObjectName(QStringLiteral("lblFact"));
    fact_->setAlignment(Qt::AlignCenter);
    if (!line.empty()) {
        QLabel* did = makeCaption(tr("Did you know?"), card);
        did->setAlignment(Qt::AlignCenter);
        card->content()->addSpacing(6);
        card->content()->addWidget(did);
        fact_->setText(QString::fromStdString(line));
    }
    fact_->setVisible(!line.empty());
    card->content()->addWidget(fact_);

    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(card, 3);
    row->addStretch(1);
    outer->addLayout(row);
    outer->addStretch(3);

    fallback_ = new QTimer(this);
    fallback_->setSingleShot(true);
    fallback_->setInterval(150);
    connect(fallback_, &QTimer::timeout, this, &frmLoading::runPending);
}

void frmLoading::whenPainted(std::function<void()> work) {
    pending_ = std::move(work);
    fallback_->start();
    update();
}

void frmLoading::setProgress(int percent) {
    progress_->setValue(percent);
    if (progress_->isVisible()) progress_->repaint();
}

void frmLoading::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    painted_ = true;
    // The frame being painted reaches the screen before the queued call runs.
    if (pending_) QTimer::singleShot(0, this, &frmLoading::runPending);
}

void frmLoading::runPending() {
    if (!pending_) return;
    fallback_->stop();
    auto work = std::move(pending_);
    pending_ = nullptr;
    work();
}

}  // namespace trovane::screens

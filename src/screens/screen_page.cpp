#include "screens/screen_page.h"

#include <QDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "screens/glyphs.h"
#include "screens/theme.h"

namespace trovane::screens {

ScreenPage::ScreenPage(mdiParentForm& main, const QString& objectName, const QString& title, QWidget* parent)
    : QWidget(parent), main_(main) {
    setObjectName(objectName);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(32, 24, 32, 24);
    outer->setSpacing(16);

    auto* heading = new QHBoxLayout;
    heading->setSpacing(12);
    auto* titles = new QVBoxLayout;
    titles->setSpacing(2);
    title_ = makeTitle(title, this);
    title_->setObjectName(QStringLiteral("lblTitle"));
    subtitle_ = new QLabel(this);
    subtitle_->setObjectName(QStringLiteral("lblSubtitle"));
    subtitle_->setStyleSheet(QStringLiteral("color: %1;").arg(palette::mutedText.name()));
    subtitle_->hide();
    titles->addWidget(title_);
    titles->addWidget(subtitle_);
    heading->addLayout(titles, 1);
    headingExtras_ = new QHBoxLayout;
    headingExtras_->setSpacing(8);
    heading->addLayout(headingExtras_);
    outer->addLayout(heading);

    body_ = new QVBoxLayout;
    body_->setSpacing(14);
    outer->addLayout(body_, 1);
}

void ScreenPage::setSubtitle(const QString& text) {
    subtitle_->setText(text);
    subtitle_->setVisible(!text.isEmpty());
}

Card::Card(QWidget* parent, const char* role) : QFrame(parent) {
    setProperty("role", role);
    layout_ = new QVBoxLayout(this);
    layout_->setContentsMargins(20, 18, 20, 18);
    layout_->setSpacing(10);
}

FormPage::FormPage(const QString& objectName, const QString& title, const QString& subtitle, QWidget* parent)
    : QWidget(parent) {
    setObjectName(objectName);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(32, 24, 32, 24);
    outer->addStretch(1);
    auto* column = new QVBoxLayout;
    column->setSpacing(14);
    QLabel* t = makeTitle(title, this);
    t->setObjectName(QStringLiteral("lblTitle"));
    column->addWidget(t);
    if (!subtitle.isEmpty()) {
        auto* s = new QLabel(subtitle, this);
        s->setStyleSheet(QStringLiteral("color: %1;").arg(palette::mutedText.name()));
        s->setWordWrap(true);
        column->addWidget(s);
    }
    card_ = new Card(this);
    card_->content()->setContentsMargins(28, 24, 28, 24);
    card_->content()->setSpacing(16);
    column->addWidget(card_);
    buttons_ = new QHBoxLayout;
    buttons_->setSpacing(10);
    buttons_->addStretch(1);
    column->addLayout(buttons_);

    auto* centred = new QHBoxLayout;
    centred->addStretch(1);
    auto* holder = new QWidget(this);
    holder->setLayout(column);
    holder->setMinimumWidth(640);
    holder->setMaximumWidth(860);
    holder->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    centred->addWidget(holder, 8);
    centred->addStretch(1);
    outer->addLayout(centred);
    outer->addStretch(1);
}

QVBoxLayout* FormPage::content() const { return card_->content(); }

void FormPage::paintEvent(QPaintEvent*) { paintStageBackground(this); }

QWidget* captioned(const QString& caption, QWidget* field, QWidget* parent) {
    auto* box = new QWidget(parent);
    auto* l = new QVBoxLayout(box);
    l->setContentsMargins(0, 0, 0, 0);
    l->setSpacing(5);
    QLabel* c = makeCaption(caption, box);
    c->setBuddy(field);
    l->addWidget(c);
    l->addWidget(field);
    return box;
}

QLabel* addFigure(QGridLayout* grid, int row, const QString& caption, const QString& objectName, const QString& value,
                  QWidget* parent, bool keepLines) {
    grid->addWidget(makeCaption(caption, parent), row, 0, Qt::AlignLeft | Qt::AlignTop);
    QLabel* v = makeBody(value, parent);
    v->setObjectName(objectName);
    v->setWordWrap(!keepLines);
    grid->addWidget(v, row, 1);
    return v;
}

QWidget* scrollingFigures(QGridLayout* grid, QWidget* parent) {
    auto* figures = new QWidget;
    grid->setContentsMargins(0, 0, 12, 0);     // room for the scroll bar
    grid->setRowStretch(grid->rowCount(), 1);  // the rows keep their height; the space is left below
    figures->setLayout(grid);
    auto* area = new QScrollArea(parent);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->viewport()->setAutoFillBackground(false);
    figures->setAutoFillBackground(false);
    area->setWidget(figures);
    return area;
}

QString figureLines(const std::vector<std::pair<QString, QString>>& pairs, int perLine) {
    QString text;
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        if (i > 0) text += i % static_cast<std::size_t>(perLine) == 0 ? QStringLiteral("\n") : QStringLiteral("   ");
        text += pairs[i].first + QLatin1Char(' ') + pairs[i].second;
    }
    return text;
}

QPushButton* addOkRow(QDialog* dialog, QVBoxLayout* layout) {
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    QPushButton* ok = makeButton(QStringLiteral("cmdOk"), QObject::tr("Ok"), Glyph::ok, ButtonRole::primary, dialog);
    ok->setDefault(true);
    row->addWidget(ok);
    layout->addLayout(row);
    QObject::connect(ok, &QPushButton::clicked, dialog, &QDialog::accept);
    return ok;
}

}  // namespace trovane::screens

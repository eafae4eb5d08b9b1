#include "screens/status_bar.h"

#include <QHBoxLayout>
#include <QLabel>

#include "day/daily_cycle.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"

namespace trovane::screens {

namespace {

// A figure with its glyph in front.
QLabel* field(QHBoxLayout* row, QWidget* parent, const char* name, Glyph glyph, const QColor& tint) {
    auto* icon = new QLabel(parent);
    icon->setPixmap(glyphPixmap(glyph, tint, 20, parent->devicePixelRatioF()));
    auto* text = new QLabel(parent);
    text->setObjectName(QString::fromLatin1(name));
    text->setProperty("role", "figure");
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    row->addWidget(icon);
    row->addSpacing(2);
    row->addWidget(text);
    return text;
}

}  // namespace

frmStatusBar::frmStatusBar(mdiParentForm& main, QWidget* parent) : QFrame(parent), main_(main) {
    setObjectName(QStringLiteral("frmStatusBar"));
    setFixedHeight(56);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(28, 0, 28, 0);
    row->setSpacing(8);
    lblDate = field(row, this, "lblDate", Glyph::calendar, palette::teal);
    row->addSpacing(28);
    lblCash = field(row, this, "lblCash", Glyph::coins, palette::accent);
    row->addStretch(1);
    lblCompany = field(row, this, "lblCompany", Glyph::label, palette::mutedText);
    row->addSpacing(28);
    lblName = field(row, this, "lblName", Glyph::person, palette::mutedText);
}

void frmStatusBar::initialise() {
    display();
    show();
}

void frmStatusBar::display() {
    StatusBarTexts t;
    if (!main_.guarded([&] { t = statusBarTexts(main_.game()); })) return;
    lblDate->setText(QString::fromStdString(t.date).trimmed());
    lblCash->setText(QString::fromStdString(t.cash));
    lblCompany->setText(QString::fromStdString(t.company));
    lblName->setText(QString::fromStdString(t.name));
}

}  // namespace trovane::screens

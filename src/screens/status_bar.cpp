#include "screens/status_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "day/daily_cycle.h"
#include "screens/glyphs.h"
#include "screens/mdi_parent_form.h"
#include "screens/theme.h"

namespace trovane::screens {

namespace {

// A figure with its glyph in front.
QLabel* field(QHBoxLayout* row, QWidget* parent, const char* name, Glyph glyph, const QColor& tint, int size = 20) {
    auto* icon = new QLabel(parent);
    icon->setPixmap(glyphPixmap(glyph, tint, size, parent->devicePixelRatioF()));
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
    row->setContentsMargins(20, 0, 20, 0);
    row->setSpacing(8);
    lblDate = field(row, this, "lblDate", Glyph::calendar, palette::teal);
    row->addSpacing(20);
    lblCash = field(row, this, "lblCash", Glyph::coins, palette::accent);
    row->addStretch(1);
    // The label and the player stand one over the other, so that long names fit a narrow window.
    auto* who = new QVBoxLayout;
    who->setSpacing(0);
    who->setContentsMargins(0, 4, 0, 4);
    auto* companyRow = new QHBoxLayout;
    auto* nameRow = new QHBoxLayout;
    for (QHBoxLayout* r : {companyRow, nameRow}) {
        r->setSpacing(6);
        r->addStretch(1);
        who->addLayout(r);
    }
    lblCompany = field(companyRow, this, "lblCompany", Glyph::label, palette::mutedText, 16);
    lblName = field(nameRow, this, "lblName", Glyph::person, palette::mutedText, 16);
    lblCompany->setProperty("role", "figureSmall");
    lblName->setProperty("role", "captionFigure");
    row->addLayout(who);
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

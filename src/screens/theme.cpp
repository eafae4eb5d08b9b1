#include "screens/theme.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QPalette>
#include <QPushButton>
#include <QRadialGradient>
#include <QStyleFactory>

#include "screens/glyphs.h"

namespace trovane::screens {

namespace {

QString hex(const QColor& c) { return c.name(QColor::HexRgb); }

QString styleSheet() {
    QString s = QStringLiteral(R"(
QWidget { color: %text; }
QMainWindow, QDialog, QWidget#shell, QWidget#startArea { background: %window; }
QToolTip { color: %text; background: %raised; border: 1px solid %border; padding: 4px; }

QLabel[role="title"] { font-size: 20pt; font-weight: 600; }
QLabel[role="subtitle"] { font-size: 13pt; font-weight: 600; color: %text; }
QLabel[role="caption"] { color: %muted; font-size: 9.5pt; font-weight: 600; }
QLabel[role="body"] { font-size: 11.5pt; }
QLabel[role="figure"] { font-size: 12pt; font-weight: 600; }
QLabel[role="figureSmall"] { font-size: 10.5pt; font-weight: 600; }
QLabel[role="captionFigure"] { font-size: 10pt; color: %muted; }
QLabel[role="refusal"] { color: %danger; font-size: 10pt; font-weight: 600; }

QFrame[role="card"] { background: %surface; border: 1px solid %border; border-radius: 10px; }
QFrame[role="panel"] { background: %raised; border: 1px solid #56607e; border-radius: 10px; }
QFrame#frmStatusBar { background: %sidebar; border-bottom: 1px solid %border; }
QFrame#frmSideBar { background: %sidebar; border-right: 1px solid %border; }

QPushButton {
    background: %raised; color: %text; border: 1px solid %border; border-radius: 8px;
    padding: 7px 16px; font-weight: 600; min-height: 22px;
}
QPushButton:hover { background: #38405a; border-color: #4f5a78; }
QPushButton:pressed { background: #283046; }
QPushButton:focus { border: 2px solid %teal; }
QPushButton:disabled { color: %disabled; background: %surface; border-color: #2c3244; }
QPushButton[role="primary"] { background: %accent; color: %accentText; border: 1px solid %accent; }
QPushButton[role="primary"]:hover { background: #f7bb5c; }
QPushButton[role="primary"]:pressed { background: #d9932b; }
QPushButton[role="primary"]:focus { border: 2px solid %text; }
QPushButton[role="primary"]:disabled { background: #5b4a33; color: #9a8a72; border-color: #5b4a33; }
QPushButton[role="danger"] { color: %danger; }
QPushButton[role="danger"]:disabled { color: %disabled; }
QPushButton[role="sidebar"] {
    background: transparent; border: 1px solid transparent; border-radius: 8px; text-align: left;
    padding: 8px 12px; font-size: 11pt;
}
QPushButton[role="sidebar"]:hover { background: %surface; }
QPushButton[role="sidebar"]:checked { background: %raised; border-color: %border; }
QPushButton[role="sidebar"]:focus { border: 2px solid %teal; }
QPushButton[role="sidebar"]:disabled { color: %disabled; }
QPushButton#btnContinueGame { background: %accent; color: %accentText; font-size: 12pt; padding: 11px 12px; }
QPushButton#btnContinueGame:hover { background: #f7bb5c; }
QPushButton#btnContinueGame:focus { border: 2px solid %text; }
QPushButton#btnContinueGame:disabled { background: #4a3f31; color: #8c7d68; }
QPushButton[role="panelEntry"] {
    background: transparent; border: 1px solid transparent; border-radius: 6px; text-align: left;
    padding: 6px 10px; font-weight: 500;
}
QPushButton[role="panelEntry"]:hover { background: %surface; }
QPushButton[role="panelEntry"]:focus { border: 2px solid %teal; }
QPushButton[role="panelEntry"]:disabled { color: %disabled; }

QPushButton[role="dayCell"] { background: %surface; border-radius: 8px; padding: 0; min-height: 56px; min-width: 128px; }
QPushButton[role="dayCell"]:hover { background: #38405a; }
QPushButton[role="dayCell"][busy="true"] { background: #342e26; border-color: #5e4c2e; }
QPushButton[role="dayCell"][busy="true"]:hover { background: #342e26; }

QLineEdit, QComboBox {
    background: %surface; border: 1px solid %border; border-radius: 6px; padding: 6px 8px;
    selection-background-color: %selection; min-height: 20px;
}
QLineEdit:focus, QComboBox:focus { border: 2px solid %teal; }
QComboBox::drop-down { subcontrol-origin: padding; subcontrol-position: center right; width: 26px; border: none; }
QComboBox QAbstractItemView { background: %surface; border: 1px solid %border; selection-background-color: %selection; }
QRadioButton { spacing: 8px; padding: 3px 0; }
QRadioButton:focus { color: %accent; }
QRadioButton::indicator { width: 12px; height: 12px; border-radius: 8px; border: 2px solid %border; background: %surface; }
QRadioButton::indicator:hover { border-color: %muted; }
QRadioButton::indicator:checked {
    border-color: %accent;
    background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5, fx: 0.5, fy: 0.5, stop: 0 %accent, stop: 0.5 %accent,
                                stop: 0.62 %surface, stop: 1 %surface);
}

QTableView, QListWidget, QListView {
    background: %surface; alternate-background-color: #283044; border: 1px solid %border; border-radius: 8px;
    gridline-color: transparent; selection-background-color: %selection; selection-color: %text; outline: 0;
}
QListWidget::item { padding: 4px 6px; }
QTableView:focus, QListWidget:focus { border: 1px solid %teal; }
QHeaderView::section {
    background: %raised; color: %muted; border: none; border-bottom: 1px solid %border; padding: 7px 4px;
    font-weight: 600;
}
QHeaderView::section:hover { color: %text; }
QTableCornerButton::section { background: %raised; border: none; }

QProgressBar { background: %surface; border: 1px solid %border; border-radius: 6px; text-align: center; }
QProgressBar::chunk { background: %accent; border-radius: 5px; }
QScrollArea { background: transparent; border: none; }
QScrollArea > QWidget > QWidget { background: transparent; }
QScrollBar:vertical { background: transparent; width: 12px; margin: 2px; }
QScrollBar::handle:vertical { background: %border; border-radius: 4px; min-height: 30px; }
QScrollBar::add-line, QScrollBar::sub-line { height: 0; width: 0; }
QMessageBox QLabel { font-size: 11pt; }
)");
    s.replace(QStringLiteral("%window"), hex(palette::window));
    s.replace(QStringLiteral("%sidebar"), hex(palette::sidebar));
    s.replace(QStringLiteral("%surface"), hex(palette::surface));
    s.replace(QStringLiteral("%raised"), hex(palette::surfaceRaised));
    s.replace(QStringLiteral("%border"), hex(palette::border));
    s.replace(QStringLiteral("%text"), hex(palette::text));
    s.replace(QStringLiteral("%muted"), hex(palette::mutedText));
    s.replace(QStringLiteral("%disabled"), hex(palette::disabledText));
    s.replace(QStringLiteral("%accentText"), hex(palette::accentText));
    s.replace(QStringLiteral("%accent"), hex(palette::accent));
    s.replace(QStringLiteral("%teal"), hex(palette::teal));
    s.replace(QStringLiteral("%danger"), hex(palette::danger));
    s.replace(QStringLiteral("%selection"), hex(palette::selection));
    return s;
}

const char* roleName(ButtonRole role) {
    switch (role) {
    case ButtonRole::primary: return "primary";
    case ButtonRole::danger: return "danger";
    case ButtonRole::sidebar: return "sidebar";
    case ButtonRole::panelEntry: return "panelEntry";
    case ButtonRole::secondary: break;
    }
    return "secondary";
}

QLabel* roleLabel(const QString& text, const char* role, QWidget* parent) {
    auto* l = new QLabel(text, parent);
    l->setProperty("role", role);
    return l;
}

}  // namespace

void applyTheme(QApplication& app) {
    app.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette p;
    p.setColor(QPalette::Window, palette::window);
    p.setColor(QPalette::WindowText, palette::text);
    p.setColor(QPalette::Base, palette::surface);
    p.setColor(QPalette::AlternateBase, palette::surfaceRaised);
    p.setColor(QPalette::Text, palette::text);
    p.setColor(QPalette::Button, palette::surfaceRaised);
    p.setColor(QPalette::ButtonText, palette::text);
    p.setColor(QPalette::Highlight, palette::selection);
    p.setColor(QPalette::HighlightedText, palette::text);
    p.setColor(QPalette::ToolTipBase, palette::surfaceRaised);
    p.setColor(QPalette::ToolTipText, palette::text);
    p.setColor(QPalette::PlaceholderText, palette::mutedText);
    p.setColor(QPalette::Link, palette::teal);
    p.setColor(QPalette::Disabled, QPalette::WindowText, palette::disabledText);
    p.setColor(QPalette::Disabled, QPalette::Text, palette::disabledText);
    p.setColor(QPalette::Disabled, QPalette::ButtonText, palette::disabledText);
    app.setPalette(p);
    // Fusion outlines a check box in the window colour darkened, which on this
    // dark window all but hides an unticked box: check boxes outline theirs
    // from the muted text colour instead.
    QPalette boxes = p;
    boxes.setColor(QPalette::Window, palette::mutedText);
    app.setPalette(boxes, "QCheckBox");
    QFont f = app.font();
    if (f.pointSizeF() < 10.5) f.setPointSizeF(10.5);
    app.setFont(f);
    app.setStyleSheet(styleSheet());
    app.setWindowIcon(glyphIcon(Glyph::record, palette::accent));
}

QPushButton* makeButton(const QString& objectName, const QString& caption, Glyph glyph, ButtonRole role,
                        QWidget* parent) {
    auto* b = new QPushButton(caption, parent);
    b->setObjectName(objectName);
    b->setProperty("role", roleName(role));
    QColor ink = role == ButtonRole::primary ? palette::accentText : palette::text;
    if (role == ButtonRole::danger) ink = palette::danger;
    if (objectName == QLatin1String("btnContinueGame")) ink = palette::accentText;
    b->setIcon(glyphIcon(glyph, ink));
    b->setIconSize(QSize(role == ButtonRole::sidebar ? 20 : 18, role == ButtonRole::sidebar ? 20 : 18));
    b->setCursor(Qt::PointingHandCursor);
    b->setAutoDefault(false);
    return b;
}

void ComboBox::paintEvent(QPaintEvent* event) {
    QComboBox::paintEvent(event);
    QPainter p(this);
    const int side = 16;
    QColor ink = isEnabled() ? palette::mutedText : palette::disabledText;
    p.drawPixmap(width() - side - 9, (height() - side) / 2,
                 glyphPixmap(Glyph::chevron, ink, side, devicePixelRatioF()));
}

void paintStageBackground(QWidget* w) {
    QPainter p(w);
    p.fillRect(w->rect(), palette::window);
    QPointF centre(w->width() / 2.0, w->height() * 0.38);
    QRadialGradient glow(centre, qMax(w->width(), w->height()) * 0.55);
    QColor warm = palette::accent;
    warm.setAlpha(46);
    glow.setColorAt(0, warm);
    glow.setColorAt(1, Qt::transparent);
    p.fillRect(w->rect(), glow);
}

QLabel* makeTitle(const QString& text, QWidget* parent) { return roleLabel(text, "title", parent); }
QLabel* makeSubtitle(const QString& text, QWidget* parent) { return roleLabel(text, "subtitle", parent); }
QLabel* makeCaption(const QString& text, QWidget* parent) { return roleLabel(text.toUpper(), "caption", parent); }

QLabel* makeBody(const QString& text, QWidget* parent) {
    auto* l = roleLabel(text, "body", parent);
    l->setWordWrap(true);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return l;
}

}  // namespace trovane::screens

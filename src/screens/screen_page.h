#pragma once
// What every screen of the game is built from: a page with a heading, and
// cards that group its controls.
#include <QFrame>
#include <QWidget>
#include <utility>
#include <vector>

class QDialog;
class QGridLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;
class QHBoxLayout;

namespace trovane::screens {

class mdiParentForm;

// A main screen: a heading with an optional line under it, then the body.
class ScreenPage : public QWidget {
    Q_OBJECT
public:
    ScreenPage(mdiParentForm& main, const QString& objectName, const QString& title, QWidget* parent = nullptr);

    QVBoxLayout* body() const { return body_; }
    // Buttons or figures at the right of the heading.
    QHBoxLayout* headingExtras() const { return headingExtras_; }
    QLabel* titleLabel() const { return title_; }
    void setSubtitle(const QString& text);

protected:
    mdiParentForm& main_;

private:
    QLabel* title_;
    QLabel* subtitle_;
    QHBoxLayout* headingExtras_;
    QVBoxLayout* body_;
};

// A rounded surface that groups controls.
class Card : public QFrame {
    Q_OBJECT
public:
    explicit Card(QWidget* parent = nullptr, const char* role = "card");
    QVBoxLayout* content() const { return layout_; }

private:
    QVBoxLayout* layout_;
};

// A figure with its caption in row `row` of a grid of two columns; returns the
// value's label. The value wraps, unless `keepLines`: then its lines stand as
// given and the row always takes the height of them all.
QLabel* addFigure(QGridLayout* grid, int row, const QString& caption, const QString& objectName, const QString& value,
                  QWidget* parent, bool keepLines = false);

// The grid of figures in a frameless area that scrolls when the window is too
// short to show them all, so no row is ever cut.
QWidget* scrollingFigures(QGridLayout* grid, QWidget* parent);

// "Caption value" pairs, `perLine` to a line.
QString figureLines(const std::vector<std::pair<QString, QString>>& pairs, int perLine);

// Closes a dialog's layout with a row holding one "Ok" button on the right,
// which accepts the dialog; returns the button (cmdOk).
QPushButton* addOkRow(QDialog* dialog, QVBoxLayout* layout);

// A form outside the running game (the new-game steps): a heading over one
// card in the middle of the window, and its buttons under the card.
class FormPage : public QWidget {
    Q_OBJECT
public:
    FormPage(const QString& objectName, const QString& title, const QString& subtitle, QWidget* parent = nullptr);
    QVBoxLayout* content() const;
    QHBoxLayout* buttons() const { return buttons_; }
    Card* card() const { return card_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Card* card_;
    QHBoxLayout* buttons_;
};

// A small caption over a control or a figure.
QWidget* captioned(const QString& caption, QWidget* field, QWidget* parent = nullptr);

}  // namespace trovane::screens

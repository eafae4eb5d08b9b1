#pragma once
// The game's look: one palette, one style sheet, one set of type sizes.
#include <QColor>
#include <QComboBox>
#include <QString>

class QApplication;
class QLabel;
class QPushButton;
class QWidget;

namespace trovane::screens {

enum class Glyph;

namespace palette {
// A night-time studio: deep slate surfaces, warm amber for what matters most.
inline constexpr QColor window{0x1b, 0x1f, 0x2b};
inline constexpr QColor sidebar{0x13, 0x16, 0x20};
inline constexpr QColor surface{0x24, 0x29, 0x38};
inline constexpr QColor surfaceRaised{0x2e, 0x34, 0x46};
inline constexpr QColor border{0x3b, 0x43, 0x5a};
inline constexpr QColor text{0xec, 0xef, 0xf4};
inline constexpr QColor mutedText{0xa4, 0xad, 0xc2};
inline constexpr QColor disabledText{0x62, 0x69, 0x7c};
inline constexpr QColor accent{0xf2, 0xa9, 0x3b};
inline constexpr QColor accentText{0x1b, 0x1f, 0x2b};
inline constexpr QColor teal{0x4f, 0xc1, 0xb0};
inline constexpr QColor danger{0xe0, 0x6c, 0x75};
inline constexpr QColor selection{0x3d, 0x5a, 0x80};
}  // namespace palette

// Fusion with the game's palette, type and style sheet, for the whole program.
void applyTheme(QApplication& app);

// The kinds of button of the game; the style sheet keys on them.
enum class ButtonRole { primary, secondary, danger, sidebar, panelEntry };

// A button of the game with its control name, caption, drawn icon and role.
QPushButton* makeButton(const QString& objectName, const QString& caption, Glyph glyph,
                        ButtonRole role = ButtonRole::secondary, QWidget* parent = nullptr);

// The background of the screens outside a game: the window colour with a warm glow.
void paintStageBackground(QWidget* widget);

// A drop-down list with the game's own arrow.
class ComboBox : public QComboBox {
    Q_OBJECT
public:
    explicit ComboBox(QWidget* parent = nullptr) : QComboBox(parent) {}

protected:
    void paintEvent(QPaintEvent* event) override;
};

// Labels in the game's type scale.
QLabel* makeTitle(const QString& text, QWidget* parent = nullptr);
QLabel* makeSubtitle(const QString& text, QWidget* parent = nullptr);
QLabel* makeCaption(const QString& text, QWidget* parent = nullptr);
QLabel* makeBody(const QString& text, QWidget* parent = nullptr);

}  // namespace trovane::screens

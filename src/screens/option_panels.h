#pragma once
// The small option panels that open beside the sidebar. Each is a column of
// entries; an entry whose screen the game does not have yet is shown but
// does nothing.
#include <QFrame>
#include <functional>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace trovane::screens {

class mdiParentForm;
enum class Glyph;

class OptionPanel : public QFrame {
    Q_OBJECT
public:
    OptionPanel(const QString& objectName, const QString& heading, QWidget* parent);

    // An entry that runs `action`; without one the entry is there but inert.
    QPushButton* addEntry(const QString& objectName, const QString& caption, Glyph glyph,
                          std::function<void()> action = {});
    QPushButton* entry(const QString& objectName) const;
    // Gives the keyboard to the first entry that can be used.
    void focusFirstEntry();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QVBoxLayout* entries_;
    QLabel* inertNote_;
};

// The lists of the game's world: acts, staff, labels, venues, firms, awards...
class frmFindOptions : public OptionPanel {
    Q_OBJECT
public:
    frmFindOptions(mdiParentForm& main, QWidget* parent);
};

// The eight charts.
class frmChartOptions : public OptionPanel {
    Q_OBJECT
public:
    frmChartOptions(mdiParentForm& main, QWidget* parent);
};

// Saving, loading, the currency, the hall of fame, birthdays, credits, disclaimer.
class frmGameOptions : public OptionPanel {
    Q_OBJECT
public:
    frmGameOptions(mdiParentForm& main, QWidget* parent);
};

class frmQuitOptions : public OptionPanel {
    Q_OBJECT
public:
    frmQuitOptions(mdiParentForm& main, QWidget* parent);
};

}  // namespace trovane::screens

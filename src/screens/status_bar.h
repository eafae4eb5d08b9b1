#pragma once
// The status bar over the main screen: the date, the cash in the chosen
// currency, the label and the player.
#include <QFrame>

class QLabel;

namespace trovane::screens {

class mdiParentForm;

class frmStatusBar : public QFrame {
    Q_OBJECT
public:
    explicit frmStatusBar(mdiParentForm& main, QWidget* parent = nullptr);

    QLabel* lblDate;
    QLabel* lblCash;
    QLabel* lblCompany;
    QLabel* lblName;

    // Shows the bar with its texts up to date.
    void initialise();
    // Redraws the four texts from the game.
    void display();

private:
    mdiParentForm& main_;
};

}  // namespace trovane::screens

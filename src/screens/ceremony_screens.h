#pragma once
// The ceremony night as the player watches it, line by line.
#include <cstddef>

#include "screens/screen_page.h"

class QLabel;
class QPushButton;
class QTimer;

namespace trovane::screens {

// frmAwardCeremony: the night's steps; tmrAward reveals a step's lines one
// by one, cmdNext completes a step or goes on to the next, and the press after
// the last step returns to the news.
class frmAwardCeremony : public ScreenPage {
    Q_OBJECT
public:
    explicit frmAwardCeremony(mdiParentForm& main);

    // Milliseconds between two lines; the screen tests set 0.
    static int revealInterval;

    QLabel* lblCeremony;
    QPushButton* cmdNext;
    QTimer* tmrAward;

    std::size_t stepShown() const { return step_; }
    std::size_t linesShown() const { return lines_; }
    void next();

private:
    void beginStep();
    void revealLine();
    void showLines();

    std::size_t step_ = 0;
    std::size_t lines_ = 0;
};

}  // namespace trovane::screens

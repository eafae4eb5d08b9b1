#pragma once
// frmBandOptionDecision: whether to take up the next option of a band whose
// option has ended, or let it go.
#include "screens/screen_page.h"

class QLabel;
class QPushButton;

namespace trovane::screens {

class frmBandOptionDecision : public ScreenPage {
    Q_OBJECT
public:
    // For the band of the ended-option entry in the schedule buffer.
    explicit frmBandOptionDecision(mdiParentForm& main);
    QLabel* lblText;
    QPushButton* cmdYes;
    QPushButton* cmdNo;

private:
    void decide(bool extend);
};

}  // namespace trovane::screens

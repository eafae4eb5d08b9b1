#pragma once
// Find's award ceremonies in detail: a ceremony's night, host country and
// awards, and the nominees, scores and winners of the last night it held.
#include "events/ceremony_details.h"
#include "screens/screen_page.h"

class QLabel;
class QPushButton;
class QTableWidget;

namespace trovane::screens {

// What both ceremony screens share: Back and Escape return the way they came.
class CeremonyPage : public ScreenPage {
    Q_OBJECT
public:
    CeremonyPage(mdiParentForm& main, const QString& objectName, int16_t ceremony);
    const CeremonyDetails& details() const { return details_; }
    QPushButton* cmdBack;

protected:
    bool event(QEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    virtual void goBack() = 0;
    CeremonyDetails details_;
};

// frmCeremonyDetails: the night, the country and the awards; cmdLastYear
// opens frmHistoricalCeremonyDetails of the same ceremony.
class frmCeremonyDetails : public CeremonyPage {
    Q_OBJECT
public:
    frmCeremonyDetails(mdiParentForm& main, int16_t ceremony);
    QLabel* lblNight;
    QLabel* lblCountry;
    QLabel* lblInvitation;
    QLabel* lblLastHeld;
    QTableWidget* flxAwards;
    QPushButton* cmdLastYear;

protected:
    void goBack() override;
};

// frmHistoricalCeremonyDetails: each award of the last night held with its
// nominees, their scores and the winner; a ceremony never held says so.
class frmHistoricalCeremonyDetails : public CeremonyPage {
    Q_OBJECT
public:
    frmHistoricalCeremonyDetails(mdiParentForm& main, int16_t ceremony);
    QLabel* lblNotHeld = nullptr;         // never held only
    QTableWidget* flxNominees = nullptr;  // held only

protected:
    void goBack() override;
};

}  // namespace trovane::screens

#pragma once
// The staff screens: Find's list of staff, a person's details, the options
// on a person (terminate, withdraw, approach) and the contract form.
#include <QDialog>
#include <array>

#include "label/label_details.h"
#include "screens/screen_page.h"

class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;
class QWidget;

namespace trovane::screens {

class OptionPanel;

class frmStaffDetails : public ScreenPage {
    Q_OBJECT
public:
    frmStaffDetails(mdiParentForm& main, int16_t staff);
    const StaffDetails& details() const { return details_; }

private:
    StaffDetails details_;
};

// The panel cmdExtra opens on frmStaffDetails: frmStaffOptionsSigned,
// frmStaffOptionsApproached or frmStaffOptionsUnsigned by the person's state;
// none on the player's own record.
OptionPanel* makeStaffOptions(mdiParentForm& main, QWidget* host, int16_t staff);

class frmStaffContract : public QDialog {
    Q_OBJECT
public:
    frmStaffContract(mdiParentForm& main, int16_t staff);

    QLabel* lblDemands;
    QLabel* lblWageR;
    QPushButton* cmdWageInc;
    QPushButton* cmdWageDec;
    QLabel* lblLengthR;
    QPushButton* cmdLengthInc;
    QPushButton* cmdLengthDec;
    QComboBox* cmbRole;
    QPushButton* cmdOk;
    QPushButton* cmdCancel;

private:
    void showTerms();
    void offer();

    mdiParentForm& main_;
    int16_t staff_;
    int32_t wage_ = 0;  // display currency, whole units
    int years_ = 3;
};

}  // namespace trovane::screens

#pragma once
// frmLabelDetails: a label's standing, its books and its departments. The
// player's own label may change its departments' staff; another label's is
// shown the same way, locked.
#include <array>

#include "label/label_details.h"
#include "screens/screen_page.h"

class QLabel;
class QListWidget;
class QPushButton;
class QSlider;
class QTabWidget;
class QTableWidget;

namespace trovane::screens {

class frmLabelDetails : public ScreenPage {
    Q_OBJECT
public:
    frmLabelDetails(mdiParentForm& main, int16_t label);

    QTabWidget* tabs;
    // Details
    QLabel* lblLabelPointsR;
    std::array<QLabel*, 5> lblReputationR;  // lblUkReputationR ... lblGlobalReputationR
    QLabel* lblFormedR;
    QLabel* lblBossR;
    QLabel* lblGenreR;
    QLabel* lblIndependenceR;
    QLabel* lblBandsR;
    QLabel* lblSalesR;
    QLabel* lblChartsR;
    // Finances
    QTableWidget* flxBalanceSheet;
    QTableWidget* flxHistory;
    QWidget* chtCash;
    // Departments
    QListWidget* lstDepartments;
    std::array<QSlider*, 5> sldNoOfEachAbility;
    std::array<QLabel*, 5> lblNoOfEachAbility;
    QLabel* lblQualityR;
    QLabel* lblDepartmentBossR;
    QLabel* lblWageBillR;
    QPushButton* cmdHireFire;

    bool slidersUnlocked() const { return unlocked_; }

private:
    QWidget* detailsTab();
    QWidget* financesTab();
    QWidget* departmentsTab();
    void fill();
    void showDepartment(int d);
    void hireFire();

    int16_t label_;
    LabelDetails details_;
    bool unlocked_ = false;
};

}  // namespace trovane::screens

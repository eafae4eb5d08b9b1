#pragma once
// Firms on screen: choosing a studio for a disc, a firm's details, building
// a firm, and the list of the label's own facilities.
#include <QDialog>
#include <QWidget>

#include "screens/album_screens.h"
#include "screens/screen_page.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace trovane {
class Game;
}

namespace trovane::screens {

class mdiParentForm;

// A firm's particulars, for the row chosen in a list of firms.
class frmBusinessDetails : public Card {
    Q_OBJECT
public:
    explicit frmBusinessDetails(QWidget* parent);
    // Shows firm `firm`; the cost line is for `sessions` studio days (0: no cost line).
    void showFirm(Game& g, int16_t firm, int sessions);
    QLabel* lblName;
    QLabel* lblCity;
    QLabel* lblQuality;
    QLabel* lblOwner;
    QLabel* lblRunningCost;
    QLabel* lblCost;
};

// A firm's particulars over the screen, for a row of the firms' list.
class frmFirmCard : public QDialog {
    Q_OBJECT
public:
    frmFirmCard(Game& g, int16_t firm, QWidget* parent);
    frmBusinessDetails* details;
    QPushButton* cmdOk;
};

// frmChooseStudio for the studio of a disc.
class frmChooseStudio : public AlbumDialog {
    Q_OBJECT
public:
    frmChooseStudio(mdiParentForm& main, int16_t disc);
    QLabel* lblText;
    QTableWidget* flxBusinesses;
    frmBusinessDetails* details;
    QPushButton* cmdChoose;
    QPushButton* cmdCancel;
    // The firm of the selected row, or 0.
    int16_t selectedFirm() const;

private:
    int16_t disc_;
};

class frmBuildNewFacility : public AlbumDialog {
    Q_OBJECT
public:
    frmBuildNewFacility(mdiParentForm& main, int kind);
    QLineEdit* txtName;
    QLabel* lblQuality;
    QPushButton* cmdQualityDown;
    QPushButton* cmdQualityUp;
    QComboBox* cmbCountry;
    QComboBox* cmbCity;
    QLabel* lblCost;
    QLabel* lblRunningCost;
    QPushButton* cmdConfirm;
    QPushButton* cmdCancel;
    int quality() const { return quality_; }

signals:
    void built(int16_t firm);

private:
    void fillCities();
    void stepQuality(int by);
    void showCosts();
    int kind_;
    int quality_ = 50;
};

// The label's own facilities (cmbFacilities, flxBusinesses, cmdBuild), for the label's details.
class LabelFacilities : public QWidget {
    Q_OBJECT
public:
    LabelFacilities(mdiParentForm& main, QWidget* parent = nullptr);
    QComboBox* cmbFacilities;
    QTableWidget* flxBusinesses;
    QPushButton* cmdBuild;
    void refresh();

private:
    mdiParentForm& main_;
};

}  // namespace trovane::screens

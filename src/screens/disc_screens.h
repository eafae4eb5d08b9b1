#pragma once
// A disc: its details and run, and the forms that date, press and ship it.
#include <QDialog>
#include <array>
#include <cstdint>

#include "screens/screen_page.h"

class QCheckBox;
class QChartView;
class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;

namespace trovane {
class Game;
}

namespace trovane::screens {

class frmDiscDetails : public ScreenPage {
    Q_OBJECT
public:
    frmDiscDetails(mdiParentForm& main, int16_t disc, QWidget* parent = nullptr);
    QTableWidget* flxTracks;
    QTableWidget* flxTerritories;
    QChartView* chrtRun;
    QPushButton* cmdExtra;
    void refresh();

private:
    int16_t disc_;
};

// The disc's options: set the release date, press again.
class frmDiscOptions : public QDialog {
    Q_OBJECT
public:
    frmDiscOptions(Game& g, int16_t disc, QWidget* parent = nullptr);
    QPushButton* lblSetReleaseDate;
    QPushButton* lblPressDiscs;
};

class frmSetReleaseDate : public QDialog {
    Q_OBJECT
public:
    frmSetReleaseDate(Game& g, int16_t disc, QWidget* parent = nullptr);
    std::array<QCheckBox*, 5> chkTerritories{};
    std::array<QComboBox*, 5> cmbDay{}, cmbMonth{}, cmbYear{};
    QPushButton* cmdConfirm;
    QPushButton* cmdCancel;
    QLabel* lblRefusal;
    // The date a territory's lists show, or 0 when it has none.
    double chosenDate(int t) const;

private:
    void fillMonths(int t);
    void fillDays(int t);
    void confirm();
    Game& g_;
    int16_t disc_;
};

class frmPressDiscs : public QDialog {
    Q_OBJECT
public:
    frmPressDiscs(Game& g, int16_t disc, QWidget* parent = nullptr);
    QLabel* lblForecast;
    std::array<QComboBox*, 5> cmbQuantities{};
    std::array<QPushButton*, 5> cmdQuantitiesInc{}, cmdQuantitiesDec{};
    QComboBox* cmbPlant;
    QLabel* lblCost;
    QPushButton* cmdConfirm;
    QLabel* lblRefusal;

private:
    std::array<int32_t, 5> copies() const;
    void updateCost();
    void confirm();
    Game& g_;
    int16_t disc_;
};

class frmChooseDistributor : public QDialog {
    Q_OBJECT
public:
    frmChooseDistributor(Game& g, int16_t disc, QWidget* parent = nullptr);
    std::array<QComboBox*, 5> cmbFirm{};  // null where the disc is not out within the week
    std::array<QPushButton*, 5> cmdChange{};
    QPushButton* cmdConfirm;
    QLabel* lblRefusal;

private:
    void confirm();
    Game& g_;
    int16_t disc_;
};

}  // namespace trovane::screens

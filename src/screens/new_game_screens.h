#pragma once
// A new game: who the player is, then a label of their own or one taken over.
#include <vector>

#include "screens/screen_page.h"
#include "session/new_game.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTableWidget;

namespace trovane::screens {

class mdiParentForm;

class frmStartNewGame : public FormPage {
    Q_OBJECT
public:
    explicit frmStartNewGame(mdiParentForm& main, QWidget* parent = nullptr);

    QLineEdit* txtName;
    QLineEdit* txtSurname;
    QRadioButton* optGender[2];  // 0 male, 1 female
    QComboBox* cmbDay;
    QComboBox* cmbMonth;
    QComboBox* cmbYear;
    QComboBox* cmbNationality;
    QRadioButton* optCreateNew[2];  // 0 "Create A New Label", 1 "Manage Existing Label"
    QPushButton* cmdOk;
    QPushButton* cmdCancel;

    PlayerChoices choices() const;

private:
    void refillDays();
    mdiParentForm& main_;
};

class frmCreateNewLabel : public FormPage {
    Q_OBJECT
public:
    frmCreateNewLabel(mdiParentForm& main, NewPlayer player, QWidget* parent = nullptr);

    QLineEdit* txtName;
    QComboBox* cmbContinent;
    QComboBox* cmbNationality;
    QComboBox* cmbCity;
    QComboBox* cmbStyle;
    QPushButton* cmdOk;
    QPushButton* cmdCancel;

    LabelChoices choices() const;

private:
    void refillCountries(const QString& wanted);
    void refillCities(const QString& wanted);
    mdiParentForm& main_;
};

class frmManageExistingLabel : public FormPage {
    Q_OBJECT
public:
    frmManageExistingLabel(mdiParentForm& main, NewPlayer player, QWidget* parent = nullptr);

    QListWidget* lstLabel;
    QTableWidget* flxBands;
    QLabel* picLogo;
    QLabel* lblCash;
    QLabel* lblReputation[5];
    QPushButton* cmdOk;
    QPushButton* cmdCancel;

private:
    void showLabel(int row);
    mdiParentForm& main_;
    std::vector<ExistingLabel> labels_;
};

}  // namespace trovane::screens

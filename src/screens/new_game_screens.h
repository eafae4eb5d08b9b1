#pragma once
// A new game: who the player is, then a label of their own or one taken over.
#include <map>
#include <vector>

#include "screens/screen_page.h"
#include "session/new_game.h"
#include "session/new_game_checks.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTableWidget;

namespace trovane::screens {

class mdiParentForm;

// The sentences a form shows under its fields when a choice is refused. The
// field keeps what was typed and takes the focus, so the player can mend it.
class FieldRefusals {
public:
    // Adds a hidden line under a captioned field, named "lblRefusal" + objectSuffix.
    void attach(QWidget* captionedBox, NewGameField field, QWidget* control, const QString& objectSuffix);
    // Shows the refusal at its field, hides the others; false when nothing was refused.
    bool show(const InputRefusal& r);
    void clear();

private:
    struct Line {
        QLabel* label;
        QWidget* control;
    };
    std::map<NewGameField, Line> lines_;
};

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
    FieldRefusals refusals_;
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
    FieldRefusals refusals_;
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

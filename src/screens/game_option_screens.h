#pragma once
// The game panel's own screens: the currency, the credits and the disclaimer.
#include <QDialog>

#include "screens/screen_page.h"

class QPushButton;
class QRadioButton;

namespace trovane::screens {

class mdiParentForm;

// Pounds, dollars or euros: how money is shown. Game money is always pounds.
class frmChangeCurrency : public QDialog {
    Q_OBJECT
public:
    explicit frmChangeCurrency(mdiParentForm& main);
    QRadioButton* optCurrency[3];  // "£", "$", "€"
    QPushButton* cmdConfirm;
    QPushButton* cmdCancel;

private:
    mdiParentForm& main_;
};

class frmCredits : public ScreenPage {
    Q_OBJECT
public:
    explicit frmCredits(mdiParentForm& main, QWidget* parent = nullptr);
};

class frmDisclaimer : public ScreenPage {
    Q_OBJECT
public:
    explicit frmDisclaimer(mdiParentForm& main, QWidget* parent = nullptr);
};

// The disclaimer, word for word.
inline constexpr const char* kDisclaimerText =
    "This game is an unofficial simulation of the music industry and as such has no connection with the featured "
    "artists, bands or record labels.";

}  // namespace trovane::screens

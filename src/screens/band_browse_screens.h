#pragma once
// The band browser ("Band Search", "Shortlisted Bands", and the list a tour
// books its support acts from) and its filter form.
#include <QDialog>
#include <array>
#include <functional>

#include "browse/band_browse.h"
#include "screens/screen_page.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

namespace trovane::screens {

class BrowseGridWidget;

class frmBandBrowse : public ScreenPage {
    Q_OBJECT
public:
    explicit frmBandBrowse(mdiParentForm& main);

    // Opens the band browser as a search or as the shortlist.
    static void openSearch(mdiParentForm& main, bool shortlist);
    // Opens it to book a support act for `referenceBand`'s tour: the bill in
    // hand is the gig and tour buffers'. cmdConfirm hands the band under the
    // cursor to `onConfirm`.
    static void openBooking(mdiParentForm& main, int16_t referenceBand, std::function<void(int16_t)> onConfirm);

    // Fills and shows the list through the kept filter and sort.
    void refill();
    // The click on the label of a grid column.
    void clickLabel(int gridColumn);

    BrowseGridWidget* flxBands;
    QPushButton* cmdFilter;
    QPushButton* cmdConfirm;
    QPushButton* cmdBack;
    // Milliseconds the last fill, sort and show took.
    double lastFillMs = 0;

private:
    void openRow(int32_t band);
    void keepRow();
};

class frmBandFilter : public QDialog {
    Q_OBJECT
public:
    // The controls show `filter` in the display currency.
    frmBandFilter(mdiParentForm& main, BandFilter& filter);

    // Reads the controls back into the filter, money divided by the exchange rate.
    void cmdOkClick();
    // The defaults, shown at once.
    void cmdResetClick();

    QCheckBox* optStyle;
    QComboBox* cmbStyle;
    QCheckBox* chkUnsigned;
    QComboBox* cmbAdvanceMin;
    QComboBox* cmbAdvanceMax;
    QPushButton *cmdAdvanceMinInc, *cmdAdvanceMinDec, *cmdAdvanceMaxInc, *cmdAdvanceMaxDec;
    QComboBox *cmbRoyaltyMin, *cmbRoyaltyMax;
    QPushButton *cmdRoyaltyMinInc, *cmdRoyaltyMinDec, *cmdRoyaltyMaxInc, *cmdRoyaltyMaxDec;
    QComboBox *cmbGigMin, *cmbGigMax;
    QPushButton *cmdGigMinInc, *cmdGigMinDec, *cmdGigMaxInc, *cmdGigMaxDec;
    QComboBox *cmbAgeMin, *cmbAgeMax;
    QPushButton *cmdAgeMinInc, *cmdAgeMinDec, *cmdAgeMaxInc, *cmdAgeMaxDec;
    QCheckBox* optName;
    QLineEdit* txtName;
    std::array<QComboBox*, 5> cmbReputationMin{}, cmbReputationMax{};
    QPushButton* cmdOk;
    QPushButton* cmdReset;
    QPushButton* cmdCancel;

private:
    void showFilter();
    mdiParentForm& main_;
    BandFilter& filter_;
};

}  // namespace trovane::screens

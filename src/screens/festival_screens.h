#pragma once
// The festival screens: Find's list of this year's festivals, a festival's
// details this year, and last year's with its review.
#include "live/festivals.h"
#include "screens/screen_page.h"

class QLabel;
class QPushButton;
class QTableWidget;

namespace trovane::screens {

// A plain list of this year's festivals; a row opens frmFestivalDetails,
// cmdLastYear frmHistoricalFestivalDetails of the row's festival.
class frmFestivalDetails : public ScreenPage {
    Q_OBJECT
public:
    frmFestivalDetails(mdiParentForm& main, int16_t festival, bool lastYear = false);
    const FestivalYear& year() const { return year_; }
    QLabel* lblReviewR = nullptr;  // last year's only
    QTableWidget* flxBill;
    QPushButton* cmdLastYear = nullptr;  // this year's only

private:
    FestivalYear year_;
};

// Last year's festival, with the review's title.
class frmHistoricalFestivalDetails : public frmFestivalDetails {
    Q_OBJECT
public:
    frmHistoricalFestivalDetails(mdiParentForm& main, int16_t festival);
};

}  // namespace trovane::screens

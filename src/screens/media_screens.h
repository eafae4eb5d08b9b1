#pragma once
// Promotion in the media for one of the player's acts: the territory, the
// outlets that would have it, an outlet's details, its issue days and the booking.
#include <QDialog>
#include <vector>

#include "live/media_promotion.h"

class QLabel;
class QListWidget;
class QPushButton;
class QTableWidget;

namespace trovane::screens {

class ComboBox;
class mdiParentForm;

// An outlet's particulars over the screen, for a row of the media list.
class frmMediaCard : public QDialog {
    Q_OBJECT
public:
    frmMediaCard(Game& g, int16_t outlet, QWidget* parent);
    QLabel* lblMediaDetails;
    QPushButton* cmdOk;
};

QString mediaDetailsText(Game& g, const MediaRecord& m);

// frmPromotion, with the offers of frmMediaBrowse, frmMediaDetails of the
// chosen outlet and the free issue days in the next six weeks.
class frmPromotion : public QDialog {
    Q_OBJECT
public:
    frmPromotion(mdiParentForm& main, int16_t band);

    ComboBox* cmbTerritory;
    QTableWidget* flxMedia;
    QLabel* lblMediaDetails;
    QListWidget* lstDates;
    QPushButton* cmdBook;
    QPushButton* cmdCancel;
    QLabel* lblRefusal;

    // Books the chosen outlet on the chosen day once the player agrees.
    void book();
    // The booking itself, after the "confirm?" question.
    void confirmBooking();

private:
    void showOffers();
    void showOutlet();

    mdiParentForm& main_;
    int16_t band_;
    std::vector<MediaOffer> offers_;
};

}  // namespace trovane::screens

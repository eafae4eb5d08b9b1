#pragma once
// The booking of a tour: the area, the venues gig by gig, the provisions, and
// the tour's details afterwards.
#include <QDialog>
#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "screens/album_screens.h"

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTableWidget;

namespace trovane::screens {

class mdiParentForm;

// The shared confirmation: a title, a question, yes and no (or only OK).
class frmConfirm : public AlbumDialog {
    Q_OBJECT
public:
    frmConfirm(mdiParentForm& main, const QString& title, const std::string& question, bool okOnly = false);
    QLabel* lblQuestion;
    QPushButton* cmdYes;
    QPushButton* cmdNo;
};

class frmArrangeTour : public AlbumDialog {
    Q_OBJECT
public:
    frmArrangeTour(mdiParentForm& main, int16_t band);
    QLabel* lblPrompt;
    std::array<QRadioButton*, 7> optAreas{};
    QComboBox* cmbNation;
    QPushButton* cmdAuto;
    QPushButton* cmdOk;
    QPushButton* cmdCancel;

private:
    void areaChosen();
    void arrangeByHand();
    void arrangeByAssistant();
    int area() const;
    int16_t band_;
};

// The venues of the tour's area in booking mode: each chosen venue asks a date.
class frmTourVenues : public AlbumDialog {
    Q_OBJECT
public:
    frmTourVenues(mdiParentForm& main, int16_t tour);
    QTableWidget* flxVenues;
    QLabel* lblGigs;
    QPushButton* cmdAddGig;
    QPushButton* cmdFinalise;
    QPushButton* cmdCancel;

    // The date chosen for the venue of the current row (as frmChooseDate returns it).
    void dateChosen(int16_t venue, double date);

private:
    void addGig();
    void showGigs();
    int16_t tour_;
};

class frmChooseProvisions : public AlbumDialog {
    Q_OBJECT
public:
    frmChooseProvisions(mdiParentForm& main, int16_t tour);
    QListWidget* lstSupports;
    QComboBox* cmbContent;
    QComboBox* cmbHospitality;
    QComboBox* cmbAccomodation;
    QTableWidget* flxSponsors;
    QPushButton* cmdConfirm;
    QPushButton* cmdCancel;

private:
    int16_t chosenSponsor() const;
    void confirm();
    void finish(int16_t sponsor);
    int16_t tour_;
};

class frmTourDetails : public AlbumDialog {
    Q_OBJECT
public:
    frmTourDetails(mdiParentForm& main, int16_t tour);
    QLabel* lblSummary;
    QTableWidget* flxGigs;
    QLabel* lblTotal;
    QListWidget* lstSupports;
    QPushButton* cmdRemoveSupport;
    QPushButton* cmdClose;

private:
    void fill();
    int16_t tour_;
};

}  // namespace trovane::screens

#pragma once
// The player's signed act and its album: the options panel of a signed band,
// asking for an album, picking its tracks, its title, and the recording's progress.
#include <QDialog>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "screens/option_panels.h"

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTableWidget;
class QVBoxLayout;

namespace trovane::screens {

class mdiParentForm;

// A dialog of the album's road, in the game's look, deleted when closed.
class AlbumDialog : public QDialog {
    Q_OBJECT
public:
    AlbumDialog(mdiParentForm& main, const QString& objectName, const QString& title);

protected:
    mdiParentForm& main_;
    QLabel* heading_;
    QVBoxLayout* body_;
    QHBoxLayout* buttons_;
    QLabel* lblRefusal_;
    void refuse(const std::string& why);
};

// The panel of a band signed to the player.
class frmBandOptionsSigned : public OptionPanel {
    Q_OBJECT
public:
    frmBandOptionsSigned(mdiParentForm& main, int16_t band, QWidget* parent);
    QPushButton* lblAlbum;
    QPushButton* lblAlbumProgress;
    QPushButton* lblReleaseSingle;
    QPushButton* lblTour;
    QPushButton* lblPromote;

private:
    void openAlbumProgress();
    mdiParentForm& main_;
    int16_t band_;
};

class frmWorkOnAlbum : public AlbumDialog {
    Q_OBJECT
public:
    frmWorkOnAlbum(mdiParentForm& main, int16_t band);
    QLabel* lblText;
    QPushButton* cmdYes;
    QPushButton* cmdNo;
    std::array<QRadioButton*, 5> optBudget{};
    QPushButton* cmdConfirm;
    QPushButton* cmdCancel;

private:
    void showBudgetStep();
    int16_t band_;
};

class frmAlbumProgress : public AlbumDialog {
    Q_OBJECT
public:
    frmAlbumProgress(mdiParentForm& main, int16_t band);
    QLabel* lblText;
    QTableWidget* flxSongs;
    QPushButton* cmdFinalise;
    QPushButton* cmdCancel;
    // The songs marked "Added".
    std::vector<int32_t> marked() const;

private:
    void toggle(int row);
    void finalise();
    int16_t band_;
};

class frmFinaliseAlbum : public AlbumDialog {
    Q_OBJECT
public:
    frmFinaliseAlbum(mdiParentForm& main, int16_t disc);
    QLabel* lblText;
    QLineEdit* txtTitle;
    QPushButton* cmdConfirm;

private:
    int16_t disc_;
};

class frmRecordingProgress : public AlbumDialog {
    Q_OBJECT
public:
    frmRecordingProgress(mdiParentForm& main, int16_t disc);
    QLabel* lblText;
    QPushButton* cmdOk;
};

}  // namespace trovane::screens

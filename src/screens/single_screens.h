#pragma once
// A single drawn from an album: its lead song, then its two B-sides.
#include <QDialog>
#include <array>
#include <cstdint>

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace trovane {
class Game;
}

namespace trovane::screens {

class frmReleaseSingle : public QDialog {
    Q_OBJECT
public:
    frmReleaseSingle(Game& g, int16_t album, QWidget* parent = nullptr);
    QListWidget* lstSongs;  // the album's tracks that have not been singles
    QPushButton* cmdConfirm;
    // The song chosen, 0 when none.
    int32_t lead() const;

private:
    Game& g_;
};

class frmChooseBSides : public QDialog {
    Q_OBJECT
public:
    frmChooseBSides(Game& g, int16_t album, int32_t lead, QWidget* parent = nullptr);
    std::array<QComboBox*, 2> cmbBSide{};
    QComboBox* cmbStudio;
    QPushButton* cmdConfirm;
    QLabel* lblRefusal;
    // The new single's disc number once confirmed.
    int16_t single = 0;

private:
    void confirm();
    Game& g_;
    int16_t album_;
    int32_t lead_;
};

}  // namespace trovane::screens

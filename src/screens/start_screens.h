#pragma once
// The first two screens of the program: the splash and the start form.
#include <QWidget>

class QLabel;
class QPushButton;
class QTimer;

namespace trovane::screens {

class mdiParentForm;

// The splash: the game's emblem. A click, a key or a few seconds go on to the start form.
class frmQuellmarkGames : public QWidget {
    Q_OBJECT
public:
    explicit frmQuellmarkGames(mdiParentForm& main, QWidget* parent = nullptr);
    QLabel* picLogo;
    QTimer* tmrLoad;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void goOn();
    mdiParentForm& main_;
};

// New game, load, quit.
class frmStartForm : public QWidget {
    Q_OBJECT
public:
    explicit frmStartForm(mdiParentForm& main, QWidget* parent = nullptr);
    QPushButton* btnStartNewGame;
    QPushButton* btnLoad;
    QPushButton* btnQuit;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace trovane::screens

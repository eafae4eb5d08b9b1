#pragma once
// The small windows around the details screens: a venue's card, the hall of
// fame, the birthday note, and the question before an image analysis.
#include <QDialog>
#include <cstdint>
#include <functional>

class QLabel;
class QListWidget;
class QPushButton;
class QTableWidget;

namespace trovane {
class Game;
}

namespace trovane::screens {

// A venue: where, how big, and the gigs played there, the latest first.
class frmVenueCard : public QDialog {
    Q_OBJECT
public:
    frmVenueCard(Game& g, int16_t venue, QWidget* parent);
    QLabel* lblName;
    QTableWidget* flxGigs;
    QPushButton* cmdOk;
};

// Every career's score, highest first; this career's row is marked.
class frmHighScoreTable : public QDialog {
    Q_OBJECT
public:
    frmHighScoreTable(Game& g, QWidget* parent);
    QTableWidget* flxScores;
    QPushButton* cmdOk;
    // The row of this career, -1 when it has none.
    int markedRow = -1;
};

// Who shares the player's day and month.
class frmBirthday : public QDialog {
    Q_OBJECT
public:
    frmBirthday(Game& g, QWidget* parent);
    QLabel* lblTitle;
    QLabel* lblText;
    QPushButton* cmdOk;
};

// lstAchievements: the achievements of a band, artist, label or staff member
// (kind 0 to 3), newest first, each "d/m/yyyy   text".
QListWidget* achievementList(Game& g, int kind, int16_t who, QWidget* parent);

// frmConfirm in its "Confirm Image Analysis" mode: yes runs onYes. The
// dialog is modal to the window and deletes itself.
QDialog* confirmImageAnalysis(QWidget* parent, const QString& question, std::function<void()> onYes);

}  // namespace trovane::screens

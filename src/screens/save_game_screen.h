#pragma once
// The ten save slots, for saving and for loading, and the question that
// guards a deletion.
#include <QDialog>
#include <functional>

#include "screens/screen_page.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace trovane::screens {

class mdiParentForm;

class frmSaveGame : public ScreenPage {
    Q_OBJECT
public:
    // loading: "Load Game" (from the start form or in game); else "Save Game".
    frmSaveGame(mdiParentForm& main, bool loading, QWidget* parent = nullptr);

    QListWidget* lstSaves;
    QLineEdit* txtSaveName;
    QLabel* lblDetails;
    QPushButton* cmdSave;
    QPushButton* cmdOverwrite;
    QPushButton* cmdDelete;
    QPushButton* btnOk;

    bool loading() const { return loading_; }

private:
    void fillList(int row);
    void showSlot(int row);
    void save();
    void overwrite();
    void remove();

    bool loading_;
    QWidget* detailBox_;
    QWidget* nameBox_;
    QLabel* lblRefusalName_;
    QLabel* freeNote_;
};

// "Are you sure?": lblConfirm runs the action, lblCancel does nothing.
class frmSure : public QDialog {
    Q_OBJECT
public:
    frmSure(const QString& criteria, const QString& question, QWidget* parent);
    QPushButton* lblConfirm;
    QPushButton* lblCancel;
    QString criteria() const { return criteria_; }

private:
    QString criteria_;
};

// Asks through frmSure and runs onConfirm on yes. The dialog is modal to the window and deletes itself.
frmSure* askSure(QWidget* parent, const QString& criteria, const QString& question, std::function<void()> onConfirm);

}  // namespace trovane::screens

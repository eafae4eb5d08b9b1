#pragma once
// The browsers of the other tables, one screen class shown under each
// browser's own name: frmArtistBrowse, frmRichList, frmStaffBrowse,
// frmLabelBrowse, frmVenueBrowse, frmBusinessBrowse, frmMediaBrowse,
// frmSongBrowse, frmFestivalBrowse and frmCeremonyBrowse. Each offers a name
// and, for a column of few values, a choice of them; keeps its filter, sort
// and row for the session; and opens a row's details where they exist.
#include <vector>

#include "browse/grid.h"
#include "screens/screen_page.h"
#include "world/game.h"

class QComboBox;
class QLineEdit;
class QPushButton;

namespace trovane::screens {

class BrowseGridWidget;

// Whether the screen is one of these browsers.
bool isTableBrowser(Screen s);

class frmTableBrowse : public ScreenPage {
    Q_OBJECT
public:
    frmTableBrowse(mdiParentForm& main, Screen which);

    void refill();
    void clickLabel(int gridColumn);
    // Clears the name and the choices; the sort stays.
    void cmdResetClick();

    BrowseGridWidget* flxGrid;
    QLineEdit* txtName;
    QPushButton* cmdReset;
    QPushButton* cmdBack;
    // One choice per column of few values, null for the others.
    std::vector<QComboBox*> cmbColumn;

private:
    Grid fill(bool withChoices);
    void openRow(int32_t record);
    Screen which_;
};

}  // namespace trovane::screens

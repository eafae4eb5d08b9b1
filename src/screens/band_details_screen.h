#pragma once
// "Band Details" of one act, and the plain lists of acts that lead to it.
#include <cstdint>

#include "screens/screen_page.h"

class QLabel;
class QListWidget;
class QTableWidget;

namespace trovane::screens {

class frmBandDetails : public ScreenPage {
    Q_OBJECT
public:
    frmBandDetails(mdiParentForm& main, int16_t band, QWidget* parent = nullptr);

    QTableWidget* flxArtists;
    // The act's discs, newest first; a row opens "Disc Details".
    QTableWidget* flxDiscs;
    QListWidget* lstInterested;
    // The tours the act headlines or supports: name, role, area.
    QTableWidget* flxTours;
    // The act's achievements, newest first.
    QListWidget* lstAchievements;
};

}  // namespace trovane::screens

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

// Find's "Band Search" (every act) and "Shortlisted Bands" (the player's
// shortlist): Name, Style, Advance, Label; a row opens "Band Details".
class frmBandList : public ScreenPage {
    Q_OBJECT
public:
    frmBandList(mdiParentForm& main, bool shortlist, QWidget* parent = nullptr);

    QTableWidget* flxBands;
};

}  // namespace trovane::screens

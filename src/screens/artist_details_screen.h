#pragma once
// "Artist Details" of one artist, opened from a band's members.
#include <cstdint>

#include "screens/screen_page.h"

class QListWidget;
class QLabel;

namespace trovane::screens {

class OptionPanel;

class frmArtistDetails : public ScreenPage {
    Q_OBJECT
public:
    frmArtistDetails(mdiParentForm& main, int16_t artist, QWidget* parent = nullptr);

    QLabel* lblName;
    QListWidget* lstFeelings;
    QListWidget* lstAchievements;
};

// The options of an artist on screen (cmdExtra): the player's own artists
// have frmArtistOptionsSigned; anyone else has none (nullptr).
OptionPanel* makeArtistOptions(mdiParentForm& main, QWidget* host, int16_t artist);

}  // namespace trovane::screens

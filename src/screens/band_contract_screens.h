#pragma once
// What the player can do with an act on screen: the options of an unsigned
// act and of one the player has made an offer to, and the offer form.
#include <cstdint>

#include "screens/option_panels.h"
#include "screens/screen_page.h"
#include "talent/band_offers.h"

class QLabel;
class QPushButton;

namespace trovane::screens {

// The panel cmdExtra opens on "Band Details": frmBandOptionsApproached while
// the player's offer is pending, frmBandOptionsUnsigned for any other act not
// the player's; none for the player's own acts (their panel comes later).
OptionPanel* makeBandOptions(mdiParentForm& main, QWidget* host, int16_t band);

class frmBandOptionsUnsigned : public OptionPanel {
    Q_OBJECT
public:
    frmBandOptionsUnsigned(mdiParentForm& main, QWidget* parent, int16_t band);
};

class frmBandOptionsApproached : public OptionPanel {
    Q_OBJECT
public:
    frmBandOptionsApproached(mdiParentForm& main, QWidget* parent, int16_t band);
};

class frmBandContract : public ScreenPage {
    Q_OBJECT
public:
    frmBandContract(mdiParentForm& main, int16_t band, QWidget* parent = nullptr);

    QLabel* lblDemands;
    QLabel* lblInitialAdvance;
    QLabel* lblSubsequentAdvances;
    QLabel* lblOptionLength;
    QLabel* lblSubsequentOptions;
    QLabel* lblRoyalty;
    QPushButton* cmdOk;

private:
    void showTerms();

    int16_t band_;
    OfferTerms terms_;
};

}  // namespace trovane::screens

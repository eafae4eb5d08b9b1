#include "talent/lifecycle.h"

#include "talent/retirement.h"
#include "world/game.h"

namespace trovane {

namespace {

constexpr uint8_t kMonthsBeforeGivingUp = 10;

}  // namespace

// An act that nobody signs for ten months gives up. The count of a signed act
// is left where it stood; a retired act is past counting.
void updateBandTimeWithoutADeal(Game& g) {
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        g.band.read(n);
        if (g.band->label != 0 || g.band->retired != kFalse) continue;
        g.band->monthsUnsigned = narrow<uint8_t>(g.band->monthsUnsigned + 1);
        g.band.write(n);
        if (g.band->monthsUnsigned == kMonthsBeforeGivingUp) retireBand(g, true);
    }
}

}  // namespace trovane

#include "talent/lifecycle.h"

#include "talent/retirement.h"
#include "world/game.h"
#include "world/record_bytes.h"

namespace trovane {

namespace {

constexpr uint8_t kMonthsBeforeGivingUp = 10;

}  // namespace

// An act that nobody signs for ten months gives up. The count of a signed act
// is left where it stood; a retired act is past counting.
void updateBandTimeWithoutADeal(Game& g) {
    // Signed and retired acts are passed over in their bytes; the buffer is
    // left as reading each band in turn leaves it.
    static const std::size_t kLabel = offsetIn<BandRecord>("label");
    static const std::size_t kRetired = offsetIn<BandRecord>("retired");
    int32_t passedOver = 0;
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        const auto bytes = g.band.bytesOf(n);
        if (fieldAt<decltype(BandRecord::label)>(bytes, kLabel) != 0 ||
            fieldAt<decltype(BandRecord::retired)>(bytes, kRetired) != kFalse) {
            passedOver = n;
            continue;
        }
        passedOver = 0;
        g.band.read(n);
        g.band->monthsUnsigned = narrow<uint8_t>(g.band->monthsUnsigned + 1);
        g.band.write(n);
        if (g.band->monthsUnsigned == kMonthsBeforeGivingUp) retireBand(g, true);
    }
    if (passedOver > 0) g.band.read(passedOver);
}

}  // namespace trovane

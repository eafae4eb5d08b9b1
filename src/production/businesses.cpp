#include "production/businesses.h"

#include "world/game.h"

namespace trovane {

// Not built yet: each runs as an empty step of the day until its rules are written.
void subtractBusinessRunningCosts(Game& g) { static_cast<void>(g); }
void setBusinessCharge(Game& g) { static_cast<void>(g); }

// Not built yet: facilities do not open until businesses are written.
void openBusiness(Game& g) { static_cast<void>(g); }

}  // namespace trovane

#include "floor/number_helpers.h"
#include "world/numbers.h"

namespace trovane {

int32_t distributorDailyCapacity(const Game& g) {
    double q = g.business->quality;
    int32_t v = roundTo<int32_t>(2 * q * q * q);
    return roundToMoneyStep(v);
}

int32_t plantDailyCapacity(const Game& g) {
    double q = g.business->quality;
    int32_t v = roundTo<int32_t>(q * q * q);
    return 2 * roundToMoneyStep(v);
}

}  // namespace trovane

#include "live/festivals.h"

#include "world/game.h"

namespace trovane {

// Not built yet: no festival is filed until the festivals are written.
void scheduleFestivals(Game& g, int year) {
    static_cast<void>(g);
    static_cast<void>(year);
}

// Not built yet: festival bills stay empty until festivals are written.
void fillFestivalBill(Game& g) { static_cast<void>(g); }
void acceptFestivalSlot(Game& g, int32_t slot) {
    static_cast<void>(g);
    static_cast<void>(slot);
}

}  // namespace trovane

namespace trovane {

// Not built yet: festival reviews come with the festivals.
void writeFestivalReview(Game& g) { static_cast<void>(g); }

}  // namespace trovane

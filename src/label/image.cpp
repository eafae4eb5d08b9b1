#include "label/image.h"

#include "world/game.h"

namespace trovane {

// Not built yet: each runs as an empty step of the day until its rules are written.
void deliverMarketingReports(Game& g) { static_cast<void>(g); }

// Not built yet: images do not change until image and marketing are written.
void imageReport(Game& g) { static_cast<void>(g); }
void changeLook(Game& g) { static_cast<void>(g); }

}  // namespace trovane

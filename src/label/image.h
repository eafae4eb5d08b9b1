#pragma once
// Image and marketing.

#include <cstdint>

namespace trovane {

class Game;

void deliverMarketingReports(Game& g);

// How well the current look suits the current artist, 0 to 100: 50 less the
// distance of each of the eight attributes outside the look's bounds, plus the
// style's liking for the look.
uint8_t rateLook(Game& g);

}  // namespace trovane

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
// The look that suits the current artist best among those for either sex or
// the artist's own (sex 1 men, 2 women); the first of equals stays. The look
// buffer is left on it; 0 when there is no look.
int32_t bestLook(Game& g);
// Schedule type 9: the marketing report on the image of the entry's artist.
void imageReport(Game& g);
// The player's yes to a proposed image: the artist in the artist buffer takes
// the look in the look buffer.
void changeLook(Game& g);

}  // namespace trovane

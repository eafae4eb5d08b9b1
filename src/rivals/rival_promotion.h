#pragma once
// How a label books its act's promotion around a release: the best outlets of
// each territory, back from the day before the disc comes out.
#include <cstdint>

namespace trovane {

class Game;
struct MediaRecord;

// The value booked when the outlet in the buffer finds an issue day for the
// current band from `day` back to `release` - 42 (never today or before), on
// which the band is free and not retired; 0 when there is none. Files the
// type 17 of the kind.
int bookOutlet(Game& g, double day, double release, uint8_t kind, int value);

// The current band's promotion of the current disc in a territory: best offers
// first while the disc's promotion there plus the values booked stays at 150
// or below.
void bookRivalPromotion(Game& g, int territory);

// bookRivalPromotion in each territory the current disc is released in (with
// `flags` not 0, only those whose bit 1 << territory is set).
void bookAllPromotionNow(Game& g, int flags);

}  // namespace trovane

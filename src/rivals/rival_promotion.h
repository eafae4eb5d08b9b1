#pragma once
// How a label books its act's promotion around a release: the best outlets of
// each territory, back from the day before the disc comes out.
#include <cstdint>
#include <vector>

namespace trovane {

class Game;
struct MediaRecord;

// The days from `first` on on which the current band is free: day first + i
// is free when free[i] is true.
struct FreeDays {
    double first = 0;
    std::vector<bool> free;
};
// The current band's free days from the day after today (and at least
// `from`) up to `to`, found once from the day index.
FreeDays freeDaysOf(Game& g, double from, double to);

// The value booked when the outlet in the buffer finds an issue day from
// `day` back to `release` - 42 (never today or before) that `days` has free
// for the current band, which must not have retired; 0 when there is none.
// Files the type 17 of the kind and marks the day taken.
int bookOutlet(Game& g, double day, double release, uint8_t kind, int value, FreeDays& days);

// The current band's promotion of the current disc in a territory: best offers
// first while the disc's promotion there plus the values booked stays at 150
// or below.
void bookRivalPromotion(Game& g, int territory);

// bookRivalPromotion in each territory the current disc is released in (with
// `flags` not 0, only those whose bit 1 << territory is set).
void bookAllPromotionNow(Game& g, int flags);

}  // namespace trovane

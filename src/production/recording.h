#pragma once
// Recording an album or a single in a studio, one day at a time.

namespace trovane {

class Game;

// Schedule type 7: one studio day of the entry's band and disc.
void recordingDay(Game& g);
// Books one more studio day after a day was lost, so the recording still completes.
void extendBooking(Game& g);

}  // namespace trovane

#pragma once
// Acts and artists leaving the industry, and members leaving their bands.
#include <cstdint>

namespace trovane {

class Game;

// Schedule type 27: the band of the entry announces it will retire.
void announceBandRetirement(Game& g);
// Schedule type 28 (not immediate) and a band unsigned too long (immediate).
void retireBand(Game& g, bool now);
// Schedule type 29: the artist of the entry announces retirement.
void announceArtistRetirement(Game& g);
// Schedule type 30 calls it with mode 1 and the entry's artist.
void retireArtist(Game& g, int mode, int16_t artist);
// Schedule type 31: the artist of the entry leaves the band, replaced by artist2 when set.
void memberLeaves(Game& g);

}  // namespace trovane

namespace trovane {

// After an album comes out: an ageing current band may decide to call it a day.
void considerRetirement(Game& g);

}  // namespace trovane

#pragma once
// Small tests and lookups shared by the rival labels' steps.
#include <cstdint>

#include "world/records.h"

namespace trovane {

class Game;

// True when the current band is signed to a label the computer runs.
bool isRivalBand(const Game& g);
// A track's worth to a rival: its quality and commerciality averaged, rounded.
int trackQuality(const SongRecord& song);
// True once the song has come out as a single in any territory.
bool songIsSingle(const SongRecord& song);
// The band's album with the latest release date in any territory, or 0 when
// none has a date. Leaves the disc buffer as it was.
int16_t latestAlbum(Game& g, int16_t band);
// The latest release date of the band's discs of a type in a territory
// (-1 for any territory), or kNoDate (1 January 1900) when there is none.
double latestReleaseOf(Game& g, int16_t band, int isSingle, int territory);
// True when the band is on the player's shortlist.
bool playerWatches(Game& g, int16_t band);
// The band's rounded mean member writing quality or its top reputation,
// whichever is larger. Reads the band; leaves it in the buffer.
int rivalStrength(Game& g, int16_t band);

}  // namespace trovane

#pragma once
// Songs written week by week, bought-in material, and the title banks.
#include <string>

namespace trovane {

class Game;
struct SongRecord;

// A song not yet on a disc, and one held back from the band's next tracklist.
inline constexpr uint16_t kSongFree = 65535;
inline constexpr uint16_t kSongHeld = 65534;

// The price of bought-in material at each budget level (0 dearest to 4 cheapest),
// in whole money, and the quality it starts from.
int32_t materialPrice(int budget);
int materialQualityBase(int budget);

// Monday: every writer of a signed or unsigned act may write a song.
void updateSongs(Game& g);
// For the current artist, whose band is in the band buffer.
bool writesThisWeek(Game& g);
// One song for the current band: the current artist's own when fromArtist,
// bought-in material otherwise. silent keeps the progress news back.
void writeSong(Game& g, bool fromArtist, bool silent);
// An album title from the bank for the current band's style that no disc bears.
std::string pickAlbumTitle(Game& g);
bool isAlreadySingle(const SongRecord& song);
int songMean(const SongRecord& song);
// Every song of the band not yet on a disc is held back from the next tracklist.
void holdBandSongs(Game& g, int16_t band);

// A signed act of the starting world gets the songs of its next album under way.
void seedAlbumPlan(Game& g);
// The player's acts are briefed about their next album when a game starts.
void briefNewPlayerOnAlbums(Game& g);
// A title from the bank for the current band's style: up to 50 draws, each
// title taken less often the more it has been used, and its use counted; after
// 50 the last drawn, uncounted. "Untitled" when the bank is empty.
std::string pickSongTitle(Game& g);

}  // namespace trovane

#pragma once
// Acts and artists leaving the industry, and members leaving their bands.
#include <cstdint>
#include <set>
#include <string>

namespace trovane {

class Game;

// Schedule type 27: the band of the entry announces it will retire.
void announceBandRetirement(Game& g);
// Schedule type 28 (not immediate: the entry's band) and a band unsigned too
// long or without a replacement (immediate: the current band).
void retireBand(Game& g, bool now);
// Schedule type 29: the artist of the entry announces retirement.
void announceArtistRetirement(Game& g);
// Schedule type 30 calls it with mode 1 and the entry's artist.
void retireArtist(Game& g, int mode, int16_t artist);
// Schedule type 31: the artist of the entry leaves the band, replaced by artist2 when set.
void memberLeaves(Game& g);
// The artist who best takes the place of leaver in band, or 0: same job, a
// style the band plays or turns to, scoring 70 to 130 against the leaver;
// artists in chosen are passed over.
int32_t findReplacement(Game& g, int16_t leaver, int16_t band, const std::set<int32_t>& chosen = {});
// The current band cannot replace name and ends today.
void bandFails(Game& g, const std::string& name);
// Files the chain of posts that open when replacement leaves its band for
// another on date: each group it leaves looks for its own replacement.
void fileReplacementChain(Game& g, int32_t replacement, double date, std::set<int32_t> chosen);
// Whether the player hears of the current band: rated above 60, the player's,
// or on the player's shortlist.
bool bandOfInterest(Game& g);

}  // namespace trovane

namespace trovane {

// After an album comes out: an ageing current band may decide to call it a day.
void considerRetirement(Game& g);

}  // namespace trovane

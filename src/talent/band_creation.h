#pragma once
// New acts joining the world, and the acts of the starting world made ready.
#include <array>
#include <cstdint>
#include <string>

namespace trovane {

class Game;

// Adds a new unsigned act of a drawn style with its members; returns its number.
int32_t createBand(Game& g);
// Adds a new unsigned solo artist (an act of one member); returns the act's number.
int32_t createSoloArtist(Game& g);
// The current band, signed in the starting world: its contract and deal as the data gives them.
void setUpSignedContract(Game& g);
// The current band's hype starts at minus its reputation, and its members share its reputation.
void setUpBandReputation(Game& g);

// A style for a new act: any style but the last record and "Legend", kept when
// Int(rnd * 75) squared is at most (popularity - 25) squared, so the most and
// the least popular styles come up most. The style buffer is left on it; 0
// (and no act is made) when there is no style besides the last.
int32_t pickStyle(Game& g);
// The size of a new group of the current style: the usual size on a draw of 50
// or less, else usual + Int(rnd * 2d) - d with d = high - usual, at least the
// smallest size.
int pickBandSize(Game& g);
// A name of the style's name bank no active act bears; after 1,000 draws the
// last drawn is taken.
std::string pickBandName(Game& g, int style);
// A country for a member of an act from country home: home for a solo act or
// on a draw below 70; else a country linked to home, drawn by the links' weights.
int pickBirthCountry(Game& g, int home, bool solo);
// A city of the country (any country for -1), drawn and kept by its size as a
// percent chance; after 1,000 draws the last is taken. 0 when there is none.
int pickBirthCity(Game& g, int country);
// The five markets (0 UK, 1 US, 2 Europe, 3 Oceania, 4 Global) in the order an
// act from the current country knows them.
std::array<int, 5> homeOrder(const Game& g);
// Mode 1: a free artist (no band, reputation 0) of the job, style and country of
// the artist in the artist buffer, who retires. Returns the new artist's number.
int32_t createArtist(Game& g, int mode);

}  // namespace trovane

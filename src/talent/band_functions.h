#pragma once
// What the game reads off an act, and how money and points reach its members.
// Everything works on the current band (and, where named, the current style,
// country or disc); members are read into the artist buffer as needed, so a
// caller re-reads any artist it was holding.
#include <cstdint>

#include "world/numbers.h"

namespace trovane {

class Game;

// The five markets weighted 8, 10, 7, 5 and 3 (UK, US, Europe, Oceania,
// Global): 0 to 3300.
int32_t bandValue(const Game& g);
// The act's worldwide percent, 0 to 100: bandValue / 33, rounded.
int32_t bandRating(const Game& g);

// The market the act is known in first. Any following outside the UK decides
// it, in the order US, Europe, Oceania, Global, however small it is and however
// big the UK following: an act is a UK act only with nothing anywhere else.
struct MainMarket {
    int market;  // 1 UK, 2 US, 3 Europe, 4 Oceania, 5 Global
    int reputation;
};
MainMarket bandMainMarket(const Game& g);
// The index (0 UK to 4 Global) of the largest reputation, the earliest on a tie.
int bandBestMarket(const Game& g);
int32_t bandReputationSum(const Game& g);

// False while any member is away (energy below 0).
bool bandIsRested(Game& g);
int32_t bandEnergySum(Game& g);

// On the current style: its five markets weighted as above, over 33, rounded,
// averaged with its commerciality.
int32_t stylePopularity(const Game& g);

// The band's reputation in the market of the current country: the UK for the
// four home nations, Europe for the rest of "E", the US for "N", Oceania for
// "O", and the rest of the world for every other region.
int32_t reputationInCountry(const Game& g);

// The band's costs rise by amount and the band is written; a signed band's
// label pays it under the category (the label buffer is left on that label).
void addBandCost(Game& g, Money amount, int category);
// The band's points in the market rise and the band is written; a signed
// band's label, its boss and its department heads earn the same.
void addBandPoints(Game& g, int market, int32_t amount);

// Each member's wealth grows by an even share of amount, in whole money.
void payArtistsEvenly(Game& g, Money amount);
// A disc's royalty to the act (current band, current disc): each member takes
// royaltyShare percent of amount, and then each member who wrote tracks of the
// disc takes their part of a further 30 percent, by the tracks written.
void payArtists(Game& g, Money amount);
// At signing: each member's royaltyShare is 70 percent split by weight 6 - rank
// of their job, so the front of the stage earns most; the other 30 percent is
// the songwriters'.
void setRoyaltyShares(Game& g);

// On a new band: ability, dancing, stamina, flair, live and visual are the
// members' means, charisma, controversy and topAttitudeLevel their largest
// values; no end date, not retired. Fills the buffer; the caller writes it.
void setBandStats(Game& g);

}  // namespace trovane

#pragma once
// Offers between labels and acts.
#include <cstdint>
#include <vector>

namespace trovane {

class Game;

// Schedule type 4: the band of the entry chooses among the offers of the day.
void decideOffers(Game& g);
// Schedule type 5: the band of the entry signs the offer of the entry.
void signBand(Game& g);
// Files the signing (type 5) of the offer in the offer buffer for the band in
// the band buffer: today for the player's offer, tomorrow for a rival's.
void scheduleSigning(Game& g);
// Makes every offer on the band void.
void voidOffers(Game& g, int16_t band);

// A void offer names band 65535.
inline constexpr int16_t kVoidOffer = -1;

// The record numbers of the offers ever filed on the band, void ones left
// out, oldest first. Works from the table's bytes: no buffer changes.
std::vector<int32_t> offersOnBand(Game& g, int16_t band);
// The live offer (not void, decided today or later) of the label on the band, or 0.
int32_t hasOfferFrom(Game& g, int16_t label, int16_t band);

}  // namespace trovane

#pragma once
// Offers between labels and acts.
#include <cstdint>

namespace trovane {

class Game;

// Schedule type 4: the band of the entry chooses among the offers of the day.
void decideOffers(Game& g);
// Schedule type 5: the band of the entry signs the offer of the entry.
void signBand(Game& g);
// Files the signing (type 5) of the offer in the offer buffer for the band in the band buffer.
void scheduleSigning(Game& g);
// Makes every offer on the band void.
void voidOffers(Game& g, int16_t band);

}  // namespace trovane

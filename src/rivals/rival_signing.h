#pragma once
// How the computer-run labels approach unsigned acts.
#include <cstdint>

namespace trovane {

class Game;

void computerApproachBands(Game& g);
// Scales the offer in the offer buffer by percent, up or down; each figure is
// rounded and held (royalty 0 to 100, advances 0 to 50,000,000).
void adjustOfferTerms(Game& g, int percent, bool lower);
// The best mode 1 rating among the band's live offers (0 with none). Leaves
// the label buffer on the last offer's label and the band read.
int bestRatingOnFile(Game& g, int16_t band);
// The decision date of the band's first live offer, or 0 (1 January 1900).
double firstOfferDate(Game& g, int16_t band);

}  // namespace trovane

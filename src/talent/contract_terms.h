#pragma once
// What an act asks for, and how an offer measures up to it.
#include <cstdint>

namespace trovane {

class Game;

// On the current band: the terms it asks, from its worth (a floor of 60,000;
// royalty 9 to 25 percent; three further options of 18 months), each amount
// rounded to a money step, advanceToPay too. Does not write the band.
void setAskingTerms(Game& g);
// The step that ends setAskingTerms alone: initialAdvance, additionalAdvance
// and advanceToPay of the current band rounded to their money steps.
void roundAskedTerms(Game& g);

// The label's size against the band's: 100 x labelTotal / bandTotal, less
// twice the amount the band's main market reputation exceeds the label's.
struct Standing {
    int standing;
    int gap;
};
Standing labelStanding(int bandMainRep, int labelMainRep, int bandTotal, int labelTotal);

// round(age x 100 / (lifeSpan / 2)), at most 100, of the current band by its
// style (the style buffer is left on it).
int careerAgeOf(Game& g);

// Reasons: 1 initial advance, 2 additional advances, 3 royalty, 4 label size,
// 5 market presence.
struct ContractRating {
    int score;
    int bestReason;
    int worstReason;
};
// The offer in the offer buffer against what the current band asks, for the
// current label. Mode 1 weighs the initial advance; mode 2 (a renewal) does
// not and gives no reasons. 100 is what the band asks; never below 0.
ContractRating rateContract(Game& g, int mode);

}  // namespace trovane

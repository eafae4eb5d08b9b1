#pragma once
// The player's side of a negotiation: the offer form, making or changing an
// offer, and withdrawing it. Each action is a check that changes nothing and
// returns the refusal in the game's words ("" to go on), and the action.
#include <cstdint>
#include <string>

namespace trovane {

class Game;

// The form's figures; amounts in the display currency.
struct OfferTerms {
    int32_t initialAdvance = 0;
    int32_t additionalAdvance = 0;
    int options = 0;  // additionalAdvanceCount, 1 to 5
    int months = 0;   // optionLength, 12 or 18
    int royalty = 0;  // 5 to 30
};

// lblTitle and lblDemands of the form for the band.
std::string offerFormTitle(Game& g, int16_t band);
std::string demandsText(Game& g, int16_t band);
// The band's asked terms, amounts in the display currency on their money steps.
OfferTerms askedTerms(Game& g, int16_t band);
// Where the form starts: the player's pending offer, else the asked terms.
OfferTerms offerFormStart(Game& g, int16_t band);

std::string checkOffer(Game& g, int16_t band, const OfferTerms& terms);
struct OfferMade {
    int32_t offer;
    double decisionDate;
    bool joined;  // it joined another label's decision date
};
// cmdOk: files or rewrites the player's offer and shortlists the band.
OfferMade makeOffer(Game& g, int16_t band, const OfferTerms& terms);

std::string checkWithdraw(Game& g, int16_t band);
// lblWithdraw: the player's decisions on the band after today are void, with
// their offers; rival offers that joined them are left undecided.
void withdrawOffer(Game& g, int16_t band);

}  // namespace trovane

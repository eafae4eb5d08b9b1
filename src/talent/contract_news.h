#pragma once
// What the player hears when a band decides on its offers.
#include <cstdint>
#include <string>

namespace trovane {

class Game;

// The band's no to the player, on the current band with the current label
// (the winner's, as the decision leaves it): the verdict by score, harsh at
// 60 or less, and a second sentence by the worst reason.
std::string rejectionText(Game& g, int score, int worstReason);
void postRejection(Game& g, int score, int worstReason);

// The band's yes to the current offer's label, on the current band, offer and
// label, with the clincher of the best reason. For the player the item asks
// to confirm the deal and holds the calendar until answered.
std::string agreementText(Game& g, int bestReason);
void postAgreement(Game& g, int bestReason, bool playersWin, int32_t entry);

}  // namespace trovane

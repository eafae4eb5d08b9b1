#pragma once
#include <cstdint>
// Studios, pressing plants and distributors.

namespace trovane {

class Game;

void subtractBusinessRunningCosts(Game& g);
// A firm's charge from its quality and size, set on every firm when a game starts.
void setBusinessCharge(Game& g);

// Schedule type 24: the entry's new facility opens.
void openBusiness(Game& g);

}  // namespace trovane

namespace trovane {

// On the current business: copies a distributor can ship a day, and a plant press.
int32_t distributorDailyCapacity(const Game& g);
int32_t plantDailyCapacity(const Game& g);

}  // namespace trovane

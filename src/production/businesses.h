#pragma once
// Studios, pressing plants and distributors: what a firm's one quality figure
// makes of its capacity and prices, running costs, and building a firm.
#include <cstdint>
#include <string>
#include <vector>

#include "world/numbers.h"

namespace trovane {

class Game;

inline constexpr uint8_t kStudio = 0;
inline constexpr uint8_t kPlant = 1;
inline constexpr uint8_t kDistributor = 2;
inline constexpr int16_t kFirmOpen = -1;  // 65535 in the record

// On the current business buffer.
int32_t distributorDailyCapacity(const Game& g);
int32_t plantDailyCapacity(const Game& g);
// The price of one studio day, in whole money.
int32_t studioDayCost(const Game& g);

// What building a firm costs, in whole money.
int64_t buildCost(int quality, int kind);
// A firm's monthly running cost; leaves the buffer's quality as it was.
int32_t runningCostFor(Game& g, int quality, int kind);

// "studio", "manufacturing plant" or "distribution firm".
std::string firmKindName(int kind);

void subtractBusinessRunningCosts(Game& g);
// A firm's charge from its quality and size, set on every firm when a game starts.
void setBusinessCharge(Game& g);

// Schedule type 24: the entry's new facility opens.
void openBusiness(Game& g);

// The open firms of a kind, in table order; a firm being built is left out.
std::vector<int16_t> chooseBusiness(Game& g, int kind);

// The player's order for a new firm.
struct FacilityOrder {
    int kind = kStudio;
    std::string name;
    int quality = 50;
    int16_t city = 0;
};
// Empty when the order can go ahead, otherwise why not. Changes nothing.
std::string checkBuildFacility(Game& g, const FacilityOrder& order);
// Builds it for the player's label: the new record (closed), the bill, the
// opening six months on and the news. Returns the firm's number.
int16_t buildFacility(Game& g, const FacilityOrder& order);

}  // namespace trovane

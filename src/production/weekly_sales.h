#pragma once
// The Sunday sales of every disc on the market.

namespace trovane {

class Game;

void calculateWeeklySales(Game& g);

}  // namespace trovane

#pragma once
// Acts forming, splitting and retiring.

namespace trovane {

class Game;

void updateBandTimeWithoutADeal(Game& g);

}  // namespace trovane

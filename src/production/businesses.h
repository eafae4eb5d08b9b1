#pragma once
// Studios, pressing plants and distributors.

namespace trovane {

class Game;

void subtractBusinessRunningCosts(Game& g);

}  // namespace trovane

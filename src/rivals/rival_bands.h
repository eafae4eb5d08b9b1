#pragma once
// How the computer-run labels look after their acts.

namespace trovane {

class Game;

void computerCheckBands(Game& g);

}  // namespace trovane

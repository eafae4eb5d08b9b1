#pragma once
// How the computer-run labels approach unsigned acts.

namespace trovane {

class Game;

void computerApproachBands(Game& g);

}  // namespace trovane

#pragma once
// Options and the progress of a contract.

namespace trovane {

class Game;

void updateMonthsRemainingOnOption(Game& g);

}  // namespace trovane

#pragma once
// Options and the progress of a contract.

namespace trovane {

class Game;

void updateMonthsRemainingOnOption(Game& g);

// Schedule type 18: an option of the entry's band has run out.
void contractPoint(Game& g);

}  // namespace trovane

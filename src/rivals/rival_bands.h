#pragma once
// How the computer-run labels look after their acts.

namespace trovane {

class Game;

void computerCheckBands(Game& g);

// Schedule type 20: a rival follows a disc of the entry's band with a single.
void rivalFollowUpSingle(Game& g);

// A rival decides on the next option of the band in the band buffer.
void rivalOptionDecision(Game& g);

}  // namespace trovane

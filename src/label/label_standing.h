#pragma once
// A label's standing: its value, strength class, signed acts and first hype.
#include <cstdint>

namespace trovane {

class Game;

// The current label's five reputations weighted 8, 10, 7, 5, 3.
int32_t labelValue(const Game& g);
// The current label's bandCount, by counting the bands signed to it.
void countLabelBands(Game& g);
// The current label's strengthClass: round(labelValue squared / 87120).
void setRivalStrength(Game& g);
// The current label's hype meters start at minus each reputation.
void setInitialHype(Game& g);

}  // namespace trovane

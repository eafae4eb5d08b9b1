#pragma once
// A label's books.

namespace trovane {

class Game;

void takeLabelWages(Game& g);
void updateLabelFinances(Game& g);

}  // namespace trovane

#pragma once
// Songs written week by week.

namespace trovane {

class Game;

void updateSongs(Game& g);

}  // namespace trovane

#pragma once
// The "did you know" lines the loading screen shows, from fact.gam.
#include <cstdint>
#include <string>

namespace trovane {

class Game;

// One line of fact.gam, trimmed: the (draw mod count)-th record. The draw
// comes from the caller, so that showing a line takes nothing from the
// game's own random stream. An empty or missing file gives "".
std::string loadingFact(Game& g, uint32_t draw);

}  // namespace trovane

#pragma once
// How an act's standing in a market moves: the hype meter fills toward the
// reputation, and each time it passes it the reputation goes up.
#include <array>
#include <cstdint>

namespace trovane {

class Game;

// On the current band. amount is doubled before use. reason is the chart
// file that is open while the change is made (0 to 9), or -1 when none is:
// a rise is then spread over the album and single charts of the market.
void changeHype(Game& g, int16_t amount, int market, int reason);

// On the current band: its five reputations move by the deltas (held 2 to
// 100), each member's by the same for a solo act and by delta x 3 / rank of
// the job in a band (held 0 to 100), and the band's label takes the deltas on
// its hype meter. The band is written; the label and artist buffers move.
void applyReputationChange(Game& g, const std::array<int16_t, 5>& deltas);

}  // namespace trovane

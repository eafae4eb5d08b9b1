#pragma once
// How a band's reputation moves: the hype meter of each market, and the
// change that reaches the band, its members and its label.
#include <array>
#include <cstdint>

namespace trovane {

class Game;

// Where a market's meter stands after a move of `amount`, and the change it
// makes to the reputation there.
struct HypeStep {
    int hype;
    int change;
};
HypeStep hypeStep(int reputation, int hype, int amount);

// On the current band: the one way its reputation in a market moves. The
// amount counts double; a boost first recovers the whole slump; a meter that
// passes the reputation raises it, one that falls below -100 costs a point.
// A change reaches the label's charting discs in that market (not the rest of
// the world) and, through applyReputationChange, the members and the label.
// The band is written. `reason` tells where the boost came from; it changes
// nothing here.
void changeHype(Game& g, int16_t amount, int market, int reason);
// changeHype for a band buffer that holds the band as it stands in its table:
// a meter that changes no reputation moves in the band's bytes.
void changeHypeOfReadBand(Game& g, int16_t amount, int market, int reason);

// On the current band: each market moves by its delta, held 2 to 100; each
// member by the delta (a solo act) or round(delta x 3 / job rank), held 0 to
// 100; a signed band's label through addLabelHype. The band is written; the
// artist and label buffers are left on the last ones changed.
void applyReputationChange(Game& g, const std::array<int16_t, 5>& deltas);

}  // namespace trovane

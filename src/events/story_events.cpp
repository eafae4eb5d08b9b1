#include "events/story_events.h"

#include "world/game.h"

namespace trovane {

// Makes eventRollsPerDay - 1 counted draws of an enabled (root) event; each
// fires when a roll of 0 to 99 comes in below its chance. Draws of events that
// cannot fire by themselves do not count; with none enabled there is nothing to roll.
void runRandomEvents(Game& g) {
    int32_t events = g.event.recordCount() - 1;
    int rolls = g.eventRollsPerDay - 1;
    if (events < 1 || rolls < 1) return;
    bool anyEnabled = false;
    for (int32_t n = 1; n <= events && !anyEnabled; ++n) {
        g.event.read(n);
        anyEnabled = g.event->isRoot != 0;
    }
    if (!anyEnabled) return;
    for (int counted = 0; counted < rolls;) {
        g.event.read(g.rng.between(1, events));
        if (g.event->isRoot == 0) continue;
        ++counted;
        if (g.rng.between(0, 99) < g.event->chance) tryStartEvent(g);
    }
}

// Not built yet: stories start once casting and stages are written.
void tryStartEvent(Game& g) { static_cast<void>(g); }

// Not built yet: stories have no later stages until they are written.
void performStage(Game& g) { static_cast<void>(g); }

}  // namespace trovane

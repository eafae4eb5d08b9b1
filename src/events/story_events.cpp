#include "events/story_events.h"

#include "world/game.h"

#include <cstdlib>

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

namespace {

bool outside(int16_t bound, int value) {
    if (bound > 0) return value < bound;
    if (bound < 0) return value > -bound;
    return false;
}

}  // namespace

std::string failedCondition(Game& g, const EventCondition& c, int place, int16_t first) {
    const ArtistRecord a = g.artist.rec;
    ArtistRecord p1{};
    if (place == 1 && first > 0 && first < g.artist.recordCount()) {
        g.artist.read(first);
        p1 = g.artist.rec;
        g.artist.rec = a;
    }
    const bool male = a.male != kFalse;
    switch (c.genderRule) {
    case 1:
        if (!male) return "gender";
        break;
    case 2:
        if (male) return "gender";
        break;
    case 3:
        if (place == 1 && male != (p1.male != kFalse)) return "gender";
        break;
    case 4:
        if (place == 1 && male == (p1.male != kFalse)) return "gender";
        break;
    default: break;
    }
    BandRecord band{};
    if (a.band > 0 && a.band < g.band.recordCount()) {
        g.band.read(a.band);
        band = g.band.rec;
    }
    if (c.bandRule == -3) {
        if (place == 1 ? (a.band == 0 || a.band != p1.band) : (a.band == 0 || band.memberCount > 2)) return "band";
    } else if (c.bandRule == -2) {
        if (place == 1 && (a.band == 0 || a.band != p1.band)) return "band";
    } else if (c.bandRule != 0) {
        if (a.band == 0 || band.label != c.bandRule) return "band";
    }
    const int16_t player = g.player.playerLabel;
    const bool players = a.band > 0 && player > 0 && band.label == player;
    if (c.labelRule == -2 && !players) return "label";
    if (c.labelRule == -1 && players) return "label";
    if (c.labelRule > 0 && (a.band == 0 || band.label != c.labelRule)) return "label";
    if (outside(c.age, a.age)) return "age";
    if (c.job != 0 && c.job != a.job) return "job";
    static constexpr const char* kNames[6] = {"ability", "charisma", "controversy", "attitude", "angst", "morale"};
    const int values[6] = {a.ability, a.charisma, a.controversy, a.attitude, a.angst, a.morale};
    for (std::size_t i = 0; i < 6; ++i)
        if (outside(c.bounds[i], values[i])) return kNames[i];
    return {};
}

// Not built yet: stories start once casting and stages are written.
void tryStartEvent(Game& g) { static_cast<void>(g); }

// Not built yet: stories have no later stages until they are written.
void performStage(Game& g) { static_cast<void>(g); }

}  // namespace trovane

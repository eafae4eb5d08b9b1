#pragma once
// The player's label and a rival, with an unsigned act, one of the player's and
// one of the rival's, for the trovane-sim tests of scouting, signing and stories.
#include <string>
#include <utility>

#include "session/session_record.h"
#include "support/amend.h"
#include "support/empty_game.h"
#include "support/signing_world.h"
#include "support/sim_run.h"

namespace trovane::test {

struct SimBandWorld {
    EmptyGame eg;
    Game& g = eg.g;
    int16_t home = addLabel(g, {1, 1, 1, 1, 1}, "Home Records");
    int16_t rival = addLabel(g, {1, 1, 1, 1, 1}, "Rival Records");
    int16_t style = addStyle(g, 10);
    // Free (artists 1 and 2) asks 60,000 with three options of 18 months at 10
    // percent; Ours is artist 3, Taken artist 4.
    int16_t free = addAct(g, {.ranks = {1, 2}, .name = "Free"});
    int16_t ours = addAct(g, {.label = home, .name = "Ours"});
    int16_t taken = addAct(g, {.label = rival, .name = "Taken"});

    SimBandWorld() {
        g.player.playerLabel = home;
        amend(g.band, free, [&] {
            g.band->initialAdvance = moneyUnits(60'000);
            g.band->additionalAdvance = moneyUnits(20'000);
            g.band->additionalAdvanceCount = 3;
            g.band->optionLength = 18;
            g.band->royaltyRate = 10;
        });
    }
    // Writes the session; the tables close, ready for trovane-sim.
    void save() {
        writeSessionFile(g, workingSessionFile(g));
        closeAllTables(g);
    }
    std::pair<int, std::string> sim(const std::string& args) { return runSim(eg.folder.path(), args); }
};

}  // namespace trovane::test

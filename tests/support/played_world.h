#pragma once
// The shipped world, a label taken over, played on day by day with every item
// that holds the calendar answered by its first button.
#include "support/taken_over_game.h"

namespace trovane::test {

struct PlayedWorld : TakenOverGame {
    PlayedWorld() : TakenOverGame(1, StartWorld::shipped) { takeOver(1, annLee()); }

    // Days played without the invariants checked after each.
    void play(int days) {
        for (int d = 0; d < days; ++d) {
            answerHeld();
            checkDaysSchedule(g);
        }
    }
};

}  // namespace trovane::test

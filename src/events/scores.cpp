#include "events/scores.h"

#include "world/record_store.h"
#include "world/strings.h"

namespace trovane {

// Not built yet: an empty step of the day until its rules are written.
void addThisYearsBirthdays(Game& g) { static_cast<void>(g); }

void updateHighScoreTable(Game& g) {
    int64_t score = 0;
    if (g.player.playerStaff > 0) {
        g.staff.read(g.player.playerStaff);
        for (int32_t p : g.staff->points) score += p;
    }
    g.highscore.open(dataFile(g, "highscore", "gam"), IfMissing::createEmpty);
    int32_t row = 0;
    for (int32_t n = 1; n != g.highscore.recordCount(); ++n) {
        g.highscore.read(n);
        if (g.highscore->game == g.player.gameNumber) {
            row = n;
            break;
        }
    }
    if (row == 0) row = g.highscore.recordCount();
    HighScoreRecord& h = g.highscore.rec;
    h.id = narrow<int16_t>(row);
    h.score = narrow<int32_t>(score);
    h.player = trim(g.player.playerForename.value) + " " + trim(g.player.playerSurname.value);
    h.labelName = g.player.playerLabelName;
    h.game = g.player.gameNumber;
    g.highscore.write(row);
    g.highscore.close();
}

// Not built yet: birthdays pass unnoticed until they are written.
void artistBirthday(Game& g) { static_cast<void>(g); }

}  // namespace trovane

#pragma once
// The shipped world, a label taken over, played on day by day with every item
// that holds the calendar answered by its first button.
#include <filesystem>

#include "day/daily_cycle.h"
#include "day/news_inbox.h"
#include "floor/preferences.h"
#include "session/new_game.h"
#include "support/temp_folder.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/record_store.h"

namespace trovane::test {

struct PlayedWorld {
    TempFolder folder;
    Game g{folder.path(), 1};

    PlayedWorld() {
        const std::filesystem::path base = std::filesystem::path(TROVANE_SIM_PATH).parent_path() / "Data";
        for (const auto& f : std::filesystem::directory_iterator(base))
            std::filesystem::copy_file(f.path(), folder.path() / f.path().filename());
        g.clockDate = [] { return serialFromCivil(2026, 11, 22); };
        readPrefs(g);
        beginNewGame(g);
        PlayerChoices p = defaultPlayerChoices(g);
        p.forename = "Ann";
        p.surname = "Lee";
        takeOverLabel(g, confirmPlayer(g, p), 1);
    }
    ~PlayedWorld() { closeAllTables(g); }

    void answerHeldItems() {
        while (!allRepliesGiven(g)) {
            openNewsItem(g);
            pressNewsCmd1(g);
            g.news->replied = kTrue;
            g.news.write();
        }
    }
    void play(int days) {
        for (int d = 0; d < days; ++d) {
            answerHeldItems();
            checkDaysSchedule(g);
        }
    }
};

}  // namespace trovane::test

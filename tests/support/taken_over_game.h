#pragma once
// A new game on the tiny or the shipped world, a label taken over by the
// player, and days played one at a time: every held item answered, then the
// day run and the invariants checked.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include "day/daily_cycle.h"
#include "day/news_inbox.h"
#include "floor/preferences.h"
#include "session/invariants.h"
#include "session/new_game.h"
#include "support/temp_folder.h"
#include "support/tiny_world.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/numbers.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane::test {

enum class StartWorld { tiny, shipped };

class TakenOverGame {
public:
    TempFolder folder;
    Game g;
    int16_t label = 1, band = 0;  // the label taken over and its first active act

    // `writeWorld` replaces the tiny world's writer (e.g. to add records to it).
    explicit TakenOverGame(uint64_t seed, StartWorld world = StartWorld::tiny,
                           const std::function<void(const std::filesystem::path&)>& writeWorld = {})
        : g(folder.path(), seed) {
        if (world == StartWorld::shipped) {
            const auto base = std::filesystem::path(TROVANE_SIM_PATH).parent_path() / "Data";
            for (const auto& f : std::filesystem::directory_iterator(base))
                std::filesystem::copy_file(f.path(), folder.path() / f.path().filename());
        } else if (writeWorld) {
            writeWorld(folder.path());
        } else {
            writeTinyBaseWorld(folder.path());
        }
        g.clockDate = [] { return serialFromCivil(2026, 11, 22); };
        readPrefs(g);
        beginNewGame(g);
    }
    ~TakenOverGame() { closeAllTables(g); }

    static PlayerChoices kimRowe() {
        PlayerChoices p;
        p.forename = "Kim";
        p.surname = "Rowe";
        p.nationality = "Scottish";
        return p;
    }
    PlayerChoices annLee() {
        PlayerChoices p = defaultPlayerChoices(g);
        p.forename = "Ann";
        p.surname = "Lee";
        return p;
    }
    int16_t labelNamed(const char* name) { return narrow<int16_t>(findRecordByName(g, FileNo::fileLabel, name)); }
    void takeOver(int16_t which = 1, PlayerChoices p = kimRowe()) {
        label = which;
        takeOverLabel(g, confirmPlayer(g, p), label);
        for (int32_t n = 1; n < g.band.recordCount() && band == 0; ++n) {
            g.band.read(n);
            if (g.band->label == label && g.band->retired == kFalse) band = static_cast<int16_t>(n);
        }
    }

    // Every held item answered with button 1 (yes) or 2 (no).
    void answerHeld(int button = 1) {
        for (int held = 0; !allRepliesGiven(g); ++held) {
            ASSERT_LT(held, 50) << "an item stays held";
            openNewsItem(g);
            button == 1 ? pressNewsCmd1(g) : pressNewsCmd2(g);
            g.news->replied = kTrue;
            g.news.write();
        }
    }
    void playDay(int button = 1) {
        ASSERT_NO_FATAL_FAILURE(answerHeld(button));
        checkDaysSchedule(g);
        const auto broken = checkInvariants(g);
        ASSERT_FALSE(broken) << "day " << g.gameDate << ": " << describeBreak(*broken);
    }
    void playUntil(double date, int button = 1) {
        while (g.gameDate < date && !::testing::Test::HasFatalFailure()) playDay(button);
    }
};

}  // namespace trovane::test

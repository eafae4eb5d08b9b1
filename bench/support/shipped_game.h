#pragma once
// The shipped world copied to a fresh temporary folder, and a new game on it
// at the helm of one of its labels, for the benchmarks.
#include <filesystem>
#include <memory>

#include "day/daily_cycle.h"
#include "day/news_inbox.h"
#include "floor/preferences.h"
#include "session/new_game.h"
#include "world/game.h"
#include "world/record_store.h"

namespace trovane::bench {

// A fresh folder of that name holding the shipped base world.
inline std::filesystem::path shippedWorld(const char* name) {
    namespace fs = std::filesystem;
    fs::path p = fs::temp_directory_path() / name;
    fs::remove_all(p);
    fs::create_directories(p);
    for (const auto& e : fs::directory_iterator(TROVANE_DATA_DIR))
        if (e.path().extension() == ".gam") fs::copy_file(e.path(), p / e.path().filename());
    return p;
}

// A new game on the shipped world, Ann Lee founding Quarry Records in Glasgow.
inline void foundQuarryRecords(Game& g) {
    readPrefs(g);
    beginNewGame(g);
    PlayerChoices p;
    p.forename = "Ann";
    p.surname = "Lee";
    p.nationality = "Scottish";
    LabelChoices l;
    l.name = "Quarry Records";
    l.country = "Scotland";
    l.city = "Glasgow";
    foundLabel(g, confirmPlayer(g, p), l);
}

// A new game on the shipped world, the player Ann Lee at the helm of label.
struct ShippedGame {
    Game g;
    explicit ShippedGame(const char* name, int16_t label = 1) : g(shippedWorld(name), 1) {
        readPrefs(g);
        beginNewGame(g);
        PlayerChoices p;
        p.forename = "Ann";
        p.surname = "Lee";
        p.nationality = "Scottish";
        p.createNewLabel = false;
        takeOverLabel(g, confirmPlayer(g, p), label);
    }
    ~ShippedGame() { closeAllTables(g); }
    ShippedGame(const ShippedGame&) = delete;
    ShippedGame& operator=(const ShippedGame&) = delete;

    // Plays a day, every item that holds the calendar answered by its first button.
    void playDay() {
        while (!allRepliesGiven(g)) {
            openNewsItem(g);
            pressNewsCmd1(g);
            g.news->replied = kTrue;
            g.news.write();
        }
        checkDaysSchedule(g);
    }
    void play(int days) {
        for (int d = 0; d < days; ++d) playDay();
    }
};

}  // namespace trovane::bench

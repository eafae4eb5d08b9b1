#include "session/empty_world.h"

#include <fstream>

#include <fmt/format.h>

#include "floor/preferences.h"
#include "schedule/schedule.h"
#include "session/session_record.h"
#include "world/dates.h"
#include "world/record_store.h"

namespace trovane {

double gameStartDay() { return serialFromCivil(2004, 8, 5); }

void createEmptyWorkingSet(Game& g) {
    std::error_code ec;
    std::filesystem::create_directories(g.dataDir, ec);
    if (ec) throw FatalError(fmt::format("Cannot make the data folder {}: {}", g.dataDir.string(), ec.message()));
    closeAllTables(g);
    auto touch = [](const std::filesystem::path& p) {
        std::ofstream out(p, std::ios::binary | std::ios::trunc);
        if (!out) throw FatalError(fmt::format("Cannot write {}", p.string()));
    };
    touch(g.dataDir / "empty.gam");
    for (auto stem : tableSetStems()) copyEmptyFile(g, dataFile(g, stem, "vel"));
    if (!std::filesystem::exists(dataFile(g, "prefs", "gam"))) {
        setDeliveredPrefs(g);
        writePrefs(g);
    }
    if (!std::filesystem::exists(dataFile(g, "highscore", "gam"))) copyEmptyFile(g, dataFile(g, "highscore", "gam"));

    g.gameStartDate = gameStartDay();
    g.gameDate = g.gameStartDate;
    g.firstScheduleYear = 2004;
    g.lastScheduleYear = 0;
    g.eventRollsPerDay = 0;
    g.player = PlayerBlock{};
    g.player.dateBegun = g.gameDate;
    g.currentYear = 2004;
    readPrefs(g);
    openAllTables(g, "vel");
    // A new game files its first two years; each 31 December files the year after next.
    addScheduleYear(g, 2004);
    addScheduleYear(g, 2005);
    commitWorkingGame(g);
}

}  // namespace trovane

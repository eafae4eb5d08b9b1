// The game every verb opens, the base set beside it, and how a run reports its end.
#include <chrono>
#include <cstdio>

#include <fmt/format.h>

#include "app/sim_context.h"
#include "floor/formats.h"
#include "floor/preferences.h"
#include "session/invariants.h"
#include "session/session_record.h"
#include "session/working_set_check.h"
#include "world/dates.h"
#include "world/record_dump.h"
#include "world/record_store.h"

namespace trovane::sim {

namespace fs = std::filesystem;

namespace {

uint64_t clockSeed() { return static_cast<uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()); }

}  // namespace

int32_t recordNamed(Game& g, FileNo table, const std::string& what) {
    const bool digits = !what.empty() && what.size() < 10 && what.find_first_not_of("0123456789") == std::string::npos;
    if (!digits) return what.empty() ? 0 : findRecordByName(g, table, what);
    const int32_t n = std::stoi(what);
    return n >= 1 && n < recordCount(g, table) ? n : 0;
}

std::string isoDate(double serial) { return formatDate(serial, "yyyy-mm-dd"); }

std::string isoDateIfSet(double serial) { return serial > kNoDate ? isoDate(serial) : ""; }

std::optional<double> parseIsoDate(const std::string& text) {
    int y = 0;
    unsigned m = 0, d = 0;
    char tail = 0;
    if (std::sscanf(text.c_str(), "%d-%u-%u%c", &y, &m, &d, &tail) != 3) return std::nullopt;
    if (m < 1 || m > 12 || d < 1 || d > daysInMonth(y, m)) return std::nullopt;
    return serialFromCivil(y, m, d);
}

std::string exitStatusTable() {
    return "Exit status:\n"
           "  0  done\n"
           "  1  the game refused, in its own words; nothing changed\n"
           "  2  a bad command line or argument\n"
           "  3  held by a news item that must be answered first\n"
           "  4  an invariant broke\n"
           "  5  broken data or a broken slot (the file is named)\n"
           "With --json an error prints {\"error\": TEXT, \"status\": N}.";
}

void printError(bool json, const std::string& text, int status) {
    if (json)
        std::printf("{\"error\":%s,\"status\":%d}\n", jsonQuote(text).c_str(), status);
    else
        std::fprintf(stderr, "trovane-sim: %s\n", text.c_str());
}

fs::path baseSetFolder(const fs::path& dataDir) {
    if (fs::exists(dataDir / "country.gam")) return dataDir;
    std::error_code ec;
    fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    fs::path base = exe.parent_path() / "Data";
    if (ec || !fs::exists(base / "country.gam"))
        throw SimError(kExitBroken, fmt::format("{} holds no base world (country.gam and the rest), and none was "
                                                "found beside the program",
                                                dataDir.string()));
    return base;
}

// A folder with the session record or the chief tables of a working set holds
// a game, whole or broken; the check at opening names what is wrong with a
// broken one.
bool SimContext::gameInProgress() const {
    for (const char* file : {"svar.vel", "band.vel", "label.vel", "artist.vel"})
        if (fs::exists(dataDir / file)) return true;
    return false;
}

Game& SimContext::freshGame() {
    game_ = std::make_unique<Game>(dataDir, seed.value_or(clockSeed()));
    return *game_;
}

Game& SimContext::baseSetGame() {
    game_ = std::make_unique<Game>(baseSetFolder(dataDir), seed.value_or(clockSeed()));
    return *game_;
}

Game& SimContext::openGame() {
    if (!gameInProgress()) throw SimError(kExitRefused, kNoGame);
    Game& g = freshGame();
    checkWorkingSet(g);
    readPrefs(g);
    readSessionFile(g, workingSessionFile(g));
    openAllTables(g, "vel");
    noteActiveActs(g);
    return g;
}

void SimContext::closeGame() {
    if (!game_) return;
    if (game_->news.isOpen()) commitWorkingGame(*game_);
    closeAllTables(*game_);
}

void SimContext::refuse(const std::string& why) {
    printError(json, why, kExitRefused);
    exitCode = kExitRefused;
}

}  // namespace trovane::sim

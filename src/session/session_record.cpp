#include "session/session_record.h"

#include <fmt/format.h>

#include "session/empty_world.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane {

std::filesystem::path workingSessionFile(const Game& g) { return g.dataDir / "svar.vel"; }

void fillSessionRecord(Game& g, std::string_view saveName) {
    SvarRecord& s = g.svar.rec;
    s = SvarRecord{};
    s.saveName = trim(saveName);
    s.gameDate = g.gameDate;
    s.lastScheduleYear = g.lastScheduleYear;
    s.firstScheduleYear = g.firstScheduleYear;
    s.lastScheduleYear2 = g.lastScheduleYear;
    s.eventRollsPerDay = g.eventRollsPerDay;
    s.player = g.player;
}

void applySessionRecord(Game& g, const SvarRecord& s) {
    g.gameDate = s.gameDate;
    // Not part of the record: every game starts on the same day.
    g.gameStartDate = gameStartDay();
    g.lastScheduleYear = s.lastScheduleYear;
    g.firstScheduleYear = s.firstScheduleYear;
    g.eventRollsPerDay = s.eventRollsPerDay;
    g.player = s.player;
    g.currentYear = static_cast<int16_t>(yearOf(g.gameDate));
}

void writeSessionFile(Game& g, const std::filesystem::path& file, std::string_view saveName) {
    fillSessionRecord(g, saveName);
    g.svar.open(file, IfMissing::createEmpty);
    g.svar.write(1);
    g.svar.close();
}

void commitWorkingGame(Game& g) {
    fillSessionRecord(g, "");
    FileWrite session{
        workingSessionFile(g), SvarRecord::kLength, {Patch{0, std::vector<uint8_t>(SvarRecord::kLength)}}};
    encodeRecord(g.svar.rec, session.patches[0].bytes.data());
    flushAllTables(g, {std::move(session)});
}

void readSessionFile(Game& g, const std::filesystem::path& file) {
    g.svar.open(file, IfMissing::fail);
    bool present = g.svar.readIfPresent(1);
    g.svar.close();
    if (!present) throw FatalError(fmt::format("The session record {} is empty", file.string()));
    applySessionRecord(g, g.svar.rec);
}

}  // namespace trovane

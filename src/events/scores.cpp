#include "events/scores.h"

#include <algorithm>
#include <vector>

#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane {

// Not built yet: an empty step of the day until its rules are written.
double nextBirthday(const Game& g, double birthDate) {
    const double today = g.gameDate;
    int year = yearOf(today);
    if (monthOf(today) == 12 && dayOf(today) == 31) ++year;
    return serialFromCivil(year, monthOf(birthDate), dayOf(birthDate));
}

// On 31 December the coming year's birthdays; on any other day (a new game's)
// those still to come this year. Only the living have birthdays.
void addThisYearsBirthdays(Game& g) {
    std::vector<ScheduleRecord> entries;
    for (int32_t n = 1; n < g.artist.recordCount(); ++n) {
        g.artist.read(n);
        if (g.artist->retired != kFalse || g.artist->birthDate <= kNoDate) continue;
        const double date = nextBirthday(g, g.artist->birthDate);
        if (date <= g.gameDate) continue;
        ScheduleRecord e{};
        e.type = static_cast<uint8_t>(ScheduleType::artistBirthday);
        e.date = date;
        e.artist = narrow<int16_t>(n);
        entries.push_back(e);
    }
    addSchedules(g, entries);
}

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
void artistBirthday(Game& g) {
    const int16_t n = g.schedule->artist;
    if (n < 1 || n >= g.artist.recordCount()) return;
    g.artist.read(n);
    if (g.artist->retired != kFalse) return;
    g.artist->age = narrow<uint8_t>(std::min(g.artist->age + 1, 255));
    g.artist.write();
}

}  // namespace trovane

namespace trovane {

namespace {

int16_t currentOf(Game& g, int kind) {
    switch (kind) {
    case 0: return g.band->id;
    case 1: return g.artist->id;
    case 2: return g.label->id;
    default: return g.staff->id;
    }
}

void appendAchievement(Game& g, int kind, int16_t who, const std::string& text) {
    g.achieve.rec = AchievementRecord{};
    g.achieve->kind = narrow<uint8_t>(kind);
    g.achieve->text = text;
    g.achieve->date = g.gameDate;
    g.achieve->who = who;
    g.achieve.append();
}

}  // namespace

void addAchievement(Game& g, int kind, const std::string& text) {
    appendAchievement(g, kind, currentOf(g, kind), text);
    if (kind != 0) return;
    const BandRecord band = g.band.rec;
    int members = std::min<int>(band.memberCount, static_cast<int>(band.members.size()));
    for (int i = 0; i < members; ++i) {
        int16_t who = band.members[static_cast<std::size_t>(i)];
        if (who > 0) appendAchievement(g, 1, who, "(" + trim(band.name.value) + ") " + text);
    }
}

}  // namespace trovane

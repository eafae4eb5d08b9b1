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

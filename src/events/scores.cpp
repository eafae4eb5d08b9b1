#include "events/scores.h"

#include <algorithm>

#include "floor/formats.h"
#include "schedule/schedule.h"
#include "world/dates.h"
#include "world/record_bytes.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane {

double birthdayIn(double birthDate, int year) {
    const CivilDate born = civilFromSerial(birthDate);
    // 29 February in a common year falls on 1 March.
    if (born.month == 2 && born.day == 29 && daysInMonth(year, 2) == 28) return serialFromCivil(year, 3, 1);
    return serialFromCivil(year, born.month, born.day);
}

void addBirthdays(Game& g, int year, double from) {
    // The few fields needed are read straight from the records' bytes.
    static const std::size_t retiredAt = offsetIn<ArtistRecord>("retired");
    static const std::size_t birthAt = offsetIn<ArtistRecord>("birthDate");
    static const std::size_t idAt = offsetIn<ArtistRecord>("id");
    static const std::size_t bandAt = offsetIn<ArtistRecord>("band");
    std::vector<ScheduleRecord> entries;
    const int32_t artists = g.artist.recordCount();
    for (int32_t n = 1; n < artists; ++n) {
        const uint8_t* a = g.artist.bytesOf(n).data();
        const auto born = fieldAt<double>(a, birthAt);
        if (fieldAt<int16_t>(a, retiredAt) != 0 || born <= kNoDate) continue;
        const double date = birthdayIn(born, year);
        if (date < from) continue;
        ScheduleRecord r{};
        r.type = 16;
        r.date = date;
        r.artist = fieldAt<int16_t>(a, idAt);
        r.band = fieldAt<int16_t>(a, bandAt);
        entries.push_back(r);
    }
    // The walk leaves the last artist in the buffer.
    if (artists > 1) g.artist.read(artists - 1);
    addSchedules(g, entries);
}

// On 31 December: every birthday of the coming year.
void addThisYearsBirthdays(Game& g) {
    const int year = yearOf(g.gameDate + 1);
    addBirthdays(g, year, serialFromCivil(year, 1, 1));
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

void artistBirthday(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (entry.artist < 1 || entry.artist >= g.artist.recordCount()) return;
    g.artist.read(entry.artist);
    g.artist->age = narrow<uint8_t>(std::min(g.artist->age + 1, 255));
    g.artist.write();
}

std::vector<HighScoreRow> highScoreRows(Game& g) {
    std::vector<HighScoreRow> rows;
    const auto file = dataFile(g, "highscore", "gam");
    if (!dataFileExists(g, file)) return rows;
    g.highscore.open(file, IfMissing::fail);
    for (int32_t n = 1; n < g.highscore.recordCount(); ++n) {
        g.highscore.read(n);
        rows.push_back({0, g.highscore->score, trim(g.highscore->player.value), trim(g.highscore->labelName.value),
                        g.highscore->game});
    }
    g.highscore.close();
    std::stable_sort(rows.begin(), rows.end(),
                     [](const HighScoreRow& a, const HighScoreRow& b) { return a.score > b.score; });
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i].position = static_cast<int>(i) + 1;
    return rows;
}

BirthdayNote birthdayNote(Game& g) {
    BirthdayNote note;
    note.title = trim(g.player.playerForename.value) + "'s Birthday";
    double born = 0;
    if (g.player.playerStaff > 0 && g.player.playerStaff < g.staff.recordCount()) {
        g.staff.read(g.player.playerStaff);
        born = g.staff->birthDate;
    }
    std::string lines;
    if (born > kNoDate) {
        const CivilDate mine = civilFromSerial(born);
        for (int32_t n = 1; n < g.artist.recordCount(); ++n) {
            g.artist.read(n);
            if (g.artist->birthDate <= kNoDate) continue;
            const CivilDate theirs = civilFromSerial(g.artist->birthDate);
            if (theirs.month != mine.month || theirs.day != mine.day) continue;
            const ArtistRecord a = g.artist.rec;
            std::string band = "independent artist";
            if (a.band > 0 && a.band < g.band.recordCount()) {
                g.band.read(a.band);
                band = trim(g.band->name.value);
            }
            lines += "- " + trim(a.forename.value) + " " + trim(a.surname.value) + " (" + band + ") \r\n";
        }
        if (!lines.empty())
            note.text = "Congratulations! You share your birthday (" + std::to_string(mine.day) + " " +
                        formatDate(born, "mmmm") + ") with :-\r\n\r\n" + lines;
    }
    if (note.text.empty()) note.text = "Unfortunately no artists in Trovane share your birthday, sorry about that.";
    return note;
}

bool isPlayersBirthday(Game& g) {
    if (g.player.playerStaff < 1 || g.player.playerStaff >= g.staff.recordCount()) return false;
    g.staff.read(g.player.playerStaff);
    if (g.staff->birthDate <= kNoDate) return false;
    return monthOf(g.staff->birthDate) == monthOf(g.gameDate) && dayOf(g.staff->birthDate) == dayOf(g.gameDate);
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

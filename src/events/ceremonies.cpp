#include "events/ceremonies.h"

#include <vector>

#include "events/ceremony_judging.h"
#include "events/ceremony_show.h"
#include "events/scores.h"
#include "floor/formats.h"
#include "floor/news_post.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kInvitationNotice = 21;

ScheduleRecord ceremonyEntry(ScheduleType type, double date, int16_t ceremony) {
    ScheduleRecord e{};
    e.type = static_cast<uint8_t>(type);
    e.date = date;
    e.ceremony = ceremony;
    return e;
}

}  // namespace

double ceremonyNight(int year, int week, int weekday) {
    // Week 1 starts on 1 January; the night is the day of that week with the weekday.
    double weekStart = serialFromCivil(year, 1, 1) + 7.0 * (week - 1);
    int offset = ((weekday - weekdayOf(weekStart)) % 7 + 7) % 7;
    return weekStart + offset;
}

void scheduleCeremonies(Game& g, int year) {
    std::vector<ScheduleRecord> entries;
    for (int32_t n = 1; n < g.ceremony.recordCount(); ++n) {
        g.ceremony.read(n);
        const auto& c = g.ceremony->calendar;
        if (c[0] < 1 || c[1] < 1 || c[1] > 7) continue;
        double night = ceremonyNight(year, c[0], c[1]);
        auto id = static_cast<int16_t>(n);
        const ScheduleRecord planned[] = {
            ceremonyEntry(ScheduleType::ceremonyInvitation, night - kInvitationNotice, id),
            ceremonyEntry(ScheduleType::ceremonyNominations, night - 7.0 * c[2], id),
            ceremonyEntry(ScheduleType::ceremonyNight, night, id),
        };
        for (const ScheduleRecord& e : planned)
            if (e.date >= g.gameStartDate) entries.push_back(e);
    }
    addSchedules(g, entries);
}

void inviteToCeremony(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (!g.ceremony.readIfPresent(entry.ceremony)) return;
    // The night is three weeks on, which may be in the next year.
    int year = yearOf(entry.date + kInvitationNotice);
    const auto& c = g.ceremony->calendar;
    double night = ceremonyNight(year, c[0], c[1]);
    g.ceremony->date = night;
    g.ceremony->playerInvited = kFalse;
    g.ceremony.write();
    std::string name = trim(g.ceremony->name.value);
    postNews(g, {.date = g.gameDate,
                 .title = "Invitation to " + name,
                 .text = "You have been invited to attend this year's " + name + " ceremony on " +
                         formatDate(night, "d/m/yyyy") + ". Do you want to accept the invitation?",
                 .kind = kNewsYesNo,
                 .scheduleLink = entry.id});
}

void judgeCeremony(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (!g.ceremony.readIfPresent(entry.ceremony)) return;
    const CeremonyRecord ceremony = g.ceremony.rec;
    g.country.readIfPresent(ceremony.country);
    const CountryRecord host = g.country.rec;
    for (int16_t award : ceremony.awards) {
        if (award < 1 || !g.award.readIfPresent(award)) continue;
        g.country.rec = host;
        NomineeList list = judgeAward(g);
        fixNominees(g, list);
        g.award.write();
    }
}
namespace {

// Reads the band an award's winner belongs to; false when there is none.
bool readWinnersBand(Game& g, const AwardRecord& a) {
    int16_t who = a.nominees[0];
    switch (a.kind) {
    case 0:
    case 4:
        if (!g.disc.readIfPresent(who)) return false;
        return g.band.readIfPresent(g.disc->band);
    case 1:
    case 5:
        if (!g.artist.readIfPresent(who)) return false;
        return g.artist->band > 0 && g.band.readIfPresent(g.artist->band);
    case 6:
        if (!g.song.readIfPresent(who)) return false;
        return g.band.readIfPresent(g.song->band);
    default: return g.band.readIfPresent(who);
    }
}

}  // namespace

void finishCeremony(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (!g.ceremony.readIfPresent(entry.ceremony)) return;
    const CeremonyRecord ceremony = g.ceremony.rec;
    const auto year = static_cast<int16_t>(yearOf(g.gameDate));
    const std::string ceremonyName = trim(ceremony.name.value);
    // The show is built first: an act that wins tonight has not won before.
    const bool attended = ceremony.playerInvited == kTrue;
    if (attended) {
        g.showSteps = buildCeremonyShow(g, ceremony.id, g.gameDate);
        g.showCeremony = ceremony.id;
    }
    for (int16_t award : ceremony.awards) {
        if (award < 1 || !g.award.readIfPresent(award)) continue;
        g.award->held = year;
        if (g.award->nomineeCount > 0) g.award->winner = 1;
        g.award.write();
        const AwardRecord a = g.award.rec;
        if (a.nomineeCount == 0) continue;
        const std::string text = "Winner of " + trim(a.name.value) + " award. (" + ceremonyName + ")";
        if (a.kind == 3) {
            if (g.label.readIfPresent(a.nominees[0])) addAchievement(g, 2, text);
        } else if (readWinnersBand(g, a)) {
            addAchievement(g, 0, text);
        }
    }
    g.ceremony.read(ceremony.id);
    g.ceremony->held = year;
    g.ceremony.write();
    if (attended) {
        g.previousScreen = Screen::frmNews;
        g.currentScreen = Screen::frmAwardCeremony;
    }
}

}  // namespace trovane

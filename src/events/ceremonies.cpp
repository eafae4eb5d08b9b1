#include "events/ceremonies.h"

#include <vector>

#include "events/ceremony_judging.h"
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
    int year = yearOf(entry.date);
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
// Not built yet: no award is given and no show is played until the night is written.
void finishCeremony(Game& g) { static_cast<void>(g); }

}  // namespace trovane

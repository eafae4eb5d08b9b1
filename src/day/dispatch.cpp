#include "day/dispatch.h"

#include <algorithm>
#include <array>

#include "events/ceremonies.h"
#include "events/scores.h"
#include "events/story_events.h"
#include "label/image.h"
#include "label/scouting.h"
#include "label/staff.h"
#include "live/festivals.h"
#include "live/gigs.h"
#include "live/media_promotion.h"
#include "production/businesses.h"
#include "production/disc_release.h"
#include "production/recording.h"
#include "rivals/rival_bands.h"
#include "rivals/rival_touring.h"
#include "schedule/schedule.h"
#include "talent/contract_progress.h"
#include "talent/contracts.h"
#include "talent/event_fatigue.h"
#include "talent/retirement.h"
#include "world/game.h"

namespace trovane {

namespace {

using G = ScheduleGuard;

constexpr int kLastType = 31;

// Indexed by type. A row without a function is a type that runs nothing.
constexpr std::array<ScheduleHandler, kLastType + 1> kHandlers = {{
    {"", nullptr, G::none},                                             // 0: a blank entry
    {"decideStaffOffer", decideStaffOffer, G::none},                    // 1
    {"hireStaff", hireStaff, G::none},                                  // 2
    {"fireStaff", fireStaff, G::none},                                  // 3
    {"decideOffers", decideOffers, G::bandNotRetired},                  // 4
    {"signBand", signBand, G::bandNotRetired},                          // 5
    {"bandReport", bandReport, G::none},                                // 6
    {"recordingDay", recordingDay, G::bandFitAndNotRetired},            // 7
    {"performGig", performGig, G::gigCanGoAhead},                       // 8
    {"imageReport", imageReport, G::none},                              // 9
    {"", nullptr, G::none},                                             // 10: a travel day only occupies the band
    {"", nullptr, G::none},                                             // 11: so does a rest day
    {"performStage", performStage, G::none},                            // 12
    {"finishCeremony", finishCeremony, G::none},                        // 13
    {"judgeCeremony", judgeCeremony, G::none},                          // 14
    {"releaseDay", releaseDay, G::none},                                // 15
    {"artistBirthday", artistBirthday, G::none},                        // 16
    {"performAppearance", performAppearance, G::appearanceCanGoAhead},  // 17
    {"contractPoint", contractPoint, G::none},                          // 18
    {"offerSupportSlot", offerSupportSlot, G::none},                    // 19
    {"rivalFollowUpSingle", rivalFollowUpSingle, G::none},              // 20
    {"inviteToCeremony", inviteToCeremony, G::none},                    // 21
    {"fillFestivalBill", fillFestivalBill, G::none},                    // 22
    {"", nullptr, G::none},                                             // 23: the link of a festival invitation
    {"openBusiness", openBusiness, G::none},                            // 24
    {"pressWeek", pressWeek, G::none},                                  // 25
    {"distributorNeeded", distributorNeeded, G::none},                  // 26
    {"announceBandRetirement", announceBandRetirement, G::none},        // 27
    {"retireBand", [](Game& g) { retireBand(g, false); }, G::none},     // 28
    {"announceArtistRetirement", announceArtistRetirement, G::none},    // 29
    {"retireArtist", [](Game& g) { retireArtist(g, 1, g.schedule->artist); }, G::none},  // 30
    {"memberLeaves", memberLeaves, G::none},                                             // 31
}};

// Reads the entry's band into the band buffer, when the entry has one.
void readEntryBand(Game& g, const ScheduleRecord& entry) {
    if (entry.band > 0) g.band.read(entry.band);
}

bool notRetired(Game& g) { return g.band->retired == kFalse; }

bool passes(Game& g, ScheduleGuard guard, const ScheduleRecord& entry) {
    switch (guard) {
    case G::none: return true;
    case G::bandNotRetired: readEntryBand(g, entry); return notRetired(g);
    case G::bandFitAndNotRetired: readEntryBand(g, entry); return membersFit(g) && notRetired(g);
    case G::gigCanGoAhead: return gigCanGoAhead(g);
    case G::appearanceCanGoAhead:
        if (entry.band < 1) return false;
        readEntryBand(g, entry);
        return membersFit(g) && notRetired(g);
    }
    return false;
}

void announce(Game& g, std::string_view handler, const ScheduleRecord& entry) {
    if (g.onScheduleHandler) g.onScheduleHandler(handler, entry);
}

}  // namespace

const ScheduleHandler* scheduleHandler(int type) {
    if (type < 0 || type > kLastType) return nullptr;
    const ScheduleHandler& h = kHandlers[static_cast<std::size_t>(type)];
    return h.run ? &h : nullptr;
}

void runScheduleEntry(Game& g) {
    // The handler may file, read or rewrite schedule entries; the energy step
    // is for the entry that was run.
    const ScheduleRecord entry = g.schedule.rec;
    if (const ScheduleHandler* h = scheduleHandler(entry.type)) {
        if (passes(g, h->guard, entry)) {
            announce(g, h->name, entry);
            h->run(g);
        } else if (entry.type == 7) {
            // The day lost to rest is booked again, so the recording still completes.
            announce(g, "extendBooking", entry);
            extendBooking(g);
        }
    }
    applyEventFatigue(g, entry);
}

bool membersFit(Game& g) {
    const BandRecord& b = g.band.rec;
    int members = std::min<int>(b.memberCount, static_cast<int>(b.members.size()));
    for (int i = 0; i < members; ++i) {
        int16_t who = b.members[static_cast<std::size_t>(i)];
        if (who < 1) continue;
        g.artist.read(who);
        if (g.artist->energy < 0) return false;
    }
    return true;
}

bool gigCanGoAhead(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    g.gig.read(entry.gig);
    if (g.gig->bill[0] == 0) return false;
    if (g.gig->tour > 0)
        g.tour.read(g.gig->tour);
    else
        g.tour.rec = TourRecord{};
    if (g.tour->band == 0 && g.tour->festival == 0) return false;
    if (entry.band < 1) return true;
    g.band.read(entry.band);
    if (!notRetired(g)) return false;
    return membersFit(g);
}

void performDaysEvents(Game& g) {
    // The bound is taken once: what the handlers file for today waits in the
    // file. A day only ever grows at its end, so the first `count` entries
    // read now are the ones the loop would read back after every handler,
    // and the day file stays closed while the handlers run.
    for (int32_t id : entriesOfDay(g, g.gameDate)) {
        g.schedule.read(id);
        runScheduleEntry(g);
    }
}

}  // namespace trovane

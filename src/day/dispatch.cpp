#include "day/dispatch.h"

#include <algorithm>
#include <array>

#include "day/schedule_replies.h"
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
#include "schedule/schedule_types.h"
#include "talent/contract_progress.h"
#include "talent/contracts.h"
#include "talent/event_fatigue.h"
#include "talent/retirement.h"
#include "world/game.h"
#include "world/record_bytes.h"

namespace trovane {

namespace {

using G = ScheduleGuard;

constexpr ScheduleAction runs(std::string_view name, void (*run)(Game&)) { return {name, run, nullptr, nullptr}; }

// Indexed by type, beside the data of each type in scheduleTypeInfo.
const std::array<ScheduleAction, kLastScheduleType + 1> kActions = {{
    {},                                                                  // 0: a blank entry
    {"decideStaffOffer", decideStaffOffer, startInThePost, nullptr},     // 1
    runs("hireStaff", hireStaff),                                        // 2
    runs("fireStaff", fireStaff),                                        // 3
    {"decideOffers", decideOffers, confirmTheDeal, dealFallsThrough},    // 4
    runs("signBand", signBand),                                          // 5
    runs("bandReport", bandReport),                                      // 6
    runs("recordingDay", recordingDay),                                  // 7
    runs("performGig", performGig),                                      // 8
    {"imageReport", imageReport, takeTheNewLook, nullptr},               // 9
    {},                                                                  // 10: a travel day only occupies the band
    {},                                                                  // 11: so does a rest day
    runs("performStage", performStage),                                  // 12
    runs("finishCeremony", finishCeremony),                              // 13
    runs("judgeCeremony", judgeCeremony),                                // 14
    runs("releaseDay", releaseDay),                                      // 15
    runs("artistBirthday", artistBirthday),                              // 16
    runs("performAppearance", performAppearance),                        // 17
    runs("contractPoint", contractPoint),                                // 18
    {"offerSupportSlot", offerSupportSlot, joinTourAsSupport, nullptr},  // 19
    runs("rivalFollowUpSingle", rivalFollowUpSingle),                    // 20
    {"inviteToCeremony", inviteToCeremony, attendTheCeremony, nullptr},  // 21
    runs("fillFestivalBill", fillFestivalBill),                          // 22
    {"", nullptr, playTheFestival, nullptr},                             // 23: the link of a festival invitation
    runs("openBusiness", openBusiness),                                  // 24
    runs("pressWeek", pressWeek),                                        // 25
    runs("distributorNeeded", distributorNeeded),                        // 26
    runs("announceBandRetirement", announceBandRetirement),              // 27
    runs("retireBand", [](Game& g) { retireBand(g, false); }),           // 28
    runs("announceArtistRetirement", announceArtistRetirement),          // 29
    runs("retireArtist", [](Game& g) { retireArtist(g, 1, g.schedule->artist); }),  // 30
    runs("memberLeaves", memberLeaves),                                             // 31
}};

constexpr ScheduleAction kNothing{};

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

const ScheduleAction& scheduleAction(int type) {
    if (type < 0 || type > kLastScheduleType) return kNothing;
    return kActions[static_cast<std::size_t>(type)];
}

namespace {

// A festival day's entry names no act: each act on the day's bill is worn as
// a gig entry of its own would wear it.
void wearTheFestivalBill(Game& g, const ScheduleRecord& entry) {
    if (!isType(entry, ScheduleType::gig) || entry.band > 0 || !g.gig.readIfPresent(entry.gig)) return;
    if (g.gig->tour < 1 || !g.tour.readIfPresent(g.gig->tour) || g.tour->festival == 0) return;
    for (int16_t act : billOf(g, entry.gig)) {
        ScheduleRecord own = entry;
        own.band = act;
        applyEventFatigue(g, own);
    }
}

}  // namespace

void runScheduleEntry(Game& g) {
    // The handler may file, read or rewrite schedule entries; the energy step
    // is for the entry that was run.
    const ScheduleRecord entry = g.schedule.rec;
    const ScheduleAction& action = scheduleAction(entry.type);
    if (action.run != nullptr) {
        if (passes(g, scheduleTypeInfo(entry.type).guard, entry)) {
            announce(g, action.name, entry);
            action.run(g);
        } else if (isType(entry, ScheduleType::recordingDay)) {
            // The day lost to rest is booked again, so the recording still completes.
            announce(g, "extendBooking", entry);
            extendBooking(g);
        }
    }
    applyEventFatigue(g, entry);
    wearTheFestivalBill(g, entry);
}

bool membersFit(Game& g) {
    // The energies are read in the members' bytes; the artist buffer is left
    // at the last member looked at, as reading each in turn leaves it.
    static const std::size_t kEnergy = offsetIn<ArtistRecord>("energy");
    const BandRecord& b = g.band.rec;
    int members = std::min<int>(b.memberCount, static_cast<int>(b.members.size()));
    int16_t last = 0;
    bool fit = true;
    for (int i = 0; i < members && fit; ++i) {
        int16_t who = b.members[static_cast<std::size_t>(i)];
        if (who < 1) continue;
        last = who;
        fit = fieldAt<decltype(ArtistRecord::energy)>(g.artist.bytesOf(who), kEnergy) >= 0;
    }
    if (last > 0) g.artist.read(last);
    return fit;
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

#pragma once
// What each type of schedule entry means, in one table: the test it must pass
// before it runs, what it costs its band, whether it keeps the band busy, what
// a reply to its news does, and the activity a band shows while on it.
//
// This half is data the subsystems may read. The other half, the operation
// each type runs and what a yes or a no to its news carries out, stands beside
// the dispatch in the day (day/dispatch.cpp), indexed by the same type. A new
// behaviour is a row here and a function there, never another switch on a
// type number.
#include <cstdint>
#include <string>
#include <string_view>

#include "world/game.h"
#include "world/records.h"

namespace trovane {

enum class ScheduleType : uint8_t {
    blank = 0,
    staffOfferDecision = 1,  // a person decides on the label's offer of a post
    staffJoins = 2,
    staffLeaves = 3,
    offersDecision = 4,  // a band decides among the offers on file
    bandSigns = 5,
    scoutingReport = 6,
    recordingDay = 7,
    gig = 8,
    imageReport = 9,
    travelDay = 10,
    restDay = 11,
    storyStage = 12,
    ceremonyNight = 13,
    ceremonyNominations = 14,
    releaseDay = 15,
    artistBirthday = 16,
    mediaAppearance = 17,
    contractPoint = 18,  // an option ends: taken up, extended or the band let go
    supportSlotOffer = 19,
    followUpSingle = 20,
    ceremonyInvitation = 21,
    festivalBillFill = 22,
    festivalInvitation = 23,  // the link of a festival invitation; runs nothing
    businessOpens = 24,
    pressWeek = 25,
    distributorNeeded = 26,
    bandRetirementNotice = 27,
    bandRetires = 28,
    artistRetirementNotice = 29,
    artistRetires = 30,
    memberLeaves = 31,
    calledOff = 255,  // a cancelled entry: it stays on file and does nothing
};

inline constexpr int kLastScheduleType = 31;

// What an entry's band must be for its operation to run.
enum class ScheduleGuard : uint8_t {
    none,
    bandNotRetired,        // signing and offers
    bandFitAndNotRetired,  // a recording day
    gigCanGoAhead,         // a gig
    appearanceCanGoAhead,  // a promotion appearance: a band, fit and not retired
};

// What the reply to the news item linked to an entry of the type does.
enum class ScheduleReply : uint8_t {
    none,             // the item is only read
    okOpensDecision,  // ok opens a decision screen, once
    yes,              // yes carries out the entry's offer; no leaves things as they are
    yesOrNo,          // yes carries it out, and no has an effect of its own
};

// Energy taken from each member and morale added to each, for one entry.
struct Wear {
    int energy = 0;
    int morale = 0;
};

struct ScheduleTypeInfo {
    ScheduleType type;
    std::string_view meaning;
    ScheduleGuard guard;
    // What one entry costs its band's members; nullptr when it costs nothing.
    Wear (*wear)(Game&, const ScheduleRecord&);
    // The entry's own band is engaged on the day.
    bool occupiesBand;
    // Every act on the bill of the entry's gig is engaged on the day too.
    bool occupiesTheBill;
    ScheduleReply reply;
    // The screen an ok opens, with ScheduleReply::okOpensDecision.
    Screen decisionScreen;
    // A band's current activity while on the entry; nullptr gives "".
    std::string (*activity)(Game&, const ScheduleRecord&);
    // Filed again with the number it has, instead of a new one.
    bool keepsItsNumber;
};

// The row of a type. A type with no meaning of its own (255, or a number no
// row has) gets the row of a called-off entry.
const ScheduleTypeInfo& scheduleTypeInfo(int type);

inline bool isType(const ScheduleRecord& e, ScheduleType t) { return e.type == static_cast<uint8_t>(t); }

}  // namespace trovane

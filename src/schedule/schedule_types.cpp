#include "schedule/schedule_types.h"

#include <array>

#include "world/game.h"
#include "world/numbers.h"
#include "world/strings.h"

namespace trovane {

namespace {

using T = ScheduleType;
using G = ScheduleGuard;
using R = ScheduleReply;

// A studio's comfort eases a day's recording.
Wear recordingWear(Game& g, const ScheduleRecord& e) {
    int comfort = 0;
    if (e.business > 0) {
        g.business.read(e.business);
        comfort = g.business->quality;
    }
    return Wear{toInteger((100 - comfort) * 3 / 100.0) + 3, -4};
}

// The tour's levels run from 0 (lavish) to 4 (basic): a lavish tour tires less.
Wear gigWear(Game& g, const ScheduleRecord& e) {
    int energy = 7;
    if (e.gig > 0) {
        g.gig.read(e.gig);
        if (g.gig->tour > 0) {
            g.tour.read(g.gig->tour);
            int levels = g.tour->hospitalityLevel + g.tour->accommodationLevel;
            energy -= toInteger((3 - levels) / 2.0);
        }
    }
    return Wear{energy, -5};
}

Wear travelWear(Game&, const ScheduleRecord&) { return Wear{4, 3}; }
Wear restWear(Game&, const ScheduleRecord&) { return Wear{-2, 5}; }
Wear appearanceWear(Game&, const ScheduleRecord&) { return Wear{6, -10}; }

std::string discKind(const DiscRecord& d) { return d.isSingle == 1 ? "(single)" : "(album)"; }

std::string signingActivity(Game& g, const ScheduleRecord& e) {
    g.label.read(e.label);
    return "Signing for " + trim(g.label->name.value);
}

std::string recordingActivity(Game& g, const ScheduleRecord& e) {
    g.disc.read(e.disc);
    return "Recording " + trim(g.disc->title.value) + " " + discKind(g.disc.rec);
}

std::string gigActivity(Game& g, const ScheduleRecord& e) {
    g.gig.read(e.gig);
    if (g.gig->tour > 0) {
        g.tour.read(g.gig->tour);
        if (g.tour->festival != 0) {
            g.festival.read(g.tour->festival);
            return "Playing " + trim(g.festival->festivalName.value);
        }
    }
    g.venue.read(g.gig->venue);
    return "Playing " + trim(g.venue->name.value);
}

std::string travelActivity(Game&, const ScheduleRecord&) { return "Travelling"; }
std::string restActivity(Game&, const ScheduleRecord&) { return "Resting"; }

std::string releaseActivity(Game& g, const ScheduleRecord& e) {
    g.disc.read(e.disc);
    return "Releasing " + trim(g.disc->title.value) + " " + discKind(g.disc.rec);
}

std::string appearanceActivity(Game& g, const ScheduleRecord& e) {
    g.media.read(e.media);
    return "Promotion (" + trim(g.media->mediaName.value) + ")";
}

std::string retiringActivity(Game&, const ScheduleRecord&) { return "Retiring"; }

constexpr ScheduleTypeInfo row(T type, std::string_view meaning) {
    return {type, meaning, G::none, nullptr, false, false, R::none, Screen::none, nullptr, false};
}

constexpr ScheduleTypeInfo withGuard(ScheduleTypeInfo r, G guard) {
    r.guard = guard;
    return r;
}

// A day the band spends on the entry: it is engaged, it wears, it shows the activity.
constexpr ScheduleTypeInfo busy(ScheduleTypeInfo r, Wear (*wear)(Game&, const ScheduleRecord&),
                                std::string (*activity)(Game&, const ScheduleRecord&)) {
    r.wear = wear;
    r.occupiesBand = true;
    r.activity = activity;
    return r;
}

constexpr ScheduleTypeInfo onTour(ScheduleTypeInfo r) {
    r.occupiesTheBill = true;
    return r;
}

constexpr ScheduleTypeInfo replied(ScheduleTypeInfo r, R reply, Screen screen = Screen::none) {
    r.reply = reply;
    r.decisionScreen = screen;
    return r;
}

constexpr std::array<ScheduleTypeInfo, kLastScheduleType + 1> kTypes = {{
    row(T::blank, "a blank entry"),
    replied(row(T::staffOfferDecision, "a person decides on an offer of a post"), R::yes),
    row(T::staffJoins, "a person joins the label"),
    row(T::staffLeaves, "a person leaves the label"),
    replied(withGuard(row(T::offersDecision, "a band decides among its offers"), G::bandNotRetired), R::yesOrNo),
    busy(withGuard(row(T::bandSigns, "a band signs"), G::bandNotRetired), nullptr, signingActivity),
    row(T::scoutingReport, "a scouting report on a band"),
    busy(withGuard(row(T::recordingDay, "a day in the studio"), G::bandFitAndNotRetired), recordingWear,
         recordingActivity),
    onTour(busy(withGuard(row(T::gig, "a gig"), G::gigCanGoAhead), gigWear, gigActivity)),
    replied(row(T::imageReport, "an image report on an artist"), R::yes),
    onTour(busy(row(T::travelDay, "a travel day of a tour"), travelWear, travelActivity)),
    onTour(busy(row(T::restDay, "a rest day of a tour"), restWear, restActivity)),
    row(T::storyStage, "the next stage of a story"),
    row(T::ceremonyNight, "an award ceremony's night"),
    row(T::ceremonyNominations, "an award ceremony's nominations"),
    busy(row(T::releaseDay, "a disc comes out"), nullptr, releaseActivity),
    row(T::artistBirthday, "an artist's birthday"),
    [] {
        ScheduleTypeInfo r =
            busy(withGuard(row(T::mediaAppearance, "an appearance in the media"), G::appearanceCanGoAhead),
                 appearanceWear, appearanceActivity);
        r.keepsItsNumber = true;
        return r;
    }(),
    replied(row(T::contractPoint, "an option of a contract ends"), R::okOpensDecision, Screen::frmBandOptionDecision),
    replied(row(T::supportSlotOffer, "an offer of a support place on a tour"), R::yes),
    row(T::followUpSingle, "a rival's follow-up single"),
    replied(row(T::ceremonyInvitation, "an invitation to an award ceremony"), R::yes),
    row(T::festivalBillFill, "a festival fills its bill"),
    replied(row(T::festivalInvitation, "an invitation to a festival"), R::yes),
    row(T::businessOpens, "a new firm opens"),
    row(T::pressWeek, "a week of pressing"),
    replied(row(T::distributorNeeded, "a disc needs a distributor"), R::okOpensDecision, Screen::frmChooseDistributor),
    row(T::bandRetirementNotice, "a band announces its retirement"),
    busy(row(T::bandRetires, "a band retires"), nullptr, retiringActivity),
    row(T::artistRetirementNotice, "an artist announces a retirement"),
    row(T::artistRetires, "an artist retires"),
    row(T::memberLeaves, "a member leaves a band"),
}};

constexpr ScheduleTypeInfo kCalledOff = row(T::calledOff, "a called-off entry");

}  // namespace

const ScheduleTypeInfo& scheduleTypeInfo(int type) {
    if (type < 0 || type > kLastScheduleType) return kCalledOff;
    return kTypes[static_cast<std::size_t>(type)];
}

}  // namespace trovane

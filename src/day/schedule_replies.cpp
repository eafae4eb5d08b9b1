#include "day/schedule_replies.h"

#include <algorithm>

#include <fmt/format.h>

#include "floor/news_post.h"
#include "label/image.h"
#include "live/festivals.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "talent/contracts.h"
#include "world/fatal_error.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

// A void offer names band 65535.
constexpr int16_t kVoidOfferBand = -1;

}  // namespace

void startInThePost(Game& g, const ScheduleRecord& e) {
    ScheduleRecord start{};
    start.type = static_cast<uint8_t>(ScheduleType::staffJoins);
    start.date = g.gameDate;
    start.department = e.department;
    start.staff = e.staff;
    start.label = g.player.playerLabel;
    addSchedule(g, start);
}

void confirmTheDeal(Game& g, const ScheduleRecord& e) {
    g.band.read(e.band);
    g.offer.read(e.offer);
    scheduleSigning(g);
}

void dealFallsThrough(Game& g, const ScheduleRecord& e) {
    g.band.read(e.band);
    g.offer.read(e.offer);
    int16_t offeringLabel = g.offer->label;
    g.offer->band = kVoidOfferBand;
    g.offer.write();

    ScheduleRecord decideAgain{};
    decideAgain.type = static_cast<uint8_t>(ScheduleType::offersDecision);
    decideAgain.date = g.gameDate;
    decideAgain.band = e.band;
    addSchedule(g, decideAgain);

    std::string band = trim(g.band->name.value);
    g.label.read(offeringLabel);
    postNews(g, {.date = g.gameDate + 1,
                 .title = band + " deal falls through.",
                 .text = band + "'s proposed move to " + trim(g.label->name.value) +
                         " has fallen through after the label cancelled the deal."});
    voidOffers(g, e.band);
}

void takeTheNewLook(Game& g, const ScheduleRecord& e) {
    g.artist.read(e.artist);
    g.look.read(e.look);
    changeLook(g);
}

void joinTourAsSupport(Game& g, const ScheduleRecord& e) {
    g.gig.read(e.gig);
    g.tour.read(g.gig->tour);
    g.tour->supportCount = narrow<uint8_t>(g.tour->supportCount + 1);
    g.tour.write();
    const TourRecord tour = g.tour.rec;
    auto slot = static_cast<std::size_t>(tour.supportCount);
    int gigs = std::min<int>(tour.gigCount, static_cast<int>(tour.gigs.size()));
    for (int i = 0; i < gigs; ++i) {
        int32_t gig = tour.gigs[static_cast<std::size_t>(i)];
        if (gig < 1) continue;
        g.gig.read(gig);
        if (slot >= g.gig->bill.size())
            throw FatalError(fmt::format("Subscript out of range: support place {} on gig {}", slot, gig));
        g.gig->bill[slot] = e.band;
        g.gig.write();
    }
}

void attendTheCeremony(Game& g, const ScheduleRecord& e) {
    g.ceremony.read(e.ceremony);
    g.ceremony->playerInvited = kTrue;
    g.ceremony.write();
}

void playTheFestival(Game& g, const ScheduleRecord& e) {
    g.band.read(e.band);
    g.gig.read(e.gig);
    g.tour.read(g.gig->tour);
    g.festival.read(g.tour->festival);
    acceptFestivalSlot(g, e.value);
}

}  // namespace trovane

#include <gtest/gtest.h>

#include "day/dispatch.h"
#include "support/calendar_world.h"
#include "support/empty_game.h"
#include "talent/event_fatigue.h"
#include "world/strings.h"

using namespace trovane;
using namespace trovane::test;

namespace {

std::pair<int, int> energyAndMorale(Game& g, int16_t artist) {
    g.artist.read(artist);
    return {g.artist->energy, g.artist->morale};
}

ScheduleRecord entry(uint8_t type, int16_t band) { return ScheduleRecord{.type = type, .band = band}; }

}  // namespace

TEST(EventFatigue, EachKindOfWorkHasItsCost) {
    // A studio of quality 50 costs round(1.5) + 3; a gig of a basic tour (levels 4 and 4) 7 + 2.
    const std::pair<int, std::pair<int, int>> costs[] = {{7, {45, 46}},  {8, {41, 45}}, {10, {46, 53}}, {11, {52, 55}},
                                                         {17, {44, 40}}, {6, {50, 50}}, {255, {50, 50}}};
    for (auto [type, after] : costs) {
        EmptyGame eg;
        Game& g = eg.g;
        ScheduleRecord e = entry(static_cast<uint8_t>(type), addBand(g, {50}));
        g.business.rec.quality = 50;
        e.business = static_cast<int16_t>(g.business.append());
        e.gig = addGig(g, e.band, day(2004, 9, 1));
        g.tour->hospitalityLevel = g.tour->accommodationLevel = 4;
        g.tour.write();
        applyEventFatigue(g, e);
        EXPECT_EQ(energyAndMorale(g, 1), after) << type;
    }
}

TEST(EventFatigue, AGigThatDoesNotGoAheadStillTiresTheBand) {
    EmptyGame eg;
    Game& g = eg.g;
    g.gameDate = day(2004, 9, 1);
    int16_t band = addBand(g, {50, 3, -4});
    file(g, 8, g.gameDate, band, addGig(g, 0, g.gameDate, {}, band));  // no headliner; a lavish tour
    int ran = 0;
    g.onScheduleHandler = [&](std::string_view, const ScheduleRecord&) { ++ran; };
    performDaysEvents(g);
    EXPECT_EQ(ran, 0);
    EXPECT_EQ(energyAndMorale(g, 1).first, 45);  // 7 less round(1.5)
    EXPECT_EQ(energyAndMorale(g, 2).first, 0);
    EXPECT_EQ(energyAndMorale(g, 3).first, -4) << "a member away resting is not at work";
}

TEST(EventFatigue, AWornOutPlayerBandAsksForABreakOnce) {
    EmptyGame eg;
    Game& g = eg.g;
    g.player.playerLabel = 1;
    int16_t band = addBand(g, {40, 38}, 1, "The Weary");
    int16_t rival = addBand(g, {40, 38}, 2);
    for (int i = 0; i < 3; ++i) {
        applyEventFatigue(g, entry(17, band));
        applyEventFatigue(g, entry(17, rival));
    }
    ASSERT_EQ(g.news.recordCount(), 2);
    g.news.read(1);
    EXPECT_EQ(trim(g.news->title.value), "The Weary demand a break");
    EXPECT_EQ(g.news->date, g.gameDate + 1);
    EXPECT_NE(g.news->text.value.find("jaded after their recent activity. They are concerned"), std::string::npos);
    EXPECT_EQ((g.band.read(band), g.band->complaints[0]), 1);
}

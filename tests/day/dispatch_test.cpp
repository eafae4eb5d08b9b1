#include <gtest/gtest.h>

#include <functional>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "day/daily_cycle.h"
#include "day/dispatch.h"
#include "support/calendar_world.h"
#include "support/empty_game.h"

using namespace trovane;
using namespace trovane::test;

namespace {

struct Call {
    std::string handler;
    int32_t entry;
    double date;
    friend bool operator==(const Call&, const Call&) = default;
};

void recordCalls(Game& g, std::vector<Call>& calls) {
    g.onScheduleHandler = [&calls, &g](std::string_view h, const ScheduleRecord& e) {
        calls.push_back({std::string(h), e.id, g.gameDate});
    };
}

const double kToday = day(2004, 9, 1);

}  // namespace

TEST(Dispatch, AnEntryFiledForTodayByAHandlerWaits) {
    EmptyGame eg;
    Game& g = eg.g;
    g.gameDate = kToday;
    file(g, 6, kToday);
    int ran = 0;
    g.onScheduleHandler = [&](std::string_view, const ScheduleRecord&) {
        ++ran;
        file(g, 6, kToday);
    };
    performDaysEvents(g);
    EXPECT_EQ(ran, 1);
    EXPECT_EQ(entriesOfDay(g, kToday).size(), 2u);
}

TEST(Dispatch, GuardsDecideWhetherTheHandlerRuns) {
    auto retiredBand = [](Game& g) {
        int16_t b = addBand(g, {50});
        g.band->retired = kTrue;
        g.band.write();
        return b;
    };
    auto gigOf = [](Game& g, std::initializer_list<int> energies, int16_t tourBand = -2) {
        int16_t b = addBand(g, energies);
        return file(g, 8, kToday, b, addGig(g, b, kToday, {}, tourBand));
    };
    struct Case {
        const char* what;
        std::function<void(Game&)> fileEntry;
        const char* ran;
    };
    const std::vector<Case> cases = {
        {"offer", [](Game& g) { file(g, 4, kToday, addBand(g, {50})); }, "decideOffers"},
        {"offer to a retired band", [&](Game& g) { file(g, 4, kToday, retiredBand(g)); }, ""},
        {"recording, a member resting",
         [](Game& g) {
             file(g, 7, kToday, addBand(g, {50, -3}));
         },
         "extendBooking"},
        {"appearance", [](Game& g) { file(g, 17, kToday, addBand(g, {50})); }, "performAppearance"},
        {"appearance without a band", [](Game& g) { file(g, 17, kToday, 0); }, ""},
        {"gig", [&](Game& g) { gigOf(g, {50}); }, "performGig"},
        {"gig with a resting member",
         [&](Game& g) {
             gigOf(g, {50, -2});
         },
         ""},
        {"gig of a tour with neither band nor festival", [&](Game& g) { gigOf(g, {50}, 0); }, ""},
        {"gig with an empty first slot",
         [](Game& g) { file(g, 8, kToday, addBand(g, {50}), addGig(g, 0, kToday, {}, 1)); }, ""},
        {"festival day, no band on the entry",
         [](Game& g) { file(g, 8, kToday, 0, addGig(g, addBand(g, {-5}), kToday, {}, 0, 1)); }, "performGig"},
        {"cancelled", [](Game& g) { file(g, 255, kToday, addBand(g, {50})); }, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EmptyGame eg;
        eg.g.gameDate = kToday;
        c.fileEntry(eg.g);
        std::vector<Call> calls;
        recordCalls(eg.g, calls);
        performDaysEvents(eg.g);
        EXPECT_EQ(calls.empty() ? "" : calls[0].handler, c.ran);
        EXPECT_LE(calls.size(), 1u);
    }
}

// Every type filed in a mixed order over nine days across the turn of the
// year, and the days played through the daily cycle.
TEST(ScheduleScenario, EachHandlerRunsOnceOnItsDateInFilingOrder) {
    // The handler of each type by its number; "-" where none runs.
    std::istringstream names(
        "- decideStaffOffer hireStaff fireStaff decideOffers signBand bandReport recordingDay performGig imageReport "
        "- - performStage finishCeremony judgeCeremony releaseDay artistBirthday performAppearance contractPoint "
        "offerSupportSlot rivalFollowUpSingle inviteToCeremony fillFestivalBill - openBusiness pressWeek "
        "distributorNeeded announceBandRetirement retireBand announceArtistRetirement retireArtist memberLeaves");
    std::vector<std::string> handlerOf{std::istream_iterator<std::string>(names), {}};
    ASSERT_EQ(handlerOf.size(), 32u);
    for (std::string& h : handlerOf)
        if (h == "-") h.clear();
    EmptyGame eg;
    Game& g = eg.g;
    const double first = day(2004, 12, 27);
    g.gameDate = first;
    int16_t band = addBand(g, {100, 100, 100});
    int16_t ending = addBand(g, {100, 100, 100});  // the act that ends, so the others still run for band
    std::vector<std::vector<std::pair<int, int32_t>>> byDay(9);
    for (int i = 0; i <= 32; ++i) {
        int type = i == 32 ? 255 : (i * 13) % 32;  // every type once, out of order
        std::size_t d = static_cast<std::size_t>(i * 5) % 9;
        int32_t gig = type == 8 ? addGig(g, band, first + d) : 0;
        byDay[d].push_back({type, file(g, static_cast<uint8_t>(type), first + d, type == 28 ? ending : band, gig)});
    }
    std::vector<Call> expected;
    for (std::size_t d = 0; d < byDay.size(); ++d)
        for (auto [type, id] : byDay[d])
            if (type < 32 && !handlerOf[static_cast<std::size_t>(type)].empty())
                expected.push_back({handlerOf[static_cast<std::size_t>(type)], id, first + d});

    std::vector<Call> calls;
    recordCalls(g, calls);
    for (std::size_t d = 0; d < byDay.size(); ++d) {
        ASSERT_TRUE(allRepliesGiven(g));
        checkDaysSchedule(g);
    }
    EXPECT_EQ(g.gameDate, day(2005, 1, 5));
    EXPECT_EQ(calls, expected);
}

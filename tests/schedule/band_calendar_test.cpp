#include <gtest/gtest.h>

#include <string>

#include "schedule/band_calendar.h"
#include "support/amend.h"
#include "support/calendar_world.h"
#include "support/empty_game.h"

using namespace trovane;
using namespace trovane::test;

namespace {

const double kDay = day(2004, 9, 1);

}  // namespace

TEST(BandCalendar, OnlyWorkOfItsOwnMakesABandBusy) {
    for (int type = 0; type <= 31; ++type) {
        EmptyGame eg;
        Game& g = eg.g;
        int16_t band = addBand(g, {50});
        file(g, static_cast<uint8_t>(type), kDay, addBand(g, {50}));
        int32_t id = file(g, static_cast<uint8_t>(type), kDay, band, type == 8 ? addGig(g, band, kDay) : 0);
        file(g, 255, kDay + 1, band);
        g.band.read(band);
        bool busy =
            type == 5 || type == 7 || type == 8 || type == 10 || type == 11 || type == 15 || type == 17 || type == 28;
        EXPECT_EQ(bandEngagement(g, 1, kDay), busy ? id : 0) << type;
        EXPECT_EQ(bandEngagement(g, 2, kDay), 0) << type;
        EXPECT_EQ(bandEngagement(g, 1, kDay + 1), 0) << "a cancelled entry never occupies";
    }
}

TEST(BandCalendar, SupportActsAndFestivalBillsAreBusy) {
    EmptyGame eg;
    Game& g = eg.g;
    int16_t head = addBand(g, {50}), support = addBand(g, {50}), extra = addBand(g, {50}), billed = addBand(g, {50});
    int32_t tourDay = file(g, 10, kDay, head, addGig(g, head, kDay, {support, extra}));
    // the act in place 2 is not counted
    amend(g.tour, 1, [&] { g.tour->supportCount = 1; });
    g.festival.rec = FestivalRecord{.billSize = 3, .festivalName = "Summer Sound"};
    int16_t fest = static_cast<int16_t>(g.festival.append());
    int32_t festivalDay = file(g, 8, kDay + 1, 0, addGig(g, head, kDay + 1, {support, billed, extra}, 0, fest));

    auto busyOn = [&](int16_t band, double date) {
        g.band.read(band);
        return bandEngagement(g, 1, date);
    };
    EXPECT_EQ(busyOn(support, kDay), tourDay);
    EXPECT_EQ(busyOn(extra, kDay), 0);
    EXPECT_EQ(busyOn(billed, kDay + 1), festivalDay);
    EXPECT_EQ(busyOn(head, kDay + 1), festivalDay);
    EXPECT_EQ(busyOn(extra, kDay + 1), 0);

    g.band.read(support);
    EXPECT_EQ(countFreeDays(g, kDay - 1, kDay + 3), 2);
    EXPECT_EQ(countFreeDays(g, kDay, kDay), 0);
    EXPECT_EQ(nextFreeDate(g, kDay), kDay + 2);
    EXPECT_EQ(scheduleActivityText(g, festivalDay), "Playing Summer Sound");
}

TEST(BandCalendar, ActivityTexts) {
    EmptyGame eg;
    Game& g = eg.g;
    g.label.rec.name = "Big Noise";
    g.label.append();
    g.disc.rec = DiscRecord{.title = "Loud", .isSingle = 1};
    g.disc.append();
    g.venue.rec.name = "The Hall";
    g.venue.append();
    g.media.rec.mediaName = "Radio One";
    g.media.append();
    int32_t gig = addGig(g, addBand(g, {50}), kDay);
    amend(g.gig, gig, [&] { g.gig->venue = 1; });
    struct Case {
        uint8_t type;
        const char* text;
    };
    for (Case c : {Case{5, "Signing for Big Noise"}, Case{7, "Recording Loud (single)"}, Case{8, "Playing The Hall"},
                   Case{10, "Travelling"}, Case{11, "Resting"}, Case{17, "Promotion (Radio One)"}, Case{28, "Retiring"},
                   Case{4, ""}, Case{255, ""}}) {
        ScheduleRecord e{.type = c.type, .date = kDay, .label = 1, .gig = gig, .media = 1, .disc = 1};
        EXPECT_EQ(scheduleActivityText(g, addSchedule(g, e)), c.text);
    }
    EXPECT_EQ(scheduleActivityText(g, 0), "None");
}

TEST(BandCalendar, MonthCalendarOfChooseDate) {
    EmptyGame eg;
    Game& g = eg.g;
    file(g, 11, day(2005, 2, 14), addBand(g, {50}));
    g.gameDate = day(2004, 12, 25);
    EXPECT_EQ(firstCalendarMonth(g, 1), (CalendarMonth{2005, 1}));
    EXPECT_EQ(firstCalendarMonth(g, 2), (CalendarMonth{2005, 2}));
    EXPECT_EQ(stepCalendarMonth({2005, 1}, -1), (CalendarMonth{2004, 12}));
    EXPECT_EQ(stepCalendarMonth({2005, 1}, 12), (CalendarMonth{2006, 1}));

    MonthCalendarView feb = monthCalendar(g, {2005, 2});
    EXPECT_EQ(feb.monthText + " " + feb.yearText, "February 2005");
    std::string days;
    for (unsigned d : {1, 2, 3, 11, 21, 22, 23, 28}) days += feb.cells[d - 1].dayText + ",";
    EXPECT_EQ(days, "Tue : 1st,Wed : 2nd,Thu : 3rd,Fri : 11th,Mon : 21st,Tue : 22nd,Wed : 23rd,Mon : 28th,");
    EXPECT_FALSE(feb.cells[28].visible);
    EXPECT_EQ(feb.cells[13].activity, "Resting");
    EXPECT_EQ(chooseCalendarDay(feb, 14), std::nullopt);
    EXPECT_EQ(chooseCalendarDay(feb, 29), std::nullopt);
    EXPECT_EQ(chooseCalendarDay(feb, 13), day(2005, 2, 13));
    MonthCalendarView leap = monthCalendar(g, {2008, 2});  // beyond the day files: free
    EXPECT_EQ(leap.cells[28].dayText, "Fri : 29th");
    EXPECT_TRUE(leap.cells[28].choosable);
    EXPECT_FALSE(leap.cells[29].visible);
}

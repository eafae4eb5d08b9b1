// The ceremonies' place in the year and the player's invitation.
#include <gtest/gtest.h>

#include <tuple>

#include "events/ceremonies.h"
#include "floor/news_post.h"
#include "schedule/schedule.h"
#include "support/amend.h"
#include "support/game_test.h"
#include "world/dates.h"
#include "world/strings.h"

using namespace trovane;

namespace {

class Ceremonies : public test::GameTest {
protected:
    int16_t addCeremony(const char* name, std::array<uint8_t, 6> calendar) {
        g.ceremony.rec = CeremonyRecord{.name = name, .calendar = calendar};
        return static_cast<int16_t>(g.ceremony.append());
    }
    // (type, ceremony) of each entry filed on the date.
    std::vector<std::pair<int, int>> filedOn(double date) {
        std::vector<std::pair<int, int>> out;
        for (int32_t id : entriesOfDay(g, date)) {
            g.schedule.read(id);
            out.emplace_back(g.schedule->type, g.schedule->ceremony);
        }
        return out;
    }
    static double day(int y, unsigned m, unsigned d) { return serialFromCivil(y, m, d); }
};

TEST_F(Ceremonies, TheNightFallsOnItsWeekdayOfItsWeekAndEachCeremonyFilesItsInvitationNominationsAndNight) {
    // 1 January 2004 is a Thursday: week 7 starts on Thursday 12 February, its Tuesday is the 17th.
    EXPECT_EQ(ceremonyNight(2004, 7, 3), day(2004, 2, 17));
    // 1 January 2005 is a Saturday: week 7 starts on Saturday 12 February, its Tuesday is the 15th.
    EXPECT_EQ(ceremonyNight(2005, 7, 3), day(2005, 2, 15));
    // The weekday of 1 January itself is the first day of week 1.
    EXPECT_EQ(ceremonyNight(2004, 1, 5), day(2004, 1, 1));
    EXPECT_EQ(ceremonyNight(2004, 1, 4), day(2004, 1, 7));
    g.gameStartDate = g.gameDate = day(2004, 1, 10);
    int16_t brits = addCeremony("Brit Night", {7, 3, 5, 0, 0, 0});
    int16_t early = addCeremony("Early Night", {6, 1, 5, 0, 0, 0});
    scheduleCeremonies(g, 2005);
    // Tuesday 15 February 2005; 21 days before is 25 January; 5 weeks before is 11 January.
    EXPECT_EQ(filedOn(day(2005, 2, 15)), (std::vector<std::pair<int, int>>{{13, brits}}));
    EXPECT_EQ(filedOn(day(2005, 1, 25)), (std::vector<std::pair<int, int>>{{21, brits}}));
    EXPECT_EQ(filedOn(day(2005, 1, 11)), (std::vector<std::pair<int, int>>{{14, brits}}));
    scheduleCeremonies(g, 2004);
    // Week 6 of 2004 starts Thursday 5 February; its Sunday is the 8th. The invitation (18 January)
    // is filed; the nominations (4 January) fall before the game began and are not.
    EXPECT_EQ(filedOn(day(2004, 2, 8)), (std::vector<std::pair<int, int>>{{13, early}}));
    EXPECT_EQ(filedOn(day(2004, 1, 18)), (std::vector<std::pair<int, int>>{{21, early}}));
    EXPECT_TRUE(filedOn(day(2004, 1, 4)).empty());
}

TEST_F(Ceremonies, TheInvitationDatesTheNightAndAsksYesOrNo) {
    g.gameStartDate = g.gameDate = day(2005, 1, 25);
    int16_t brits = addCeremony("Brit Night", {7, 3, 5, 0, 0, 0});
    // last year's acceptance
    amend(g.ceremony, brits, [&] { g.ceremony->playerInvited = kTrue; });
    g.schedule.rec = ScheduleRecord{.type = 21, .date = g.gameDate, .id = 77, .ceremony = brits};
    int16_t item = static_cast<int16_t>(g.news.recordCount());
    inviteToCeremony(g);
    g.ceremony.read(brits);
    EXPECT_EQ(std::tuple(g.ceremony->date, g.ceremony->playerInvited), std::tuple(day(2005, 2, 15), kFalse));
    EXPECT_EQ((g.news.read(item), trim(g.news->title.value)), "Invitation to Brit Night");
    EXPECT_EQ(trim(g.news->text.value),
              "You have been invited to attend this year's Brit Night ceremony on 15/2/2005. Do you want to accept "
              "the invitation?");
    EXPECT_EQ(std::tuple(g.news->kind, g.news->scheduleLink, g.news->mustReply), std::tuple(kNewsYesNo, 77, kFalse));
}

}  // namespace

// A festival day wears every act on its bill, as a gig wears its band.
#include <gtest/gtest.h>

#include "day/dispatch.h"
#include "support/amend.h"
#include "support/festival_world.h"

using namespace trovane;

namespace {

class FestivalWear : public test::FestivalWorld, public ::testing::Test {
protected:
    void setActMembers(int16_t act, int16_t energy, uint8_t morale) {
        g.band.read(act);
        const BandRecord b = g.band.rec;
        for (int i = 0; i < b.memberCount; ++i) {
            amend(g.artist, b.members[static_cast<std::size_t>(i)], [&] {
                g.artist->energy = energy;
                g.artist->morale = morale;
            });
        }
    }
    std::pair<int, int> energyAndMorale(int16_t act, std::size_t i) {
        g.band.read(act);
        g.artist.read(g.band->members[i]);
        return {g.artist->energy, g.artist->morale};
    }
};

TEST_F(FestivalWear, EachActOnTheDaysBillSpendsAGigsEnergyAndMorale) {
    const int16_t alpha = addAct("Alpha", 90);
    const int16_t beta = addAct("Beta", 80);
    const int16_t tour = scheduled();
    const int32_t firstDay = gigsOf(tour)[0];
    amend(g.gig, firstDay, [&] {
        g.gig->bill[0] = alpha;
        g.gig->bill[1] = beta;
    });
    for (int16_t act : {alpha, beta, band}) setActMembers(act, 50, 50);  // band, the player's act, is off the bill
    g.gig.read(firstDay);
    const double date = g.gig->gigDate;
    g.gameDate = date;
    int32_t dayEntry = 0;
    for (int32_t id : entriesOfDay(g, date)) {
        g.schedule.read(id);
        if (g.schedule->type == 8 && g.schedule->gig == firstDay) dayEntry = id;
    }
    ASSERT_GT(dayEntry, 0);
    g.schedule.read(dayEntry);
    ASSERT_EQ(g.schedule->band, 0) << "the day's entry names no act";
    runScheduleEntry(g);

    // A festival's tour has levels 0 and 0: the cost 7 less round((3 - 0) / 2) = round(1.5) = 2 is 5,
    // and a gig's morale is -5: 50 -> 45 for both.
    for (int16_t act : {alpha, beta})
        for (std::size_t i = 0; i < 2; ++i) EXPECT_EQ(energyAndMorale(act, i), std::pair(45, 45)) << act;
    EXPECT_EQ(energyAndMorale(band, 0), std::pair(50, 50)) << "an act off the bill is not worn";
}

}  // namespace

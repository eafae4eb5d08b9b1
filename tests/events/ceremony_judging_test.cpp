// Drawing an award's nominees: the mix, the list of ten, and the rules a
// band must pass.
#include <gtest/gtest.h>

#include "events/ceremonies.h"
#include "events/ceremony_judging.h"
#include "support/amend.h"
#include "support/gig_world.h"
#include "world/strings.h"

using namespace trovane;

namespace {

TEST(NomineeList, MixTakesTheBasisAloneAt100TheHostAt0AndSalesTopOutAtTenMillion) {
    EXPECT_EQ(mix(100, 80, 20), 80);
    EXPECT_EQ(mix(0, 80, 20), 20);
    EXPECT_EQ(mix(50, 81, 20), 50);  // 50.5 to the even 50
    EXPECT_EQ(salesScore(10000000), 100);
    EXPECT_EQ(salesScore(50000000), 100);
    EXPECT_EQ(salesScore(9949999), 99);  // 99.49999
    EXPECT_EQ(salesScore(0), 0);
}

TEST(NomineeList, AFullListDropsItsLowestAndTiesKeepTheEarlier) {
    NomineeList list;
    for (int i = 0; i < 10; ++i) insertNominee(list, 50 + i, static_cast<int16_t>(i + 1), "n");
    insertNominee(list, 55, 20, "tie");  // equal to id 6: goes below it
    ASSERT_EQ(list.count, 10);
    // 59 on top; the 55 filed first, then the one filed later; 51 last, 50 (id 1) dropped.
    EXPECT_EQ((std::array{list.entries[0].id, list.entries[4].id, list.entries[5].id, list.entries[9].id}),
              (std::array<int16_t, 4>{10, 6, 20, 2}));
    insertNominee(list, 51, 21, "too low");
    EXPECT_EQ(list.entries[9].id, 2);
}

class Judging : public test::GigWorld, public ::testing::Test {
protected:
    // An award for bands scored on ability alone, hosted in England.
    void award(uint8_t sizeRule, int16_t originRule) {
        g.award.rec = AwardRecord{.name = "Best Act",
                                  .kind = 2,
                                  .weight = 100,
                                  .originRule = originRule,
                                  .commercialityRange = {0, 100},
                                  .controversyRange = {0, 100},
                                  .sizeRule = sizeRule};
        g.award.append();
        g.country.read(england);
    }
    int16_t formedIn(const char* name, int16_t city, uint8_t ability) {
        int16_t b = addBand(name, 0);
        // formedIn names a city
        amend(g.band, b, [&] {
            g.band->formedInCity = -1;
            g.band->formedIn = city;
            g.band->ability = ability;
        });
        return b;
    }
    std::vector<int16_t> nominees() {
        NomineeList list = judgeAward(g);
        std::vector<int16_t> out;
        for (int i = 0; i < list.count; ++i) out.push_back(list.entries[static_cast<std::size_t>(i)].id);
        return out;
    }
};

TEST_F(Judging, ADuoPassesTheTwoMemberRuleAndASoloActDoesNot) {
    amend(g.band, band, [&] { g.band->formedIn = england; });  // a country; the world's duo, ability 80
    int16_t solo = formedIn("Solo", leeds, 90);
    amend(g.band, solo, [&] { g.band->memberCount = 1; });
    award(3, 0);
    EXPECT_EQ(nominees(), std::vector<int16_t>{band});
    award(1, 0);
    EXPECT_EQ(nominees(), std::vector<int16_t>{solo});
}

TEST_F(Judging, OriginGroupsSortTheActsByWhereTheyFormed) {
    // out of every list
    amend(g.band, band, [&] { g.band->retired = kTrue; });
    int16_t british = formedIn("Leeds Lads", leeds, 70);
    int16_t french = formedIn("Les Parisiens", paris, 60);
    int16_t brazilian = formedIn("Rio Rhythm", rio, 50);
    award(0, -2);
    EXPECT_EQ(nominees(), std::vector<int16_t>{british});
    award(0, -3);
    EXPECT_EQ(nominees(), (std::vector<int16_t>{british, french}));
    award(0, -4);
    EXPECT_EQ(nominees(), (std::vector<int16_t>{french, brazilian}));
    award(0, france);
    EXPECT_EQ(nominees(), std::vector<int16_t>{french});
}

TEST_F(Judging, TheNightCrownsTheTopNomineeAndRecordsTheWin) {
    award(0, 0);
    amend(g.award, 1, [&] {
        g.award->nominees[0] = band;
        g.award->nomineeCount = 1;
    });
    g.award.rec = AwardRecord{.name = "Nobody's Prize"};
    g.award.append();  // no nominees
    // A song award's win goes to the song's band.
    for (int i = 0; i < 5; ++i) {
        g.song.rec = SongRecord{.band = band};
        g.song.append();
    }
    g.award.rec = AwardRecord{.name = "Song of the Year", .kind = 6};
    g.award->nominees[0] = static_cast<int16_t>(g.song.recordCount() - 1);
    g.award->nomineeCount = 1;
    g.award.append();
    g.ceremony.rec = CeremonyRecord{.name = "The Night", .awards = {1, 2, 3}, .playerInvited = kTrue};
    g.ceremony.append();
    g.schedule.rec = ScheduleRecord{.ceremony = 1};
    int32_t rows = g.achieve.recordCount();
    finishCeremony(g);
    EXPECT_EQ((g.award.read(1), std::tuple(int{g.award->winner}, int{g.award->held})), std::tuple(1, 2004));
    EXPECT_EQ((g.award.read(2), g.award->winner), 0);
    // For each win the band's row and one for each of its two members.
    ASSERT_EQ(g.achieve.recordCount(), rows + 6);
    EXPECT_EQ((g.achieve.read(rows + 3), std::tuple(int{g.achieve->kind}, g.achieve->who)), std::tuple(0, band));
    EXPECT_EQ(trim(g.achieve->text.value), "Winner of Song of the Year award. (The Night)");
}

}  // namespace

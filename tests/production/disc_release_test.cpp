// Release dates, pressing, distribution and the day a disc comes out.
#include <gtest/gtest.h>

#include "label/finances.h"
#include "production/disc_release.h"
#include "production/discs.h"
#include "schedule/schedule.h"
#include "support/amend.h"
#include "support/disc_world.h"
#include "world/dates.h"
#include "world/strings.h"

using namespace trovane;

namespace {

class Release : public test::DiscWorld, public ::testing::Test {
protected:
    // An album recorded but not yet dated.
    int16_t recorded(const char* title = "New") {
        int16_t d = addDisc(title, 0);
        amend(g.disc, d, [&] {
            g.disc->releaseDate = {};
            g.disc->distributor = {};
        });
        return d;
    }
    std::vector<ScheduleRecord> entriesOfType(uint8_t type) {
        std::vector<ScheduleRecord> out;
        for (int32_t n = 1; n < g.schedule.recordCount(); ++n) {
            g.schedule.read(n);
            if (g.schedule->type == type) out.push_back(g.schedule.rec);
        }
        return out;
    }
    Money ledger(int16_t who, int category) {
        LabelRecord l = labelRec(who);
        return ledgerEntry(l, 0, category);
    }
};

TEST_F(Release, ADateIsAMondayOnOrAfterTheEarliestWhichAnotherAlbumPushesInItsTerritoryOnly) {
    int16_t first = recorded("First");
    amend(g.disc, first, [&] { g.disc->releaseDate[0] = g.gameDate + 10; });
    int16_t second = recorded("Second");
    g.disc.read(second);
    EXPECT_EQ(earliestReleaseDate(g, 0), g.gameDate + 190);
    EXPECT_EQ(earliestReleaseDate(g, 1), g.gameDate + 42);
    g.disc->isSingle = 1;  // a single is not held back by an album
    EXPECT_EQ(earliestReleaseDate(g, 0), g.gameDate + 42);
    // A date must be a Monday on or after the earliest, with no other album out.
    amend(g.disc, first, [&] { g.disc->releaseDate[0] = 0; });
    g.disc.read(second);
    g.band.read(band);
    // The game starts on Thursday 5 August 2004: + 42 is Thursday 16
    // September; the first Monday offered is 20 September.
    double monday = serialFromCivil(2004, 9, 20);
    EXPECT_EQ(releaseDateRefusal(g, 0, monday), "");
    EXPECT_EQ(releaseDateRefusal(g, 0, monday - 7),
              "13/09/2004 is not a release date that can be chosen in uk. The earliest date offered is 20/09/2004.");
    EXPECT_NE(releaseDateRefusal(g, 0, monday + 1), "");
    g.band->contractEnd = monday - 1;
    EXPECT_NE(releaseDateRefusal(g, 0, monday), "");
    g.band->contractEnd = monday;
    EXPECT_EQ(releaseDateRefusal(g, 0, monday), "");
}

TEST_F(Release, DatingAgainCancelsTheEarlierEntriesAndOnlyThePlayersRecordedDiscsAreDated) {
    int16_t d = recorded();
    double monday = serialFromCivil(2004, 9, 20);
    std::array<double, 5> dates{monday, monday, 0, 0, monday + 7};
    ASSERT_EQ(setReleaseDatesRefusal(g, d, dates), "");
    setReleaseDates(g, d, dates);
    // Two dates: a release and a distributor entry a week before each.
    ASSERT_EQ(entriesOfType(15).size(), 2u);
    EXPECT_EQ(entriesOfType(26).front().date, monday - 7);
    dates = {monday + 14, 0, 0, 0, 0};
    setReleaseDates(g, d, dates);
    EXPECT_EQ(entriesOfType(15).size(), 1u);
    EXPECT_EQ(entriesOfType(255).size(), 4u);
    EXPECT_EQ(disc(d).releaseDate[1], 0.0);
    // Only the player's recorded disc can be dated.
    amend(g.disc, d, [&] { g.disc->tracksRecorded = 9; });
    EXPECT_EQ(setReleaseDatesRefusal(g, d, dates), "New has not been recorded yet.");
    amend(g.disc, d, [&] {
        g.disc->tracksRecorded = 10;
        g.disc->label = rival;
    });
    EXPECT_EQ(setReleaseDatesRefusal(g, d, dates), "New is not a disc of your label.");
}

TEST_F(Release, PressingCostsASetUpChargeAndThreeQuartersACopyChargedToTheBandsLabel) {
    EXPECT_FLOAT_EQ(pressingCostPerUnit(1000), 2.0f);  // 100 / 80 + 0.75
    EXPECT_EQ(pressingCost(10000), moneyUnits(8750));  // 1250 + 7500
    // 7.5 x (50 / 2100 + 0.15) = 1.3035714 a copy.
    EXPECT_EQ(distributionCost(100000, 50, false), moneyUnits(130357));
    EXPECT_EQ(distributionCost(100000, 0, true), moneyUnits(30000));  // 2.0 x 0.15
    // Pressing charges the band's label and books the weeks.
    int16_t d = recorded();
    amend(g.disc, d, [&] { g.disc->releaseDate[0] = serialFromCivil(2004, 9, 20); });
    int16_t owned = addFirm(1, 20, rival);
    std::array<int32_t, 5> copies{100000, 0, 0, 0, 0};
    EXPECT_NE(pressDiscsRefusal(g, d, owned, {0, 1000, 0, 0, 0}), "");  // no US date
    ASSERT_EQ(pressDiscsRefusal(g, d, owned, copies), "");
    pressDiscs(g, d, owned, copies);
    // 1250 + 75000; 100000 / 16000 a day = 6 days -> round(6 / 7 + 1) = 2 weeks.
    EXPECT_EQ(std::tuple(ledger(label, ledgerManufacture), ledger(rival, ledgerBusinesses)),
              std::tuple(-moneyUnits(76250), moneyUnits(76250)));
    EXPECT_EQ(entriesOfType(25).size(), 2u);
    EXPECT_EQ(disc(d).pressingOrder[0], 100000);
}

// A disc of the world as it starts sells only where it is out: elsewhere
// (no date, or a date to come) its figures are cleared and no firm is chosen.
TEST_F(Release, AStartingDiscKeepsItsFiguresOnlyWhereItIsOut) {
    int16_t d = recorded();
    amend(g.disc, d, [&] {
        g.disc->releaseDate = {g.gameDate, kNoDate, g.gameDate + 1, kNoDate, kNoDate};
        g.disc->totalSales.fill(500);
        g.disc->stock.fill(100);
    });
    g.disc.read(d);
    g.band.read(band);
    setUpReleasedDisc(g);
    EXPECT_EQ(std::tuple(g.disc->totalSales, g.disc->stock, g.disc->distributor[1]),
              std::tuple(std::array<int32_t, 5>{500, 0, 0, 0, 0}, std::array<int32_t, 5>{100, 0, 0, 0, 0}, int16_t{0}));
    EXPECT_GT(g.disc->distributor[0], 0);
}

// The rest of the world's forecast goes by the band's standing in Oceania:
// x1 up to 49, x1.1 from 50, x1.25 from 71, x1.4 from 81, x1.5 from 91.
TEST_F(Release, TheOtherTerritoriesForecastRisesWithOceaniaAtItsEdges) {
    int16_t d = recorded();
    amend(g.disc, d, [&] { g.disc->releaseDate[4] = serialFromCivil(2004, 9, 20); });
    const Random start = g.rng;
    auto forecastAt = [&](uint8_t oceania) {
        amend(g.band, band, [&] { g.band->reputation[3] = oceania; });
        g.rng = start;
        g.disc.read(d);
        return pressForecast(g).figure[4];
    };
    ASSERT_GT(forecastAt(0), 1000);
    for (auto [same, rises] : {std::pair{0, 49}, {50, 70}, {71, 80}, {81, 90}, {91, 100}}) {
        EXPECT_EQ(forecastAt(static_cast<uint8_t>(same)), forecastAt(static_cast<uint8_t>(rises))) << same;
        if (rises < 100) {
            EXPECT_LT(forecastAt(static_cast<uint8_t>(rises)), forecastAt(static_cast<uint8_t>(rises + 1))) << rises;
        }
    }
}

TEST_F(Release, APressWeekSharesItsOutputAndPassesOnWhatASmallOrderLeavesAndTheLastTellsThePlayer) {
    int16_t d = recorded();
    amend(g.disc, d, [&] { g.disc->pressingOrder = {10000, 0, 100000, 200000, 0}; });
    g.schedule.rec = ScheduleRecord{.disc = d, .business = plant};
    pressWeek(g);
    // 7 x 16000 = 112000 over 3: 37333. UK takes 10000 and passes on
    // round(27333 / 2) = 13666 (half to even): Europe and Oceania 50999.
    EXPECT_EQ(
        std::tuple(disc(d).stock, disc(d).pressingOrder),
        std::tuple(std::array<int32_t, 5>{10000, 0, 50999, 50999, 0}, std::array<int32_t, 5>{0, 0, 49001, 149001, 0}));
    // Week two: 56000 each, Europe's 6999 over to Oceania, 86002 left; week three ends it.
    int32_t before = g.news.recordCount();
    pressWeek(g);
    EXPECT_EQ(g.news.recordCount(), before);
    pressWeek(g);
    ASSERT_EQ(g.news.recordCount(), before + 1);
    g.news.read(before);
    EXPECT_EQ(trim(g.news->title.value), "Press Co complete work on New");
    pressWeek(g);
    EXPECT_EQ(g.news.recordCount(), before + 1) << "the player is told once";
}

TEST_F(Release, TheBillCoversTerritoriesOutInSixDays) {
    int16_t d = recorded();
    amend(g.disc, d, [&] {
        g.disc->releaseDate = {g.gameDate + 6, g.gameDate + 7, 0, 0, 0};
        g.disc->stock = {100000, 100000, 0, 0, 0};
        g.disc->distributor = {distributor, distributor, 0, 0, 0};
    });
    chooseDistributors(g, d, {});
    EXPECT_EQ(ledger(label, ledgerOtherExpense), -moneyUnits(130357));
}

TEST_F(Release, DistributorNeededMovesItsDateAndNamesTheTerritories) {
    int16_t d = recorded();
    double out = g.gameDate + 7;
    amend(g.disc, d, [&] { g.disc->releaseDate = {out, 0, out, 0, 0}; });
    int32_t entry = addSchedule(g, ScheduleRecord{.type = 26, .date = g.gameDate, .disc = d});
    g.schedule.read(entry);
    int32_t before = g.news.recordCount();
    distributorNeeded(g);
    EXPECT_EQ((g.schedule.read(entry), g.schedule->date), out);
    g.news.read(before);
    EXPECT_EQ(trim(g.news->title.value), "Distributor required for album New");
    EXPECT_EQ(trim(g.news->text.value),
              "The Testers's album is released in the following territories : Uk,Europe next week, as a result a "
              "distributor must be chosen for these territories.");
    EXPECT_EQ(g.news->scheduleLink, entry);
}

TEST_F(Release, ARivalsDiscGetsADistributorOnlyWhereItIsOutNextWeek) {
    int16_t d = recorded();
    const double out = g.gameDate + 7;
    amend(g.disc, d, [&] {
        g.disc->label = rival;
        g.disc->releaseDate = {out, out + 7, 0, 0, 0};
        g.disc->stock = {1000, 1000, 0, 0, 0};
    });
    g.schedule.read(addSchedule(g, ScheduleRecord{.type = 26, .date = g.gameDate, .disc = d}));
    distributorNeeded(g);
    EXPECT_EQ(std::pair(disc(d).distributor[0], disc(d).distributor[1]), std::pair(distributor, int16_t{0}));
}

TEST_F(Release, ReleaseDayPutsTheDiscOnSaleWhereItIsOutToday) {
    int16_t d = recorded();
    amend(g.disc, d, [&] {
        g.disc->releaseDate = {g.gameDate, g.gameDate + 7, 0, 0, 0};
        g.disc->promotion = {20, 20, 20, 20, 20};
    });
    // 0 + 0 is not 1: the option months stay
    amend(g.band, band, [&] {
        g.band->advanceToPay = moneyUnits(30000);
        g.band->optionsRemaining = 1;
    });
    g.schedule.rec = ScheduleRecord{.disc = d};
    releaseDay(g);
    DiscRecord r = disc(d);
    EXPECT_GT(r.distributor[0], 0);
    // Hype is the reputation of 50, with no marketing; promotion 20 + 50.
    EXPECT_EQ(std::tuple(r.distributor[1], r.hype[0], r.promotion[0], r.income),
              std::tuple(int16_t{0}, uint8_t{50}, uint8_t{70}, -moneyUnits(30000)));
    EXPECT_EQ(chartDiscs(0), std::vector<int16_t>{d});
    EXPECT_TRUE(chartDiscs(1).empty());
    EXPECT_EQ(bandRec(band).optionMonthsLeft, 0);
    g.achieve.read(1);  // the band's own row, then each member's
    EXPECT_EQ(std::tuple(int{g.achieve->kind}, g.achieve->who, trim(g.achieve->text.value)),
              std::tuple(0, band, std::string("New (album) released 5/8/2004")));
}

// An album's first release day sets the contract's next option; a single's does not.
TEST_F(Release, AnAlbumsReleaseSetsTheNextOptionDateThreeMonthsOn) {
    for (bool single : {false, true}) {
        int16_t d = recorded(single ? "Single" : "Album");
        amend(g.disc, d, [&] {
            g.disc->isSingle = single ? 1 : 0;
            g.disc->releaseDate = {g.gameDate, 0, 0, 0, 0};
        });
        // the last term: a decision, never a take-up
        amend(g.band, band, [&] { g.band->optionsRemaining = 0; });
        g.schedule.rec = ScheduleRecord{.disc = d};
        releaseDay(g);
    }
    // Thursday 5 August 2004 + 3 months = Friday 5 November 2004; one entry, for the album.
    int decisions = 0;
    for (int32_t id : entriesOfDay(g, serialFromCivil(2004, 11, 5))) {
        g.schedule.read(id);
        if (g.schedule->type == 18 && g.schedule->band == band) ++decisions;
    }
    EXPECT_EQ(decisions, 1);
}

}  // namespace

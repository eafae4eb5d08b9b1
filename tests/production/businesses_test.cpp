// Firms: what one quality figure makes of capacity and prices, the monthly
// upkeep of owned firms, and building a firm of one's own.
#include <gtest/gtest.h>

#include "production/businesses.h"
#include "schedule/schedule.h"
#include "support/album_world.h"
#include "world/strings.h"

using namespace trovane;
using test::AlbumWorld;

struct FirmFigures {
    int quality;
    int32_t distributor, plant, studioDay, studioRunning, plantRunning, distributorRunning;
    int64_t studioBuild;
};

class FirmsByQuality : public AlbumWorld, public ::testing::TestWithParam<FirmFigures> {};
struct Businesses : AlbumWorld, ::testing::Test {};

TEST_P(FirmsByQuality, CapacitiesPricesAndCosts) {
    const FirmFigures f = GetParam();
    g.business->quality = static_cast<uint8_t>(f.quality);
    EXPECT_EQ(distributorDailyCapacity(g), f.distributor);
    EXPECT_EQ(plantDailyCapacity(g), f.plant);
    EXPECT_EQ(studioDayCost(g), f.studioDay);
    EXPECT_EQ(runningCostFor(g, f.quality, kStudio), f.studioRunning);
    EXPECT_EQ(runningCostFor(g, f.quality, kPlant), f.plantRunning);
    EXPECT_EQ(runningCostFor(g, f.quality, kDistributor), f.distributorRunning);
    EXPECT_EQ(buildCost(f.quality, kStudio), f.studioBuild);
    EXPECT_EQ(buildCost(f.quality, kDistributor), f.studioBuild * 10);
    EXPECT_EQ(g.business->quality, f.quality) << "the buffer's quality is put back";
}

INSTANTIATE_TEST_SUITE_P(
    Qualities, FirmsByQuality,
    ::testing::Values(
        // 2 x 1 = 2 steps (5) to 0; 1 to 0; round(1.5) = 2; round(10) = 10; 0 x 7.5; round(0.5) = 0 x 1 x 1000.
        FirmFigures{1, 0, 0, 2, 10, 0, 0, 0},
        // 2 x 91,125 = 182,250 steps (10,000) to 180,000; 91,125 steps (5,000) to 90,000, twice 180,000;
        // 45 x 45 x 1.5 = 3,037.5 to the even 3,038; 45 x 45 x 10 = 20,250; 180,000 x 7.5 = 1,350,000;
        // round(22.5) = 22 x 45 x 1000 = 990,000.
        FirmFigures{45, 180000, 180000, 3038, 20250, 1350000, 1350000, 990000},
        // 250,000 (step 25,000); 125,000 steps (10,000) 12.5 to the even 12, twice 120,000; 3,750; 25,000;
        // 240,000 x 7.5 = 1,800,000; 250,000 x 7.5 = 1,875,000; 25 x 50 x 1000.
        FirmFigures{50, 250000, 240000, 3750, 25000, 1800000, 1875000, 1250000},
        // 2,000,000 (step 100,000); 1,000,000 twice; 15,000; 100,000; 15,000,000; 50 x 100 x 1000.
        FirmFigures{100, 2000000, 2000000, 15000, 100000, 15000000, 15000000, 5000000}));

TEST_F(Businesses, RunningCostsAreChargedOnlyForOpenOwnedFirms) {
    auto firm = [&](const char* name, int16_t owner, bool open, int32_t cost) {
        addFirm(name, kStudio, 50, owner, open);
        g.business->runningCost = cost;
        g.business.write();
    };
    firm("Ours", AlbumWorld::kPlayer, true, 1000);
    firm("Ours Again", AlbumWorld::kPlayer, true, 20);
    firm("Being Built", AlbumWorld::kPlayer, false, 300);
    firm("Independent", 0, true, 4000);
    firm("Theirs", AlbumWorld::kRival, true, 50000);
    subtractBusinessRunningCosts(g);
    EXPECT_EQ(ledger(AlbumWorld::kPlayer, ledgerBusinessUpkeep), -moneyUnits(1020));
    EXPECT_EQ(ledger(AlbumWorld::kRival, ledgerBusinessUpkeep), -moneyUnits(50000));
    EXPECT_EQ(cash(AlbumWorld::kPlayer), -moneyUnits(1020));
}

TEST_F(Businesses, BuildingAFirmBillsTheLabelAndOpensItSixMonthsOn) {
    addFirm("Press", kPlant, 50, 0);  // only studios are offered for studio work
    FacilityOrder order{.kind = kStudio, .name = "Home Rooms", .quality = 45, .city = 1};
    ASSERT_EQ(checkBuildFacility(g, order), "");
    int16_t firm = buildFacility(g, order);
    g.business.read(firm);
    EXPECT_EQ(std::tuple(g.business->open, g.business->owner, g.business->runningCost),
              std::tuple(int16_t{0}, AlbumWorld::kPlayer, 20250));
    EXPECT_EQ(ledger(AlbumWorld::kPlayer, ledgerBusinessUpkeep), -moneyUnits(990000));
    EXPECT_TRUE(chooseBusiness(g, kStudio).empty()) << "not open while being built";
    EXPECT_EQ(trim(lastNews().title.value), "Home Rooms plans finalised.");
    EXPECT_EQ(trim(lastNews().text.value),
              "Work has begun on your new studio Home Rooms. It is estimated the work will take six months.");

    // 5 August 2004 + six calendar months.
    std::vector<int32_t> entries = entriesOfDay(g, serialFromCivil(2005, 2, 5));
    ASSERT_EQ(entries.size(), 1u);
    g.schedule.read(entries[0]);
    EXPECT_EQ(std::tuple(int{g.schedule->type}, g.schedule->business), std::tuple(24, firm));
    EXPECT_TRUE(entriesOfDay(g, serialFromCivil(2005, 2, 4)).empty());

    openBusiness(g);
    EXPECT_EQ((g.business.read(firm), g.business->open), -1);
    EXPECT_EQ(chooseBusiness(g, kStudio), (std::vector<int16_t>{firm}));
    EXPECT_EQ(trim(lastNews().title.value), "Home Rooms opens for business.");
    EXPECT_EQ(trim(lastNews().text.value),
              "Home Rooms is now complete, as a result you will now be able to use it  to record your bands' "
              "material.");
}

TEST_F(Businesses, ABuildOrderIsRefusedInTheGamesWordsAndChangesNothing) {
    struct Row {
        std::string name;
        int quality, city;
        const char* refusal;  // nullptr: any refusal
    };
    for (const Row& r :
         {Row{"Press", 100, 1, ""}, Row{"  ", 1, 1, "Please enter a name for your new manufacturing plant."},
          Row{std::string(50, 'x'), 1, 1, ""}, Row{std::string(51, 'x'), 1, 1, nullptr}, Row{"Press", 101, 1, nullptr},
          Row{"Press", 0, 1, nullptr}, Row{"Press", 1, 2, "Please choose a location."}}) {
        SCOPED_TRACE(r.name + " " + std::to_string(r.quality));
        FacilityOrder order{.kind = kPlant, .name = r.name, .quality = r.quality, .city = static_cast<int16_t>(r.city)};
        if (r.refusal)
            EXPECT_EQ(checkBuildFacility(g, order), r.refusal);
        else
            EXPECT_NE(checkBuildFacility(g, order), "");
    }
    EXPECT_EQ(g.business.recordCount(), 1);
    EXPECT_EQ(cash(AlbumWorld::kPlayer), 0);
}

// The band browser: which bands its filter keeps, and how its labels sort.
#include <gtest/gtest.h>

#include "browse/artist_browse.h"
#include "browse/band_browse.h"
#include "browse/people_browse.h"
#include "label/scouting.h"
#include "support/empty_game.h"
#include "support/signing_world.h"

using namespace trovane;
using namespace trovane::test;

namespace {

class BandBrowse : public ::testing::Test {
protected:
    EmptyGame eg;
    Game& g = eg.g;
    int16_t rock = addStyle(g, 10);
    BandFilter filter;
    GridSort sort;
    Grid grid;

    BandBrowse() {
        g.prefs.rec.exchangeRate = 1.0f;
        g.prefs.rec.currencySymbol = "£";
        resetBandFilter(g, filter);
    }
    int16_t band(const std::string& name, auto&& set) {
        int16_t b = addAct(g, {.style = static_cast<uint8_t>(rock), .name = name});
        g.band.read(b);
        set(g.band.rec);
        g.band.write();
        return b;
    }
    std::vector<std::string> names() {
        populateBandGrid(g, 1, filter, kBandSearchColumns, sort, grid);
        std::vector<std::string> v;
        for (const GridRow& r : grid.rows) v.push_back(r.cells[0].text);
        return v;
    }
};

using Names = std::vector<std::string>;

TEST_F(BandBrowse, EachRangeKeepsBothEndsAndDropsOnePast) {
    // One band at each end of every range and one just past it.
    band("AdvLow", [](BandRecord& b) { b.advanceToPay = moneyUnits(1000); });
    band("AdvHigh", [](BandRecord& b) { b.advanceToPay = moneyUnits(2000); });
    band("AdvOver", [](BandRecord& b) { b.advanceToPay = moneyUnits(2001); });
    filter.advanceMin = moneyUnits(1000);
    filter.advanceMax = moneyUnits(2000);
    EXPECT_EQ(names(), (Names{"AdvLow", "AdvHigh"}));

    resetBandFilter(g, filter);
    filter.royaltyMin = 10;
    filter.royaltyMax = 12;
    g.band.read(1), g.band->royaltyRate = 9, g.band.write();
    g.band.read(2), g.band->royaltyRate = 10, g.band.write();
    g.band.read(3), g.band->royaltyRate = 12, g.band.write();
    EXPECT_EQ(names(), (Names{"AdvHigh", "AdvOver"}));
    g.band.read(3), g.band->royaltyRate = 13, g.band.write();
    EXPECT_EQ(names(), (Names{"AdvHigh"}));

    resetBandFilter(g, filter);
    filter.ageMin = 20;
    filter.ageMax = 25;
    g.band.read(1), g.band->age = 19, g.band.write();
    g.band.read(2), g.band->age = 20, g.band.write();
    g.band.read(3), g.band->age = 26, g.band.write();
    EXPECT_EQ(names(), (Names{"AdvHigh"}));

    resetBandFilter(g, filter);
    filter.gigMin = 5.5f;
    filter.gigMax = 6.0f;
    g.band.read(1), g.band->bestShare = 5.5f, g.band.write();
    g.band.read(2), g.band->bestShare = 6.0f, g.band.write();
    g.band.read(3), g.band->bestShare = 6.25f, g.band.write();
    EXPECT_EQ(names(), (Names{"AdvLow", "AdvHigh"}));
}

TEST_F(BandBrowse, EveryTerritorysReputationIsTested) {
    band("A", [](BandRecord& b) { b.reputation = {50, 50, 50, 50, 70}; });
    band("B", [](BandRecord& b) { b.reputation = {50, 50, 50, 50, 71}; });
    band("C", [](BandRecord& b) { b.reputation = {49, 50, 50, 50, 60}; });
    filter.reputationMin = {50, 0, 0, 0, 0};
    filter.reputationMax = {100, 100, 100, 100, 70};
    EXPECT_EQ(names(), (Names{"A"}));
}

TEST_F(BandBrowse, LabelStyleAndRetiredBandsAreLeftOut) {
    int16_t label = addLabel(g, {1, 1, 1, 1, 1});
    int16_t pop = addStyle(g, 10, 100, 0, "Pop");
    band("Signed", [&](BandRecord& b) { b.label = label; });
    band("Free", [](BandRecord&) {});
    band("Poppy", [&](BandRecord& b) { b.style = static_cast<uint8_t>(pop); });
    band("Gone", [](BandRecord& b) { b.retired = kTrue; });
    EXPECT_EQ(names(), (Names{"Signed", "Free", "Poppy"}));
    filter.label = 0;
    EXPECT_EQ(names(), (Names{"Free", "Poppy"}));
    filter.style = static_cast<uint8_t>(pop);
    EXPECT_EQ(names(), (Names{"Poppy"}));
    EXPECT_EQ(grid.rows[0].cells[4].text, "Unsigned");
    EXPECT_EQ(grid.rows[0].cells[1].text, "Pop");
}

TEST_F(BandBrowse, ANameMatchesOnlyWholeOnceTrimmed) {
    band("  The Kites ", [](BandRecord&) {});
    band("The Kites Two", [](BandRecord&) {});
    filter.name = "   ";
    EXPECT_EQ(names().size(), 2u);  // a blank name matches all
    filter.name = "The Kites  ";
    EXPECT_EQ(names(), (Names{"The Kites"}));
    filter.name = "the kites";
    EXPECT_TRUE(names().empty());
}

TEST_F(BandBrowse, TheShortlistKeepsOnlyThePlayersListedBands) {
    int16_t player = addLabel(g, {1, 1, 1, 1, 1}, "Mine");
    int16_t rival = addLabel(g, {1, 1, 1, 1, 1}, "Theirs");
    g.player.playerLabel = player;
    int16_t a = band("Ours", [](BandRecord&) {});
    band("Not Listed", [](BandRecord&) {});
    int16_t c = band("Their Pick", [](BandRecord&) {});
    g.band.read(a), g.label.read(player), shortlistAdd(g);
    g.band.read(c), g.label.read(rival), shortlistAdd(g);
    filter.shortlistOnly = true;
    EXPECT_EQ(names(), (Names{"Ours"}));
}

TEST_F(BandBrowse, AdvanceShowsInTheDisplayCurrencyAndSortsByValue) {
    g.prefs.rec.exchangeRate = 1.47f;
    g.prefs.rec.currencySymbol = "€";
    band("Dear", [](BandRecord& b) { b.advanceToPay = moneyUnits(100'000); });
    band("Cheap", [](BandRecord& b) { b.advanceToPay = moneyUnits(9'000); });
    resetBandFilter(g, filter);
    // 100,000 x 1.47 = 147,000; 9,000 x 1.47 = 13,230.
    EXPECT_EQ(names(), (Names{"Dear", "Cheap"}));
    EXPECT_EQ(grid.rows[0].cells[2].text, "€147,000");
    EXPECT_EQ(grid.rows[1].cells[2].text, "€13,230");
    clickColumnLabel(sort, grid, 2);  // "Advance" sorts on the hidden value after it
    EXPECT_EQ(sort.column, 3);
    EXPECT_EQ(names(), (Names{"Cheap", "Dear"}));  // by text "€13..." would still be first; check desc too
    clickColumnLabel(sort, grid, 2);
    EXPECT_EQ(names(), (Names{"Dear", "Cheap"}));
}

TEST_F(BandBrowse, TheFiltersTopAdvanceIsFiftyMillionInTheDisplayCurrency) {
    g.prefs.rec.exchangeRate = 2.0f;
    resetBandFilter(g, filter);
    EXPECT_EQ(filter.advanceMax, moneyUnits(25'000'000));  // 50,000,000 / 2
    g.prefs.rec.exchangeRate = 0.0f;                       // a rate of 0 counts as 1
    resetBandFilter(g, filter);
    EXPECT_EQ(filter.advanceMax, moneyUnits(50'000'000));
    g.prefs.rec.exchangeRate = 1.47f;
    // 147,000 typed in euros is 100,000 pounds.
    EXPECT_EQ(moneyFromDisplay(g, 147'000), moneyUnits(100'000));
}

TEST_F(BandBrowse, ALabelClickedThreeTimesSortsUpDownUp) {
    band("Bravo", [](BandRecord&) {});
    band("Alpha", [](BandRecord&) {});
    band("Charlie", [](BandRecord&) {});
    EXPECT_EQ(names(), (Names{"Bravo", "Alpha", "Charlie"}));  // table order until a click
    clickColumnLabel(sort, grid, 0);
    EXPECT_EQ(names(), (Names{"Alpha", "Bravo", "Charlie"}));
    clickColumnLabel(sort, grid, 0);
    EXPECT_EQ(names(), (Names{"Charlie", "Bravo", "Alpha"}));
    clickColumnLabel(sort, grid, 0);
    EXPECT_EQ(sort.direction, 1);
    EXPECT_EQ(names(), (Names{"Alpha", "Bravo", "Charlie"}));
    clickColumnLabel(sort, grid, 1);  // another label starts ascending
    EXPECT_EQ(sort.column, 1);
    EXPECT_EQ(sort.direction, 1);
}

TEST_F(BandBrowse, TiesKeepTableOrder) {
    band("Zed", [](BandRecord& b) { b.advanceToPay = moneyUnits(5); });
    band("Ann", [](BandRecord& b) { b.advanceToPay = moneyUnits(5); });
    band("Bob", [](BandRecord& b) { b.advanceToPay = moneyUnits(1); });
    clickColumnLabel(sort, grid, 3);
    clickColumnLabel(sort, grid, 3);  // descending
    EXPECT_EQ(names(), (Names{"Zed", "Ann", "Bob"}));
}

class ArtistBrowse : public BandBrowse {
protected:
    int16_t artist(const std::string& forename, int32_t wealth, int16_t retired = 0) {
        g.artist.rec = ArtistRecord{};
        g.artist->forename = forename;
        g.artist->surname = "Roe";
        g.artist->wealth = wealth;
        g.artist->retired = retired;
        return static_cast<int16_t>(g.artist.append());
    }
    Names rows(bool rich, const std::string& name = "") {
        populateArtistGrid(g, rich, name, sort, grid);
        Names v;
        for (const GridRow& r : grid.rows) v.push_back(r.cells[0].text);
        return v;
    }
};

TEST_F(ArtistBrowse, TheRichListOpensByWealthAndLeavesOutTheRetired) {
    artist("Poor", 10);
    artist("Rich", 900);
    artist("Gone", 5000, kTrue);
    artist("Also Rich", 900);
    EXPECT_EQ(rows(false), (Names{"Poor Roe", "Rich Roe", "Also Rich Roe"}));
    EXPECT_EQ(rows(true), (Names{"Rich Roe", "Also Rich Roe", "Poor Roe"}));  // ties in table order
    EXPECT_EQ(grid.rows[0].cells[5].text, "£900");
    clickColumnLabel(sort, grid, 5);  // a click sorts up from the poorest
    EXPECT_EQ(rows(true), (Names{"Poor Roe", "Rich Roe", "Also Rich Roe"}));
    EXPECT_EQ(rows(false, " Rich Roe "), (Names{"Rich Roe"}));
}

TEST_F(ArtistBrowse, TheJobIsNamedBySex) {
    g.job.rec = JobRecord{.title = "Frontman", .titleFemale = "Frontwoman"};
    const auto job = static_cast<uint8_t>(g.job.append());
    artist("Ann", 1);
    g.artist.read(1), g.artist->job = job, g.artist->male = kFalse, g.artist.write();
    artist("Bob", 1);
    g.artist.read(2), g.artist->job = job, g.artist->male = kTrue, g.artist.write();
    rows(false);
    EXPECT_EQ(grid.rows[0].cells[2].text, "Frontwoman");
    EXPECT_EQ(grid.rows[1].cells[2].text, "Frontman");
}

TEST_F(BandBrowse, StaffShowTheirLabelDepartmentAndWageAndLabelsTheirStyle) {
    int16_t pop = addStyle(g, 10, 100, 0, "Pop");
    int16_t label = addLabel(g, {1, 1, 1, 1, 1}, "Tin Roof");
    g.label.read(label), g.label->labelStyle = static_cast<uint8_t>(pop), g.label.write();
    addLabel(g, {1, 1, 1, 1, 1}, "Anything Goes");
    g.staff.rec = StaffRecord{};
    g.staff->forename = "Kim";
    g.staff->surname = "Rowe";
    g.staff->employer = label;
    g.staff->department = 3;
    g.staff->wage = moneyUnits(1250);
    g.staff.append();
    g.staff.rec = StaffRecord{.forename = "Fay", .surname = "Free"};
    g.staff.append();
    populateStaffGrid(g, "", sort, grid);
    ASSERT_EQ(grid.rows.size(), 2u);
    EXPECT_EQ(grid.rows[0].cells[3].text, "Tin Roof");
    EXPECT_EQ(grid.rows[0].cells[4].text, "Marketing");
    EXPECT_EQ(grid.rows[0].cells[5].text, "£1,250");
    EXPECT_EQ(grid.rows[1].cells[4].text, "");  // out of work: no department
    populateStaffGrid(g, "Fay Free ", sort, grid);
    ASSERT_EQ(grid.rows.size(), 1u);
    populateLabelGrid(g, "", sort, grid);
    ASSERT_EQ(grid.rows.size(), 2u);
    EXPECT_EQ(grid.rows[0].cells[1].text, "Pop");
    EXPECT_EQ(grid.rows[1].cells[1].text, "All Styles");
}

}  // namespace

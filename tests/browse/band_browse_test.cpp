// The band browser: which bands its filter keeps, how its labels sort, and its booking list.
#include <gtest/gtest.h>

#include "browse/artist_browse.h"
#include "browse/band_browse.h"
#include "browse/people_browse.h"
#include "label/scouting.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
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
        return cells(0);
    }
    std::vector<std::string> cells(std::size_t column) {
        std::vector<std::string> v;
        for (const GridRow& r : grid.rows) v.push_back(r.cells[column].text);
        return v;
    }
};

using Names = std::vector<std::string>;

TEST_F(BandBrowse, EachRangeKeepsBothEndsAndDropsOnePastAndTheTopAdvanceIsInTheDisplayCurrency) {
    // Three bands, each range set so that the bands stand at its ends and one past.
    for (const char* name : {"One", "Two", "Three"}) band(name, [](BandRecord&) {});
    auto set = [&](auto field, auto a, auto b, auto c) {
        int n = 1;
        for (auto v : {a, b, c}) g.band.read(n++), g.band.rec.*field = v, g.band.write();
    };
    set(&BandRecord::advanceToPay, moneyUnits(1000), moneyUnits(2000), moneyUnits(2001));
    filter.advanceMin = moneyUnits(1000);
    filter.advanceMax = moneyUnits(2000);
    EXPECT_EQ(names(), (Names{"One", "Two"}));
    resetBandFilter(g, filter);
    filter.royaltyMin = 10;
    filter.royaltyMax = 12;
    set(&BandRecord::royaltyRate, uint8_t{9}, uint8_t{10}, uint8_t{12});
    EXPECT_EQ(names(), (Names{"Two", "Three"}));
    resetBandFilter(g, filter);
    filter.ageMin = 20;
    filter.ageMax = 25;
    set(&BandRecord::age, uint8_t{19}, uint8_t{20}, uint8_t{25});
    EXPECT_EQ(names(), (Names{"Two", "Three"}));
    resetBandFilter(g, filter);
    filter.gigMin = 5.5f;
    filter.gigMax = 6.0f;
    set(&BandRecord::bestShare, 5.5f, 6.0f, 6.25f);
    EXPECT_EQ(names(), (Names{"One", "Two"}));
    resetBandFilter(g, filter);  // every territory's reputation is tested
    filter.reputationMin = {50, 0, 0, 0, 0};
    filter.reputationMax = {100, 100, 100, 100, 70};
    using Reputation = std::array<uint8_t, 5>;
    set(&BandRecord::reputation, Reputation{50, 50, 50, 50, 70}, Reputation{50, 50, 50, 50, 71},
        Reputation{49, 50, 50, 50, 60});
    EXPECT_EQ(names(), (Names{"One"}));
    g.prefs.rec.exchangeRate = 0.0f;  // counts as 1: the top advance is 50,000,000
    resetBandFilter(g, filter);
    EXPECT_EQ(filter.advanceMax, moneyUnits(50'000'000));
}

TEST_F(BandBrowse, LabelStyleAndRetiredBandsAreLeftOut) {
    int16_t label = addLabel(g, {1, 1, 1, 1, 1}, "Mine");
    int16_t pop = addStyle(g, 10, 100, 0, "Pop");
    band("Signed", [&](BandRecord& b) { b.label = label; });
    band("Free", [](BandRecord&) {});
    band("Poppy", [&](BandRecord& b) { b.style = static_cast<uint8_t>(pop); });
    band("Gone", [](BandRecord& b) { b.retired = kTrue; });
    EXPECT_EQ(names(), (Names{"Signed", "Free", "Poppy"}));
    // Each row names its own style and label, though each name is read once.
    EXPECT_EQ(cells(1), (Names{"Rock", "Rock", "Pop"}));
    EXPECT_EQ(cells(4), (Names{"Mine", "Unsigned", "Unsigned"}));
    filter.label = 0;
    EXPECT_EQ(names(), (Names{"Free", "Poppy"}));
    filter.style = static_cast<uint8_t>(pop);
    EXPECT_EQ(names(), (Names{"Poppy"}));
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
    clickColumnLabel(sort, grid, 2);  // "Advance" sorts on the hidden value after it
    clickColumnLabel(sort, grid, 2);
    EXPECT_EQ(std::pair(sort.column, sort.direction), std::pair(3, 2));
    clickColumnLabel(sort, grid, 1);  // another label starts ascending
    EXPECT_EQ(std::pair(sort.column, sort.direction), std::pair(1, 1));
}

TEST_F(BandBrowse, TheRichListOpensByWealthLeavesOutTheRetiredAndNamesTheJobBySex) {
    auto artist = [&](const char* forename, int32_t wealth, int16_t retired = 0) {
        g.artist.rec = ArtistRecord{.retired = retired, .forename = forename, .surname = "Roe", .wealth = wealth};
        g.artist.append();
    };
    auto rows = [&](bool rich, const std::string& name = "") {
        populateArtistGrid(g, rich, name, sort, grid);
        return cells(0);
    };
    g.job.rec = JobRecord{.title = "Frontman", .titleFemale = "Frontwoman"};
    const auto job = static_cast<uint8_t>(g.job.append());
    artist("Poor", 10);
    artist("Rich", 900);
    artist("Gone", 5000, kTrue);
    artist("Also Rich", 900);
    g.artist.read(1), g.artist->job = job, g.artist->male = kFalse, g.artist.write();
    g.artist.read(2), g.artist->job = job, g.artist->male = kTrue, g.artist.write();
    EXPECT_EQ(rows(false), (Names{"Poor Roe", "Rich Roe", "Also Rich Roe"}));
    EXPECT_EQ(cells(2)[0] + "|" + cells(2)[1], "Frontwoman|Frontman");
    EXPECT_EQ(rows(true), (Names{"Rich Roe", "Also Rich Roe", "Poor Roe"}));  // ties in table order
    EXPECT_EQ(grid.rows[0].cells[5].text, "£900");
    clickColumnLabel(sort, grid, 5);  // a click sorts up from the poorest
    EXPECT_EQ(rows(true), (Names{"Poor Roe", "Rich Roe", "Also Rich Roe"}));
    EXPECT_EQ(rows(false, " Rich Roe "), (Names{"Rich Roe"}));
}

TEST_F(BandBrowse, StaffShowLabelDepartmentAndWageLabelsTheirStyleAndBandsTodaysEngagement) {
    int16_t label = addLabel(g, {1, 1, 1, 1, 1}, "Tin Roof");
    g.label.read(label), g.label->labelStyle = static_cast<uint8_t>(rock), g.label.write();  // the first style
    addLabel(g, {1, 1, 1, 1, 1}, "Anything Goes");
    const Money wage = moneyUnits(1250);
    (g.staff.rec = StaffRecord{.forename = "Kim", .surname = "Rowe", .employer = label, .department = 3, .wage = wage},
     g.staff.append());
    (g.staff.rec = StaffRecord{.forename = "Fay", .surname = "Free"}, g.staff.append());
    populateStaffGrid(g, "", sort, grid);
    EXPECT_EQ(cells(3)[0] + "|" + cells(5)[0], "Tin Roof|£1,250");
    EXPECT_EQ(cells(4), (Names{"Marketing", ""}));  // out of work: no department
    populateStaffGrid(g, "Fay Free ", sort, grid);
    EXPECT_EQ(grid.rows.size(), 1u);
    populateLabelGrid(g, "", sort, grid);
    EXPECT_EQ(cells(1), (Names{"Rock", "All Styles"}));

    const int16_t busy = band("Busy", [](BandRecord&) {});  // the activity column shows today's engagement
    band("Idle", [](BandRecord&) {});
    const auto signs = static_cast<uint8_t>(ScheduleType::bandSigns);
    addSchedule(g, ScheduleRecord{.type = signs, .date = g.gameDate, .band = busy, .label = label});
    populateBandGrid(g, 1, filter, {bcActivity}, sort, grid);
    EXPECT_EQ(cells(0), (Names{"Signing for Tin Roof", "None"}));
}

TEST(AdvanceSteps, StepToTheNextListedAmountAndStopAtTheEnds) {
    EXPECT_EQ(stepAdvance(50'000, 1), 100'000);  // on a step: the next one
    EXPECT_EQ(stepAdvance(49'999, 1), 50'000);   // between steps: the one above
    EXPECT_EQ(stepAdvance(50'000, -1), 0);
    EXPECT_EQ(stepAdvance(50'001, -1), 50'000);
    EXPECT_EQ(stepAdvance(0, -1), 0);                    // the bottom stays
    EXPECT_EQ(stepAdvance(25'000'000, 1), 25'000'000);   // the top stays
    EXPECT_EQ(stepAdvance(50'000'000, -1), 25'000'000);  // the default top steps down into the list
}

TEST_F(BandBrowse, TheBookingListMarksTheBandsOnTheBillInHand) {
    int16_t head = band("Head", [](BandRecord&) {});
    int16_t first = band("First", [](BandRecord&) {});
    int16_t second = band("Second", [](BandRecord&) {});
    band("Free", [](BandRecord&) {});
    g.tour.rec = TourRecord{.supportCount = 1};  // the headliner and one support stand on the bill
    g.gig.rec = GigRecord{.bill = {head, first, second}};
    filter.referenceBand = head;
    populateBandGrid(g, 1, filter, kBandBookingColumns, sort, grid);
    EXPECT_EQ(grid.columns[0].label, "Added");
    // The third on the bill is past the count the tour holds.
    EXPECT_EQ(cells(0), (Names{"Added", "Added", "", ""}));
    // Mode 3 lists the bill one shorter than mode 2, unfiltered.
    populateBandGrid(g, 3, filter, kBandBookingColumns, sort, grid);
    EXPECT_EQ(grid.rows.size(), 1u);
    populateBandGrid(g, 2, filter, kBandBookingColumns, sort, grid);
    EXPECT_EQ(grid.rows.size(), 2u);
}

}  // namespace

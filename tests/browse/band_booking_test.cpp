// The band browser's booking list, the steps of the filter's money combos,
// and the names a filling looks up once.
#include <gtest/gtest.h>

#include "browse/band_browse.h"
#include "support/empty_game.h"
#include "support/signing_world.h"

using namespace trovane;
using namespace trovane::test;

namespace {

TEST(AdvanceSteps, StepToTheNextListedAmountAndStopAtTheEnds) {
    EXPECT_EQ(stepAdvance(50'000, 1), 100'000);  // on a step: the next one
    EXPECT_EQ(stepAdvance(49'999, 1), 50'000);   // between steps: the one above
    EXPECT_EQ(stepAdvance(50'000, -1), 0);
    EXPECT_EQ(stepAdvance(50'001, -1), 50'000);
    EXPECT_EQ(stepAdvance(0, -1), 0);                    // the bottom stays
    EXPECT_EQ(stepAdvance(25'000'000, 1), 25'000'000);   // the top stays
    EXPECT_EQ(stepAdvance(50'000'000, -1), 25'000'000);  // the default top steps down into the list
}

class BandGrid : public ::testing::Test {
protected:
    EmptyGame eg;
    Game& g = eg.g;
    BandFilter filter;
    GridSort sort;
    Grid grid;
    BandGrid() {
        g.prefs.rec.exchangeRate = 1.0f;
        resetBandFilter(g, filter);
    }
};

TEST_F(BandGrid, EachRowNamesItsOwnStyleAndLabel) {
    int16_t rock = addStyle(g, 10, 100, 0, "Rock");
    int16_t pop = addStyle(g, 10, 100, 0, "Pop");
    int16_t mine = addLabel(g, {1, 1, 1, 1, 1}, "Mine");
    int16_t theirs = addLabel(g, {1, 1, 1, 1, 1}, "Theirs");
    addAct(g, {.label = mine, .style = static_cast<uint8_t>(rock), .name = "A"});
    addAct(g, {.label = theirs, .style = static_cast<uint8_t>(pop), .name = "B"});
    addAct(g, {.label = mine, .style = static_cast<uint8_t>(pop), .name = "C"});
    populateBandGrid(g, 1, filter, kBandSearchColumns, sort, grid);
    ASSERT_EQ(grid.rows.size(), 3u);
    EXPECT_EQ(grid.rows[0].cells[1].text, "Rock");
    EXPECT_EQ(grid.rows[1].cells[1].text, "Pop");
    EXPECT_EQ(grid.rows[2].cells[1].text, "Pop");
    EXPECT_EQ(grid.rows[0].cells[4].text, "Mine");
    EXPECT_EQ(grid.rows[1].cells[4].text, "Theirs");
    EXPECT_EQ(grid.rows[2].cells[4].text, "Mine");
    // The band buffer still holds the last band the walk read.
    EXPECT_EQ(g.band->name.value, "C");
}

TEST_F(BandGrid, TheBookingListMarksTheBandsOnTheBillInHand) {
    addStyle(g, 10);
    int16_t head = addAct(g, {.name = "Head"});
    int16_t first = addAct(g, {.name = "First"});
    int16_t second = addAct(g, {.name = "Second"});
    addAct(g, {.name = "Free"});
    g.tour.rec = TourRecord{};
    g.tour->supportCount = 1;  // the headliner and one support stand on the bill
    g.gig.rec = GigRecord{};
    g.gig->bill = {head, first, second};
    filter.referenceBand = head;
    populateBandGrid(g, 1, filter, kBandBookingColumns, sort, grid);
    ASSERT_EQ(grid.rows.size(), 4u);
    EXPECT_EQ(grid.columns[0].label, "Added");
    EXPECT_EQ(grid.rows[0].cells[0].text, "Added");
    EXPECT_EQ(grid.rows[1].cells[0].text, "Added");
    EXPECT_EQ(grid.rows[2].cells[0].text, "");  // third on the bill, past the count the tour holds
    EXPECT_EQ(grid.rows[3].cells[0].text, "");
    // Mode 3 lists the bill one shorter than mode 2, unfiltered.
    populateBandGrid(g, 3, filter, kBandBookingColumns, sort, grid);
    EXPECT_EQ(grid.rows.size(), 1u);
    populateBandGrid(g, 2, filter, kBandBookingColumns, sort, grid);
    EXPECT_EQ(grid.rows.size(), 2u);
}

}  // namespace

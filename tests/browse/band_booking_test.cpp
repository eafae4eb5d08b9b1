// The band browser's booking list and the steps of the filter's money combos.
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

TEST(BandGrid, TheBookingListMarksTheBandsOnTheBillInHand) {
    EmptyGame eg;
    Game& g = eg.g;
    BandFilter filter;
    resetBandFilter(g, filter);
    GridSort sort;
    Grid grid;
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
    std::vector<std::string> added;
    for (const GridRow& r : grid.rows) added.push_back(r.cells[0].text);
    // The third on the bill is past the count the tour holds.
    EXPECT_EQ(added, (std::vector<std::string>{"Added", "Added", "", ""}));
    // Mode 3 lists the bill one shorter than mode 2, unfiltered.
    populateBandGrid(g, 3, filter, kBandBookingColumns, sort, grid);
    EXPECT_EQ(grid.rows.size(), 1u);
    populateBandGrid(g, 2, filter, kBandBookingColumns, sort, grid);
    EXPECT_EQ(grid.rows.size(), 2u);
}

}  // namespace

// Two years of the shipped world after a take-over: acts end and new ones
// form, people leave, retire and die, and the world's stories run their course.
#include <gtest/gtest.h>

#include "support/taken_over_game.h"

using namespace trovane;

namespace {

TEST(LivesScenario, TwoYearsKeepTheWorldsActsAndExpandEveryStory) {
    test::TakenOverGame game(1919, test::StartWorld::shipped);
    Game& g = game.g;
    game.takeOver(game.labelNamed("Halcyon Records"), game.annLee());
    const int32_t firstBands = g.band.recordCount();
    // The invariants after each day include the count of active acts.
    for (int day = 0; day < 730; ++day) ASSERT_NO_FATAL_FAILURE(game.playDay());
    EXPECT_GT(g.band.recordCount(), firstBands) << "acts ended and new ones formed";
    int stories = 0;
    for (int32_t n = 1; n < g.news.recordCount(); ++n) {
        g.news.read(n);
        const std::string text = trim(g.news->title.value) + " " + trim(g.news->text.value);
        ASSERT_EQ(text.find('<'), std::string::npos) << text;
        if (g.news->scheduleLink > 0) {
            g.schedule.read(g.news->scheduleLink);
            stories += g.schedule->type == 12;
        }
    }
    EXPECT_GT(stories, 0);
}

}  // namespace

// Two years of the shipped world after a take-over: acts end and new ones
// form, people leave, retire and die, and the world's stories run their course.
#include <gtest/gtest.h>

#include <filesystem>

#include "day/daily_cycle.h"
#include "day/news_inbox.h"
#include "floor/preferences.h"
#include "session/invariants.h"
#include "session/new_game.h"
#include "support/temp_folder.h"
#include "world/dates.h"
#include "world/record_store.h"
#include "world/strings.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

int32_t activeActs(Game& g) {
    int32_t n = 0;
    for (int32_t b = 1; b < g.band.recordCount(); ++b) {
        g.band.read(b);
        if (g.band->retired == kFalse) ++n;
    }
    return n;
}

}  // namespace

TEST(LivesScenario, TwoYearsKeepTheWorldsActsAndExpandEveryStory) {
    test::TempFolder folder;
    Game g{folder.path(), 1919};
    fs::path base = fs::path(TROVANE_SIM_PATH).parent_path() / "Data";
    for (const auto& f : fs::directory_iterator(base)) fs::copy_file(f.path(), folder.path() / f.path().filename());
    g.clockDate = [] { return serialFromCivil(2026, 11, 22); };
    readPrefs(g);
    beginNewGame(g);
    PlayerChoices p = defaultPlayerChoices(g);
    p.forename = "Ann";
    p.surname = "Lee";
    takeOverLabel(g, confirmPlayer(g, p), narrow<int16_t>(findRecordByName(g, FileNo::fileLabel, "Halcyon Records")));
    const int32_t acts = activeActs(g);
    const int32_t firstBands = g.band.recordCount();
    for (int day = 0; day < 730; ++day) {
        while (!allRepliesGiven(g)) {
            openNewsItem(g);
            pressNewsCmd1(g);
            g.news->replied = kTrue;
            g.news.write();
        }
        checkDaysSchedule(g);
        const auto broken = checkInvariants(g);
        ASSERT_FALSE(broken) << "day " << day << ": " << describeBreak(*broken);
        ASSERT_EQ(activeActs(g), acts) << "day " << day;
    }
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

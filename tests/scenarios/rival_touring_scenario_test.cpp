// A season of the shipped world: rival acts tour after their albums and again
// while the albums sell, with support acts on their bills, and every day keeps
// the world's invariants.
#include <gtest/gtest.h>

#include <filesystem>

#include "day/daily_cycle.h"
#include "day/news_inbox.h"
#include "floor/formats.h"
#include "floor/preferences.h"
#include "session/invariants.h"
#include "session/new_game.h"
#include "support/temp_folder.h"
#include "world/dates.h"
#include "world/record_store.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

TEST(RivalTouringSeason, RivalsTourWithSupportsAndTheWorldHolds) {
    test::TempFolder folder;
    Game g{folder.path(), 3};
    const fs::path base = fs::path(TROVANE_SIM_PATH).parent_path() / "Data";
    for (const auto& f : fs::directory_iterator(base)) fs::copy_file(f.path(), folder.path() / f.path().filename());
    g.clockDate = [] { return serialFromCivil(2026, 11, 22); };
    readPrefs(g);
    beginNewGame(g);
    PlayerChoices p = defaultPlayerChoices(g);
    p.forename = "Ann";
    p.surname = "Lee";
    takeOverLabel(g, confirmPlayer(g, p), narrow<int16_t>(findRecordByName(g, FileNo::fileLabel, "Halcyon Records")));
    const int16_t mine = g.player.playerLabel;
    const int32_t firstTour = g.tour.recordCount();

    for (int day = 0; day < 300; ++day) {
        while (!allRepliesGiven(g)) {
            openNewsItem(g);
            pressNewsCmd1(g);
            g.news->replied = kTrue;
            g.news.write();
        }
        checkDaysSchedule(g);
        const auto broken = checkInvariants(g);
        ASSERT_FALSE(broken) << formatDate(g.gameDate, "yyyy-mm-dd") << ": " << describeBreak(*broken);
    }

    int rivalTours = 0, withSupports = 0, gigsPlayed = 0;
    for (int32_t n = firstTour; n < g.tour.recordCount(); ++n) {
        g.tour.read(n);
        const TourRecord t = g.tour.rec;
        if (t.festival > 0 || t.gigCount == 0) continue;
        g.band.read(t.band);
        if (g.band->label == mine) continue;
        ++rivalTours;
        if (t.supportCount > 0) ++withSupports;
        for (int i = 0; i < t.gigCount; ++i) {
            g.gig.read(t.gigs[static_cast<std::size_t>(i)]);
            // The supports placed are exactly the acts after the headliner.
            int acts = 0;
            while (acts < 40 && g.gig->bill[static_cast<std::size_t>(acts)] != 0) ++acts;
            EXPECT_EQ(acts - 1, t.supportCount) << "tour " << n;
            if (g.gig->gigDate < g.gameDate && g.gig->attendance > 0) ++gigsPlayed;
        }
    }
    EXPECT_GT(rivalTours, 0);
    EXPECT_GT(withSupports, 0);
    EXPECT_GT(gigsPlayed, 0);
}

}  // namespace

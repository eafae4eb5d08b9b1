// Two years of the shipped world left to itself: the rival labels sign acts,
// make albums and singles and put them out, and every day keeps the world's
// invariants. The headless ten-year run is the same loop, longer.
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
#include "world/strings.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

TEST(RivalYears, RivalsSignRecordAndReleaseForTwoYears) {
    test::TempFolder folder;
    Game g{folder.path(), 1};
    const fs::path base = fs::path(TROVANE_SIM_PATH).parent_path() / "Data";
    for (const auto& f : fs::directory_iterator(base)) fs::copy_file(f.path(), folder.path() / f.path().filename());
    g.clockDate = [] { return serialFromCivil(2026, 11, 22); };
    readPrefs(g);
    beginNewGame(g);
    PlayerChoices p = defaultPlayerChoices(g);
    p.forename = "Ann";
    p.surname = "Lee";
    NewPlayer player = confirmPlayer(g, p);
    takeOverLabel(g, player, narrow<int16_t>(findRecordByName(g, FileNo::fileLabel, "Halcyon Records")));
    const int16_t mine = g.player.playerLabel;
    const int32_t firstNewDisc = g.disc.recordCount();
    std::vector<int16_t> unsignedAtStart;
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        g.band.read(n);
        if (g.band->label == 0 && g.band->retired == 0) unsignedAtStart.push_back(static_cast<int16_t>(n));
    }

    for (int day = 0; day < 730; ++day) {
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

    int signedByRivals = 0;
    for (int16_t b : unsignedAtStart) {
        g.band.read(b);
        signedByRivals += g.band->label > 0 && g.band->label != mine;
    }
    int albumsOut = 0;
    int singlesOut = 0;
    for (int32_t n = firstNewDisc; n < g.disc.recordCount(); ++n) {
        g.disc.read(n);
        if (g.disc->label == mine || g.disc->label == 0) continue;
        EXPECT_EQ(trim(g.disc->coverImage.value), "none.jpg");
        bool out = false;
        for (double d : g.disc->releaseDate) out = out || (d > kNoDate && d < g.gameDate);
        if (!out) continue;
        (g.disc->isSingle ? singlesOut : albumsOut) += 1;
    }
    EXPECT_GT(signedByRivals, 0);
    EXPECT_GT(albumsOut, 0);
    EXPECT_GT(singlesOut, 0);
}

}  // namespace

// The rivals' walks that read a field or two from records' bytes, or ask of a
// stretch of days at once, answer and leave the buffers as the walks that
// read each record or asked of each day did.
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "production/songwriting.h"
#include "rivals/rival_albums.h"
#include "rivals/rival_promotion.h"
#include "rivals/rival_signing.h"
#include "schedule/band_calendar.h"
#include "support/played_world.h"
#include "world/strings.h"

using namespace trovane;

namespace {

struct RivalWalks : ::testing::Test {
    static test::PlayedWorld* w;
    static void SetUpTestSuite() {
        w = new test::PlayedWorld;
        w->play(200);
    }
    static void TearDownTestSuite() { delete w; }
    Game& g = w->g;
};
test::PlayedWorld* RivalWalks::w = nullptr;

TEST_F(RivalWalks, FreeDaysOfAStretchAnswerAndLeaveTheBuffersAsAskingDayByDay) {
    auto buffers = [&] { return std::tuple{g.schedule.rec, g.gig.rec, g.tour.rec}; };
    int busy = 0;
    for (int16_t b = 1; b < g.band.recordCount(); b += 5) {
        const auto before = buffers();
        std::vector<bool> walked;
        for (double d = g.gameDate + 1; d <= g.gameDate + 90; ++d) {
            g.band.read(b);
            walked.push_back(bandEngagement(g, 1, d) == 0);
        }
        const auto after = buffers();
        std::tie(g.schedule.rec, g.gig.rec, g.tour.rec) = before;
        g.band.read(b);
        const FreeDays days = freeDaysOf(g, g.gameDate - 5, g.gameDate + 90);
        ASSERT_EQ(days.first, g.gameDate + 1);
        ASSERT_EQ(days.free, walked) << "band " << b;
        EXPECT_TRUE(buffers() == after) << "band " << b;
        busy += static_cast<int>(std::count(walked.begin(), walked.end(), false));
    }
    EXPECT_GT(busy, 100);  // the stretches hold plenty of engagements
}

TEST_F(RivalWalks, WeeklyStepsLeaveTheBuffersAtTheLastRecordsWhichTheyPassOver) {
    g.band.rec = BandRecord{.name = "Nobody Yet"};
    const int32_t band = g.band.append();
    g.artist.rec = ArtistRecord{.forename = "Quiet"};
    const int32_t artist = g.artist.append();
    g.band.read(1);
    g.artist.read(1);
    computerCheckAlbumProgress(g);
    EXPECT_EQ(trim(g.band->name.value), "Nobody Yet");
    g.band.read(1);
    computerRecordAlbum(g);
    EXPECT_EQ(g.band->id, band);
    updateSongs(g);
    EXPECT_EQ(g.artist->id, artist);
    g.shortlist.rec = ShortlistRecord{.band = static_cast<int16_t>(band)};
    const int32_t row = g.shortlist.append();
    g.shortlist.read(1);
    computerApproachBands(g);
    EXPECT_EQ(g.shortlist->id, row);
}

}  // namespace

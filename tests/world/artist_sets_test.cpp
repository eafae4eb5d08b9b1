// The artists the daily walks need agree with a walk of the whole table after
// a played stretch in which acts end and new ones form.
#include <gtest/gtest.h>

#include "support/played_world.h"
#include "talent/retirement.h"
#include "world/artist_sets.h"

using namespace trovane;

TEST(ArtistSets, AgreeWithAWalkAfterMonthsOfPlay) {
    test::PlayedWorld w;
    Game& g = w.g;
    const int32_t atStart = g.artist.recordCount();
    (void)activeArtists(g);  // built now, kept in step by the writes of play
    w.play(120);
    // An unsigned act ends mid-way, whatever else the months bring.
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        g.band.read(n);
        if (g.band->retired == kFalse && g.band->label == 0 && g.band->memberCount > 0) {
            retireBand(g, true);
            break;
        }
    }
    w.play(120);
    ASSERT_GT(g.artist.recordCount(), atStart) << "new acts brought new artists";

    std::vector<int32_t> active;
    int32_t retired = 0;
    for (int32_t n = 1; n < g.artist.recordCount(); ++n) {
        const auto bytes = g.artist.bytesOf(n);
        ArtistRecord a{};
        decodeRecord(bytes.data(), a);
        if (a.retired == kFalse)
            active.push_back(n);
        else
            ++retired;
        const bool rested = a.energy == 100 && (a.songQuality == 0 || a.writingFocus == 100);
        EXPECT_EQ(artistAtRest(bytes), rested) << "artist " << n;
    }
    EXPECT_GT(retired, 0);
    g.artist.read(5);
    const ArtistRecord held = g.artist.rec;
    EXPECT_EQ(activeArtists(g), active);
    std::vector<int32_t> unrested = unrestedArtists(g);
    for (int32_t n = 1; n < g.artist.recordCount(); ++n) {
        const bool listed = std::binary_search(unrested.begin(), unrested.end(), n);
        EXPECT_EQ(listed, !artistAtRest(g.artist.bytesOf(n))) << "artist " << n;
    }
    EXPECT_EQ(g.artist.rec, held) << "a lookup leaves the buffer alone";
}

// A day's recovery reads only the artists it can change, and still finds every
// one a write has moved since.
#include <gtest/gtest.h>

#include "support/album_world.h"
#include "support/amend.h"
#include "talent/band_condition.h"
#include "world/artist_sets.h"

using namespace trovane;

namespace {

struct Recovery : ::testing::Test, test::AlbumWorld {
    ArtistRecord artist(int32_t n) {
        g.artist.read(n);
        return g.artist.rec;
    }
};

}  // namespace

TEST_F(Recovery, ArtistsChangedAfterADayAtRestRecoverTheNext) {
    addBand("Rested", 0, 3, 50);
    for (int32_t n = 1; n <= 3; ++n)
        amend(g.artist, n, [&] {
            g.artist->energy = 100;
            g.artist->writingFocus = 100;
        });
    increaseArtistEnergy(g);  // all three at rest now, and left out of the next walks
    EXPECT_TRUE(unrestedArtists(g).empty());

    amend(g.artist, 1, [&] {
        g.artist->energy = 50;
        g.artist->stamina = 64;
    });
    amend(g.artist, 2, [&] { g.artist->writingFocus = 90; });
    amend(g.artist, 3, [&] {
        g.artist->retired = kTrue;
        g.artist->energy = -3;
    });
    increaseArtistEnergy(g);
    EXPECT_EQ(artist(1).energy, 53);        // 50 + 64 / 32 + 1
    EXPECT_EQ(artist(2).writingFocus, 93);  // 90 + 3
    EXPECT_EQ(artist(3).energy, -2) << "the retired rest too";
    increaseArtistEnergy(g);
    EXPECT_EQ(artist(3).energy, -1);
    increaseArtistEnergy(g);
    EXPECT_EQ(artist(3).energy, 100) << "back at full strength after the last day away";
}

TEST_F(Recovery, RestIsFullEnergyAndFullFocusForWriters) {
    addBand("Edge", 0, 4, 50);
    amend(g.artist, 1, [&] { g.artist->writingFocus = 100; });  // energy 100: at rest
    amend(g.artist, 2, [&] { g.artist->writingFocus = 99; });   // focus one short
    amend(g.artist, 3, [&] {
        g.artist->writingFocus = 100;
        g.artist->energy = 99;  // energy one short
    });
    amend(g.artist, 4, [&] {
        g.artist->songQuality = 0;  // writes nothing: focus does not count
        g.artist->writingFocus = 0;
    });
    increaseArtistEnergy(g);  // the first walk reads everyone and files them
    EXPECT_EQ(unrestedArtists(g), std::vector<int32_t>{}) << "2 and 3 reached 100 today";
    amend(g.artist, 2, [&] { g.artist->writingFocus = 99; });
    amend(g.artist, 3, [&] { g.artist->energy = 101; });
    EXPECT_EQ(unrestedArtists(g), (std::vector<int32_t>{2, 3}));
    increaseArtistEnergy(g);
    EXPECT_EQ(artist(2).writingFocus, 100);
    EXPECT_EQ(artist(3).energy, 100);
}

TEST_F(Recovery, TheWalkLeavesTheBufferOnTheLastArtist) {
    addBand("Buffer", 0, 3, 0);  // writes nothing: at rest after a day
    increaseArtistEnergy(g);
    g.artist.read(1);
    increaseArtistEnergy(g);  // nobody to visit
    EXPECT_EQ(g.artist->id, 3);
}

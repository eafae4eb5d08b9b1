// What the game reads off an act, and how its money and points are shared out.
#include <gtest/gtest.h>

#include "label/finances.h"
#include "support/game_test.h"
#include "talent/band_functions.h"

using namespace trovane;

namespace {

struct Bands : test::GameTest {
    // An artist holding a job of the given rank (0: no job).
    int16_t addArtist(int16_t rank = 0, uint8_t share = 0) {
        g.artist.rec = ArtistRecord{.royaltyShare = share};
        if (rank > 0) {
            g.job.rec = JobRecord{.rank = rank};
            g.artist->job = narrow<uint8_t>(g.job.append());
        }
        return narrow<int16_t>(g.artist.append());
    }
    // A band of the given members, left in the band buffer.
    void addBand(std::initializer_list<int16_t> members, int16_t label = 0) {
        g.band.rec = BandRecord{.label = label};
        for (int16_t m : members) g.band->members[g.band->memberCount++] = m;
        g.band.append();
    }
    ArtistRecord& artist(int16_t n) {
        g.artist.read(n);
        return g.artist.rec;
    }
};

}  // namespace

TEST_F(Bands, MainMarketIsTheFirstFollowingOutsideTheUkAndBestMarketTheLargest) {
    struct Case {
        std::array<uint8_t, 5> reputation;
        int main, mainReputation, best;
    };
    for (Case c : {Case{{90, 0, 0, 0, 0}, 1, 90, 0}, Case{{90, 1, 0, 0, 0}, 2, 1, 0}, Case{{90, 0, 0, 0, 3}, 5, 3, 0},
                   Case{{10, 0, 40, 80, 0}, 3, 40, 3}, Case{{20, 50, 50, 2, 2}, 2, 50, 1}}) {
        g.band->reputation = c.reputation;
        MainMarket m = bandMainMarket(g);
        EXPECT_EQ(std::pair(m.market, m.reputation), std::pair(c.main, c.mainReputation))
            << testing::PrintToString(c.reputation);
        EXPECT_EQ(bandBestMarket(g), c.best) << testing::PrintToString(c.reputation);
    }
}

TEST_F(Bands, RatingsWeighTheMarketsOverThirtyThree) {
    g.band->reputation = {100, 100, 100, 100, 100};
    EXPECT_EQ(bandRating(g), 100);
    g.band->reputation = {40, 20, 15, 10, 5};  // 690 / 33 = 20.9
    EXPECT_EQ(bandRating(g), 21);
    g.style->popularity = {47, 47, 47, 47, 47};
    g.style->commerciality = 50;
    EXPECT_EQ(stylePopularity(g), 48) << "(47 + 50) / 2 rounds half to even";

    g.band->reputation = {1, 2, 3, 4, 5};
    const std::tuple<const char*, const char*, int> countries[] = {
        {"Wales", "E", 1}, {"Northern Ireland", "E", 1}, {"France", "E", 3}, {"Canada", "N", 2}, {"Japan", "A", 5}};
    for (auto [name, region, reputation] : countries) {
        g.country->name = name;
        g.country->region = region;
        EXPECT_EQ(reputationInCountry(g), reputation) << name;
    }
}

TEST_F(Bands, RoyaltySharesSplitSeventyPercentByRank) {
    int16_t solo = addArtist(3);
    addBand({solo});
    setRoyaltyShares(g);
    EXPECT_EQ(artist(solo).royaltyShare, 70) << "a solo act keeps the whole 70 whatever its job";

    int16_t m[5] = {addArtist(1), addArtist(2), addArtist(3), addArtist(3), addArtist(4)};  // weights 5 4 3 3 2
    addBand({m[0], m[1], m[2], m[3], m[4]});
    setRoyaltyShares(g);
    std::vector<int> shares;
    for (int16_t a : m) shares.push_back(artist(a).royaltyShare);
    EXPECT_EQ(shares, (std::vector<int>{21, 16, 12, 12, 8}));
}

TEST_F(Bands, DiscRoyaltiesPaySharesThenTheWritersThirtyPercent) {
    int16_t singer = addArtist(0, 42), drummer = addArtist(0, 28);
    addBand({singer, drummer});
    auto song = [&](int16_t writer) {
        g.song.rec = SongRecord{.writer = writer};
        return g.song.append();
    };
    g.disc->trackCount = 4;  // the drummer's song is past the disc's tracks
    g.disc->tracks = {song(singer), song(0), song(singer), song(singer), song(drummer)};
    payArtists(g, moneyUnits(1000));
    EXPECT_EQ(std::tuple(g.song->id, g.artist->id), std::tuple(g.disc->tracks[3], singer))
        << "the buffers are left at the last track and the last paid";
    EXPECT_EQ(artist(singer).wealth, 420 + 225) << "3 of 4 tracks of the writers' 300";
    EXPECT_EQ(artist(drummer).wealth, 280);
    payArtistsEvenly(g, moneyUnits(1001));
    EXPECT_EQ(std::tuple(g.artist->id, g.artist->wealth), std::tuple(drummer, 280 + 500))
        << "500.5 rounds to even; the buffer is left at the last member, as paid";
    EXPECT_EQ(artist(singer).wealth, 645 + 500);

    const int16_t solo = addArtist();
    addBand({solo});
    g.artist.read(singer);
    payArtistsEvenly(g, moneyUnits(7));
    EXPECT_EQ(std::tuple(g.artist->id, g.artist->wealth), std::tuple(solo, 7)) << "a solo act's buffer too";
}

TEST_F(Bands, CostsAndPointsReachTheLabelItsBossAndItsHeads) {
    for (int i = 0; i < 3; ++i) g.staff.append();  // boss, head, someone else
    g.label->boss = 1;
    g.label->department[3].head = 2;
    int16_t label = narrow<int16_t>(g.label.append());

    addBand({addArtist()}, label);
    addBandCost(g, moneyUnits(500), ledgerAdvances);
    addBandPoints(g, 1, 30);
    addBand({addArtist()});  // unsigned: only the band pays and earns
    addBandCost(g, moneyUnits(70), ledgerOtherExpense);
    addBandPoints(g, 1, 5);

    g.band.read(1);
    EXPECT_EQ(std::tuple(g.band->costs, g.band->bandPoints[1]), std::tuple(moneyUnits(500), 30));
    g.label.read(label);
    EXPECT_EQ(std::tuple(ledgerEntry(g.label.rec, 0, ledgerAdvances), g.label->cashBalance, g.label->points[1]),
              std::tuple(-moneyUnits(500), -moneyUnits(500), 30));
    for (auto [staff, points] : {std::pair{1, 30}, {2, 30}, {3, 0}}) {
        EXPECT_EQ((g.staff.read(staff), g.staff->points[1]), points) << "staff " << staff;
    }
}

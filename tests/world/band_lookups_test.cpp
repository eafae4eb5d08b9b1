// Lookups by band and by release day answer what a walk of the table would,
// and leave the buffers alone.
#include <gtest/gtest.h>

#include <set>

#include "support/amend.h"
#include "support/game_test.h"
#include "support/played_world.h"
#include "world/band_lookups.h"

using namespace trovane;

namespace {

// The records a plain walk of the table finds for the test.
template <class R, class Test>
std::vector<int32_t> walked(Table<R>& t, Test test) {
    std::vector<int32_t> out;
    R r{};
    for (int32_t n = 1; n < t.recordCount(); ++n) {
        decodeRecord(t.bytesOf(n).data(), r);
        if (test(r)) out.push_back(n);
    }
    return out;
}

TEST(BandLookups, AgreeWithAWalkAfterAYearOfPlay) {
    test::PlayedWorld w;
    Game& g = w.g;
    // Look once early, so that the rest of the year is kept in step by writes.
    (void)discsOutOn(g, g.gameDate + 60);
    (void)songsOfBand(g, 1);
    (void)discsOfBand(g, 1);
    w.play(365);

    g.song.read(1);
    g.disc.read(1);
    const SongRecord song = g.song.rec;
    const DiscRecord disc = g.disc.rec;
    int unused = 0;
    for (int16_t b = 1; b < g.band.recordCount(); ++b) {
        ASSERT_EQ(songsOfBand(g, b), walked(g.song, [&](const SongRecord& s) { return s.band == b; })) << "band " << b;
        ASSERT_EQ(unusedSongsOf(g, b),
                  walked(g.song, [&](const SongRecord& s) { return s.band == b && s.disc == 65535; }))
            << "band " << b;
        ASSERT_EQ(discsOfBand(g, b), walked(g.disc, [&](const DiscRecord& d) { return d.band == b; })) << "band " << b;
        unused += static_cast<int>(unusedSongsOf(g, b).size());
    }
    std::set<double> dates;
    walked(g.disc, [&](const DiscRecord& d) {
        for (double date : d.releaseDate)
            if (date > kNoDate) dates.insert(date);
        return false;
    });
    for (double date : dates) {
        auto out = [&](const DiscRecord& d) { return std::ranges::find(d.releaseDate, date) != d.releaseDate.end(); };
        ASSERT_EQ(discsOutOn(g, date), walked(g.disc, out)) << date;
    }
    EXPECT_GT(unused, 0);
    EXPECT_GT(dates.size(), 50u);  // the year put out plenty of discs
    EXPECT_EQ(g.song.rec, song);
    EXPECT_EQ(g.disc.rec, disc);
}

using DiscLookups = test::GameTest;

TEST_F(DiscLookups, AReleaseDayMovesWithTheDiscAndAnEmptiedTableIsIndexedAfresh) {
    for (int16_t band : {4, 7}) {
        g.disc.rec = DiscRecord{.releaseDate = {kNoDate, kNoDate, kNoDate, kNoDate, kNoDate}, .band = band};
        g.disc.append();
    }
    auto date = [&](int32_t disc, std::size_t territory, double when) {
        amend(g.disc, disc, [&] { g.disc->releaseDate[territory] = when; });
    };
    EXPECT_TRUE(discsOutOn(g, 46000).empty());  // indexed before any date is set
    EXPECT_EQ(discsOfBand(g, 7), std::vector<int32_t>{2});
    date(2, 1, 46000);
    date(1, 3, 46000);
    EXPECT_EQ(discsOutOn(g, 46000), (std::vector<int32_t>{1, 2}));
    date(2, 1, 46007);
    EXPECT_EQ(discsOutOn(g, 46000), std::vector<int32_t>{1});
    EXPECT_EQ(discsOutOn(g, 46007), std::vector<int32_t>{2});
    date(2, 4, 46007);  // a second territory on the same day lists the disc once
    EXPECT_EQ(discsOutOn(g, 46007), std::vector<int32_t>{2});
    EXPECT_TRUE(discsOutOn(g, kNoDate).empty());

    g.disc.clearAll();
    g.disc.rec = DiscRecord{.band = 9};
    g.disc.append();
    EXPECT_TRUE(discsOfBand(g, 7).empty());
    EXPECT_EQ(discsOfBand(g, 9), std::vector<int32_t>{1});
    EXPECT_TRUE(discsOutOn(g, 46000).empty());
}

}  // namespace

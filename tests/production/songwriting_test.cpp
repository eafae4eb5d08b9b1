// Songs written week by week: who writes, how often, what the figures come
// to, bought-in material and its price, titles, and the news along the way.
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <tuple>

#include "production/songwriting.h"
#include "support/album_world.h"
#include "support/amend.h"
#include "world/strings.h"

using namespace trovane;
using test::AlbumWorld;

namespace {

struct Songwriting : AlbumWorld, ::testing::Test {};

// Runs writesThisWeek n times on artist a of band b; how many weeks it wrote.
int weeksWritten(Game& g, int16_t band, int16_t artist, int n) {
    int wrote = 0;
    for (int i = 0; i < n; ++i) {
        g.band.read(band);
        g.artist.read(artist);
        wrote += writesThisWeek(g) ? 1 : 0;
    }
    return wrote;
}

int songsOf(Game& g, int16_t band) {
    int n = 0;
    for (int32_t s = 1; s < g.song.recordCount(); ++s) {
        g.song.read(s);
        n += g.song->band == band ? 1 : 0;
    }
    return n;
}

// Writes n songs for artist 1 of the band; the lowest and highest quality and commerciality.
std::array<int, 4> spreadOf(Game& g, int16_t band, int n, bool own) {
    std::array<int, 4> lowHigh{100, 0, 100, 0};
    for (int i = 0; i < n; ++i) {
        g.band.read(band);
        g.artist.read(1);
        writeSong(g, own, true);
        g.song.read(g.song.recordCount() - 1);
        lowHigh = {std::min<int>(lowHigh[0], g.song->quality), std::max<int>(lowHigh[1], g.song->quality),
                   std::min<int>(lowHigh[2], g.song->commerciality), std::max<int>(lowHigh[3], g.song->commerciality)};
    }
    return lowHigh;
}

}  // namespace

TEST_F(Songwriting, WritingChanceFollowsRateAndFocus) {
    int16_t band = addBand("Full Time", AlbumWorld::kRival, 1, 50, 100);
    // the album takes all their time: focus 100 whatever writingFocus says
    amend(g.band, band, [&] { g.band->albumStatus = 1; });
    // c = round(100 x 7 x 100 / 100) = 700 against 0..899: 700 of 900 weeks.
    EXPECT_NEAR(weeksWritten(g, band, 1, 18000) / 18000.0, 700.0 / 900, 0.012);

    amend(g.band, band, [&] { g.band->albumStatus = 0; });
    amend(g.artist, 1, [&] { g.artist->writingFocus = 50; });
    // c = round(100 x 7 x 50 / 100) = 350: 350 of 900.
    EXPECT_NEAR(weeksWritten(g, band, 1, 18000) / 18000.0, 350.0 / 900, 0.012);

    amend(g.artist, 1, [&] { g.artist->writingFocus = 0; });
    EXPECT_EQ(weeksWritten(g, band, 1, 2000), 0) << "c = 0 is never above a draw";
}

TEST_F(Songwriting, OwnWorkStopsWhileRecordingAndBoughtSongsComeOnlyFromAWritingLeaderAtStatusOne) {
    int16_t recording = addBand("Recording", AlbumWorld::kRival, 2, 60, 100);  // artists 1, 2
    int16_t ending = addBand("Ending", AlbumWorld::kRival, 2, 60, 100);        // 3, 4
    int16_t writing = addBand("Writing", AlbumWorld::kRival, 2, 60, 100);      // 5, 6
    int16_t idle = addBand("Idle", AlbumWorld::kRival, 2, 60, 100);            // 7, 8
    int16_t follower = addBand("Follower", AlbumWorld::kRival, 2, 60, 100);    // 9, 10
    int16_t noPens = addBand("No Pens", AlbumWorld::kPlayer, 2, 0, 100);       // 11, 12: the leader can't write
    int16_t retired = addBand("Gone", AlbumWorld::kPlayer, 1, 90, 100);        // 13
    amend(g.artist, 13, [&] { g.artist->retired = -1; });
    int16_t lastPens = addBand("Last Pens", AlbumWorld::kPlayer, 1, 0, 100);  // 14, the last artist, can't write
    for (int16_t b : {recording, ending, writing, idle, follower, noPens, retired, lastPens}) {
        g.band.read(b);
        g.band->albumStatus = b == recording ? 2 : b == idle ? 0 : 1;
        if (b == ending) g.band->contractEnd = g.gameDate + 100;
        g.band.write();
    }
    // Idle's leader gives writing all his time, the rest of Idle none; Follower's leader never writes nor buys.
    amend(g.artist, 7, [&] { g.artist->writingFocus = 100; });
    amend(g.artist, 9, [&] { g.artist->writingRate = 0; });
    for (int week = 0; week < 40; ++week) updateSongs(g);

    std::map<int16_t, std::pair<int, int>> ownAndBought;
    for (int32_t s = 1; s < g.song.recordCount(); ++s) {
        g.song.read(s);
        auto& [own, bought] = ownAndBought[g.song->band];
        (g.song->writer == 0 ? bought : own) += 1;
    }
    EXPECT_EQ(ownAndBought.count(recording), 0u) << "recording: nothing of their own";
    EXPECT_EQ(ownAndBought.count(ending), 0u) << "an announced end: nothing at all";
    EXPECT_EQ(ownAndBought.count(noPens), 0u) << "a leader who can't write neither writes nor buys in";
    EXPECT_EQ(ownAndBought.count(retired), 0u) << "a retired artist neither writes nor buys in";
    EXPECT_EQ(ownAndBought.count(lastPens), 0u) << "nor does the last artist of all when it can't write";
    EXPECT_GT(ownAndBought[writing].first, 0);
    EXPECT_GT(ownAndBought[writing].second, 0) << "the leader buys in on weeks without a song";
    EXPECT_GT(ownAndBought[idle].first, 0);
    EXPECT_EQ(ownAndBought[idle].second, 0) << "no buying without an album under way";
    EXPECT_GT(ownAndBought[follower].first, 0);
    EXPECT_EQ(ownAndBought[follower].second, 0) << "only the first member buys";
}

TEST_F(Songwriting, AnArtistsSongVariesByATenthEitherWayAndStaysWithinOneToHundred) {
    int16_t band = addBand("Spread", AlbumWorld::kRival, 1, 50, 40);
    amend(g.artist, 1, [&] { g.artist->songCommerciality = 100; });
    // quality 50 + Int(5 r1) - Int(5 r2): 46 to 54; commerciality 100 + Int(10 r1) - Int(10 r2):
    // 91 to 109, held at 100.
    EXPECT_EQ(spreadOf(g, band, 400, true), (std::array{46, 54, 91, 100}));
    g.song.read(1);
    EXPECT_EQ(std::tuple(trim(g.song->writerForename.value), g.song->writer, g.song->disc),
              std::tuple(std::string("Member1"), 1, 65535));
    EXPECT_EQ(trim(g.song->title.value), "Untitled") << "a rival's songs take no bank title";
}

class BoughtMaterial : public AlbumWorld, public ::testing::TestWithParam<int> {};

TEST_P(BoughtMaterial, EachBudgetHasItsQualityCommercialityAndPrice) {
    const int level = GetParam();
    struct Level {
        int quality;
        int64_t price;
        int lowestCommerciality;
    };
    // quality base + Int(10 r3) - Int(10 r4); commerciality 60 + Int(10 r1) - Int(r2 (10 b + 10)).
    const Level levels[] = {{90, 50000, 51}, {80, 20000, 41}, {65, 5000, 31}, {50, 2500, 21}, {40, 500, 11}};
    const Level want = levels[level];
    int16_t band = addBand("Buyers", AlbumWorld::kRival, 1, 50, 40);
    amend(g.band, band, [&] { g.band->materialBudget = static_cast<uint8_t>(level); });
    const int songs = 600;
    EXPECT_EQ(spreadOf(g, band, songs, false),
              (std::array{want.quality - 9, want.quality + 9, want.lowestCommerciality, 69}));
    g.song.read(1);
    EXPECT_EQ(std::tuple(trim(g.song->writerForename.value), g.song->writer), std::tuple(std::string("Unknown"), 0));
    EXPECT_EQ(ledger(AlbumWorld::kRival, ledgerOtherExpense), -moneyUnits(want.price * songs));
}

INSTANTIATE_TEST_SUITE_P(Levels, BoughtMaterial, ::testing::Values(0, 1, 2, 3, 4));

TEST_F(Songwriting, SongAndAlbumTitlesComeFromTheBanksForThePlayersBands) {
    int16_t band = addBand("Ours", AlbumWorld::kPlayer);
    g.newsong.rec = NewSongRecord{.title = "Other Style", .style = 2};
    g.newsong.append();
    g.newsong.rec = NewSongRecord{.title = "Worn Out", .style = 1, .uses = 100};
    g.newsong.append();
    g.band.read(band);
    // Neither fits (one is another style, the other used 100 times against 0..99):
    // after 50 tries the last one drawn is taken, and no use is counted.
    std::string title = pickSongTitle(g);
    EXPECT_TRUE(title == "Other Style" || title == "Worn Out") << title;
    g.newsong.read(2);
    EXPECT_EQ(g.newsong->uses, 100);

    g.newsong->uses = 0;
    g.newsong.write();
    g.artist.read(1);
    g.band.read(band);
    writeSong(g, true, true);
    EXPECT_EQ((g.song.read(1), trim(g.song->title.value)), "Worn Out");
    EXPECT_EQ((g.newsong.read(2), g.newsong->uses), 1);

    // An album title some disc bears is never chosen.
    for (const char* title : {"Taken", "Fresh", "Elsewhere"}) {
        g.newalbum.rec = NewAlbumRecord{.style = static_cast<uint8_t>(title[0] == 'E' ? 2 : 1), .title = title};
        g.newalbum.append();
    }
    g.disc.rec = DiscRecord{.title = "  Taken"};  // the spaces around a title do not free it
    g.disc.append();
    for (int i = 0; i < 20; ++i) {
        g.band.read(band);
        EXPECT_EQ(pickAlbumTitle(g), "Fresh");
    }
}

TEST_F(Songwriting, FirstSongOfATermPaysTheFirstThirdOfTheAdvance) {
    int16_t band = addBand("Paid", AlbumWorld::kPlayer, 2);
    amend(g.band, band, [&] {
        g.band->advanceToPay = moneyUnits(30000);
        g.band->firstInstallmentDue = 1;
    });
    g.artist.read(1);
    writeSong(g, true, true);
    // 30,000 / 3 = 10,000 to the advances; 5,000 to each of two members.
    EXPECT_EQ(ledger(AlbumWorld::kPlayer, ledgerAdvances), -moneyUnits(10000));
    EXPECT_EQ((g.artist.read(2), g.artist->wealth), 5000);
    g.band.read(band);
    EXPECT_EQ(std::tuple(g.band->firstInstallmentDue, g.band->songsWritten), std::tuple(0, 1));
    const NewsRecord& n = lastNews();
    EXPECT_EQ(trim(n.title.value), "Paid paid the first installment of their advance.");
    EXPECT_EQ(trim(n.text.value),
              "The first installment of Paid's advance (£10,000) has been paid from your accounts.");

    g.artist.read(1);
    g.band.read(band);
    writeSong(g, true, true);
    EXPECT_EQ(ledger(AlbumWorld::kPlayer, ledgerAdvances), -moneyUnits(10000)) << "once a term";
}

TEST_F(Songwriting, ProgressNewsFromTheTenthToTheFiftiethSong) {
    int16_t band = addBand("Prolific", AlbumWorld::kPlayer, 2);
    auto writeAt = [&](int32_t before, uint8_t status) {
        amend(g.band, band, [&] {
            g.band->songsWritten = before;
            g.band->albumStatus = status;
        });
        g.artist.read(1);
        int32_t news = newsCount();
        writeSong(g, true, false);
        return newsCount() - news;
    };
    EXPECT_EQ(writeAt(8, 0), 0) << "the ninth song";
    EXPECT_EQ(writeAt(9, 0), 1);
    EXPECT_EQ(trim(lastNews().text.value),
              "In a progress meeting today Prolific informed you that they have now written 10 tracks  ready to "
              "appear on a future album.");
    EXPECT_EQ(trim(lastNews().title.value), "Prolific album update.");
    EXPECT_EQ(writeAt(49, 1), 1);
    EXPECT_EQ(trim(lastNews().text.value),
              "In a progress meeting today Prolific informed you that they have now written 50 tracks  for their "
              "forthcoming album.");
    EXPECT_EQ(writeAt(50, 1), 0) << "the 51st song";
}

TEST_F(Songwriting, SongFiguresAndSingles) {
    SongRecord s{};
    s.quality = 45;
    s.commerciality = 50;
    EXPECT_EQ(songMean(s), 48);  // 47.5 to the even 48
    s.commerciality = 48;
    EXPECT_EQ(songMean(s), 46);  // 46.5 to the even 46
    EXPECT_FALSE(isAlreadySingle(s));
    s.singleDisc = {0, 0, 0, 0, 1};
    EXPECT_TRUE(isAlreadySingle(s)) << "any of the five, Oceania stored last";
    s.singleDisc = {0, -1, 0, 0, 0};
    EXPECT_FALSE(isAlreadySingle(s));
}

TEST_F(Songwriting, SeedingGivesSongsOnlyToBandsWithoutARecentAlbum) {
    int16_t recent = addBand("Recent", AlbumWorld::kRival, 2, 50, 100);
    int16_t older = addBand("Older", AlbumWorld::kRival, 2, 0, 100);  // no writers
    for (auto [band, daysAgo] : {std::pair{recent, 180}, std::pair{older, 181}}) {
        const double out = g.gameDate - daysAgo;
        g.disc.rec = DiscRecord{.releaseDate = {out, out + 30, kNoDate, kNoDate, kNoDate}, .band = band};
        g.disc.append();
    }
    int most = 0, total = 0;
    for (int round = 0; round < 40; ++round) {
        for (int16_t band : {recent, older}) {
            amend(g.band, band, [&] { g.band->songsWritten = 0; });
            seedAlbumPlan(g);
            EXPECT_EQ(g.band->id, band) << "the band is left in the buffer";
        }
        g.band.read(older);
        most = std::max(most, g.band->songsWritten);
        total += g.band->songsWritten;
    }
    EXPECT_EQ(songsOf(g, recent), 0) << "released 180 days before the start";
    EXPECT_EQ(most, 5) << "at most 5 without writers";
    EXPECT_EQ(songsOf(g, older), total);
    g.song.read(1);
    EXPECT_EQ(g.song->writer, 0) << "no member can write: bought in";

    // Any member may be drawn to write: here only the last one can.
    const int16_t second = addBand("Second", AlbumWorld::kRival, 2, 50, 100);
    g.band.read(second);
    const int16_t writer = g.band->members[1];
    amend(g.artist, g.band->members[0], [&] { g.artist->songQuality = 0; });
    const int32_t before = g.song.recordCount();
    while (g.song.recordCount() == before) {
        g.band.read(second);
        seedAlbumPlan(g);
    }
    for (int32_t n = before; n < g.song.recordCount(); ++n) EXPECT_EQ((g.song.read(n), g.song->writer), writer);
}

TEST_F(Songwriting, TheNewPlayerIsBriefedOnBandsWithTracksAndNoAlbumInTheStudio) {
    for (auto [name, songs, status] :
         {std::tuple{"One", 1, 0}, std::tuple{"Many", 12, 1}, std::tuple{"Busy", 9, 2}, std::tuple{"None", 0, 0}}) {
        int16_t b = addBand(name, AlbumWorld::kPlayer);
        amend(g.band, b, [&] {
            g.band->songsWritten = songs;
            g.band->albumStatus = static_cast<uint8_t>(status);
        });
    }
    addBand("Theirs", AlbumWorld::kRival);
    amend(g.band, 5, [&] { g.band->songsWritten = 3; });
    briefNewPlayerOnAlbums(g);
    ASSERT_EQ(newsCount(), 1);
    EXPECT_EQ(trim(lastNews().title.value), "Introductory album progress briefing");
    EXPECT_EQ(trim(lastNews().text.value),
              "In one of your introductory meetings today you were briefed on how the bands on signed to your new "
              "label are progressing on forthcoming albums, the report can be seen below :-\n- One : written 1 track "
              "to appear on a future album.\n- Many : written 12 tracks to appear on a future album.");
}

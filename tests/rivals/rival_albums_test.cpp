// How a rival band chooses its tracks, a studio and its release dates.
#include <gtest/gtest.h>

#include "production/businesses.h"
#include "rivals/rival_albums.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "support/album_world.h"
#include "support/amend.h"
#include "world/dates.h"
#include "world/strings.h"

using namespace trovane;
using namespace trovane::test;

namespace {

class RivalAlbums : public ::testing::Test, public AlbumWorld {
protected:
    RivalAlbums() { g.gameDate = serialFromCivil(2005, 3, 1); }
    int16_t studio = addFirm("Abbey", kStudio, 50, 0);

    std::vector<int32_t> tracksOf(int16_t disc) {
        g.disc.read(disc);
        return {g.disc->tracks.begin(), g.disc->tracks.begin() + g.disc->trackCount};
    }
    // A rival disc of the band released on date in every territory.
    int16_t addReleased(int16_t band, uint8_t single, double date) {
        g.disc.rec = DiscRecord{};
        g.disc->band = band;
        g.disc->label = kRival;
        g.disc->isSingle = single;
        g.disc->releaseDate.fill(date);
        return static_cast<int16_t>(g.disc.append());
    }
};

TEST_F(RivalAlbums, SongsNeededAreAQuarterOfStrengthHeldTenToTwenty) {
    EXPECT_EQ(songsNeededFor(40), 10);  // 40 / 4 = 10
    EXPECT_EQ(songsNeededFor(80), 20);  // 80 / 4 = 20
    EXPECT_EQ(songsNeededFor(90), 20);  // 22.5 -> 22, held at 20
    EXPECT_EQ(songsNeededFor(10), 10);  // 2.5 -> 2, held at 10
    EXPECT_EQ(songsNeededFor(46), 12);  // 11.5 -> 12 (half to even)
}

TEST_F(RivalAlbums, WritingPaceFollowsStrengthBands) {
    EXPECT_EQ(writingPaceFor(29), 4);
    EXPECT_EQ(writingPaceFor(30), 3);
    EXPECT_EQ(writingPaceFor(49), 3);
    EXPECT_EQ(writingPaceFor(50), 2);
    EXPECT_EQ(writingPaceFor(60), 1);
    EXPECT_EQ(writingPaceFor(79), 1);
    EXPECT_EQ(writingPaceFor(80), 0);
    EXPECT_EQ(writingPaceFor(100), 0);
    EXPECT_EQ(writingPaceFor(101), -1);  // left unchanged
}

TEST_F(RivalAlbums, TheTrackCountKeepsEverySongWithinAFifthOfTheBest) {
    // best 100: cutoff round(100 x 100 / 125) = 80; a song must be above it.
    std::vector<int> q(20, 70);
    q[0] = 100;
    for (int i = 1; i < 15; ++i) q[static_cast<std::size_t>(i)] = 81;
    EXPECT_EQ(trackTargetFor(q.data(), 20), 15);  // positions 0..14 above 80
    q[14] = 80;
    EXPECT_EQ(trackTargetFor(q.data(), 20), 14);  // 80 is not above the cutoff
    std::fill(q.begin() + 1, q.end(), 81);
    EXPECT_EQ(trackTargetFor(q.data(), 20), 20);
    std::fill(q.begin() + 1, q.end(), 10);
    EXPECT_EQ(trackTargetFor(q.data(), 20), 10);  // a weak album stays at ten
    EXPECT_EQ(trackTargetFor(q.data(), 7), 7);    // never more than were gathered
}

TEST_F(RivalAlbums, SevenUnusedSongsMakeASevenTrackAlbumInWritingOrder) {
    const int16_t band = addBand("The Rivals", kRival, 1, 40);
    std::vector<int32_t> songs;
    for (uint8_t q : {30, 90, 50, 70, 20, 60, 40}) songs.push_back(addSong(band, q, q));
    const int32_t used = addSong(band, 99, 99, 3);  // already on a disc: not gathered
    amend(g.band, band, [&] {
        g.band->songsWritten = 10;
        g.band->albumStatus = 1;
    });
    computerCheckAlbumProgress(g);  // m = 40 (mean song quality), needed 10, 10 written
    g.band.read(band);
    EXPECT_EQ(g.band->albumStatus, 2);
    const int16_t disc = static_cast<int16_t>(g.band->songsWritten);
    EXPECT_EQ(tracksOf(disc), songs);
    g.disc.read(disc);
    EXPECT_EQ(trim(g.disc->coverImage.value), "none.jpg");
    EXPECT_EQ(g.disc->studio, studio);
    g.song.read(used);
    EXPECT_EQ(g.song->disc, 3);
}

TEST_F(RivalAlbums, TheBestSongsGoOnAndTheRestAreHeld) {
    const int16_t band = addBand("The Rivals", kRival, 1, 40);
    std::vector<int32_t> songs;
    // Twelve songs: the best 100 (cutoff 80), two more above it, nine weak.
    songs.push_back(addSong(band, 10, 10));
    songs.push_back(addSong(band, 100, 100));
    for (int i = 0; i < 9; ++i) songs.push_back(addSong(band, 30, 30));
    songs.push_back(addSong(band, 90, 90));
    songs.push_back(addSong(band, 85, 85));
    amend(g.band, band, [&] {
        g.band->songsWritten = 13;
        g.band->albumStatus = 1;
    });
    computerCheckAlbumProgress(g);
    g.band.read(band);
    const auto tracks = tracksOf(static_cast<int16_t>(g.band->songsWritten));
    // Ten tracks: 100, 90, 85 and seven of the 30s in table order; the 10 is left.
    ASSERT_EQ(tracks.size(), 10u);
    EXPECT_EQ(tracks.front(), songs[1]);
    EXPECT_EQ(tracks.back(), songs[12]);
    g.song.read(songs[0]);
    EXPECT_EQ(g.song->disc, 65534);  // held back
    g.song.read(songs[10]);
    EXPECT_EQ(g.song->disc, 65534);  // the ninth 30 did not make the cut
}

TEST_F(RivalAlbums, ABandBelowItsNeedWaits) {
    const int16_t band = addBand("The Rivals", kRival, 1, 80);  // m 80: needs 20
    for (int i = 0; i < 19; ++i) addSong(band, 50, 50);
    amend(g.band, band, [&] {
        g.band->songsWritten = 19;
        g.band->albumStatus = 1;
    });
    computerCheckAlbumProgress(g);
    g.band.read(band);
    EXPECT_EQ(g.band->albumStatus, 1);
}

TEST_F(RivalAlbums, AnAlbumStartsOnlyMoreThan230DaysAfterTheLast) {
    const int16_t band = addBand("The Rivals", kRival, 1, 40);
    const int16_t players = addBand("Ours", kPlayer, 1, 40);
    addReleased(band, 0, g.gameDate - 230);
    computerRecordAlbum(g);
    g.band.read(band);
    EXPECT_EQ(g.band->albumStatus, 0);
    g.gameDate += 1;  // 231 days on
    computerRecordAlbum(g);
    g.band.read(band);
    EXPECT_EQ(g.band->albumStatus, 1);
    EXPECT_EQ(g.band->materialBudget, 3);  // m 40
    g.band.read(players);
    EXPECT_EQ(g.band->albumStatus, 0);  // never the player's act
}

class RivalRelease : public RivalAlbums {
protected:
    int16_t band = addBand("The Rivals", kRival, 1, 40);
    int16_t plant = addFirm("Press", kPlant, 60, 0);

    int16_t recorded(uint8_t single) {
        const int32_t song = addSong(band, 50, 50, 0);
        g.disc.rec = DiscRecord{};
        g.disc->band = band;
        g.disc->label = kRival;
        g.disc->isSingle = single;
        g.disc->trackCount = 1;
        g.disc->tracks[0] = song;
        g.disc->releaseDate.fill(kNoDate);
        const auto disc = static_cast<int16_t>(g.disc.append());
        amend(g.song, song, [&] { g.song->disc = static_cast<uint16_t>(disc); });
        return disc;
    }
    void setReputation(std::array<uint8_t, 5> r) {
        amend(g.band, band, [&] { g.band->reputation = r; });
    }
};

TEST_F(RivalRelease, EqualReputationsReleaseEverywhereGlobalIncluded) {
    setReputation({30, 30, 30, 30, 0});
    const int16_t disc = recorded(0);
    g.band.read(band);
    g.disc.read(disc);
    rivalRecordingComplete(g);
    g.disc.read(disc);
    for (double d : g.disc->releaseDate) EXPECT_GT(d, kNoDate);
}

TEST_F(RivalRelease, ATerritoryNeedsFourFifthsOfTheBest) {
    // best 50: 40 x 1.25 = 50 is flagged, 39 x 1.25 = 48.75 -> 49 is not.
    setReputation({50, 40, 39, 0, 0});
    const int16_t disc = recorded(0);
    g.band.read(band);
    g.disc.read(disc);
    rivalRecordingComplete(g);
    g.disc.read(disc);
    EXPECT_GT(g.disc->releaseDate[0], kNoDate);
    EXPECT_GT(g.disc->releaseDate[1], kNoDate);
    EXPECT_EQ(g.disc->releaseDate[2], kNoDate);
    EXPECT_EQ(g.disc->releaseDate[4], kNoDate);
}

TEST_F(RivalRelease, ASingleMarksItsLeadSongInTheRecordsOwnOrder) {
    setReputation({0, 0, 40, 0, 0});  // Europe alone: the song's fourth field
    const int16_t disc = recorded(1);
    g.band.read(band);
    g.disc.read(disc);
    rivalRecordingComplete(g);
    g.disc.read(disc);
    g.song.read(g.disc->tracks[0]);
    EXPECT_EQ(g.song->singleDisc, (std::array<int16_t, 5>{0, 0, 0, disc, 0}));
    setReputation({0, 0, 0, 0, 40});  // Global alone: the middle field
    const int16_t other = recorded(1);
    g.band.read(band);
    g.disc.read(other);
    rivalRecordingComplete(g);
    g.disc.read(other);
    g.song.read(g.disc->tracks[0]);
    EXPECT_EQ(g.song->singleDisc, (std::array<int16_t, 5>{0, 0, other, 0, 0}));
}

TEST_F(RivalRelease, AReleaseGoesToTheMondayAfterSevenWeeks) {
    setReputation({30, 0, 0, 0, 0});
    const int16_t disc = recorded(0);
    g.disc.read(disc);
    rivalChooseReleaseDate(g, 1);
    g.disc.read(disc);
    // 1 March 2005 (Tuesday) + 48 = 18 April 2005, a Monday; 48 free days.
    EXPECT_EQ(g.disc->releaseDate[0], serialFromCivil(2005, 4, 18));
    EXPECT_EQ(weekdayOf(g.disc->releaseDate[0]), 2);
}

TEST_F(RivalRelease, AnAlbumKeeps180DaysFromTheLastInTheTerritory) {
    setReputation({30, 0, 0, 0, 0});
    addReleased(band, 0, serialFromCivil(2005, 1, 3));
    const int16_t disc = recorded(0);
    g.disc.read(disc);
    rivalChooseReleaseDate(g, 1);
    g.disc.read(disc);
    // 3 January 2005 + 180 = 2 July 2005 (Saturday); its week's Monday is 27 June.
    EXPECT_EQ(g.disc->releaseDate[0], serialFromCivil(2005, 6, 27));
}

TEST_F(RivalRelease, ThreeEqualsOnADayPushTheDiscAWeekTwoDoNot) {
    setReputation({40, 0, 0, 0, 0});
    const double monday = serialFromCivil(2005, 4, 18);
    // Equals are 30 to 50 (40 -/+ 10).
    for (uint8_t r : {30, 50}) {
        const int16_t other = addBand("Equal", kRival, 1, 40);
        amend(g.band, other, [&] { g.band->reputation = {r, 0, 0, 0, 0}; });
        addReleased(other, 0, monday);
    }
    const int16_t weaker = addBand("Weaker", kRival, 1, 40);
    amend(g.band, weaker, [&] { g.band->reputation = {29, 0, 0, 0, 0}; });
    addReleased(weaker, 0, monday);
    const int16_t disc = recorded(0);
    g.disc.read(disc);
    rivalChooseReleaseDate(g, 1);
    g.disc.read(disc);
    EXPECT_EQ(g.disc->releaseDate[0], monday);

    const int16_t third = addBand("Third", kRival, 1, 40);
    amend(g.band, third, [&] { g.band->reputation = {40, 0, 0, 0, 0}; });
    addReleased(third, 0, monday);
    g.disc.read(disc);
    g.disc->releaseDate.fill(kNoDate);  // the band's own first try no longer counts
    g.disc.write();
    rivalChooseReleaseDate(g, 1);
    g.disc.read(disc);
    EXPECT_EQ(g.disc->releaseDate[0], monday + 7);
}

TEST_F(RivalRelease, ElevenCrowdedWeeksFallBackUpToEightWeeks) {
    setReputation({40, 0, 0, 0, 0});
    const double first = serialFromCivil(2005, 4, 18);
    for (int w = 0; w < 11; ++w)
        for (int k = 0; k < 3; ++k) {
            const int16_t other = addBand("Crowd", kRival, 1, 40);
            amend(g.band, other, [&] { g.band->reputation = {40, 0, 0, 0, 0}; });
            addReleased(other, 0, first + 7.0 * w);
        }
    const int16_t disc = recorded(0);
    g.disc.read(disc);
    rivalChooseReleaseDate(g, 1);
    g.disc.read(disc);
    // After eleven pushes the candidate is first + 77, less 0 to 8 weeks.
    const double date = g.disc->releaseDate[0];
    EXPECT_LE(date, first + 77);
    EXPECT_GE(date, first + 77 - 56);
    EXPECT_EQ(static_cast<int64_t>(first + 77 - date) % 7, 0);
}

TEST_F(RivalRelease, FreeDaysAreCountedFromTodayForEachWeekTried) {
    setReputation({30, 0, 0, 0, 0});
    for (int d = 1; d <= 20; ++d) {
        ScheduleRecord rest{};
        rest.type = static_cast<uint8_t>(ScheduleType::restDay);
        rest.date = g.gameDate + d;
        rest.band = band;
        addSchedule(g, rest);
    }
    const int16_t disc = recorded(0);
    g.disc.read(disc);
    rivalChooseReleaseDate(g, 1);
    g.disc.read(disc);
    // Twenty days of rest from 2 March 2005: 18 April has 48 - 20 = 28 free
    // days before it, 25 April 35, 2 May 42, the first with enough.
    EXPECT_EQ(g.disc->releaseDate[0], serialFromCivil(2005, 5, 2));
}

}  // namespace

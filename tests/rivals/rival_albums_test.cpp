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
        g.disc.rec = DiscRecord{
            .releaseDate = {date, date, date, date, date}, .isSingle = single, .band = band, .label = kRival};
        return static_cast<int16_t>(g.disc.append());
    }
};

TEST_F(RivalAlbums, SongsNeededAndWritingPaceFollowStrength) {
    // A quarter of strength, half to even, held 10 to 20.
    for (auto [m, need] : {std::pair{40, 10}, {80, 20}, {90, 20}, {10, 10}, {46, 12}})
        EXPECT_EQ(songsNeededFor(m), need) << m;
    // 101 leaves the pace unchanged.
    for (auto [m, pace] : {std::pair{29, 4}, {30, 3}, {49, 3}, {50, 2}, {60, 1}, {79, 1}, {80, 0}, {100, 0}, {101, -1}})
        EXPECT_EQ(writingPaceFor(m), pace) << m;
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

TEST_F(RivalAlbums, TheBestSongsGoOnInWritingOrderAndABandBelowItsNeedWaits) {
    auto writing = [&](const char* name, uint8_t m, int32_t written) {
        const int16_t band = addBand(name, kRival, 1, m);
        amend(g.band, band, [&] {
            g.band->songsWritten = written;
            g.band->albumStatus = 1;
        });
        return band;
    };
    // m = 40 (mean song quality): needs 10, 10 written, seven unused.
    const int16_t seven = writing("Seven", 40, 10);
    std::vector<int32_t> songs;
    for (uint8_t q : {30, 90, 50, 70, 20, 60, 40}) songs.push_back(addSong(seven, q, q));
    const int32_t used = addSong(seven, 99, 99, 3);  // already on a disc: not gathered
    // Twelve songs: the best 100 (cutoff 80), two more above it, nine weak.
    const int16_t twelve = writing("Twelve", 40, 13);
    std::vector<int32_t> dozen{addSong(twelve, 10, 10), addSong(twelve, 100, 100)};
    for (int i = 0; i < 9; ++i) dozen.push_back(addSong(twelve, 30, 30));
    dozen.push_back(addSong(twelve, 90, 90));
    dozen.push_back(addSong(twelve, 85, 85));
    const int16_t short19 = writing("Short", 80, 19);  // m 80: needs 20
    for (int i = 0; i < 19; ++i) addSong(short19, 50, 50);

    computerCheckAlbumProgress(g);
    EXPECT_EQ((g.band.read(seven), g.band->albumStatus), 2);
    const int16_t disc = static_cast<int16_t>(g.band->songsWritten);
    EXPECT_EQ(tracksOf(disc), songs);
    g.disc.read(disc);
    EXPECT_EQ(std::tuple(trim(g.disc->coverImage.value), g.disc->studio), std::tuple("none.jpg", studio));
    EXPECT_EQ((g.song.read(used), g.song->disc), 3);

    g.band.read(twelve);
    const auto tracks = tracksOf(static_cast<int16_t>(g.band->songsWritten));
    // Ten tracks: 100, 90, 85 and seven of the 30s in table order; the 10 is left.
    ASSERT_EQ(tracks.size(), 10u);
    EXPECT_EQ(std::tuple(tracks.front(), tracks.back()), std::tuple(dozen[1], dozen[12]));
    EXPECT_EQ((g.song.read(dozen[0]), g.song->disc), 65534);   // held back
    EXPECT_EQ((g.song.read(dozen[10]), g.song->disc), 65534);  // the ninth 30 did not make the cut

    EXPECT_EQ((g.band.read(short19), g.band->albumStatus), 1);
}

TEST_F(RivalAlbums, AnAlbumStartsOnlyMoreThan230DaysAfterTheLast) {
    const int16_t band = addBand("The Rivals", kRival, 1, 40);
    const int16_t players = addBand("Ours", kPlayer, 1, 40);
    addReleased(band, 0, g.gameDate - 230);
    computerRecordAlbum(g);
    EXPECT_EQ((g.band.read(band), g.band->albumStatus), 0);
    g.gameDate += 1;  // 231 days on
    computerRecordAlbum(g);
    g.band.read(band);
    EXPECT_EQ(std::tuple(g.band->albumStatus, g.band->materialBudget), std::tuple(1, 3));  // m 40
    EXPECT_EQ((g.band.read(players), g.band->albumStatus), 0);                             // never the player's act
}

class RivalRelease : public RivalAlbums {
protected:
    int16_t band = addBand("The Rivals", kRival, 1, 40);
    int16_t plant = addFirm("Press", kPlant, 60, 0);

    int16_t recorded(uint8_t single) {
        const int32_t song = addSong(band, 50, 50, 0);
        const int16_t disc = addReleased(band, single, kNoDate);
        amend(g.disc, disc, [&] {
            g.disc->trackCount = 1;
            g.disc->tracks[0] = song;
        });
        amend(g.song, song, [&] { g.song->disc = static_cast<uint16_t>(disc); });
        return disc;
    }
    void setReputation(std::array<uint8_t, 5> r) {
        amend(g.band, band, [&] { g.band->reputation = r; });
    }
    // A disc recorded by the band at these reputations and completed; left in the disc buffer.
    int16_t completed(std::array<uint8_t, 5> reputation, uint8_t single) {
        setReputation(reputation);
        const int16_t disc = recorded(single);
        g.band.read(band);
        g.disc.read(disc);
        rivalRecordingComplete(g);
        g.disc.read(disc);
        return disc;
    }
    // The date the rival chooses for the disc in the UK.
    double dateInUk(int16_t disc) {
        g.disc.read(disc);
        rivalChooseReleaseDate(g, 1);
        g.disc.read(disc);
        return g.disc->releaseDate[0];
    }
    // An album of another rival act of UK reputation r, out on date.
    void releasedBy(uint8_t r, double date) {
        const int16_t other = addBand("Other", kRival, 1, 40);
        amend(g.band, other, [&] { g.band->reputation = {r, 0, 0, 0, 0}; });
        addReleased(other, 0, date);
    }
};

TEST_F(RivalRelease, ATerritoryNeedsFourFifthsOfTheBestGlobalIncluded) {
    // Global comes with all four markets. best 50: 40 x 1.25 = 50 is flagged, 39 x 1.25 = 48.75 -> 49 is not.
    for (auto [reputation, out] : {std::pair{std::array<uint8_t, 5>{30, 30, 30, 30, 0}, std::array{1, 1, 1, 1, 1}},
                                   {{30, 30, 30, 0, 0}, {1, 1, 1, 0, 0}},
                                   {{50, 40, 39, 0, 0}, {1, 1, 0, 0, 0}}}) {
        completed(reputation, 0);
        for (std::size_t t = 0; t < 5; ++t) EXPECT_EQ(g.disc->releaseDate[t] > kNoDate, out[t] == 1) << t;
    }
}

TEST_F(RivalRelease, ASingleMarksItsLeadSongInTheRecordsOwnOrder) {
    // The song's fields run UK, US, Global, Europe, Oceania.
    for (auto [markets, fields] : {std::pair{std::array<uint8_t, 5>{40, 0, 0, 0, 0}, std::array{1, 0, 0, 0, 0}},
                                   {{0, 40, 0, 0, 0}, {0, 1, 0, 0, 0}},
                                   {{0, 0, 40, 0, 0}, {0, 0, 0, 1, 0}},
                                   {{0, 0, 0, 40, 0}, {0, 0, 0, 0, 1}},
                                   {{0, 0, 0, 0, 40}, {0, 0, 1, 0, 0}}}) {
        const int16_t disc = completed(markets, 1);
        g.song.read(g.disc->tracks[0]);
        std::array<int16_t, 5> marked{};
        for (std::size_t f = 0; f < 5; ++f) marked[f] = static_cast<int16_t>(fields[f] * disc);
        EXPECT_EQ(g.song->singleDisc, marked);
    }
}

TEST_F(RivalRelease, AReleaseGoesToTheMondayAfterSevenWeeks) {
    setReputation({30, 0, 0, 0, 0});
    // 1 March 2005 (Tuesday) + 48 = 18 April 2005, a Monday; 48 free days.
    const double date = dateInUk(recorded(0));
    EXPECT_EQ(date, serialFromCivil(2005, 4, 18));
    EXPECT_EQ(weekdayOf(date), 2);
}

TEST_F(RivalRelease, AnAlbumKeeps180DaysFromTheLastInTheTerritory) {
    setReputation({30, 0, 0, 0, 0});
    addReleased(band, 0, serialFromCivil(2005, 1, 3));
    // 3 January 2005 + 180 = 2 July 2005 (Saturday); its week's Monday is 27 June.
    EXPECT_EQ(dateInUk(recorded(0)), serialFromCivil(2005, 6, 27));
}

TEST_F(RivalRelease, ThreeEqualsOnADayPushTheDiscAWeekTwoDoNot) {
    setReputation({40, 0, 0, 0, 0});
    const double monday = serialFromCivil(2005, 4, 18);
    // Equals are 30 to 50 (40 -/+ 10).
    for (uint8_t r : {30, 50, 29}) releasedBy(r, monday);
    const int16_t disc = recorded(0);
    EXPECT_EQ(dateInUk(disc), monday);
    releasedBy(40, monday);
    amend(g.disc, disc, [&] { g.disc->releaseDate.fill(kNoDate); });  // the band's own first try no longer counts
    EXPECT_EQ(dateInUk(disc), monday + 7);
}

TEST_F(RivalRelease, ElevenCrowdedWeeksFallBackUpToEightWeeks) {
    setReputation({40, 0, 0, 0, 0});
    const double first = serialFromCivil(2005, 4, 18);
    for (int w = 0; w < 11; ++w)
        for (int k = 0; k < 3; ++k) releasedBy(40, first + 7.0 * w);
    // After eleven pushes the candidate is first + 77, less 0 to 8 weeks.
    const double date = dateInUk(recorded(0));
    EXPECT_LE(date, first + 77);
    EXPECT_GE(date, first + 77 - 56);
    EXPECT_EQ(static_cast<int64_t>(first + 77 - date) % 7, 0);
}

TEST_F(RivalRelease, FreeDaysAreCountedFromTodayForEachWeekTried) {
    setReputation({30, 0, 0, 0, 0});
    for (int d = 1; d <= 20; ++d) {
        addSchedule(g, ScheduleRecord{
                           .type = static_cast<uint8_t>(ScheduleType::restDay), .date = g.gameDate + d, .band = band});
    }
    // Twenty days of rest from 2 March 2005: 18 April has 48 - 20 = 28 free
    // days before it, 25 April 35, 2 May 42, the first with enough.
    EXPECT_EQ(dateInUk(recorded(0)), serialFromCivil(2005, 5, 2));
}

}  // namespace

// Making an album: asking for it, the tracklist, the studio booking and its
// bill, and the studio days until the last track is done.
#include <gtest/gtest.h>

#include "day/dispatch.h"
#include "production/businesses.h"
#include "production/recording.h"
#include "schedule/schedule.h"
#include "support/album_world.h"
#include "support/amend.h"
#include "world/strings.h"

using namespace trovane;
using test::AlbumWorld;

namespace {

// The player's band at work on an album of one track, another song in hand.
struct Recording : AlbumWorld, ::testing::Test {
    int16_t band = addBand("Tapes", kPlayer, 2);
    std::vector<int32_t> songs;

    Recording() {
        addTracks(2);
        amend(g.band, band, [&] {
            g.band->albumStatus = 1;
            g.band->advanceToPay = moneyUnits(60000);
        });
    }
    // n more songs: all but the last are the album's tracks.
    void addTracks(int n) {
        for (int i = 0; i < n; ++i) songs.push_back(addSong(band, 50, 50));
    }
    std::vector<int32_t> tracks() { return {songs.begin(), songs.end() - 1}; }

    // The type 7 entries of the band, by date.
    std::vector<double> studioDays(double from, double to) {
        std::vector<double> days;
        for (double d = from; d <= to; d += 1)
            for (int32_t id : entriesOfDay(g, d)) {
                g.schedule.read(id);
                if (g.schedule->type == 7 && g.schedule->band == band) days.push_back(d);
            }
        return days;
    }
    // Runs the band's studio entry of date d through the dispatch, as the day would.
    void playStudioDay(double d) {
        g.gameDate = d;
        for (int32_t id : entriesOfDay(g, d)) {
            g.schedule.read(id);
            if (g.schedule->type == 7) runScheduleEntry(g);
        }
    }
    // The album of one track booked into a studio of quality 10 (150 a day), the band at the given stamina.
    int16_t booked(uint8_t stamina) {
        amend(g.band, band, [&] { g.band->stamina = stamina; });
        int16_t disc = finaliseAlbum(g, band, tracks());
        bookStudio(g, disc, addFirm("Rooms", kStudio, 10, 0));
        return disc;
    }
};

}  // namespace

TEST_F(Recording, FinalisingMakesTheDiscFromTheMarkedSongsAndHoldsTheRest) {
    addTracks(1);
    for (uint8_t i : {0, 1}) {
        amend(g.song, songs[i], [&] {
            g.song->quality = static_cast<uint8_t>(40 + i);
            g.song->commerciality = static_cast<uint8_t>(61 + i);
        });
    }
    ASSERT_EQ(checkFinaliseAlbum(g, band, tracks()), "");
    int16_t disc = finaliseAlbum(g, band, tracks());
    g.disc.read(disc);
    // (40 + 41) / 2 = 40.5 to the even 40; (61 + 62) / 2 = 61.5 to the even 62.
    EXPECT_EQ(std::tuple(g.disc->trackCount, g.disc->quality, g.disc->commerciality, g.disc->label),
              std::tuple(uint8_t{2}, uint8_t{40}, uint8_t{62}, kPlayer));
    EXPECT_EQ(trim(g.disc->coverImage.value), "none.jpg");
    for (std::size_t i : {0u, 1u, 2u}) EXPECT_EQ((g.song.read(songs[i]), g.song->disc), i < 2 ? disc : 65534) << i;
    EXPECT_TRUE(songsInHand(g, band).empty());
    EXPECT_EQ(discAwaitingStudio(g, band), disc);
    EXPECT_NE(checkFinaliseAlbum(g, band, {songs[2]}), "") << "finalised once";
}

TEST_F(Recording, ATracklistIsRefusedOutsideOneToTwentySongsInHand) {
    addTracks(20);
    std::vector<int32_t> twenty(songs.begin(), songs.begin() + 20);
    std::vector<int32_t> twentyOne(songs.begin(), songs.begin() + 21);
    EXPECT_EQ(checkFinaliseAlbum(g, band, twenty), "");
    EXPECT_EQ(checkFinaliseAlbum(g, band, twentyOne), "An album can have at most 20 tracks.");
    EXPECT_EQ(checkFinaliseAlbum(g, band, {}), "Please choose at least one song for the album.");
    const int16_t others = addBand("Others", kRival);
    int32_t other = addSong(others, 50, 50);
    EXPECT_NE(checkFinaliseAlbum(g, band, {songs[0], other}), "");
    EXPECT_EQ(checkFinaliseAlbum(g, others, {other}), "Others are not signed to your label.");
    EXPECT_NE(checkFinaliseAlbum(g, band, {songs[0], songs[0]}), "");
    amend(g.band, band, [&] { g.band->albumStatus = 2; });
    EXPECT_NE(checkFinaliseAlbum(g, band, {songs[0]}), "");
    EXPECT_EQ(g.disc.recordCount(), 1) << "nothing was made";
}

TEST_F(Recording, AskingForAnAlbumNeedsThePlayersBandWithNoneInHand) {
    addTracks(2);
    int16_t rival = addBand("Theirs", kRival);
    EXPECT_EQ(checkWorkOnAlbum(g, rival), "Theirs are not signed to your label.");
    for (uint8_t status : {1, 2, 3}) {
        amend(g.band, band, [&] { g.band->albumStatus = status; });
        EXPECT_EQ(checkWorkOnAlbum(g, band), "Tapes are already working on an album.");
    }
    amend(g.band, band, [&] {
        g.band->albumStatus = 0;
        g.band->songsWritten = 4;
    });
    EXPECT_EQ(checkWorkOnAlbum(g, band), "");
    EXPECT_EQ(workOnAlbumText(g, band),
              "Are you sure you want Tapes to dedicate all their free time to working on material for a new album? "
              "So far, although they have written 4 tracks they have not been working full-time on material.");
    workOnAlbum(g, band, 3);
    g.band.read(band);
    EXPECT_EQ(std::tuple(g.band->albumStatus, g.band->materialBudget), std::tuple(uint8_t{1}, uint8_t{3}));
}

TEST_F(Recording, SessionsSkipABusyDayAndTheLabelPaysTheStudio) {
    addTracks(2);
    const double today = g.gameDate;
    int16_t studio = addFirm("Basement", kStudio, 45, 0);
    ScheduleRecord rest{};
    rest.type = 11;
    rest.date = today + 15;
    rest.band = band;
    addSchedule(g, rest);
    int16_t disc = finaliseAlbum(g, band, tracks());
    ASSERT_EQ(checkBookStudio(g, disc, studio), "");
    StudioBooking b = bookStudio(g, disc, studio);
    // 3 tracks, 2 sessions each, from today + 14, the rest day at + 15 skipped.
    EXPECT_EQ(b.sessions, 6);
    EXPECT_EQ(studioDays(today, today + 40),
              (std::vector<double>{today + 14, today + 16, today + 17, today + 18, today + 19, today + 20}));
    EXPECT_EQ(b.recordingDue, today + 19) << "today + 13 + 6, the skipped day not added";
    // 45 x 45 x 1.5 = 3,037.5, to 3,038 a day, x 6.
    EXPECT_EQ(b.cost, moneyUnits(18228));
    EXPECT_EQ(ledger(kPlayer, ledgerStudioFees), -moneyUnits(18228));
    EXPECT_EQ(cash(kPlayer), -moneyUnits(18228));
    g.band.read(band);
    EXPECT_EQ(std::tuple(int{g.band->albumStatus}, g.band->songsWritten), std::tuple(2, int{disc}));
    EXPECT_EQ(checkBookStudio(g, disc, studio), "This disc has already been booked into a studio.");
}

TEST_F(Recording, TheLabelsOwnStudioIsBilledAndPaidTheSame) {
    int16_t own = addFirm("Our Rooms", kStudio, 100, kPlayer);
    int16_t closed = addFirm("Half Built", kStudio, 100, kPlayer, false);
    int16_t plant = addFirm("Press", kPlant, 100, 0);
    int16_t disc = finaliseAlbum(g, band, tracks());
    EXPECT_NE(checkBookStudio(g, disc, closed), "");
    EXPECT_NE(checkBookStudio(g, disc, plant), "");
    bookStudio(g, disc, own);
    // 2 sessions at 15,000.
    EXPECT_EQ(ledger(kPlayer, ledgerStudioFees), -moneyUnits(30000));
    EXPECT_EQ(ledger(kPlayer, ledgerBusinesses), moneyUnits(30000));
    EXPECT_EQ(cash(kPlayer), 0);
}

TEST_F(Recording, WithNoStaminaEveryEndOfBookingCostsOneMoreSession) {
    const double today = g.gameDate;
    int16_t disc = booked(0);  // 2 sessions, +14 and +15; due +15
    for (double day : {today + 14, today + 15}) playStudioDay(day);
    g.disc.read(disc);
    EXPECT_EQ(g.disc->recordingDue, today + 16);
    playStudioDay(today + 16);
    // 300 booked, and 150 at each of the two ends: none before the end.
    EXPECT_EQ(ledger(kPlayer, ledgerStudioFees), -moneyUnits(600));
    EXPECT_EQ(studioDays(today, today + 30), (std::vector<double>{today + 14, today + 15, today + 16, today + 17}));
    g.disc.read(disc);
    EXPECT_EQ(g.disc->tracksRecorded, 0);
}

TEST_F(Recording, ALastDayLostToRestIsBookedAgain) {
    const double today = g.gameDate;
    int16_t disc = booked(100);
    // away: the guard skips the studio day
    amend(g.artist, 1, [&] { g.artist->energy = -1; });
    for (double day : {today + 14, today + 15}) playStudioDay(day);
    EXPECT_EQ(ledger(kPlayer, ledgerStudioFees), -moneyUnits(450)) << "a day lost before the end is not";
    amend(g.artist, 1, [&] { g.artist->energy = 50; });
    playStudioDay(today + 16);
    EXPECT_EQ((g.disc.read(disc), g.disc->tracksRecorded), 1);
    EXPECT_EQ((g.band.read(band), g.band->albumStatus), 3);
}

TEST_F(Recording, TheLastTrackOfAnAlbumPaysTheSecondThirdAndTellsThePlayer) {
    const double today = g.gameDate;
    int16_t disc = booked(100);
    setDiscTitle(g, disc, "First Light");
    playStudioDay(today + 14);
    EXPECT_EQ((g.band.read(band), g.band->albumStatus), 3);
    EXPECT_EQ(ledger(kPlayer, ledgerAdvances), -moneyUnits(20000)) << "60,000 / 3";
    const NewsRecord& n = lastNews();
    EXPECT_EQ(trim(n.title.value), "Tapes complete the recording of their new album.");
    EXPECT_EQ(trim(n.text.value),
              "Tapes informed you they have finished recording the new album. As a result the second installment "
              "of their advance has been paid.");
    EXPECT_EQ(trim(n.extra.value),
              "As recording is now you complete you can set a release date for the disc, to do this go into "
              "Tapes's discography and select the relevant disc (First Light.) You will notice a button in the "
              "sidebar marked disc options, upon clicking this you will have the option to set a release date.");
    int32_t news = newsCount();
    playStudioDay(today + 15);
    EXPECT_EQ(newsCount(), news) << "a finished disc takes no more days";
    EXPECT_EQ(ledger(kPlayer, ledgerAdvances), -moneyUnits(20000));
}

TEST_F(Recording, AFinishedSingleLeavesTheAlbumAndTheAdvanceAlone) {
    addTracks(2);
    amend(g.band, band, [&] { g.band->stamina = 100; });
    int16_t studio = addFirm("Rooms", kStudio, 10, 0);
    g.disc.rec = DiscRecord{.isSingle = 1,
                            .studio = studio,
                            .band = band,
                            .tracks = {songs[0], songs[1], songs[2]},
                            .trackCount = 3,
                            .tracksRecorded = 2,
                            .recordingDue = g.gameDate + 5};
    int16_t disc = static_cast<int16_t>(g.disc.append());
    g.schedule.rec = ScheduleRecord{.type = 7, .date = g.gameDate, .band = band, .disc = disc};
    recordingDay(g);
    EXPECT_EQ((g.disc.read(disc), g.disc->tracksRecorded), 3);
    EXPECT_EQ((g.band.read(band), g.band->albumStatus), 1);
    EXPECT_EQ(ledger(kPlayer, ledgerAdvances), 0);
    EXPECT_EQ(trim(lastNews().title.value), "Tapes complete the recording of their new single.");
}

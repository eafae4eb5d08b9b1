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

struct Studio : AlbumWorld {
    int16_t band = addBand("Tapes", kPlayer, 2);
    std::vector<int32_t> songs;

    explicit Studio(int tracks = 3) {
        for (int i = 0; i < tracks + 1; ++i) songs.push_back(addSong(band, 50, 50));
        amend(g.band, band, [&] {
            g.band->albumStatus = 1;
            g.band->advanceToPay = moneyUnits(60000);
        });
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
    void setStamina(uint8_t s) {
        amend(g.band, band, [&] { g.band->stamina = s; });
    }
};

}  // namespace

TEST(Recording, FinalisingMakesTheDiscFromTheMarkedSongsAndHoldsTheRest) {
    Studio w(2);
    Game& g = w.g;
    for (uint8_t i : {0, 1}) {
        amend(g.song, w.songs[i], [&] {
            g.song->quality = static_cast<uint8_t>(40 + i);
            g.song->commerciality = static_cast<uint8_t>(61 + i);
        });
    }
    ASSERT_EQ(checkFinaliseAlbum(g, w.band, w.tracks()), "");
    int16_t disc = finaliseAlbum(g, w.band, w.tracks());
    g.disc.read(disc);
    // (40 + 41) / 2 = 40.5 to the even 40; (61 + 62) / 2 = 61.5 to the even 62.
    EXPECT_EQ(std::tuple(g.disc->trackCount, g.disc->quality, g.disc->commerciality, g.disc->label),
              std::tuple(uint8_t{2}, uint8_t{40}, uint8_t{62}, AlbumWorld::kPlayer));
    EXPECT_EQ(trim(g.disc->coverImage.value), "none.jpg");
    for (std::size_t i : {0u, 1u, 2u}) EXPECT_EQ((g.song.read(w.songs[i]), g.song->disc), i < 2 ? disc : 65534) << i;
    EXPECT_TRUE(songsInHand(g, w.band).empty());
    EXPECT_EQ(discAwaitingStudio(g, w.band), disc);
    EXPECT_NE(checkFinaliseAlbum(g, w.band, {w.songs[2]}), "") << "finalised once";
}

TEST(Recording, ATracklistIsRefusedOutsideOneToTwentySongsInHand) {
    Studio w(21);
    Game& g = w.g;
    std::vector<int32_t> twenty(w.songs.begin(), w.songs.begin() + 20);
    std::vector<int32_t> twentyOne(w.songs.begin(), w.songs.begin() + 21);
    EXPECT_EQ(checkFinaliseAlbum(g, w.band, twenty), "");
    EXPECT_EQ(checkFinaliseAlbum(g, w.band, twentyOne), "An album can have at most 20 tracks.");
    EXPECT_EQ(checkFinaliseAlbum(g, w.band, {}), "Please choose at least one song for the album.");
    const int16_t others = w.addBand("Others", AlbumWorld::kRival);
    int32_t other = w.addSong(others, 50, 50);
    EXPECT_NE(checkFinaliseAlbum(g, w.band, {w.songs[0], other}), "");
    EXPECT_EQ(checkFinaliseAlbum(g, others, {other}), "Others are not signed to your label.");
    EXPECT_NE(checkFinaliseAlbum(g, w.band, {w.songs[0], w.songs[0]}), "");
    amend(g.band, w.band, [&] { g.band->albumStatus = 2; });
    EXPECT_NE(checkFinaliseAlbum(g, w.band, {w.songs[0]}), "");
    EXPECT_EQ(g.disc.recordCount(), 1) << "nothing was made";
}

TEST(Recording, AskingForAnAlbumNeedsThePlayersBandWithNoneInHand) {
    Studio w;
    Game& g = w.g;
    int16_t rival = w.addBand("Theirs", AlbumWorld::kRival);
    EXPECT_EQ(checkWorkOnAlbum(g, rival), "Theirs are not signed to your label.");
    for (uint8_t status : {1, 2, 3}) {
        amend(g.band, w.band, [&] { g.band->albumStatus = status; });
        EXPECT_EQ(checkWorkOnAlbum(g, w.band), "Tapes are already working on an album.");
    }
    amend(g.band, w.band, [&] {
        g.band->albumStatus = 0;
        g.band->songsWritten = 4;
    });
    EXPECT_EQ(checkWorkOnAlbum(g, w.band), "");
    EXPECT_EQ(workOnAlbumText(g, w.band),
              "Are you sure you want Tapes to dedicate all their free time to working on material for a new album? "
              "So far, although they have written 4 tracks they have not been working full-time on material.");
    workOnAlbum(g, w.band, 3);
    g.band.read(w.band);
    EXPECT_EQ(std::tuple(g.band->albumStatus, g.band->materialBudget), std::tuple(uint8_t{1}, uint8_t{3}));
}

TEST(Recording, SessionsSkipABusyDayAndTheLabelPaysTheStudio) {
    Studio w;
    Game& g = w.g;
    const double today = g.gameDate;
    int16_t studio = w.addFirm("Basement", kStudio, 45, 0);
    ScheduleRecord rest{};
    rest.type = 11;
    rest.date = today + 15;
    rest.band = w.band;
    addSchedule(g, rest);
    int16_t disc = finaliseAlbum(g, w.band, w.tracks());
    ASSERT_EQ(checkBookStudio(g, disc, studio), "");
    StudioBooking b = bookStudio(g, disc, studio);
    // 3 tracks, 2 sessions each, from today + 14, the rest day at + 15 skipped.
    EXPECT_EQ(b.sessions, 6);
    EXPECT_EQ(w.studioDays(today, today + 40),
              (std::vector<double>{today + 14, today + 16, today + 17, today + 18, today + 19, today + 20}));
    EXPECT_EQ(b.recordingDue, today + 19) << "today + 13 + 6, the skipped day not added";
    // 45 x 45 x 1.5 = 3,037.5, to 3,038 a day, x 6.
    EXPECT_EQ(b.cost, moneyUnits(18228));
    EXPECT_EQ(w.ledger(AlbumWorld::kPlayer, ledgerStudioFees), -moneyUnits(18228));
    EXPECT_EQ(w.cash(AlbumWorld::kPlayer), -moneyUnits(18228));
    g.band.read(w.band);
    EXPECT_EQ(std::tuple(int{g.band->albumStatus}, g.band->songsWritten), std::tuple(2, int{disc}));
    EXPECT_EQ(checkBookStudio(g, disc, studio), "This disc has already been booked into a studio.");
}

TEST(Recording, TheLabelsOwnStudioIsBilledAndPaidTheSame) {
    Studio w(1);
    Game& g = w.g;
    int16_t own = w.addFirm("Our Rooms", kStudio, 100, AlbumWorld::kPlayer);
    int16_t closed = w.addFirm("Half Built", kStudio, 100, AlbumWorld::kPlayer, false);
    int16_t plant = w.addFirm("Press", kPlant, 100, 0);
    int16_t disc = finaliseAlbum(g, w.band, w.tracks());
    EXPECT_NE(checkBookStudio(g, disc, closed), "");
    EXPECT_NE(checkBookStudio(g, disc, plant), "");
    bookStudio(g, disc, own);
    // 2 sessions at 15,000.
    EXPECT_EQ(w.ledger(AlbumWorld::kPlayer, ledgerStudioFees), -moneyUnits(30000));
    EXPECT_EQ(w.ledger(AlbumWorld::kPlayer, ledgerBusinesses), moneyUnits(30000));
    EXPECT_EQ(w.cash(AlbumWorld::kPlayer), 0);
}

TEST(Recording, WithNoStaminaEveryEndOfBookingCostsOneMoreSession) {
    Studio w(1);
    Game& g = w.g;
    const double today = g.gameDate;
    w.setStamina(0);
    int16_t studio = w.addFirm("Rooms", kStudio, 10, 0);  // 150 a day
    int16_t disc = finaliseAlbum(g, w.band, w.tracks());
    bookStudio(g, disc, studio);  // 2 sessions, +14 and +15; due +15
    for (double day : {today + 14, today + 15}) w.playStudioDay(day);
    g.disc.read(disc);
    EXPECT_EQ(g.disc->recordingDue, today + 16);
    w.playStudioDay(today + 16);
    // 300 booked, and 150 at each of the two ends: none before the end.
    EXPECT_EQ(w.ledger(AlbumWorld::kPlayer, ledgerStudioFees), -moneyUnits(600));
    EXPECT_EQ(w.studioDays(today, today + 30), (std::vector<double>{today + 14, today + 15, today + 16, today + 17}));
    g.disc.read(disc);
    EXPECT_EQ(g.disc->tracksRecorded, 0);
}

TEST(Recording, ALastDayLostToRestIsBookedAgain) {
    Studio w(1);
    Game& g = w.g;
    const double today = g.gameDate;
    w.setStamina(100);
    int16_t studio = w.addFirm("Rooms", kStudio, 10, 0);
    int16_t disc = finaliseAlbum(g, w.band, w.tracks());
    bookStudio(g, disc, studio);
    // away: the guard skips the studio day
    amend(g.artist, 1, [&] { g.artist->energy = -1; });
    for (double day : {today + 14, today + 15}) w.playStudioDay(day);
    EXPECT_EQ(w.ledger(AlbumWorld::kPlayer, ledgerStudioFees), -moneyUnits(450)) << "a day lost before the end is not";
    amend(g.artist, 1, [&] { g.artist->energy = 50; });
    w.playStudioDay(today + 16);
    EXPECT_EQ((g.disc.read(disc), g.disc->tracksRecorded), 1);
    EXPECT_EQ((g.band.read(w.band), g.band->albumStatus), 3);
}

TEST(Recording, TheLastTrackOfAnAlbumPaysTheSecondThirdAndTellsThePlayer) {
    Studio w(1);
    Game& g = w.g;
    const double today = g.gameDate;
    w.setStamina(100);
    int16_t studio = w.addFirm("Rooms", kStudio, 10, 0);
    int16_t disc = finaliseAlbum(g, w.band, w.tracks());
    setDiscTitle(g, disc, "First Light");
    bookStudio(g, disc, studio);
    w.playStudioDay(today + 14);
    EXPECT_EQ((g.band.read(w.band), g.band->albumStatus), 3);
    EXPECT_EQ(w.ledger(AlbumWorld::kPlayer, ledgerAdvances), -moneyUnits(20000)) << "60,000 / 3";
    const NewsRecord& n = w.lastNews();
    EXPECT_EQ(trim(n.title.value), "Tapes complete the recording of their new album.");
    EXPECT_EQ(trim(n.text.value),
              "Tapes informed you they have finished recording the new album. As a result the second installment "
              "of their advance has been paid.");
    EXPECT_EQ(trim(n.extra.value),
              "As recording is now you complete you can set a release date for the disc, to do this go into "
              "Tapes's discography and select the relevant disc (First Light.) You will notice a button in the "
              "sidebar marked disc options, upon clicking this you will have the option to set a release date.");
    int32_t news = w.newsCount();
    w.playStudioDay(today + 15);
    EXPECT_EQ(w.newsCount(), news) << "a finished disc takes no more days";
    EXPECT_EQ(w.ledger(AlbumWorld::kPlayer, ledgerAdvances), -moneyUnits(20000));
}

TEST(Recording, AFinishedSingleLeavesTheAlbumAndTheAdvanceAlone) {
    Studio w(3);
    Game& g = w.g;
    w.setStamina(100);
    int16_t studio = w.addFirm("Rooms", kStudio, 10, 0);
    g.disc.rec = DiscRecord{.isSingle = 1,
                            .studio = studio,
                            .band = w.band,
                            .tracks = {w.songs[0], w.songs[1], w.songs[2]},
                            .trackCount = 3,
                            .tracksRecorded = 2,
                            .recordingDue = g.gameDate + 5};
    int16_t disc = static_cast<int16_t>(g.disc.append());
    g.schedule.rec = ScheduleRecord{.type = 7, .date = g.gameDate, .band = w.band, .disc = disc};
    recordingDay(g);
    EXPECT_EQ((g.disc.read(disc), g.disc->tracksRecorded), 3);
    EXPECT_EQ((g.band.read(w.band), g.band->albumStatus), 1);
    EXPECT_EQ(w.ledger(AlbumWorld::kPlayer, ledgerAdvances), 0);
    EXPECT_EQ(trim(w.lastNews().title.value), "Tapes complete the recording of their new single.");
}

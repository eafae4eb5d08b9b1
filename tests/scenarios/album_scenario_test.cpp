// A whole album played through: a taken-over label asks its act for an
// album, the act writes, the tracklist is fixed, a studio booked, and the
// days run until the last track is down, with the books checked every day.
#include <gtest/gtest.h>

#include "label/finances.h"
#include "production/businesses.h"
#include "production/recording.h"
#include "production/songwriting.h"
#include "support/taken_over_game.h"

using namespace trovane;

namespace {

constexpr Money kStartingCash = moneyUnits(4500000);

// The tiny world with a writer in its signed act, a studio and a title bank.
void writeAlbumWorld(const std::filesystem::path& dir) {
    test::writeTinyBaseWorld(dir);
    Game g(dir, 1);
    openAllTables(g, "gam");
    g.artist.read(1);
    g.artist->songQuality = 60;
    g.artist->songCommerciality = 55;
    g.artist->writingRate = 90;
    g.artist.write();
    g.band.read(1);
    g.band->stamina = 60;
    g.band.write();
    g.business.rec = BusinessRecord{.name = "Harbour Studios", .city = 1, .quality = 40, .open = -1};
    g.business.append();
    for (const char* t : {"Low Tide", "Night Bus", "Glass Roof"}) {
        g.newsong.rec = NewSongRecord{.title = t, .style = 1};
        g.newsong.append();
    }
    closeAllTables(g);
    test::proveBaseWorld(dir);
}

// What must hold after every day: the invariants, and the label's cash is its
// starting cash and this year's books.
void checkAlbumWorld(Game& g) {
    const auto broken = checkInvariants(g);
    ASSERT_FALSE(broken) << describeBreak(*broken);
    g.label.read(1);
    Money booked = 0;
    for (int c = ledgerWages; c <= ledgerOtherIncome; ++c) booked += ledgerEntry(g.label.rec, 2, c);
    ASSERT_EQ(g.label->cashBalance, kStartingCash + booked) << "cash = ledger";
}

}  // namespace

TEST(AlbumScenario, ATakenOverLabelsActWritesAndRecordsAnAlbum) {
    test::TakenOverGame game(2024, test::StartWorld::tiny, writeAlbumWorld);
    Game& g = game.g;
    game.takeOver(1, {.forename = "Ann",
                      .surname = "Lee",
                      .birthDay = 2,
                      .birthMonth = 1,
                      .birthYear = 1980,
                      .nationality = "Scottish"});
    const int16_t band = 1;
    ASSERT_NO_FATAL_FAILURE(checkAlbumWorld(g));

    ASSERT_EQ(checkWorkOnAlbum(g, band), "");
    workOnAlbum(g, band, 4);
    EXPECT_NE(checkWorkOnAlbum(g, band), "") << "an album in hand";

    int days = 0;
    while (songsInHand(g, band).size() < 6 && days < 200) {
        checkDaysSchedule(g);
        ++days;
        ASSERT_NO_FATAL_FAILURE(checkAlbumWorld(g)) << "day " << days;
    }
    std::vector<int32_t> tracks = songsInHand(g, band);
    ASSERT_GE(tracks.size(), 6u) << "songs after " << days << " days";
    tracks.resize(5);
    ASSERT_EQ(checkFinaliseAlbum(g, band, tracks), "");
    const int16_t disc = finaliseAlbum(g, band, tracks);
    g.band.read(band);
    const std::string title = pickAlbumTitle(g);
    ASSERT_EQ(checkDiscTitle(title), "");
    setDiscTitle(g, disc, title);
    ASSERT_EQ(checkBookStudio(g, disc, 1), "");
    const Money feesBefore = ledgerEntry((g.label.read(1), g.label.rec), 2, ledgerStudioFees);
    StudioBooking booking = bookStudio(g, disc, 1);
    EXPECT_EQ(booking.sessions, 10);
    // 40 x 40 x 1.5 = 2,400 a day for 10 days.
    EXPECT_EQ(booking.cost, moneyUnits(24000));
    ASSERT_NO_FATAL_FAILURE(checkAlbumWorld(g));

    days = 0;
    g.band.read(band);
    while (g.band->albumStatus != 3 && days < 200) {
        checkDaysSchedule(g);
        ++days;
        ASSERT_NO_FATAL_FAILURE(checkAlbumWorld(g)) << "studio day " << days;
        g.band.read(band);
    }
    g.disc.read(disc);
    EXPECT_EQ(g.disc->tracksRecorded, 5);
    EXPECT_EQ(g.band->albumStatus, 3);
    // The booking, and one more session at 2,400 for each time it ran out.
    g.label.read(1);
    const Money fees = feesBefore - ledgerEntry(g.label.rec, 2, ledgerStudioFees);
    EXPECT_GE(fees, moneyUnits(24000));
    EXPECT_EQ((fees - moneyUnits(24000)) % moneyUnits(2400), 0);
    bool told = false;
    for (int32_t n = 1; n < g.news.recordCount(); ++n) {
        g.news.read(n);
        told = told || trim(g.news->title.value) == "Tess Calloway complete the recording of her new album.";
    }
    EXPECT_TRUE(told);
}

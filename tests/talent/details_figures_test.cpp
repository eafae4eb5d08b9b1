// What the details screens and their verbs show: names, dates, shares, tours,
// an announced end, a venue's gigs.
#include <gtest/gtest.h>

#include "live/venue_details.h"
#include "schedule/schedule.h"
#include "support/album_world.h"
#include "support/amend.h"
#include "support/calendar_world.h"
#include "talent/artist_details.h"
#include "talent/band_details.h"

using namespace trovane;
using test::AlbumWorld;

namespace {

// The small world with the player's act "Us" and the rival's "Them".
struct Figures : ::testing::Test, AlbumWorld {
    const int16_t us = addBand("Us", kPlayer);
    const int16_t them = addBand("Them", kRival);
};

}  // namespace

TEST(DetailsText, NicknameBirthDateAndBestShare) {
    EXPECT_EQ(artistShownName("Ivo  ", "Sparks ", " Marsh"), "Ivo 'Sparks' Marsh");
    EXPECT_EQ(artistShownName("Ivo", "   ", "Marsh"), "Ivo Marsh");
    // A birth on the first day of 1900 is unknown; the next day is shown.
    const double first = test::day(1900, 1, 1);
    EXPECT_EQ(birthDateText(first), "Unknown");
    EXPECT_EQ(birthDateText(first - 1), "Unknown");
    EXPECT_EQ(birthDateText(first + 1), "2/1/1900");
    EXPECT_EQ(bestShareText(12.5f, 2005), "12.50% (2005)");
    EXPECT_EQ(bestShareText(100.0f, 2010), "100.00% (2010)");
    EXPECT_EQ(bestShareText(0.0f, 2005), "");
}

TEST_F(Figures, AJobIsNamedForTheArtistsSex) {
    for (auto [title, female] : {std::pair{"Drummer", ""}, {"Frontman", "Frontwoman"}}) {
        g.job.rec = JobRecord{.title = std::string(title), .titleFemale = std::string(female)};
        g.job.append();
    }
    EXPECT_EQ(jobTitleFor(g, 1, false), "Drummer") << "no woman's title: the one title";
    EXPECT_EQ(jobTitleFor(g, 2, false), "Frontwoman");
    EXPECT_EQ(jobTitleFor(g, 2, true), "Frontman");
    EXPECT_EQ(jobTitleFor(g, 3, true), "") << "past the table";
}

TEST_F(Figures, ToursListHeadlinedAndSupportedOnesByAreaOrFestival) {
    const int16_t others = addBand("Others", AlbumWorld::kRival);
    g.festival.rec = FestivalRecord{.festivalName = "Moor Fest"};
    g.festival.append();
    const double d = g.gameDate + 5;
    test::addGig(g, us, d);                   // tour 1, ours
    test::addGig(g, them, d, {others});       // tour 2, not ours
    test::addGig(g, them, d, {others, us});   // tour 3, we support in the third slot
    test::addGig(g, them, d, {us}, them, 1);  // tour 4, a festival
    for (int32_t t = 1; t <= 4; ++t) amend(g.tour, t, [&] { g.tour->areaCode = std::string(t == 3 ? "N" : "E"); });
    const std::vector<TourLine> tours = toursOf(g, us);
    std::vector<std::string> shown;
    for (const TourLine& t : tours)
        shown.push_back(std::to_string(t.tour) + " " + t.name + ", " + t.role + ", " + t.area);
    EXPECT_EQ(shown, (std::vector<std::string>{"1 Europe Tour, Headliner, Europe",
                                               "3 North America Tour, Support, North America",
                                               "4 Moor Fest, Support, Europe"}));
}

TEST_F(Figures, AnAnnouncedEndIsTheActsOwnPendingEnd) {
    EXPECT_EQ(bandDetails(g, us).announcedEnd, 0);
    test::file(g, 28, g.gameDate + 3, them);  // an act's end, filed ahead
    test::file(g, 28, g.gameDate + 9, us);
    EXPECT_EQ(bandDetails(g, us).announcedEnd, g.gameDate + 9);
    g.gameDate += 9;  // on its day it is still to come
    EXPECT_EQ(bandDetails(g, us).announcedEnd, g.gameDate);
    g.gameDate += 1;
    EXPECT_EQ(bandDetails(g, us).announcedEnd, 0);
    // only the player's acts show their attributes
    EXPECT_EQ(bandDetails(g, us).attributes.size(), 7u);
    EXPECT_TRUE(bandDetails(g, them).attributes.empty());
}

TEST_F(Figures, ARetiredArtistShowsTheDateSetAndAPlayersArtistItsLook) {
    const int16_t a = (g.band.read(us), g.band->members[0]);
    amend(g.artist, a, [&] {
        g.artist->retired = kTrue;
        g.artist->retirementDate = test::day(2005, 3, 4);
    });
    const ArtistDetails d = artistDetails(g, a);
    EXPECT_EQ(std::tuple(d.retired, d.retirementDate, d.players), std::tuple(true, test::day(2005, 3, 4), false));
    // a player's artist shows its look, or none without one
    const int16_t ours = (g.band.read(us), g.band->members[1]);
    g.look.rec = LookRecord{.name = "Grunge"};
    const auto grunge = static_cast<uint8_t>(g.look.append());
    for (auto [look, shown] : {std::pair{uint8_t{0}, ""}, {grunge, "Grunge"}}) {
        amend(g.artist, ours, [&] { g.artist->look = look; });
        const ArtistDetails o = artistDetails(g, ours);
        EXPECT_EQ(std::tuple(o.players, o.look), std::tuple(true, std::string(shown)));
    }
}

TEST_F(Figures, AVenuesGigsStandLatestFirstAndALaterRecordFirstOnOneDate) {
    g.venue.rec = VenueRecord{.name = std::string("The Hall"), .capacity = 1200, .city = 1};
    g.venue.append();
    const double d = test::day(2004, 6, 1);
    const int32_t early = test::addGig(g, them, d);
    const int32_t late = test::addGig(g, us, d + 2);
    const int32_t sameDay = test::addGig(g, them, d);
    const int32_t elsewhere = test::addGig(g, us, d + 5);
    for (int32_t n : {early, late, sameDay}) amend(g.gig, n, [&] { g.gig->venue = 1; });
    amend(g.gig, elsewhere, [&] { g.gig->venue = 0; });
    const VenueDetails v = venueDetails(g, 1);
    EXPECT_EQ(std::tuple(v.name, v.city, v.country, v.capacity),
              std::tuple(std::string("The Hall"), std::string("London"), std::string("England"), 1200));
    ASSERT_EQ(v.gigs.size(), 3u);
    EXPECT_EQ(std::tuple(v.gigs[0].gig, v.gigs[1].gig, v.gigs[2].gig), std::tuple(late, sameDay, early));
    EXPECT_EQ(v.gigs[0].headliner, "Us");
}

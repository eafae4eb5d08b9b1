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

TEST(DetailsText, ANicknameStandsQuotedBetweenTheNamesOnlyWhenSet) {
    EXPECT_EQ(artistShownName("Ivo  ", "Sparks ", " Marsh"), "Ivo 'Sparks' Marsh");
    EXPECT_EQ(artistShownName("Ivo", "   ", "Marsh"), "Ivo Marsh");
}

TEST(DetailsText, ABirthOnTheFirstDayOf1900IsUnknownAndTheNextDayIsShown) {
    const double first = test::day(1900, 1, 1);
    EXPECT_EQ(birthDateText(first), "Unknown");
    EXPECT_EQ(birthDateText(first - 1), "Unknown");
    EXPECT_EQ(birthDateText(first + 1), "2/1/1900");
}

TEST(DetailsText, BestShareHasTwoPlacesAndItsYear) {
    EXPECT_EQ(bestShareText(12.5f, 2005), "12.50% (2005)");
    EXPECT_EQ(bestShareText(100.0f, 2010), "100.00% (2010)");
    EXPECT_EQ(bestShareText(0.0f, 2005), "");
}

TEST(DetailsText, AJobIsNamedForTheArtistsSex) {
    AlbumWorld w;
    for (auto [title, female] : {std::pair{"Drummer", ""}, {"Frontman", "Frontwoman"}}) {
        w.g.job.rec = JobRecord{.title = std::string(title), .titleFemale = std::string(female)};
        w.g.job.append();
    }
    EXPECT_EQ(jobTitleFor(w.g, 1, false), "Drummer") << "no woman's title: the one title";
    EXPECT_EQ(jobTitleFor(w.g, 2, false), "Frontwoman");
    EXPECT_EQ(jobTitleFor(w.g, 2, true), "Frontman");
    EXPECT_EQ(jobTitleFor(w.g, 3, true), "") << "past the table";
}

TEST(BandDetailsFigures, ToursListHeadlinedAndSupportedOnesByAreaOrFestival) {
    AlbumWorld w;
    Game& g = w.g;
    const int16_t us = w.addBand("Us", AlbumWorld::kPlayer);
    const int16_t them = w.addBand("Them", AlbumWorld::kRival);
    const int16_t others = w.addBand("Others", AlbumWorld::kRival);
    g.festival.rec = FestivalRecord{};
    g.festival->festivalName = std::string("Moor Fest");
    g.festival.append();
    const double d = g.gameDate + 5;
    test::addGig(g, us, d);                   // tour 1, ours
    test::addGig(g, them, d, {others});       // tour 2, not ours
    test::addGig(g, them, d, {others, us});   // tour 3, we support in the third slot
    test::addGig(g, them, d, {us}, them, 1);  // tour 4, a festival
    for (int32_t t = 1; t <= 4; ++t) {
        amend(g.tour, t, [&] { g.tour->areaCode = std::string(t == 3 ? "N" : "E"); });
    }
    const std::vector<TourLine> tours = toursOf(g, us);
    ASSERT_EQ(tours.size(), 3u);
    EXPECT_EQ(std::tuple(tours[0].tour, tours[0].name, tours[0].role, tours[0].area),
              std::tuple(int16_t{1}, std::string("Europe Tour"), std::string("Headliner"), std::string("Europe")));
    EXPECT_EQ(std::tuple(tours[1].tour, tours[1].name, tours[1].role, tours[1].area),
              std::tuple(int16_t{3}, std::string("North America Tour"), std::string("Support"),
                         std::string("North America")));
    EXPECT_EQ(std::tuple(tours[2].tour, tours[2].name, tours[2].role),
              std::tuple(int16_t{4}, std::string("Moor Fest"), std::string("Support")));
}

TEST(BandDetailsFigures, AnAnnouncedEndIsTheActsOwnPendingEnd) {
    AlbumWorld w;
    Game& g = w.g;
    const int16_t us = w.addBand("Us", AlbumWorld::kPlayer);
    const int16_t them = w.addBand("Them", AlbumWorld::kRival);
    EXPECT_EQ(bandDetails(g, us).announcedEnd, 0);
    auto fileEnd = [&](int16_t band, double date) {
        ScheduleRecord e{};
        e.type = 28;
        e.band = band;
        e.date = date;
        addSchedule(g, e);
    };
    fileEnd(them, g.gameDate + 3);
    fileEnd(us, g.gameDate + 9);
    EXPECT_EQ(bandDetails(g, us).announcedEnd, g.gameDate + 9);
    g.gameDate += 9;  // on its day it is still to come
    EXPECT_EQ(bandDetails(g, us).announcedEnd, g.gameDate);
    g.gameDate += 1;
    EXPECT_EQ(bandDetails(g, us).announcedEnd, 0);
}

TEST(BandDetailsFigures, OnlyThePlayersActsShowTheirAttributes) {
    AlbumWorld w;
    const int16_t us = w.addBand("Us", AlbumWorld::kPlayer);
    const int16_t them = w.addBand("Them", AlbumWorld::kRival);
    EXPECT_EQ(bandDetails(w.g, us).attributes.size(), 7u);
    EXPECT_TRUE(bandDetails(w.g, them).attributes.empty());
}

TEST(ArtistDetailsFigures, ARetiredArtistShowsTheDateSet) {
    AlbumWorld w;
    Game& g = w.g;
    const int16_t us = w.addBand("Us", AlbumWorld::kPlayer);
    g.band.read(us);
    const int16_t a = g.band->members[0];
    amend(g.artist, a, [&] {
        g.artist->retired = kTrue;
        g.artist->retirementDate = test::day(2005, 3, 4);
    });
    const ArtistDetails d = artistDetails(g, a);
    EXPECT_EQ(std::tuple(d.retired, d.retirementDate, d.players), std::tuple(true, test::day(2005, 3, 4), false));
}

TEST(VenueCard, GigsStandLatestFirstAndALaterRecordFirstOnOneDate) {
    AlbumWorld w;
    Game& g = w.g;
    g.venue.rec = VenueRecord{.name = std::string("The Hall"), .capacity = 1200, .city = 1};
    g.venue.append();
    const int16_t a = w.addBand("Alpha", AlbumWorld::kRival);
    const int16_t b = w.addBand("Beta", AlbumWorld::kRival);
    const double d = test::day(2004, 6, 1);
    const int32_t early = test::addGig(g, a, d);
    const int32_t late = test::addGig(g, b, d + 2);
    const int32_t sameDay = test::addGig(g, a, d);
    const int32_t elsewhere = test::addGig(g, b, d + 5);
    for (int32_t n : {early, late, sameDay}) {
        amend(g.gig, n, [&] { g.gig->venue = 1; });
    }
    amend(g.gig, elsewhere, [&] { g.gig->venue = 0; });
    const VenueDetails v = venueDetails(g, 1);
    EXPECT_EQ(std::tuple(v.name, v.city, v.country, v.capacity),
              std::tuple(std::string("The Hall"), std::string("London"), std::string("England"), 1200));
    ASSERT_EQ(v.gigs.size(), 3u);
    EXPECT_EQ(std::tuple(v.gigs[0].gig, v.gigs[1].gig, v.gigs[2].gig), std::tuple(late, sameDay, early));
    EXPECT_EQ(v.gigs[0].headliner, "Beta");
}

// A taken-over label's act is invited to a festival, says yes, plays both days
// with the invariants checked daily, and the festival is reviewed.
#include <gtest/gtest.h>

#include "live/festivals.h"
#include "support/taken_over_game.h"

using namespace trovane;

namespace {

class FestivalSeason : public ::testing::Test, public test::TakenOverGame {
protected:
    int16_t festival = 0;
    double firstDay = 0;

    FestivalSeason() : TakenOverGame(7) {
        takeOver();
        // A festival rates singing and dancing by the style's weights; the tiny world's have none.
        for (int32_t n = 1; n < g.style.recordCount(); ++n) {
            g.style.read(n);
            g.style->singingWeight = 60;
            g.style->dancingWeight = 40;
            g.style.write();
        }
        g.band.read(band);
        g.band->reputation[0] = 100;
        g.band.write();

        g.venue.rec = VenueRecord{.name = "Long Meadow", .capacity = 60000, .city = 1};
        const int16_t site = static_cast<int16_t>(g.venue.append());
        // Ten weeks ahead, on the week and weekday that date has.
        firstDay = g.gameDate + 70;
        const int year = yearOf(firstDay);
        const int week = static_cast<int>(firstDay - serialFromCivil(year, 1, 1)) / 7 + 1;
        g.festival.rec = FestivalRecord{
            .prestige = 60,
            .billSize = 6,
            .days = 2,
            .weekday = {static_cast<uint8_t>(weekdayOf(firstDay)), static_cast<uint8_t>(weekdayOf(firstDay + 1))},
            .week = {static_cast<uint8_t>(week), static_cast<uint8_t>(week)},
            .fixedVenue = {site, site},
            .areaCode = "E",
            .festivalName = "Long Meadow Weekend"};
        festival = static_cast<int16_t>(g.festival.append());
        scheduleFestivals(g, year);
    }
    int32_t findNews(const std::string& title) {
        for (int32_t n = g.news.recordCount() - 1; n > 0; --n) {
            g.news.read(n);
            if (trim(g.news->title.value) == title) return n;
        }
        return 0;
    }
};

}  // namespace

TEST_F(FestivalSeason, TheInvitedActPlaysBothDaysAndTheFestivalIsReviewed) {
    ASSERT_GT(band, 0);
    g.band.read(band);
    const std::string name = trim(g.band->name.value);
    const int32_t gigsBefore = g.band->gigCount;
    int32_t invitation = 0;
    while (invitation == 0 && g.gameDate < firstDay - 59) {
        ASSERT_NO_FATAL_FAILURE(playDay());
        invitation = findNews(name + " invited to play at Long Meadow Weekend");
    }
    ASSERT_GT(invitation, 0);
    g.news.read(invitation);
    openNewsItem(g);
    pressNewsCmd1(g);
    ASSERT_NO_FATAL_FAILURE(playDay());  // tomorrow the answer is carried out

    int32_t firstGig = 0, secondGig = 0;
    for (int32_t n = 1; n < g.tour.recordCount(); ++n) {
        g.tour.read(n);
        if (g.tour->festival != festival) continue;
        firstGig = g.tour->gigs[0];
        secondGig = g.tour->gigs[1];
    }
    for (int32_t gig : {firstGig, secondGig}) EXPECT_EQ(billOf(g, gig).front(), band);

    while (g.gameDate <= firstDay + 1) ASSERT_NO_FATAL_FAILURE(playDay());
    for (int32_t gig : {firstGig, secondGig}) {
        g.gig.read(gig);
        EXPECT_GT(g.gig->attendance, 0);
        EXPECT_GT(g.gig->overallQuality, 0);
    }
    g.band.read(band);
    EXPECT_EQ(g.band->gigCount, gigsBefore + 2);
    int reviews = 0;
    for (const char* title :
         {"Long Meadow Weekend fails to live up to expectations.",
          "Solid performance from Long Meadow Weekend organisers.",
          "Long Meadow Weekend proves one of the highlights of the year.",
          "Long Meadow Weekend, 'Great Success' say organisers.", "Long Meadow Weekend, festival of the year so far?"})
        if (findNews(title) > 0) ++reviews;
    EXPECT_EQ(reviews, 1);
}

// A taken-over label books its act into an outlet that wants it, plays every
// day to the issue and past it with the invariants checked daily, and reads
// the review.
#include <gtest/gtest.h>

#include "live/media_promotion.h"
#include "support/taken_over_game.h"

using namespace trovane;

namespace {

class MediaDay : public ::testing::Test, public test::TakenOverGame {
protected:
    MediaDay() : TakenOverGame(41) { takeOver(); }
};

}  // namespace

TEST_F(MediaDay, ABookedAppearanceIsPlayedAndReviewed) {
    ASSERT_GT(band, 0);
    // An outlet of any kind that takes the act; the act stands high enough everywhere.
    g.band.read(band);
    g.band->reputation = {90, 90, 90, 90, 90};
    g.band->controversy = 50;
    g.band.write();
    g.media.rec = MediaRecord{.mediaName = "Morning Beat",
                              .reach = 2,
                              .frequency = 1,
                              .airDay = {0, 0, 0, -1, 0, 0, 0},  // Thursdays
                              .smallMinimum = 10,
                              .smallValue = 80,
                              .maxControversy = 100};
    const int16_t outlet = static_cast<int16_t>(g.media.append());

    g.band.read(band);
    g.media.read(outlet);
    std::vector<double> days = freeIssueDays(g, g.media.rec, g.gameDate, 28);
    ASSERT_FALSE(days.empty());
    const double on = days.front();
    EXPECT_EQ(weekdayOf(on), 5);  // a Thursday
    g.band.read(band);
    ASSERT_EQ(checkAppearance(g, outlet, smallArticle, on), "");
    g.band.read(band);
    const int32_t entry = bookAppearance(g, outlet, on, smallArticle);
    g.band.read(band);
    EXPECT_NE(checkAppearance(g, outlet, smallArticle, on), "");  // the day is taken now

    const int32_t firstItem = g.news.recordCount();
    while (g.gameDate <= on) ASSERT_NO_FATAL_FAILURE(playDay());

    g.schedule.read(entry);
    EXPECT_EQ(g.schedule->mediaFlag, 1);
    g.band.read(band);
    const std::string title = trim(g.band->name.value) + " in Morning Beat";
    bool reviewed = false;
    for (int32_t n = firstItem; n < g.news.recordCount() && !reviewed; ++n) {
        g.news.read(n);
        reviewed =
            trim(g.news->title.value) == title &&
            trim(g.news->text.value).starts_with(trim(g.band->name.value) + " featured in a small article in the");
    }
    EXPECT_TRUE(reviewed) << title;
}

// The festival's review: its verdict on the mean of the days, the queues,
// and the headliners named by how they played.
#include <gtest/gtest.h>

#include "support/amend.h"
#include "support/festival_world.h"

using namespace trovane;

namespace {

class FestivalReview : public test::FestivalWorld, public ::testing::Test {
protected:
    int16_t tour = 0;
    int16_t alpha = 0, beta = 0;

    void SetUp() override {
        alpha = addAct("Alpha", 90);
        beta = addAct("Beta", 80);
        tour = scheduled();
        for (int32_t gig : gigsOf(tour)) {
            amend(g.gig, gig, [&] {
                g.gig->bill[0] = band;
                g.gig->bill[1] = alpha;
                g.gig->bill[2] = beta;
            });
        }
    }
    // Both days played with these overall figures, each act's quality the same both days.
    void played(uint8_t first, uint8_t second, std::array<uint8_t, 3> quality, int32_t crowd = 1000) {
        auto gigs = gigsOf(tour);
        for (std::size_t i = 0; i < 2; ++i) {
            g.gig.read(gigs[i]);
            g.gig->overallQuality = i == 0 ? first : second;
            g.gig->attendance = crowd;
            for (std::size_t p = 0; p < 3; ++p) g.gig->quality[p] = quality[p];
            g.gig.write();
        }
    }
    std::string review() {
        loadDay(tour, 1);
        g.band.read(band);
        writeFestivalReview(g);
        return newsTitle(lastNews());
    }
};

TEST_F(FestivalReview, VerdictsMeetAt61And81And91TheMeanRoundsHalfToEvenAndEachHasItsTitles) {
    const std::pair<int, int> cases[] = {{0, 0}, {60, 0}, {61, 1}, {80, 1}, {81, 2}, {90, 2}, {91, 3}, {100, 3}};
    for (auto [mean, verdict] : cases) EXPECT_EQ(festivalVerdict(mean), verdict) << mean;
    played(60, 61, {70, 70, 70});  // 60.5 -> 60
    EXPECT_EQ(review(), "Halcote Summer Gathering fails to live up to expectations.");
    played(60, 62, {70, 70, 70});  // 61
    EXPECT_EQ(review(), "Solid performance from Halcote Summer Gathering organisers.");
    EXPECT_NE(newsText(lastNews()).find("it was nonetheless aa well organised and presented festival"),
              std::string::npos);
    played(81, 81, {70, 70, 70});
    EXPECT_EQ(review(), "Halcote Summer Gathering proves one of the highlights of the year.");
    played(91, 91, {70, 70, 70});
    std::string title = review();
    EXPECT_TRUE(title == "Halcote Summer Gathering, 'Great Success' say organisers." ||
                title == "Halcote Summer Gathering, festival of the year so far?")
        << title;
    EXPECT_EQ(newsText(lastNews()).rfind("One of the success stories of the year, in fact of any year.", 0), 0u);
}

TEST_F(FestivalReview, AMixedBagOfHeadlinersNamesTheWorstAndTheBestAndAFullSiteTheQueues) {
    // Mean of 90, 70 and 50 is 70: the mixed band.
    played(70, 70, {90, 70, 50});
    review();
    EXPECT_NE(newsText(lastNews())
                  .find("The headliners were a bit of a mixed bag really, with a poor performance "
                        "from Beta beng made up for by a strong performance from The Testers. "),
              std::string::npos);
    played(70, 70, {70, 70, 70}, 49000);  // 50000 less a fiftieth is 49000
    review();
    EXPECT_NE(newsText(lastNews()).find("Doors 'opened' early"), std::string::npos);
    played(70, 70, {70, 70, 70}, 48999);
    review();
    EXPECT_EQ(newsText(lastNews()).find("Doors 'opened' early"), std::string::npos);
}

}  // namespace

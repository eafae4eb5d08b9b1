// Appearances in the media: what they are worth, who is offered one, the days
// outlets come out, the rivals' bookings and the night itself.
#include <gtest/gtest.h>

#include "floor/news_post.h"
#include "live/media_promotion.h"
#include "rivals/rival_promotion.h"
#include "schedule/schedule.h"
#include "support/amend.h"
#include "support/gig_world.h"
#include "world/strings.h"

using namespace trovane;

namespace {

TEST(Appearance, HandWorkedEffectsARepOfZeroCountingAsOneHeldAtTwentyAndTheConfirmingWords) {
    struct Case {
        int skill, value, rep;
        float effect;
    };
    const Case cases[] = {
        {1, 75, 0, 0.1f},      // q = (1 / 1)^3 = 1: (-(25) x 65 + 75 x 35) / 10000 = 0.1
        {2, 75, 0, 0.8f},      // q = 8
        {100, 95, 1, 20.0f},   // 1,000,000 x 0.30, held
        {100, 30, 1, -20.0f},  // 1,000,000 x -0.35, held
        {60, 85, 40, 0.675f},  // q = 3.375: (-15 x 3.375 x 65 + 85 x 3.375 x 35) / 10000
        {80, 65, 40, 0.0f},    // q = 8: (-35 x 8 x 65 + 65 x 8 x 35) / 10000 = 0
    };
    for (const Case& c : cases)
        EXPECT_FLOAT_EQ(appearanceEffect(c.skill, c.value, c.rep), c.effect) << c.skill << "/" << c.value;
    double on = serialFromCivil(2005, 3, 9);
    EXPECT_EQ(mediaConfirmText("The Testers", "Daily Beat", largeArticle, on),
              "You have selected The Testers to appear in a large article in Daily Beat on 9/3/2005 confirm?");
    EXPECT_EQ(mediaConfirmText("The Testers", "Sofa", bothKind, on),
              "You have selected The Testers to do both an interview and a live performance on Sofa on 9/3/2005 "
              "confirm?");
    EXPECT_EQ(mediaConfirmText("Ann", "Sofa", interviewKind, on),
              "You have selected Ann to be the subject of an interview on Sofa on 9/3/2005 confirm?");
}

class Media : public test::GigWorld, public ::testing::Test {
protected:
    Media() {
        // Controversy 5 and full energy make an interview's skill exactly 5:
        // a tenth of 5 is below 1, so the spread takes nothing either way.
        setMembers(100);
        amend(g.band, band, [&] {
            g.band->controversy = 5;
            g.band->reputation = {1, 1, 1, 1, 1};
        });
    }
    // A daily paper in England taking small articles of the value.
    int16_t paper(const char* name, uint8_t value, uint8_t minimum = 1, uint8_t minC = 0, uint8_t maxC = 100) {
        g.media.rec = MediaRecord{.mediaName = name,
                                  .reach = 1,
                                  .smallMinimum = minimum,
                                  .smallValue = value,
                                  .minControversy = minC,
                                  .maxControversy = maxC,
                                  .country = static_cast<uint8_t>(england)};
        return static_cast<int16_t>(g.media.append());
    }
    std::vector<int16_t> offered(int territory) {
        g.band.read(band);
        std::vector<int16_t> out;
        for (const MediaOffer& o : findMediaOffers(g, territory)) out.push_back(o.media);
        return out;
    }
    // The type 17 entries filed on the date: (outlet, band).
    std::vector<int16_t> bookedOn(double date) {
        std::vector<int16_t> out;
        for (int32_t id : entriesOfDay(g, date)) {
            g.schedule.read(id);
            if (g.schedule->type == 17) out.push_back(g.schedule->media);
        }
        return out;
    }
};

TEST_F(Media, EachFrequencyComesOutOnItsDaysAndAnAnnualIssueIsBookedOnlyWithinSixWeeks) {
    MediaRecord m{};
    auto day = [](unsigned month, unsigned d) { return serialFromCivil(2005, month, d); };
    m.frequency = 0;
    EXPECT_TRUE(isIssueDay(m, day(3, 1)));
    m.frequency = 1;
    m.airDay = {0, 0, -1, 0, 0, 0, 0};  // Wednesdays
    EXPECT_TRUE(isIssueDay(m, day(3, 2)));
    EXPECT_FALSE(isIssueDay(m, day(3, 1)));  // a Tuesday
    EXPECT_TRUE(isIssueDay(m, day(3, 9)));
    m.frequency = 2;
    m.issueMonth = 5;  // the second Thursday: 3 March is the first
    m.issueWeek = 2;
    EXPECT_TRUE(isIssueDay(m, day(3, 10)));
    EXPECT_FALSE(isIssueDay(m, day(3, 3)));
    EXPECT_FALSE(isIssueDay(m, day(3, 17)));
    m.frequency = 3;
    m.issueDay = 31;
    m.issueMonth = 12;
    EXPECT_TRUE(isIssueDay(m, day(12, 31)));
    EXPECT_FALSE(isIssueDay(m, day(12, 30)));
    g.band.read(band);  // the 31 December issue, open to booking only six weeks ahead
    const double eve = day(12, 31);
    EXPECT_EQ(freeIssueDays(g, m, eve - 42, 400), std::vector<double>{eve});
    EXPECT_TRUE(freeIssueDays(g, m, eve - 43, 400).empty());
}

TEST_F(Media, OffersNeedANonZeroMinimumTheBandReaches) {
    // Skill 5 against reputation 1: q = 125, and a value of 69 is 125 x 4 / 100 = 5, worth 50.
    int16_t open = paper("Open", 69);
    paper("Never", 69, 0);
    paper("Too Grand", 69, 2);
    paper("Flat", 65);                     // worth 0: not an offer
    int16_t better = paper("Better", 73);  // 125 x 8 / 100 = 10, worth 100
    EXPECT_EQ(offered(0), (std::vector<int16_t>{better, open}));
    EXPECT_TRUE(offered(2).empty());  // England is the UK market
    g.media.read(open);
    g.band.read(band);
    EXPECT_EQ(bestMediaOffer(g).value, 50);
    // A station that takes no interviews offers no interview-and-live slot,
    // however much it is worth; here its live slot is worth nothing.
    g.media.rec = MediaRecord{.mediaName = "Live Only",
                              .mediaType = 2,
                              .reach = 1,
                              .liveMinimum = 1,
                              .liveValue = 60,
                              .bothValue = 100,
                              .maxControversy = 100,
                              .country = static_cast<uint8_t>(england)};
    g.media.append();
    g.band.read(band);
    EXPECT_EQ(bestMediaOffer(g).value, 0);
}

TEST_F(Media, ControversyBoundsAreInclusiveAndAStyleTakesItsDescendants) {
    int16_t exact = paper("Exact", 69, 1, 5, 5);
    int16_t below = paper("Below", 69, 1, 0, 4);
    EXPECT_EQ(offered(0), std::vector<int16_t>{exact});

    g.style.rec = StyleRecord{};
    int16_t parent = static_cast<int16_t>(g.style.append());
    amend(g.style, style, [&] { g.style->parentStyle = static_cast<uint8_t>(parent); });
    // the band's style descends from it
    amend(g.media, exact, [&] { g.media->mediaStyle = static_cast<uint8_t>(parent); });
    g.media.read(below);
    g.media->maxControversy = 100;
    g.style.rec = StyleRecord{};
    g.media->mediaStyle = static_cast<uint8_t>(g.style.append());  // unrelated
    g.media.write(below);
    EXPECT_EQ(offered(0), std::vector<int16_t>{exact});
}

TEST_F(Media, RivalsBookBestFirstUntilPromotionPasses150) {
    for (const char* name : {"A", "B", "C", "D"}) paper(name, 69);  // 50 each
    double release = g.gameDate + 30;
    auto promote = [&](uint8_t promotion) {
        int16_t disc = addDisc("Out Soon", 1000, band);
        amend(g.disc, disc, [&] {
            g.disc->releaseDate = {release, 0, 0, 0, 0};
            g.disc->promotion[0] = promotion;
        });
        g.band.read(band);
        bookRivalPromotion(g, 0);
        int n = 0;
        for (double d = release - 42; d < release; ++d) n += static_cast<int>(bookedOn(d).size());
        return n;
    };
    EXPECT_EQ(promote(51), 2);  // 101, 151
    // Back from the day before release, a day each while the band is busy.
    EXPECT_EQ(bookedOn(release - 1).size(), 1u);
    EXPECT_EQ(bookedOn(release - 2).size(), 1u);
    release -= 10;
    EXPECT_EQ(promote(50), 3);  // 100, 150, 200
    release -= 10;
    EXPECT_EQ(promote(150), 1);
    release -= 5;
    EXPECT_EQ(promote(151), 0);
}

TEST_F(Media, AnAppearanceMovesTheDiscAndIsReviewed) {
    int16_t daily = paper("Daily Beat", 73);  // effect 10
    int16_t disc = addDisc("Out Now", 1000, band);
    amend(g.disc, disc, [&] {
        g.disc->releaseDate = {g.gameDate - 7, 0, 0, 0, 0};
        g.disc->promotion = {95, 20, 20, 20, 20};
    });
    g.band.read(band);
    double on = serialFromCivil(2004, 1, 20);
    ASSERT_EQ(checkAppearance(g, daily, smallArticle, on), "");
    EXPECT_EQ(checkAppearance(g, daily, largeArticle, on), "Daily Beat is not offering The Testers a Large Article.");
    EXPECT_EQ(checkAppearance(g, daily, liveKind, on), "Daily Beat is not offering The Testers a Live Performance.");
    EXPECT_EQ(checkAppearance(g, daily, interviewKind, on), "Daily Beat is not offering The Testers an Interview.");
    g.band.read(band);
    int32_t entry = bookAppearance(g, daily, on, smallArticle);
    g.gameDate = on;
    g.schedule.read(entry);
    int32_t item = g.news.recordCount();
    performAppearance(g);
    EXPECT_EQ((g.disc.read(disc), g.disc->promotion), (std::array<uint8_t, 5>{100, 20, 20, 20, 20}));  // 95 + 10, held
    EXPECT_EQ((g.schedule.read(entry), g.schedule->value), 1000);  // the effect in hundredths
    EXPECT_EQ((g.news.read(item), trim(g.news->title.value)), "The Testers in Daily Beat");
    EXPECT_EQ(trim(g.news->text.value),
              "The Testers featured in a small article in the 20 January 2004 edition of Daily Beat newspaper. "
              "Readers found it thoroughly lacking in substance, and it did little for their standing.");
}

// A live slot plays the act's latest disc out by the day (an album over a
// single out the same day), else its set; the verdict turns above 60, 80 and 94.
TEST_F(Media, ALiveSlotIsReviewedByWhatTheActHasOut) {
    g.media.rec = MediaRecord{.mediaName = "Wave", .mediaType = 2};
    const double on = serialFromCivil(2004, 1, 20);
    auto live = [&](int kind, int rating) {
        g.band.read(band);
        return appearanceReview(g, kind, rating, on).second;
    };
    const std::string opening =
        "The Testers appeared on the 20 January 2004 broadcast of Wave radio show. The Testers performed ";
    const double today = g.gameDate;
    for (double d : {kNoDate, today + 1})
        amend(g.disc, addDisc("Not Out", 1000, band), [&] { g.disc->releaseDate = {d, d, d, d, d}; });
    EXPECT_EQ(live(liveKind, 60), opening +
                                      "a few songs from their live set. It was a performance best forgotten, "
                                      "and few who heard it will be rushing out to buy the record.");
    addDisc("Single", 1000, band, 1);
    EXPECT_EQ(live(liveKind, 80),
              opening +
                  "the The Testers's new single. It was a solid if unspectacular performance that will have "
                  "done no harm.");
    amend(g.disc, addDisc("Album", 1000, band), [&] { g.disc->releaseDate = {today - 7, 0, 0, 0, 0}; });
    EXPECT_EQ(live(liveKind, 81), opening +
                                      "a track from their latest album. It was a fine performance that will "
                                      "have won them a good few new fans.");
    g.media->mediaType = 3;
    EXPECT_EQ(live(bothKind, 95),
              "The Testers appeared on the 20 January 2004 broadcast of Wave TV show. The TV show featured an "
              "interview with the The Testers which in particular was thoroughly entertaining throughout the course of "
              "the interview. The Testers performed a track from their latest album. It was a stunning performance, "
              "and everyone who watched it will be talking about it for weeks.");
}

}  // namespace

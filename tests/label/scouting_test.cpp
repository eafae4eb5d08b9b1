// How labels notice acts: the shortlist, the monthly findings and the report on one band.
#include <gtest/gtest.h>

#include "label/scouting.h"
#include "label/scouting_text.h"
#include "support/amend.h"
#include "support/game_test.h"
#include "support/signing_world.h"
#include "world/strings.h"

using namespace trovane;
using namespace trovane::test;

namespace {

class Scouting : public GameTest {
protected:
    int16_t rock = addStyle(g, 10);

    // Unsigned acts whose every figure reads 100: an estimate well above 75.
    void addStars(int count) {
        for (int i = 0; i < count; ++i) {
            int16_t b = addAct(g, {.style = static_cast<uint8_t>(rock), .name = "Star " + std::to_string(i + 1)});
            amend(g.band, b, [&] { g.band->ability = 100; });
            amend(g.artist, g.band->members[0], [&] {
                g.artist->potential = 100;
                g.artist->imageRating = 100;
            });
        }
    }
    void load(int16_t band, int16_t label) {
        g.band.read(band);
        g.label.read(label);
    }
    int listedBy(int16_t label) {
        int n = 0;
        for (int32_t r = 1; r < g.shortlist.recordCount(); ++r) {
            g.shortlist.read(r);
            n += g.shortlist->label == label;
        }
        return n;
    }
};

TEST_F(Scouting, APairIsListedOnceAndFreedOnRemoval) {
    int16_t label = addLabel(g, {1, 1, 1, 1, 1});
    load(addAct(g, {}), label);
    EXPECT_FALSE(isShortlisted(g));
    shortlistAdd(g);
    shortlistAdd(g);
    EXPECT_TRUE(isShortlisted(g));
    EXPECT_EQ(g.shortlist.recordCount(), 2);
    EXPECT_EQ(fillInterestedList(g), std::vector<std::string>{"Rival Records"});
    shortlistRemove(g);
    EXPECT_FALSE(isShortlisted(g));
    EXPECT_EQ(fillInterestedList(g), std::vector<std::string>{"None"});
}

TEST_F(Scouting, AStyleTakesItsDescendantsButNotItsParent) {
    int16_t indie = addStyle(g, 10, 100, static_cast<uint8_t>(rock), "Indie");
    int16_t britpop = addStyle(g, 10, 100, static_cast<uint8_t>(indie), "Britpop");
    EXPECT_TRUE(stylesAssociated(g, rock, britpop));
    EXPECT_EQ(g.style->id, indie) << "the last style whose parent was read";
    EXPECT_TRUE(stylesAssociated(g, indie, indie));
    EXPECT_FALSE(stylesAssociated(g, britpop, rock));
    EXPECT_FALSE(stylesAssociated(g, britpop, indie));
}

TEST_F(Scouting, ARivalLooksFromHalfItsTargetToJustBelowItAndWithinItsControversyBounds) {
    int16_t label = addLabel(g, {1, 1, 1, 1, 1});
    // target, reputation, listed; 41 / 2 = 20.5: a reputation of 20 is below an odd target's half.
    const std::tuple<uint8_t, uint8_t, bool> windows[] = {{40, 40, false}, {40, 39, true},  {40, 20, true},
                                                          {40, 19, false}, {41, 20, false}, {41, 21, true}};
    for (auto [target, reputation, listed] : windows) {
        load(addAct(g, {.reputation = {reputation, 0, 0, 0, 0}}), label);
        g.label->reputationTarget = {target, 0, 0, 0, 0};
        EXPECT_EQ(considerForShortlist(g, 0), listed) << int{target} << " " << int{reputation};
    }
    // Forced, the window is skipped and the band listed.
    load(addAct(g, {.reputation = {90, 0, 0, 0, 0}}), label);
    EXPECT_TRUE(considerForShortlist(g, -1));
    EXPECT_TRUE(isShortlisted(g));
    // A signed band, or one outside the controversy bounds, is not taken.
    load(addAct(g, {.label = label}), label);
    EXPECT_FALSE(considerForShortlist(g, -1));
    g.band->label = 0;
    g.band->controversy = 50;
    g.label->maxControversy = 49;
    EXPECT_FALSE(considerForShortlist(g, -1));
    g.player.playerLabel = label;
    EXPECT_TRUE(considerForShortlist(g, -1)) << "the player's label has no bounds";
}

TEST_F(Scouting, TheMonthlyFindingsSampleAQuarterOfTheRating) {
    g.player.playerLabel = addLabel(g, {1, 1, 1, 1, 1}, "Home Records", 98);
    int16_t full = addLabel(g, {1, 1, 1, 1, 1}, "Full", 100);
    int16_t none = addLabel(g, {1, 1, 1, 1, 1}, "None", 0);
    addStars(30);
    deliverScoutingReports(g);
    EXPECT_EQ(listedBy(g.player.playerLabel), 24) << "round(98 / 4) = round(24.5) = 24";
    EXPECT_EQ(listedBy(full), 25);
    EXPECT_EQ(listedBy(none), 0);
    ASSERT_EQ(g.news.recordCount(), 2) << "the player's report alone";
    g.news.read(1);
    EXPECT_EQ(trim(g.news->title.value), "A&R Department present their monthly findings");
    std::string text = g.news->text.value;
    EXPECT_EQ(text.find("Your Artist and Repertoire department have presented you with their monthly finding this "
                        "morning, they have added the following band(s) to your shortlist as they feel they are "
                        "worth investigating further with a view to offering a contract :-\r\n\r\n- Star "),
              0u);
    EXPECT_NE(text.find(" (Rock)\r\n"), std::string::npos);
}

TEST_F(Scouting, OnlyAnEstimateAboveSeventyFiveIsListed) {
    int16_t label = addLabel(g, {1, 1, 1, 1, 1}, "Full", 100);  // a full department reads true
    addStars(2);
    for (int16_t b : {1, 2}) {
        // P = ability when ability = potential
        amend(g.band, b, [&] { g.band->ability = static_cast<uint8_t>(74 + b); });
        amend(g.artist, g.band->members[0], [&] { g.artist->potential = g.band->ability; });
    }
    deliverScoutingReports(g);
    ASSERT_EQ(listedBy(label), 1);
    g.shortlist.read(1);
    EXPECT_EQ(g.shortlist->band, 2);
}

TEST_F(Scouting, NoMoreSamplesThanUnsignedBands) {
    g.player.playerLabel = addLabel(g, {1, 1, 1, 1, 1}, "Home Records", 100);
    addStars(3);
    addAct(g, {.label = g.player.playerLabel});
    deliverScoutingReports(g);
    EXPECT_EQ(listedBy(g.player.playerLabel), 3);
}

TEST_F(Scouting, TheReportReadsThePresentAndTheFutureAndMarketingsViewWhenTheStyleLeansOnImage) {
    int16_t label = addLabel(g, {1, 1, 1, 1, 1}, "Home Records", 100);
    addStars(1);
    g.schedule.rec = ScheduleRecord{.type = 6, .band = 1, .label = label};
    bandReport(g);
    g.news.read(1);
    EXPECT_EQ(trim(g.news->title.value), "A&R Department present Star 1 scouting report");
    // P = F = 100 for a solo act.
    EXPECT_EQ(trim(g.news->text.value),
              "Your Artist and Repertoire Department have been monitoring Star 1 for the last week and have compiled "
              "a comprehensive report on him. They feel that he is currently amongst the most talented artists in the "
              "world.  They add in their report that they see no reason for this to change in the near future.");

    amend(g.style, rock, [&] { g.style->abilityWeight = 69; });
    g.schedule.rec = ScheduleRecord{.type = 6, .band = 1, .label = label};
    bandReport(g);
    g.news.read(2);
    const std::string text = g.news->text.value;
    EXPECT_NE(text.find("near future.\r\n\r\nGiven the style of music he produces the department felt it was also "
                        "important to ensure he has the correct image."),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("Marketing report that they \r\n\r\n- Member 1: they are very pleased with Member 1's image"),
              std::string::npos);
}

TEST_F(Scouting, AnEstimateWeighsPotentialByCareerAndTalentByCommerciality) {
    int16_t label = addLabel(g, {1, 1, 1, 1, 1}, "Home Records", 100);
    int16_t pop = addStyle(g, 20, 60);
    // careerAge round(5 x 100 / 10) = 50: weight 50: now round((50 x 80 + 50 x 40) / 100) = 60,
    // x 60 / 100 = 36; P = 36 + round(40 x 70 / 100) = 64; F = 80.
    int16_t b = addAct(g, {.style = static_cast<uint8_t>(pop), .age = 5});
    amend(g.band, b, [&] { g.band->ability = 40; });
    amend(g.artist, g.band->members[0], [&] {
        g.artist->potential = 80;
        g.artist->imageRating = 70;
    });
    load(b, label);
    BandEstimate e = estimateBand(g);
    EXPECT_EQ(std::tuple(e.present, e.potential, e.talent), std::tuple(64, 80, 70));
}

}  // namespace

// The report's verdict turns at each edge of the present and future figures.
TEST_F(Scouting, TheVerdictTurnsAtEachEdgeOfThePresentAndTheFuture) {
    addStars(1);
    auto text = [&](int present, int future) {
        g.band.read(1);
        return scoutingReportText(g, present, future);
    };
    const std::pair<int, std::vector<int>> tiers[] = {
        {40, {40, 70, 85}}, {70, {40, 70}}, {90, {40, 70, 90}}, {100, {70}}};
    for (const auto& [present, edges] : tiers) {
        for (int edge : edges) {
            EXPECT_EQ(text(present, edge), text(present, edge - 5)) << present << " " << edge;
            EXPECT_NE(text(present, edge), text(present, edge + 1)) << present << " " << edge;
        }
        if (present == 100) continue;
        EXPECT_EQ(text(present, 50), text(present - 5, 50)) << present;
        EXPECT_NE(text(present, 50), text(present + 1, 50)) << present;
    }
}

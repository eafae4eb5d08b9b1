// The passes of the day that change an act on their own.
#include <gtest/gtest.h>

#include "floor/news_post.h"
#include "support/amend.h"
#include "support/game_test.h"
#include "support/signing_world.h"
#include "talent/band_condition.h"
#include "talent/lifecycle.h"
#include "world/strings.h"

using namespace trovane;
using namespace trovane::test;

namespace {

struct Condition : test::GameTest {
    ArtistRecord member(int16_t band, int i = 0) {
        g.band.read(band);
        g.artist.read(g.band->members[static_cast<std::size_t>(i)]);
        return g.artist.rec;
    }
    void setMember(int16_t band, int i, int potential, int ability, int progress) {
        g.band.read(band);
        amend(g.artist, g.band->members[static_cast<std::size_t>(i)], [&] {
            g.artist->potential = static_cast<uint8_t>(potential);
            g.artist->ability = static_cast<uint8_t>(ability);
            g.artist->abilityProgress = static_cast<int16_t>(progress);
        });
    }
    std::string newsText(int n) {
        g.news.read(n);
        return g.news->text.value;
    }
};

TEST_F(Condition, PotentialDeclinesOnlyPastHalfTheCareerAndAbilityMovesByWholePoints) {
    // lifeSpan 36, age 18: 50 percent, no decline. lifeSpan 35: round(51.4) = 51, decline
    // round(round(15 / 2) / 12) = round(8 / 12) = 1.
    const auto style = static_cast<uint8_t>(addStyle(g, 36));
    int16_t half = addAct(g, {.style = style, .age = 18});
    int16_t past = addAct(g, {.style = static_cast<uint8_t>(addStyle(g, 35)), .age = 18});
    int16_t pair = addAct(g, {.ranks = {1, 2}, .style = style});
    int16_t falling = addAct(g, {.style = style});
    int16_t top = addAct(g, {.style = style});
    int16_t gone = addAct(g, {.style = style});
    int16_t exact = addAct(g, {.style = style});
    setMember(half, 0, 80, 60, 0);  // (80 - 60) / 2 x 10 / 36 / 12 x 100 = 23.15: no whole point yet
    setMember(past, 0, 80, 60, 0);
    setMember(pair, 0, 80, 60, 90);    // v = 23.15 + 90 = 113.15: one point, 13 left
    setMember(exact, 0, 60, 60, 100);  // v = 100: a point, nothing left
    setMember(pair, 1, 60, 60, 0);     // v = 0
    // (20 - 60) / 2 x 10 / 36 / 12 x 100 = -46.30, less 60: -106.30: k = -1, v = -6.30, toward zero.
    setMember(falling, 0, 20, 60, -60);
    setMember(top, 0, 100, 100, 150);
    setMember(gone, 0, 80, 60, 90);
    amend(g.band, gone, [&] { g.band->retired = kTrue; });
    bandPotentialCalculations(g);
    EXPECT_EQ(std::tuple(member(half).potential, member(past).potential), std::tuple(80, 79));
    const std::tuple<int16_t, int, int> moved[] = {{half, 60, 23}, {pair, 61, 13}, {falling, 59, -6},
                                                   {top, 100, 50}, {gone, 60, 90}, {exact, 61, 0}};
    for (auto [band, ability, progress] : moved) {
        EXPECT_EQ(std::tuple(member(band).ability, member(band).abilityProgress), std::tuple(ability, progress))
            << "band " << band;
    }
    EXPECT_EQ((g.band.read(pair), g.band->ability), 60) << "round(60.5) to even";
}

TEST_F(Condition, DropBandHypeTakesTwoFromEveryMarketAndAPointBelowMinusAHundred) {
    int16_t band = addAct(g, {.reputation = {20, 20, 20, 20, 20}});
    int16_t slumped = addAct(g, {.reputation = {20, 30, 2, 40, 50}});
    amend(g.band, slumped, [&] { g.band->hype = {-99, -98, -99, 0, 0}; });
    dropBandHype(g);
    g.band.read(band);
    EXPECT_EQ(std::tuple(g.band->hype, g.band->initialAdvance),
              std::tuple(std::array<int16_t, 5>{-22, -22, -22, -22, -22}, Money{0}))
        << "the five meters and nothing past them";
    g.band.read(slumped);
    // -101 costs a point and the meter starts again at minus the reputation;
    // -100 does not; at the floor of 2 the point is not lost.
    EXPECT_EQ(g.band->reputation, (std::array<uint8_t, 5>{19, 30, 2, 40, 50}));
    EXPECT_EQ(g.band->hype, (std::array<int16_t, 5>{-19, -100, -2, -2, -2}));
    EXPECT_EQ(g.band.rec.id, slumped) << "the buffer is left on the last band";
}

TEST_F(Condition, ARestedPlayerBandSaysThanksOnce) {
    g.player.playerLabel = addLabel(g, {1, 1, 1, 1, 1}, "Home Records");
    int16_t ours = addAct(g, {.ranks = {1, 1}, .label = g.player.playerLabel, .name = "The Rested"});
    int16_t tired = addAct(g, {.ranks = {1, 1}, .label = g.player.playerLabel});
    int16_t rival = addAct(g, {.ranks = {1}, .label = addLabel(g, {1, 1, 1, 1, 1})});
    auto complain = [&](int16_t b, int energy0, int energy1) {
        amend(g.band, b, [&] { g.band->complaints = {0, 1, 0}; });
        for (int i = 0; i < g.band->memberCount; ++i) {
            g.band.read(b);
            amend(g.artist, g.band->members[static_cast<std::size_t>(i)],
                  [&] { g.artist->energy = static_cast<int16_t>(i == 0 ? energy0 : energy1); });
        }
    };
    complain(ours, 50, 49);   // round(49.5) = 50: above 49
    complain(tired, 49, 49);  // 49: not above 49
    complain(rival, 90, 90);
    checkBandEnergy(g);
    // A rival's band is rested too, without news.
    for (auto [b, complaint] : {std::pair{ours, 0}, {tired, 1}, {rival, 0}}) {
        EXPECT_EQ((g.band.read(b), g.band->complaints[1]), complaint) << b;
    }
    ASSERT_EQ(g.news.recordCount(), 2);
    g.news.read(1);
    EXPECT_EQ(trim(g.news->title.value), "The Rested say thanks to Home Records");
    EXPECT_EQ(trim(g.news->text.value),
              "The Rested rang your office today to thank you for the recent break. Although they are still feeling "
              "a little jaded the break that they have just had has made a huge difference.");
}

TEST_F(Condition, AnIdleBandIsReportedAfterSixtyDays) {
    g.player.playerLabel = addLabel(g, {1, 1, 1, 1, 1}, "Home Records");
    postNews(g, {.date = g.gameDate, .title = "Welcome"});
    addAct(g, {.label = g.player.playerLabel, .name = "The Idle"});
    g.gameDate += 59;  // 60 days counted, today included
    checkPlayerControlledBands(g);
    EXPECT_EQ(g.news.recordCount(), 2) << "no line, no news";
    g.gameDate += 1;
    checkPlayerControlledBands(g);
    ASSERT_EQ(g.news.recordCount(), 3);
    g.news.read(2);
    EXPECT_EQ(trim(g.news->title.value), "A&R Department present their band activity report");
    EXPECT_EQ(trim(g.news->text.value),
              "a spokesperson for your Artist and Rerpertoire team informed you that the following band(s) are "
              "concerned that they have been inactive for some time :-\r\n\r\n- The Idle (Not currently working on "
              "an album)\r\n\r\nThe team suggest that in order to prevent the reputation of the above band(s) from "
              "slipping you give them activities that will put them in the public eye. This could include "
              "promotion, touring etc.");
}

TEST_F(Condition, ABusyDayEndsTheIdleCountAndTheHeadIsNamed) {
    g.player.playerLabel = addLabel(g, {1, 1, 1, 1, 1}, "Home Records");
    g.staff.rec = StaffRecord{.forename = "Ada", .surname = "Bell"};
    amend(g.label, g.player.playerLabel, [&] { g.label->department[0].head = static_cast<int16_t>(g.staff.append()); });
    postNews(g, {.date = g.gameDate, .title = "Welcome"});
    int16_t busy = addAct(g, {.label = g.player.playerLabel, .name = "The Busy"});
    addAct(g, {.label = g.player.playerLabel, .name = "The Writers"});
    amend(g.artist, 2, [&] { g.artist->songQuality = 50; });
    file(g, 10, g.gameDate + 40, busy);  // a travel day 40 days in
    g.gameDate += 100;
    checkPlayerControlledBands(g);
    ASSERT_EQ(g.news.recordCount(), 3);
    std::string text = newsText(2);
    EXPECT_EQ(text.find("your head of Artist and Repertoire Ada Bell  informed you"), 0u) << text;
    EXPECT_EQ(text.find("The Busy"), std::string::npos);
    EXPECT_NE(text.find("- The Writers\r\n"), std::string::npos) << "a band with a songwriter is working on songs";
}

TEST_F(Condition, UnsignedMonthsCountOnlyForFreeActiveBands) {
    int16_t free = addAct(g, {});
    int16_t signedBand = addAct(g, {.label = addLabel(g, {1, 1, 1, 1, 1})});
    int16_t gone = addAct(g, {});
    for (int16_t b : {free, signedBand, gone}) {
        amend(g.band, b, [&] {
            g.band->monthsUnsigned = 8;
            g.band->retired = b == gone ? kTrue : kFalse;
        });
    }
    updateBandTimeWithoutADeal(g);
    for (auto [b, months] : {std::pair{signedBand, 8}, {gone, 8}, {free, 9}}) {
        EXPECT_EQ((g.band.read(b), g.band->monthsUnsigned), months) << b;
    }
    EXPECT_EQ(g.band->retired, kFalse) << "nine months unsigned is not yet the end";
}

TEST_F(Condition, FeelingsNameTheBreakOrContentment) {
    int16_t band = addAct(g, {});
    g.band.read(band);
    g.artist->male = kFalse;
    g.artist.write();
    EXPECT_EQ(artistFeelings(g), std::vector<std::string>{"Happy with conditions."});
    amend(g.band, band, [&] { g.band->complaints = {0, 0, 1}; });
    EXPECT_EQ(artistFeelings(g), std::vector<std::string>{"Requested time off from her busy schedule."});
}

}  // namespace

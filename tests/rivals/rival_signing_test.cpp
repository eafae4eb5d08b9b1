// How rivals bid for unsigned acts, and how they keep or drop their own.
#include <gtest/gtest.h>

#include <algorithm>

#include "label/scouting.h"
#include "rivals/rival_bands.h"
#include "rivals/rival_signing.h"
#include "schedule/schedule.h"
#include "support/album_world.h"
#include "support/amend.h"
#include "talent/contract_terms.h"
#include "talent/contracts.h"
#include "world/dates.h"
#include "world/strings.h"

using namespace trovane;
using namespace trovane::test;

namespace {

class RivalSigning : public ::testing::Test, public AlbumWorld {
protected:
    int16_t second = addRival("Second Records");
    int16_t act = addBand("The Wanted", 0, 2);

    RivalSigning() {
        g.gameDate = serialFromCivil(2005, 3, 7);
        amend(g.style, 1, [&] {
            g.style->lifeSpan = 10;
            g.style->abilityWeight = 100;
        });
        for (int16_t l : {kRival, second}) {
            amend(g.label, l, [&] {
                g.label->maxBands = 10;
                g.label->bandCount = 1;
                g.label->cashBalance = moneyUnits(1'000'000);
                g.label->cashReserve = moneyUnits(100'000);
                g.label->reputation = {50, 50, 50, 50, 50};
            });
        }
        amend(g.band, act, [&] {
            g.band->initialAdvance = moneyUnits(100'000);
            g.band->additionalAdvance = moneyUnits(50'000);
            g.band->additionalAdvanceCount = 3;
            g.band->optionLength = 18;
            g.band->royaltyRate = 15;
            g.band->label = 0;
        });
    }
    int16_t addRival(const std::string& name) {
        g.label.rec = LabelRecord{};
        g.label->name = name;
        return static_cast<int16_t>(g.label.append());
    }
    void list(int16_t label, int16_t band) {
        g.shortlist.rec = ShortlistRecord{};
        g.shortlist->band = band;
        g.shortlist->label = label;
        g.shortlist.append();
    }
    std::vector<OfferRecord> offers() {
        std::vector<OfferRecord> out;
        for (int32_t n : offersOnBand(g, act)) {
            g.offer.read(n);
            out.push_back(g.offer.rec);
        }
        return out;
    }
    int typeFourEntries() {
        int n = 0;
        for (int32_t id = 1; id < g.schedule.recordCount(); ++id) {
            g.schedule.read(id);
            n += g.schedule->type == 4 && g.schedule->band == act;
        }
        return n;
    }
};

TEST_F(RivalSigning, AdjustingScalesAndHoldsTheTerms) {
    g.offer.rec = OfferRecord{.initialAdvance = 40'000'000, .additionalAdvance = 1000, .royalty = 90};
    adjustOfferTerms(g, 33, false);                  // x 1.33
    EXPECT_EQ(g.offer->royalty, 100);                // 119.7, held at 100
    EXPECT_EQ(g.offer->initialAdvance, 50'000'000);  // 53.2 million, held
    EXPECT_EQ(g.offer->additionalAdvance, 1330);
    adjustOfferTerms(g, 33, true);  // x 0.67
    EXPECT_EQ(g.offer->royalty, 67);
    EXPECT_EQ(g.offer->additionalAdvance, 891);  // 1330 x 0.67 = 891.1
}

TEST_F(RivalSigning, TwoRivalsShareTheFirstDateAndOneDecisionUnreportedOffThePlayersShortlist) {
    list(kRival, act);
    list(second, act);
    const int32_t news = newsCount();
    computerApproachBands(g);
    EXPECT_EQ(newsCount(), news);
    computerApproachBands(g);  // a second week does not bid again while the offers stand
    const auto o = offers();
    ASSERT_EQ(o.size(), 2u);
    EXPECT_EQ(o[0].decisionDate, g.gameDate + 7);
    EXPECT_EQ(o[1].decisionDate, g.gameDate + 7);
    EXPECT_EQ(o[0].optionLength, 18);
    EXPECT_EQ(typeFourEntries(), 1);
    g.schedule.read(g.schedule.recordCount() - 1);
    EXPECT_EQ(g.schedule->offer, o[0].id);
    EXPECT_EQ(g.schedule->label, kRival);
}

TEST_F(RivalSigning, ARivalJoinsThePlayersDateWithoutANewDecision) {
    g.offer.rec = OfferRecord{};
    g.offer->band = act;
    g.offer->label = kPlayer;
    g.offer->decisionDate = g.gameDate + 3;
    g.offer->initialAdvance = 100'000;
    g.offer->additionalAdvance = 50'000;
    g.offer->additionalAdvanceCount = 3;
    g.offer->optionLength = 18;
    g.offer->royalty = 15;
    g.offer.append();
    list(kRival, act);
    computerApproachBands(g);
    const auto o = offers();
    ASSERT_EQ(o.size(), 2u);
    EXPECT_EQ(o[1].decisionDate, g.gameDate + 3);
    EXPECT_EQ(typeFourEntries(), 0);
}

TEST_F(RivalSigning, AStaleOfferDoesNotSetTheDate) {
    g.offer.rec = OfferRecord{};
    g.offer->band = act;
    g.offer->label = second;
    g.offer->decisionDate = g.gameDate - 1;
    g.offer.append();
    list(kRival, act);
    computerApproachBands(g);
    const auto o = offers();
    EXPECT_EQ(o.back().decisionDate, g.gameDate + 7);
}

TEST_F(RivalSigning, AFullRosterOrThinCashNeverBids) {
    // at maxBands
    amend(g.label, kRival, [&] { g.label->bandCount = 10; });
    // spare = 150,000 - 100,000 / 2 = 100,000: not above the reserve of 100,000.
    amend(g.label, second, [&] { g.label->cashBalance = moneyUnits(150'000); });
    list(kRival, act);
    list(second, act);
    computerApproachBands(g);
    EXPECT_TRUE(offers().empty());
    // one more: it bids
    amend(g.label, second, [&] { g.label->cashBalance = moneyUnits(150'001); });
    computerApproachBands(g);
    EXPECT_EQ(offers().size(), 1u);
}

TEST_F(RivalSigning, ThePlayerHearsOfEveryBidderInShortlistOrder) {
    list(kPlayer, act);
    list(second, act);
    list(kRival, act);
    computerApproachBands(g);
    const NewsRecord& n = lastNews();
    EXPECT_EQ(trim(n.title.value), "Rival offers for The Wanted");
    EXPECT_EQ(trim(n.text.value),
              "As you are registered as interested in The Wanted their manager has chosen to inform you that the "
              "following labels have offered them a contract :-\r\n\r\n- Second Records\r\n- Rival Records\r\n");
}

TEST_F(RivalSigning, TheOfferLandsInsideTheTargetWindow) {
    list(kRival, act);
    computerApproachBands(g);
    const auto o = offers();
    ASSERT_EQ(o.size(), 1u);
    g.offer.read(offersOnBand(g, act)[0]);
    g.label.read(kRival);
    g.band.read(act);
    const int rating = rateContract(g, 1).score;
    // Targets run 90 to 149: low 81 at the least, high 179 at the most.
    EXPECT_GE(rating, 81);
    EXPECT_LE(rating, 179);
}

class RivalOptions : public RivalSigning {
protected:
    int16_t signedAct = addBand("Kept", kRival, 2);
    int16_t album = 0;

    RivalOptions() {
        // a cheap deal: the rating stays low
        amend(g.band, signedAct, [&] {
            g.band->initialAdvance = moneyUnits(1);
            g.band->additionalAdvance = moneyUnits(1);
            g.band->royaltyRate = 1;
            g.band->optionLength = 18;
            g.band->optionsRemaining = 2;
            g.band->additionalAdvanceCount = 2;
        });
        g.disc.rec = DiscRecord{};
        g.disc->band = signedAct;
        g.disc->label = kRival;
        g.disc->releaseDate.fill(kNoDate);
        g.disc->releaseDate[0] = g.gameDate - 100;
        album = static_cast<int16_t>(g.disc.append());
    }
    void setBooks(int64_t income, int64_t costs, int64_t discIncome) {
        amend(g.band, signedAct, [&] {
            g.band->grossIncome = moneyUnits(income);
            g.band->costs = moneyUnits(costs);
        });
        amend(g.disc, album, [&] { g.disc->income = moneyUnits(discIncome); });
    }
    bool kept() {
        g.band.read(signedAct);
        rivalOptionDecision(g);
        g.band.read(signedAct);
        return g.band->label == kRival;
    }
};

TEST_F(RivalOptions, AnAlbumThatBrokeEvenKeepsTheBand) {
    setBooks(0, 0, 0);
    EXPECT_TRUE(kept());
    EXPECT_EQ(g.band->optionsRemaining, 1);
}

TEST_F(RivalOptions, AnAlbumThatLostMoneyDropsTheBand) {
    setBooks(0, 0, -1);
    EXPECT_FALSE(kept());
    g.label.read(kRival);
    EXPECT_EQ(g.label->bandCount, 0);
}

// The option weighed on its facts alone: a band that made 10 on its album,
// its label holding 1,000,000, unless a case says otherwise.
struct Weighed {
    OptionFacts f{.rating = 100, .hasAlbum = true, .net = 0, .albumIncome = 10, .labelBalance = 1'000'000};
    int draw = 0;
    int draws = 0;
    bool keeps() {
        return rivalKeepsBand(f, [this] {
            ++draws;
            return draw;
        });
    }
};

TEST(RivalKeepsBand, ARatingOf110KeepsAnd111Drops) {
    Weighed w;
    w.f.rating = 110;
    EXPECT_TRUE(w.keeps());
    w.f.rating = 111;
    EXPECT_FALSE(w.keeps());
    w.f.hasAlbum = false;
    EXPECT_FALSE(w.keeps()) << "the rating drops a band before its albums are looked at";
}

TEST(RivalKeepsBand, ALossMakerIsKeptOnADrawOf75AndDroppedOn76) {
    Weighed w;
    w.f.net = -1;  // 1 / 1,000,000 is far below a tenth
    w.draw = 75;
    EXPECT_TRUE(w.keeps());
    w.draw = 76;
    EXPECT_FALSE(w.keeps());
    EXPECT_EQ(w.draws, 2);
}

TEST(RivalKeepsBand, ALossOfExactlyATenthOfTheBalanceIsNotOverIt) {
    Weighed w;
    w.f.net = -100'000;  // 100,000 / 1,000,000 = 0.1 in single precision, not above 0.1
    EXPECT_TRUE(w.keeps());
    w.f.net = -100'001;  // 0.100001 is above it, whatever the draw
    EXPECT_FALSE(w.keeps());
    w.f.net = -1;
    w.f.labelBalance = 0;  // 1 / 0 is infinity: dropped, not a failure
    EXPECT_FALSE(w.keeps());
}

TEST(RivalKeepsBand, AnAlbumThatMadeExactlyNothingKeepsTheBandWithoutADraw) {
    Weighed w;
    w.f.albumIncome = 0;
    w.draw = 99;
    EXPECT_TRUE(w.keeps());
    w.f.albumIncome = -1;
    EXPECT_FALSE(w.keeps());
    EXPECT_EQ(w.draws, 0) << "a band that did not lose money is not drawn for";
    w.f.hasAlbum = false;
    EXPECT_TRUE(w.keeps()) << "no album out: kept";
}

TEST_F(RivalOptions, ABandWithNoReleasedAlbumIsKept) {
    g.disc.read(album);
    g.disc->releaseDate.fill(kNoDate);
    g.disc.write();
    setBooks(0, 100'001, -5);
    EXPECT_TRUE(kept());
}

TEST_F(RivalOptions, AnOverpaidBandIsReleased) {
    // far dearer than the band is worth
    amend(g.band, signedAct, [&] {
        g.band->royaltyRate = 100;
        g.band->additionalAdvance = moneyUnits(50'000'000);
        g.band->initialAdvance = moneyUnits(50'000'000);
    });
    setBooks(0, 0, 100);
    EXPECT_FALSE(kept());
}

TEST_F(RivalOptions, ThePlayersBandIsNeverDecidedByARival) {
    amend(g.band, signedAct, [&] { g.band->label = kPlayer; });
    setBooks(0, 0, -1);
    g.band.read(signedAct);
    rivalOptionDecision(g);
    g.band.read(signedAct);
    EXPECT_EQ(g.band->label, kPlayer);
    EXPECT_EQ(g.band->optionsRemaining, 2);
}

TEST_F(RivalSigning, RivalsJudgeEveryActButThePlayerDoesNot) {
    // The rival's window in the UK is 20 to 39; the act sits at 30.
    for (int16_t l : {kRival, second, kPlayer}) {
        amend(g.label, l, [&] {
            g.label->reputationTarget = {40, 0, 0, 0, 0};
            g.label->maxControversy = 100;
        });
    }
    amend(g.band, act, [&] { g.band->reputation = {30, 0, 0, 0, 0}; });
    for (int week = 0; week < 20; ++week) computerCheckBands(g);
    std::vector<int16_t> listers;
    for (int32_t n = 1; n < g.shortlist.recordCount(); ++n) {
        g.shortlist.read(n);
        listers.push_back(g.shortlist->label);
    }
    // Twenty weeks of 49-in-100 draws list each rival once (a pair is never listed twice).
    std::sort(listers.begin(), listers.end());
    EXPECT_EQ(listers, (std::vector<int16_t>{kRival, second}));
}

TEST_F(RivalSigning, JudgingLeavesTheBuffersAtTheLastPairTestedAndAPairFoundListedAsRead) {
    for (int16_t l : {kRival, second}) {
        amend(g.label, l, [&] {
            g.label->reputationTarget = {40, 0, 0, 0, 0};
            g.label->maxControversy = 100;
        });
    }
    amend(g.band, act, [&] { g.band->reputation = {30, 0, 0, 0, 0}; });
    list(second, act);   // record 1
    list(kPlayer, act);  // record 2, which no rival's judging reads
    const int16_t signedElsewhere = addBand("Taken", kRival);
    bool foundListed = false;
    for (int week = 0; week < 20 && !foundListed; ++week) {
        g.shortlist.read(2);
        g.band.read(signedElsewhere);
        g.label.read(kPlayer);
        computerCheckBands(g);
        EXPECT_EQ(g.band->id, act);
        EXPECT_EQ(g.label->id, second);
        foundListed = g.shortlist->label == second;
    }
    EXPECT_TRUE(foundListed);
    EXPECT_EQ(g.shortlist.recordCount(), 4);  // the first rival's pair added once, the second's never again
}

TEST_F(RivalSigning, AContestedActDecidesOnceOnThePlayersDateAndTheBestOfferWins) {
    list(kPlayer, act);
    list(kRival, act);
    list(second, act);
    g.offer.rec = OfferRecord{};
    g.offer->band = act;
    g.offer->label = kPlayer;
    g.offer->decisionDate = g.gameDate + 5;
    g.offer->initialAdvance = 1000;  // a poor offer: a tenth of what is asked
    g.offer->additionalAdvance = 500;
    g.offer->additionalAdvanceCount = 3;
    g.offer->optionLength = 18;
    g.offer->royalty = 15;
    const int32_t players = g.offer.append();
    ScheduleRecord e{};
    e.type = 4;
    e.date = g.gameDate + 5;
    e.band = act;
    e.label = kPlayer;
    e.offer = players;
    const int32_t decision = addSchedule(g, e);
    computerApproachBands(g);
    EXPECT_EQ(typeFourEntries(), 1);
    const NewsRecord& n = lastNews();
    EXPECT_EQ(trim(n.title.value), "Rival offers for The Wanted");
    EXPECT_NE(trim(n.text.value).find("- Rival Records\r\n- Second Records\r\n"), std::string::npos);
    g.gameDate += 5;
    g.schedule.read(decision);
    decideOffers(g);
    g.schedule.read(decision);
    ASSERT_GT(g.schedule->offer, 0);
    g.offer.read(g.schedule->offer);
    EXPECT_NE(g.offer->label, kPlayer);  // both rivals rate at least 81; the player's far less
}

}  // namespace

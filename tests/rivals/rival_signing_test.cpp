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
        g.label.rec = LabelRecord{.name = name};
        return static_cast<int16_t>(g.label.append());
    }
    void list(int16_t label, int16_t band) {
        g.shortlist.rec = ShortlistRecord{.band = band, .label = label};
        g.shortlist.append();
    }
    // The player's offer of the given advances, three options of 18 months at 15 percent.
    int32_t playersOffer(double date, int32_t initial, int32_t additional) {
        g.offer.rec = OfferRecord{.decisionDate = date,
                                  .label = kPlayer,
                                  .initialAdvance = initial,
                                  .additionalAdvance = additional,
                                  .additionalAdvanceCount = 3,
                                  .optionLength = 18,
                                  .band = act,
                                  .royalty = 15};
        return g.offer.append();
    }
    // Each label's window in the UK runs 20 to 39.
    void lookFor(std::initializer_list<int16_t> labels) {
        for (int16_t l : labels) {
            amend(g.label, l, [&] {
                g.label->reputationTarget = {40, 0, 0, 0, 0};
                g.label->maxControversy = 100;
            });
        }
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
    // x 1.33: the royalty of 119.7 is held at 100 and the 53.2 million at 50 million.
    adjustOfferTerms(g, 33, false);
    EXPECT_EQ(std::tuple(g.offer->royalty, g.offer->initialAdvance, g.offer->additionalAdvance),
              std::tuple(100, 50'000'000, 1330));
    adjustOfferTerms(g, 33, true);  // x 0.67: 1330 x 0.67 = 891.1
    EXPECT_EQ(std::tuple(g.offer->royalty, g.offer->additionalAdvance), std::tuple(67, 891));
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
    EXPECT_EQ(std::tuple(o[0].decisionDate, o[1].decisionDate, o[0].optionLength),
              std::tuple(g.gameDate + 7, g.gameDate + 7, 18));
    EXPECT_EQ(typeFourEntries(), 1);
    g.schedule.read(g.schedule.recordCount() - 1);
    EXPECT_EQ(std::tuple(g.schedule->offer, g.schedule->label), std::tuple(o[0].id, kRival));
}

TEST_F(RivalSigning, ARivalJoinsThePlayersDateWithoutANewDecision) {
    playersOffer(g.gameDate + 3, 100'000, 50'000);
    list(kRival, act);
    computerApproachBands(g);
    const auto o = offers();
    ASSERT_EQ(o.size(), 2u);
    EXPECT_EQ(o[1].decisionDate, g.gameDate + 3);
    EXPECT_EQ(typeFourEntries(), 0);
}

TEST_F(RivalSigning, AStaleOfferDoesNotSetTheDate) {
    g.offer.rec = OfferRecord{.decisionDate = g.gameDate - 1, .label = second, .band = act};
    g.offer.append();
    list(kRival, act);
    computerApproachBands(g);
    EXPECT_EQ(offers().back().decisionDate, g.gameDate + 7);
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

// Each act signed to the rival on a cheap deal (the rating stays low), its
// album out 100 days ago, unless a case says otherwise.
TEST_F(RivalSigning, AnOptionIsTakenUpOrDroppedOnTheActsOwnBooks) {
    struct Case {
        const char* name;
        int16_t label;
        bool released, overpaid;
        int64_t costs, albumIncome;
        int16_t wantLabel;
        int wantOptions;  // -1: not looked at
    };
    amend(g.label, kRival, [&] { g.label->bandCount = 2; });
    for (Case c :
         {Case{"Broke Even", kRival, true, false, 0, 0, kRival, 1}, Case{"Lost", kRival, true, false, 0, -1, 0, -1},
          Case{"Unreleased", kRival, false, false, 100'001, -5, kRival, 1},
          Case{"Overpaid", kRival, true, true, 0, 100, 0, -1}, Case{"Ours", kPlayer, true, false, 0, -1, kPlayer, 2}}) {
        SCOPED_TRACE(c.name);
        const int16_t act = addBand(c.name, c.label, 2);
        amend(g.band, act, [&] {
            g.band->initialAdvance = moneyUnits(c.overpaid ? 50'000'000 : 1);
            g.band->additionalAdvance = moneyUnits(c.overpaid ? 50'000'000 : 1);
            g.band->royaltyRate = c.overpaid ? 100 : 1;
            g.band->optionLength = 18;
            g.band->optionsRemaining = 2;
            g.band->additionalAdvanceCount = 2;
            g.band->costs = moneyUnits(c.costs);
        });
        g.disc.rec = DiscRecord{.band = act, .label = kRival, .income = moneyUnits(c.albumIncome)};
        g.disc->releaseDate.fill(kNoDate);
        if (c.released) g.disc->releaseDate[0] = g.gameDate - 100;
        g.disc.append();
        g.band.read(act);
        rivalOptionDecision(g);
        EXPECT_EQ((g.band.read(act), g.band->label), c.wantLabel);
        if (c.wantOptions >= 0) { EXPECT_EQ(g.band->optionsRemaining, c.wantOptions); }
    }
    EXPECT_EQ((g.label.read(kRival), g.label->bandCount), 0) << "two acts dropped";
}

TEST(RivalKeepsBand, RatingLossesAndTheAlbumsIncomeDecide) {
    struct Row {
        int rating;
        bool hasAlbum;
        double net, albumIncome, labelBalance;
        int draw;
        bool keeps;
        int draws;
    };
    const Row rows[] = {
        {110, true, 0, 10, 1e6, 0, true, 0},
        {111, true, 0, 10, 1e6, 0, false, 0},
        {111, false, 0, 10, 1e6, 0, false, 0},  // the rating drops before the album is looked at
        {100, true, -1, 10, 1e6, 75, true, 1},  // a loss is kept on a draw of 75
        {100, true, -1, 10, 1e6, 76, false, 1},
        {100, true, -100'000, 10, 1e6, 0, true, 1},  // 0.1 in single precision is not above 0.1
        {100, true, -100'001, 10, 1e6, 0, false, 1},
        {100, true, -1, 10, 0, 0, false, 1},  // 1 / 0 is infinity: dropped, not a failure
        {100, true, 0, 0, 1e6, 99, true, 0},  // an album that made exactly nothing: no draw
        {100, true, 0, -1, 1e6, 0, false, 0},
        {100, false, 0, -1, 1e6, 0, true, 0},  // no album out: kept
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(&r - rows);
        int draws = 0;
        const OptionFacts f{r.rating, r.hasAlbum, r.net, r.albumIncome, r.labelBalance};
        EXPECT_EQ(rivalKeepsBand(f, [&] { return ++draws, r.draw; }), r.keeps);
        EXPECT_EQ(draws, r.draws);
    }
}

TEST_F(RivalSigning, RivalsJudgeEveryActButThePlayerDoesNot) {
    lookFor({kRival, second, kPlayer});  // the act sits at 30
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
    lookFor({kRival, second});
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
        EXPECT_EQ(std::tuple(g.band->id, g.label->id), std::tuple(act, second));
        foundListed = g.shortlist->label == second;
    }
    EXPECT_TRUE(foundListed);
    EXPECT_EQ(g.shortlist.recordCount(), 4);  // the first rival's pair added once, the second's never again
}

TEST_F(RivalSigning, AContestedActDecidesOnceOnThePlayersDateAndTheBestOfferWins) {
    list(kPlayer, act);
    list(second, act);
    list(kRival, act);
    const int32_t players = playersOffer(g.gameDate + 5, 1000, 500);  // a tenth of what is asked
    const int32_t decision = addSchedule(
        g, ScheduleRecord{.type = 4, .date = g.gameDate + 5, .band = act, .label = kPlayer, .offer = players});
    computerApproachBands(g);
    EXPECT_EQ(typeFourEntries(), 1);
    const NewsRecord& n = lastNews();
    EXPECT_EQ(trim(n.title.value), "Rival offers for The Wanted");
    // Every bidder, in shortlist order.
    EXPECT_EQ(trim(n.text.value),
              "As you are registered as interested in The Wanted their manager has chosen to inform you that the "
              "following labels have offered them a contract :-\r\n\r\n- Second Records\r\n- Rival Records\r\n");
    g.gameDate += 5;
    g.schedule.read(decision);
    decideOffers(g);
    g.schedule.read(decision);
    ASSERT_GT(g.schedule->offer, 0);
    g.offer.read(g.schedule->offer);
    EXPECT_NE(g.offer->label, kPlayer);  // both rivals rate at least 81; the player's far less
}

}  // namespace

// The hype meter and the reputation it moves.
#include <gtest/gtest.h>

#include "support/empty_game.h"
#include "support/signing_world.h"
#include "talent/reputation.h"
#include "world/record_store.h"

using namespace trovane;
using namespace trovane::test;

namespace {

class Hype : public ::testing::Test {
protected:
    EmptyGame eg;
    Game& g = eg.g;

    // One market's reputation and meter after a call.
    std::pair<int, int> boost(int16_t band, int market, int16_t amount) {
        g.band.read(band);
        changeHype(g, amount, market, 0);
        g.band.read(band);
        return {g.band->reputation[static_cast<std::size_t>(market)], g.band->hype[static_cast<std::size_t>(market)]};
    }
    int16_t actAt(uint8_t r, int16_t h, std::initializer_list<int16_t> ranks = {1}, int16_t label = 0) {
        int16_t b = addAct(g, {.reputation = {r, r, r, r, r}, .ranks = ranks, .label = label});
        g.band.read(b);
        g.band->hype[0] = h;
        g.band.write(b);
        return b;
    }
    int memberRep(int16_t artist) {
        g.artist.read(artist);
        return g.artist->reputation[0];
    }
};

TEST_F(Hype, TheAmountCountsDouble) { EXPECT_EQ(boost(actAt(50, 0), 0, 5), std::pair(50, 10)); }

TEST_F(Hype, ABoostFirstRecoversTheWholeSlump) {
    // H -90 snaps to -20, then +2: -18. A fall of the same size does not snap.
    EXPECT_EQ(boost(actAt(20, -90), 0, 1), std::pair(20, -18));
    EXPECT_EQ(boost(actAt(20, -90), 0, -1), std::pair(20, -92));
}

TEST_F(Hype, APassedMeterRaisesTheReputationByAHeldGain) {
    // R 2, H 0 + 20: gain round(20/2) = 10 held to 5, R 7, H 13; gain round(13/7) = 2, R 9, H 4.
    EXPECT_EQ(boost(actAt(2, 0), 0, 10), std::pair(9, 4));
    // R 10, H 9 + 2 = 11: gain round(1.1) = 1, R 11, H 0. H equal to R raises nothing.
    EXPECT_EQ(boost(actAt(10, 9), 0, 1), std::pair(11, 0));
    EXPECT_EQ(boost(actAt(10, 8), 0, 1), std::pair(10, 10));
}

TEST_F(Hype, AtTheTopTheGainStillCountsForMembersAndLabel) {
    int16_t label = addLabel(g, {50, 50, 50, 50, 50});
    int16_t band = actAt(100, 150, {1}, label);
    // H 152 > 100: gain round(1.52) = 2, R held at 100, H 52.
    EXPECT_EQ(boost(band, 0, 1), std::pair(100, 52));
    g.band.read(band);
    EXPECT_EQ(memberRep(g.band->members[0]), 100) << "a member's reputation is held to 100";
    g.label.read(label);
    EXPECT_EQ(g.label->hype[0], 2) << "the label's meter takes the change";
}

TEST_F(Hype, BelowMinusOneHundredCostsAPoint) {
    EXPECT_EQ(boost(actAt(20, -98), 0, -1), std::pair(20, -100));
    // -101: R 19, H = -19.
    EXPECT_EQ(boost(actAt(20, -99), 0, -1), std::pair(19, -19));
    // H is held to -80 after a loss.
    EXPECT_EQ(boost(actAt(90, -99), 0, -1), std::pair(89, -80));
    // The floor of 2: no loss, H -2.
    EXPECT_EQ(boost(actAt(2, -99), 0, -1), std::pair(2, -2));
}

TEST_F(Hype, MembersMoveByTheirRankAndASoloActByTheChange) {
    int16_t band = actAt(10, 9, {1, 3, 4});
    boost(band, 0, 1);  // +1 to the band
    g.band.read(band);
    auto m = g.band->members;
    EXPECT_EQ(memberRep(m[0]), 13);  // 10 + round(3 / 1)
    EXPECT_EQ(memberRep(m[1]), 11);  // 10 + round(3 / 3)
    EXPECT_EQ(memberRep(m[2]), 11);  // 10 + round(0.75)
    int16_t solo = actAt(10, 9, {4});
    boost(solo, 0, 1);
    g.band.read(solo);
    EXPECT_EQ(memberRep(g.band->members[0]), 11) << "a solo artist moves with the act, whatever the job";
}

TEST_F(Hype, ALossReachesMembersThroughTheSameRule) {
    int16_t band = actAt(20, -99, {1, 2});
    boost(band, 0, -1);
    g.band.read(band);
    EXPECT_EQ(memberRep(g.band->members[0]), 17);  // 20 - 3
    EXPECT_EQ(memberRep(g.band->members[1]), 18);  // 20 + round(-1.5) = 20 - 2
}

TEST_F(Hype, AChangeReachesTheLabelsChartingDiscsOutsideTheRestOfTheWorld) {
    int16_t label = addLabel(g, {50, 50, 50, 50, 50});
    g.disc.rec = DiscRecord{.hype = {50, 50, 50, 50, 50}, .label = label};
    int16_t disc = static_cast<int16_t>(g.disc.append());
    for (int chart : {0, 4}) {
        openChart(g, chart);
        g.chart.rec = ChartRow{};
        g.chart->disc = disc;
        g.chart.append();
        closeChart(g);
    }
    int16_t band = actAt(10, 9, {1}, label);
    boost(band, 0, 1);
    g.band.read(band);
    g.band->hype[4] = 9;
    g.band.write(band);
    boost(band, 4, 1);
    g.disc.read(disc);
    EXPECT_EQ(g.disc->hype[0], 51);
    EXPECT_EQ(g.disc->hype[4], 50);
}

}  // namespace

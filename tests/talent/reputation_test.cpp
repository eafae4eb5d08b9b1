// The hype meter and the reputation it moves.
#include <gtest/gtest.h>

#include "support/amend.h"
#include "support/game_test.h"
#include "support/signing_world.h"
#include "talent/reputation.h"
#include "world/record_store.h"

using namespace trovane;
using namespace trovane::test;

namespace {

struct Hype : test::GameTest {
    // One market's reputation and meter after a call.
    std::pair<int, int> boost(int16_t band, int market, int16_t amount) {
        g.band.read(band);
        changeHype(g, amount, market, 0);
        g.band.read(band);
        return {g.band->reputation[static_cast<std::size_t>(market)], g.band->hype[static_cast<std::size_t>(market)]};
    }
    int16_t actAt(uint8_t r, int16_t h, std::initializer_list<int16_t> ranks = {1}, int16_t label = 0) {
        int16_t b = addAct(g, {.reputation = {r, r, r, r, r}, .ranks = ranks, .label = label});
        amend(g.band, b, [&] { g.band->hype[0] = h; });
        return b;
    }
    int memberRep(int16_t artist) {
        g.artist.read(artist);
        return g.artist->reputation[0];
    }
    // The UK reputation of each member of the band.
    std::vector<int> memberReps(int16_t band) {
        g.band.read(band);
        const BandRecord b = g.band.rec;
        std::vector<int> out;
        for (int i = 0; i < b.memberCount; ++i) out.push_back(memberRep(b.members[static_cast<std::size_t>(i)]));
        return out;
    }
};

TEST_F(Hype, TheMeterMovesByTwiceTheAmountAndPassingEitherEndMovesTheReputation) {
    // reputation, meter, amount; the reputation and meter after
    const std::tuple<uint8_t, int16_t, int16_t, std::pair<int, int>> cases[] = {
        {50, 0, 5, {50, 10}},      // the amount counts double
        {20, -90, 1, {20, -18}},   // a boost first recovers the whole slump: -90 snaps to -20, then +2
        {20, -90, -1, {20, -92}},  // a fall of the same size does not snap
        // R 2, H 0 + 20: gain round(20 / 2) = 10 held to 5, R 7, H 13; gain round(13 / 7) = 2, R 9, H 4.
        {2, 0, 10, {9, 4}},
        {10, 9, 1, {11, 0}},        // H 11: gain round(1.1) = 1, R 11, H 0
        {10, 8, 1, {10, 10}},       // H equal to R raises nothing
        {20, -98, -1, {20, -100}},  // -100 costs nothing
        {20, -99, -1, {19, -19}},   // -101: R 19, H = -19
        {90, -99, -1, {89, -80}},   // H is held to -80 after a loss
        {2, -99, -1, {2, -2}},      // the floor of 2: no loss, H -2
    };
    for (auto [rep, hype, amount, after] : cases)
        EXPECT_EQ(boost(actAt(rep, hype), 0, amount), after)
            << "R " << int(rep) << ", H " << hype << ", amount " << amount;
}

TEST_F(Hype, AtTheTopTheGainStillCountsForMembersLabelAndTheLabelsChartingDiscs) {
    int16_t label = addLabel(g, {50, 50, 50, 50, 50});
    int16_t band = actAt(100, 150, {1}, label);
    // H 152 > 100: gain round(1.52) = 2, R held at 100, H 52.
    EXPECT_EQ(boost(band, 0, 1), std::pair(100, 52));
    g.band.read(band);
    EXPECT_EQ(memberRep(g.band->members[0]), 100) << "a member's reputation is held to 100";
    EXPECT_EQ((g.label.read(label), g.label->hype[0]), 2) << "the label's meter takes the change";

    // The change reaches the label's charting discs outside the rest of the world.
    g.disc.rec = DiscRecord{.hype = {50, 50, 50, 50, 50}, .label = label};
    int16_t disc = static_cast<int16_t>(g.disc.append());
    for (int chart : {0, 4}) {
        openChart(g, chart);
        g.chart.rec = ChartRow{.disc = disc};
        g.chart.append();
        closeChart(g);
    }
    int16_t other = actAt(10, 9, {1}, label);
    boost(other, 0, 1);
    amend(g.band, other, [&] { g.band->hype[4] = 9; });
    boost(other, 4, 1);
    g.disc.read(disc);
    EXPECT_EQ(std::tuple(g.disc->hype[0], g.disc->hype[4]), std::tuple(51, 50));
}

TEST_F(Hype, MembersMoveByTheirRankAndASoloActByTheChangeUpOrDown) {
    int16_t band = actAt(10, 9, {1, 3, 4});
    boost(band, 0, 1);  // +1 to the band: 10 + round(3 / 1), 10 + round(3 / 3), 10 + round(0.75)
    EXPECT_EQ(memberReps(band), (std::vector<int>{13, 11, 11}));
    int16_t solo = actAt(10, 9, {4});
    boost(solo, 0, 1);
    EXPECT_EQ(memberReps(solo), std::vector<int>{11}) << "a solo artist moves with the act, whatever the job";
    int16_t falling = actAt(20, -99, {1, 2});
    boost(falling, 0, -1);
    EXPECT_EQ(memberReps(falling), (std::vector<int>{17, 18}));  // 20 - 3, 20 + round(-1.5) = 20 - 2
}

}  // namespace

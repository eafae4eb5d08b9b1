// The player hears of rival bids for an act on the shortlist, one line a bidder.
#include <QLabel>

#include "label/scouting.h"
#include "rivals/rival_signing.h"
#include "screen_fixture.h"
#include "world/strings.h"

namespace trovane::test {

namespace {

int16_t addBidder(Game& g, const std::string& name) {
    g.label.rec = LabelRecord{.name = name,
                              .maxBands = 10,
                              .cashBalance = moneyUnits(5'000'000),
                              .cashReserve = moneyUnits(100'000),
                              .reputation = {50, 50, 50, 50, 50}};
    return static_cast<int16_t>(g.label.append());
}

void shortlist(Game& g, int16_t label, int16_t band) {
    g.shortlist.rec = ShortlistRecord{.band = band, .label = label};
    g.shortlist.append();
}

}  // namespace

TEST_F(ScreenTest, ARivalOffersItemListsEachBidderOnItsOwnLine) {
    startNewGameAsPlayer();
    Game& g = *game;
    const int16_t act = static_cast<int16_t>(g.band.recordCount());
    BandRecord b{.name = "The Wanted",
                 .style = 1,
                 .memberCount = 2,
                 .reputation = {30, 10, 10, 10, 10},
                 .initialAdvance = moneyUnits(100'000),
                 .additionalAdvance = moneyUnits(50'000),
                 .optionLength = 18,
                 .additionalAdvanceCount = 3,
                 .royaltyRate = 15};
    for (std::size_t i = 0; i < 2; ++i) {
        g.artist.rec = ArtistRecord{
            .forename = "Member" + std::to_string(i + 1), .surname = "Wanted", .style = 1, .male = -1, .band = act};
        b.members[i] = static_cast<int16_t>(g.artist.append());
    }
    g.band.rec = b;
    ASSERT_EQ(g.band.append(), act);
    const int16_t first = addBidder(g, "Velvet Mole");
    const int16_t second = addBidder(g, "Argent Discs");
    shortlist(g, g.player.playerLabel, act);
    shortlist(g, second, act);  // the shortlist's order, not the labels', orders the lines
    shortlist(g, first, act);
    const int32_t before = g.news.recordCount();
    computerApproachBands(g);
    ASSERT_EQ(g.news.recordCount(), before + 1);

    window->newsItemOnScreen = before;
    window->openScreen(Screen::frmNewsFull);
    EXPECT_EQ(find<QLabel>("lblHeadline")->text(), "Rival offers for The Wanted");
    QStringList lines = find<QLabel>("lblText")->text().split(QLatin1Char('\n'));
    while (!lines.isEmpty() && lines.back().trimmed().isEmpty()) lines.removeLast();  // the last bidder's line break
    ASSERT_GE(lines.size(), 4);
    EXPECT_TRUE(lines[0].startsWith("As you are registered as interested in The Wanted"));
    EXPECT_TRUE(lines[0].trimmed().endsWith("the following labels have offered them a contract :-"));
    EXPECT_EQ(lines[lines.size() - 2].trimmed(), "- Argent Discs");
    EXPECT_EQ(lines[lines.size() - 1].trimmed(), "- Velvet Mole");
    screenshot("60_frmNewsFull_rival_offers", {"lblHeadline", "lblText"});
}

}  // namespace trovane::test

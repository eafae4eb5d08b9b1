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
    g.shortlist.rec = ShortlistRecord{};
    g.shortlist->label = label;
    g.shortlist->band = band;
    g.shortlist.append();
}

}  // namespace

TEST_F(ScreenTest, ARivalOffersItemListsEachBidderOnItsOwnLine) {
    startNewGameAsPlayer();
    Game& g = *game;
    const int16_t act = static_cast<int16_t>(g.band.recordCount());
    BandRecord b{};
    for (std::size_t i = 0; i < 2; ++i) {
        g.artist.rec =
            ArtistRecord{.forename = "Member" + std::to_string(i + 1), .surname = std::string("Wanted"), .male = -1};
        g.artist->band = act;
        g.artist->style = 1;
        b.members[i] = static_cast<int16_t>(g.artist.append());
    }
    g.band.rec = b;
    g.band->name = std::string("The Wanted");
    g.band->style = 1;
    g.band->memberCount = 2;
    g.band->reputation = {30, 10, 10, 10, 10};
    g.band->initialAdvance = moneyUnits(100'000);
    g.band->additionalAdvance = moneyUnits(50'000);
    g.band->additionalAdvanceCount = 3;
    g.band->optionLength = 18;
    g.band->royaltyRate = 15;
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

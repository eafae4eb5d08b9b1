// The player hears of rival bids for an act on the shortlist, one line a bidder.
#include <QLabel>

#include "floor/news_post.h"
#include "screen_fixture.h"

namespace trovane::test {

TEST_F(ScreenTest, ARivalOffersItemListsEachBidderOnItsOwnLine) {
    startNewGameAsPlayer();
    // The item as the rivals' approaches write it, bidders in shortlist order.
    postNews(*game, {.date = game->gameDate,
                     .title = "Rival offers for The Wanted",
                     .text = "As you are registered as interested in The Wanted their manager has chosen to inform "
                             "you that the following labels have offered them a contract :-\r\n\r\n- Argent "
                             "Discs\r\n- Velvet Mole\r\n"});
    window->newsItemOnScreen = game->news.recordCount() - 1;
    window->openScreen(Screen::frmNewsFull);
    EXPECT_EQ(find<QLabel>("lblHeadline")->text(), "Rival offers for The Wanted");
    QStringList lines = find<QLabel>("lblText")->text().split(QLatin1Char('\n'));
    while (!lines.isEmpty() && lines.back().trimmed().isEmpty()) lines.removeLast();  // the last bidder's line break
    ASSERT_GE(lines.size(), 4);
    EXPECT_TRUE(lines[0].trimmed().endsWith("the following labels have offered them a contract :-"));
    EXPECT_EQ(lines[lines.size() - 2].trimmed(), "- Argent Discs");
    EXPECT_EQ(lines[lines.size() - 1].trimmed(), "- Velvet Mole");
    screenshot("60_frmNewsFull_rival_offers", {"lblHeadline", "lblText"});
}

}  // namespace trovane::test

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "day/daily_cycle.h"
#include "day/news_inbox.h"
#include "floor/news_post.h"
#include "support/calendar_world.h"
#include "support/game_test.h"
#include "world/strings.h"

using namespace trovane;
using namespace trovane::test;

using NewsInbox = test::GameTest;

namespace {

int32_t post(Game& g, const std::string& title, uint8_t kind = kNewsOk, int32_t link = 0, bool mustReply = false) {
    return postNews(g, {.date = g.gameDate,
                        .title = title,
                        .text = "Body",
                        .kind = kind,
                        .scheduleLink = link,
                        .mustReply = mustReply});
}

NewsItemView open(Game& g, int32_t id) {
    g.news.read(id);
    return openNewsItem(g);
}

std::vector<int32_t> records(const std::vector<NewsRow>& rows) {
    std::vector<int32_t> out;
    for (const auto& r : rows) out.push_back(r.record);
    return out;
}

int32_t fileLinked(Game& g, ScheduleRecord e) {
    e.date = g.gameDate;
    return addSchedule(g, e);
}

}  // namespace

TEST_F(NewsInbox, ListIsNewestFirstWithoutDeletedItemsAndSorts) {
    EXPECT_TRUE(newsListRows(g).empty());
    EXPECT_FALSE(clickNewsRow(g, {}, 0));
    for (const char* t : {"b first", "A second", "c third"}) post(g, t);
    post(g, std::string(300, 'x'));
    open(g, 2);
    ASSERT_TRUE(deleteNewsItem(g));
    open(g, 3);
    std::vector<NewsRow> rows = newsListRows(g);
    EXPECT_EQ(records(rows), (std::vector<int32_t>{4, 3, 1}));
    EXPECT_EQ(rows[0].title, std::string(256, 'x'));
    EXPECT_EQ(rows[0].unread + "|" + rows[1].unread, "Unread|");
    EXPECT_EQ(rows[2].date, "Thu 05/08/2004");

    NewsSort sort;
    for (auto [header, order] : {std::pair{2, std::vector<int32_t>{1, 3, 4}}, {2, {4, 3, 1}}, {1, {1, 3, 4}}}) {
        clickNewsHeader(sort, header);
        sortNewsRows(rows, sort);
        EXPECT_EQ(records(rows), order) << header;
    }
    std::vector<NewsRow> many{{.record = 10}, {.record = 9}, {.record = 2}};
    sortNewsRows(many, sort);
    EXPECT_EQ(records(many), (std::vector<int32_t>{2, 9, 10})) << "numbers sort as numbers";
    ASSERT_TRUE(clickNewsRow(g, rows, 1));
    EXPECT_EQ(g.news->id, 3);
    EXPECT_EQ(g.currentScreen, Screen::frmNewsFull);
}

TEST(NewsButtons, DeleteAndSidebarFollowKindAndAnswer) {
    struct Case {
        uint8_t kind;
        bool mustReply, replied;
        std::string buttons;  // per button: visible and enabled "E", visible only "v", hidden "-"
        bool mayLeave;
    };
    for (const Case& c :
         {Case{0, false, false, "E--", true}, Case{1, true, false, "EE-", false}, Case{1, true, true, "Ev-", true},
          Case{4, false, false, "EEE", true}, Case{2, true, false, "---", false}}) {
        SCOPED_TRACE(static_cast<int>(c.kind));
        EmptyGame eg;
        Game& g = eg.g;
        int32_t id = postNews(g, {.date = g.gameDate,
                                  .title = "Item",
                                  .text = "Body",
                                  .kind = c.kind,
                                  .mustReply = c.mustReply,
                                  .extra = c.replied ? "Help" : ""});
        g.news->replied = boolean(c.replied);
        g.news.write();
        NewsItemView v = open(g, id);
        std::string shown;
        for (const auto& b : v.buttons) shown += !b.visible ? '-' : b.enabled ? 'E' : 'v';
        EXPECT_EQ(std::tuple(shown, v.sidebarEnabled, v.helpVisible), std::tuple(c.buttons, c.mayLeave, c.replied));
        EXPECT_EQ(deleteNewsItem(g), c.mayLeave);
        EXPECT_EQ((g.news.read(id), g.news->read), kTrue);
    }
}

TEST_F(NewsInbox, UnansweredItemsHoldTheDayLowestFirst) {
    post(g, "Plain");
    int32_t second = post(g, "Second", kNewsYesNo, 0, true);
    int32_t third = post(g, "Third", kNewsYesNo, 0, true);
    for (int32_t held : {second, third}) {
        EXPECT_FALSE(allRepliesGiven(g));
        EXPECT_FALSE(allRepliesGiven(g)) << "a second press shows the same item";
        EXPECT_EQ(g.news->id, held);
        EXPECT_EQ(g.currentScreen, Screen::frmNewsFull);
        open(g, held);
        pressNewsCmd2(g);
        EXPECT_EQ(g.currentScreen, Screen::frmNews);
    }
    EXPECT_TRUE(allRepliesGiven(g));
}

TEST_F(NewsInbox, AnEndedOptionOpensItsDecisionOnlyOnce) {
    int32_t id = post(g, "Option ended", kNewsOk, fileLinked(g, {.type = 18, .band = addBand(g, {50})}), true);
    open(g, id);
    pressNewsCmd1(g);
    EXPECT_EQ(g.currentScreen, Screen::frmBandOptionDecision);
    EXPECT_TRUE(allRepliesGiven(g));
    open(g, id);
    pressNewsCmd1(g);
    EXPECT_EQ(g.currentScreen, Screen::frmNews);
}

TEST_F(NewsInbox, YesToARivalsTourTakesTheNextSupportPlace) {
    g.gameDate = day(2004, 9, 1);
    const ScheduleRecord ask{
        .type = 19, .band = addBand(g, {50}), .gig = addGig(g, addBand(g, {50}), day(2004, 10, 1), {7})};
    open(g, post(g, "Support", kNewsYesNo, fileLinked(g, ask)));
    pressNewsCmd1(g);
    EXPECT_EQ((g.gig.read(ask.gig), g.gig->bill[2]), ask.band);
    g.tour.read(g.gig->tour);
    EXPECT_EQ(g.tour->supportCount, 2);
}

TEST_F(NewsInbox, NoToAnAgreedDealVoidsTheOffer) {
    g.gameDate = day(2004, 9, 1);
    g.label.rec.name = "My Label";
    g.label.append();
    const int16_t band = addBand(g, {50}, 0, "The Hopefuls");
    g.offer.rec = OfferRecord{.label = 1, .band = band};
    const ScheduleRecord decision{.type = 4, .band = band, .offer = g.offer.append()};
    g.offer.append();  // another offer for the act, voided with it
    int32_t question = post(g, "Agreed", kNewsYesNo, fileLinked(g, decision), true);
    open(g, question);
    pressNewsCmd2(g);
    for (int32_t n : {1, 2}) EXPECT_EQ((g.offer.read(n), g.offer->band), -1) << "offer " << n;
    EXPECT_EQ(entriesOfDay(g, g.gameDate).size(), 2u);
    EXPECT_TRUE(allRepliesGiven(g));
    g.news.read(question + 1);
    EXPECT_EQ(trim(g.news->title.value), "The Hopefuls deal falls through.");
    EXPECT_EQ(g.news->text.value,
              "The Hopefuls's proposed move to My Label has fallen through after the label cancelled the deal.");
    EXPECT_EQ(g.news->date, g.gameDate + 1);
}

TEST_F(NewsInbox, ACondemnedStoryStaysOpenToAnotherAnswer) {
    g.player.playerLabelName = "Loud Records ";
    g.event.rec.replyText = {Text<256>("We stand by them."), Text<256>("We are appalled."), Text<256>("...")};
    int32_t story =
        postNews(g, {.date = g.gameDate, .title = "Scandal", .text = "Text", .kind = kNewsMediaStory, .eventLink = 1});
    g.event.append();
    open(g, story);
    pressNewsCmd2(g);
    g.news.read(story + 1);
    EXPECT_EQ(trim(g.news->title.value), "Loud Records boss responds to media");
    EXPECT_EQ(std::tuple(g.news->text.value, g.news->replied), std::tuple(std::string("We are appalled."), kTrue));
    EXPECT_TRUE(open(g, story).buttons[1].enabled);
    pressNewsCmd1(g);
    pressNewsCmd3(g);
    EXPECT_EQ((g.news.read(story + 2), g.news->text.value), "We stand by them.");
    EXPECT_EQ(g.news.recordCount(), story + 3);
}

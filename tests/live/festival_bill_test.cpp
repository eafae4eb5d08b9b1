// The bill drawn up by rule, the player's invitation and answer, and acts
// dropping out before a day plays.
#include <gtest/gtest.h>

#include "support/amend.h"
#include "support/calendar_world.h"
#include "support/festival_world.h"

using namespace trovane;
using test::day;

namespace {

class FestivalBill : public test::FestivalWorld, public ::testing::Test {
protected:
    int16_t tour = 0;
    std::vector<int16_t> billOfDay(std::size_t i) { return billOf(g, gigsOf(tour)[i]); }
    // Schedules the festival and fills its bill.
    void drawUp() {
        tour = scheduled();
        fill(tour);
    }
    void accept(int32_t slot) {
        g.band.read(band);
        loadDay(tour, 0);
        acceptFestivalSlot(g, slot);
    }
};

TEST_F(FestivalBill, TakesTheMostReputedActsWithTiesInRecordOrder) {
    int16_t second = addAct("Second", 70);
    addAct("Third", 60);
    int16_t first = addAct("First", 70);
    int16_t top = addAct("Top", 100);
    drawUp();
    // Top 100, then the two 70s in record order; the bill holds three.
    EXPECT_EQ(billOfDay(0), (std::vector<int16_t>{top, second, first}));
    EXPECT_EQ(billOfDay(1), billOfDay(0));
}

TEST_F(FestivalBill, ReputationIsTakenInTheFestivalsTerritory) {
    int16_t home = addAct("Home", 60);
    int16_t abroad = addAct("Abroad", 40);
    // Europe
    amend(g.band, abroad, [&] { g.band->reputation[2] = 90; });
    amend(g.festival, festival, [&] { g.festival->territory = 2; });
    drawUp();
    // Home has 50 in Europe, as every act of the world made here.
    EXPECT_EQ(billOfDay(0), (std::vector<int16_t>{abroad, home}));
}

TEST_F(FestivalBill, TakesOnlyTheFestivalsStyleAndItsDescendants) {
    g.style.rec = StyleRecord{};
    int16_t rock = static_cast<int16_t>(g.style.append());
    g.style.rec = StyleRecord{.parentStyle = static_cast<uint8_t>(rock)};
    int16_t punk = static_cast<int16_t>(g.style.append());
    int16_t rocker = addAct("Rocker", 60);
    int16_t punks = addAct("Punks", 50);
    addAct("Poppers", 90);  // of the world's first style
    for (auto [act, st] : {std::pair{rocker, rock}, std::pair{punks, punk}})
        amend(g.band, act, [&] { g.band->style = static_cast<uint8_t>(st); });
    amend(g.festival, festival, [&] { g.festival->festivalStyle = static_cast<uint8_t>(rock); });
    drawUp();
    EXPECT_EQ(billOfDay(0), (std::vector<int16_t>{rocker, punks}));
}

TEST_F(FestivalBill, PassesOverAnActBusyOnAnyDayOrRetired) {
    int16_t gigging = addAct("Gigging", 90);
    int16_t supporting = addAct("Supporting", 85);
    int16_t retired = addAct("Retired", 80);
    int16_t free = addAct("Free", 40);
    amend(g.band, retired, [&] { g.band->retired = kTrue; });
    // Gigging plays its own gig on the Sunday; Supporting supports it.
    int32_t other = test::addGig(g, gigging, day(2004, 7, 11), {supporting});
    test::file(g, 8, day(2004, 7, 11), gigging, other);
    drawUp();
    EXPECT_EQ(billOfDay(0), (std::vector<int16_t>{free}));
}

TEST_F(FestivalBill, AnotherFestivalsBillKeepsItsActsBusy) {
    int16_t star = addAct("Star", 90);
    int16_t next = addAct("Next", 80);
    addFestival("Elsewhere", {1}, {28}, 1);  // Sunday 11 July, one act
    tour = scheduled();
    const auto elsewhere = static_cast<int16_t>(tour + 1);
    fill(tour);  // the first festival of the table
    fill(elsewhere);
    EXPECT_EQ(billOfDay(0), (std::vector<int16_t>{star, next}));
    EXPECT_TRUE(billOf(g, gigsOf(elsewhere)[0]).empty()) << "both are on the first festival's bill";
}

TEST_F(FestivalBill, AnEmptyPlaceEndsTheBill) {
    int16_t only = addAct("Only", 30);
    addAct("Unknown", 0);  // no standing at all in the territory: never billed
    amend(g.festival, festival, [&] { g.festival->billSize = 5; });
    drawUp();
    EXPECT_EQ((g.gig.read(gigsOf(tour)[1]), std::tuple(g.gig->bill[0], g.gig->bill[1])), std::tuple(only, int16_t{0}));
}

TEST_F(FestivalBill, ThePlayersActIsInvitedTheNextActHoldsThePlaceAndAcceptingTakesIt) {
    int16_t next = addAct("Next", 70);
    int16_t last = addAct("Last", 60);
    setReputation(band, 80);
    amend(g.festival, festival, [&] { g.festival->billSize = 2; });
    tour = scheduled();
    const int32_t before = lastNews();
    fill(tour);
    EXPECT_EQ(billOfDay(0), (std::vector<int16_t>{next, last}));
    ASSERT_EQ(lastNews(), before + 1);
    EXPECT_EQ(newsTitle(lastNews()), "The Testers invited to play at Halcote Summer Gathering");
    EXPECT_EQ(newsText(lastNews()),
              "The Testers have been invited to play at the next Halcote Summer Gathering. If you choose to accept "
              "this offer The Testers will appear 1st on the bill and will play 2 gigs from 10/7/2004 on Halcote "
              "Farm. Do you want to accept the offer?");
    g.news.read(lastNews());
    g.schedule.read(g.news->scheduleLink);
    const ScheduleRecord& e = g.schedule.rec;
    EXPECT_EQ(std::tuple(e.type, e.date, e.band, e.gig, e.value),
              std::tuple(uint8_t{23}, g.gameDate + 1, band, gigsOf(tour)[0], 0));
    accept(0);
    EXPECT_EQ(billOfDay(0), (std::vector<int16_t>{band, last}));
    EXPECT_EQ(billOfDay(1), (std::vector<int16_t>{band, last}));
    // The act put out is not the player's: no news.
    EXPECT_EQ(lastNews(), before + 1);
}

TEST_F(FestivalBill, AOneDayInvitationReadsOneGigAndItsPlace) {
    addAct("Above", 90);
    setReputation(band, 80);
    amend(g.festival, festival, [&] { g.festival->days = 1; });
    drawUp();
    EXPECT_NE(newsText(lastNews()).find("will appear 2nd on the bill and will play 1 gig from 10/7/2004 on"),
              std::string::npos);
}

TEST_F(FestivalBill, AcceptingWhenBusyLeavesTheBillAndSaysSo) {
    int16_t next = addAct("Next", 70);
    setReputation(band, 80);
    drawUp();
    test::file(g, 7, day(2004, 7, 11), band);  // a recording day on the Sunday
    accept(0);
    EXPECT_EQ(billOfDay(1), std::vector<int16_t>{next});
    EXPECT_EQ(newsTitle(lastNews()), "The Testers cannot appear at Halcote Summer Gathering");
    EXPECT_EQ(newsText(lastNews()),
              "The Testers informed you that they are no longer free to appear at this year's Halcote Summer "
              "Gathering.");
}

TEST_F(FestivalBill, ThePlayersActPutOutOfItsPlaceIsTold) {
    int16_t ours = addAct("Our Other Act", 70, label);
    setReputation(band, 80);
    drawUp();
    // Both of the player's acts were asked: The Testers for first place, then Our Other Act for it.
    g.news.read(lastNews());
    g.schedule.read(g.news->scheduleLink);
    g.band.read(ours);
    loadDay(tour, 0);
    acceptFestivalSlot(g, g.schedule->value);
    accept(0);
    EXPECT_EQ(billOfDay(0), std::vector<int16_t>{band});
    EXPECT_EQ(newsTitle(lastNews()), "Our Other Act removed from Halcote Summer Gathering");
    EXPECT_EQ(newsText(lastNews()),
              "The organisers of this year's Halcote Summer Gathering have informed you that as a result of a change "
              "in the lineup the services of Our Other Act are no longer required.");
}

TEST_F(FestivalBill, AnActOutOfActionDropsFromThatDayOnAndPlacesMoveUp) {
    int16_t a = addAct("Alpha", 90);
    int16_t b = addAct("Beta", 80);
    int16_t c = addAct("Gamma", 70);
    drawUp();
    g.band.read(b);
    amend(g.artist, g.band->members[1], [&] { g.artist->energy = -1; });
    loadDay(tour, 1);
    dropUnfitFestivalActs(g);
    EXPECT_EQ(billOfDay(0), (std::vector<int16_t>{a, b, c}));
    EXPECT_EQ(billOfDay(1), (std::vector<int16_t>{a, c}));
    g.band.read(b);
    amend(g.artist, g.band->members[1], [&] { g.artist->energy = 0; });
    loadDay(tour, 0);
    dropUnfitFestivalActs(g);
    EXPECT_EQ(billOfDay(0), (std::vector<int16_t>{a, b, c}));
}

TEST_F(FestivalBill, ThePlayersRetiredActIsRemovedWithTheNews) {
    int16_t a = addAct("Alpha", 90);
    setReputation(band, 80);
    drawUp();
    accept(1);
    ASSERT_EQ(billOfDay(0), (std::vector<int16_t>{a, band}));
    amend(g.band, band, [&] { g.band->retired = kTrue; });
    loadDay(tour, 0);
    dropUnfitFestivalActs(g);
    EXPECT_EQ(billOfDay(0), std::vector<int16_t>{a});
    EXPECT_EQ(billOfDay(1), std::vector<int16_t>{a});
    EXPECT_EQ(newsTitle(lastNews()), "The Testers removed from Halcote Summer Gathering");
}

}  // namespace

// A taken-over label is invited to two ceremonies: it accepts one and sits
// through the nominations and the night, and it declines the other, which
// it then does not see. The invariants are checked after every day.
#include <gtest/gtest.h>

#include "events/ceremonies.h"
#include "support/taken_over_game.h"

using namespace trovane;

namespace {

class CeremonyNight : public ::testing::Test, public test::TakenOverGame {
protected:
    CeremonyNight() : TakenOverGame(7) { takeOver(); }

    // A ceremony of one award for bands on ability alone, on the weekday of
    // the week of the coming year, nominated two weeks before.
    int16_t addCeremony(const char* name, const char* award, uint8_t week, uint8_t weekday) {
        g.award.rec = AwardRecord{
            .name = award, .kind = 2, .weight = 100, .commercialityRange = {0, 100}, .controversyRange = {0, 100}};
        const auto a = static_cast<int16_t>(g.award.append());
        g.ceremony.rec =
            CeremonyRecord{.name = name, .awards = {a}, .calendar = {week, weekday, 2, 0, 0, 0}, .country = 1};
        return static_cast<int16_t>(g.ceremony.append());
    }

    // Plays a day; an invitation to `accept` is answered yes, any other no.
    void playDay(int16_t accept) {
        for (int32_t n = 1; n < g.news.recordCount(); ++n) {
            g.news.read(n);
            std::string title = trim(g.news->title.value);
            if (g.news->replied == kTrue || !title.starts_with("Invitation to ")) continue;
            openNewsItem(g);
            g.ceremony.read(accept);
            if (title == "Invitation to " + trim(g.ceremony->name.value))
                pressNewsCmd1(g);
            else
                pressNewsCmd2(g);
        }
        g.showCeremony = 0;
        g.showSteps.clear();
        TakenOverGame::playDay();
    }
};

}  // namespace

TEST_F(CeremonyNight, TheAcceptedNightIsShownAndTheDeclinedOneIsNot) {
    ASSERT_GT(band, 0);
    int year = yearOf(g.gameDate) + 1;
    int16_t accepted = addCeremony("Northern Lights", "Act of the Year", 3, 5);
    int16_t declined = addCeremony("Southern Stars", "Band of the Year", 4, 5);
    scheduleCeremonies(g, year);
    const double first = ceremonyNight(year, 3, 5), second = ceremonyNight(year, 4, 5);

    std::vector<std::vector<std::string>> shown;
    while (g.gameDate <= second) {
        ASSERT_NO_FATAL_FAILURE(playDay(accepted));
        if (g.showCeremony != 0) {
            EXPECT_EQ(g.showCeremony, accepted);
            EXPECT_EQ(g.gameDate, first + 1);
            EXPECT_EQ(g.currentScreen, Screen::frmAwardCeremony);
            shown = g.showSteps;
            g.currentScreen = Screen::frmNews;
        }
    }
    // The opening, the award and its winner.
    ASSERT_EQ(shown.size(), 3u);
    g.country.read(1);
    EXPECT_EQ(shown[0][0], "Good evening and welcome to the " + std::to_string(year) +
                               " Northern Lights right here in " + trim(g.country->name.value) +
                               ". Without further ado, let's get on with the awards...");
    g.ceremony.read(accepted);
    g.award.read(g.ceremony->awards[0]);
    ASSERT_GT(g.award->nomineeCount, 0);
    EXPECT_EQ(g.award->winner, 1);
    EXPECT_EQ(shown[1][0], "The first award of the evening is the Act of the Year award. And the nominees are...");
    EXPECT_EQ(shown[1][1], "- " + trim(g.award->nomineeNames[0].value));
    EXPECT_EQ(shown[2][0], trim(g.award->nomineeNames[0].value));

    // Both nights are in the history, each winner with its row.
    for (int16_t c : {accepted, declined}) {
        g.ceremony.read(c);
        EXPECT_EQ(g.ceremony->held, year);
        g.award.read(g.ceremony->awards[0]);
        std::string row = "Winner of " + trim(g.award->name.value) + " award. (" + trim(g.ceremony->name.value) + ")";
        bool found = false;
        for (int32_t n = 1; n < g.achieve.recordCount() && !found; ++n) {
            g.achieve.read(n);
            found =
                g.achieve->kind == 0 && g.achieve->who == g.award->nominees[0] && trim(g.achieve->text.value) == row;
        }
        EXPECT_TRUE(found) << row;
    }
    g.ceremony.read(declined);
    EXPECT_EQ(g.ceremony->playerInvited, kFalse);
    // The invitations came in the old year and dated the nights in the new one.
    EXPECT_EQ(yearOf(first - 21), year - 1);
    EXPECT_EQ(g.ceremony->date, second);
    g.ceremony.read(accepted);
    EXPECT_EQ(g.ceremony->date, first);
}

// The ceremony night on screen: a day that ends at an attended ceremony opens
// it, Next completes a step or goes on, and the last press returns to the news.
#include <QLabel>

#include "schedule/schedule.h"
#include "screen_fixture.h"
#include "screens/ceremony_screens.h"

using namespace trovane;

namespace {

class CeremonyScreen : public test::ScreenTest {
protected:
    // A new game with an attended ceremony of one award with two nominees, held tomorrow night.
    void attendTonight() {
        startNewGameAsPlayer();
        Game& g = *game;
        // A label wins: no speech, so the steps are known.
        g.award.rec = AwardRecord{.name = "Best Act", .kind = 3, .nomineeCount = 2, .nominees = {1, 2}};
        g.award->nomineeNames = {"Nightjar Records", "Another Label"};
        int16_t award = static_cast<int16_t>(g.award.append());
        g.ceremony.rec =
            CeremonyRecord{.name = "Brit Night", .awards = {award}, .date = g.gameDate, .playerInvited = kTrue};
        int16_t ceremony = static_cast<int16_t>(g.ceremony.append());
        addSchedules(g, {ScheduleRecord{.type = 13, .date = g.gameDate, .ceremony = ceremony}});
    }
    screens::frmAwardCeremony* form() {
        return qobject_cast<screens::frmAwardCeremony*>(window->currentScreenWidget());
    }
};

TEST_F(CeremonyScreen, ANightPlaysStepByStepAndEndsOnTheNews) {
    attendTonight();
    screens::frmAwardCeremony::revealInterval = 0;
    continueOneDay();
    ASSERT_EQ(screen(), Screen::frmAwardCeremony);
    ASSERT_NE(form(), nullptr);
    EXPECT_EQ(form()->titleLabel()->text(), "Award Ceremony");
    // Opening, the award with its nominees, the winner.
    ASSERT_EQ(game->showSteps.size(), 3u);
    ASSERT_TRUE(waitFor([&] { return form()->linesShown() == 1; }));
    EXPECT_TRUE(form()->lblCeremony->text().startsWith("Good evening and welcome to the"));
    click(form()->cmdNext);
    ASSERT_TRUE(waitFor([&] { return form()->linesShown() == 4; }));  // the timer at 0 shows the whole step
    EXPECT_EQ(form()->lblCeremony->text(),
              "The first award of the evening is the Best Act award. And the nominees are...\n\n- Nightjar "
              "Records\n\n- Another Label\n\nAnd the winner is...");
    screenshot("frmAwardCeremony", {"cmdNext", "lblCeremony"});
    click(form()->cmdNext);
    EXPECT_EQ(form()->stepShown(), 2u);
    EXPECT_EQ(form()->cmdNext->text(), "Back to the News");
    click(form()->cmdNext);
    EXPECT_EQ(screen(), Screen::frmNews);
}

TEST_F(CeremonyScreen, NextCompletesAStepBeforeGoingOn) {
    attendTonight();
    screens::frmAwardCeremony::revealInterval = 60000;
    continueOneDay();
    ASSERT_NE(form(), nullptr);
    click(form()->cmdNext);  // on to the award: its first line only
    EXPECT_EQ(std::tuple(form()->stepShown(), form()->linesShown()), std::tuple(1u, 1u));
    click(form()->cmdNext);  // the rest of it at once
    EXPECT_EQ(std::tuple(form()->stepShown(), form()->linesShown()), std::tuple(1u, 4u));
    screens::frmAwardCeremony::revealInterval = 0;
}

}  // namespace

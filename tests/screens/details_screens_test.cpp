// Band and Artist Details, the options of what is on screen, the image
// question, the hall of fame, the birthday note and a story's answers.
#include <QChartView>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>
#include <QTableWidget>
#include <QValueAxis>

#include "events/scores.h"
#include "events/story_text.h"
#include "floor/news_post.h"
#include "label/finances.h"
#include "schedule/schedule.h"
#include "screen_fixture.h"
#include "screens/details_extra_screens.h"
#include "screens/option_panels.h"
#include "screens/side_bar.h"
#include "session/save_load.h"
#include "support/amend.h"
#include "support/calendar_world.h"
#include "world/strings.h"

namespace trovane::test {

class DetailsScreens : public ScreenTest {
protected:
    int16_t ours = 0, theirs = 0;

    void SetUp() override {
        ScreenTest::SetUp();
        startNewGameAsPlayer();
        Game& g = *game;
        ours = addMarshAct(g, "The Marsh Lights", g.player.playerLabel);
        theirs = addMarshAct(g, "The Far Lights");
        g.tour.rec = TourRecord{.areaCode = "E", .band = ours};
        g.tour.append();
    }
    int16_t member(int16_t band, int i) {
        game->band.read(band);
        return game->band->members[static_cast<std::size_t>(i)];
    }
    screens::OptionPanel* pressExtra() {
        click(window->sideBar()->cmdExtra);
        return window->sideBar()->extraPanel();
    }
    // Extra pressed: the options panel of that name is open.
    screens::OptionPanel* expectPanel(const char* name) {
        screens::OptionPanel* panel = pressExtra();
        EXPECT_EQ(panel ? panel->objectName() : QString(), QLatin1String(name));
        return panel;
    }
    // A figure of the screen on show (the status bar has names of its own).
    QLabel* label(const char* name) {
        auto* l = window->currentScreenWidget()->findChild<QLabel*>(QString::fromLatin1(name));
        EXPECT_NE(l, nullptr) << name;
        return l;
    }
};

TEST_F(DetailsScreens, BandDetailsListsToursAndAMemberOpensArtistDetails) {
    window->openBand(ours);
    auto* tours = find<QTableWidget>("flxTours");
    ASSERT_EQ(tours->rowCount(), 1);
    EXPECT_EQ(cells(tours, 0, {0, 1, 2}), (QStringList{"Europe Tour", "Headliner", "Europe"}));
    EXPECT_EQ(label("lblActivity")->text(), "None");
    find<QTabWidget>("tabRecord")->setCurrentWidget(tours);
    screenshot("40_frmBandDetails_tours");

    auto* members = find<QTableWidget>("flxArtists");
    members->setCurrentCell(0, 0);
    members->setFocus();
    QTest::keyClick(members, Qt::Key_Return);
    ASSERT_EQ(screen(), Screen::frmArtistDetails);
    EXPECT_EQ(window->artistOnScreen, member(ours, 0));
    EXPECT_EQ(label("lblName")->text(), "Rae 'Sparky' Marsh");
    EXPECT_EQ(label("lblBorn")->text(), "Unknown");
    EXPECT_EQ(find<QListWidget>("lstFeelings")->item(0)->text(), "Happy with conditions.");
    EXPECT_NE(window->findChild<QLabel*>("lblImageRating"), nullptr) << "the player's artist";
    screenshot("41_frmArtistDetails");
    click("cmdBack");
    EXPECT_EQ(screen(), Screen::frmBandDetails);
}

TEST_F(DetailsScreens, AnotherLabelsArtistShowsNoImageNorOptionsAndWhenRetiredTheDayWhenItIsKnown) {
    const int16_t sol = member(theirs, 1);
    window->openArtist(sol);
    EXPECT_EQ(label("lblName")->text(), "Sol Marsh");
    EXPECT_EQ(window->findChild<QLabel*>("lblImageRating"), nullptr);
    EXPECT_EQ(window->currentScreenWidget()->findChild<QLabel*>("lblRetired"), nullptr);
    EXPECT_EQ(pressExtra(), nullptr);
    amend(game->artist, sol, [&] { game->artist->retired = kTrue; });
    window->openArtist(sol);
    EXPECT_EQ(label("lblRetired")->text(), "Retired") << "no day on file";
    amend(game->artist, sol, [&] { game->artist->retirementDate = game->gameDate - 5; });
    window->openArtist(sol);
    EXPECT_EQ(label("lblRetired")->text(), "Retired on 31/7/2004");
}

TEST_F(DetailsScreens, ExtraOpensTheOptionsOfEachDetailsScreenAndClosesOnASecondPress) {
    window->openBand(ours);
    screens::OptionPanel* panel = expectPanel("frmBandOptionsSigned");
    ASSERT_NE(panel, nullptr);
    EXPECT_TRUE(panel->isVisible());
    click(window->sideBar()->cmdExtra);
    EXPECT_FALSE(panel->isVisible());

    window->openBand(theirs);
    expectPanel("frmBandOptionsUnsigned");

    const int16_t rival = game->player.playerLabel == 1 ? 2 : 1;
    ASSERT_LT(rival, game->label.recordCount());
    amend(game->band, theirs, [&] { game->band->label = rival; });
    window->openBand(theirs);
    panel = expectPanel("frmBandOptionsUnsigned");  // signed elsewhere
    ASSERT_NE(panel, nullptr);
    EXPECT_FALSE(panel->entry("lblApproach")->isEnabled());
    EXPECT_TRUE(panel->entry("lblScout")->isEnabled());

    window->openArtist(member(ours, 1));
    panel = expectPanel("frmArtistOptionsSigned");
    ASSERT_NE(panel, nullptr);
    EXPECT_NE(panel->entry("lblChangeImage"), nullptr);
    screenshotOf(window.get(), "42_frmArtistOptionsSigned");
    continueOneDay();
    EXPECT_FALSE(panel && panel->isVisible()) << "Continue closes the options";

    window->openScreen(Screen::frmNews);
    QWidget* news = window->currentScreenWidget();
    EXPECT_EQ(pressExtra(), nullptr) << "a screen without options";
    EXPECT_EQ(window->currentScreenWidget(), news);
}

TEST_F(DetailsScreens, ChangeImageAsksNoFilesNothingAndYesFilesTheReportForAWeekOn) {
    const int16_t rae = member(ours, 0);
    window->openArtist(rae);
    screens::OptionPanel* panel = pressExtra();
    ASSERT_NE(panel, nullptr);
    const int32_t entries = game->schedule.recordCount();
    click(panel->entry("lblChangeImage"));
    QWidget* ask = dialog("frmConfirm");
    ASSERT_NE(ask, nullptr);
    click(ask->findChild<QPushButton*>("cmdNo"));
    EXPECT_EQ(game->schedule.recordCount(), entries);
    if (!panel->isVisible()) panel = pressExtra();
    ASSERT_NE(panel, nullptr);
    click(panel->entry("lblChangeImage"));
    ask = dialog("frmConfirm");
    ASSERT_NE(ask, nullptr);
    EXPECT_EQ(ask->windowTitle(), "Confirm Image Analysis");
    // No job in the tiny world's table for her: the name alone after the band.
    EXPECT_EQ(ask->findChild<QLabel*>("lblQuestion")->text(),
              "Are you sure you want your marketing department to analyse The Marsh Lights Rae Marsh's image?");
    screenshotOf(ask, "43_frmConfirm_image");
    click(ask->findChild<QPushButton*>("cmdYes"));
    ASSERT_EQ(game->schedule.recordCount(), entries + 1);
    game->schedule.read(entries);
    EXPECT_EQ(std::tuple(game->schedule->type, game->schedule->date, game->schedule->label, game->schedule->artist),
              std::tuple(uint8_t{9}, game->gameDate + 7, game->player.playerLabel, rae));
}

TEST_F(DetailsScreens, TheHallOfFameAndTheBirthdayNoteOpenFromTheGameOptionsAndOnTheDay) {
    updateHighScoreTable(*game);  // this career's row, as a day writes it
    click(window->sideBar()->btnGameOptions);
    click(window->sideBar()->gameOptions()->entry("lblHallOfFame"));
    auto* fame = dialog<screens::frmHighScoreTable>("frmHighScoreTable");
    ASSERT_NE(fame, nullptr);
    EXPECT_EQ(fame->flxScores->horizontalHeaderItem(0)->text(), "Pos");
    ASSERT_GE(fame->flxScores->rowCount(), 1);
    EXPECT_EQ(fame->markedRow, 0) << "the only career is this one, first";
    EXPECT_EQ(fame->flxScores->item(0, 0)->text(), "1");
    EXPECT_TRUE(fame->flxScores->item(0, 2)->font().bold());
    screenshotOf(fame, "44_frmHighScoreTable");
    fame->close();

    click(window->sideBar()->btnGameOptions);
    click(window->sideBar()->gameOptions()->entry("lblBirthday"));
    auto* note = dialog<screens::frmBirthday>("frmBirthday");
    ASSERT_NE(note, nullptr);
    EXPECT_EQ(note->lblTitle->text(), QString::fromStdString(trim(game->player.playerForename.value)) + "'s Birthday");
    screenshotOf(note, "45_frmBirthday");
    note->close();

    // A session that starts on the player's birthday opens the note.
    Game& g = *game;
    EXPECT_EQ(dialog("frmBirthday"), nullptr) << "the new game did not start on the player's day";
    g.staff.read(g.player.playerStaff);
    const CivilDate today = civilFromSerial(g.gameDate);
    g.staff->birthDate = serialFromCivil(1970, today.month, today.day);
    g.staff.write();
    saveGame(g, 1, "Birthday");
    window->loadSavedGame(1);
    ASSERT_TRUE(waitFor([&] { return dialog("frmBirthday") != nullptr; }));
    EXPECT_EQ(screen(), Screen::frmNews);
}

TEST_F(DetailsScreens, AStorysAnswersShowTheirStatementsAndDefendPostsIt) {
    Game& g = *game;
    g.event.rec =
        EventRecord{.eventNumber = static_cast<int16_t>(g.event.recordCount()), .participantCount = 1, .replyCount = 2};
    g.event->replyText[0] = std::string("We stand by <an1>.");
    g.event->replyText[1] = std::string("<an1> has let us all down.");
    const int16_t event = static_cast<int16_t>(g.event.append());
    const int32_t entry =
        addSchedule(g, ScheduleRecord{.type = 12, .date = g.gameDate, .artist = member(ours, 1), .eventRecord = event});
    postNews(g, {.date = g.gameDate,
                 .title = "Sol Marsh in a row",
                 .text = "A row.",
                 .kind = kNewsMediaStory,
                 .scheduleLink = entry,
                 .eventLink = event});
    window->newsItemOnScreen = g.news.recordCount() - 1;
    window->openScreen(Screen::frmNewsFull);
    auto* defend = find<QPushButton>("cmd1");
    EXPECT_EQ(defend->toolTip(), "We stand by Sol Marsh.");
    EXPECT_EQ(find<QPushButton>("cmd2")->toolTip(), "Sol Marsh has let us all down.");
    screenshot("46_frmNewsFull_story_answers");
    click(defend);
    g.news.read(g.news.recordCount() - 1);
    EXPECT_EQ(trim(g.news->text.value), "We stand by Sol Marsh.");
}

TEST_F(DetailsScreens, LabelAndStaffDetailsListTheirAchievementsNewestFirst) {
    Game& g = *game;
    auto addMark = [&](uint8_t kind, int16_t who, double date, const char* text) {
        g.achieve.rec = AchievementRecord{.kind = kind, .text = text, .date = date, .who = who};
        g.achieve.append();
    };
    const double day = test::day(2004, 8, 1);
    addMark(2, g.player.playerLabel, day, "First signing");
    addMark(2, g.player.playerLabel, day + 2, "First hit");
    addMark(3, g.player.playerStaff, day + 1, "Boss of the month");
    click(window->sideBar()->btnLabelOptions);
    ASSERT_EQ(screen(), Screen::frmLabelDetails);
    auto marks = [&] { return items(window->currentScreenWidget()->findChild<QListWidget*>("lstAchievements")); };
    EXPECT_EQ(marks(), (QStringList{"3/8/2004   First hit", "1/8/2004   First signing"}));

    window->staffOnScreen = g.player.playerStaff;
    window->openScreen(Screen::frmStaffDetails);
    EXPECT_EQ(marks(), (QStringList{"2/8/2004   Boss of the month"}));
    screenshot("47_frmStaffDetails_achievements");
}

TEST_F(DetailsScreens, TheLabelPagesCashChartLeavesATenthOfTheSpreadAboveAndBelow) {
    Game& g = *game;
    for (int32_t n = 1; n < g.ledger.recordCount(); ++n)
        amend(g.ledger, n, [&] { g.ledger->cash = moneyUnits(1'000'000); });
    appendLedgerRow(g, g.player.playerLabel, LedgerPeriod{}, moneyUnits(3'000'000));
    click(window->sideBar()->btnLabelOptions);
    ASSERT_EQ(screen(), Screen::frmLabelDetails);
    auto* view = window->currentScreenWidget()->findChild<QChartView*>("chtCash");
    ASSERT_NE(view, nullptr);
    const auto axes = view->chart()->axes(Qt::Vertical);
    ASSERT_EQ(axes.size(), 1);
    const auto* y = qobject_cast<QValueAxis*>(axes[0]);
    ASSERT_NE(y, nullptr);
    // 1,000,000 to 3,000,000: a tenth of the 2,000,000 between, 200,000, is
    // more than a twentieth of the top, 150,000.
    EXPECT_EQ(std::pair(y->min(), y->max()), std::pair(800'000.0, 3'200'000.0));
}

TEST_F(DetailsScreens, AVenueCardListsItsGigsLatestFirst) {
    Game& g = *game;
    g.venue.rec = VenueRecord{.name = std::string("The Marsh Hall"), .capacity = 2500};
    const int16_t venue = static_cast<int16_t>(g.venue.append());
    for (auto [date, attendance] : {std::pair{test::day(2004, 3, 2), 900}, {test::day(2004, 6, 9), 2100}}) {
        const int32_t gig = test::addGig(g, ours, date);
        amend(g.gig, gig, [&] {
            g.gig->venue = venue;
            g.gig->attendance = attendance;
        });
    }
    window->openVenue(venue);
    auto* card = dialog<screens::frmVenueCard>("frmVenueCard");
    ASSERT_NE(card, nullptr);
    EXPECT_EQ(card->lblName->text(), "The Marsh Hall");
    ASSERT_EQ(card->flxGigs->rowCount(), 2);
    EXPECT_EQ(cells(card->flxGigs, 0, {0, 1, 2}), (QStringList{"9/6/2004", "The Marsh Lights", "2,100"}));
    EXPECT_EQ(card->flxGigs->item(1, 0)->text(), "2/3/2004");
    screenshotOf(card, "48_frmVenueCard");
    card->close();
}

}  // namespace trovane::test

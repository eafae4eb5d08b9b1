// Starting a new game: the player's choices, founding or taking over a label,
// and a whole stretch of play with saves and loads in between.
#include <gtest/gtest.h>

#include <set>

#include "day/daily_cycle.h"
#include "floor/preferences.h"
#include "label/finances.h"
#include "session/invariants.h"
#include "session/new_game.h"
#include "session/save_load.h"
#include "support/temp_folder.h"
#include "support/tiny_world.h"
#include "world/dates.h"
#include "world/record_store.h"
#include "world/strings.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

class NewGame : public ::testing::Test {
protected:
    test::TempFolder folder;
    Game g{folder.path(), 99};

    void SetUp() override {
        test::writeTinyBaseWorld(folder.path());
        g.clockDate = [] { return serialFromCivil(2026, 11, 22); };
        readPrefs(g);
        beginNewGame(g);
    }
    void TearDown() override { closeAllTables(g); }

    static PlayerChoices player() {
        return {.forename = "  Ann ",
                .surname = "Lee",
                .birthDay = 24,
                .birthMonth = 12,
                .birthYear = 1980,
                .male = false,
                .nationality = "Scottish"};
    }
    static LabelChoices label(const std::string& country, const std::string& city) {
        return {.name = "Quarry Records", .country = country, .city = city, .style = "Indie Rock"};
    }
};

TEST(BirthDate, DayListsFollowTheMonthAndKeepTheDayWhenTheyCan) {
    EXPECT_EQ(std::tuple(daysInBirthMonth(1984, 2), daysInBirthMonth(1983, 2), daysInBirthMonth(1900, 2),
                         daysInBirthMonth(2000, 2)),
              std::tuple(29, 28, 28, 29));
    // A day past the month falls back to the top of the list.
    EXPECT_EQ(std::tuple(keptBirthDay(31, 1982, 6), keptBirthDay(30, 1982, 6), keptBirthDay(29, 1983, 2)),
              std::tuple(1, 30, 1));
    EXPECT_EQ(std::tuple(birthYears().front(), birthYears().back()), std::tuple(1880, 2003));
}

TEST_F(NewGame, DefaultsAreTwentiethJuly1982OnlyWithoutEarlierChoices) {
    PlayerChoices p = defaultPlayerChoices(g);
    EXPECT_EQ(std::tuple(p.birthDay, p.birthMonth, p.birthYear, p.nationality),
              std::tuple(20, 7u, 1982, std::string("English")));
    confirmPlayer(g, player());
    p = defaultPlayerChoices(g);
    EXPECT_EQ(std::tuple(p.birthDay, p.birthMonth, p.birthYear, p.forename, p.male, p.nationality),
              std::tuple(24, 12u, 1980, std::string("Ann"), false, std::string("Scottish")));
    // A year the lists do not offer is not a default.
    for (auto [year, shown] : {std::pair{2003, 2003}, {2004, 1982}}) {
        g.prefs.rec.birthYear = narrow<int16_t>(year);
        writePrefs(g);
        EXPECT_EQ(defaultPlayerChoices(g).birthYear, shown);
    }
}

TEST_F(NewGame, ThePlayerIsAStaffRecordAgedByTheComputersClock) {
    NewPlayer p = confirmPlayer(g, player());
    // Record 2, after the rival's boss; aged 45 on 22 November 2026, not on the game's first day.
    const StaffRecord& s = p.staff;
    EXPECT_EQ(
        std::tuple(s.id, s.forename.value, s.age, s.male, s.country, s.contractEnd),
        std::tuple(int16_t{2}, std::string("Ann"), uint8_t{45}, kFalse, uint8_t{2}, serialFromCivil(2027, 11, 22)));
    EXPECT_EQ(g.gameDate, serialFromCivil(2004, 8, 5));
}

struct Home {
    const char* country;
    const char* city;
    std::array<uint8_t, 5> reputation;  // UK, US, Europe, Oceania, Global
};

class LabelHome : public NewGame, public ::testing::WithParamInterface<Home> {};

TEST_P(LabelHome, ANewLabelsReputationFollowsItsHome) {
    NewPlayer p = confirmPlayer(g, player());
    foundLabel(g, p, label(GetParam().country, GetParam().city));
    EXPECT_EQ((g.label.read(g.player.playerLabel), g.label->reputation), GetParam().reputation);
}

INSTANTIATE_TEST_SUITE_P(NewGame, LabelHome,
                         ::testing::Values(Home{"Scotland", "Glasgow", {40, 15, 20, 10, 5}},
                                           Home{"France", "Paris", {20, 15, 40, 10, 5}},
                                           Home{"Canada", "Toronto", {10, 40, 20, 15, 5}},
                                           Home{"New Zealand", "Auckland", {10, 20, 15, 40, 5}},
                                           Home{"Brazil", "Rio de Janeiro", {15, 5, 10, 20, 40}}));

TEST_F(NewGame, EveryStaffContractRunsOneToThreeYears) {
    foundLabel(g, confirmPlayer(g, player()), label("Scotland", "Glasgow"));
    const CivilDate today = civilFromSerial(g.gameDate);  // 5 August 2004
    std::set<double> ends;
    for (int years : {1, 2, 3}) ends.insert(serialFromCivil(today.year + years, today.month, today.day));
    ASSERT_GT(g.staff.recordCount(), 1);
    for (int32_t n = 1; n < g.staff.recordCount(); ++n)
        EXPECT_TRUE(ends.contains((g.staff.read(n), g.staff->contractEnd))) << n;
}

TEST_F(NewGame, FoundingALabelGivesAMillionAndTellsTheNews) {
    NewPlayer p = confirmPlayer(g, player());
    foundLabel(g, p, label("Scotland", "Glasgow"));
    EXPECT_EQ(std::tuple(g.player.playerLabel, g.player.playerLabelCash), std::tuple(int16_t{2}, moneyUnits(1000000)));
    g.label.read(2);
    EXPECT_EQ(std::tuple(g.label->boss, int{g.label->labelStyle}, int{g.label->city}), std::tuple(p.staff.id, 1, 2));
    g.news.read(1);
    EXPECT_EQ(g.news->title, "New indie label founded by Ann Lee");
    EXPECT_EQ(g.news->text,
              "New independent record label Quarry Records opened the doors of their Glasgow office for the first "
              "time today. New boss Ann Lee will have her work cut out just trying to keep the label afloat in the "
              "current climate but with hard work, perseverence and luck one day maybe Quarry Records can join the "
              "hallowed ranks of the major labels. Only time will tell if Ann is up to the challenge.");
    EXPECT_EQ(std::tuple(g.news->date, (g.staff.read(p.staff.id), g.staff->employer), g.currentScreen),
              std::tuple(g.gameDate, 2, Screen::frmNews));
    LabelChoices remembered = defaultLabelChoices(g);
    EXPECT_EQ(std::tuple(remembered.name, remembered.city),
              std::tuple(std::string("Quarry Records"), std::string("Glasgow")));
}

TEST_F(NewGame, TakingOverALabelKeepsItsCashAndBands) {
    NewPlayer p = confirmPlayer(g, player());
    takeOverLabel(g, p, 1);
    EXPECT_EQ(g.player.playerLabel, 1);
    // The album plan of its band may buy songs in: the cash is the data's less what the books show.
    g.label.read(1);
    Money booked = 0;
    for (int c = ledgerWages; c <= ledgerOtherIncome; ++c) booked += ledgerEntry(g.label.rec, 0, c);
    EXPECT_EQ(g.player.playerLabelCash, moneyUnits(4500000) + booked);
    EXPECT_EQ(trim(g.player.playerLabelName.value), "Greystone Music");
    EXPECT_EQ(std::tuple(g.label->boss, int{g.label->bandCount}), std::tuple(p.staff.id, 1));
    g.news.read(1);
    EXPECT_EQ(g.news->title, "Ann Lee appointed as new boss of Greystone Music");
    EXPECT_NE(g.news->text.value.find("the 45 year old has no previous experience"), std::string::npos);
    EXPECT_NE(g.news->text.value.find("confidence in her abilities"), std::string::npos);
    auto labels = existingLabels(g);
    ASSERT_EQ(labels.size(), 1u);
    EXPECT_EQ(labels[0].bands, std::vector<std::string>{"Tess Calloway"});
    // A signed act starts each market's hype at minus its reputation there, its members at its reputation.
    int signedActs = 0;
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        const BandRecord b = (g.band.read(n), g.band.rec);
        if (b.label < 1) continue;
        ++signedActs;
        std::array<int16_t, 5> minus{};
        for (std::size_t m = 0; m < 5; ++m) minus[m] = static_cast<int16_t>(-b.reputation[m]);
        EXPECT_EQ(std::tuple(b.hype, (g.artist.read(b.members[0]), g.artist->reputation)),
                  std::tuple(minus, b.reputation));
    }
    EXPECT_GT(signedActs, 0);
    // The hundred solo artists made last: one member each, the act named after them.
    ASSERT_GT(g.band.recordCount(), 100);
    for (int32_t n = g.band.recordCount() - 100; n < g.band.recordCount(); ++n) {
        const BandRecord b = (g.band.read(n), g.band.rec);
        const ArtistRecord a = (g.artist.read(b.members[0]), g.artist.rec);
        EXPECT_EQ(std::tuple(int{b.memberCount}, trim(b.name.value)),
                  std::tuple(1, trim(trim(a.forename.value) + " " + trim(a.surname.value))));
    }
}

TEST_F(NewGame, EveryNewGameRaisesTheCounterAndCancelLeavesNoWorkingSet) {
    NewPlayer p = confirmPlayer(g, player());
    foundLabel(g, p, label("England", "London"));
    int first = g.player.gameNumber;
    EXPECT_GE(first, 1);
    discardWorkingSet(g);  // never saved
    for (const auto& e : fs::directory_iterator(folder.path())) EXPECT_NE(e.path().extension(), ".vel");
    beginNewGame(g);
    takeOverLabel(g, confirmPlayer(g, player()), 1);
    EXPECT_EQ(g.player.gameNumber, first + 1);
}

TEST_F(NewGame, ThirtyDaysSaveThirtyMoreLoadAndThirtyAgain) {
    foundLabel(g, confirmPlayer(g, player()), label("England", "London"));
    auto play = [&](int days) {
        for (int d = 0; d < days; ++d) {
            ASSERT_TRUE(allRepliesGiven(g));
            checkDaysSchedule(g);
            auto broken = checkInvariants(g);
            ASSERT_FALSE(broken) << describeBreak(*broken);
        }
    };
    play(30);
    double savedOn = g.gameDate;
    saveGame(g, 4, "A month in");
    play(30);
    EXPECT_EQ(g.gameDate, savedOn + 30);
    loadGame(g, 4);
    EXPECT_EQ(g.gameDate, savedOn);
    play(30);
    EXPECT_EQ(g.gameDate, savedOn + 30);
    // The high-score row of this career is the same one after the load.
    g.highscore.open(dataFile(g, "highscore", "gam"), IfMissing::fail);
    int rows = 0;
    for (int32_t n = 1; n != g.highscore.recordCount(); ++n) {
        g.highscore.read(n);
        rows += g.highscore->game == g.player.gameNumber;
    }
    g.highscore.close();
    EXPECT_EQ(rows, 1);
}

}  // namespace

// The marks of a career: birthdays, the high-score table and the hidden acts.
#include <gtest/gtest.h>

#include <tuple>

#include "browse/achievement_browse.h"
#include "events/hidden_bands.h"
#include "events/scores.h"
#include "support/amend.h"
#include "support/game_test.h"
#include "support/signing_world.h"
#include "world/dates.h"
#include "world/record_store.h"

using namespace trovane;
using namespace trovane::test;

namespace {

class Scores : public GameTest {
protected:
    int16_t addArtist(const std::string& forename, double born, int16_t band = 0) {
        g.artist.rec =
            ArtistRecord{.forename = forename, .surname = "Smith", .age = 30, .birthDate = born, .band = band};
        return static_cast<int16_t>(g.artist.append());
    }
    std::vector<std::pair<int16_t, double>> birthdaysFiled() {
        std::vector<std::pair<int16_t, double>> v;
        for (int32_t n = 1; n < g.schedule.recordCount(); ++n) {
            g.schedule.read(n);
            if (g.schedule->type == 16) v.emplace_back(g.schedule->artist, g.schedule->date);
        }
        return v;
    }
    void playerBornOn(double born) {
        g.staff.rec = StaffRecord{.birthDate = born};
        g.player.playerStaff = static_cast<int16_t>(g.staff.append());
        g.player.playerForename = "Ivo";
    }
};

TEST_F(Scores, TheThirtyFirstOfDecemberFilesNextYearsBirthdaysInTableOrder) {
    g.gameDate = g.gameStartDate = serialFromCivil(2004, 12, 31);
    int16_t leap = addArtist("Leap", serialFromCivil(1980, 2, 29));
    int16_t may = addArtist("May", serialFromCivil(1975, 5, 3));
    addArtist("Unknown", 0);
    addBirthdays(g, 2005, serialFromCivil(2005, 1, 1));
    // 2005 is a common year: 29 February gives 1 March.
    EXPECT_EQ(birthdaysFiled(), (std::vector<std::pair<int16_t, double>>{{leap, serialFromCivil(2005, 3, 1)},
                                                                         {may, serialFromCivil(2005, 5, 3)}}));
    EXPECT_EQ(birthdayIn(serialFromCivil(1980, 2, 29), 2008), serialFromCivil(2008, 2, 29));
}

TEST_F(Scores, ANewGameFilesOnlyTheBirthdaysLeftInItsYear) {
    g.gameDate = g.gameStartDate = serialFromCivil(2004, 4, 1);
    addArtist("Before", serialFromCivil(1970, 3, 31));
    int16_t on = addArtist("On", serialFromCivil(1970, 4, 1));
    addBirthdays(g, 2004, serialFromCivil(2004, 4, 1));
    EXPECT_EQ(birthdaysFiled(), (std::vector<std::pair<int16_t, double>>{{on, serialFromCivil(2004, 4, 1)}}));
    g.schedule.rec = ScheduleRecord{.artist = on};
    artistBirthday(g);  // a year older
    EXPECT_EQ((g.artist.read(on), g.artist->age), 31);
}

TEST_F(Scores, TheBirthdayNoteListsWhoSharesThePlayersDayOrSaysSorry) {
    playerBornOn(serialFromCivil(1990, 6, 14));
    addArtist("Near", serialFromCivil(1990, 6, 13));
    EXPECT_EQ(birthdayNote(g).text, "Unfortunately no artists in Trovane share your birthday, sorry about that.");
    int16_t band = addAct(g, {.name = "The Kites"});
    addArtist("Twin", serialFromCivil(1966, 6, 14), band);
    addArtist("Solo", serialFromCivil(1981, 6, 14));
    addArtist("Near", serialFromCivil(1990, 6, 15));
    BirthdayNote note = birthdayNote(g);
    EXPECT_EQ(note.title, "Ivo's Birthday");
    EXPECT_EQ(note.text,
              "Congratulations! You share your birthday (14 June) with :-\r\n\r\n"
              "- Twin Smith (The Kites) \r\n- Solo Smith (independent artist) \r\n");
    g.gameDate = serialFromCivil(2004, 6, 14);
    EXPECT_TRUE(isPlayersBirthday(g));
    g.gameDate = serialFromCivil(2004, 6, 15);
    EXPECT_FALSE(isPlayersBirthday(g));
}

TEST_F(Scores, OneCareerKeepsOneRowAndASecondCareerAddsItsOwn) {
    playerBornOn(0);
    amend(g.staff, g.player.playerStaff, [&] { g.staff->points = {100, 200, 300, 400, 500}; });
    g.player.gameNumber = 7;
    updateHighScoreTable(g);
    // 1,100 + 200 + 300 + 400 + 500 = 2,500
    amend(g.staff, g.player.playerStaff, [&] { g.staff->points[0] = 1100; });
    updateHighScoreTable(g);
    g.player.gameNumber = 8;
    updateHighScoreTable(g);
    g.highscore.open(dataFile(g, "highscore", "gam"), IfMissing::fail);
    ASSERT_EQ(g.highscore.recordCount(), 3);  // two rows after the unused record 0
    EXPECT_EQ((g.highscore.read(1), std::tuple(g.highscore->game, g.highscore->score)), std::tuple(7, 2500));
    EXPECT_EQ((g.highscore.read(2), g.highscore->game), 8);
    g.highscore.close();
}

TEST_F(Scores, AFourPiecesAchievementIsEachMembersNewestFirst) {
    int16_t band = addAct(g, {.ranks = {1, 1, 1, 1}, .name = "Quartet"});
    g.gameDate = serialFromCivil(2004, 5, 1);
    g.band.read(band);
    addAchievement(g, 0, "First gold");
    g.gameDate = serialFromCivil(2004, 6, 1);
    g.band.read(band);
    addAchievement(g, 0, "First platinum");
    auto texts = [&](int kind, int16_t who) {
        std::vector<std::string> out;
        for (const auto& row : achievementsOf(g, kind, who)) out.push_back(row.text);
        return out;
    };
    const BandRecord b = (g.band.read(band), g.band.rec);
    for (int16_t member : std::span(b.members).first(4))
        EXPECT_EQ(texts(1, member), (std::vector<std::string>{"(Quartet) First platinum", "(Quartet) First gold"}))
            << member;
    g.band.read(band);
    addAchievement(g, 0, "Top ten");  // the platinum's day: written after it, shown before it
    EXPECT_EQ(texts(0, band), (std::vector<std::string>{"Top ten", "First platinum", "First gold"}));
    EXPECT_EQ(achievementsOf(g, 2, band).size(), 0u);  // a label of the same number has none
}

class HiddenBands : public Scores {
protected:
    int16_t player = addLabel(g, {1, 1, 1, 1, 1}, "Mine");

    // A bank holding one act, "Hollow Parade", of `members` members.
    void makeBank(int members) {
        g.cb.open(dataFile(g, "cb", "gam"), IfMissing::createEmpty);
        g.ca.open(dataFile(g, "ca", "gam"), IfMissing::createEmpty);
        g.cb.rec = BandRecord{.name = "Hollow Parade", .memberCount = static_cast<uint8_t>(members)};
        for (int m = 0; m < members; ++m) {
            g.ca.rec = ArtistRecord{.forename = "Hidden", .surname = std::to_string(m + 1), .band = 1};
            g.cb->members[static_cast<std::size_t>(m)] = static_cast<int16_t>(g.ca.append());
        }
        g.cb.append();
        g.cb.close();
        g.ca.close();
    }
    void typed(const char* forename, const char* surname) {
        g.player.playerForename = forename;
        g.player.playerSurname = surname;
        g.player.playerLabel = player;
    }
};

TEST_F(HiddenBands, OnlyTheExactNameUnlocksTheActWhichJoinsTheEndOfTheTablesSignedToThePlayer) {
    EXPECT_EQ(hiddenBandFor("Odile Crane"), "The Salt Lanterns");
    EXPECT_EQ(hiddenBandFor("Ivo  Marsh"), "");
    makeBank(2);
    typed("Ruben", "TEAL");
    unlockHiddenBand(g);
    typed("Ivo", "Marsh");  // The Salt Lanterns: not in this bank
    unlockHiddenBand(g);
    EXPECT_EQ(std::tuple(g.band.recordCount(), g.artist.recordCount(), g.news.recordCount()), std::tuple(1, 1, 1));
    addArtist("Already", 0);              // artist 1
    addAct(g, {.name = "Someone Else"});  // band 1, its member artist 2
    typed(" Ruben", "Teal ");
    unlockHiddenBand(g);
    ASSERT_EQ(g.band.recordCount(), 3);
    EXPECT_EQ((g.band.read(2), std::tuple(g.band->label, g.band->members[0], g.band->members[1])),
              std::tuple(player, 3, 4));
    EXPECT_EQ((g.artist.read(4), std::tuple(g.artist->id, g.artist->band)), std::tuple(4, 2));
    EXPECT_EQ((g.label.read(player), g.label->bandCount), 1);
}

TEST_F(HiddenBands, ASoloActHasBeenUnlocked) {
    makeBank(1);
    typed("Ruben", "Teal");
    unlockHiddenBand(g);
    EXPECT_EQ((g.news.read(1), g.news->text.value),
              "Hollow Parade has been unlocked and automatically signed to your label.");
}

}  // namespace

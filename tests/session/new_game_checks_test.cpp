// The checks of the new-game forms, on the tiny world: England, Scotland and
// France in Europe with one city each, Canada, New Zealand, Brazil; the styles
// Indie Rock and Legend; the label Greystone Music.
#include "session/new_game_checks.h"

#include <gtest/gtest.h>

#include "floor/preferences.h"
#include "support/temp_folder.h"
#include "support/tiny_world.h"
#include "world/record_store.h"

using namespace trovane;

namespace {

class NewGameChecks : public ::testing::Test {
protected:
    test::TempFolder folder;
    Game g{folder.path(), 5};

    void SetUp() override {
        test::writeTinyBaseWorld(folder.path());
        beginNewGame(g);
    }
    void TearDown() override { closeAllTables(g); }

    static PlayerChoices player() { return {.forename = "Ann", .surname = "Lee", .nationality = "Scottish"}; }
    static LabelChoices label() { return {.name = "Quarry Records", .city = "London", .style = "Indie Rock"}; }
    // The refused field and the words the player is shown.
    static std::pair<NewGameField, std::string> said(const InputRefusal& r) { return {r.field, r.text}; }
};

}  // namespace

TEST_F(NewGameChecks, ThePlayersFirstBrokenRuleIsNamedWithItsField) {
    EXPECT_FALSE(checkPlayerChoices(g, player()));
    PlayerChoices p = player();
    p.forename = " ";
    p.surname = "Ω";
    EXPECT_EQ(said(checkPlayerChoices(g, p)),
              std::pair(NewGameField::forename, std::string("The forename cannot be blank.")));
    p.forename = "Ann";
    EXPECT_EQ(
        said(checkPlayerChoices(g, p)),
        std::pair(NewGameField::surname, std::string("The surname holds \"Ω\", a character the game cannot store.")));
    // A name fills its thirty-two characters and no more.
    p.surname = std::string(32, 'e');
    EXPECT_FALSE(checkPlayerChoices(g, p));
    p.surname += "é";
    EXPECT_EQ(
        said(checkPlayerChoices(g, p)),
        std::pair(NewGameField::surname, std::string("The surname is 33 characters long; it may be at most 32.")));
    // A nationality is a country's adjective.
    p = player();
    p.nationality = "British";
    EXPECT_EQ(said(checkPlayerChoices(g, p)),
              std::pair(NewGameField::nationality, std::string("There is no nationality \"British\".")));
    p.nationality = "New Zealander";
    EXPECT_FALSE(checkPlayerChoices(g, p));
}

TEST_F(NewGameChecks, BirthDatesRunFromTheFirstOf1880ToTheLastOf2003) {
    struct Case {
        int y;
        unsigned m;
        int d;
        bool taken;
    };
    for (Case c : {Case{1880, 1, 1, true}, Case{1879, 12, 31, false}, Case{2003, 12, 31, true}, Case{2004, 1, 1, false},
                   Case{2000, 2, 29, true}, Case{1900, 2, 29, false}, Case{2003, 4, 31, false},
                   Case{2003, 13, 1, false}, Case{2003, 1, 0, false}}) {
        PlayerChoices p = player();
        std::tie(p.birthYear, p.birthMonth, p.birthDay) = std::tuple(c.y, c.m, c.d);
        InputRefusal r = checkPlayerChoices(g, p);
        EXPECT_EQ(!r, c.taken) << c.y << "-" << c.m << "-" << c.d;
        if (r) { EXPECT_EQ(r.text, "The date of birth must be a real date from 1 January 1880 to 31 December 2003."); }
    }
}

TEST_F(NewGameChecks, ALabelsNamePlaceAndStyleMustBeNewAndExist) {
    // Another label's name is refused in any capitals and with blanks around.
    LabelChoices l = label();
    l.name = "  gREYSTONE music ";
    EXPECT_EQ(said(checkLabelChoices(g, l)),
              std::pair(NewGameField::labelName, std::string("There is already a label called Greystone Music.")));
    l.name = "Greystone Musics";
    EXPECT_FALSE(checkLabelChoices(g, l));

    l.continent = "Europa";  // an unknown continent lists the six
    InputRefusal r = checkLabelChoices(g, l);
    EXPECT_EQ(said(r), std::pair(NewGameField::continent, std::string("There is no continent \"Europa\".")));
    EXPECT_EQ(r.choices,
              (std::vector<std::string>{"Africa", "Asia", "Europe", "North America", "Oceania", "South America"}));

    l = label();  // a country must exist and lie in the continent
    l.country = "Wales";
    EXPECT_EQ(checkLabelChoices(g, l).text, "There is no country \"Wales\".");
    l.country = "Canada";
    l.city = "Toronto";
    r = checkLabelChoices(g, l);
    EXPECT_EQ(said(r), std::pair(NewGameField::country,
                                 std::string("Canada is not a country of Europe with a city for a label.")));
    EXPECT_EQ(r.choices, (std::vector<std::string>{"England", "Scotland", "France"}));
    l.continent = "North America";
    EXPECT_FALSE(checkLabelChoices(g, l));

    l = label();  // a city must exist and lie in the country
    l.city = "Glasgow";
    r = checkLabelChoices(g, l);
    EXPECT_EQ(said(r), std::pair(NewGameField::city, std::string("Glasgow is not a city of England.")));
    EXPECT_EQ(r.choices, std::vector<std::string>{"London"});
    l.city = "Atlantis";
    EXPECT_EQ(checkLabelChoices(g, l).text, "There is no city \"Atlantis\".");

    l = label();  // a style must exist or be all styles
    l.style = "All Styles";
    EXPECT_FALSE(checkLabelChoices(g, l));
    l.style = "Polka";
    r = checkLabelChoices(g, l);
    EXPECT_EQ(said(r), std::pair(NewGameField::style, std::string("There is no style \"Polka\".")));
    EXPECT_EQ(r.choices, (std::vector<std::string>{"All Styles", "Indie Rock", "Legend"}));
}

TEST_F(NewGameChecks, TakingOverNamesTheLabelByItsExactName) {
    int16_t label = 0;
    EXPECT_FALSE(checkTakeOver(g, "Greystone Music", label));
    EXPECT_EQ(label, 1);
    EXPECT_EQ(said(checkTakeOver(g, "Greystone", label)),
              std::pair(NewGameField::label, std::string("There is no label called \"Greystone\".")));
}

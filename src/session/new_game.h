#pragma once
// Starting a new game: the player describes themselves, then founds a label or
// takes one over, and the world is brought to its first day.
#include <cstdint>
#include <string>
#include <vector>

#include "floor/list_fillers.h"
#include "world/records.h"

namespace trovane {

class Game;

// What frmStartNewGame asks of the player.
struct PlayerChoices {
    std::string forename;
    std::string surname;
    int birthDay = 20;
    unsigned birthMonth = 7;  // 1 January ... 12 December
    int birthYear = 1982;
    bool male = true;
    std::string nationality = "English";
    bool createNewLabel = true;  // false: manage an existing label
};

// The choices shown first: the last player's from prefs.gam, else 20 July 1982.
PlayerChoices defaultPlayerChoices(Game& g);
// The years a player may be born in, 1880 to 2003.
std::vector<int> birthYears();
// The days of a month as the day list shows them (29 in a leap February).
int daysInBirthMonth(int year, unsigned month);
// The chosen day after the month or year changed: kept when it still exists, else the first.
int keptBirthDay(int day, int year, unsigned month);

// Copies the base set to a fresh working set and opens it.
void beginNewGame(Game& g);
// Closes every file and deletes the working set (every *.vel file).
void discardWorkingSet(Game& g);

// The player as a staff record not yet written: the head of the label to come.
struct NewPlayer {
    PlayerChoices choices;
    StaffRecord staff;
};

// The OK of the player form: remembers the choices in prefs.gam, counts every
// label's bands, fills the session block and the player's staff record.
NewPlayer confirmPlayer(Game& g, const PlayerChoices& choices);

// The six continents of the label form with their region codes.
struct Continent {
    const char* name;
    const char* region;
};
const std::vector<Continent>& continents();

// What frmCreateNewLabel asks: the label's name, continent, country, home city and style ("All Styles" for none).
struct LabelChoices {
    std::string name;
    std::string continent = "Europe";
    std::string country = "England";
    std::string city;
    std::string style = "All Styles";
};
LabelChoices defaultLabelChoices(Game& g);
// The country, city and style lists of the label form, each refilled when the one above changes.
std::vector<ListRow> countriesOfContinent(Game& g, const std::string& continent);
std::vector<ListRow> citiesOfCountry(Game& g, const std::string& country);

// The five reputations (UK, US, Europe, Oceania, Global) a new label starts
// with: 40, 20, 15, 10 and 5 in the order of importance of its home.
std::array<uint8_t, 5> newLabelReputation(Game& g, int32_t countryNumber);

// Founds the label, tells the news, remembers the choices and starts the game.
void foundLabel(Game& g, const NewPlayer& player, const LabelChoices& label);
// Makes the player the new boss of an existing label and starts the game.
void takeOverLabel(Game& g, const NewPlayer& player, int16_t label);

// What frmManageExistingLabel shows of a label.
struct ExistingLabel {
    int16_t number;
    std::string name;
    Money cash;
    std::array<uint8_t, 5> reputation;
    std::vector<std::string> bands;
};
std::vector<ExistingLabel> existingLabels(Game& g);

// The world brought to its first day for the player's label (already in the
// session block), strictly in the game's order.
void startNewGame(Game& g, StaffRecord player);

}  // namespace trovane

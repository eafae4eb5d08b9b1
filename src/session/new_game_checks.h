#pragma once
// The checks of the new-game forms: each changes nothing and says, in the game's
// words, why a choice cannot start a game. The form shows the sentence at its field;
// trovane-sim prints it. The tables they read (country, city, style, label) must
// be open: the working set, or the base set before a game exists.
#include <string>
#include <vector>

#include "session/new_game.h"

namespace trovane {

class Game;

enum class NewGameField {
    none,
    forename,
    surname,
    birthDate,
    nationality,
    labelName,
    continent,
    country,
    city,
    style,
    label
};

struct InputRefusal {
    NewGameField field = NewGameField::none;
    std::string text;                  // empty: nothing refused
    std::vector<std::string> choices;  // the valid words, where they are few enough to list
    explicit operator bool() const { return !text.empty(); }
};

// The first day a player may be born on and the last: 1 January 1880, 31 December 2003.
inline constexpr int kFirstBirthYear = 1880;
inline constexpr int kLastBirthYear = 2003;

// The player form: forename, surname, date of birth, nationality.
InputRefusal checkPlayerChoices(Game& g, const PlayerChoices& p);
// The label form when founding: the name (not another label's, in any capitals),
// the continent, a country of it, a city of that country, a style or "All Styles".
InputRefusal checkLabelChoices(Game& g, const LabelChoices& l);
// Taking over: the label must exist; its number comes back in `label`.
InputRefusal checkTakeOver(Game& g, const std::string& name, int16_t& label);

}  // namespace trovane

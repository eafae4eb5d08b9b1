#include "session/new_game_checks.h"

#include <fmt/format.h>

#include "floor/list_fillers.h"
#include "floor/text_rules.h"
#include "world/game.h"
#include "world/numbers.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane {

namespace {

// The widths of the fields each typed name ends up in (the staff record and the label's name).
constexpr std::size_t kNameWidth = 32;

InputRefusal refuse(NewGameField f, std::string text, std::vector<std::string> choices = {}) {
    return {f, std::move(text), std::move(choices)};
}

InputRefusal textRule(NewGameField f, std::string_view what, const std::string& text, std::size_t width) {
    std::string why = textRefusal(what, text, width);
    return why.empty() ? InputRefusal{} : refuse(f, why);
}

bool inRows(const std::vector<ListRow>& rows, const std::string& name, int32_t* number = nullptr) {
    for (const ListRow& r : rows)
        if (r.text == trim(name)) {
            if (number) *number = r.recordNumber;
            return true;
        }
    return false;
}

std::vector<std::string> texts(const std::vector<ListRow>& rows) {
    std::vector<std::string> out;
    for (const ListRow& r : rows) out.push_back(r.text);
    return out;
}

}  // namespace

InputRefusal checkPlayerChoices(Game& g, const PlayerChoices& p) {
    if (auto r = textRule(NewGameField::forename, "The forename", p.forename, kNameWidth)) return r;
    if (auto r = textRule(NewGameField::surname, "The surname", p.surname, kNameWidth)) return r;
    if (p.birthYear < kFirstBirthYear || p.birthYear > kLastBirthYear || p.birthMonth < 1 || p.birthMonth > 12 ||
        p.birthDay < 1 || p.birthDay > daysInBirthMonth(p.birthYear, p.birthMonth))
        return refuse(NewGameField::birthDate,
                      fmt::format("The date of birth must be a real date from 1 January {} to 31 December {}.",
                                  kFirstBirthYear, kLastBirthYear));
    if (!inRows(listCountries(g, 1, ""), p.nationality))
        return refuse(NewGameField::nationality, fmt::format("There is no nationality \"{}\".", trim(p.nationality)));
    return {};
}

InputRefusal checkLabelChoices(Game& g, const LabelChoices& l) {
    if (auto r = textRule(NewGameField::labelName, "The label's name", l.name, kNameWidth)) return r;
    std::string folded = foldCapitals(trim(l.name));
    for (const ListRow& row : listLabels(g, 1))
        if (foldCapitals(row.text) == folded)
            return refuse(NewGameField::labelName, fmt::format("There is already a label called {}.", row.text));
    const Continent* continent = nullptr;
    std::vector<std::string> continentNames;
    for (const Continent& c : continents()) {
        continentNames.emplace_back(c.name);
        if (trim(l.continent) == c.name) continent = &c;
    }
    if (!continent)
        return refuse(NewGameField::continent, fmt::format("There is no continent \"{}\".", trim(l.continent)),
                      continentNames);
    int32_t country = 0;
    if (!inRows(listCountries(g, 2, ""), l.country, &country))
        return refuse(NewGameField::country, fmt::format("There is no country \"{}\".", trim(l.country)));
    if (!inRows(countriesOfContinent(g, continent->name), l.country))
        return refuse(
            NewGameField::country,
            fmt::format("{} is not a country of {} with a city for a label.", trim(l.country), continent->name),
            texts(countriesOfContinent(g, continent->name)));
    if (!inRows(listCities(g, 2, country), l.city)) {
        if (inRows(listCities(g, 1, 0), l.city))
            return refuse(NewGameField::city, fmt::format("{} is not a city of {}.", trim(l.city), trim(l.country)),
                          texts(listCities(g, 2, country)));
        return refuse(NewGameField::city, fmt::format("There is no city \"{}\".", trim(l.city)));
    }
    std::vector<ListRow> styles = listStyles(g, 2);
    if (!inRows(styles, l.style))
        return refuse(NewGameField::style, fmt::format("There is no style \"{}\".", trim(l.style)), texts(styles));
    return {};
}

InputRefusal checkTakeOver(Game& g, const std::string& name, int16_t& label) {
    int32_t number = 0;
    if (!inRows(listLabels(g, 1), name, &number))
        return refuse(NewGameField::label, fmt::format("There is no label called \"{}\".", trim(name)));
    label = narrow<int16_t>(number);
    return {};
}

}  // namespace trovane

#pragma once
// The rows of the pick lists the screens fill from the reference tables:
// styles, cities, countries and labels. A screen shows the rows in order and
// selects the first.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trovane {

class Game;

struct ListRow {
    std::string text;      // trimmed
    int32_t recordNumber;  // 0 for a row that stands for no record ("All Styles")
    friend bool operator==(const ListRow&, const ListRow&) = default;
};

// Mode 1 every style; mode 2 "All Styles" and then every style; other modes nothing.
std::vector<ListRow> listStyles(Game& g, int mode);

// Mode 1 every city; mode 2 the cities of one country; other modes nothing.
std::vector<ListRow> listCities(Game& g, int mode, int32_t countryNumber);

// Mode 1 every country's adjective (a nationality); mode 2 every country's
// name; mode 3 the names of the countries of one region (a one-letter code)
// that have at least one city; other modes nothing.
std::vector<ListRow> listCountries(Game& g, int mode, std::string_view regionCode);

// Mode 1 every label's name; other modes nothing.
std::vector<ListRow> listLabels(Game& g, int mode);

}  // namespace trovane

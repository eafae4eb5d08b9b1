#include "floor/list_fillers.h"

#include <utility>

#include "world/game.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane {

namespace {

bool countryHasCity(Game& g, int32_t country) {
    int32_t end = recordCount(g, FileNo::fileCity);
    for (int32_t n = 1; n < end; ++n) {
        g.city.read(n);
        if (g.city->country == country) return true;
    }
    return false;
}

}  // namespace

std::vector<ListRow> listStyles(Game& g, int mode) {
    std::vector<ListRow> rows;
    if (mode != 1 && mode != 2) return rows;
    if (mode == 2) rows.push_back({"All Styles", 0});
    int32_t end = recordCount(g, FileNo::fileStyle);
    for (int32_t n = 1; n < end; ++n) {
        g.style.read(n);
        rows.push_back({trim(g.style->name.value), n});
    }
    return rows;
}

std::vector<ListRow> listCities(Game& g, int mode, int32_t countryNumber) {
    std::vector<ListRow> rows;
    if (mode != 1 && mode != 2) return rows;
    int32_t end = recordCount(g, FileNo::fileCity);
    for (int32_t n = 1; n < end; ++n) {
        g.city.read(n);
        if (mode == 1 || g.city->country == countryNumber) rows.push_back({trim(g.city->name.value), n});
    }
    return rows;
}

std::vector<ListRow> listCountries(Game& g, int mode, std::string_view regionCode) {
    std::vector<ListRow> rows;
    if (mode < 1 || mode > 3) return rows;
    int32_t end = recordCount(g, FileNo::fileCountry);
    for (int32_t n = 1; n < end; ++n) {
        g.country.read(n);
        if (mode == 1) {
            rows.push_back({trim(g.country->adjective.value), n});
        } else if (mode == 2) {
            rows.push_back({trim(g.country->name.value), n});
        } else if (g.country->region.value == regionCode) {
            std::string name = trim(g.country->name.value);
            if (countryHasCity(g, n)) rows.push_back({std::move(name), n});
        }
    }
    return rows;
}

std::vector<ListRow> listLabels(Game& g, int mode) {
    std::vector<ListRow> rows;
    if (mode != 1) return rows;
    int32_t end = recordCount(g, FileNo::fileLabel);
    for (int32_t n = 1; n < end; ++n) {
        g.label.read(n);
        rows.push_back({trim(g.label->name.value), n});
    }
    return rows;
}

}  // namespace trovane

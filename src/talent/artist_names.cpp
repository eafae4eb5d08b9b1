#include "talent/artist_names.h"

#include <algorithm>
#include <vector>

#include "world/game.h"

namespace trovane {

namespace {

// The percent chance that a drawn row is kept for the country, 0 to 100.
template <class NameRecord>
int chanceFor(const NameRecord& row, int country) {
    bool open = std::all_of(row.countryLinks.begin(), row.countryLinks.end(), [](uint8_t c) { return c == 0; });
    if (open) return 100;
    for (std::size_t i = 0; i < row.countryLinks.size(); ++i)
        if (row.countryLinks[i] != 0 && row.countryLinks[i] == country)
            return std::min<int>(row.countryWeights[i], 100);
    return 0;
}

// Draws rows at random and keeps one by its chance, for up to four draws per
// row of the table; past that the table is walked once and a row chosen with
// the same odds, which also settles a country that has no names of its own.
template <class NameRecord, class SexFits>
int32_t drawName(Game& g, Table<NameRecord>& table, int country, SexFits sexFits) {
    int32_t rows = table.recordCount() - 1;
    if (rows < 1) return 0;
    for (int32_t attempt = 0; attempt < 4 * rows; ++attempt) {
        int32_t n = g.rng.between(1, rows);
        table.read(n);
        if (!sexFits(table.rec)) continue;
        int chance = chanceFor(table.rec, country);
        if (chance >= 100 || (chance > 0 && g.rng.between(0, 99) < chance)) return n;
    }

    std::vector<std::pair<int32_t, int>> fitting;  // row, chance
    std::vector<int32_t> ofTheSex;
    int32_t total = 0;
    for (int32_t n = 1; n <= rows; ++n) {
        table.read(n);
        if (!sexFits(table.rec)) continue;
        ofTheSex.push_back(n);
        int chance = chanceFor(table.rec, country);
        if (chance > 0) {
            fitting.emplace_back(n, chance);
            total += chance;
        }
    }
    int32_t chosen = 0;
    if (!fitting.empty()) {
        int32_t pick = g.rng.between(0, total - 1);
        for (auto [n, chance] : fitting) {
            chosen = n;
            if (pick < chance) break;
            pick -= chance;
        }
    } else if (!ofTheSex.empty()) {
        chosen = ofTheSex[static_cast<std::size_t>(g.rng.between(0, static_cast<int32_t>(ofTheSex.size()) - 1))];
    } else {
        chosen = g.rng.between(1, rows);
    }
    table.read(chosen);
    return chosen;
}

}  // namespace

int32_t drawForename(Game& g, int country, bool male) {
    return drawName(g, g.forename, country, [male](const ForenameRecord& r) { return (r.isMale != kFalse) == male; });
}

int32_t drawSurname(Game& g, int country) {
    return drawName(g, g.surname, country, [](const SurnameRecord&) { return true; });
}

void drawArtistName(Game& g) {
    int country = g.artist->country;
    bool male = g.artist->male != kFalse;
    g.artist->forename = drawForename(g, country, male) != 0 ? g.forename->name.value : std::string();
    g.artist->surname = drawSurname(g, country) != 0 ? g.surname->name.value : std::string();
}

}  // namespace trovane

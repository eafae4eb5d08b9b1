#include "talent/artist_names.h"

#include <algorithm>
#include <vector>

#include "world/game.h"

namespace trovane {

namespace {

using Row = NameRows::Row;

// The percent chance that a drawn row is kept for the country, 0 to 100: the
// weight of its first link to the country, 100 for a row linked to none.
int chanceFor(const Row& row, int country) {
    bool open = true;
    for (std::size_t i = 0; i < row.countryLinks.size(); ++i) {
        const uint8_t c = row.countryLinks[i];
        if (c == 0) continue;
        if (c == country) return std::min<int>(row.countryWeights[i], 100);
        open = false;
    }
    return open ? 100 : 0;
}

Row rowOf(const ForenameRecord& r) { return {r.isMale != kFalse, r.countryLinks, r.countryWeights}; }
Row rowOf(const SurnameRecord& r) { return {false, r.countryLinks, r.countryWeights}; }

// The rows of a name table as a draw reads them, read from the table's bytes
// (its buffer untouched) when the table is new to the index or was written
// (see watchActNames).
template <class NameRecord>
const std::vector<Row>& rowsOf(Table<NameRecord>& table, NameRows& index) {
    if (index.generation == table.generation() && index.records == table.recordCount()) return index.rows;
    index.generation = table.generation();
    index.records = table.recordCount();
    index.rows.clear();
    NameRecord r{};
    for (int32_t n = 1; n < table.recordCount(); ++n) {
        decodeRecord(table.bytesOf(n).data(), r);
        index.rows.push_back(rowOf(r));
    }
    return index.rows;
}

// Draws rows at random and keeps one by its chance, for up to four draws per
// row of the table; past that the table is walked once and a row chosen with
// the same odds, which also settles a country that has no names of its own.
// The table's buffer is left on the row chosen.
template <class NameRecord, class SexFits>
int32_t drawName(Game& g, Table<NameRecord>& table, NameRows& index, int country, SexFits sexFits) {
    int32_t rows = table.recordCount() - 1;
    if (rows < 1) return 0;
    const std::vector<Row>& row = rowsOf(table, index);
    auto at = [&row](int32_t n) -> const Row& { return row[static_cast<std::size_t>(n - 1)]; };
    for (int32_t attempt = 0; attempt < 4 * rows; ++attempt) {
        int32_t n = g.rng.between(1, rows);
        if (!sexFits(at(n))) continue;
        int chance = chanceFor(at(n), country);
        if (chance >= 100 || (chance > 0 && g.rng.between(0, 99) < chance)) {
            table.read(n);
            return n;
        }
    }

    std::vector<std::pair<int32_t, int>> fitting;  // row, chance
    std::vector<int32_t> ofTheSex;
    int32_t total = 0;
    for (int32_t n = 1; n <= rows; ++n) {
        if (!sexFits(at(n))) continue;
        ofTheSex.push_back(n);
        int chance = chanceFor(at(n), country);
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
    return drawName(g, g.forename, g.forenameRows, country, [male](const Row& r) { return r.male == male; });
}

int32_t drawSurname(Game& g, int country) {
    return drawName(g, g.surname, g.surnameRows, country, [](const Row&) { return true; });
}

void drawArtistName(Game& g) {
    int country = g.artist->country;
    bool male = g.artist->male != kFalse;
    g.artist->forename = drawForename(g, country, male) != 0 ? g.forename->name.value : std::string();
    g.artist->surname = drawSurname(g, country) != 0 ? g.surname->name.value : std::string();
}

}  // namespace trovane

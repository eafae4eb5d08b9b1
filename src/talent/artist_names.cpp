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
// (see watchActNames); what each country's draws were given is then dropped.
template <class NameRecord>
const std::vector<Row>& rowsOf(Table<NameRecord>& table, NameRows& index) {
    if (index.generation == table.generation() && index.records == table.recordCount()) return index.rows;
    index.generation = table.generation();
    index.records = table.recordCount();
    index.rows.clear();
    index.draws.clear();
    NameRecord r{};
    for (int32_t n = 1; n < table.recordCount(); ++n) {
        decodeRecord(table.bytesOf(n).data(), r);
        index.rows.push_back(rowOf(r));
    }
    return index.rows;
}

// Sex 0 for a woman's forename, 1 for a man's, 2 for a surname (either).
bool sexFits(const Row& row, int sex) { return sex == 2 || row.male == (sex == 1); }

const NameRows::Draw& drawFor(const std::vector<Row>& rows, NameRows& index, int country, int sex) {
    auto [it, added] = index.draws.try_emplace(country * 4 + sex);
    NameRows::Draw& d = it->second;
    if (!added) return d;
    d.chance.assign(rows.size(), 0);
    for (int32_t n = 1; n <= static_cast<int32_t>(rows.size()); ++n) {
        const Row& row = rows[static_cast<std::size_t>(n - 1)];
        if (!sexFits(row, sex)) continue;
        d.ofTheSex.push_back(n);
        const int chance = chanceFor(row, country);
        if (chance == 0) continue;
        d.chance[static_cast<std::size_t>(n - 1)] = static_cast<uint8_t>(chance);
        d.anyKept = true;
        d.fitting.emplace_back(n, chance);
        d.total += chance;
    }
    return d;
}

// Draws rows at random and keeps one by its chance, for up to four draws per
// row of the table; past that the table is walked once and a row chosen with
// the same odds, which also settles a country that has no names of its own.
// Where no row could be kept the tries still take their draws, so a seeded
// game goes on as it would. The table's buffer is left on the row chosen.
template <class NameRecord>
int32_t drawName(Game& g, Table<NameRecord>& table, NameRows& index, int country, int sex) {
    int32_t rows = table.recordCount() - 1;
    if (rows < 1) return 0;
    const NameRows::Draw& d = drawFor(rowsOf(table, index), index, country, sex);
    if (d.anyKept) {
        const uint8_t* chance = d.chance.data();  // row n at chance[n - 1]
        for (int32_t attempt = 0; attempt < 4 * rows; ++attempt) {
            const int32_t n = g.rng.between(1, rows);
            const int c = chance[n - 1];
            if (c == 0) continue;
            if (c >= 100 || g.rng.between(0, 99) < c) {
                table.read(n);
                return n;
            }
        }
    } else {
        g.rng.discard(4 * static_cast<uint64_t>(rows));
    }

    int32_t chosen = 0;
    if (!d.fitting.empty()) {
        int32_t pick = g.rng.between(0, d.total - 1);
        for (auto [n, c] : d.fitting) {
            chosen = n;
            if (pick < c) break;
            pick -= c;
        }
    } else if (!d.ofTheSex.empty()) {
        chosen = d.ofTheSex[static_cast<std::size_t>(g.rng.between(0, static_cast<int32_t>(d.ofTheSex.size()) - 1))];
    } else {
        chosen = g.rng.between(1, rows);
    }
    table.read(chosen);
    return chosen;
}

}  // namespace

int32_t drawForename(Game& g, int country, bool male) {
    return drawName(g, g.forename, g.forenameRows, country, male ? 1 : 0);
}

int32_t drawSurname(Game& g, int country) { return drawName(g, g.surname, g.surnameRows, country, 2); }

void drawArtistName(Game& g) {
    int country = g.artist->country;
    bool male = g.artist->male != kFalse;
    g.artist->forename = drawForename(g, country, male) != 0 ? g.forename->name.value : std::string();
    g.artist->surname = drawSurname(g, country) != 0 ? g.surname->name.value : std::string();
}

}  // namespace trovane

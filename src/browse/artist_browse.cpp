#include "browse/artist_browse.h"

#include <algorithm>

#include "floor/formats.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

std::string jobOf(Game& g, const ArtistRecord& a) {
    if (a.job < 1 || a.job >= g.job.recordCount()) return "";
    g.job.read(a.job);
    return trim(a.male != 0 ? g.job->title.value : g.job->titleFemale.value);
}

std::string nationalityOf(Game& g, const ArtistRecord& a) {
    if (a.country < 1 || a.country >= g.country.recordCount()) return "";
    g.country.read(a.country);
    return trim(g.country->adjective.value);
}

std::string bandOf(Game& g, const ArtistRecord& a) {
    if (a.band < 1 || a.band >= g.band.recordCount()) return "";
    g.band.read(a.band);
    return trim(g.band->name.value);
}

}  // namespace

void populateArtistGrid(Game& g, bool richList, const std::string& name, const GridSort& sort, Grid& grid) {
    grid.caption = richList ? "Rich List" : "Artist Search";
    grid.columns = {{"Name", 2400},        {"Age", 500},   {"Job", 1800},
                    {"Nationality", 1400}, {"Band", 2400}, {"Wealth", 1500}};
    grid.rows.clear();
    const std::string wanted = trim(name);
    for (int32_t n = 1; n < g.artist.recordCount(); ++n) {
        g.artist.read(n);
        if (g.artist->retired != 0) continue;
        const ArtistRecord a = g.artist.rec;
        const std::string full = trim(a.forename.value) + " " + trim(a.surname.value);
        if (!wanted.empty() && full != wanted) continue;
        GridRow row;
        row.record = a.id;
        row.cells = {
            {full, {}},         {std::to_string(a.age), static_cast<double>(a.age)},
            {jobOf(g, a), {}},  {nationalityOf(g, a), {}},
            {bandOf(g, a), {}}, {formatMoneyValue(g, a.wealth, "###,###,###,##0"), static_cast<double>(a.wealth)}};
        grid.rows.push_back(std::move(row));
    }
    if (sort.clicked) {
        sortGrid(grid, sort);
    } else if (richList) {
        std::stable_sort(grid.rows.begin(), grid.rows.end(),
                         [](const GridRow& x, const GridRow& y) { return *x.cells[5].key > *y.cells[5].key; });
    }
}

}  // namespace trovane

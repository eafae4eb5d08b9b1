#include "browse/table_browse.h"

#include <algorithm>
#include <array>

#include "floor/formats.h"
#include "production/businesses.h"
#include "world/game.h"
#include "world/numbers.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr std::array<const char*, 10> kTableNames = {"venue",    "disc", "song", "business", "media",
                                                     "festival", "tour", "gig",  "style",    "ceremony"};

GridCell text(std::string s) { return {std::move(s), {}}; }
GridCell count(double v, const char* mask = "###,###,##0") { return {formatNumber(v, mask), v}; }
GridCell percent(double v) { return {formatNumber(v, "##0") + "%", v}; }
// A day serial as a date; 0 stands for none and shows blank.
GridCell date(double serial) { return {serial > 0 ? formatDate(serial, "dd/mm/yyyy") : "", serial}; }

// Names of records of the small tables, looked up by number; blank when the
// number points nowhere.
std::string countryName(Game& g, int32_t n) {
    if (n < 1 || n >= g.country.recordCount()) return "";
    g.country.read(n);
    return trim(g.country->name.value);
}
std::string countryRegion(Game& g, int32_t n) {
    if (n < 1 || n >= g.country.recordCount()) return "";
    g.country.read(n);
    return regionName(trim(g.country->region.value));
}
std::string styleName(Game& g, int32_t n) {
    if (n < 1 || n >= g.style.recordCount()) return "All Styles";
    g.style.read(n);
    return trim(g.style->name.value);
}
std::string labelName(Game& g, int32_t n, const char* none) {
    if (n < 1 || n >= g.label.recordCount()) return none;
    g.label.read(n);
    return trim(g.label->name.value);
}
std::string bandName(Game& g, int32_t n) {
    if (n < 1 || n >= g.band.recordCount()) return "";
    g.band.read(n);
    return trim(g.band->name.value);
}
// City name and its country's record number.
std::pair<std::string, int32_t> cityOf(Game& g, int32_t n) {
    if (n < 1 || n >= g.city.recordCount()) return {"", 0};
    g.city.read(n);
    return {trim(g.city->name.value), g.city->country};
}

void fillVenues(Game& g, Grid& grid, const BrowseFilter& f) {
    grid.caption = "Venue Search";
    grid.columns = {{"Name", 2800}, {"City", 1600}, {"Country", 1600}, {"Continent", 1600}, {"Capacity", 1100}};
    for (int32_t n = 1; n < g.venue.recordCount(); ++n) {
        g.venue.read(n);
        const VenueRecord v = g.venue.rec;
        const auto [city, country] = cityOf(g, v.city);
        GridRow row{{text(trim(v.name.value)), text(city), text(countryName(g, country)),
                     text(countryRegion(g, country)), count(v.capacity)},
                    v.id};
        if (rowPasses(f, row)) grid.rows.push_back(std::move(row));
    }
}

// The first date any territory saw the disc released, 0 if none has.
double firstRelease(const DiscRecord& d) {
    double first = 0;
    for (double r : d.releaseDate)
        if (r > 0 && (first == 0 || r < first)) first = r;
    return first;
}

void fillDiscs(Game& g, Grid& grid, const BrowseFilter& f) {
    grid.caption = "Disc Search";
    grid.columns = {{"Name", 2800}, {"Band", 2200}, {"Disc Type", 1000}, {"Label", 2200}, {"Release Date", 1200}};
    for (int32_t n = 1; n < g.disc.recordCount(); ++n) {
        g.disc.read(n);
        const DiscRecord d = g.disc.rec;
        if (f.band != 0 && d.band != f.band) continue;
        GridRow row{{text(trim(d.title.value)), text(bandName(g, d.band)), text(d.isSingle ? "Single" : "Album"),
                     text(labelName(g, d.label, "")), date(firstRelease(d))},
                    d.id};
        if (rowPasses(f, row)) grid.rows.push_back(std::move(row));
    }
}

constexpr uint16_t kHeldForTracklist = 65534;
constexpr uint16_t kNotOnDisc = 65535;

void fillSongs(Game& g, Grid& grid, const BrowseFilter& f) {
    grid.caption = "Song Search";
    grid.columns = {{"Name", 2800}, {"Quality", 800}, {"Commerciality", 1100}, {"Writer", 2000},
                    {"Band", 2000}, {"Album", 2200},  {"Added?", 700}};
    for (int32_t n = 1; n < g.song.recordCount(); ++n) {
        g.song.read(n);
        const SongRecord s = g.song.rec;
        if (f.band != 0 && s.band != f.band) continue;
        std::string album;
        if (s.disc != kHeldForTracklist && s.disc != kNotOnDisc && s.disc > 0 && s.disc < g.disc.recordCount()) {
            g.disc.read(s.disc);
            album = trim(g.disc->title.value);
        }
        const std::string writer = trim(trim(s.writerForename.value) + " " + trim(s.writerSurname.value));
        GridRow row{{text(trim(s.title.value)), percent(s.quality), percent(s.commerciality), text(writer),
                     text(bandName(g, s.band)), text(album), text(s.disc == kHeldForTracklist ? "Yes" : "No")},
                    s.id};
        if (rowPasses(f, row)) grid.rows.push_back(std::move(row));
    }
}

void fillBusinesses(Game& g, Grid& grid, const BrowseFilter& f) {
    grid.caption = "Business Search";
    grid.columns = {{"Name", 2600},      {"Type", 1700},   {"City", 1400},  {"Country", 1400},
                    {"Continent", 1400}, {"Quality", 800}, {"Label", 2000}, {"Capacity", 1100}};
    for (int32_t n = 1; n < g.business.recordCount(); ++n) {
        g.business.read(n);
        const BusinessRecord b = g.business.rec;
        // Studios are paid by the day, not by what they can turn out.
        GridCell capacity{"", 0};
        if (b.kind == 1) capacity = count(plantDailyCapacity(g));
        if (b.kind == 2) capacity = count(distributorDailyCapacity(g));
        std::string name = trim(b.name.value);
        if (b.open == 0) name += " (In Construction)";
        const auto [city, country] = cityOf(g, b.city);
        const std::string type = b.kind == 0 ? "Studio" : b.kind == 1 ? "Manufacturing Plant" : "Distribution Firm";
        GridRow row{{text(name), text(type), text(city), text(countryName(g, country)), text(countryRegion(g, country)),
                     percent(b.quality), text(labelName(g, b.owner, "Independent Company")), capacity},
                    b.id};
        if (rowPasses(f, row)) grid.rows.push_back(std::move(row));
    }
}

void fillMedia(Game& g, Grid& grid, const BrowseFilter& f) {
    static const char* const kTypes[] = {"Newspaper", "Magazine", "Radio Show", "TV Show"};
    grid.caption = "Media Search";
    grid.columns = {{"Name", 2800}, {"Location", 1600}, {"Scope", 1000}, {"Rating", 800}, {"Type", 1200}};
    for (int32_t n = 1; n < g.media.recordCount(); ++n) {
        g.media.read(n);
        const MediaRecord m = g.media.rec;
        // The outlet's rating is the most any appearance in it is worth.
        const int rating = std::max({m.interviewValue, m.liveValue, m.bothValue, m.smallValue, m.largeValue});
        GridRow row{
            {text(trim(m.mediaName.value)), text(countryName(g, m.country)), text(m.reach == 2 ? "Global" : "National"),
             count(rating), text(m.mediaType < 4 ? kTypes[m.mediaType] : "")},
            m.mediaNumber};
        if (rowPasses(f, row)) grid.rows.push_back(std::move(row));
    }
}

// Where a festival stands: the country of its first fixed venue, else its area.
std::string festivalCountry(Game& g, const FestivalRecord& fe) {
    const int16_t v = fe.fixedVenue[0];
    if (fe.travelling == 0 && v > 0 && v < g.venue.recordCount()) {
        g.venue.read(v);
        const std::string c = countryName(g, cityOf(g, g.venue->city).second);
        if (!c.empty()) return c;
    }
    return regionName(trim(fe.areaCode.value));
}

void fillFestivals(Game& g, Grid& grid, const BrowseFilter& f) {
    grid.caption = "Festival Search";
    grid.columns = {{"Name", 3200}, {"Style", 1600}, {"Country", 1600}};
    for (int32_t n = 1; n < g.festival.recordCount(); ++n) {
        g.festival.read(n);
        const FestivalRecord fe = g.festival.rec;
        GridRow row{
            {text(trim(fe.festivalName.value)), text(styleName(g, fe.festivalStyle)), text(festivalCountry(g, fe))},
            fe.festivalNumber};
        if (rowPasses(f, row)) grid.rows.push_back(std::move(row));
    }
}

// A tour's area: its nation when it has one, else its region.
std::string tourArea(Game& g, const TourRecord& t) {
    if (t.festival > 0 && t.festival < g.festival.recordCount()) {
        g.festival.read(t.festival);
        return regionName(trim(g.festival->areaCode.value));
    }
    if (t.nation > 0) {
        std::string c = countryName(g, t.nation);
        if (!c.empty()) return c;
    }
    return regionName(trim(t.areaCode.value));
}

std::string tourName(Game& g, const TourRecord& t, const std::string& area) {
    if (t.festival > 0 && t.festival < g.festival.recordCount()) {
        g.festival.read(t.festival);
        return trim(g.festival->festivalName.value);
    }
    return area + " Tour";
}

void fillTours(Game& g, Grid& grid, const BrowseFilter& f) {
    grid.caption = "Tours";
    grid.columns = {{"Name", 3000}, {"Role", 1100}, {"Area", 1600}};
    // For one band: the tours it heads, and those whose bills carry it lower down.
    std::vector<int8_t> role(static_cast<std::size_t>(std::max(g.tour.recordCount(), 1)), 0);  // 1 head, 2 support
    if (f.band != 0) {
        for (int32_t n = 1; n < g.gig.recordCount(); ++n) {
            g.gig.read(n);
            const int16_t t = g.gig->tour;
            if (t < 1 || t >= g.tour.recordCount()) continue;
            for (std::size_t i = 0; i < g.gig->bill.size() && g.gig->bill[i] != 0; ++i)
                if (g.gig->bill[i] == f.band && role[static_cast<std::size_t>(t)] != 1)
                    role[static_cast<std::size_t>(t)] = i == 0 ? 1 : 2;
        }
    }
    for (int32_t n = 1; n < g.tour.recordCount(); ++n) {
        g.tour.read(n);
        const TourRecord t = g.tour.rec;
        int8_t r = role[static_cast<std::size_t>(n)];
        if (f.band != 0 && t.band == f.band) r = 1;
        if (f.band != 0 && r == 0) continue;
        if (f.band == 0) r = t.band > 0 ? 1 : 0;
        const std::string area = tourArea(g, t);
        GridRow row{{text(tourName(g, t, area)),
                     text(r == 1   ? "Headliner"
                          : r == 2 ? "Support"
                                   : ""),
                     text(area)},
                    t.tourNumber};
        if (rowPasses(f, row)) grid.rows.push_back(std::move(row));
    }
}

void fillGigs(Game& g, Grid& grid, const BrowseFilter& f) {
    grid.caption = "Gigs";
    grid.columns = {{"Date", 1100}, {"Venue", 2600}, {"City", 1400}, {"Headliner", 2200}, {"Attendance", 1100}};
    for (int32_t n = 1; n < g.gig.recordCount(); ++n) {
        g.gig.read(n);
        const GigRecord gig = g.gig.rec;
        if (f.band != 0 && std::find(gig.bill.begin(), gig.bill.end(), f.band) == gig.bill.end()) continue;
        std::string venue, city;
        if (gig.venue > 0 && gig.venue < g.venue.recordCount()) {
            g.venue.read(gig.venue);
            venue = trim(g.venue->name.value);
            city = cityOf(g, g.venue->city).first;
        }
        GridRow row{{date(gig.gigDate), text(venue), text(city), text(bandName(g, gig.bill[0])), count(gig.attendance)},
                    gig.gigNumber};
        // A gig has no name: its filter's name is the venue's.
        if (!trim(f.name).empty() && trim(f.name) != venue) continue;
        BrowseFilter rest = f;
        rest.name.clear();
        if (rowPasses(rest, row)) grid.rows.push_back(std::move(row));
    }
}

void fillStyles(Game& g, Grid& grid, const BrowseFilter& f) {
    grid.caption = "Styles";
    grid.columns = {{"Name", 2400}, {"Popularity", 1000}};
    for (int32_t n = 1; n < g.style.recordCount(); ++n) {
        g.style.read(n);
        const StyleRecord s = g.style.rec;
        // The overall figure: UK 8, US 10, Europe 7, Oceania 5, the rest 3, over 33.
        const double overall = roundHalfEven((8.0 * s.popularity[0] + 10.0 * s.popularity[1] + 7.0 * s.popularity[2] +
                                              5.0 * s.popularity[3] + 3.0 * s.popularity[4]) /
                                             33.0);
        GridRow row{{text(trim(s.name.value)), percent(overall)}, s.id};
        if (rowPasses(f, row)) grid.rows.push_back(std::move(row));
    }
}

void fillCeremonies(Game& g, Grid& grid, const BrowseFilter& f) {
    grid.caption = "Award Ceremonies";
    grid.columns = {{"Name", 3200}, {"Country", 1600}, {"Date", 1100}};
    for (int32_t n = 1; n < g.ceremony.recordCount(); ++n) {
        g.ceremony.read(n);
        const CeremonyRecord c = g.ceremony.rec;
        GridRow row{{text(trim(c.name.value)), text(countryName(g, c.country)), date(c.date)}, c.id};
        if (rowPasses(f, row)) grid.rows.push_back(std::move(row));
    }
}

}  // namespace

std::string regionName(const std::string& letter) {
    if (letter == "E") return "Europe";
    if (letter == "N") return "North America";
    if (letter == "O") return "Oceania";
    if (letter == "S") return "South America";
    if (letter == "F") return "Africa";
    if (letter == "A") return "Asia";
    if (letter == "X") return "World";
    return "";
}

std::optional<BrowseTable> browseTableNamed(const std::string& name) {
    for (std::size_t i = 0; i < kTableNames.size(); ++i)
        if (name == kTableNames[i]) return static_cast<BrowseTable>(i);
    return std::nullopt;
}

bool rowPasses(const BrowseFilter& filter, const GridRow& row) {
    const std::string wanted = trim(filter.name);
    if (!wanted.empty() && (row.cells.empty() || trim(row.cells[0].text) != wanted)) return false;
    for (const ColumnChoice& c : filter.choices) {
        if (c.column < 0 || c.column >= static_cast<int>(row.cells.size())) return false;
        const GridCell& cell = row.cells[static_cast<std::size_t>(c.column)];
        if (c.text) {
            if (trim(cell.text) != trim(*c.text)) return false;
        } else if (!cell.key || *cell.key < c.min || *cell.key > c.max) {
            return false;
        }
    }
    return true;
}

std::vector<std::string> columnValues(const Grid& grid, int column) {
    std::vector<std::string> values;
    if (column < 0 || column >= static_cast<int>(grid.columns.size())) return values;
    for (const GridRow& r : grid.rows) {
        const std::string& t = r.cells[static_cast<std::size_t>(column)].text;
        if (std::find(values.begin(), values.end(), t) == values.end()) values.push_back(t);
    }
    return values;
}

void populateTableGrid(Game& g, BrowseTable table, const BrowseFilter& filter, const GridSort& sort, Grid& grid) {
    grid.rows.clear();
    switch (table) {
    case BrowseTable::venue: fillVenues(g, grid, filter); break;
    case BrowseTable::disc: fillDiscs(g, grid, filter); break;
    case BrowseTable::song: fillSongs(g, grid, filter); break;
    case BrowseTable::business: fillBusinesses(g, grid, filter); break;
    case BrowseTable::media: fillMedia(g, grid, filter); break;
    case BrowseTable::festival: fillFestivals(g, grid, filter); break;
    case BrowseTable::tour: fillTours(g, grid, filter); break;
    case BrowseTable::gig: fillGigs(g, grid, filter); break;
    case BrowseTable::style: fillStyles(g, grid, filter); break;
    case BrowseTable::ceremony: fillCeremonies(g, grid, filter); break;
    }
    sortGrid(grid, sort);
}

}  // namespace trovane

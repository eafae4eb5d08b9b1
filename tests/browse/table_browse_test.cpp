// The browsers of venues, firms, media, discs, tours and styles: what their
// cells show, which rows a choice keeps, and how a click sorts them.
#include <gtest/gtest.h>

#include "browse/table_browse.h"
#include "support/amend.h"
#include "support/empty_game.h"
#include "support/signing_world.h"
#include "world/dates.h"

using namespace trovane;
using namespace trovane::test;

namespace {

using Names = std::vector<std::string>;

class TableBrowse : public ::testing::Test {
protected:
    EmptyGame eg;
    Game& g = eg.g;
    BrowseFilter filter;
    GridSort sort;
    Grid grid;
    int16_t france = country("France", "E"), brazil = country("Brazil", "S");
    int16_t paris = city("Paris", france), rio = city("Rio", brazil);

    int16_t country(const char* name, const char* region) {
        g.country.rec = CountryRecord{.name = name, .region = region};
        return static_cast<int16_t>(g.country.append());
    }
    int16_t city(const char* name, int16_t in) {
        g.city.rec = CityRecord{.name = name, .country = static_cast<uint8_t>(in)};
        return static_cast<int16_t>(g.city.append());
    }
    int16_t venue(const char* name, int32_t capacity, int16_t in) {
        g.venue.rec = VenueRecord{.name = name, .capacity = capacity, .city = in};
        return static_cast<int16_t>(g.venue.append());
    }
    Names names(BrowseTable t, int column = 0) {
        populateTableGrid(g, t, filter, sort, grid);
        Names v;
        for (const GridRow& r : grid.rows) v.push_back(r.cells[static_cast<std::size_t>(column)].text);
        return v;
    }
    Names row(std::size_t i) {
        Names v;
        for (const GridCell& c : grid.rows.at(i).cells) v.push_back(c.text);
        return v;
    }
};

TEST_F(TableBrowse, AVenueShowsItsPlaceAndSortsCapacityByValue) {
    venue("Olympia", 12500, paris);
    venue("Maracana", 9000, rio);
    venue("Bataclan", 12500, paris);
    EXPECT_EQ(names(BrowseTable::venue), (Names{"Olympia", "Maracana", "Bataclan"}));  // table order
    EXPECT_EQ(row(0), (Names{"Olympia", "Paris", "France", "Europe", "12,500"}));
    EXPECT_EQ(row(1), (Names{"Maracana", "Rio", "Brazil", "South America", "9,000"}));
    // By text "12,500" would stand before "9,000"; by value 9,000 comes first and
    // the two of 12,500 keep their table order, both ways round.
    clickColumnLabel(sort, grid, 4);
    EXPECT_EQ(names(BrowseTable::venue), (Names{"Maracana", "Olympia", "Bataclan"}));
    clickColumnLabel(sort, grid, 4);
    EXPECT_EQ(names(BrowseTable::venue), (Names{"Olympia", "Bataclan", "Maracana"}));
}

TEST_F(TableBrowse, AChoiceOfRangeKeepsBothEndsAndDropsOnePast) {
    venue("Under", 999, paris);
    venue("Low", 1000, paris);
    venue("High", 2000, paris);
    venue("Over", 2001, paris);
    filter.choices = {{.column = 4, .min = 1000, .max = 2000}};
    EXPECT_EQ(names(BrowseTable::venue), (Names{"Low", "High"}));
}

TEST_F(TableBrowse, AChoiceOfTextAndANameKeepOnlyWholeMatches) {
    venue(" Olympia  ", 100, paris);
    venue("Olympia Hall", 100, paris);
    venue("Maracana", 100, rio);
    filter.name = "  ";
    EXPECT_EQ(names(BrowseTable::venue).size(), 3u);  // a blank name keeps all
    filter.name = "Olympia ";
    EXPECT_EQ(names(BrowseTable::venue), (Names{"Olympia"}));
    filter.name = "olympia";
    EXPECT_TRUE(names(BrowseTable::venue).empty());
    filter.name.clear();
    filter.choices = {{.column = 2, .text = "Brazil"}};
    EXPECT_EQ(names(BrowseTable::venue), (Names{"Maracana"}));
    EXPECT_EQ(columnValues(grid, 3), (Names{"South America"}));
}

TEST_F(TableBrowse, AFirmInBuildingAndAnIndependentOneSaySo) {
    int16_t label = addLabel(g, {1, 1, 1, 1, 1}, "Mine");
    g.business.rec = BusinessRecord{.name = "Abbey", .kind = 0, .city = paris, .quality = 40, .open = -1};
    g.business.append();
    g.business.rec = BusinessRecord{.name = "Press", .kind = 1, .city = paris, .quality = 40, .owner = label};
    g.business.append();
    populateTableGrid(g, BrowseTable::business, filter, sort, grid);
    // A studio has no daily capacity.
    EXPECT_EQ(row(0), (Names{"Abbey", "Studio", "Paris", "France", "Europe", "40%", "Independent Company", ""}));
    Names press = row(1);
    press.pop_back();  // the plant's capacity
    EXPECT_EQ(press,
              (Names{"Press (In Construction)", "Manufacturing Plant", "Paris", "France", "Europe", "40%", "Mine"}));
}

TEST_F(TableBrowse, MediaShowScopeAndType) {
    g.media.rec = MediaRecord{.mediaName = "Le Monde",
                              .mediaType = 0,
                              .smallValue = 7,
                              .largeValue = 12,
                              .country = static_cast<uint8_t>(france)};
    g.media.append();
    g.media->mediaName = "World TV";
    g.media->mediaType = 3;
    g.media->reach = 2;
    g.media.append();
    populateTableGrid(g, BrowseTable::media, filter, sort, grid);
    EXPECT_EQ(row(0), (Names{"Le Monde", "France", "National", "12", "Newspaper"}));  // the larger of 7 and 12
    EXPECT_EQ(row(1), (Names{"World TV", "France", "Global", "12", "TV Show"}));
}

TEST_F(TableBrowse, ABandsDiscsShowTheirFirstReleaseDate) {
    int16_t a = addAct(g, {.name = "Kites"});
    int16_t b = addAct(g, {.name = "Other"});
    g.disc.rec = DiscRecord{.title = "First",
                            .releaseDate = {serialFromCivil(2004, 3, 1), 0, serialFromCivil(2004, 2, 9), 0, 0},
                            .band = a};
    g.disc.append();
    g.disc.rec = DiscRecord{.title = "Theirs", .band = b};
    g.disc.append();
    g.disc.rec = DiscRecord{.title = "Second", .isSingle = 1, .band = a};
    g.disc.append();
    filter.band = a;
    EXPECT_EQ(names(BrowseTable::disc), (Names{"First", "Second"}));
    EXPECT_EQ(names(BrowseTable::disc, 2), (Names{"Album", "Single"}));
    EXPECT_EQ(names(BrowseTable::disc, 4), (Names{"09/02/2004", ""}));  // Europe's 9 February beat the UK's 1 March
}

TEST_F(TableBrowse, ABandsToursSayWhetherItHeadsOrSupports) {
    int16_t head = addAct(g, {.name = "Head"});
    int16_t other = addAct(g, {.name = "Other"});
    auto tour = [&](TourRecord t) { return (g.tour.rec = t, static_cast<int16_t>(g.tour.append())); };
    const int16_t own = tour({.areaCode = "E", .band = head});
    const int16_t theirs = tour({.areaCode = "N", .band = other});
    const int16_t notOn = tour({.areaCode = "N", .nation = static_cast<uint8_t>(brazil), .band = other});
    g.gig.rec = GigRecord{.bill = {other, head}, .tour = theirs};
    g.gig.append();
    g.gig.rec = GigRecord{.bill = {other}, .tour = notOn};
    g.gig.append();
    filter.band = head;
    EXPECT_EQ(names(BrowseTable::tour), (Names{"Europe Tour", "North America Tour"}));
    EXPECT_EQ(names(BrowseTable::tour, 1), (Names{"Headliner", "Support"}));
    EXPECT_EQ(grid.rows[0].record, own);
    filter.band = other;
    EXPECT_EQ(names(BrowseTable::tour, 2), (Names{"North America", "Brazil"}));
}

TEST_F(TableBrowse, ABandsGigsAreThoseItIsBilledOnAndEveryCeremonyIsListed) {
    const int16_t olympia = venue("Olympia", 2000, paris);
    g.gig.rec = GigRecord{.gigNumber = 1, .bill = {4, 7}, .venue = olympia, .attendance = 900};
    g.gig.append();
    g.gig.rec = GigRecord{.gigNumber = 2, .bill = {5}, .venue = olympia, .attendance = 300};
    g.gig.append();
    EXPECT_EQ(names(BrowseTable::gig, 4), (Names{"900", "300"}));
    filter.band = 7;  // on the bill as the support act
    EXPECT_EQ(names(BrowseTable::gig, 4), (Names{"900"}));

    for (auto [name, in] : {std::pair{"Brits", france}, {"Grammys", brazil}}) {
        g.ceremony.rec = CeremonyRecord{.name = name, .country = static_cast<uint8_t>(in)};
        g.ceremony.append();
    }
    EXPECT_EQ(names(BrowseTable::ceremony), (Names{"Brits", "Grammys"}));
    EXPECT_EQ(names(BrowseTable::ceremony, 1), (Names{"France", "Brazil"}));
}

TEST_F(TableBrowse, AStylesPopularityIsTheWeightedOverallFigure) {
    addStyle(g, 10, 100, 0, "Rock");
    amend(g.style, 1, [&] { g.style->popularity = {50, 100, 0, 0, 0}; });
    // (8 x 50 + 10 x 100) / 33 = 1400 / 33 = 42.4 -> 42.
    EXPECT_EQ(names(BrowseTable::style, 1), (Names{"42%"}));
}

}  // namespace

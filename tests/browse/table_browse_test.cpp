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

    template <class T, class R>
    static int16_t put(T& table, const R& rec) {
        table.rec = rec;
        return static_cast<int16_t>(table.append());
    }
    int16_t country(const char* name, const char* region) {
        return put(g.country, CountryRecord{.name = name, .region = region});
    }
    int16_t city(const char* name, int16_t in) {
        return put(g.city, CityRecord{.name = name, .country = static_cast<uint8_t>(in)});
    }
    int16_t venue(const char* name, int32_t capacity, int16_t in) {
        return put(g.venue, VenueRecord{.name = name, .capacity = capacity, .city = in});
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

TEST_F(TableBrowse, ARangeKeepsBothEndsAndDropsOnePastAndTextAndNamesKeepOnlyWholeMatches) {
    venue(" Olympia  ", 999, paris);
    venue("Olympia Hall", 1000, paris);
    venue("Maracana", 2000, rio);
    venue("Over", 2001, paris);
    filter.choices = {{.column = 4, .min = 1000, .max = 2000}};
    EXPECT_EQ(names(BrowseTable::venue), (Names{"Olympia Hall", "Maracana"}));
    filter.choices.clear();
    filter.name = "  ";
    EXPECT_EQ(names(BrowseTable::venue).size(), 4u);  // a blank name keeps all
    filter.name = "Olympia ";
    EXPECT_EQ(names(BrowseTable::venue), (Names{"Olympia"}));
    filter.name = "olympia";
    EXPECT_TRUE(names(BrowseTable::venue).empty());
    filter.name.clear();
    filter.choices = {{.column = 2, .text = "Brazil"}};
    EXPECT_EQ(names(BrowseTable::venue), (Names{"Maracana"}));
    EXPECT_EQ(columnValues(grid, 3), (Names{"South America"}));
}

TEST_F(TableBrowse, AFirmInBuildingAndAnIndependentOneSaySoAndMediaShowScopeAndType) {
    int16_t label = addLabel(g, {1, 1, 1, 1, 1}, "Mine");
    put(g.business, BusinessRecord{.name = "Abbey", .kind = 0, .city = paris, .quality = 40, .open = -1});
    put(g.business, BusinessRecord{.name = "Press", .kind = 1, .city = paris, .quality = 40, .owner = label});
    populateTableGrid(g, BrowseTable::business, filter, sort, grid);
    // A studio has no daily capacity.
    EXPECT_EQ(row(0), (Names{"Abbey", "Studio", "Paris", "France", "Europe", "40%", "Independent Company", ""}));
    Names press = row(1);
    press.pop_back();  // the plant's capacity
    EXPECT_EQ(press,
              (Names{"Press (In Construction)", "Manufacturing Plant", "Paris", "France", "Europe", "40%", "Mine"}));

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
    g.media->mediaName = "Zeit";  // only a reach of 2 is global
    g.media->mediaType = 0;
    g.media->reach = 1;
    g.media.append();
    populateTableGrid(g, BrowseTable::media, filter, sort, grid);
    EXPECT_EQ(row(0), (Names{"Le Monde", "France", "National", "12", "Newspaper"}));  // the larger of 7 and 12
    EXPECT_EQ(row(1), (Names{"World TV", "France", "Global", "12", "TV Show"}));
    EXPECT_EQ(row(2), (Names{"Zeit", "France", "National", "12", "Newspaper"}));
}

TEST_F(TableBrowse, ABandsDiscsShowTheirFirstReleaseAndItsToursWhetherItHeadsOrSupports) {
    int16_t a = addAct(g, {.name = "Kites"});
    int16_t b = addAct(g, {.name = "Other"});
    const double march = serialFromCivil(2004, 3, 1), february = serialFromCivil(2004, 2, 9);
    put(g.disc, DiscRecord{.title = "First", .releaseDate = {march, 0, february, 0, 0}, .band = a});
    put(g.disc, DiscRecord{.title = "Theirs", .band = b});
    put(g.disc, DiscRecord{.title = "Second", .isSingle = 1, .band = a});
    filter.band = a;
    EXPECT_EQ(names(BrowseTable::disc), (Names{"First", "Second"}));
    EXPECT_EQ(names(BrowseTable::disc, 2), (Names{"Album", "Single"}));
    EXPECT_EQ(names(BrowseTable::disc, 4), (Names{"09/02/2004", ""}));  // Europe's 9 February beat the UK's 1 March

    const int16_t head = a, other = b;
    const int16_t own = put(g.tour, TourRecord{.areaCode = "E", .band = head});
    const int16_t theirs = put(g.tour, TourRecord{.areaCode = "N", .band = other});
    const int16_t notOn =
        put(g.tour, TourRecord{.areaCode = "N", .nation = static_cast<uint8_t>(brazil), .band = other});
    put(g.gig, GigRecord{.bill = {other, head}, .tour = theirs});
    put(g.gig, GigRecord{.bill = {other}, .tour = notOn});
    filter.band = head;
    EXPECT_EQ(names(BrowseTable::tour), (Names{"Europe Tour", "North America Tour"}));
    EXPECT_EQ(names(BrowseTable::tour, 1), (Names{"Headliner", "Support"}));
    EXPECT_EQ(grid.rows[0].record, own);
    filter.band = other;
    EXPECT_EQ(names(BrowseTable::tour, 2), (Names{"North America", "Brazil"}));
}

TEST_F(TableBrowse, ABandsGigsAreThoseItIsBilledOnAndEveryCeremonyIsListed) {
    const int16_t olympia = venue("Olympia", 2000, paris);
    put(g.gig, GigRecord{.gigNumber = 1, .bill = {4, 7}, .venue = olympia, .attendance = 900});
    put(g.gig, GigRecord{.gigNumber = 2, .bill = {5}, .venue = olympia, .attendance = 300});
    EXPECT_EQ(names(BrowseTable::gig, 4), (Names{"900", "300"}));
    filter.band = 7;  // on the bill as the support act
    EXPECT_EQ(names(BrowseTable::gig, 4), (Names{"900"}));

    for (auto [name, in] : {std::pair{"Brits", france}, {"Grammys", brazil}})
        put(g.ceremony, CeremonyRecord{.name = name, .country = static_cast<uint8_t>(in)});
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

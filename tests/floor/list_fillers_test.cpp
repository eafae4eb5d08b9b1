#include <gtest/gtest.h>

#include <tuple>

#include "floor/list_fillers.h"
#include "support/game_test.h"

using namespace trovane;

namespace {

struct ListFixture : test::GameTest {
    void SetUp() override {
        // Peru has no city.
        for (auto [name, adjective, region] :
             {std::tuple{"England", "English", "E"}, {"Peru", "Peruvian", "S"}, {" France ", "French", "E"}})
            (g.country.rec = CountryRecord{.name = name, .adjective = adjective, .region = region}, g.country.append());
        for (auto [name, country] : {std::pair{"London", 1}, {"  Paris", 3}, {"Leeds ", 1}})
            (g.city.rec = CityRecord{.name = name, .country = static_cast<uint8_t>(country)}, g.city.append());
        for (auto [style, label] : {std::pair{"Rock", "Big Sound"}, {" Pop ", "Lowlife "}}) {
            (g.style.rec = StyleRecord{.name = style}, g.style.append());
            (g.label.rec = LabelRecord{.name = label}, g.label.append());
        }
    }
};

using Rows = std::vector<ListRow>;

}  // namespace

TEST_F(ListFixture, StylesLabelsCitiesAndCountries) {
    EXPECT_EQ(listStyles(g, 1), (Rows{{"Rock", 1}, {"Pop", 2}}));
    EXPECT_EQ(listStyles(g, 2), (Rows{{"All Styles", 0}, {"Rock", 1}, {"Pop", 2}}));
    EXPECT_EQ(listStyles(g, 3), Rows{});
    EXPECT_EQ(listLabels(g, 1), (Rows{{"Big Sound", 1}, {"Lowlife", 2}}));
    EXPECT_EQ(listLabels(g, 2), Rows{});
    EXPECT_EQ(listCities(g, 1, 0), (Rows{{"London", 1}, {"Paris", 2}, {"Leeds", 3}}));
    EXPECT_EQ(listCities(g, 2, 1), (Rows{{"London", 1}, {"Leeds", 3}}));
    EXPECT_EQ(listCities(g, 2, 2), Rows{});
    EXPECT_EQ(listCountries(g, 1, ""), (Rows{{"English", 1}, {"Peruvian", 2}, {"French", 3}}));
    EXPECT_EQ(listCountries(g, 2, ""), (Rows{{"England", 1}, {"Peru", 2}, {"France", 3}}));
    EXPECT_EQ(listCountries(g, 3, "E"), (Rows{{"England", 1}, {"France", 3}}));
    EXPECT_EQ(listCountries(g, 3, "S"), Rows{}) << "Peru has no city";
}

// An artist's names drawn from what is kept of the banks: the same rows and
// the same calls on the random source as a walk of the banks' records.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/album_world.h"
#include "support/amend.h"
#include "support/played_world.h"
#include "talent/artist_names.h"
#include "talent/band_creation.h"

using namespace trovane;

namespace {

template <class R>
int walkedChance(const R& row, int country) {
    bool open = std::all_of(row.countryLinks.begin(), row.countryLinks.end(), [](uint8_t c) { return c == 0; });
    if (open) return 100;
    for (std::size_t i = 0; i < row.countryLinks.size(); ++i)
        if (row.countryLinks[i] != 0 && row.countryLinks[i] == country)
            return std::min<int>(row.countryWeights[i], 100);
    return 0;
}

// The draw as a walk of the records, each read into the buffer.
template <class R, class Fits>
int32_t walkedDraw(Random& rng, Table<R>& table, int country, Fits fits) {
    const int32_t rows = table.recordCount() - 1;
    for (int32_t attempt = 0; attempt < 4 * rows; ++attempt) {
        int32_t n = rng.between(1, rows);
        table.read(n);
        if (!fits(table.rec)) continue;
        int chance = walkedChance(table.rec, country);
        if (chance >= 100 || (chance > 0 && rng.between(0, 99) < chance)) return n;
    }
    std::vector<std::pair<int32_t, int>> fitting;
    std::vector<int32_t> ofTheSex;
    int32_t total = 0;
    for (int32_t n = 1; n <= rows; ++n) {
        table.read(n);
        if (!fits(table.rec)) continue;
        ofTheSex.push_back(n);
        if (int chance = walkedChance(table.rec, country); chance > 0) {
            fitting.emplace_back(n, chance);
            total += chance;
        }
    }
    if (!fitting.empty()) {
        int32_t pick = rng.between(0, total - 1);
        for (auto [n, chance] : fitting) {
            if (pick < chance) return n;
            pick -= chance;
        }
        return fitting.back().first;
    }
    if (!ofTheSex.empty()) return ofTheSex[static_cast<std::size_t>(rng.between(0, int32_t(ofTheSex.size()) - 1))];
    return rng.between(1, rows);
}

}  // namespace

TEST(NameDraws, TheShippedBanksGiveTheRowsAndDrawsOfAWalk) {
    test::PlayedWorld w;
    Game& g = w.g;
    ASSERT_GT(g.forename.recordCount(), 100);
    int last = 0;  // the last country a name is linked to
    for (int32_t n = 1; n < g.forename.recordCount(); ++n) {
        g.forename.read(n);
        for (uint8_t c : g.forename->countryLinks) last = std::max<int>(last, c);
    }
    ASSERT_GT(last, 1);
    for (int country = 0; country <= last + 1; ++country) {  // one past: a country with no names
        for (bool male : {true, false}) {
            for (int i = 0; i < 2; ++i) {
                Random walked = g.rng;
                const int32_t fore = walkedDraw(walked, g.forename, country, [male](const ForenameRecord& r) {
                    return (r.isMale != kFalse) == male;
                });
                const int32_t sur = walkedDraw(walked, g.surname, country, [](const SurnameRecord&) { return true; });
                g.forename.read(1);
                EXPECT_EQ(drawForename(g, country, male), fore) << "country " << country;
                EXPECT_EQ(g.forename->id, fore) << "the buffer on the row drawn";
                EXPECT_EQ(drawSurname(g, country), sur) << "country " << country;
                EXPECT_EQ(g.surname->id, sur);
                ASSERT_EQ(g.rng.between(0, 1 << 30), walked.between(0, 1 << 30))
                    << "the same draws, country " << country;
            }
        }
    }
}

TEST(NameDraws, ANameOrCityWrittenInPlayIsDrawnAsItNowReads) {
    test::AlbumWorld w;
    Game& g = w.g;
    for (bool male : {true, false}) {
        g.forename.rec = ForenameRecord{0, male ? "Al" : "Bea", {}, {}, male ? kTrue : kFalse};
        g.forename.append();
    }
    EXPECT_EQ(drawForename(g, 1, true), 1);
    for (int16_t n : {1, 2})
        amend(g.forename, n, [&] { g.forename->isMale = g.forename->isMale == kFalse ? kTrue : kFalse; });
    EXPECT_EQ(drawForename(g, 1, true), 2);
    EXPECT_EQ(g.forename->name.value, "Bea");

    // So is a city.
    const int32_t first = g.city.recordCount();
    for (uint8_t country : {201, 202}) {
        g.city.rec = CityRecord{.size = 100, .country = country};  // size 100: always kept once drawn
        g.city.append();
    }
    EXPECT_EQ(pickBirthCity(g, 201), first);
    EXPECT_EQ(g.city->id, first + 1) << "the buffer as a walk of every city leaves it";
    for (int32_t n : {first, first + 1})
        amend(g.city, n, [&] { g.city->country = g.city->country == 201 ? 202 : 201; });
    EXPECT_EQ(pickBirthCity(g, 201), first + 1);
}

namespace {

// A member's country of birth as a walk of the nations' table, each row read.
int walkedBirthCountry(Random& rng, Game& g, int home) {
    if (rng.between(0, 99) < 70) return home;
    std::vector<std::pair<int, int>> links;  // country, weight
    int total = 0;
    for (int32_t n = 1; n < g.assnation.recordCount(); ++n) {
        g.assnation.read(n);
        const AssRecord& r = g.assnation.rec;
        if (r.weight == 0 || (r.a != home && r.b != home)) continue;
        links.emplace_back(r.a == home ? r.b : r.a, r.weight);
        total += r.weight;
    }
    if (total == 0) return home;
    int draw = rng.between(0, total - 1);
    for (auto [country, weight] : links) {
        if (draw < weight) return country;
        draw -= weight;
    }
    return home;
}

}  // namespace

TEST(Birthplaces, AMembersCountryIsTheOneAWalkOfTheNationsGives) {
    test::PlayedWorld w;
    Game& g = w.g;
    ASSERT_GT(g.assnation.recordCount(), 10);
    int picked = 0;  // draws that went past the home country
    for (int round = 0; round < 2; ++round) {
        if (round == 1) {  // a link written in play: its ends swap and its weight moves
            g.assnation.read(1);
            std::swap(g.assnation->a, g.assnation->b);
            g.assnation->weight = static_cast<uint8_t>(g.assnation->weight + 40);
            g.assnation.write();
        }
        for (int home = 0; home < g.country.recordCount() + 1; ++home) {  // one past: a country of no links
            for (int i = 0; i < 6; ++i) {
                g.assnation.read(1);
                Random walked = g.rng;
                const int expected = walkedBirthCountry(walked, g, home);
                const AssRecord left = g.assnation.rec;
                g.assnation.read(1);
                EXPECT_EQ(pickBirthCountry(g, home, false), expected) << "home " << home;
                EXPECT_EQ(std::tuple(g.assnation->a, g.assnation->b), std::tuple(left.a, left.b))
                    << "the buffer as the walk leaves it";
                ASSERT_EQ(g.rng.between(0, 1 << 30), walked.between(0, 1 << 30)) << "the same draws, home " << home;
                picked += expected != home;
            }
        }
    }
    EXPECT_GT(picked, 20);
}

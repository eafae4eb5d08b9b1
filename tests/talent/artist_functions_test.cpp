// A new artist's age, figures and name, drawn many times over.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <vector>

#include "support/game_test.h"
#include "talent/artist_functions.h"
#include "talent/artist_names.h"

using namespace trovane;

namespace {

struct NewArtists : test::GameTest {
    void useStyle(uint8_t lifeSpan) {
        g.style.rec = StyleRecord{.lifeSpan = lifeSpan, .baseCharisma = 60, .baseAngst = 95};
        g.artist.rec = ArtistRecord{.style = narrow<uint8_t>(g.style.append())};
    }
};

}  // namespace

TEST_F(NewArtists, AgeStaysWithinSeventeenAndTwentyFiveAndEachPlaceTakesTheLastJobNamedUpToIt) {
    for (auto [lifeSpan, youngest, oldest] : {std::tuple{0, 17, 17}, {15, 17, 22}, {30, 19, 25}, {60, 25, 25}}) {
        useStyle(narrow<uint8_t>(lifeSpan));
        std::set<int> seen;
        for (int i = 0; i < 2000; ++i) seen.insert(setNewArtistAge(g));
        EXPECT_EQ(std::pair(*seen.begin(), *seen.rbegin()), std::pair(youngest, oldest)) << "life span " << lifeSpan;
    }
    // A member takes the last job the style names at or before their place; a
    // solo act takes the solo job.
    g.style.rec = StyleRecord{.bandJobs = {0, 3, 0, 5, 0, 0, 7}, .soloJob = 9};
    std::vector<int> jobs;
    for (int place = 0; place < 9; ++place) jobs.push_back(jobForPlace(g, place, false));
    EXPECT_EQ(jobs, (std::vector<int>{0, 3, 3, 5, 5, 5, 7, 7, 7}));
    EXPECT_EQ(jobForPlace(g, 0, true), 9);
}

TEST_F(NewArtists, AbilityFollowsTheTalentTheStyleAndTheAge) {
    // k, the share of talent a style gives at the start, is held to 1 or to 2 to 6.
    for (auto [lifeSpan, k] : {std::pair{3, 1}, {7, 2}, {10, 4}, {12, 6}, {14, 6}}) {
        useStyle(narrow<uint8_t>(lifeSpan));
        for (int i = 0; i < 300; ++i) {
            g.artist->age = 20;
            int32_t ceiling = 40 + g.rng.between(0, 50);
            setArtistStats(g, ceiling);
            const ArtistRecord& a = g.artist.rec;
            ASSERT_LE(std::abs(a.talentCeiling - ceiling), ceiling / 10);
            double expected =
                std::nearbyint(a.talentCeiling / double(k)) + std::nearbyint(a.talentCeiling / double(lifeSpan)) + 28;
            ASSERT_EQ(a.ability, std::min(expected, 100.0)) << "life span " << lifeSpan;
            ASSERT_GE(a.charisma, 60);
            ASSERT_LE(a.angst, 100);
            ASSERT_EQ(a.potential, a.talentCeiling);
        }
    }
}

TEST_F(NewArtists, NamesFitTheCountryAndTheSexByTheirWeights) {
    enum : uint8_t { home = 1, abroad = 2, nowhere = 3 };
    using Links = std::array<uint8_t, 5>;
    for (auto [name, male, links, weights] : {std::tuple{"Ana", false, Links{home}, Links{100}},
                                              {"Bo", true, {home}, {60}},
                                              {"Carl", true, {abroad}, {100}},
                                              {"Dev", true, {}, {}},
                                              {"Eve", false, {}, {}},
                                              {"Finn", true, {home}, {0}},
                                              {"Gus", true, {abroad, home}, {50, 30}}}) {
        g.forename.rec = ForenameRecord{0, name, links, weights, boolean(male)};
        g.forename.append();
    }
    const std::tuple<const char*, Links, Links> surnames[] = {
        {"Alder", {home}, {100}}, {"Birch", {abroad}, {100}}, {"Cobb", {abroad, home}, {100, 25}}};
    for (auto [name, links, weights] : surnames) {
        g.surname.rec = SurnameRecord{0, name, links, weights};
        g.surname.append();
    }

    using Shares = std::map<std::string, double>;
    for (auto [country, male, forenames, surnames] : {
             std::tuple{home, true, Shares{{"Bo", 60 / 190.0}, {"Dev", 100 / 190.0}, {"Gus", 30 / 190.0}},
                        Shares{{"Alder", 0.8}, {"Cobb", 0.2}}},
             {home, false, {{"Ana", 0.5}, {"Eve", 0.5}}, {{"Alder", 0.8}, {"Cobb", 0.2}}},
             {abroad, true, {{"Carl", 0.4}, {"Dev", 0.4}, {"Gus", 0.2}}, {{"Birch", 0.5}, {"Cobb", 0.5}}},
             // No names of its own: the open forename, and any surname at all.
             {nowhere, true, {{"Dev", 1.0}}, {{"Alder", 1 / 3.0}, {"Birch", 1 / 3.0}, {"Cobb", 1 / 3.0}}},
         }) {
        Shares seenForenames, seenSurnames;
        for (int i = 0; i < 3000; ++i) {
            g.artist.rec = ArtistRecord{.country = country, .male = boolean(male)};
            drawArtistName(g);
            seenForenames[g.artist->forename.value] += 1 / 3000.0;
            seenSurnames[g.artist->surname.value] += 1 / 3000.0;
        }
        for (auto [seen, expected] : {std::pair{&seenForenames, &forenames}, {&seenSurnames, &surnames}}) {
            ASSERT_EQ(seen->size(), expected->size()) << "names from outside the country, country " << int(country);
            for (const auto& [name, share] : *expected)
                EXPECT_NEAR((*seen)[name], share, 0.04) << name << ", country " << int(country);
        }
    }
}

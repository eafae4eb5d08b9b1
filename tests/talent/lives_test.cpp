// Acts forming and ending: the drawn style and size, the home markets, the
// search for a replacement and the chain it opens, and the ends of acts.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "schedule/schedule_types.h"
#include "support/album_world.h"
#include "support/amend.h"
#include "talent/band_creation.h"
#include "talent/lifecycle.h"
#include "talent/retirement.h"
#include "world/strings.h"

using namespace trovane;
using test::AlbumWorld;

namespace {

struct Lives : ::testing::Test, AlbumWorld {
    Lives() { g.gameDate = serialFromCivil(2005, 3, 1); }
    // A popular style for the acts that replace those that end, and the last
    // record no act is drawn from.
    void readyForNewActs() {
        for (const char* name : {"Pop", "Last"}) {
            g.style.rec = StyleRecord{.name = std::string(name),
                                      .lifeSpan = 20,
                                      .popularity = {100, 100, 100, 100, 100},
                                      .commerciality = 100,
                                      .membersHigh = 3,
                                      .membersUsual = 3,
                                      .membersLow = 3};
            g.style.append();
        }
    }
    int32_t member(int16_t band, int i) {
        g.band.read(band);
        return g.band->members[static_cast<std::size_t>(i)];
    }
    // A free artist of job 1 and style 1 with every market at rep.
    int32_t freeArtist(uint8_t rep, uint8_t ability, int16_t band = 0, uint8_t stamina = 100) {
        g.artist.rec = ArtistRecord{.job = 1, .ability = ability, .style = 1, .band = band, .stamina = stamina};
        g.artist->forename = "Cand";
        g.artist->surname = std::to_string(g.artist.recordCount());
        g.artist->reputation = {rep, rep, rep, rep, rep};
        return g.artist.append();
    }
    // A group of two whose markets all stand at 50 (rating 50), its members of
    // job 1 with 50 everywhere and ability 50.
    int16_t group(const std::string& name, uint8_t rep = 50, int members = 2) {
        int16_t b = addBand(name, 0, members);
        amend(g.band, b, [&] { g.band->reputation = {rep, rep, rep, rep, rep}; });
        for (int i = 0; i < members; ++i)
            amend(g.artist, member(b, i), [&] {
                g.artist->job = 1;
                g.artist->ability = 50;
                g.artist->reputation = {rep, rep, rep, rep, rep};
            });
        return b;
    }
    std::vector<ScheduleRecord> entries() {
        std::vector<ScheduleRecord> out;
        for (int32_t n = 1; n < g.schedule.recordCount(); ++n) {
            g.schedule.read(n);
            out.push_back(g.schedule.rec);
        }
        return out;
    }
};

}  // namespace

TEST_F(Lives, NewActsStylesAreDrawnByPopularityAndNeverLegend) {
    // Style 1 (Rock, popularity 0, commerciality 60: 30) exists; then a hit
    // style (100 everywhere: always kept), Legend, a middling one (25: kept only
    // on a draw of 0, 1 in 75) and a last record that is never drawn.
    for (auto [name, level] : {std::pair{"Hit", 100}, {"Legend", 100}, {"Middling", 25}, {"Last", 100}}) {
        uint8_t v = narrow<uint8_t>(level);
        g.style.rec = StyleRecord{.name = name, .popularity = {v, v, v, v, v}, .commerciality = v};
        g.style.append();
    }
    std::map<int, int> seen;
    for (int i = 0; i < 3000; ++i) seen[pickStyle(g)]++;
    EXPECT_EQ(seen.count(3), 0u) << "Legend";
    EXPECT_EQ(seen.count(5), 0u) << "the last record";
    // Rock: (30 - 25)^2 = 25 keeps draws 0 to 5 of 75, 6 in 75.
    EXPECT_GT(seen[2], 2000);
    EXPECT_LT(seen[4], seen[1]);
    EXPECT_GT(seen[4], 0);
}

TEST_F(Lives, NewActsGroupSizesStayBetweenTheSmallestAndTheSpread) {
    g.style->membersUsual = 4;
    g.style->membersHigh = 6;
    g.style->membersLow = 3;
    // 4 + Int(rnd * 4) - 2 gives 2 to 5; 2 is raised to 3; 6 is never reached.
    std::map<int, int> seen;
    for (int i = 0; i < 4000; ++i) seen[pickBandSize(g)]++;
    EXPECT_EQ(seen.size(), 3u);
    EXPECT_EQ(seen.begin()->first, 3);
    EXPECT_EQ(seen.rbegin()->first, 5);
    EXPECT_NEAR(seen[4] / 4000.0, 0.51 + 0.49 / 4, 0.03);
}

TEST_F(Lives, NewActsHomeMarketsFollowWhereTheActFormed) {
    using Order = std::array<int, 5>;
    for (auto [name, region, order] : {std::tuple{"Scotland", "E", Order{0, 2, 1, 3, 4}},
                                       {"France", "E", {2, 0, 1, 3, 4}},
                                       {"Canada", "N", {1, 0, 3, 2, 4}},
                                       {"New Zealand", "O", {3, 1, 0, 2, 4}},
                                       {"Brazil", "S", {4, 3, 2, 0, 1}}}) {
        g.country->name = std::string(name);
        g.country->region = std::string(region);
        EXPECT_EQ(homeOrder(g), order) << name;
    }
}

TEST_F(Lives, NewActsABandNameIsDrawnFromItsStyleAmongNamesNoActiveActBears) {
    for (auto [name, style] : {std::pair{"Taken", 1}, {"Free", 1}, {"Other", 2}}) {
        g.newband.rec = NewBandRecord{.name = name, .style = narrow<uint8_t>(style)};
        g.newband.append();
    }
    const int16_t taken = addBand("Taken", 0);
    std::set<std::string> drawn;
    for (int i = 0; i < 40; ++i) drawn.insert(pickBandName(g, 1));
    EXPECT_EQ(drawn, std::set<std::string>{"Free"});
    amend(g.band, taken, [&] { g.band->retired = kTrue; });
    drawn.clear();
    for (int i = 0; i < 40; ++i) drawn.insert(pickBandName(g, 1));  // all 40 miss "Taken" at odds of 1 in 2^40
    EXPECT_EQ(drawn, (std::set<std::string>{"Free", "Taken"}));
}

TEST_F(Lives, ReplacementScoreFrom70To130AndTheFirstBestStays) {
    int16_t x = group("X");
    const auto leaver = narrow<int16_t>(member(x, 0));
    auto found = [&](const std::set<int32_t>& chain = {}) { return findReplacement(g, leaver, x, chain); };
    // Rating 50, leaver at 50 in the US and ability 50: a free candidate at rep r
    // everywhere and ability a scores (2r + 2r + 4a) / 4 = r + a.
    freeArtist(20, 49);  // 69
    EXPECT_EQ(found(), 0);
    int32_t at70 = freeArtist(20, 50);  // 70
    EXPECT_EQ(found(), at70);
    amend(g.artist, at70, [&] { g.artist->retired = kTrue; });
    EXPECT_EQ(found(), 0) << "retired in play";
    amend(g.artist, at70, [&] { g.artist->retired = kFalse; });
    EXPECT_EQ(found(), at70) << "and back";
    EXPECT_EQ(g.artist->id, g.artist.recordCount() - 1) << "the buffer as a walk of every artist leaves it";
    freeArtist(65, 66);                  // 131
    int32_t at130 = freeArtist(65, 65);  // 130
    EXPECT_EQ(found(), at130);
    int32_t second = freeArtist(65, 65);  // 130 again: the first stays
    EXPECT_EQ(found(), at130);
    EXPECT_EQ(found({at130, second}), at70) << "chosen in the chain";
    amend(g.artist, at130, [&] { g.artist->job = 2; });
    amend(g.artist, second, [&] { g.artist->retirementDate = g.artist->birthDate + 9000; });
    amend(g.artist, at70, [&] { g.artist->style = 2; });
    EXPECT_EQ(found(), 0) << "another job, style, or retiring";
}

TEST_F(Lives, ReplacementAMemberOfAnotherBandNeedsTheStamina) {
    int16_t x = group("X");
    int16_t y = group("Y", 25);  // rating 25 of 50: 100 - stamina must reach 50
    for (int i = 0; i < 2; ++i) amend(g.artist, member(y, i), [&] { g.artist->job = 2; });
    int32_t leaver = member(x, 0);
    freeArtist(50, 50, y, 51);  // too tired
    EXPECT_EQ(findReplacement(g, narrow<int16_t>(leaver), x), 0);
    int32_t able = freeArtist(50, 50, y, 50);
    EXPECT_EQ(findReplacement(g, narrow<int16_t>(leaver), x), able);
}

TEST_F(Lives, ReplacementALeaverWithNoFollowingCountsAsOne) {
    int16_t x = group("X");
    int32_t leaver = member(x, 0);
    amend(g.artist, leaver, [&] { g.artist->reputation = {}; });
    // (100 * 1 / 1 + 100 * 1 / 50 + 200 * 45 / 50) = 282, / 4 = 70.5.
    int32_t c = freeArtist(1, 45);
    EXPECT_EQ(findReplacement(g, narrow<int16_t>(leaver), x), c);
}

TEST_F(Lives, RetirementAChainOfPostsRunsOnOneDateUntilOneFails) {
    readyForNewActs();
    int16_t x = group("X"), y = group("Y", 50), z = group("Z", 50);
    int32_t a = member(x, 0), b = member(y, 0), c = member(z, 0);
    // Each post's replacement comes from the next band; nobody can replace c.
    for (int32_t n : {member(x, 1), member(y, 1), member(z, 1)}) amend(g.artist, n, [&] { g.artist->job = 9; });
    g.schedule.rec = ScheduleRecord{.type = 29, .artist = narrow<int16_t>(a)};
    announceArtistRetirement(g);
    auto filed = entries();
    const double tomorrow = g.gameDate + 1;
    ASSERT_EQ(filed.size(), 3u);
    EXPECT_EQ(std::tuple(filed[0].type, filed[0].date, filed[0].band, filed[0].artist, filed[0].artist2),
              std::tuple(uint8_t{30}, tomorrow, x, int16_t(a), int16_t(b)));
    EXPECT_EQ(std::tuple(filed[1].type, filed[1].band, filed[1].artist, filed[1].artist2),
              std::tuple(uint8_t{31}, y, int16_t(b), int16_t(c)));
    EXPECT_EQ(std::tuple(filed[2].type, filed[2].date, filed[2].band, filed[2].artist, filed[2].artist2),
              std::tuple(uint8_t{31}, tomorrow, z, int16_t(c), int16_t{0}));

    const int32_t bands = g.band.recordCount(), artists = g.artist.recordCount();
    g.schedule.rec = filed[0];
    retireArtist(g, 1, filed[0].artist);
    g.schedule.rec = filed[1];
    memberLeaves(g);
    g.schedule.rec = filed[2];
    memberLeaves(g);
    EXPECT_EQ(member(x, 0), b);
    EXPECT_EQ(member(y, 0), c);
    EXPECT_EQ((g.band.read(z), g.band->retired), kTrue) << "no one for c's post";
    auto bandOf = [&](int32_t n) { return (g.artist.read(n), g.artist->band); };
    EXPECT_EQ(std::tuple(bandOf(a), bandOf(b), bandOf(c), bandOf(member(z, 1))), std::tuple(0, x, y, 0));
    EXPECT_EQ((g.artist.read(a), g.artist->retired), kTrue);
    EXPECT_EQ(g.band.recordCount(), bands + 1) << "Z's end makes a new act";
    EXPECT_GT(g.artist.recordCount(), artists) << "a's retirement makes an artist";

    // A second end of Z does nothing.
    const int32_t after = g.band.recordCount();
    g.schedule.rec = ScheduleRecord{.band = z};
    retireBand(g, false);
    EXPECT_EQ(g.band.recordCount(), after);
}

TEST_F(Lives, RetirementAnActUnsignedTenMonthsEndsWithoutNews) {
    readyForNewActs();
    int16_t x = group("X", 90);  // rated 90: of interest
    amend(g.band, x, [&] { g.band->monthsUnsigned = 9; });
    const int32_t news = newsCount(), bands = g.band.recordCount();
    updateBandTimeWithoutADeal(g);
    EXPECT_EQ((g.band.read(x), g.band->retired), kTrue);
    EXPECT_EQ(newsCount(), news);
    EXPECT_EQ(g.band.recordCount(), bands + 1);
}

TEST_F(Lives, RetirementAnAgeingActRetiresOnlyPastHalfItsSpan) {
    amend(g.style, 1, [&] { g.style->lifeSpan = 100; });
    int16_t x = group("X");
    for (auto [age, filed] : {std::pair{50, false}, {51, true}}) {
        amend(g.band, x, [&] { g.band->age = narrow<uint8_t>(age); });
        int count = 0;
        // At 51 the chance is 2 in 100: 2,000 tries see it, at 50 none.
        for (int i = 0; i < 2000; ++i) {
            g.band.read(x);
            const int32_t before = g.schedule.recordCount();
            considerRetirement(g);
            count += g.schedule.recordCount() - before;
        }
        EXPECT_EQ(count > 0, filed) << "age " << age;
        if (count) { EXPECT_NEAR(count / 2000.0, 0.02, 0.012); }
    }
}

TEST_F(Lives, RetirementASoloActGoesWithItsArtist) {
    readyForNewActs();
    const double tomorrow = g.gameDate + 1;
    // A solo artist's notice is the act's: a year's notice, nothing filed for the artist.
    int16_t solo = group("Solo", 90, 1);
    g.schedule.rec = ScheduleRecord{.type = 29, .artist = narrow<int16_t>(member(solo, 0))};
    announceArtistRetirement(g);
    auto filed = entries();
    ASSERT_EQ(filed.size(), 1u);
    EXPECT_EQ(std::tuple(filed[0].type, filed[0].date, filed[0].band), std::tuple(uint8_t{28}, g.gameDate + 365, solo));
    EXPECT_EQ((g.band.read(solo), g.band->contractEnd), g.gameDate + 365);
    EXPECT_EQ(lastNews().title.value, "Solo announces planned retirement.");
    amend(g.artist, member(solo, 0), [&] { g.artist->job = 9; });

    // A chain that takes a solo artist ends that act the same day.
    int16_t x = group("X"), y = group("Y", 50, 1);
    amend(g.artist, member(x, 1), [&] { g.artist->job = 9; });
    const int32_t a = member(x, 0), b = member(y, 0);
    g.schedule.clearAll();
    g.schedule.rec = ScheduleRecord{.type = 29, .artist = narrow<int16_t>(a)};
    announceArtistRetirement(g);
    filed = entries();
    ASSERT_EQ(filed.size(), 2u);
    EXPECT_EQ(std::tuple(filed[0].type, filed[0].band, filed[0].artist, filed[0].artist2),
              std::tuple(uint8_t{30}, x, int16_t(a), int16_t(b)));
    EXPECT_EQ(std::tuple(filed[1].type, filed[1].date, filed[1].band), std::tuple(uint8_t{28}, tomorrow, y));
    EXPECT_EQ((g.band.read(y), g.band->contractEnd), tomorrow);

    // With nobody to take the place, a group calls it a day and a solo act ends.
    int16_t z = group("Z", 90), w = group("W", 90, 1);
    const int32_t z0 = member(z, 0), z1 = member(z, 1), w0 = member(w, 0);
    g.schedule.rec = ScheduleRecord{.type = 30, .artist = narrow<int16_t>(z0)};
    retireArtist(g, 1, narrow<int16_t>(z0));
    EXPECT_EQ((g.news.read(newsCount() - 1), g.news->title.value), "Z call it a day.");
    EXPECT_EQ(lastNews().title.value, "Z retire.");
    // A solo act ends even with a replacement named.
    g.schedule.rec =
        ScheduleRecord{.type = 30, .artist = narrow<int16_t>(w0), .artist2 = narrow<int16_t>(freeArtist(50, 50))};
    const int32_t news = newsCount();
    retireArtist(g, 1, narrow<int16_t>(w0));
    EXPECT_EQ(newsCount(), news + 1);
    EXPECT_EQ(lastNews().title.value, "W retire.");
    auto bandOf = [&](int32_t n) { return (g.artist.read(n), g.artist->band); };
    EXPECT_EQ(std::tuple(bandOf(z0), bandOf(z1), bandOf(w0)), std::tuple(0, 0, 0));
    EXPECT_EQ(std::tuple((g.band.read(z), g.band->retired), (g.band.read(w), g.band->retired)),
              std::tuple(kTrue, kTrue));
}

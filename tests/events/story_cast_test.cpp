// Who a story can happen to: each test of a participant's condition block at
// its bound and one past.
#include <gtest/gtest.h>

#include "events/story_events.h"
#include "events/story_text.h"
#include "session/invariants.h"
#include "support/album_world.h"
#include "support/amend.h"
#include "world/strings.h"

using namespace trovane;
using test::AlbumWorld;

namespace {

struct Cast : AlbumWorld, ::testing::Test {
    int16_t duo, trio, solo;
    int32_t a, b, c, d;
    Cast() {
        duo = addBand("Duo", kPlayer, 2);
        trio = addBand("Trio", kRival, 3);
        solo = addBand("Solo", 0, 1);
        auto member = [&](int16_t band, std::size_t i) { return (g.band.read(band), g.band->members[i]); };
        std::tie(a, b, c, d) = std::tuple(member(duo, 0), member(duo, 1), member(trio, 0), member(solo, 0));
        amend(g.artist, b, [&] { g.artist->male = 0; });
    }
    std::string test(const EventCondition& cond, int32_t who, int place = 0, int32_t first = 0) {
        g.artist.read(who);
        return failedCondition(g, cond, place, narrow<int16_t>(first));
    }
    // A root event (1) for two of the player's men whose only follow-up (2) comes
    // on a roll of 0 to 99 after 0 days, which counts as 1.
    void twoStageStory(uint8_t secondType) {
        g.gameDate = serialFromCivil(2005, 6, 1);
        g.event.rec = EventRecord{.participantCount = 2, .eventType = 2, .title = std::string("<an1> and <an2>")};
        g.event->nextEvent[0] = 2;
        g.event->rollHigh[0] = 99;
        g.event->conditions[0].money = -500;
        g.event->conditions[0].boundChange = {0, 0, 0, 0, 95, -200};
        g.event.append();
        g.event.rec = EventRecord{.participantCount = 2, .eventType = secondType, .title = std::string("Later")};
        g.event.append();
    }
    ScheduleRecord entry(int32_t n) { return (g.schedule.read(n), g.schedule.rec); }
    // The artist's mark of a story of type 2 under way.
    int16_t markOf(int32_t who) { return (g.artist.read(who), g.artist->storyUnderWay[2]); }
};
using StoryCast = Cast;
using Stories = Cast;

}  // namespace

TEST_F(StoryCast, BoundsGenderBandsAndLabelsEachFailByName) {
    amend(g.artist, a, [&] {
        g.artist->age = 30;
        g.artist->angst = 40;
    });
    EventCondition cond{};
    EXPECT_EQ(test(cond, a), "");
    for (auto [age, fails] : {std::pair{30, false}, {31, true}, {-30, false}, {-29, true}}) {
        cond.age = narrow<int16_t>(age);
        EXPECT_EQ(test(cond, a), fails ? "age" : "") << age;
    }
    cond.age = 0;
    for (auto [angst, fails] : {std::pair{40, false}, {41, true}, {-40, false}, {-39, true}}) {
        cond.bounds[4] = narrow<int16_t>(angst);
        EXPECT_EQ(test(cond, a), fails ? "angst" : "") << angst;
    }
    cond.bounds[4] = 0;
    g.artist.read(a);
    cond.job = narrow<int16_t>(g.artist->job + 1);
    EXPECT_EQ(test(cond, a), "job");
    cond = EventCondition{.genderRule = 1};
    EXPECT_EQ(test(cond, b), "gender");
    cond.genderRule = 2;
    EXPECT_EQ(test(cond, b), "");
    cond.genderRule = 3;  // a is a man, b a woman, c a man
    EXPECT_EQ(test(cond, b, 1, a), "gender");
    EXPECT_EQ(test(cond, c, 1, a), "");
    cond.genderRule = 4;
    EXPECT_EQ(test(cond, b, 1, a), "");
    EXPECT_EQ(test(cond, c, 1, a), "gender");
    cond = EventCondition{.bandRule = -3};  // a band of at most two; the second in the first's band
    EXPECT_EQ(test(cond, a), "");
    EXPECT_EQ(test(cond, c), "band") << "three members";
    EXPECT_EQ(test(cond, b, 1, a), "");
    EXPECT_EQ(test(cond, d, 1, a), "band");
    cond.bandRule = -2;
    EXPECT_EQ(test(cond, b, 1, a), "");
    EXPECT_EQ(test(cond, c, 1, a), "band");
    cond.bandRule = AlbumWorld::kRival;
    EXPECT_EQ(test(cond, c), "");
    EXPECT_EQ(test(cond, a), "band");
    cond.bandRule = 0;
    cond.labelRule = -2;
    EXPECT_EQ(test(cond, a), "");
    EXPECT_EQ(test(cond, d), "label");
    cond.labelRule = -1;
    EXPECT_EQ(test(cond, d), "");
    EXPECT_EQ(test(cond, a), "label");
    cond.labelRule = AlbumWorld::kRival;
    EXPECT_EQ(test(cond, c), "");
    EXPECT_EQ(test(cond, a), "label");
}

namespace {

std::optional<InvariantBreak> storyMarksRule(Game& g) {
    for (const InvariantRule& r : invariantRules())
        if (std::string_view(r.name) == "storyMarksFollowPendingStages") return r.check(g);
    return InvariantBreak{.rule = "missing"};
}

}  // namespace

TEST_F(Stories, AStageMovesMoneyAndBoundsThenFilesItsFollowUpAndTheLastEndsIt) {
    twoStageStory(2);
    amend(g.artist, a, [&] {
        g.artist->wealth = 1000;
        g.artist->angst = 10;
        g.artist->morale = 60;
    });
    g.event.read(1);
    startEvent(g, narrow<int16_t>(a), narrow<int16_t>(b));
    const ScheduleRecord root = entry(1);
    EXPECT_EQ(std::tuple(root.type, root.date, root.offer, root.artist),
              std::tuple(uint8_t{12}, g.gameDate, 1, int16_t(a)));
    EXPECT_EQ(markOf(b), 1);

    const int32_t news = newsCount();
    performStage(g);
    g.artist.read(a);
    // 1000 - 500; angst 10 + 95 held at 100; morale 60 - 200 held at 0.
    EXPECT_EQ(std::tuple(g.artist->wealth, g.artist->angst, g.artist->morale), std::tuple(500, 100, 0));
    ASSERT_EQ(newsCount(), news + 1) << "the player's band";
    EXPECT_EQ(trim(lastNews().title.value), "Member1 Duo and Member2 Duo");
    EXPECT_EQ(lastNews().scheduleLink, 1);
    const ScheduleRecord next = entry(2);
    EXPECT_EQ(std::tuple(next.eventRecord, next.date, next.offer), std::tuple(int16_t{2}, g.gameDate + 1, 1));

    performStage(g);  // stage 2 has no follow-up: the marks clear
    EXPECT_EQ(std::pair(markOf(a), markOf(b)), std::pair(int16_t{0}, int16_t{0}));
}

TEST_F(Stories, ADeathEndsTheStoryForBoth) {
    twoStageStory(6);
    g.event.read(1);
    startEvent(g, narrow<int16_t>(a), narrow<int16_t>(b));
    g.schedule.read(1);
    performStage(g);
    g.schedule.read(2);
    g.event.read(2);
    performStage(g);  // a dies: out of the duo, which cannot go on
    EXPECT_EQ((g.artist.read(a), std::pair(g.artist->retired, g.artist->band)), std::pair(kTrue, int16_t{0}));
    EXPECT_EQ((g.band.read(duo), g.band->retired), kTrue);
    g.artist.read(b);
    EXPECT_EQ(std::pair(g.artist->band, g.artist->storyUnderWay[2]), std::pair(int16_t{0}, int16_t{0}));
}

TEST_F(Stories, ADefenceCostsTheLabelAndFilesItsStageForTheSameCast) {
    twoStageStory(2);
    amend(g.event, 1, [&] { g.event->replyEffect = {100, 2, -300, 0, 0, 0, 0, 0, 0}; });
    startEvent(g, narrow<int16_t>(a), narrow<int16_t>(b));
    g.schedule.read(1);
    g.event.read(1);
    const Money before = cash(AlbumWorld::kPlayer);
    const Money booked = ledger(AlbumWorld::kPlayer, 107);
    applyStoryReply(g, 0);
    EXPECT_EQ(before - cash(AlbumWorld::kPlayer), moneyUnits(300));
    EXPECT_NE(ledger(AlbumWorld::kPlayer, 107), booked) << "booked as category 107";
    const ScheduleRecord filed = entry(2);
    EXPECT_EQ(std::tuple(filed.type, filed.date, filed.eventRecord, filed.offer, filed.artist2),
              std::tuple(uint8_t{12}, g.gameDate, int16_t{2}, 1, int16_t(b)));
    g.event.read(1);
    g.schedule.read(1);
    applyStoryReply(g, 1);  // condemning: no money, no follow-up
    EXPECT_EQ(g.schedule.recordCount(), 3);
}

TEST_F(Stories, AStageFiledByAReplyKeepsTheMarkUntilItRuns) {
    twoStageStory(2);
    amend(g.event, 1, [&] { g.event->replyEffect = {100, 2, 0, 0, 0, 0, 0, 0, 0}; });
    const double day = g.gameDate;
    startEvent(g, narrow<int16_t>(a), narrow<int16_t>(b));
    g.schedule.read(1);
    performStage(g);  // files entry 2, event 2, for tomorrow
    g.gameDate = day + 1;
    g.schedule.read(1);
    g.event.read(1);
    applyStoryReply(g, 0);  // files entry 3, event 2, for today
    ASSERT_EQ(entry(3).eventRecord, 2);
    const auto marks = [&] { return std::pair(markOf(a), markOf(b)); };

    g.schedule.read(2);
    performStage(g);  // ends without a follow-up, but entry 3 has still to run
    EXPECT_EQ(marks(), std::pair(int16_t{1}, int16_t{1}));
    const auto kept = storyMarksRule(g);
    EXPECT_FALSE(kept) << describeBreak(*kept);

    g.schedule.read(3);
    performStage(g);  // the last stage: entry 2 ran before it today
    EXPECT_EQ(marks(), std::pair(int16_t{0}, int16_t{0}));
    g.gameDate = day + 2;
    const auto ended = storyMarksRule(g);
    EXPECT_FALSE(ended) << describeBreak(*ended);
}

TEST_F(Stories, WithoutADefenceTheVerdictIsGuiltyEvenAtTheLine) {
    // line (100 - 100) + 0 = 0, score 0: 0 <= 0
    g.crime.rec = CrimeRecord{.acquittalEvent = 7, .guiltyEvent = 8, .defensibility = 100};
    g.crime.append();
    // no band, no label: defence 0
    amend(g.artist, d, [&] { g.artist->band = 0; });
    ScheduleRecord stage{.artist = narrow<int16_t>(d), .value = 1};
    for (int i = 0; i < 50; ++i) ASSERT_EQ(verdictEvent(g, stage), 8);
    stage.artist = narrow<int16_t>(a);  // the player's label, Finance and Law at 90
    amend(g.label, AlbumWorld::kPlayer, [&] { g.label->department[1].rating = 90; });
    // line 50 to 54, score 81 to 99
    amend(g.crime, 1, [&] { g.crime->defensibility = 50; });
    for (int i = 0; i < 50; ++i) ASSERT_EQ(verdictEvent(g, stage), 7);
}

// A day makes one roll fewer than the rolls it is given, each an event drawn
// and its chance; a day of one roll makes none.
TEST_F(Stories, ADayRollsOneEventFewerThanItsRolls) {
    for (int i = 0; i < 2; ++i) {
        g.event.rec = EventRecord{.chance = 0, .isRoot = -1};
        g.event.append();
    }
    for (auto [rolls, draws] : {std::pair{3, 4}, std::pair{1, 0}}) {
        g.eventRollsPerDay = narrow<uint8_t>(rolls);
        Random expected = g.rng;
        expected.discard(static_cast<uint64_t>(draws));
        runRandomEvents(g);
        EXPECT_EQ(g.rng.draw(), expected.draw()) << rolls;
    }
    // The first event alone able to start a story is enough for the day to roll.
    amend(g.event, 2, [&] { g.event->isRoot = 0; });
    g.eventRollsPerDay = 2;
    Random untouched = g.rng;
    runRandomEvents(g);
    EXPECT_NE(g.rng.draw(), untouched.draw());
}

// A roll starts a story only below the event's chance: never at 0, now and then at 1.
TEST_F(Stories, AnEventOfNoChanceNeverStartsAndOneOfTheLeastChanceDoes) {
    twoStageStory(2);
    amend(g.event, 1, [&] {
        g.event->isRoot = -1;
        g.event->chance = 0;
    });
    g.eventRollsPerDay = 255;
    const int32_t entries = g.schedule.recordCount();
    for (int day = 0; day < 20; ++day) runRandomEvents(g);  // 5,080 rolls
    EXPECT_EQ(g.schedule.recordCount(), entries);
    amend(g.event, 1, [&] { g.event->chance = 1; });
    for (int day = 0; day < 5; ++day) runRandomEvents(g);
    EXPECT_GT(g.schedule.recordCount(), entries);
}

// A story drawn to start casts each of its participants, two different artists.
TEST_F(Stories, AStoryDrawnToStartCastsEveryParticipant) {
    twoStageStory(2);
    g.event.read(1);
    tryStartEvent(g);
    const ScheduleRecord root = entry(1);
    ASSERT_GT(root.artist, 0);
    int marked = 0;
    for (int32_t n = 1; n < g.artist.recordCount(); ++n) marked += markOf(n);
    EXPECT_EQ(marked, 2);
}

// A type-10 story needs an artist in a band: with every other artist out of
// one, the solo singer is cast.
TEST_F(Stories, ATypeTenStoryCastsOnlyAnArtistInABand) {
    twoStageStory(2);
    amend(g.event, 1, [&] {
        g.event->participantCount = 1;
        g.event->eventType = 10;
    });
    for (int32_t n = 1; n < g.artist.recordCount(); ++n)
        if (n != d) amend(g.artist, n, [&] { g.artist->band = 0; });
    g.event.read(1);
    tryStartEvent(g);
    EXPECT_EQ(entry(1).artist, d);
}

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

struct Cast : AlbumWorld {
    int16_t duo, trio, solo;
    int32_t a, b, c, d;
    Cast() {
        duo = addBand("Duo", kPlayer, 2);
        trio = addBand("Trio", kRival, 3);
        solo = addBand("Solo", 0, 1);
        g.band.read(duo);
        a = g.band->members[0];
        b = g.band->members[1];
        g.band.read(trio);
        c = g.band->members[0];
        g.band.read(solo);
        d = g.band->members[0];
        amend(g.artist, b, [&] { g.artist->male = 0; });
    }
    std::string test(const EventCondition& cond, int32_t who, int place = 0, int32_t first = 0) {
        g.artist.read(who);
        return failedCondition(g, cond, place, narrow<int16_t>(first));
    }
};

}  // namespace

TEST(StoryCast, BoundsAreInclusiveMinimaAndMaxima) {
    Cast w;
    amend(w.g.artist, w.a, [&] {
        w.g.artist->age = 30;
        w.g.artist->angst = 40;
    });
    EventCondition c{};
    EXPECT_EQ(w.test(c, w.a), "");
    for (auto [age, fails] : {std::pair{30, false}, {31, true}, {-30, false}, {-29, true}}) {
        c.age = narrow<int16_t>(age);
        EXPECT_EQ(w.test(c, w.a), fails ? "age" : "") << age;
    }
    c.age = 0;
    for (auto [angst, fails] : {std::pair{40, false}, {41, true}, {-40, false}, {-39, true}}) {
        c.bounds[4] = narrow<int16_t>(angst);
        EXPECT_EQ(w.test(c, w.a), fails ? "angst" : "") << angst;
    }
    c.bounds[4] = 0;
    w.g.artist.read(w.a);
    c.job = narrow<int16_t>(w.g.artist->job + 1);
    EXPECT_EQ(w.test(c, w.a), "job");
}

TEST(StoryCast, GenderAgainstTheRuleOrTheFirstParticipant) {
    Cast w;
    EventCondition c{};
    c.genderRule = 1;
    EXPECT_EQ(w.test(c, w.b), "gender");
    c.genderRule = 2;
    EXPECT_EQ(w.test(c, w.b), "");
    c.genderRule = 3;  // a is a man, b a woman, c a man
    EXPECT_EQ(w.test(c, w.b, 1, w.a), "gender");
    EXPECT_EQ(w.test(c, w.c, 1, w.a), "");
    c.genderRule = 4;
    EXPECT_EQ(w.test(c, w.b, 1, w.a), "");
    EXPECT_EQ(w.test(c, w.c, 1, w.a), "gender");
}

TEST(StoryCast, BandsAndLabels) {
    Cast w;
    EventCondition c{};
    c.bandRule = -3;  // a band of at most two; the second in the first's band
    EXPECT_EQ(w.test(c, w.a), "");
    EXPECT_EQ(w.test(c, w.c), "band") << "three members";
    EXPECT_EQ(w.test(c, w.b, 1, w.a), "");
    EXPECT_EQ(w.test(c, w.d, 1, w.a), "band");
    c.bandRule = -2;
    EXPECT_EQ(w.test(c, w.b, 1, w.a), "");
    EXPECT_EQ(w.test(c, w.c, 1, w.a), "band");
    c.bandRule = AlbumWorld::kRival;
    EXPECT_EQ(w.test(c, w.c), "");
    EXPECT_EQ(w.test(c, w.a), "band");
    c.bandRule = 0;
    c.labelRule = -2;
    EXPECT_EQ(w.test(c, w.a), "");
    EXPECT_EQ(w.test(c, w.d), "label");
    c.labelRule = -1;
    EXPECT_EQ(w.test(c, w.d), "");
    EXPECT_EQ(w.test(c, w.a), "label");
    c.labelRule = AlbumWorld::kRival;
    EXPECT_EQ(w.test(c, w.c), "");
    EXPECT_EQ(w.test(c, w.a), "label");
}

namespace {

// A root event (1) for two of the player's men whose only follow-up (2) comes
// on a roll of 0 to 99 after 0 days, which counts as 1.
void twoStageStory(Cast& w, uint8_t secondType) {
    Game& g = w.g;
    g.gameDate = serialFromCivil(2005, 6, 1);
    g.event.rec = EventRecord{.participantCount = 2, .eventType = 2, .title = std::string("<an1> and <an2>")};
    g.event->nextEvent[0] = 2;
    g.event->rollLow[0] = 0;
    g.event->rollHigh[0] = 99;
    g.event->conditions[0].money = -500;
    g.event->conditions[0].boundChange = {0, 0, 0, 0, 95, -200};
    g.event.append();
    g.event.rec = EventRecord{.participantCount = 2, .eventType = secondType, .title = std::string("Later")};
    g.event.append();
}

std::optional<InvariantBreak> storyMarksRule(Game& g) {
    for (const InvariantRule& r : invariantRules())
        if (std::string_view(r.name) == "storyMarksFollowPendingStages") return r.check(g);
    ADD_FAILURE() << "no rule on story marks";
    return std::nullopt;
}

ScheduleRecord entry(Game& g, int32_t n) {
    g.schedule.read(n);
    return g.schedule.rec;
}

}  // namespace

TEST(Stories, AStageMovesMoneyAndBoundsThenFilesItsFollowUpAndTheLastEndsIt) {
    Cast w;
    Game& g = w.g;
    twoStageStory(w, 2);
    amend(g.artist, w.a, [&] {
        g.artist->wealth = 1000;
        g.artist->angst = 10;
        g.artist->morale = 60;
    });
    g.event.read(1);
    startEvent(g, narrow<int16_t>(w.a), narrow<int16_t>(w.b));
    const ScheduleRecord root = entry(g, 1);
    EXPECT_EQ(std::tuple(root.type, root.date, root.offer, root.artist),
              std::tuple(uint8_t{12}, g.gameDate, 1, int16_t(w.a)));
    g.artist.read(w.b);
    EXPECT_EQ(g.artist->storyUnderWay[2], 1);

    const int32_t news = w.newsCount();
    performStage(g);
    g.artist.read(w.a);
    // 1000 - 500; angst 10 + 95 held at 100; morale 60 - 200 held at 0.
    EXPECT_EQ(std::tuple(g.artist->wealth, g.artist->angst, g.artist->morale), std::tuple(500, 100, 0));
    ASSERT_EQ(w.newsCount(), news + 1) << "the player's band";
    EXPECT_EQ(trim(w.lastNews().title.value), "Member1 Duo and Member2 Duo");
    EXPECT_EQ(w.lastNews().scheduleLink, 1);
    const ScheduleRecord next = entry(g, 2);
    EXPECT_EQ(std::tuple(next.eventRecord, next.date, next.offer), std::tuple(int16_t{2}, g.gameDate + 1, 1));

    performStage(g);  // stage 2 has no follow-up: the marks clear
    g.artist.read(w.a);
    EXPECT_EQ(g.artist->storyUnderWay[2], 0);
    g.artist.read(w.b);
    EXPECT_EQ(g.artist->storyUnderWay[2], 0);
}

TEST(Stories, ADeathEndsTheStoryForBoth) {
    Cast w;
    Game& g = w.g;
    twoStageStory(w, 6);
    g.event.read(1);
    startEvent(g, narrow<int16_t>(w.a), narrow<int16_t>(w.b));
    g.schedule.read(1);
    performStage(g);
    g.schedule.read(2);
    g.event.read(2);
    performStage(g);  // a dies: out of the duo, which cannot go on
    g.artist.read(w.a);
    EXPECT_EQ(std::pair(g.artist->retired, g.artist->band), std::pair(kTrue, int16_t{0}));
    g.band.read(w.duo);
    EXPECT_EQ(g.band->retired, kTrue);
    g.artist.read(w.b);
    EXPECT_EQ(std::pair(g.artist->band, g.artist->storyUnderWay[2]), std::pair(int16_t{0}, int16_t{0}));
}

TEST(Stories, ADefenceCostsTheLabelAndFilesItsStageForTheSameCast) {
    Cast w;
    Game& g = w.g;
    twoStageStory(w, 2);
    amend(g.event, 1, [&] { g.event->replyEffect = {100, 2, -300, 0, 0, 0, 0, 0, 0}; });
    startEvent(g, narrow<int16_t>(w.a), narrow<int16_t>(w.b));
    g.schedule.read(1);
    g.event.read(1);
    const Money before = w.cash(AlbumWorld::kPlayer);
    const Money booked = w.ledger(AlbumWorld::kPlayer, 107);
    applyStoryReply(g, 0);
    EXPECT_EQ(before - w.cash(AlbumWorld::kPlayer), moneyUnits(300));
    EXPECT_NE(w.ledger(AlbumWorld::kPlayer, 107), booked) << "booked as category 107";
    const ScheduleRecord filed = entry(g, 2);
    EXPECT_EQ(std::tuple(filed.type, filed.date, filed.eventRecord, filed.offer, filed.artist2),
              std::tuple(uint8_t{12}, g.gameDate, int16_t{2}, 1, int16_t(w.b)));
    g.event.read(1);
    g.schedule.read(1);
    applyStoryReply(g, 1);  // condemning: no money, no follow-up
    EXPECT_EQ(g.schedule.recordCount(), 3);
}

TEST(Stories, AStageFiledByAReplyKeepsTheMarkUntilItRuns) {
    Cast w;
    Game& g = w.g;
    twoStageStory(w, 2);
    amend(g.event, 1, [&] { g.event->replyEffect = {100, 2, 0, 0, 0, 0, 0, 0, 0}; });
    const double day = g.gameDate;
    startEvent(g, narrow<int16_t>(w.a), narrow<int16_t>(w.b));
    g.schedule.read(1);
    performStage(g);  // files entry 2, event 2, for tomorrow
    g.gameDate = day + 1;
    g.schedule.read(1);
    g.event.read(1);
    applyStoryReply(g, 0);  // files entry 3, event 2, for today
    ASSERT_EQ(entry(g, 3).eventRecord, 2);
    const auto marks = [&] {
        g.artist.read(w.a);
        const int16_t first = g.artist->storyUnderWay[2];
        g.artist.read(w.b);
        return std::pair(first, g.artist->storyUnderWay[2]);
    };

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

TEST(Stories, WithoutADefenceTheVerdictIsGuiltyEvenAtTheLine) {
    Cast w;
    Game& g = w.g;
    // line (100 - 100) + 0 = 0, score 0: 0 <= 0
    g.crime.rec = CrimeRecord{.acquittalEvent = 7, .guiltyEvent = 8, .defensibility = 100};
    g.crime.append();
    // no band, no label: defence 0
    amend(g.artist, w.d, [&] { g.artist->band = 0; });
    ScheduleRecord stage{};
    stage.artist = narrow<int16_t>(w.d);
    stage.value = 1;
    for (int i = 0; i < 50; ++i) ASSERT_EQ(verdictEvent(g, stage), 8);
    stage.artist = narrow<int16_t>(w.a);  // the player's label, Finance and Law at 90
    amend(g.label, AlbumWorld::kPlayer, [&] { g.label->department[1].rating = 90; });
    // line 50 to 54, score 81 to 99
    amend(g.crime, 1, [&] { g.crime->defensibility = 50; });
    for (int i = 0; i < 50; ++i) ASSERT_EQ(verdictEvent(g, stage), 7);
}

// A day makes one roll fewer than the rolls it is given, each an event drawn
// and its chance; a day of one roll makes none.
TEST(Stories, ADayRollsOneEventFewerThanItsRolls) {
    Cast w;
    Game& g = w.g;
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

// A story drawn to start casts each of its participants, two different artists.
TEST(Stories, AStoryDrawnToStartCastsEveryParticipant) {
    Cast w;
    Game& g = w.g;
    twoStageStory(w, 2);
    g.event.read(1);
    tryStartEvent(g);
    const ScheduleRecord root = entry(g, 1);
    ASSERT_GT(root.artist, 0);
    int marked = 0;
    for (int32_t n = 1; n < g.artist.recordCount(); ++n) marked += (g.artist.read(n), g.artist->storyUnderWay[2]);
    EXPECT_EQ(marked, 2);
}

// A type-10 story needs an artist in a band: with every other artist out of
// one, the solo singer is cast.
TEST(Stories, ATypeTenStoryCastsOnlyAnArtistInABand) {
    Cast w;
    Game& g = w.g;
    twoStageStory(w, 2);
    amend(g.event, 1, [&] {
        g.event->participantCount = 1;
        g.event->eventType = 10;
    });
    for (int32_t n = 1; n < g.artist.recordCount(); ++n)
        if (n != w.d) amend(g.artist, n, [&] { g.artist->band = 0; });
    g.event.read(1);
    tryStartEvent(g);
    EXPECT_EQ(entry(g, 1).artist, w.d);
}

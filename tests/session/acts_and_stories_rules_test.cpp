// The rules on the number of acts and on the marks of stories under way, each
// broken by one change to sound records.
#include <gtest/gtest.h>

#include <string_view>

#include "events/story_events.h"
#include "schedule/schedule.h"
#include "session/invariants.h"
#include "support/album_world.h"
#include "support/amend.h"

using namespace trovane;
using test::AlbumWorld;

namespace {

std::optional<InvariantBreak> runRule(Game& g, std::string_view name) {
    for (const InvariantRule& r : invariantRules())
        if (name == r.name) return r.check(g);
    ADD_FAILURE() << "no rule " << name;
    return std::nullopt;
}

void retire(Game& g, int16_t band) {
    amend(g.band, band, [&] { g.band->retired = kTrue; });
}

// A story of type 3 whose root leads to a stage of an event of type 6.
struct Stories : AlbumWorld {
    int16_t duo;
    int16_t a, b;
    Stories() {
        duo = addBand("Duo", kPlayer, 2);
        g.band.read(duo);
        a = g.band->members[0];
        b = g.band->members[1];
        for (uint8_t type : {uint8_t{3}, uint8_t{6}}) {
            g.event.rec = EventRecord{
                .eventNumber = static_cast<int16_t>(g.event.recordCount()), .participantCount = 2, .eventType = type};
            g.event.append();
        }
        g.event.read(1);
        startEvent(g, a, b);  // root entry 1, dated today, marks both at type 3
    }
    ScheduleRecord entry(int32_t n) {
        g.schedule.read(n);
        return g.schedule.rec;
    }
    void setMark(int16_t artist, std::size_t type, int16_t value) {
        amend(g.artist, artist, [&] { g.artist->storyUnderWay[type] = value; });
    }
};

}  // namespace

TEST(ActiveActsRule, HoldsTheCountNotedAtTheStart) {
    AlbumWorld w;
    w.addBand("One", 0, 1);
    w.addBand("Two", 0, 2);
    EXPECT_FALSE(runRule(w.g, "activeActsKeepTheirCount")) << "a world built by hand is left alone";
    noteActiveActs(w.g);
    EXPECT_EQ(w.g.activeActsAtStart, 2);
    EXPECT_FALSE(runRule(w.g, "activeActsKeepTheirCount"));

    retire(w.g, 1);  // an act ends and nothing replaces it: 1 of 2
    auto broken = runRule(w.g, "activeActsKeepTheirCount");
    ASSERT_TRUE(broken);
    EXPECT_EQ(broken->detail, "1 acts are active, the game began with 2");

    w.addBand("Three", 0, 1);  // the new act that every ending makes
    EXPECT_FALSE(runRule(w.g, "activeActsKeepTheirCount"));
    w.addBand("Four", 0, 1);  // one past
    broken = runRule(w.g, "activeActsKeepTheirCount");
    ASSERT_TRUE(broken);
    EXPECT_EQ(broken->detail, "3 acts are active, the game began with 2");
}

TEST(StoryMarksRule, MarksFollowTheStagesStillToRunUnderTheirRootsType) {
    Stories w;
    const auto rule = [&] { return runRule(w.g, "storyMarksFollowPendingStages"); };
    EXPECT_FALSE(rule()) << "a story started today is pending for both of its cast";
    w.setMark(w.b, 3, 0);
    auto broken = rule();
    ASSERT_TRUE(broken);
    EXPECT_EQ(std::tuple(broken->table, broken->record, broken->field),
              std::tuple(std::string("artist"), int32_t{w.b}, std::string("storyUnderWay[3]")));
    w.setMark(w.b, 3, 1);

    ScheduleRecord next = w.entry(1);
    next.id = 0;
    next.date = w.g.gameDate + 3;
    next.eventRecord = 2;  // an event of type 6, of the type 3 story
    addSchedule(w.g, next);
    const double start = w.g.gameDate;
    w.g.gameDate = start + 3;  // the root's day has been run; the later stage is today's
    EXPECT_FALSE(rule());
    w.setMark(w.a, 6, 1);  // marked under the stage's own type as well
    broken = rule();
    ASSERT_TRUE(broken);
    EXPECT_EQ(std::tuple(broken->record, broken->field), std::tuple(int32_t{w.a}, std::string("storyUnderWay[6]")));
    w.setMark(w.a, 6, 0);

    w.g.gameDate = start + 4;  // every stage has run: nothing is pending
    broken = rule();
    ASSERT_TRUE(broken);
    EXPECT_EQ(std::tuple(broken->record, broken->field), std::tuple(int32_t{w.a}, std::string("storyUnderWay[3]")));
    w.setMark(w.a, 3, 0);
    w.setMark(w.b, 3, 0);
    EXPECT_FALSE(rule());
}

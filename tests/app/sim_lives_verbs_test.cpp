// trovane-sim's story verbs: a story started by hand, refused a cast it cannot
// have, and followed stage by stage to its end.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "support/sim_band_world.h"

using namespace trovane;

namespace {

using Result = std::pair<int, std::string>;

struct SimLivesVerbs : ::testing::Test {
    test::SimBandWorld w;
    void SetUp() override {
        Game& g = w.g;
        // Event 1, a row of two, is followed two days later by event 2, which
        // ends the story; each can be answered.
        g.event.rec =
            EventRecord{.participantCount = 2, .eventType = 2, .title = "<an1> \"rows\"\twith <an2>", .body = "A row."};
        g.event->nextEvent[0] = 2;
        g.event->rollHigh[0] = 99;
        g.event->minDelay[0] = g.event->maxDelay[0] = 2;
        g.event->replyCount = 2;
        g.event->replyText = {"We stand by <an1>.", "We condemn <an1>.", ""};
        g.event.append();
        g.event.rec = EventRecord{.participantCount = 2, .eventType = 2, .title = "Later"};
        g.event.append();
        // Event 3 befalls one member of a band aged 30 or more.
        g.event.rec = EventRecord{.participantCount = 1, .eventType = 10, .title = "Solo"};
        g.event->conditions[0].age = 30;
        g.event.append();
        amend(g.artist, 3, [&] {  // Ours' singer
            g.artist->forename = "Ann";
            g.artist->surname = "Lee";
            g.artist->age = 30;
        });
        amend(g.artist, 4, [&] { g.artist->retired = kTrue; });
        g.artist.rec = ArtistRecord{.forename = "Lone", .surname = "Wolf", .nickname = "Wolfie"};  // 5, in no band
        g.artist.append();
        w.save();
    }
    Result sim(const std::string& args) { return w.sim(args); }
};

Result refused(int status, const std::string& why) { return {status, "trovane-sim: " + why + "\n"}; }

}  // namespace

TEST_F(SimLivesVerbs, ACastAStoryCannotHaveIsRefusedInTheGamesWords) {
    EXPECT_EQ(sim("story 0 --cast 1"), refused(2, "There is no event 0"));
    EXPECT_EQ(sim("story 4 --cast 1"), refused(2, "There is no event 4"));
    EXPECT_EQ(sim("story 1 --cast 1,Nobody"), refused(2, "There is no artist Nobody"));
    EXPECT_EQ(sim("story 1 --cast 1"), refused(1, "Event 1 needs 2 participant(s), not 1."));
    EXPECT_EQ(sim("story 3 --cast 3,1"), refused(1, "Event 3 needs 1 participant(s), not 2."));
    EXPECT_EQ(sim("story 1 --cast 3,3"), refused(1, "Ann Lee cannot be both participants."));
    EXPECT_EQ(sim("story 3 --cast 4"), refused(1, "Member 1 has retired."));
    EXPECT_EQ(sim("story 3 --cast Wolfie"), refused(1, "Lone Wolf is in no band."));
    EXPECT_EQ(sim("story 3 --cast 1"), refused(1, "Member 1 fails the age test of participant 1."));
    EXPECT_EQ(sim("--json stories --all"), Result(0, "[]\n")) << "nothing started";
    EXPECT_EQ(sim("story 3 --cast 'Ann Lee'").first, 0);
    EXPECT_EQ(sim("story 3 --cast 3"), refused(1, "A story of type 10 is already under way for Ann Lee."));
}

TEST_F(SimLivesVerbs, AStoryRunsItsStagesWithTheirNewsToItsEnd) {
    EXPECT_EQ(sim("--json story 1 --cast 'Ann Lee,1'"),
              Result(0, "{\"root\":1,\"event\":1,\"date\":\"2004-08-05\"}\n"));
    EXPECT_EQ(sim("story 2 --cast 2,Wolfie"), Result(0, "Story 2 started: event 2, filed for 2004-08-05.\n"));
    EXPECT_EQ(sim("story 2 --cast 1,5"), refused(1, "A story of type 2 is already under way for Member 1."));
    EXPECT_EQ(
        sim("stories --artist Wolfie"),
        Result(0, "story 2 (event 2, type 2): Later\n  cast: 2 Member 2 5 Lone Wolf\n  next: 2004-08-05 event 2\n\n"));
    EXPECT_EQ(sim("--json stories --artist 3").second,
              "[{\"root\":1,\"event\":1,\"type\":2,\"title\":\"<an1> \\\"rows\\\"\\u0009with <an2>\",\"cast\":[3,1],"
              "\"crime\":0,\"stages\":[],\"next\":{\"date\":\"2004-08-05\",\"event\":1}}]\n");
    EXPECT_EQ(sim("stories --artist Nobody").first, 2);

    ASSERT_EQ(sim("advance 1").first, 0);
    // Story 2 touches no act of the player's: it ends unreported.
    const std::string rows =
        "story 1 (event 1, type 2): <an1> \"rows\"\twith <an2>\n  cast: 3 Ann Lee 1 Member 1\n"
        "  2004-08-05 event 1 (entry 1, news 1)\n";
    EXPECT_EQ(sim("stories").second, rows + "  next: 2004-08-07 event 2\n\n");
    EXPECT_NE(
        sim("--json stories --all")
            .second.find("\"stages\":[{\"entry\":2,\"date\":\"2004-08-05\",\"event\":2,\"news\":0}],\"next\":null}]"),
        std::string::npos);
    EXPECT_EQ(sim("show 1").second,
              "News item 1, Thursday 5/8/2004\nAnn Lee \"rows\"\twith Member 1\n\nA row.\n\nReplies: defend|condemn\n");
    EXPECT_EQ(sim("reply 1 defend").second, "Answered news item 1: defend; back at the news.\n");
    EXPECT_NE(sim("show 2").second.find("We stand by Ann Lee."), std::string::npos);

    ASSERT_EQ(sim("advance 2").first, 0);
    EXPECT_EQ(sim("stories --all --artist 1").second, rows + "  2004-08-07 event 2 (entry 3, news 3)\n  ended\n\n");
    EXPECT_EQ(sim("--json stories").second, "[]\n");
}

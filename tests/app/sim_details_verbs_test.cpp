// The artist and venue verbs: the details screens' figures by number or name,
// and a name that is no one's.
#include <gtest/gtest.h>

#include <string>

#include "floor/preferences.h"
#include "session/session_record.h"
#include "support/amend.h"
#include "support/calendar_world.h"
#include "support/empty_game.h"
#include "support/signing_world.h"
#include "support/sim_run.h"

using namespace trovane;

namespace {

std::pair<int, std::string> sim(const test::TempFolder& data, const std::string& args) {
    return test::runSim(data.path(), args);
}

// A player's act of two singers and a rival's of one, a venue with one gig.
void makeGame(const test::TempFolder& data) {
    Game g(data.path(), 1);
    createEmptyWorkingSet(g);
    readPrefs(g);
    test::addStyle(g, 10);
    const int16_t mine = test::addLabel(g, {1, 1, 1, 1, 1}, "Mine");
    const int16_t theirs = test::addLabel(g, {1, 1, 1, 1, 1}, "Theirs");
    g.player.playerLabel = mine;
    test::addAct(g, {.ranks = {1, 2}, .label = mine, .name = "Ours"});  // artists 1 and 2
    test::addAct(g, {.label = theirs, .name = "Taken"});                // artist 3
    amend(g.artist, 1, [&] {
        g.artist->imageRating = 71;
        g.artist->birthDate = test::day(1980, 5, 17);
    });
    g.venue.rec = VenueRecord{.name = std::string("The Hall"), .capacity = 2500};
    g.venue.append();
    const int32_t gig = test::addGig(g, 1, test::day(2004, 2, 3));
    amend(g.gig, gig, [&] {
        g.gig->venue = 1;
        g.gig->attendance = 1234;
    });
    amend(g.tour, 1, [&] { g.tour->areaCode = std::string("O"); });
    writeSessionFile(g, workingSessionFile(g));
    closeAllTables(g);
}

}  // namespace

TEST(SimDetailsVerbs, ArtistVenueAndBandShowTheirDetailsAndNoSuchOneIsABadArgument) {
    test::TempFolder data;
    makeGame(data);
    auto [status, out] = sim(data, "artist 'Member 1' --json");
    EXPECT_EQ(status, 0) << out;
    EXPECT_NE(out.find("\"name\":\"Member 1\",\"born\":\"17/5/1980\""), std::string::npos) << out;
    EXPECT_NE(out.find("\"job\":\"Singer\""), std::string::npos) << out;
    EXPECT_NE(out.find("\"imageRating\":71"), std::string::npos) << out;
    std::tie(status, out) = sim(data, "artist 3 --json");
    EXPECT_EQ(status, 0) << out;
    EXPECT_EQ(out.find("imageRating"), std::string::npos) << "the image only for the player's artists";
    EXPECT_NE(out.find("\"born\":\"Unknown\""), std::string::npos) << out;
    EXPECT_EQ(sim(data, "artist 'Nobody Here'").first, 2);
    EXPECT_EQ(sim(data, "artist 4").first, 2) << "one past the table";
    EXPECT_EQ(sim(data, "venue 0").first, 2);
    EXPECT_EQ(sim(data, "venue 2").first, 2);
    EXPECT_EQ(sim(data, "venue 'The Hall' --json").second,
              "{\"id\":1,\"name\":\"The Hall\",\"city\":\"\",\"country\":\"\",\"capacity\":2500,\"rating\":0,"
              "\"gigs\":[{\"gig\":1,\"date\":\"2004-02-03\",\"headliner\":\"Ours\",\"attendance\":1234,"
              "\"quality\":0}]}\n");
    std::tie(status, out) = sim(data, "band Ours --json");
    EXPECT_EQ(status, 0) << out;
    EXPECT_NE(out.find("\"activity\":\"None\",\"announcedEnd\":null,\"bestShare\":\"\""), std::string::npos) << out;
    EXPECT_NE(out.find("\"tours\":[{\"tour\":1,\"name\":\"Oceania Tour\",\"role\":\"Headliner\",\"area\":"
                       "\"Oceania\"}]"),
              std::string::npos)
        << out;
    EXPECT_NE(sim(data, "band Taken --json").second.find("\"tours\":[]"), std::string::npos);
}

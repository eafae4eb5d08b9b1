// trovane-sim's tour verbs: a tour by hand through the road's rules, a
// refusal that files nothing, and a bad area.
#include <gtest/gtest.h>

#include <string>

#include "session/session_record.h"
#include "support/gig_world.h"
#include "support/sim_run.h"

using namespace trovane;

namespace {

struct TourSim : test::GigWorld {
    TourSim() {
        g.gameDate = serialFromCivil(2005, 1, 3);
        addVenue("Hall", 1000, leeds);
        addVenue("Salle", 1000, paris);
        writeSessionFile(g, workingSessionFile(g));
        closeAllTables(g);
    }
    std::pair<int, std::string> sim(const std::string& args) { return test::runSim(eg.folder.path(), args); }
};

}  // namespace

TEST(SimTourVerbs, ARefusedTourFilesNothingAndATourByHandIsFiledWithItsRoad) {
    TourSim w;
    // 3 January 2005 + 42 days is 14 February; Leeds to Paris takes 3 days, so 17 February at the earliest.
    EXPECT_EQ(w.sim("tour 'The Testers' --area europe --gig Hall@2005-02-14 --gig Salle@2005-02-16"),
              std::pair(1, std::string("trovane-sim: The tour can't reach Salle before 17/2/2005.\n")));
    EXPECT_EQ(w.sim("--json tours").second, "[]\n");
    EXPECT_EQ(w.sim("tour 'The Testers' --area mars --gig Hall@2005-02-14").first, 2) << "an unknown area";
    auto [status, json] = w.sim("--json tour 'The Testers' --area europe --gig Hall@2005-02-14 --gig Salle@2005-02-18");
    ASSERT_EQ(status, 0) << json;
    EXPECT_NE(json.find("\"gigs\":[{\"gig\":1,\"date\":\"2005-02-14\",\"venue\":\"Hall\"},{\"gig\":2,\"date\":"
                        "\"2005-02-18\",\"venue\":\"Salle\"}]"),
              std::string::npos)
        << json;
    const std::string info = w.sim("--json tourinfo 1").second;
    // Two travel days, then rest up to the day before Paris.
    EXPECT_NE(info.find("\"road\":[{\"date\":\"2005-02-15\",\"kind\":\"travel\"},{\"date\":\"2005-02-16\",\"kind\":"
                        "\"travel\"},{\"date\":\"2005-02-17\",\"kind\":\"rest\"}]"),
              std::string::npos)
        << info;
    EXPECT_NE(w.sim("tours").second.find("The Testers"), std::string::npos) << "a tour with gigs is listed";
    EXPECT_EQ(w.sim("unsupport 1 'The Testers'").first, 1);
}

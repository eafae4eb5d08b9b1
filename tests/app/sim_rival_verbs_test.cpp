// trovane-sim's rival verbs: the offers on an act, and advance --auto
// answering an item that holds the calendar.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdio>
#include <string>

#include "floor/news_post.h"
#include "session/session_record.h"
#include "support/album_world.h"
#include "support/amend.h"
#include "support/sim_run.h"

using namespace trovane;
using test::AlbumWorld;

namespace {

struct RivalSim : AlbumWorld {
    int16_t act = addBand("Wanted", 0, 1);
    RivalSim() {
        amend(g.style, 1, [&] { g.style->lifeSpan = 10; });
        amend(g.band, act, [&] {
            g.band->initialAdvance = moneyUnits(1000);
            g.band->additionalAdvance = moneyUnits(500);
            g.band->additionalAdvanceCount = 2;
            g.band->optionLength = 18;
            g.band->royaltyRate = 10;
        });
        g.gameDate = serialFromCivil(2005, 3, 7);
        for (double date : {g.gameDate + 7, g.gameDate - 1}) {
            g.offer.rec = OfferRecord{.decisionDate = date,
                                      .label = kRival,
                                      .initialAdvance = 1000,
                                      .additionalAdvance = 500,
                                      .additionalAdvanceCount = 2,
                                      .optionLength = 18,
                                      .band = act,
                                      .royalty = 10};
            g.offer.append();
        }
    }
    void save() {
        writeSessionFile(g, workingSessionFile(g));
        closeAllTables(g);
    }
    std::pair<int, std::string> sim(const std::string& args) { return test::runSim(eg.folder.path().string(), args); }
};

}  // namespace

TEST(SimRivalVerbs, OffersListsEachOfferMarkingTheStaleOneVoidAndAutoAnswersAHeldItem) {
    RivalSim w;
    postNews(w.g, {.date = w.g.gameDate, .title = "Held", .text = "Answer me", .mustReply = true});
    w.save();
    auto [status, json] = w.sim("--json offers Wanted");
    EXPECT_EQ(status, 0) << json;
    EXPECT_NE(json.find("\"id\":1,\"label\":1,\"labelName\":\"Rival Records\",\"decision\":\"2005-03-14\","
                        "\"initialAdvance\":10000000,\"additionalAdvance\":5000000,\"count\":2,\"months\":18,"
                        "\"royalty\":10,\"void\":false"),
              std::string::npos)
        << json;
    EXPECT_NE(json.find("\"id\":2,\"label\":1,\"labelName\":\"Rival Records\",\"decision\":\"2005-03-06\""),
              std::string::npos);
    EXPECT_NE(json.find("\"void\":true"), std::string::npos);
    EXPECT_EQ(w.sim("offers Nobody").first, 2);
    EXPECT_EQ(w.sim("advance 2").first, 3);
    EXPECT_EQ(w.sim("advance 2 --auto").first, 0);
    EXPECT_EQ(w.sim("advance 1").first, 0);
}

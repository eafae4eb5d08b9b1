// The album verbs of trovane-sim: the same checks and actions as the screens,
// refusals in the game's words (status 1) and bad arguments (status 2).
#include <gtest/gtest.h>

#include <string>

#include "production/businesses.h"
#include "production/recording.h"
#include "session/session_record.h"
#include "support/album_world.h"
#include "support/amend.h"
#include "support/sim_run.h"
#include "talent/contract_progress.h"

using namespace trovane;
using test::AlbumWorld;

namespace {

struct SimWorld : AlbumWorld {
    int16_t band = addBand("Tapes", kPlayer, 2);
    SimWorld() {
        addBand("Theirs", kRival);
        for (int i = 0; i < 3; ++i) addSong(band, 50, 50);
        addFirm("Rooms", kStudio, 10, 0);  // 150 a day
        addFirm("Press", kPlant, 50, 0);
    }
    // Writes the world out for trovane-sim.
    void save() {
        writeSessionFile(g, workingSessionFile(g));
        closeAllTables(g);
    }
    std::pair<int, std::string> sim(const std::string& args) { return test::runSim(eg.folder.path().string(), args); }
};

}  // namespace

TEST(SimAlbumVerbs, WorkAsksThePlayersBandOnceAndRefusesOthers) {
    SimWorld w;
    w.save();
    EXPECT_EQ(w.sim("work Tapes --budget 5").first, 2);
    EXPECT_EQ(w.sim("work Nobody --budget 1").first, 2);
    EXPECT_EQ(w.sim("work Theirs --budget 1"),
              std::pair(1, std::string("trovane-sim: Theirs are not signed to your label.\n")));
    EXPECT_EQ(w.sim("--json work 1 --budget 4"),
              std::pair(0, std::string("{\"band\":1,\"albumStatus\":1,\"materialBudget\":4}\n")));
    EXPECT_EQ(w.sim("work Tapes --budget 4").first, 1) << "an album in hand";
}

TEST(SimAlbumVerbs, AlbumFinalisesTitlesAndBooksOrRefusesWithNothingChanged) {
    SimWorld w;
    w.save();
    EXPECT_EQ(w.sim("album Tapes --tracks 1,x --studio Rooms").first, 2);
    EXPECT_EQ(w.sim("album Tapes --tracks 1,2 --studio Nowhere").first, 2);
    EXPECT_EQ(w.sim("album Tapes --tracks 1,9 --studio Rooms").first, 1);
    EXPECT_EQ(w.sim("album Tapes --tracks 1,2 --studio Press").first, 1);
    EXPECT_EQ(w.sim("album Tapes --tracks 1,2 --studio Rooms --title ' '").first, 1);
    auto [ok, json] = w.sim("--json album Tapes --tracks 1,2 --studio Rooms --title 'First Light'");
    ASSERT_EQ(ok, 0) << json;
    // 2 tracks: 4 sessions from 19 August (5 + 14); due 5 + 13 + 4 = 22 August; 4 x 150.
    EXPECT_EQ(json,
              "{\"disc\":1,\"title\":\"First Light\",\"sessions\":4,\"firstStudioDay\":\"2004-08-19\","
              "\"recordingDue\":\"2004-08-22\",\"cost\":6000000}\n");
    EXPECT_EQ(w.sim("album Tapes --tracks 3 --studio Rooms").first, 1) << "recording";
    EXPECT_EQ(w.sim("--json songs Tapes").second, "[]\n");
    EXPECT_EQ(w.sim("progress Tapes").second,
              "Album Progress\nTapes are currently in Rooms recording their forthcoming album. So far they have "
              "completed recording on 0 of a total of 2 tracks.\n");
}

TEST(SimAlbumVerbs, AnEndedOptionIsAnsweredWithExtendOrRelease) {
    SimWorld w;
    Game& g = w.g;
    amend(g.band, w.band, [&] { g.band->optionsRemaining = 2; });
    g.schedule.rec = ScheduleRecord{.type = 18, .date = g.gameDate, .band = w.band};
    g.schedule.append();
    contractPoint(g);
    w.save();
    EXPECT_EQ(w.sim("reply 1 ok").first, 1) << "a plain ok decides nothing";
    EXPECT_EQ(w.sim("reply 1 extend").first, 0);
    EXPECT_EQ(w.sim("reply 1 release").first, 1) << "answered once";
    Game after(w.eg.folder.path(), 1);
    openAllTables(after, "vel");
    after.band.read(w.band);
    EXPECT_EQ(std::tuple(after.band->optionsRemaining, after.band->label), std::tuple(1, AlbumWorld::kPlayer));
    closeAllTables(after);
}

TEST(SimAlbumVerbs, AnAlbumFinalisedWithoutAStudioIsBookedOnceWithoutTracks) {
    SimWorld w;
    w.save();
    EXPECT_EQ(w.sim("album Tapes --studio Rooms").first, 1) << "no tracks and nothing finalised";
    openAllTables(w.g, "vel");
    finaliseAlbum(w.g, w.band, {2, 3});
    setDiscTitle(w.g, 1, "Kept");
    w.save();
    auto [ok, json] = w.sim("--json album Tapes --studio Rooms");
    EXPECT_EQ(ok, 0) << json;
    EXPECT_EQ(json.rfind("{\"disc\":1,\"title\":\"Kept\",\"sessions\":4,", 0), 0u) << json;
    EXPECT_EQ(w.sim("album Tapes --studio Rooms").first, 1) << "charged once";
}

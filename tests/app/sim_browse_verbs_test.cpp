// The browse, image and highscores verbs: the band filter from flags in the
// display currency, the sort by header, refusals and bad arguments.
#include <gtest/gtest.h>

#include <string>

#include "floor/preferences.h"
#include "session/session_record.h"
#include "support/amend.h"
#include "support/empty_game.h"
#include "support/signing_world.h"
#include "support/sim_run.h"

using namespace trovane;

namespace {

std::pair<int, std::string> sim(const test::TempFolder& data, const std::string& args) {
    return test::runSim(data.path().string(), args);
}

// Euros at 1.47; three acts, one signed to the player, one to a rival.
void makeGame(const test::TempFolder& data) {
    Game g(data.path(), 1);
    createEmptyWorkingSet(g);
    readPrefs(g);
    changeCurrency(g, "€");
    test::addStyle(g, 10);
    int16_t mine = test::addLabel(g, {1, 1, 1, 1, 1}, "Mine");
    int16_t theirs = test::addLabel(g, {1, 1, 1, 1, 1}, "Theirs");
    g.player.playerLabel = mine;
    for (auto [name, label, advance] : {std::tuple{"Dear", 0, 10'000}, std::tuple{"Cheap", 0, 5'000},
                                        std::tuple{"Ours", int(mine), 0}, std::tuple{"Taken", int(theirs), 0}}) {
        int16_t b = test::addAct(g, {.label = static_cast<int16_t>(label), .name = name});
        amend(g.band, b, [&] { g.band->advanceToPay = moneyUnits(advance); });
    }
    writeSessionFile(g, workingSessionFile(g));
    closeAllTables(g);
}

}  // namespace

TEST(SimBrowseVerbs, AdvanceFlagsAreInTheDisplayCurrencyBadArgumentsExitTwoAndRefusalsFileNothing) {
    test::TempFolder data;
    makeGame(data);
    // 10,000 pounds show as 14,700 euros; --advance 7350..14700 is 5,000..10,000 pounds.
    EXPECT_EQ(sim(data, "browse band --unsigned --advance 7350..14700 --sort Advance --desc --json").second,
              "{\"table\":\"band\",\"caption\":\"Band Search\",\"columns\":[\"Name\",\"Style\",\"Advance\",\"Label\"],"
              "\"sort\":{\"column\":\"Advance\",\"direction\":\"descending\"},\"rows\":["
              "{\"id\":1,\"cells\":[\"Dear\",\"Rock\",\"€14,700\",\"Unsigned\"]},"
              "{\"id\":2,\"cells\":[\"Cheap\",\"Rock\",\"€7,350\",\"Unsigned\"]}]}\n");
    // 7,351 / 1.47 = 5,000.68, a whole 5,001: Cheap at 5,000 is one under.
    const std::string past = sim(data, "browse band --advance 7351..14700").second;
    EXPECT_NE(past.find("Dear"), std::string::npos);
    EXPECT_EQ(past.find("Cheap"), std::string::npos);
    for (const char* args : {"browse band --age 5..3", "browse band --royalty 0..101", "browse band --gig x..2",
                             "browse band --reputation mars=1..2", "browse band --sort Nope", "browse band --desc",
                             "browse band --where Style=Rock", "image \"No One\"", "achievements --band Nobody"})
        EXPECT_EQ(sim(data, args).first, 2) << args;
    EXPECT_EQ(sim(data, "achievements --band Dear").first, 0) << "the first act is found";

    // Another label's artist is refused and nothing is filed.
    const std::string before = test::fileBytes(data.path() / "schedule.vel");
    // Members are numbered as the acts were added: Taken's only member is 4.
    EXPECT_EQ(sim(data, "image 4").first, 1);
    EXPECT_EQ(test::fileBytes(data.path() / "schedule.vel"), before);
    EXPECT_EQ(sim(data, "image 3").first, 0);
    EXPECT_NE(test::fileBytes(data.path() / "schedule.vel"), before);
}

TEST(SimBrowseVerbs, AnyTableIsListedByItsBrowserWithItsChoicesAndSort) {
    test::TempFolder data;
    makeGame(data);
    {
        Game g(data.path(), 1);
        openAllTables(g);
        for (auto [title, band, single, released] :
             {std::tuple{"Early", 1, 0, 12000.0}, std::tuple{"Other", 2, 0, 0.0}, std::tuple{"Late", 1, 0, 13000.0},
              std::tuple{"Song", 1, 1, 0.0}}) {
            g.disc.rec = DiscRecord{
                .title = title, .isSingle = static_cast<uint8_t>(single), .band = static_cast<int16_t>(band)};
            g.disc->releaseDate[0] = released;
            g.disc.append();
        }
        closeAllTables(g);
    }
    // Dear's albums, latest release first: day 13000 is 04/08/1935, day 12000 is 07/11/1932.
    EXPECT_EQ(
        sim(data, "--json browse disc --band Dear --where \"Disc Type=Album\" --sort \"Release Date\" --desc").second,
        "{\"table\":\"disc\",\"caption\":\"Disc Search\",\"columns\":[\"Name\",\"Band\",\"Disc Type\",\"Label\","
        "\"Release Date\"],\"sort\":{\"column\":\"Release Date\",\"direction\":\"descending\"},\"rows\":["
        "{\"id\":3,\"cells\":[\"Late\",\"Dear\",\"Album\",\"\",\"04/08/1935\"]},"
        "{\"id\":1,\"cells\":[\"Early\",\"Dear\",\"Album\",\"\",\"07/11/1932\"]}]}\n");
    for (const char* args :
         {"browse disc --band Nobody", "browse style --band 1", "browse song --unsigned", "browse disc --where Nope=1",
          "browse disc --where \"Release Date=9..1\"", "browse disc --sort Nope", "browse disc --desc"})
        EXPECT_EQ(sim(data, args).first, 2) << args;
    EXPECT_NE(sim(data, "--json browse venue").second.find("\"caption\":\"Venue Search\""), std::string::npos)
        << "the first of the tables";
}

// The books and staff verbs of trovane-sim: refusals change nothing, bad
// arguments are told apart from them, and advance --check stops at a break.
#include <gtest/gtest.h>

#include <string>

#include "label/finances.h"
#include "session/session_record.h"
#include "support/empty_game.h"
#include "support/sim_run.h"

using namespace trovane;

namespace {

std::pair<int, std::string> sim(const test::TempFolder& data, const std::string& args) {
    return test::runSim(data.path().string(), args);
}

// The player's label with a head of Finance and Law (wage 700), and one person out of work.
void makeGame(const test::TempFolder& data, Money cashSlip = 0) {
    Game g(data.path(), 1);
    createEmptyWorkingSet(g);
    g.staff.rec = StaffRecord{.forename = "Kim", .surname = "Rowe", .employer = 1};
    g.player.playerStaff = static_cast<int16_t>(g.staff.append());
    g.staff.rec =
        StaffRecord{.forename = "Gil", .surname = "Head", .employer = 1, .department = 1, .wage = moneyUnits(700)};
    g.staff.append();
    g.staff.rec = StaffRecord{.forename = "Fay", .surname = "Free", .wage = moneyUnits(500)};
    g.staff.append();
    g.label.rec = LabelRecord{};
    g.label->name = "Tin Roof";
    g.label->boss = 1;
    g.label->cashBalance = moneyUnits(1000);
    g.label->department[1].head = 2;
    g.label->wageBill = moneyUnits(700);
    g.player.playerLabel = static_cast<int16_t>(g.label.append());
    g.player.playerLabelCash = moneyUnits(1000);
    writeOpeningLedgerRows(g);
    g.label.read(1);
    g.label->cashBalance += cashSlip;
    g.player.playerLabelCash += cashSlip;
    g.label.write();
    writeSessionFile(g, workingSessionFile(g));
    closeAllTables(g);
}

}  // namespace

TEST(SimBooksVerbs, BadArgumentsExitTwoRefusalsOneAndNeitherChangesAnything) {
    test::TempFolder data;
    makeGame(data);
    for (const char* args :
         {"approach 3 --role 6", "approach 3 --role -1", "approach 3 --role 0 --years 0",
          "approach 3 --role 0 --years 6", "approach 3 --role 0 --wage -1", "approach 9 --role 0",
          "department 0 --levels 22,0,0,0,0", "department 0 --levels 0,0,0,0,33", "department 0 --levels 1,2,3,4",
          "department 0 --levels 1,2,3,4,5,6", "department 6 --levels 0,0,0,0,0", "label \"No Such Label\""})
        EXPECT_EQ(sim(data, args).first, 2) << args;
    const std::string staffBefore = test::fileBytes(data.path() / "staff.vel");
    const std::string scheduleBefore = test::fileBytes(data.path() / "schedule.vel");
    EXPECT_EQ(sim(data, "approach \"Gil Head\" --role 0").first, 1);
    EXPECT_EQ(sim(data, "approach 1 --role 0").first, 1) << "the player";
    EXPECT_EQ(sim(data, "terminate \"Fay Free\"").first, 1);
    EXPECT_EQ(sim(data, "terminate 1").first, 1) << "the player";
    EXPECT_EQ(sim(data, "withdraw-staff 3").first, 1);
    EXPECT_EQ(test::fileBytes(data.path() / "staff.vel"), staffBefore);
    EXPECT_EQ(test::fileBytes(data.path() / "schedule.vel"), scheduleBefore);

    EXPECT_EQ(sim(data, "approach 3 --role 4 --years 5").first, 0);
    EXPECT_EQ(sim(data, "approach 3 --role 4").first, 1) << "already pending";
    EXPECT_EQ(sim(data, "withdraw-staff \"Fay Free\"").first, 0);
    EXPECT_EQ(sim(data, "approach 3 --role 0 --wage 0 --years 1").first, 0) << "a wage of 0 may be offered";

    // Department levels: 21 x 1,500 = 31,500 at the bound; weighted 105 -> 80; plus Gil's 700
    EXPECT_EQ(sim(data, "--json department 0 --levels 21,0,0,0,0"),
              std::pair(0, std::string("{\"department\":\"Artist and Repertoire\",\"levels\":[21,0,0,0,0],"
                                       "\"rating\":\"80%\",\"wages\":31500.0000,\"wageBill\":32200.0000}\n")));
    auto [shown, label] = sim(data, "--json label \"Tin Roof\"");
    EXPECT_NE(label.find("\"style\":\"All\""), std::string::npos);
    EXPECT_NE(label.find("\"independence\":\"Independent Label\""), std::string::npos);
    EXPECT_NE(label.find("{\"department\":\"Finance and Law\",\"levels\":[0,0,0,0,0],\"rating\":\"0%\",\"head\":"
                         "\"Gil Head\",\"wages\":700.0000}"),
              std::string::npos)
        << label;
}

TEST(SimBooksVerbs, AdvanceCheckStopsAtTheFirstBreakWithStatusFour) {
    test::TempFolder data;
    makeGame(data);
    EXPECT_EQ(sim(data, "advance 3 --check").first, 0);
    test::TempFolder broken;
    makeGame(broken, 1);  // one ten-thousandth that the books never saw
    auto [status, out] = sim(broken, "advance 3 --check");
    EXPECT_EQ(status, 4);
    EXPECT_NE(out.find("table label, record 1, field cashBalance: rule labelCashMatchesLedger"), std::string::npos)
        << out;
    EXPECT_NE(sim(broken, "--json status").second.find("\"date\":\"2004-08-06\""), std::string::npos)
        << "the run stops after the first day";
}

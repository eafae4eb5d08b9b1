// trovane-sim's scouting and signing verbs: an act's details and terms, the
// shortlist, a scouting report, an offer made, changed and withdrawn.
#include <gtest/gtest.h>

#include <string>

#include "support/sim_band_world.h"

using namespace trovane;

namespace {

struct SimBandVerbs : ::testing::Test {
    test::SimBandWorld w;
    void SetUp() override {
        Game& g = w.g;
        amend(g.band, w.ours, [&] { g.band->ability = 61; });
        g.achieve.rec = AchievementRecord{.kind = 0, .text = "Gold disc", .date = test::day(2004, 3, 1), .who = w.ours};
        g.achieve.append();
        addSchedule(g, ScheduleRecord{.type = 28, .date = test::day(2004, 12, 31), .band = w.ours});  // retires
        // Rival Records' offer to Free is decided on 10 August, the game being on Thursday 5 August 2004.
        g.offer.rec = OfferRecord{.decisionDate = test::day(2004, 8, 10),
                                  .label = w.rival,
                                  .initialAdvance = 60'000,
                                  .additionalAdvance = 20'000,
                                  .additionalAdvanceCount = 3,
                                  .optionLength = 18,
                                  .band = w.free,
                                  .royalty = 10};
        addSchedule(g, ScheduleRecord{.type = 4,
                                      .date = test::day(2004, 8, 10),
                                      .band = w.free,
                                      .label = w.rival,
                                      .offer = g.offer.append()});
        w.save();
    }
    std::pair<int, std::string> sim(const std::string& args) { return w.sim(args); }
    void expectHas(const std::string& args, const std::string& part) {
        auto [status, out] = sim(args);
        EXPECT_EQ(status, 0) << args;
        EXPECT_NE(out.find(part), std::string::npos) << args << "\n" << out;
    }
};

const std::string kDemands =
    "Free are demanding £60,000 as an initial advance with a further 3 options all carrying advances of £20,000 "
    "being negotiable in no more than 18 months time. They also expect a royalty rate of 10 percent.";

}  // namespace

TEST_F(SimBandVerbs, DetailsShowTheTermsOfAFreeActAndTheFiguresOfOurs) {
    expectHas("band Ours",
              "Ours\nStyle:      Rock\nLabel:      Home Records\nFormed:     \nAge:        0\nMembers:\n"
              "  Member 1 (Singer, 0)\nReputation: UK 0 US 0 Europe 0 Oceania 0 Rest of the world 0\n"
              "Interested: None\nAbility:    61\nEnergy:     100\nFeelings:   Happy with conditions.\n"
              "Charisma:   0\n");
    expectHas("band Ours", "Stamina:    0\nActivity:   None\nEnds:       31/12/2004\nGigs played:        0\n");
    expectHas("band Ours", "Best share:         None\nTours:\n  None\nAchievements:\n  1/3/2004  Gold disc\n");
    expectHas("--json band Ours",
              "\"tours\":[],\"achievements\":[{\"date\":\"2004-03-01\",\"text\":\"Gold disc\"}]}\n");
    expectHas("band Free",
              "  Member 2 (Singer, 0)\nReputation: UK 0 US 0 Europe 0 Oceania 0 Rest of the world 0\n"
              "Asks:       " +
                  kDemands + "\nInterested: None\nActivity:   None\n");
    EXPECT_EQ(sim("band Free").second.find("Ability:"), std::string::npos) << "not the player's act";
    expectHas("--json band Free",
              "\"asked\":{\"initialAdvance\":60000.0000,\"additionalAdvance\":20000.0000,"
              "\"options\":3,\"months\":18,\"royalty\":10}");
    EXPECT_EQ(sim("terms Free"), std::pair(0, kDemands + "\n"));
    EXPECT_EQ(sim("--json terms 1"),
              std::pair(0,
                        "{\"band\":1,\"initialAdvance\":60000.0000,\"additionalAdvance\":20000.0000,\"options\":3,"
                        "\"months\":18,\"royalty\":10,\"demands\":\"" +
                            kDemands + "\"}\n"));
    EXPECT_EQ(sim("terms Nobody"), std::pair(2, std::string("trovane-sim: There is no band Nobody\n")));
}

TEST_F(SimBandVerbs, ShortlistScoutOfferAndWithdrawEachTakeEffect) {
    EXPECT_EQ(sim("--json shortlist"), std::pair(0, std::string("[]\n")));
    EXPECT_EQ(sim("shortlist Free"), std::pair(0, std::string("Added to the shortlist\n")));
    EXPECT_EQ(sim("shortlist").second,
              "    1  Free                             Rock                        £60,000  Unsigned\n");
    expectHas("band Free", "Interested: Home Records\n");
    EXPECT_EQ(sim("--json shortlist Free").second, "{\"shortlisted\":false}\n");
    EXPECT_EQ(sim("shortlist").second, "");
    EXPECT_EQ(sim("shortlist Ours"), std::pair(1, std::string("trovane-sim: Ours is already signed to your label.\n")));
    EXPECT_EQ(sim("scout Ours").first, 1);
    // A&R take 5 to 7 days: seed 3 draws 6, twice.
    EXPECT_EQ(sim("--seed 3 scout Free").second, "The report arrives on Wednesday 11/8/2004\n");
    EXPECT_EQ(sim("--seed 3 --json scout 1").second, "{\"report\":\"2004-08-11\"}\n");
    EXPECT_EQ(sim("schedule 2004-08-11").second,
              "  1. entry 3: type 6 bandReport, band 1, label 1\n  2. entry 4: type 6 bandReport, band 1, label 1\n");
    expectHas("--json schedule 2004-08-11", "{\"position\":2,\"handler\":\"bandReport\",\"type\":6,");

    for (const char* bad : {"--options 0", "--options 6", "--months 13", "--royalty 4", "--royalty 31", "--initial -1",
                            "--additional -1"})
        EXPECT_EQ(sim(std::string("offer Free ") + bad).first, 2) << bad;
    EXPECT_EQ(sim("offer Taken"),
              std::pair(1, std::string("trovane-sim: Taken has already signed for Rival Records.\n")));
    EXPECT_EQ(sim("offer Free --options 5 --months 12 --royalty 30 --initial 0 --additional 5000").second,
              "Offer 2: the band decides on Tuesday 10/8/2004, with another label's offer\n");
    EXPECT_EQ(sim("--json offer Free --royalty 5 --options 2").second,
              "{\"offer\":2,\"decisionDate\":\"2004-08-10\",\"joined\":false}\n");
    expectHas("offers Free", "Offer 2 from Home Records, decided 10/8/2004: £0 + £5,000 x 2, 12 months, 5% royalty");
    EXPECT_EQ(sim("--json shortlist").second,
              "[{\"id\":1,\"name\":\"Free\",\"style\":\"Rock\",\"advance\":60000.0000,\"label\":\"Unsigned\"}]\n");
    EXPECT_EQ(sim("scout Free"),
              std::pair(1, std::string("trovane-sim: Your offer to Free is still being considered.\n")));
    EXPECT_EQ(sim("withdraw Free").second, "Offer withdrawn\n");
    EXPECT_EQ(sim("offers Free").second.find("Home Records"), std::string::npos);
    EXPECT_EQ(sim("--json withdraw Free"),
              std::pair(1, std::string("{\"error\":\"You have no offer before Free.\",\"status\":1}\n")));
    EXPECT_EQ(sim("withdraw Nobody").first, 2);
}

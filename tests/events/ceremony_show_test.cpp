// The ceremony night as the player watches it: the running order, the
// winners' speeches and the thank-you lines they draw.
#include <gtest/gtest.h>

#include <algorithm>

#include "events/ceremonies.h"
#include "events/ceremony_show.h"
#include "events/scores.h"
#include "schedule/schedule.h"
#include "support/amend.h"
#include "support/gig_world.h"
#include "world/strings.h"

using namespace trovane;

namespace {

TEST(SpeechKinds, TheRollSplitsSixtyTenTenTenTen) {
    using enum SpeechKind;
    // With nobody to sneer at, 90 is a normal speech.
    const std::tuple<int, bool, SpeechKind> rolls[] = {{60, true, normal},  {61, true, drunk},    {70, true, drunk},
                                                       {71, true, angry},   {81, true, boastful}, {90, true, boastful},
                                                       {90, false, normal}, {91, false, arrogant}};
    for (auto [roll, rival, kind] : rolls) EXPECT_EQ(speechKindOf(roll, rival), kind) << roll << rival;
}

class Show : public test::GigWorld, public ::testing::Test {
protected:
    double night = serialFromCivil(2004, 2, 17);
    int32_t addLine(const char* text, std::array<uint8_t, 5> conditions) {
        g.thank.rec = ThankRecord{.text = text, .conditions = conditions};
        return g.thank.append();
    }
    int16_t addAward(const char* name, uint8_t kind, std::vector<std::pair<int16_t, const char*>> nominees) {
        g.award.rec = AwardRecord{.name = name, .kind = kind};
        g.award->nomineeCount = static_cast<uint8_t>(nominees.size());
        for (std::size_t i = 0; i < nominees.size(); ++i) {
            g.award->nominees[i] = nominees[i].first;
            g.award->nomineeNames[i] = nominees[i].second;
        }
        return static_cast<int16_t>(g.award.append());
    }
    int16_t addCeremony(std::vector<int16_t> awards) {
        g.ceremony.rec = CeremonyRecord{.name = "Brit Night", .country = static_cast<uint8_t>(england), .date = night};
        std::copy(awards.begin(), awards.end(), g.ceremony->awards.begin());
        return static_cast<int16_t>(g.ceremony.append());
    }
    void busy(int16_t who, uint8_t type) {
        addSchedules(g, {ScheduleRecord{.type = type, .date = night, .band = who}});
    }
    // The show of a ceremony of one award won by the band.
    std::vector<std::string> speechOf(int16_t who, const char* name) {
        int16_t c = addCeremony({addAward("Best Act", 2, {{who, name}})});
        return buildCeremonyShow(g, c, night).at(2);
    }
};

TEST_F(Show, ThankLinesKeepToToneSpeakerAwardAndCareer) {
    int32_t plain = addLine("Plain", {0, 0, 0, 0, 0});
    int32_t heartfelt = addLine("Heartfelt", {1, 0, 0, 0, 0});
    addLine("Funny", {2, 0, 0, 0, 0});
    addLine("Drunk", {3, 0, 0, 0, 0});
    addLine("Solo only", {0, 1, 0, 0, 0});
    addLine("Discs only", {0, 0, 1, 0, 0});
    addLine("Winners before", {0, 0, 0, 2, 0});
    int32_t firstWin = addLine("First win", {0, 0, 0, 1, 0});
    auto lines = drawThankLines(g, {.tone = 1, .solo = false, .awardClass = 2, .wonBefore = false}, 10);
    std::sort(lines.begin(), lines.end());
    EXPECT_EQ(lines, (std::vector<std::string>{"First win", "Heartfelt", "Plain"}));
    for (int32_t n : {plain, heartfelt, firstWin}) EXPECT_EQ((g.thank.read(n), g.thank->conditions[4]), 1);
    // A drunk speech takes drunk lines alone.
    EXPECT_EQ(drawThankLines(g, {.tone = 3, .solo = false, .awardClass = 2}, 4), std::vector<std::string>{"Drunk"});
}

TEST_F(Show, TheLeastUsedLineComesFirstAndUsesStopAt255) {
    int32_t worn = addLine("Worn", {0, 0, 0, 0, 255});
    int32_t fresh = addLine("Fresh", {0, 0, 0, 0, 3});
    int32_t used = addLine("Used", {0, 0, 0, 0, 4});
    EXPECT_EQ(drawThankLines(g, {}, 3), (std::vector<std::string>{"Fresh", "Used", "Worn"}));
    // 3 + 1, 4 + 1, and 255 held.
    for (auto [n, uses] : {std::pair{fresh, 4}, {used, 5}, {worn, 255}}) {
        EXPECT_EQ((g.thank.read(n), g.thank->conditions[4]), uses);
    }
}

TEST_F(Show, TheRunningOrderIntroducesEachAwardAndSkipsAnEmptyOne) {
    int16_t bandAward = addAward("Best Act", 2, {{band, "The Testers"}, {band, "The Others"}});
    int16_t none = addAward("Best Newcomer", 2, {});
    int16_t labels = addAward("Label of the Year", 3, {{label, "Our Records"}});
    int16_t last = addAward("Best Label", 3, {{rival, "Their Records"}});
    ShowSteps steps = buildCeremonyShow(g, addCeremony({bandAward, 0, none, labels, last}), night);
    ASSERT_EQ(steps.size(), 8u);
    EXPECT_EQ(steps[0], std::vector<std::string>{"Good evening and welcome to the 2004 Brit Night right here in "
                                                 "England. Without further ado, let's get on with the awards..."});
    EXPECT_EQ(steps[1], (std::vector<std::string>{"The first award of the evening is the Best Act award. And the "
                                                  "nominees are...",
                                                  "- The Testers", "- The Others", "And the winner is..."}));
    EXPECT_EQ(steps[2][0], "The Testers");
    EXPECT_GT(steps[2].size(), 2u);  // the speech
    EXPECT_EQ(steps[3], std::vector<std::string>{
                            "Well, the award we normally give out at this point is the Best Newcomer however the "
                            "organisers have decided not to award that accolade this year so let's move on..."});
    EXPECT_EQ(steps[4][0], "Our next award is the Label of the Year award. And the nominees are...");
    EXPECT_EQ(steps[5], std::vector<std::string>{"Our Records"});  // a label makes no speech
    EXPECT_EQ(steps[6][0], "Our final award tonight is the Best Label award. And the nominees are...");
}

TEST_F(Show, ABandInTheStudioSendsAMessageClosedOnTheScreen) {
    busy(band, 7);
    auto lines = speechOf(band, "The Testers");
    EXPECT_EQ(lines[1],
              "The Testers are in the studio recording at the moment, but they found time to record this "
              "special message...");
    const std::string logo =
        "With the thank-yous over with the image on the huge screen is replaced by the Brit Night logo and the "
        "ceremony continues.";
    const std::string face =
        "With that lengthy acceptance speech over with The Testers's faces disappear from the "
        "screen and the ceremony continues.";
    EXPECT_TRUE(lines.back() == logo || lines.back() == face) << lines.back();
}

TEST_F(Show, AnActOnTourOrElsewhereSendsItsMessage) {
    int16_t solo = addBand("Ann Smith", label);
    amend(g.band, solo, [&] { g.band->memberCount = 1; });
    amend(g.artist, g.band->members[0], [&] { g.artist->male = 0; });
    busy(solo, 10);
    auto lines = speechOf(solo, "Ann Smith");
    EXPECT_EQ(lines[1],
              "Ann Smith is currently touring so couldn't be here tonight, however she did record this message...");
    // No thank-you lines in the table: the opening, then ours, which does not thank herself.
    EXPECT_EQ(lines.at(3), "And thanks to everyone at Our Records.'");
    busy(band, 17);
    EXPECT_EQ(speechOf(band, "The Testers")[1],
              "Unfortunately The Testers couldn't make it tonight, however they recorded this message for us...");
    // An artist in no band has nothing on and collects it in person.
    const int16_t ann = (g.band.read(solo), g.band->members[0]);
    amend(g.artist, ann, [&] { g.artist->band = 0; });
    const int16_t c = addCeremony({addAward("Best Singer", 1, {{ann, "Ann Smith"}})});
    EXPECT_FALSE(buildCeremonyShow(g, c, night).at(2).at(1).starts_with("Unfortunately"));
}

TEST_F(Show, AnActThatWonBeforeThanksAsOneThatHas) {
    addLine("First time", {0, 0, 0, 1, 0});
    addLine("Again", {0, 0, 0, 2, 0});
    busy(band, 7);  // the message always thanks people
    auto contains = [](const std::vector<std::string>& v, const char* s) { return std::ranges::find(v, s) != v.end(); };
    // The night builds its show before it records tonight's win.
    const int16_t c = addCeremony({addAward("Best Act", 2, {{band, "The Testers"}})});
    amend(g.ceremony, c, [&] { g.ceremony->playerInvited = kTrue; });
    g.schedule.rec = ScheduleRecord{.ceremony = c};
    g.gameDate = night;
    finishCeremony(g);
    const auto first = g.showSteps.at(2);
    EXPECT_TRUE(contains(first, "First time"));
    EXPECT_FALSE(contains(first, "Again"));
    auto again = speechOf(band, "The Testers");
    EXPECT_TRUE(contains(again, "Again"));
    EXPECT_FALSE(contains(again, "First time"));
}

}  // namespace

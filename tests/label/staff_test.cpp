// Heads of department: the offer and its answer, the hire, the release and
// its news, and the withdrawal of an offer.
#include <gtest/gtest.h>

#include "day/daily_cycle.h"
#include "day/news_inbox.h"
#include "label/departments.h"
#include "label/finances.h"
#include "label/staff.h"
#include "session/invariants.h"
#include "support/amend.h"
#include "support/game_test.h"
#include "world/dates.h"
#include "world/strings.h"

using namespace trovane;

namespace {

Money units(int64_t whole) { return moneyUnits(whole); }

struct StaffGame : test::GameTest {
    int16_t label = 0;

    void SetUp() override {
        g.prefs->exchangeRate = 1;
        g.prefs->currencySymbol = "£";
        g.staff.rec = StaffRecord{.forename = "Pat", .surname = "Boss"};
        g.player.playerStaff = static_cast<int16_t>(g.staff.append());
        g.label.rec = LabelRecord{.name = "Kettle Records", .boss = g.player.playerStaff};
        label = static_cast<int16_t>(g.label.append());
        g.player.playerLabel = label;
        amend(g.staff, g.player.playerStaff, [&] { g.staff->employer = label; });
        writeOpeningLedgerRows(g);
    }

    int16_t person(const std::string& forename, Money wage, bool male = true, uint8_t style = 0, uint8_t ability = 60) {
        g.staff.rec = StaffRecord{
            .forename = forename, .surname = "Smith", .male = male ? kTrue : kFalse, .ability = ability, .wage = wage};
        g.staff->aptitude[9] = style;
        return static_cast<int16_t>(g.staff.append());
    }
    // The person, already working in the label's department.
    int16_t employed(const std::string& forename, Money wage, uint8_t department, bool male = true,
                     uint8_t ability = 60) {
        const int16_t p = person(forename, wage, male, 0, ability);
        amend(g.staff, p, [&] {
            g.staff->employer = label;
            g.staff->department = department;
        });
        return p;
    }
    StaffRecord staff(int16_t n) { return (g.staff.read(n), g.staff.rec); }
    LabelRecord books() { return (g.label.read(label), g.label.rec); }

    void playDay(int days = 1) {
        for (int i = 0; i < days; ++i) {
            ASSERT_TRUE(allRepliesGiven(g));
            checkDaysSchedule(g);
            auto broken = checkInvariants(g);
            ASSERT_FALSE(broken) << describeBreak(*broken);
        }
    }

    // The title and text of the news item `back` from the last.
    std::string title(int back = 1) { return (g.news.read(g.news.recordCount() - back), trim(g.news->title.value)); }
    std::string lastText() { return (g.news.read(g.news.recordCount() - 1), trim(g.news->text.value)); }
};

}  // namespace

TEST_F(StaffGame, AnOfferAtExactlyNineTenthsIsTakenAndOneUnitLessIsNot) {
    int16_t ann = person("Ann", units(1000), true, 3);
    approachStaff(g, ann, marketing, 900, 3);  // label of all styles: 1,000 less a tenth = 900
    int16_t bob = person("Bob", units(1000));
    approachStaff(g, bob, security, 900, 3);
    // 899.9999
    amend(g.staff, bob, [&] { g.staff->offerWage -= 1; });
    playDay(8);  // the answers come a week on
    EXPECT_EQ(staff(ann).offerLabel, label) << "an accepted offer stands until the deal";
    EXPECT_EQ(std::tuple(staff(bob).offerLabel, staff(bob).offerWage), std::tuple(int16_t{0}, Money{0}));
    EXPECT_EQ(title(), "Bob Smith rejects Kettle Records's contract offer");
    EXPECT_EQ(title(2), "Ann Smith agrees terms with Kettle Records.");
    EXPECT_EQ(g.news->mustReply, kTrue);
    g.schedule.read(g.news->scheduleLink);
    EXPECT_EQ(std::tuple(g.schedule->type, g.schedule->staff), std::tuple(uint8_t{1}, ann));
}

TEST_F(StaffGame, ALabelOfAnotherStyleMustOfferATenthMore) {
    amend(g.label, label, [&] { g.label->labelStyle = 4; });
    int16_t fan = person("Fan", units(1000), true, 4);    // likes the label's style: 900 is enough
    int16_t far = person("Far", units(1000), true, 7);    // 1,100 exactly is enough
    int16_t near = person("Near", units(1000), true, 7);  // 1,099 is not
    approachStaff(g, fan, 0, 900, 1);
    approachStaff(g, far, 1, 1100, 1);
    approachStaff(g, near, 2, 1099, 1);
    playDay(8);
    EXPECT_EQ(std::tuple(staff(fan).offerLabel, staff(far).offerLabel, staff(near).offerLabel),
              std::tuple(label, label, int16_t{0}));
}

TEST_F(StaffGame, AYesHiresThePersonIntoTheDepartmentOnTheOfferedTerms) {
    int16_t ann = person("Ann", units(1000), false, 0, 70);
    amend(g.label, label, [&] {
        g.label->department[marketing].staffAtLevel = {2, 0, 0, 0, 0};
        g.label->department[marketing].rating = 8;
        g.label->wageBill = units(3000);
    });
    approachStaff(g, ann, marketing, 950, 4);
    playDay(8);
    const double today = g.gameDate;  // Friday 13 August 2004
    g.news.read(g.news.recordCount() - 1);
    pressNewsCmd1(g);
    playDay();

    const StaffRecord a = staff(ann);
    EXPECT_EQ(std::tuple(a.employer, a.department, a.hiredOn, a.contractEnd, a.wage, a.offerLabel),
              std::tuple(label, uint8_t{marketing}, today - 1, serialFromCivil(2008, 8, 13), units(950), int16_t{0}));
    const LabelRecord l = books();
    // rating 8 + 70 / 20 = 11.5, to the even 12
    EXPECT_EQ(std::tuple(l.department[marketing].head, l.department[marketing].rating, l.wageBill),
              std::tuple(ann, uint8_t{12}, units(3950)));
    EXPECT_EQ(title(), "Ann Smith hired by Kettle Records.");
    EXPECT_NE(lastText().find("Ann Smith announced she was looking forward"), std::string::npos);
}

TEST_F(StaffGame, APostTakenBeforeTheHireRunsMakesTheDealFallThrough) {
    int16_t ann = person("Ann", units(1000));
    int16_t bob = person("Bob", units(1000));
    approachStaff(g, ann, hospitality, 1000, 2);
    approachStaff(g, bob, hospitality, 1000, 2);
    playDay(8);
    for (int32_t n = 1; n != g.news.recordCount(); ++n)
        if (g.news.read(n), g.news->mustReply == kTrue) pressNewsCmd1(g);
    playDay();  // both hires run today: Ann's was filed first
    EXPECT_EQ(books().department[hospitality].head, ann);
    EXPECT_EQ(std::tuple(staff(bob).employer, staff(bob).offerLabel), std::tuple(int16_t{0}, int16_t{0}));
    EXPECT_EQ(title(), "Bob Smith deal falls through.");
    EXPECT_EQ(lastText(),
              "Bob Smith's proposed move into a new role as Head of Hospitality at Kettle Records has fallen through. "
              "A spokesperson for the company has revealed there was no longer a position for Bob Smith.");
}

TEST_F(StaffGame, AWithdrawalCancelsTheAnswerAndIsRefusedFromTheDecisionDayTillANoToAgreedTerms) {
    int16_t cy = person("Cy", units(1000));
    EXPECT_NE(checkWithdrawStaffOffer(g, cy), "") << "no offer yet";
    approachStaff(g, cy, marketing, 1000, 2);
    EXPECT_NE(checkApproachStaff(g, cy), "") << "an offer is pending";
    EXPECT_EQ(checkWithdrawStaffOffer(g, cy), "");
    withdrawStaffOffer(g, cy);
    EXPECT_EQ(staff(cy).offerLabel, 0);
    EXPECT_EQ((g.schedule.read(1), g.schedule->type), 255);

    int16_t ann = person("Ann", units(1000));
    int16_t bob = person("Bob", units(1000));
    approachStaff(g, ann, security, 1000, 2);
    approachStaff(g, bob, hospitality, 1000, 2);
    playDay(6);
    EXPECT_EQ(checkWithdrawStaffOffer(g, ann), "") << "the day before";
    playDay();
    EXPECT_NE(checkWithdrawStaffOffer(g, ann), "") << "the decision day";
    playDay();
    ASSERT_EQ(g.news.recordCount(), 3) << "no answer comes to a withdrawn offer";
    g.news.read(1);  // Ann agrees terms: the player says no
    pressNewsCmd2(g);
    g.news.read(2);  // Bob agrees terms: yes
    pressNewsCmd1(g);
    EXPECT_NE(checkWithdrawStaffOffer(g, bob), "") << "the hire is filed";
    playDay();
    EXPECT_EQ(std::tuple(staff(ann).offerLabel, staff(ann).employer), std::tuple(label, int16_t{0}));
    EXPECT_NE(checkApproachStaff(g, ann), "");
    ASSERT_EQ(checkWithdrawStaffOffer(g, ann), "");
    withdrawStaffOffer(g, ann);
    EXPECT_EQ(checkApproachStaff(g, ann), "");
}

TEST_F(StaffGame, ApproachIsRefusedForTheEmployedAndThePlayer) {
    EXPECT_NE(checkApproachStaff(g, g.player.playerStaff), "");
    int16_t taken = person("Taken", units(500));
    amend(g.staff, taken, [&] { g.staff->employer = label; });
    EXPECT_EQ(checkApproachStaff(g, taken), "Taken Smith already works for Kettle Records.");
    int16_t free = person("Free", units(500));
    amend(g.staff, free, [&] { g.staff->offerLabel = 9; });  // an old offer of another label goes with the approach
    EXPECT_EQ(checkApproachStaff(g, free), "");
    approachStaff(g, free, 0, 600, 5);
    const StaffRecord f = staff(free);
    EXPECT_EQ(std::tuple(f.offerLabel, f.offerYears, f.offerWage), std::tuple(label, uint8_t{5}, units(600)));
}

TEST_F(StaffGame, AReleasedHeadLeavesTheDepartmentAndAsksTheMarketRate) {
    int16_t ann = employed("Ann", units(2000), financeAndLaw, false, 52);
    amend(g.staff, ann, [&] {
        g.staff->reputation = {33, 33, 33, 33, 33};  // standing 33: 33 x 2 x 52 x 32 / 52 = 2,112
        g.staff->hiredOn = serialFromCivil(2004, 7, 31);
    });
    // 52 / 20 = 2.6 -> 3
    amend(g.label, label, [&] {
        g.label->department[financeAndLaw].head = ann;
        g.label->department[financeAndLaw].rating = 3;
        g.label->wageBill = units(2000);
    });
    EXPECT_EQ(checkTerminateStaff(g, ann), "");
    const double firedOn = g.gameDate;
    terminateStaff(g, ann);
    EXPECT_NE(checkTerminateStaff(g, ann), "") << "already on notice";
    playDay();
    EXPECT_EQ(std::tuple(staff(ann).employer, staff(ann).wage), std::tuple(int16_t{0}, units(2112)));
    const LabelRecord l = books();
    EXPECT_EQ(std::tuple(l.department[financeAndLaw].head, l.department[financeAndLaw].rating, l.wageBill),
              std::tuple(int16_t{0}, uint8_t{0}, Money{0}));
    EXPECT_EQ(title(), "Ann Smith released by Kettle Records.");
    EXPECT_EQ(g.news->date, firedOn + 1) << "the news comes out the next day";
    // July to August is one calendar month, though only five days.
    EXPECT_NE(lastText().find("after only 1 months in the job"), std::string::npos);
}

TEST_F(StaffGame, AFormerBossHeadsNothingAndGoesWithoutTouchingADepartment) {
    int16_t old = employed("Old", units(800), security);
    int16_t head = employed("Head", units(300), security);
    amend(g.label, label, [&] {
        g.label->department[security].head = head;
        g.label->department[security].rating = 3;
        g.label->wageBill = units(300);
    });
    terminateStaff(g, old);
    playDay();
    EXPECT_EQ(books().department[security].head, head);
    EXPECT_EQ(staff(old).employer, 0);
    EXPECT_NE(checkTerminateStaff(g, old), "") << "no longer works there";
}

struct ReleaseCase {
    int months;
    std::string text;
};

class ReleaseNewsText : public ::testing::TestWithParam<ReleaseCase> {};

TEST_P(ReleaseNewsText, FollowsTheMonthsServed) {
    ReleaseNews n = releaseNews("Jo Reed", false, "Kettle Records", "Pat Boss", GetParam().months);
    EXPECT_EQ(n.title, "Jo Reed released by Kettle Records.");
    EXPECT_EQ(n.text, GetParam().text);
}

namespace {
std::string furious(const std::string& time) {
    return "A furious Jo Reed said she felt betrayed by his treatment at the hands of Kettle Records boss Pat Boss. "
           "The sensational outburst came as news broke that her contract had been terminated after " +
           time + " in the job.";
}
const std::string kTerminated =
    "Jo Reed's contract has been terminated a spokesperson for Kettle Records announced today, adding that Jo Reed "
    "had done all she could for the label.";
std::string parted(const std::string& time) {
    return "Jo Reed parted ways with Kettle Records after " + time +
           " together. After working so well together it is believed the split is because Jo Reed and label boss "
           "Pat Boss have developed conflicting views on how the label should move forward.";
}
}  // namespace

INSTANTIATE_TEST_SUITE_P(
    Months, ReleaseNewsText,
    ::testing::Values(ReleaseCase{0, furious("less than a month")}, ReleaseCase{1, furious("only 1 months")},
                      ReleaseCase{3, furious("only 3 months")}, ReleaseCase{4, kTerminated},
                      ReleaseCase{11, kTerminated}, ReleaseCase{12, parted("over a year")},
                      ReleaseCase{23, parted("over a year")}, ReleaseCase{24, parted("over 2 years")},
                      ReleaseCase{36, parted("over 2 years")}, ReleaseCase{37, parted("a number of years")}));

TEST(ReleaseNewsText, AManIsHeAndHisAndTheMonthsServedAreCalendarMonths) {
    ReleaseNews n = releaseNews("Al Reed", true, "K", "B", 0);
    EXPECT_NE(n.text.find("said he felt betrayed by his treatment"), std::string::npos);
    EXPECT_NE(n.text.find("that his contract"), std::string::npos);
    // The months served are calendar months, not days.
    EXPECT_EQ(calendarMonthsBetween(serialFromCivil(2004, 1, 31), serialFromCivil(2004, 2, 1)), 1);
    EXPECT_EQ(calendarMonthsBetween(serialFromCivil(2004, 1, 1), serialFromCivil(2004, 1, 31)), 0);
    EXPECT_EQ(calendarMonthsBetween(serialFromCivil(2003, 12, 15), serialFromCivil(2005, 1, 2)), 13);
}

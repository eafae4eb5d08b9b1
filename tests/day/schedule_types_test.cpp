// The two halves of a schedule type, its data and its operation, never disagree.
#include <gtest/gtest.h>

#include "day/dispatch.h"
#include "schedule/schedule_types.h"

namespace trovane {
namespace {

TEST(ScheduleTypes, ANumberWithNoRowIsACalledOffEntry) {
    for (int t : {-1, 32, 255}) {
        const ScheduleTypeInfo& info = scheduleTypeInfo(t);
        EXPECT_EQ(std::tuple(info.type, info.occupiesBand, info.wear == nullptr, scheduleAction(t).run == nullptr),
                  std::tuple(ScheduleType::calledOff, false, true, true))
            << t;
    }
}

// Every reply the news offers has an action; tour days, and nothing else, keep the whole bill busy.
TEST(ScheduleTypes, EveryReplyHasAnActionAndOnlyTourDaysOccupyTheBill) {
    for (int t = 0; t <= kLastScheduleType; ++t) {
        const ScheduleTypeInfo& info = scheduleTypeInfo(t);
        const ScheduleAction& action = scheduleAction(t);
        const bool yes = info.reply == ScheduleReply::yes || info.reply == ScheduleReply::yesOrNo;
        EXPECT_EQ(yes, action.onYes != nullptr) << t;
        EXPECT_EQ(info.reply == ScheduleReply::yesOrNo, action.onNo != nullptr) << t;
        EXPECT_EQ(info.reply == ScheduleReply::okOpensDecision, info.decisionScreen != Screen::none) << t;
        EXPECT_EQ(info.occupiesTheBill, t == 8 || t == 10 || t == 11) << t;
    }
}

}  // namespace
}  // namespace trovane

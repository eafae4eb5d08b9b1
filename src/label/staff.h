#pragma once
// The label's staff: offers to department heads, hiring and releasing them.
#include <cstdint>
#include <string>

#include "world/numbers.h"

namespace trovane {

class Game;
struct StaffRecord;

// "Forename Surname" of a staff record.
std::string staffName(const StaffRecord& s);
// The current staff member's offer is gone: no label, no years, no wage.
void clearStaffOffer(Game& g);

// The weekly wage the contract form starts at for the current staff member:
// the asked wage in the display currency, rounded to the money step.
int32_t startingOfferWage(const Game& g);
// The contract form's demand line for the current staff member, the wage
// given in whole units of the display currency.
std::string staffDemands(const Game& g, int32_t weeklyWage);

// Why the player cannot approach staff member s, or "" when they can. Changes nothing.
std::string checkApproachStaff(Game& g, int16_t s);
// frmStaffContract's OK: the player offers staff member s the post of head of
// the department for the years at the weekly wage in the display currency;
// any older offer on the person goes, and the answer is filed for a week on.
void approachStaff(Game& g, int16_t s, int department, int32_t displayWage, int years);

// Why the player's offer to s cannot be withdrawn, or "" when it can. Changes nothing.
std::string checkWithdrawStaffOffer(Game& g, int16_t s);
// The answer still to come is cancelled and the offer cleared.
void withdrawStaffOffer(Game& g, int16_t s);

// Why the player cannot release s, or "" when they can. Changes nothing.
std::string checkTerminateStaff(Game& g, int16_t s);
// Files the release of s for today's run of the schedule.
void terminateStaff(Game& g, int16_t s);

// Schedule type 1: the staff member of the entry answers the entry's label.
void decideStaffOffer(Game& g);
// Schedule type 2: the staff member of the entry starts in the entry's department.
void hireStaff(Game& g);
// Schedule type 3: the staff member of the entry is released.
void fireStaff(Game& g);

// Whole calendar months from one date to another (year x 12 + month, the
// later less the earlier), the days ignored.
int calendarMonthsBetween(double from, double to);
// The news of a release after so many months: its title and its text.
struct ReleaseNews {
    std::string title;
    std::string text;
};
ReleaseNews releaseNews(const std::string& name, bool male, const std::string& label, const std::string& boss,
                        int months);

}  // namespace trovane

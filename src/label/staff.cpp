#include "label/staff.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "floor/formats.h"
#include "floor/grammar.h"
#include "floor/news_post.h"
#include "floor/number_helpers.h"
#include "label/departments.h"
#include "schedule/schedule.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr uint8_t kDecideStaffOffer = 1;
constexpr uint8_t kHireStaff = 2;
constexpr uint8_t kFireStaff = 3;
constexpr uint8_t kCancelledEntry = 255;

double exchangeRate(const Game& g) {
    double rate = static_cast<double>(g.prefs.rec.exchangeRate);
    return rate == 0 ? 1 : rate;  // a record never given a currency counts in pounds
}

// The same day some years later (29 February falls to the 28th).
double yearsAfter(double date, int years) {
    CivilDate d = civilFromSerial(date);
    unsigned day = std::min(d.day, daysInMonth(d.year + years, d.month));
    return serialFromCivil(d.year + years, d.month, day);
}

std::string headOf(int department) {
    return "Head of " + std::string(kDepartmentNames.at(static_cast<std::size_t>(department)));
}

std::string labelName(Game& g, int16_t label) {
    g.label.read(label);
    return trim(g.label->name.value);
}

// Schedule entries of a person for a label, of one type, dated on or after a day.
template <class Each>
void forEntries(Game& g, int16_t s, int16_t label, uint8_t type, double from, Each each) {
    ScheduleRecord e{};
    for (int32_t n = 1; n != g.schedule.recordCount(); ++n) {
        decodeRecord(g.schedule.bytesOf(n).data(), e);
        if (e.type == type && e.staff == s && e.label == label && e.date >= from) each(n, e);
    }
}

bool hasEntry(Game& g, int16_t s, int16_t label, uint8_t type, double from) {
    bool found = false;
    forEntries(g, s, label, type, from, [&](int32_t, const ScheduleRecord&) { found = true; });
    return found;
}

// An entry without a person or a label has nothing to act on.
bool namesSomeone(const ScheduleRecord& e) { return e.staff > 0 && e.label > 0; }

void dealFallsThrough(Game& g, const std::string& name, const std::string& job, const std::string& label) {
    postNews(g, {.date = g.gameDate + 1,
                 .title = name + " deal falls through.",
                 .text = name + "'s proposed move into a new role as " + job + " at " + label +
                         " has fallen through. A spokesperson for the company has revealed there was no longer a "
                         "position for " +
                         name + ".",
                 .extra = {}});
}

}  // namespace

std::string staffName(const StaffRecord& s) { return trim(s.forename.value) + " " + trim(s.surname.value); }

void clearStaffOffer(Game& g) {
    g.staff->offerLabel = 0;
    g.staff->offerYears = 0;
    g.staff->offerWage = 0;
}

int32_t startingOfferWage(const Game& g) {
    int32_t wage = toLong(moneyToDouble(g.staff->wage) * exchangeRate(g));
    return roundToMoneyStep(wage);
}

std::string staffDemands(const Game& g, int32_t weeklyWage) {
    const std::string symbol = g.prefs.rec.currencySymbol.value;
    return staffName(g.staff.rec) + " is demanding " + symbol + formatNumber(weeklyWage, "###,###,##0") + " per week " +
           " (" + symbol + formatNumber(52.0 * weeklyWage, "###,###,##0") + " per year) for a period of 3 years.";
}

std::string checkApproachStaff(Game& g, int16_t s) {
    if (s == g.player.playerStaff) return "You cannot offer yourself a post.";
    g.staff.read(s);
    const std::string name = staffName(g.staff.rec);
    if (g.staff->employer > 0) return name + " already works for " + labelName(g, g.staff->employer) + ".";
    if (g.staff->offerLabel == g.player.playerLabel)
        return "Your offer to " + name + " is still pending: withdraw it first.";
    return "";
}

void approachStaff(Game& g, int16_t s, int department, int32_t displayWage, int years) {
    g.staff.read(s);
    clearStaffOffer(g);
    g.staff->offerYears = narrow<uint8_t>(years);
    g.staff->offerWage = roundTo<Money>(displayWage / exchangeRate(g) * kMoneyUnit);
    g.staff->offerLabel = g.player.playerLabel;
    g.staff.write();

    ScheduleRecord answer{};
    answer.type = kDecideStaffOffer;
    answer.date = g.gameDate + 7;
    answer.staff = s;
    answer.label = g.player.playerLabel;
    answer.department = narrow<int16_t>(department);
    addSchedule(g, answer);
}

std::string checkWithdrawStaffOffer(Game& g, int16_t s) {
    g.staff.read(s);
    const std::string name = staffName(g.staff.rec);
    if (g.staff->offerLabel != g.player.playerLabel || g.player.playerLabel == 0)
        return "You have made no offer to " + name + ".";
    const int16_t label = g.player.playerLabel;
    bool decidingToday = false;
    forEntries(g, s, label, kDecideStaffOffer, g.gameDate,
               [&](int32_t, const ScheduleRecord& e) { decidingToday |= e.date == g.gameDate; });
    if (decidingToday) return name + " is deciding on your offer today: it can no longer be withdrawn.";
    if (hasEntry(g, s, label, kHireStaff, g.gameDate))
        return name + " has agreed to join you: the deal can no longer be withdrawn.";
    return "";
}

void withdrawStaffOffer(Game& g, int16_t s) {
    forEntries(g, s, g.player.playerLabel, kDecideStaffOffer, g.gameDate + 1, [&](int32_t n, const ScheduleRecord&) {
        g.schedule.read(n);
        g.schedule->type = kCancelledEntry;
        g.schedule.write();
    });
    g.staff.read(s);
    clearStaffOffer(g);
    g.staff.write();
}

std::string checkTerminateStaff(Game& g, int16_t s) {
    if (s == g.player.playerStaff) return "You cannot release yourself.";
    g.staff.read(s);
    const std::string name = staffName(g.staff.rec);
    if (g.staff->employer != g.player.playerLabel || g.player.playerLabel == 0)
        return name + " does not work for your label.";
    if (hasEntry(g, s, g.player.playerLabel, kFireStaff, g.gameDate)) return name + " has already been told to go.";
    return "";
}

void terminateStaff(Game& g, int16_t s) {
    g.staff.read(s);
    ScheduleRecord release{};
    release.type = kFireStaff;
    release.date = g.gameDate;
    release.staff = s;
    release.label = g.player.playerLabel;
    release.department = g.staff->department;
    addSchedule(g, release);
}

void decideStaffOffer(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (!namesSomeone(entry)) return;
    g.staff.read(entry.staff);
    if (g.staff->offerLabel != entry.label) return;  // the offer went before its answer
    const std::string name = staffName(g.staff.rec);
    const std::string label = labelName(g, entry.label);
    // Asked less a tenth for a label of every style or of the person's own, else a tenth more;
    // compared in whole units so that exactly the mark is enough.
    const int preferred = g.staff->aptitude[9];
    const bool liked = g.label->labelStyle == 0 || g.label->labelStyle == preferred;
    int64_t offered = 0, required = 0;
    if (__builtin_mul_overflow(g.staff->offerWage, int64_t{10}, &offered) ||
        __builtin_mul_overflow(g.staff->wage, int64_t{liked ? 9 : 11}, &required))
        throwOverflow("64-bit", moneyToDouble(std::max(g.staff->offerWage, g.staff->wage)) * 11);
    const bool accepted = offered >= required;

    if (entry.label != g.player.playerLabel) {
        if (accepted) {
            ScheduleRecord start = entry;
            start.id = 0;
            start.type = kHireStaff;
            addSchedule(g, start);
        } else {
            clearStaffOffer(g);
            g.staff.write();
        }
        return;
    }
    if (accepted) {
        postNews(g, {.date = g.gameDate + 1,
                     .title = name + " agrees terms with " + label + ".",
                     .text = name + " has agreed to your contract terms, finalise the deal? ",
                     .kind = kNewsYesNo,
                     .scheduleLink = entry.id,
                     .mustReply = true,
                     .extra = {}});
    } else {
        clearStaffOffer(g);
        g.staff.write();
        postNews(g, {.date = g.gameDate + 1,
                     .title = name + " rejects " + label + "'s contract offer",
                     .text = name + " has rejected your contract terms.",
                     .extra = {}});
    }
}

void hireStaff(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (!namesSomeone(entry) || entry.department < 0 || entry.department > 5) return;
    const auto d = static_cast<std::size_t>(entry.department);
    g.staff.read(entry.staff);
    const std::string name = staffName(g.staff.rec);
    const bool male = g.staff->male != kFalse;
    const bool offerStands = g.staff->offerLabel == entry.label;
    const std::string job = headOf(entry.department);
    const std::string label = labelName(g, entry.label);
    if (g.label->department.at(d).head > 0 || !offerStands) {
        // Whoever holds the post came first; the offer does not outlive the deal.
        if (offerStands) {
            clearStaffOffer(g);
            g.staff.write();
        }
        dealFallsThrough(g, name, job, label);
        return;
    }
    g.staff->employer = entry.label;
    g.staff->hiredOn = g.gameDate - 1;
    g.staff->department = narrow<uint8_t>(entry.department);
    g.staff->wage = g.staff->offerWage;
    g.staff->contractEnd = yearsAfter(g.gameDate, g.staff->offerYears);
    clearStaffOffer(g);
    g.staff.write();

    g.label.read(entry.label);
    g.label->department[d].head = entry.staff;
    updateWageBill(g);
    setDepartmentRating(g, entry.department);
    g.label.write();

    postNews(g, {.date = g.gameDate + 1,
                 .title = name + " hired by " + label + ".",
                 .text = name + " was revealed today as the new " + job + " at " + label +
                         ". A spokesperson for the label said everyone at the company was delighted with the "
                         "appointment whilst " +
                         name + " announced " + personWord(0, male) +
                         " was looking forward to the new challenges the role would bring.",
                 .extra = {}});
}

void fireStaff(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (!namesSomeone(entry)) return;
    g.staff.read(entry.staff);
    if (g.staff->employer != entry.label) return;  // gone already
    const std::string name = staffName(g.staff.rec);
    const bool male = g.staff->male != kFalse;
    const int months = calendarMonthsBetween(g.staff->hiredOn, g.gameDate);
    const auto d = static_cast<std::size_t>(std::min<int>(g.staff->department, 5));
    g.staff->employer = 0;
    setStaffWage(g);
    g.staff.write();

    g.label.read(entry.label);
    // A head is cleared only when it is this person: a former boss heads nothing.
    if (g.label->department[d].head == entry.staff) g.label->department[d].head = 0;
    updateWageBill(g);
    setDepartmentRating(g, static_cast<int>(d));
    g.label.write();
    const std::string label = trim(g.label->name.value);
    std::string boss;
    if (g.label->boss > 0) {
        g.staff.read(g.label->boss);
        boss = staffName(g.staff.rec);
    }
    ReleaseNews news = releaseNews(name, male, label, boss, months);
    postNews(g, {.date = g.gameDate + 1, .title = news.title, .text = news.text, .extra = {}});
}

int calendarMonthsBetween(double from, double to) {
    const CivilDate a = civilFromSerial(from), b = civilFromSerial(to);
    return (b.year * 12 + static_cast<int>(b.month)) - (a.year * 12 + static_cast<int>(a.month));
}

ReleaseNews releaseNews(const std::string& name, bool male, const std::string& label, const std::string& boss,
                        int months) {
    ReleaseNews news{.title = name + " released by " + label + ".", .text = {}};
    const std::string he = personWord(0, male), his = personWord(3, male);
    if (months <= 3) {
        const std::string time = months <= 0 ? "less than a month" : fmt::format("only {} months", months);
        news.text = "A furious " + name + " said " + he + " felt betrayed by his treatment at the hands of " + label +
                    " boss " + boss + ". The sensational outburst came as news broke that " + his +
                    " contract had been terminated after " + time + " in the job.";
    } else if (months <= 11) {
        news.text = name + "'s contract has been terminated a spokesperson for " + label +
                    " announced today, adding that " + name + " had done all " + he + " could for the label.";
    } else {
        const std::string time = months <= 23 ? "over a year" : months <= 36 ? "over 2 years" : "a number of years";
        news.text = name + " parted ways with " + label + " after " + time +
                    " together. After working so well together it is believed the split is because " + name +
                    " and label boss " + boss +
                    " have developed conflicting views on how the label should move forward.";
    }
    return news;
}

}  // namespace trovane

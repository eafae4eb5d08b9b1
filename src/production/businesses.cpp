#include "production/businesses.h"

#include <algorithm>

#include "floor/news_post.h"
#include "floor/number_helpers.h"
#include "label/finances.h"
#include "schedule/schedule.h"
#include "world/cp1252.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

double cubed(int q) { return static_cast<double>(q) * q * q; }

// The same day of the month `months` later, or the month's last day when it is shorter.
double monthsLater(double date, int months) {
    CivilDate d = civilFromSerial(date);
    int index = d.year * 12 + static_cast<int>(d.month) - 1 + months;
    int year = index / 12;
    auto month = static_cast<unsigned>(index % 12 + 1);
    unsigned day = std::min(d.day, daysInMonth(year, month));
    return serialFromCivil(year, month, day);
}

std::string plannedNewsBody(const std::string& kind, const std::string& name) {
    return "Work has begun on your new " + kind + " " + name + ". It is estimated the work will take six months.";
}

}  // namespace

int32_t distributorDailyCapacity(const Game& g) {
    int32_t v = toLong(2 * cubed(g.business->quality));
    return roundToMoneyStep(v);
}

int32_t plantDailyCapacity(const Game& g) {
    int32_t v = toLong(cubed(g.business->quality));
    return narrow<int32_t>(2 * static_cast<int64_t>(roundToMoneyStep(v)));
}

int32_t studioDayCost(const Game& g) {
    double q = g.business->quality;
    return toLong(q * q * 15 / 10);
}

int64_t buildCost(int quality, int kind) {
    auto base = static_cast<int64_t>(roundHalfEven(quality / 2.0)) * quality * 1000;
    return kind == kStudio ? base : base * 10;
}

int32_t runningCostFor(Game& g, int quality, int kind) {
    uint8_t kept = g.business->quality;
    g.business->quality = narrow<uint8_t>(quality);
    int32_t cost = 0;
    if (kind == kStudio)
        cost = toLong(static_cast<double>(quality) * quality * 10);
    else if (kind == kPlant)
        cost = toLong(plantDailyCapacity(g) * 7.5);
    else
        cost = toLong(distributorDailyCapacity(g) * 7.5);
    g.business->quality = kept;
    return cost;
}

std::string firmKindName(int kind) {
    switch (kind) {
    case kStudio: return "studio";
    case kPlant: return "manufacturing plant";
    default: return "distribution firm";
    }
}

void setBusinessCharge(Game& g) { g.business->runningCost = runningCostFor(g, g.business->quality, g.business->kind); }

void subtractBusinessRunningCosts(Game& g) {
    for (int32_t n = 1; n < g.business.recordCount(); ++n) {
        g.business.read(n);
        if (g.business->owner < 1 || g.business->open != kFirmOpen) continue;
        const int16_t owner = g.business->owner;
        const Money cost = moneyUnits(g.business->runningCost);
        if (!g.label.readIfPresent(owner)) continue;
        addExpense(g, cost, ledgerBusinessUpkeep);
    }
}

void openBusiness(Game& g) {
    const int16_t firm = g.schedule->business;
    if (!g.business.readIfPresent(firm)) return;
    g.business->open = kFirmOpen;
    g.business.write();
    if (g.business->owner != g.player.playerLabel) return;
    const std::string name = trim(g.business->name.value);
    std::string tail;
    switch (g.business->kind) {
    case kStudio: tail = " to record your bands' material."; break;
    case kPlant: tail = " to press your bands' discs."; break;
    default: tail = " to distribute your band's records."; break;
    }
    postNews(g, {.date = g.gameDate + 1,
                 .title = name + " opens for business.",
                 .text = name + " is now complete, as a result you will now be able to use it " + tail});
}

std::vector<int16_t> chooseBusiness(Game& g, int kind) {
    std::vector<int16_t> firms;
    for (int32_t n = 1; n < g.business.recordCount(); ++n) {
        g.business.read(n);
        if (g.business->kind == kind && g.business->open == kFirmOpen) firms.push_back(narrow<int16_t>(n));
    }
    return firms;
}

std::string checkBuildFacility(Game& g, const FacilityOrder& order) {
    const std::string name = trim(order.name);
    if (order.kind < kStudio || order.kind > kDistributor) return "There is no such kind of firm.";
    if (name.empty()) return "Please enter a name for your new " + firmKindName(order.kind) + ".";
    const std::string stored = utf8ToCp1252(name);
    if (stored.size() > 50) return "The name can be at most 50 characters long.";
    if (cp1252ToUtf8(stored) != name) return "The name holds characters that cannot be stored.";
    if (order.quality < 1 || order.quality > 100) return "The quality must be from 1 to 100 percent.";
    if (order.city < 1 || order.city >= g.city.recordCount()) return "Please choose a location.";
    if (g.player.playerLabel < 1) return "You have no label to build for.";
    return {};
}

int16_t buildFacility(Game& g, const FacilityOrder& order) {
    const std::string name = trim(order.name);
    g.city.read(order.city);
    const int16_t country = g.city->country;
    g.business.rec = BusinessRecord{};
    g.business->name = name;
    g.business->kind = narrow<uint8_t>(order.kind);
    g.business->city = order.city;
    g.business->quality = narrow<uint8_t>(order.quality);
    g.business->owner = g.player.playerLabel;
    g.business->open = 0;
    g.business->continent = country;
    g.business->runningCost = runningCostFor(g, order.quality, order.kind);
    const auto firm = narrow<int16_t>(g.business.append());

    g.label.read(g.player.playerLabel);
    addExpense(g, moneyUnits(buildCost(order.quality, order.kind)), ledgerBusinessUpkeep);

    ScheduleRecord e{};
    e.type = 24;
    e.date = monthsLater(g.gameDate, 6);
    e.business = firm;
    e.label = g.player.playerLabel;
    addSchedule(g, e);

    const std::string kind = firmKindName(order.kind);
    postNews(g, {.date = g.gameDate, .title = name + " plans finalised.", .text = plannedNewsBody(kind, name)});
    g.business.read(firm);
    return firm;
}

}  // namespace trovane

#pragma once
// What the schedule holds on a day, and one rule of the checker, for the booking tests.
#include <optional>
#include <string_view>
#include <vector>

#include "schedule/schedule.h"
#include "session/invariants.h"
#include "world/game.h"

namespace trovane::test {

// The types of the entries filed on the date.
inline std::vector<uint8_t> typesOn(Game& g, double date) {
    std::vector<uint8_t> out;
    for (int32_t id : entriesOfDay(g, date)) out.push_back((g.schedule.read(id), g.schedule->type));
    return out;
}

// The named rule's verdict on the game; a break named "missing" when there is no such rule.
inline std::optional<InvariantBreak> ruleOn(Game& g, std::string_view name) {
    for (const InvariantRule& r : invariantRules())
        if (std::string_view(r.name) == name) return r.check(g);
    return InvariantBreak{.rule = "missing"};
}

}  // namespace trovane::test

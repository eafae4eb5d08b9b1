#pragma once
// What must hold between any two days of a game. Each rule is a small named
// function; a later piece of the game adds its own rules to the list in
// invariants.cpp. Checking reads records through copies and leaves every
// record buffer as it was, so a checked run plays exactly as an unchecked one.
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace trovane {

class Game;

// One broken rule: where (table, record, field) and which rule, with what was found.
struct InvariantBreak {
    std::string table;
    int32_t record = 0;  // 0 for the session state
    std::string field;
    std::string rule;
    std::string detail;
};

// "table label, record 3, field cashBalance: rule labelCashMatchesLedger (...)"
std::string describeBreak(const InvariantBreak& b);

// A rule reports its first break, if any.
struct InvariantRule {
    const char* name;
    std::optional<InvariantBreak> (*check)(Game& g);
};

// Every rule, in the order they are checked.
std::span<const InvariantRule> invariantRules();

// The bands that have not retired.
int32_t countActiveActs(Game& g);

// Notes countActiveActs as the count the game must keep.
void noteActiveActs(Game& g);

// The first break of the first rule that fails, or nothing.
std::optional<InvariantBreak> checkInvariants(Game& g);

}  // namespace trovane

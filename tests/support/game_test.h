#pragma once
// A test fixture holding a game on an empty working set, and the message of a FatalError.
#include <gtest/gtest.h>

#include <string>

#include "support/empty_game.h"
#include "world/fatal_error.h"

namespace trovane::test {

class GameTest : public ::testing::Test {
protected:
    EmptyGame eg;
    Game& g = eg.g;
};

// Runs f, which must throw FatalError, and returns its message.
template <class F>
std::string fatalMessage(F f) {
    try {
        f();
    } catch (const FatalError& e) { return e.what(); }
    ADD_FAILURE() << "no FatalError";
    return {};
}

}  // namespace trovane::test

#pragma once
// A game on an empty working set in its own temporary folder.
#include <memory>

#include "session/empty_world.h"
#include "support/temp_folder.h"
#include "world/game.h"
#include "world/record_store.h"

namespace trovane::test {

struct EmptyGame {
    TempFolder folder;
    Game g{folder.path(), 12345};
    EmptyGame() { createEmptyWorkingSet(g); }
    ~EmptyGame() { closeAllTables(g); }
};

}  // namespace trovane::test

#include "production/songwriting.h"

#include "world/game.h"

namespace trovane {

// Not built yet: each runs as an empty step of the day until its rules are written.
void updateSongs(Game& g) { static_cast<void>(g); }
void seedAlbumPlan(Game& g) { static_cast<void>(g); }
void briefPlayerAlbums(Game& g) { static_cast<void>(g); }

}  // namespace trovane

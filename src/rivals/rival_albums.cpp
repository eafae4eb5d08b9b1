#include "rivals/rival_albums.h"

#include "world/game.h"

namespace trovane {

// Not built yet: each runs as an empty step of the day until its rules are written.
void computerCheckAlbumProgress(Game& g) { static_cast<void>(g); }
void computerRecordAlbum(Game& g) { static_cast<void>(g); }

// Not built yet: a rival does nothing with a finished recording until its rules are written.
void rivalRecordingComplete(Game& g) { static_cast<void>(g); }

}  // namespace trovane

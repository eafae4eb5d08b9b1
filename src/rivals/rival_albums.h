#pragma once
// How the computer-run labels make albums.

namespace trovane {

class Game;

void computerCheckAlbumProgress(Game& g);
void computerRecordAlbum(Game& g);

}  // namespace trovane

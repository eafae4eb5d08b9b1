#pragma once
// How the computer-run labels make albums.

namespace trovane {

class Game;

void computerCheckAlbumProgress(Game& g);
void computerRecordAlbum(Game& g);

// A rival's disc (disc and band buffers) has finished recording.
void rivalRecordingComplete(Game& g);

}  // namespace trovane

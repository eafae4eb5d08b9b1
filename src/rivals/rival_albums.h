#pragma once
// How the computer-run labels make albums and singles.
#include <cstdint>

namespace trovane {

class Game;

void computerCheckAlbumProgress(Game& g);
void computerRecordAlbum(Game& g);

// The current band (writing for an album) chooses its running order and books a studio.
void rivalStartAlbum(Game& g);
// Books a studio for the disc in the disc buffer, near the band's own standing.
void rivalChooseStudio(Game& g);
// A single of the album in the disc buffer: its best track not yet a single.
void rivalMakeSingle(Game& g);
// A rival's disc (disc and band buffers) has finished recording.
void rivalRecordingComplete(Game& g);
// Sets the current disc's release date in territory 1 to 5 and writes it.
void rivalChooseReleaseDate(Game& g, int territory);
// Orders the current disc pressed for every dated territory.
void rivalPressDisc(Game& g);

// The writing pace for a band of strength m: 4 (slowest) to 0; -1 above 100.
int writingPaceFor(int m);
// Songs a band of strength m needs before its album starts: m / 4, 10 to 20.
int songsNeededFor(int m);
// How many of the best-first qualities go on the album (10 to 20, at most all).
int trackTargetFor(const int* qualities, int count);

}  // namespace trovane

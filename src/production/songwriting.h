#pragma once
// Songs written week by week.

namespace trovane {

class Game;

void updateSongs(Game& g);
// A signed act of the starting world gets the songs of its next album under way.
void seedAlbumPlan(Game& g);
// The player's acts are briefed about their next album when a game starts.
void briefPlayerAlbums(Game& g);

}  // namespace trovane

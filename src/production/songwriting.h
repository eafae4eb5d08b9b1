#pragma once
// Songs written week by week.
#include <string>

namespace trovane {

class Game;

void updateSongs(Game& g);
// A signed act of the starting world gets the songs of its next album under way.
void seedAlbumPlan(Game& g);
// The player's acts are briefed about their next album when a game starts.
void briefPlayerAlbums(Game& g);
// A title from the bank for the current band's style: up to 50 draws, each
// title taken less often the more it has been used; the title's use is
// counted. "Untitled" when the bank is empty.
std::string pickSongTitle(Game& g);

}  // namespace trovane

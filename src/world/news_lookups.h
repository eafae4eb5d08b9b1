#pragma once
// Lookups over the news file answered from a side index kept in step with it,
// so that none of them walks the news or touches its buffer.
#include <cstdint>

namespace trovane {

class Game;

// The first news item, by record number, that must be replied to and has not
// been; 0 when there is none.
int32_t firstHeldNewsItem(Game& g);

// Starts telling the held-news index of the news table's writes; the game
// does it once when it is made.
void watchHeldNews(Game& g);

}  // namespace trovane

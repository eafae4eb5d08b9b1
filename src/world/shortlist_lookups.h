#pragma once
// Where a (band, label) pair stands on the shortlist, answered from a side
// index kept in step with the shortlist's writes, so the lookup walks nothing.
#include <cstdint>

namespace trovane {

class Game;

// The first shortlist record, by number, holding the pair; 0 when none does.
int32_t shortlistRecordOf(Game& g, int16_t band, int16_t label);

// The same record, read into the shortlist's buffer; with none, the buffer is
// left at the last record, as a walk of the shortlist leaves it.
int32_t findShortlistPair(Game& g, int16_t band, int16_t label);

// Starts telling the pair index of the shortlist's writes; the game does it
// once when it is made.
void watchShortlistPairs(Game& g);

}  // namespace trovane

#pragma once
// Lookups by band and by release date over the song and disc tables, answered
// from side indexes so that none of them walks a table or touches its buffer.
//
// How each index keeps in step:
// - songs and discs never change band once added, so the band indexes take in
//   the records added since the last lookup, read from their bytes;
// - a disc's release dates change as it is planned, so the date index is told
//   of every write to the disc table (TableBase::watchWrites) and moves the
//   disc between dates as they change.
// Each is rebuilt from the records when the table is opened or emptied.
#include <cstdint>
#include <vector>

namespace trovane {

class Game;

// Every song the band has written, in record order, whatever has become of it.
std::vector<int32_t> songsOfBand(Game& g, int16_t band);
// The band's songs on no disc yet (`disc` 65535), in record order.
std::vector<int32_t> unusedSongsOf(Game& g, int16_t band);
// Every disc of the band, in record order.
std::vector<int32_t> discsOfBand(Game& g, int16_t band);
// The discs out on the date in any territory, in record order.
std::vector<int32_t> discsOutOn(Game& g, double date);

// Starts telling the date index of the disc table's writes; the game does it
// once when it is made.
void watchDiscDates(Game& g);

}  // namespace trovane

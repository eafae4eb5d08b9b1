#pragma once
// The index behind a band's calendar: for each band and day, the schedule
// entries that may engage it, in the order the day lists them, so a day is
// answered without reading every entry of it.
//
// It is built from the day files, the schedule and the gigs the first time it
// is asked after the schedule or gig table was opened or emptied, and kept in
// step after that by being told of every write to the schedule, the gigs and
// the day files (TableBase::watchWrites). It only narrows the entries to test:
// each answer applies the calendar's own rules to them, reading their bytes
// in place, so no table buffer changes (the calendar then leaves the buffers
// as its walk would).
#include <cstdint>
#include <optional>

namespace trovane {

class Game;

// The entry that occupies band on date, as the walk of the date's entries
// finds it; nothing when the index cannot answer (a blank band, or a day
// file open while the index needs building).
std::optional<int32_t> indexedEngagement(Game& g, int16_t band, double date);

}  // namespace trovane

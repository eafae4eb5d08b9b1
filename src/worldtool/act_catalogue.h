#pragma once
// An act's discs and the songs on them, written inside the act:
//   [[band.disc]] with `tracks`, an album's songs as tables, a single's as the
//   titles of album songs (and tables for songs of its own).
#include <deque>
#include <span>
#include <vector>

#include "world/records/production_records.h"
#include "world/records/talent_records.h"
#include "worldtool/table_form.h"

namespace trovane::worldtool {

struct Catalogue {
    std::vector<Compiled<DiscRecord>> discs;
    std::vector<Compiled<SongRecord>> songs;
    std::deque<SourceRecord> sources;  // where each disc and song stands, for problems
};

// Reads the discs of one act into the catalogue, numbering discs and songs on
// from the acts before it. `members` are the act's members, with their numbers.
void compileActDiscs(CompileContext& ctx, const SourceRecord& act, int16_t bandNumber, const BandRecord& band,
                     std::span<const Compiled<ArtistRecord>> members, Catalogue& out);

}  // namespace trovane::worldtool

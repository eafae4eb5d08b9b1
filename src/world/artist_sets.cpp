#include "world/artist_sets.h"

#include <optional>
#include <utility>

#include "world/fatal_error.h"
#include "world/game.h"
#include "world/record_bytes.h"

namespace trovane {

namespace {

const std::size_t kRetired = offsetIn<ArtistRecord>("retired");
const std::size_t kEnergy = offsetIn<ArtistRecord>("energy");
const std::size_t kSongQuality = offsetIn<ArtistRecord>("songQuality");
const std::size_t kWritingFocus = offsetIn<ArtistRecord>("writingFocus");

bool isActive(std::span<const uint8_t> bytes) { return fieldAt<int16_t>(bytes, kRetired) == kFalse; }

void file(ArtistSets& sets, int32_t n, std::span<const uint8_t> bytes) {
    sets.active.put(n, isActive(bytes));
    sets.unrested.put(n, !artistAtRest(bytes));
}

ArtistSets& refresh(Game& g) {
    ArtistSets& sets = g.artistSets;
    if (sets.generation == g.artist.generation()) return sets;
    sets.generation = g.artist.generation();
    sets.active.clear();
    sets.unrested.clear();
    for (int32_t n = 1; n < g.artist.recordCount(); ++n) {
        sets.active.put(n, isActive(g.artist.bytesOf(n)));
        sets.unrested.put(n, true);
    }
    return sets;
}

}  // namespace

bool artistAtRest(std::span<const uint8_t> bytes) {
    if (fieldAt<int16_t>(bytes, kEnergy) != 100) return false;
    return bytes[kSongQuality] == 0 || bytes[kWritingFocus] == 100;
}

std::vector<int32_t> activeArtists(Game& g) {
    return refresh(g).active.list();
}

std::vector<int32_t> unrestedArtists(Game& g) {
    return refresh(g).unrested.list();
}

void noteArtist(Game& g, int32_t n) { file(refresh(g), n, g.artist.bytesOf(n)); }

void watchArtistSets(Game& g) {
    g.artist.watchWrites(
        &g.artistSets,
        [&g](int32_t n, std::span<const uint8_t> before, std::span<const uint8_t> after) {
            // Sets not built for the table as it is now are built whole at the next lookup.
            if (g.artistSets.generation != g.artist.generation()) return;
            // A write that leaves both marks as they were leaves the sets as they are.
            if (!before.empty() && isActive(before) == isActive(after) && artistAtRest(before) == artistAtRest(after))
                return;
            file(g.artistSets, n, after);
        },
        {{kRetired, sizeof(int16_t)}, {kEnergy, sizeof(int16_t)}, {kSongQuality, 1}, {kWritingFocus, 1}});
}

}  // namespace trovane

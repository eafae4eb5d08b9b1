#pragma once
// The artists the daily walks need, kept beside the artist table so the walks
// need not read every artist that ever lived. Members of ended acts stay in
// the world, so the table only grows; these sets grow only with the artists
// still at work.
//
// How they keep in step: the sets are told of every write to the artist table
// (TableBase::watchWrites) and move the artist written in or out by its new
// bytes; a daily walk that moves many artists' energies leaves them untold
// and files each artist itself once its fields have moved (noteArtist). They are built from the records at the first lookup after the table
// is opened or emptied; then every artist counts as unrested, so the first
// day's recovery visits each once, as it always did.
#include <cstdint>
#include <span>
#include <vector>

namespace trovane {

class Game;

// The artists not retired, in record order.
std::vector<int32_t> activeArtists(Game& g);
// The artists a day's recovery may change, in record order: everyone whose
// energy is not 100 or who writes songs without full focus.
std::vector<int32_t> unrestedArtists(Game& g);
// Whether a day's recovery leaves an artist of these bytes as it is.
bool artistAtRest(std::span<const uint8_t> bytes);
// Files artist n by its record as it is now, after a walk that changed it
// without telling the sets, or may have left it unchanged.
void noteArtist(Game& g, int32_t n);

// Starts telling the sets of the artist table's writes; the game does it
// once when it is made.
void watchArtistSets(Game& g);

}  // namespace trovane

#pragma once
// Names for new artists, drawn from the forename and surname tables by the
// artist's country and, for forenames, sex.
//
// Each name row lists up to five countries with a weight each, or none at all,
// which makes it a name of every country. A row drawn at random is kept by the
// weight of its link to the artist's country, read as a percent chance (100 or
// more always keeps it); a row with no links is always kept, and a row linked
// only to other countries never is. Over many draws a name is therefore as
// likely as its weight for the country.
#include <cstdint>

namespace trovane {

class Game;

// A forename row for a man (male true) or a woman of the country; the forename
// buffer is left on it. When no row fits the country, any row of the sex is
// taken; 0 only for an empty table.
int32_t drawForename(Game& g, int country, bool male);
// A surname row of the country, the surname buffer left on it; as above.
int32_t drawSurname(Game& g, int country);

// Gives the current artist a forename and a surname by its country and male.
void drawArtistName(Game& g);

}  // namespace trovane

#pragma once
// How a new artist's figures are drawn from the style of their music. Each
// works on the current artist and reads the artist's style into the style
// buffer; none writes the artist, which the caller does once it is complete.
#include <cstdint>

namespace trovane {

class Game;

// v give or take ten percent: v + Int(rnd * v / 10) - Int(rnd * v / 10).
int32_t jitter(Game& g, int32_t v);

// The age of a new artist of the current artist's style: ten, plus three for
// every ten years the style keeps an act in its prime, plus up to six, held to
// 17 to 25. Sets age; the birth date is the caller's (a random birth date for
// that age).
uint8_t setNewArtistAge(Game& g);

// Draws every attribute from the style's templates. ceiling is the talent the
// caller gives (a new artist's is 40 plus up to 50); the talent ceiling is that
// give or take ten percent, and ability follows from it, the style's life span
// and the artist's age, so setNewArtistAge comes first. Energy and morale start
// full, potential at the talent ceiling.
void setArtistStats(Game& g, int32_t ceiling);

// The job of place (0 first) in a new act of the current style: the solo job
// for a solo act, else the style's job for the place; places past the listed
// jobs repeat the last one.
uint8_t jobForPlace(const Game& g, int place, bool solo);

// Whether the new artist writes, by the style's writer percent: a writer's song
// quality and commerciality are the talent ceiling with the usual noise, and
// the writing rate 10 to 40; a non-writer has all three at 0.
void setArtistWriting(Game& g);

}  // namespace trovane

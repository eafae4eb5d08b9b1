#pragma once
// The yearly festivals.
#include <cstdint>

namespace trovane {

class Game;

// Makes each festival's tour and gigs of the given year and files its invitation date.
void scheduleFestivals(Game& g, int year);

// Schedule type 22: the bill of the entry's festival is drawn up.
void fillFestivalBill(Game& g);
// The player's yes to a festival invitation: the band in the band buffer takes
// place `slot` on the bill of the festival in the festival buffer.
void acceptFestivalSlot(Game& g, int32_t slot);

}  // namespace trovane

namespace trovane {

// The review of a festival for the player's band in the band buffer. Festival
// reviews are written with the festivals; until then this posts nothing.
void writeFestivalReview(Game& g);

}  // namespace trovane

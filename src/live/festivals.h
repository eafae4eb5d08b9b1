#pragma once
// The yearly festivals.

namespace trovane {

class Game;

// Makes each festival's tour and gigs of the given year and files its invitation date.
void scheduleFestivals(Game& g, int year);

}  // namespace trovane

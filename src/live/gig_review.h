#pragma once
// The press's account of a night: the review of the player's headliner.
#include <string>

namespace trovane {

class Game;

// Opening line, attendance, quality, dance, show and crowd paragraphs for the
// gig in the gig buffer, headlined by the band in the band buffer (its tour,
// venue, city and country in their buffers), posted under the band's name.
// A support band or the headliner may meet the crowd, which the review tells.
void writeGigReview(Game& g);

// The band of overallQuality a review speaks of: 0 for 0 to 60, 1 for 61 to 80,
// 2 for 81 to 94, 3 for 95 and over.
int reviewQualityBand(int quality);
// The band of the crowd's percent of capacity: 0 below 34, 1 for 34 to 70, 2
// for 71 to 94, 3 for 95 and over.
int reviewCrowdBand(int percent);

}  // namespace trovane

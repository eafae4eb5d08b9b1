#pragma once
// One evening at a venue: attendance, takings, performance and reviews.

namespace trovane {

class Game;

// Schedule type 8: the gig of the entry is played.
void performGig(Game& g);

}  // namespace trovane

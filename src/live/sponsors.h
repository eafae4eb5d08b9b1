#pragma once
// Products that sponsor tours: which fit a tour, and what they pay per gig.
#include <cstdint>
#include <vector>

namespace trovane {

class Game;

struct SponsorOffer {
    int16_t product = 0;
    int32_t feePerGig = 0;
};

// The products that may sponsor tour `tour` (its band, area and nation),
// best fee first.
std::vector<SponsorOffer> fittingSponsors(Game& g, int16_t tour);

}  // namespace trovane

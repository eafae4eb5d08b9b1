#pragma once
// Products that sponsor tours: which fit a tour, and what they pay per gig.
#include <cstdint>
#include <string>
#include <vector>

namespace trovane {

class Game;

struct SponsorOffer {
    int16_t product = 0;
    int32_t feePerGig = 0;
};

// A tour's act and where it goes, before or after its record is made.
struct TourPlace {
    int16_t band = 0;
    std::string area;
    uint8_t nation = 0;
};
TourPlace tourPlace(Game& g, int16_t tour);

// The headliner's reputation where tour `tour` goes: a nation's market; for a
// whole area Europe ("E"), the US ("N"), Oceania ("O") or the Global market
// ("S", "F", "A"); for a world tour the weighted overall figure.
int tourRating(Game& g, int16_t tour);
int placeRating(Game& g, const TourPlace& place);

// Whether product `product` may sponsor tour `tour`: its area is the tour's,
// or the tour's nation is one of its countries, or it names neither; the
// headliner's controversy lies in its range; the tour's rating reaches its
// minimum.
bool productFitsTour(Game& g, int16_t tour, int16_t product);
bool productFitsPlace(Game& g, const TourPlace& place, int16_t product);

// The products that may sponsor tour `tour` (its band, area and nation),
// best fee first (ties in record order).
std::vector<SponsorOffer> fittingSponsors(Game& g, int16_t tour);
std::vector<SponsorOffer> sponsorsForPlace(Game& g, const TourPlace& place);

}  // namespace trovane

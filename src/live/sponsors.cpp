#include "live/sponsors.h"

#include <algorithm>
#include <string>

#include "live/gigs.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

TourPlace tourPlace(Game& g, int16_t tour) {
    g.tour.read(tour);
    return {g.tour->band, trim(g.tour->areaCode.value), g.tour->nation};
}

int placeRating(Game& g, const TourPlace& place) {
    g.band.read(place.band);
    const auto& r = g.band->reputation;
    if (place.nation > 0) {
        g.country.read(place.nation);
        return r[static_cast<std::size_t>(venueMarket(g))];
    }
    if (place.area == "E") return r[2];
    if (place.area == "N") return r[1];
    if (place.area == "O") return r[3];
    if (place.area == "X") return toInteger((8.0 * r[0] + 10.0 * r[1] + 7.0 * r[2] + 5.0 * r[3] + 3.0 * r[4]) / 33);
    return r[4];
}

int tourRating(Game& g, int16_t tour) { return placeRating(g, tourPlace(g, tour)); }

namespace {

bool fits(const ProductRecord& p, const TourPlace& place, int controversy, int rating) {
    const std::string productArea = trim(p.area.value);
    const auto& slots = p.regionWeights;
    const bool noCountries = std::all_of(slots.begin(), slots.end(), [](uint8_t c) { return c == 0; });
    const bool named = place.nation > 0 && std::find(slots.begin(), slots.end(), place.nation) != slots.end();
    const bool placeFits = productArea == place.area || named || (productArea.empty() && noCountries);
    return placeFits && controversy >= p.minControversy && controversy <= p.maxControversy &&
           rating >= p.minimumReputation;
}

}  // namespace

bool productFitsPlace(Game& g, const TourPlace& place, int16_t product) {
    const int rating = placeRating(g, place);
    g.band.read(place.band);
    const int controversy = g.band->controversy;
    g.product.read(product);
    return fits(g.product.rec, place, controversy, rating);
}

bool productFitsTour(Game& g, int16_t tour, int16_t product) {
    return productFitsPlace(g, tourPlace(g, tour), product);
}

std::vector<SponsorOffer> sponsorsForPlace(Game& g, const TourPlace& place) {
    const int rating = placeRating(g, place);
    g.band.read(place.band);
    const int controversy = g.band->controversy;
    std::vector<SponsorOffer> out;
    for (int32_t n = 1; n < g.product.recordCount(); ++n) {
        g.product.read(n);
        if (fits(g.product.rec, place, controversy, rating))
            out.push_back({static_cast<int16_t>(n), sponsorFee(g.product->minimumReputation)});
    }
    std::stable_sort(out.begin(), out.end(),
                     [](const SponsorOffer& a, const SponsorOffer& b) { return a.feePerGig > b.feePerGig; });
    return out;
}

std::vector<SponsorOffer> fittingSponsors(Game& g, int16_t tour) { return sponsorsForPlace(g, tourPlace(g, tour)); }

}  // namespace trovane

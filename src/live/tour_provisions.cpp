#include "live/tour_provisions.h"

#include <algorithm>
#include <array>

#include "floor/formats.h"
#include "live/gigs.h"
#include "live/sponsors.h"
#include "live/tours.h"
#include "schedule/band_calendar.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr std::array<std::string_view, 5> kContent = {"Extravagant", "Elaborate", "Average", "Understated", "Basic"};
constexpr std::array<std::string_view, 5> kHospitality = {"Excessive", "Indulgent", "Average", "Basic", "None"};
constexpr std::array<std::string_view, 5> kAccommodation = {"Decadent", "Chic", "Upmarket", "Average", "Basic"};

std::string_view nameOf(const std::array<std::string_view, 5>& names, int level) {
    return level >= 0 && level < 5 ? names[static_cast<std::size_t>(level)] : std::string_view{};
}

// The first and last gig dates of the tour in the tour buffer; 0 and 0 without gigs.
std::pair<double, double> tourSpan(Game& g) {
    const TourRecord t = g.tour.rec;
    if (t.gigCount == 0) return {0, 0};
    g.gig.read(t.gigs[0]);
    const double first = g.gig->gigDate;
    g.gig.read(t.gigs[t.gigCount - 1u]);
    const double last = g.gig->gigDate;
    g.tour.rec = t;
    return {first, last};
}

// Whether the band in the band buffer has nothing on any day from first to last.
bool freeThroughout(Game& g, double first, double last) {
    return countFreeDays(g, first, last + 1) == static_cast<int32_t>(last - first + 1);
}

}  // namespace

std::string_view contentLevelName(int level) { return nameOf(kContent, level); }
std::string_view hospitalityLevelName(int level) { return nameOf(kHospitality, level); }
std::string_view accommodationLevelName(int level) { return nameOf(kAccommodation, level); }

std::string supportRefusalOver(Game& g, int16_t headliner, double first, double last,
                               const std::vector<int16_t>& already, int16_t band) {
    if (band < 1 || band >= g.band.recordCount()) return "There is no such band.";
    g.band.read(band);
    const std::string name = trim(g.band->name.value);
    if (band == headliner) return "An act can't support its own tour.";
    if (g.band->label != g.player.playerLabel || g.player.playerLabel < 1) return name + " isn't signed to your label.";
    if (g.band->retired != kFalse) return name + " has retired.";
    if (std::find(already.begin(), already.end(), band) != already.end())
        return name + " already has a place on the tour.";
    if (already.size() >= 3) return "The tour already has three support bands.";
    if (!freeThroughout(g, first, last)) return name + " isn't free for the whole tour.";
    return {};
}

std::vector<int16_t> supportsOf(Game& g, int16_t tour) {
    g.tour.read(tour);
    const TourRecord t = g.tour.rec;
    std::vector<int16_t> out;
    if (t.gigCount == 0) return out;
    g.gig.read(t.gigs[0]);
    for (int slot = 1; slot <= t.supportCount && slot < static_cast<int>(g.gig->bill.size()); ++slot)
        out.push_back(g.gig->bill[static_cast<std::size_t>(slot)]);
    g.tour.rec = t;
    return out;
}

std::string supportRefusal(Game& g, int16_t tour, int16_t band) {
    if (tour < 1 || tour >= g.tour.recordCount()) return "There is no such tour.";
    g.tour.read(tour);
    if (g.tour->gigCount == 0) return "The tour has no gigs yet.";
    const int16_t headliner = g.tour->band;
    const std::vector<int16_t> already = supportsOf(g, tour);
    auto [first, last] = tourSpan(g);
    std::string refusal = supportRefusalOver(g, headliner, first, last, already, band);
    g.tour.read(tour);
    return refusal;
}

std::vector<int16_t> supportCandidates(Game& g, int16_t tour) {
    std::vector<int16_t> out;
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        g.band.read(n);
        if (g.band->label != g.player.playerLabel || g.band->retired != kFalse) continue;
        if (supportRefusal(g, tour, static_cast<int16_t>(n)).empty()) out.push_back(static_cast<int16_t>(n));
    }
    return out;
}

void addSupportBand(Game& g, int16_t tour, int16_t band) {
    g.tour.read(tour);
    const TourRecord t = g.tour.rec;
    const auto place = static_cast<std::size_t>(t.supportCount + 1);
    for (std::size_t i = 0; i < t.gigCount; ++i) {
        g.gig.read(t.gigs[i]);
        g.gig->bill[place] = band;
        g.gig.write();
    }
    g.tour.rec = t;
    g.tour->supportCount = static_cast<uint8_t>(t.supportCount + 1);
    g.tour.write();
}

void removeSupportBand(Game& g, int16_t tour, int16_t band) {
    g.tour.read(tour);
    const TourRecord t = g.tour.rec;
    bool found = false;
    for (std::size_t i = 0; i < t.gigCount; ++i) {
        g.gig.read(t.gigs[i]);
        auto& bill = g.gig->bill;
        auto at = std::find(bill.begin() + 1, bill.end(), band);
        if (at == bill.end()) continue;
        std::move(at + 1, bill.end(), at);
        bill.back() = 0;
        g.gig.write();
        found = true;
    }
    g.tour.rec = t;
    if (found && t.supportCount > 0) {
        g.tour->supportCount = static_cast<uint8_t>(t.supportCount - 1);
        g.tour.write();
    }
}

void setTourLevels(Game& g, int16_t tour, int content, int hospitality, int accommodation) {
    g.tour.read(tour);
    g.tour->contentLevel = static_cast<uint8_t>(content);
    g.tour->hospitalityLevel = static_cast<uint8_t>(hospitality);
    g.tour->accommodationLevel = static_cast<uint8_t>(accommodation);
    g.tour.write();
}

void setTourSponsor(Game& g, int16_t tour, int16_t product) {
    g.tour.read(tour);
    g.tour->sponsorProduct = product;
    g.tour.write();
}

std::string confirmSponsorText(Game& g, int16_t tour, int16_t product) {
    g.tour.read(tour);
    const int gigs = g.tour->gigCount;
    g.band.read(g.tour->band);
    g.product.read(product);
    const int32_t fee = sponsorFee(g.product->minimumReputation);
    const auto money = [&](double v) { return formatMoneyValue(g, v, "###,###,###,##0"); };
    return "You have chosen " + trim(g.product->name.value) + " to sponsor " + trim(g.band->name.value) +
           "'s tour, they are willing to pay " + money(static_cast<double>(fee) * gigs) + " (" + money(fee) +
           " per gig) for this, finalise?";
}

bool provisionsConfirmable(Game& g, int16_t tour, int16_t chosen) {
    if (chosen > 0) return true;
    g.tour.read(tour);
    if (g.tour->sponsorProduct > 0) return true;
    return fittingSponsors(g, tour).empty();
}

std::string tourSummary(Game& g, int16_t tour) {
    g.tour.read(tour);
    const TourRecord t = g.tour.rec;
    auto [first, last] = tourSpan(g);
    std::string text = "Tour Length : " + std::to_string(t.gigCount) + " gig";
    if (t.gigCount == 1)
        text += " on " + formatDate(first, "d/m/yyyy") + ".";
    else
        text += "s between " + formatDate(first, "d/m/yyyy") + " and " + formatDate(last, "d/m/yyyy") + ".";
    text += "\nSupport Bands : ";
    if (t.supportCount == 0 || t.gigCount == 0) {
        text += "None";
    } else {
        bool firstName = true;
        for (int16_t s : supportsOf(g, tour)) {
            g.band.read(s);
            text += (firstName ? "" : ", ") + trim(g.band->name.value);
            firstName = false;
        }
    }
    text += "\nContent : " + std::string(contentLevelName(t.contentLevel));
    text += "\nHospitality : " + std::string(hospitalityLevelName(t.hospitalityLevel));
    text += "\nAccommodation : " + std::string(accommodationLevelName(t.accommodationLevel));
    g.tour.rec = t;
    return text;
}

std::string finaliseTourText(Game& g, int16_t tour) { return tourSummary(g, tour) + ". Finalise the tour?"; }

bool finaliseTour(Game& g, int16_t tour) {
    g.tour.read(tour);
    if (g.tour->gigCount == 0) {
        cancelTour(g, tour);
        g.tour.read(tour);
        g.tour->sponsorProduct = 0;
        g.tour.write();
        return false;
    }
    if (g.tour->sponsorProduct < 0) {
        g.tour->sponsorProduct = 0;
        g.tour.write();
    }
    return true;
}

}  // namespace trovane

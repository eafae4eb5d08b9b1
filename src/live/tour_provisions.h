#pragma once
// What the player chooses for a tour once its gigs are booked: support acts,
// the three production levels and a sponsor; and the summary it is finalised on.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trovane {

class Game;

// The names of the levels, 0 (the top) to 4; "" past 4.
std::string_view contentLevelName(int level);
std::string_view hospitalityLevelName(int level);
std::string_view accommodationLevelName(int level);

// The player's acts that may support tour `tour`: not the headliner, not
// retired, not already on it, free on every day from its first gig to its last.
std::vector<int16_t> supportCandidates(Game& g, int16_t tour);

// Why `band` can't support tour `tour`, in the game's words; empty when it can.
std::string supportRefusal(Game& g, int16_t tour, int16_t band);
// The same for a tour of `headliner` from `first` to `last` that has the
// supports `already`.
std::string supportRefusalOver(Game& g, int16_t headliner, double first, double last,
                               const std::vector<int16_t>& already, int16_t band);
// The tour's support acts in bill order.
std::vector<int16_t> supportsOf(Game& g, int16_t tour);
// Puts `band` on the next place of every gig's bill.
void addSupportBand(Game& g, int16_t tour, int16_t band);
// Takes `band` off every gig's bill, the places after it moving up.
void removeSupportBand(Game& g, int16_t tour, int16_t band);

void setTourLevels(Game& g, int16_t tour, int content, int hospitality, int accommodation);

// The tour's sponsor becomes `product` (0 for none).
void setTourSponsor(Game& g, int16_t tour, int16_t product);
// The "Confirm Sponsor" question.
std::string confirmSponsorText(Game& g, int16_t tour, int16_t product);
// Whether the provisions may be confirmed: a sponsor is chosen (`chosen`
// above 0), the tour has one, or none fits.
bool provisionsConfirmable(Game& g, int16_t tour, int16_t chosen);

// The tour's length, dates, support acts and levels, as "Finalise Tour" shows them.
std::string tourSummary(Game& g, int16_t tour);
// The "Finalise Tour" question.
std::string finaliseTourText(Game& g, int16_t tour);
// Closes the booking: a tour without gigs is removed; one whose sponsor was
// never chosen has none. Returns false when the tour was removed.
bool finaliseTour(Game& g, int16_t tour);

}  // namespace trovane

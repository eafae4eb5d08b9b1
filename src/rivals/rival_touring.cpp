#include "rivals/rival_touring.h"

#include <algorithm>

#include <fmt/format.h>

#include "floor/formats.h"
#include "floor/grammar.h"
#include "floor/news_post.h"
#include "live/tour_planner.h"
#include "live/tours.h"
#include "rivals/rival_promotion.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kAlbumTourNotice = 42;
constexpr int kFollowUpNotice = 7;
constexpr int kFollowUpWindow = 61;
// A player's tour starts no sooner than a week after the act's last gig.
constexpr int kDaysAfterLastGig = 7;

std::string areaWord(const std::string& areaCode) {
    if (areaCode == "E") return "european";
    if (areaCode == "A") return "asian";
    if (areaCode == "O") return "oceanic";
    if (areaCode == "N") return "north american";
    if (areaCode == "S") return "south american";
    if (areaCode == "F") return "african";
    return "global";
}

// The date of each act's last gig, as headliner or on any bill, 0 for none.
std::vector<double> lastGigOfEachAct(Game& g) {
    std::vector<double> last(static_cast<std::size_t>(std::max(g.band.recordCount(), 1)));
    auto mark = [&](int16_t act, double date) {
        if (act > 0 && act < static_cast<int32_t>(last.size()))
            last[static_cast<std::size_t>(act)] = std::max(last[static_cast<std::size_t>(act)], date);
    };
    const TourRecord heldTour = g.tour.rec;
    const GigRecord heldGig = g.gig.rec;
    for (int32_t n = 1; n < g.tour.recordCount(); ++n) {
        g.tour.read(n);
        const TourRecord t = g.tour.rec;
        const int count = std::min<int>(t.gigCount, static_cast<int>(t.gigs.size()));
        if (count == 0) continue;
        // A band's tour carries the same acts on every gig; a festival's bills differ by day.
        const int from = t.festival > 0 ? 0 : count - 1;
        for (int i = from; i < count; ++i) {
            if (!g.gig.readIfPresent(t.gigs[static_cast<std::size_t>(i)])) continue;
            for (int16_t act : g.gig->bill) mark(act, g.gig->gigDate);
        }
    }
    g.tour.rec = heldTour;
    g.gig.rec = heldGig;
    return last;
}

std::string nameOf(const Game& g) { return trim(g.band.rec.name.value); }

}  // namespace

void offerSupportSlot(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (!g.gig.readIfPresent(entry.gig) || !g.tour.readIfPresent(g.gig->tour)) return;
    const TourRecord tour = g.tour.rec;
    // A tour called off before the question is asked asks nothing.
    if (tour.gigCount == 0 || !g.band.readIfPresent(entry.band)) return;
    const std::string band = nameOf(g);
    g.gig.read(tour.gigs[0]);
    const double first = g.gig->gigDate;
    g.gig.read(tour.gigs[tour.gigCount - 1u]);
    const double last = g.gig->gigDate;
    g.band.read(tour.band);
    const std::string headliner = nameOf(g);
    const std::string them = grammarWord(g, 4, false);
    const std::string their = grammarWord(g, 5, false);
    postNews(g,
             {.date = g.gameDate,
              .title = band + " invited to tour with " + headliner,
              .text = headliner + " invited " + band + " to support " + them + " on " + their + " forthcoming " +
                      areaWord(trim(tour.areaCode.value)) + " tour. The tour takes place from " +
                      formatDate(first, "d/m/yyyy") + " to " + formatDate(last, "d/m/yyyy") + " and will consist of " +
                      std::to_string(tour.gigCount) + " gigs. Allow " + band + " to play the tour?",
              .kind = kNewsYesNo,
              .scheduleLink = entry.id});
    g.schedule.rec = entry;
}

void planTour(Game& g, int mode) {
    const int16_t band = g.band->id;
    const TourFlags flags = chooseTourRegions(g);
    std::vector<TourVenue> venues = listTourVenues(g, mode, flags, "", 0);
    g.band.read(band);
    if (venues.size() <= 5) return;
    sortVenuesBySize(venues);
    const double first = g.gameDate + (mode == 3 ? kFollowUpNotice : kAlbumTourNotice);
    const std::vector<PlannedGig> plan = planTourGigs(g, venues, first, 0);
    const double retirement = actRetirementDate(g);
    g.band.read(band);
    if (plan.empty() || (retirement > 0 && plan.back().date >= retirement)) return;
    const int16_t tour = createRivalTour(g, flags);
    bookTourGigs(g, venues, plan);
    if (mode == 1) {
        const int placed = chooseSupportBands(g, tour);
        g.tour.read(tour);
        g.tour->supportCount = narrow<uint8_t>(placed);
        g.tour.write();
    }
    g.band.read(band);
}

void planFollowUpTours(Game& g) {
    const int16_t player = g.player.playerLabel;
    std::vector<int16_t> acts;
    for (int32_t n = 1; n < g.disc.recordCount(); ++n) {
        g.disc.read(n);
        const DiscRecord& d = g.disc.rec;
        if (d.isSingle != 0 || d.label < 1 || d.label == player) continue;
        const bool recent = std::any_of(d.releaseDate.begin(), d.releaseDate.end(), [&](double r) {
            return r > 0 && r <= g.gameDate && g.gameDate - r <= kFollowUpWindow;
        });
        if (recent && std::find(acts.begin(), acts.end(), d.band) == acts.end()) acts.push_back(d.band);
    }
    if (acts.empty()) return;
    const std::vector<double> lastGig = lastGigOfEachAct(g);
    for (int16_t act : acts) {
        if (!g.band.readIfPresent(act)) continue;
        if (g.band->retired != kFalse || g.band->label < 1 || g.band->label == player) continue;
        if (lastGig[static_cast<std::size_t>(act)] >= g.gameDate) continue;
        planTour(g, 3);
    }
}

AssistantTour planAssistantTour(Game& g, int16_t band, const std::string& areaCode, uint8_t nation) {
    AssistantTour out;
    g.band.read(band);
    const std::string name = nameOf(g);
    std::vector<TourVenue> venues = listTourVenues(g, 2, {}, areaCode, nation);
    g.band.read(band);
    // The game keeps no assistant of its own, so the assistant is a he.
    if (venues.size() <= 5) {
        out.refusal = "Your assistant has informed you he feels there are not enough suitable venues for " + name +
                      " to tour there.";
        return out;
    }
    sortVenuesBySize(venues);
    double first = g.gameDate + kAlbumTourNotice;
    const std::vector<double> lastGig = lastGigOfEachAct(g);
    const double previous = lastGig[static_cast<std::size_t>(band)];
    if (previous > first - kDaysAfterLastGig) first = previous + kDaysAfterLastGig;
    g.band.read(band);
    const std::vector<PlannedGig> plan = planTourGigs(g, venues, first, nation);
    const double retirement = actRetirementDate(g);
    g.band.read(band);
    if (plan.empty() || (retirement > 0 && plan.back().date >= retirement)) {
        out.refusal = "Your assistant has informed you he feels there is insufficient time before " + name +
                      "'s retirement to book a tour.";
        return out;
    }
    out.tour = createTour(g, areaCode, nation);
    bookTourGigs(g, venues, plan);
    out.question = "Your assistant has presented his plan for " + name + "'s tour, which consists of " +
                   std::to_string(plan.size()) + " gigs :-";
    for (const PlannedGig& p : plan) {
        g.venue.read(venues[p.venue].venue);
        g.city.read(g.venue->city);
        g.country.read(g.city->country);
        out.question += "\n" + formatDate(p.date, "dd mmm yyyy") + " - " + trim(g.venue->name.value) + " (" +
                        trim(g.city->name.value) + ", " + trim(g.country->name.value) + ")";
    }
    g.band.read(band);
    g.tour.read(out.tour);
    return out;
}

void bookAllPromotion(Game& g, int flags) { bookAllPromotionNow(g, flags); }

}  // namespace trovane

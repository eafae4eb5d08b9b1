#include "rivals/rival_touring.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <string_view>
#include <tuple>

#include <fmt/format.h>

#include "floor/formats.h"
#include "floor/grammar.h"
#include "floor/news_post.h"
#include "live/tour_planner.h"
#include "live/tours.h"
#include "rivals/rival_promotion.h"
#include "world/fatal_error.h"
#include "world/game.h"
#include "world/record_bytes.h"
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
const std::size_t kTourGigCount = offsetIn<TourRecord>("gigCount");
const std::size_t kTourGigs = offsetIn<TourRecord>("gigs");
const std::size_t kTourFestival = offsetIn<TourRecord>("festival");
const std::size_t kGigBill = offsetIn<GigRecord>("bill");
const std::size_t kGigDate = offsetIn<GigRecord>("gigDate");
const std::size_t kDiscReleaseDate = offsetIn<DiscRecord>("releaseDate");
const std::size_t kDiscIsSingle = offsetIn<DiscRecord>("isSingle");
const std::size_t kDiscBand = offsetIn<DiscRecord>("band");
const std::size_t kDiscLabel = offsetIn<DiscRecord>("label");
constexpr std::size_t kGigsOnATour = std::tuple_size_v<decltype(TourRecord::gigs)>;
constexpr std::size_t kBillSlots = std::tuple_size_v<decltype(GigRecord::bill)>;

// Read from the records' bytes, so the tour and gig buffers are untouched.
std::vector<double> lastGigOfEachAct(Game& g) {
    std::vector<double> last(static_cast<std::size_t>(std::max(g.band.recordCount(), 1)));
    auto mark = [&](int16_t act, double date) {
        if (act > 0 && act < static_cast<int32_t>(last.size()))
            last[static_cast<std::size_t>(act)] = std::max(last[static_cast<std::size_t>(act)], date);
    };
    for (int32_t n = 1; n < g.tour.recordCount(); ++n) {
        const auto t = g.tour.bytesOf(n);
        const int count = std::min<int>(fieldAt<uint8_t>(t, kTourGigCount), static_cast<int>(kGigsOnATour));
        if (count == 0) continue;
        // A band's tour carries the same acts on every gig; a festival's bills differ by day.
        const int from = fieldAt<int16_t>(t, kTourFestival) > 0 ? 0 : count - 1;
        for (int i = from; i < count; ++i) {
            const auto gig = fieldAt<int32_t>(t, kTourGigs + 4 * static_cast<std::size_t>(i));
            if (gig < 1 || gig >= g.gig.recordCount()) continue;
            const auto bytes = g.gig.bytesOf(gig);
            const auto date = fieldAt<double>(bytes, kGigDate);
            for (std::size_t slot = 0; slot < kBillSlots; ++slot)
                mark(fieldAt<int16_t>(bytes, kGigBill + 2 * slot), date);
        }
    }
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
    // The discs are tested on their bytes; the buffer is left at the last, as a walk reading each leaves it.
    const int32_t discs = g.disc.recordCount() - 1;
    for (int32_t n = 1; n <= discs; ++n) {
        const auto d = g.disc.bytesOf(n);
        const auto label = fieldAt<int16_t>(d, kDiscLabel);
        if (fieldAt<uint8_t>(d, kDiscIsSingle) != 0 || label < 1 || label == player) continue;
        bool recent = false;
        for (std::size_t t = 0; t < 5; ++t) {
            const auto r = fieldAt<double>(d, kDiscReleaseDate + 8 * t);
            if (r > 0 && r <= g.gameDate && g.gameDate - r <= kFollowUpWindow) recent = true;
        }
        const auto band = fieldAt<int16_t>(d, kDiscBand);
        if (recent && std::find(acts.begin(), acts.end(), band) == acts.end()) acts.push_back(band);
    }
    if (discs >= 1) g.disc.read(discs);
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

// A festival's bill: drawn up by rule from the acts of the right standing,
// offered to the player's acts, accepted, and thinned when acts drop out.
#include <algorithm>
#include <set>
#include <unordered_map>

#include "floor/formats.h"
#include "floor/grammar.h"
#include "floor/news_post.h"
#include "label/scouting.h"
#include "live/festivals.h"
#include "schedule/band_calendar.h"
#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/numbers.h"
#include "world/record_bytes.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kBillRoom = 40;

bool playersAct(const Game& g, const BandRecord& b) {
    return g.player.playerLabel > 0 && b.label == g.player.playerLabel;
}

std::string bandName(const BandRecord& b) { return trim(b.name.value); }
std::string festivalName(const FestivalRecord& f) { return trim(f.festivalName.value); }

// The gigs of the tour, in the order they stand on it.
std::vector<GigRecord> gigsOfTour(Game& g, const TourRecord& tour) {
    std::vector<GigRecord> gigs;
    for (int i = 0; i < std::min<int>(tour.gigCount, kBillRoom); ++i) {
        int32_t n = tour.gigs[static_cast<std::size_t>(i)];
        if (n < 1 || !g.gig.readIfPresent(n)) continue;
        gigs.push_back(g.gig.rec);
    }
    return gigs;
}

// The acts engaged on any of the dates, found once from the day index by the
// same rules as bandEngagement: an entry of their own that occupies them, or
// a place on another entry's bill (support places of a tour, any place of a
// festival).
std::set<int16_t> busyActs(Game& g, const std::vector<double>& dates) {
    std::set<int16_t> busy;
    for (double date : dates) {
        for (int32_t id : entriesOfDay(g, date)) {
            g.schedule.read(id);
            const ScheduleRecord e = g.schedule.rec;
            const ScheduleTypeInfo& info = scheduleTypeInfo(e.type);
            if (e.band > 0 && info.occupiesBand) busy.insert(e.band);
            if (!info.occupiesTheBill || e.gig < 1 || !g.gig.readIfPresent(e.gig)) continue;
            int first = 1;
            int last = 0;
            if (g.gig->tour > 0 && g.tour.readIfPresent(g.gig->tour)) {
                last = g.tour->supportCount;
                if (g.tour->festival != 0 && g.festival.readIfPresent(g.tour->festival)) {
                    first = 0;
                    last = g.festival->billSize - 1;
                }
            }
            last = std::min(last, kBillRoom - 1);
            for (int slot = first; slot <= last; ++slot) {
                int16_t act = g.gig->bill[static_cast<std::size_t>(slot)];
                // An entry's own act is engaged by its own entry or not at all.
                if (act > 0 && act != e.band) busy.insert(act);
            }
        }
    }
    return busy;
}

struct Candidate {
    int16_t band;
    int value;
    bool players;
};

void inviteToFestival(Game& g, const BandRecord& band, const FestivalRecord& festival,
                      const std::vector<GigRecord>& gigs, int slot) {
    const std::string name = bandName(band);
    const std::string fest = festivalName(festival);
    const int place = slot + 1;
    const int days = static_cast<int>(gigs.size());
    const std::string venue = g.venue.readIfPresent(gigs[0].venue) ? trim(g.venue->name.value) : "";
    ScheduleRecord link{};
    link.type = static_cast<uint8_t>(ScheduleType::festivalInvitation);
    link.date = g.gameDate + 1;
    link.band = band.id;
    link.gig = gigs[0].gigNumber;
    link.value = slot;
    int32_t id = addSchedule(g, link);
    postNews(
        g,
        {.date = g.gameDate,
         .title = name + " invited to play at " + fest,
         .text = name + " have been invited to play at the next " + fest + ". If you choose to accept this offer " +
                 name + " will appear " + std::to_string(place) + std::string(daySuffix(static_cast<unsigned>(place))) +
                 " on the bill and will play " + std::to_string(days) + " gig" + (days > 1 ? "s" : "") + " from " +
                 formatDate(gigs[0].gigDate, "d/m/yyyy") + " on " + venue + ". Do you want to accept the offer?",
         .kind = kNewsYesNo,
         .scheduleLink = id});
}

void tellNoLongerRequired(Game& g, const BandRecord& band, const FestivalRecord& festival) {
    const std::string fest = festivalName(festival);
    postNews(g, {.date = g.gameDate,
                 .title = bandName(band) + " removed from " + fest,
                 .text = "The organisers of this year's " + fest +
                         " have informed you that as a result of a change in the lineup the services of " +
                         bandName(band) + " are no longer required."});
}

// True when the act can't play: retired, or a member out of action.
bool cannotPlay(Game& g, const BandRecord& b) {
    if (b.retired != kFalse) return true;
    int members = std::min<int>(b.memberCount, static_cast<int>(b.members.size()));
    for (int i = 0; i < members; ++i) {
        int16_t who = b.members[static_cast<std::size_t>(i)];
        if (who > 0 && g.artist.readIfPresent(who) && g.artist->energy < 0) return true;
    }
    return false;
}

}  // namespace

std::vector<int16_t> billOf(Game& g, int32_t gig) {
    std::vector<int16_t> acts;
    if (!g.gig.readIfPresent(gig)) return acts;
    for (int16_t act : g.gig->bill) {
        if (act == 0) break;
        acts.push_back(act);
    }
    return acts;
}

void fillFestivalBill(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (!g.gig.readIfPresent(entry.gig) || !g.tour.readIfPresent(g.gig->tour)) return;
    const TourRecord tour = g.tour.rec;
    if (!g.festival.readIfPresent(tour.festival)) return;
    const FestivalRecord festival = g.festival.rec;
    const std::vector<GigRecord> gigs = gigsOfTour(g, tour);
    if (gigs.empty()) return;
    std::vector<double> dates;
    for (const GigRecord& gig : gigs) dates.push_back(gig.gigDate);
    const std::set<int16_t> busy = busyActs(g, dates);
    const auto territory = static_cast<std::size_t>(std::min<int>(festival.territory, 4));

    // The acts are read from their bytes; the band buffer is left at the last,
    // as a walk reading each whole leaves it.
    static const std::size_t kId = offsetIn<BandRecord>("id");
    static const std::size_t kRetired = offsetIn<BandRecord>("retired");
    static const std::size_t kStyle = offsetIn<BandRecord>("style");
    static const std::size_t kLabel = offsetIn<BandRecord>("label");
    static const std::size_t kReputation = offsetIn<BandRecord>("reputation");
    const int16_t player = g.player.playerLabel;
    std::unordered_map<int, bool> styleFits;
    std::vector<Candidate> candidates;
    const int32_t bands = g.band.recordCount() - 1;
    for (int32_t n = 1; n <= bands; ++n) {
        const auto b = g.band.bytesOf(n);
        const auto id = fieldAt<int16_t>(b, kId);
        if (fieldAt<int16_t>(b, kRetired) != kFalse || busy.contains(id)) continue;
        if (festival.festivalStyle != 0) {
            const auto style = fieldAt<uint8_t>(b, kStyle);
            auto known = styleFits.find(style);
            if (known == styleFits.end())
                known = styleFits.emplace(style, stylesAssociated(g, festival.festivalStyle, style)).first;
            if (!known->second) continue;
        }
        const auto label = fieldAt<int16_t>(b, kLabel);
        candidates.push_back({id, fieldAt<uint8_t>(b, kReputation + territory), player > 0 && label == player});
    }
    if (bands >= 1) g.band.read(bands);

    // No minimum standing is asked for: the bills are sized to fill from the top.
    const int size = std::min<int>(festival.billSize, kBillRoom);
    std::vector<bool> taken(candidates.size(), false);
    std::vector<int16_t> bill;
    int ceiling = 100;
    for (int slot = 0; slot < size; ++slot) {
        int chosen = -1;
        for (;;) {
            int best = 0;
            chosen = -1;
            for (std::size_t i = 0; i < candidates.size(); ++i) {
                const Candidate& c = candidates[i];
                if (taken[i] || c.value > ceiling || c.value <= best) continue;
                best = c.value;
                chosen = static_cast<int>(i);
            }
            if (chosen < 0 || !candidates[static_cast<std::size_t>(chosen)].players) break;
            // The player's act is asked; the next act holds the place meanwhile.
            taken[static_cast<std::size_t>(chosen)] = true;
            g.band.read(candidates[static_cast<std::size_t>(chosen)].band);
            inviteToFestival(g, g.band.rec, festival, gigs, slot);
        }
        if (chosen < 0) break;
        const Candidate& c = candidates[static_cast<std::size_t>(chosen)];
        taken[static_cast<std::size_t>(chosen)] = true;
        bill.push_back(c.band);
        ceiling = c.value;
    }

    for (const GigRecord& gig : gigs) {
        g.gig.rec = gig;
        g.gig->bill.fill(0);
        std::copy(bill.begin(), bill.end(), g.gig->bill.begin());
        g.gig.write();
    }
    g.gig.read(entry.gig);
    g.tour.rec = tour;
    g.festival.rec = festival;
}

void acceptFestivalSlot(Game& g, int32_t slot) {
    const BandRecord band = g.band.rec;
    const TourRecord tour = g.tour.rec;
    const FestivalRecord festival = g.festival.rec;
    if (slot < 0 || slot >= kBillRoom) return;
    const std::vector<GigRecord> gigs = gigsOfTour(g, tour);
    bool free = true;
    for (const GigRecord& gig : gigs) {
        g.band.rec = band;
        if (bandEngagement(g, 1, gig.gigDate) != 0) free = false;
    }
    g.band.rec = band;
    if (!free) {
        const std::string fest = festivalName(festival);
        const std::string who = grammarWord(g, 1, false) + " " + grammarWord(g, 0, false);
        g.band.rec = band;
        postNews(g, {.date = g.gameDate,
                     .title = bandName(band) + " cannot appear at " + fest,
                     .text = bandName(band) + " informed you that " + who +
                             " no longer free to appear at this year's " + fest + "."});
    } else {
        std::vector<int16_t> displaced;
        for (const GigRecord& gig : gigs) {
            g.gig.rec = gig;
            auto at = static_cast<std::size_t>(slot);
            int16_t old = g.gig->bill[at];
            if (old > 0 && old != band.id && std::find(displaced.begin(), displaced.end(), old) == displaced.end())
                displaced.push_back(old);
            g.gig->bill[at] = band.id;
            g.gig.write();
        }
        for (int16_t act : displaced) {
            if (!g.band.readIfPresent(act) || !playersAct(g, g.band.rec)) continue;
            tellNoLongerRequired(g, g.band.rec, festival);
        }
    }
    g.band.rec = band;
    g.tour.rec = tour;
    g.festival.rec = festival;
}

void dropUnfitFestivalActs(Game& g) {
    const GigRecord today = g.gig.rec;
    const TourRecord tour = g.tour.rec;
    const FestivalRecord festival = g.festival.rec;
    std::vector<int16_t> leaving;
    for (int16_t act : billOf(g, today.gigNumber)) {
        if (!g.band.readIfPresent(act)) continue;
        if (cannotPlay(g, g.band.rec)) leaving.push_back(act);
    }
    if (leaving.empty()) {
        g.gig.rec = today;
        return;
    }
    auto gone = [&](int16_t act) { return std::find(leaving.begin(), leaving.end(), act) != leaving.end(); };
    for (const GigRecord& gig : gigsOfTour(g, tour)) {
        if (gig.gigDate < today.gigDate) continue;
        g.gig.rec = gig;
        auto end = std::remove_if(g.gig->bill.begin(), g.gig->bill.end(), gone);
        std::fill(end, g.gig->bill.end(), int16_t{0});
        g.gig.write();
    }
    for (int16_t act : leaving) {
        g.band.read(act);
        if (playersAct(g, g.band.rec)) tellNoLongerRequired(g, g.band.rec, festival);
    }
    g.gig.read(today.gigNumber);
    g.tour.rec = tour;
    g.festival.rec = festival;
}

}  // namespace trovane

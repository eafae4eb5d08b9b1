#include "talent/band_details.h"

#include <algorithm>

#include "browse/achievement_browse.h"
#include "floor/formats.h"
#include "label/scouting.h"
#include "schedule/band_calendar.h"
#include "schedule/schedule_types.h"
#include "talent/band_condition.h"
#include "talent/band_offers.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

std::string discTitle(Game& g, int32_t disc) {
    if (disc < 1 || disc >= g.disc.recordCount()) return "None";
    g.disc.read(disc);
    return trim(g.disc->title.value);
}

std::string copiesOf(Game& g, int32_t disc, int32_t copies) {
    if (disc < 1 || disc >= g.disc.recordCount()) return "None";
    return formatNumber(copies, "###,###,##0") + " (" + discTitle(g, disc) + ")";
}

std::string biggestGigText(Game& g, int32_t gig) {
    if (gig < 1 || gig >= g.gig.recordCount()) return "None";
    g.gig.read(gig);
    const GigRecord r = g.gig.rec;
    std::string where;
    if (r.venue > 0 && r.venue < g.venue.recordCount()) {
        g.venue.read(r.venue);
        where = " at " + trim(g.venue->name.value);
    }
    return formatNumber(r.attendance, "###,###,##0") + where + ", " + formatDate(r.gigDate, "d/m/yyyy");
}

// The date of a pending end of the act (type 28), 0 when none is filed.
double announcedEndOf(Game& g, int16_t band) {
    const ScheduleRecord held = g.schedule.rec;
    double end = 0;
    for (int32_t n = 1; n < g.schedule.recordCount(); ++n) {
        g.schedule.read(n);
        if (g.schedule->type == static_cast<uint8_t>(ScheduleType::bandRetires) && g.schedule->band == band &&
            g.schedule->date >= g.gameDate && (end == 0 || g.schedule->date < end))
            end = g.schedule->date;
    }
    g.schedule.rec = held;
    return end;
}

}  // namespace

std::string areaName(const std::string& code) {
    if (code == "E") return "Europe";
    if (code == "N") return "North America";
    if (code == "O") return "Oceania";
    if (code == "A") return "Asia";
    if (code == "S") return "South America";
    if (code == "F") return "Africa";
    if (code == "X") return "World";
    return "";
}

std::string bestShareText(float share, int year) {
    if (share <= 0) return "";
    return formatNumber(share, "##0.00") + "% (" + std::to_string(year) + ")";
}

std::vector<TourLine> toursOf(Game& g, int16_t band) {
    std::vector<TourLine> lines;
    for (int32_t t = 1; t < g.tour.recordCount(); ++t) {
        g.tour.read(t);
        const TourRecord tour = g.tour.rec;
        bool support = false;
        if (tour.band != band) {
            for (std::size_t i = 0; i < std::min<std::size_t>(tour.gigCount, tour.gigs.size()) && !support; ++i) {
                if (tour.gigs[i] < 1 || tour.gigs[i] >= g.gig.recordCount()) continue;
                g.gig.read(tour.gigs[i]);
                for (std::size_t slot = 1; slot < g.gig->bill.size() && !support; ++slot)
                    support = g.gig->bill[slot] == band;
            }
            if (!support) continue;
        }
        const std::string area = areaName(trim(tour.areaCode.value));
        std::string name = trim(area + " Tour");
        if (tour.festival > 0 && tour.festival < g.festival.recordCount()) {
            g.festival.read(tour.festival);
            name = trim(g.festival->festivalName.value);
        }
        lines.push_back({static_cast<int16_t>(t), name, support ? "Support" : "Headliner", area});
    }
    return lines;
}

BandDetails bandDetails(Game& g, int16_t band) {
    g.band.read(band);
    const BandRecord b = g.band.rec;
    BandDetails d{};
    d.id = band;
    d.name = trim(b.name.value);
    if (b.style > 0 && b.style < g.style.recordCount()) {
        g.style.read(b.style);
        d.style = trim(g.style->name.value);
    }
    d.label = "Unsigned";
    if (b.label > 0) {
        g.label.read(b.label);
        d.label = trim(g.label->name.value);
    }
    // formedIn is a city when formedInCity is set, else a country.
    int country = b.formedInCity != 0 ? 0 : b.formedIn;
    if (b.formedInCity != 0 && b.formedIn > 0 && b.formedIn < g.city.recordCount()) {
        g.city.read(b.formedIn);
        d.formed = trim(g.city->name.value);
        country = g.city->country;
    }
    if (country > 0 && country < g.country.recordCount()) {
        g.country.read(country);
        d.formed += (d.formed.empty() ? "" : ", ") + trim(g.country->name.value);
    }
    d.age = b.age;
    d.retired = b.retired != kFalse;
    for (std::size_t m = 0; m < 5; ++m) d.reputation[m] = b.reputation[m];
    int energy = 0;
    int count = 0;
    for (int i = 0; i < std::min<int>(b.memberCount, 10); ++i) {
        const int16_t who = b.members[static_cast<std::size_t>(i)];
        if (who < 1) continue;
        g.artist.read(who);
        const ArtistRecord a = g.artist.rec;
        std::string job;
        if (a.job > 0 && a.job < g.job.recordCount()) {
            g.job.read(a.job);
            job = trim(a.male != 0 || trim(g.job->titleFemale.value).empty() ? g.job->title.value
                                                                             : g.job->titleFemale.value);
        }
        d.members.push_back({trim(a.forename.value) + " " + trim(a.surname.value), job, a.age, who});
        energy += a.energy;
        ++count;
    }
    if (b.label == 0 && !d.retired) {
        const std::string demands = demandsText(g, band);
        d.asked = AskedTerms{b.initialAdvance, b.additionalAdvance, b.additionalAdvanceCount,
                             b.optionLength,   b.royaltyRate,       demands};
    }
    g.band.read(band);
    d.interested = fillInterestedList(g);
    d.players = g.player.playerLabel > 0 && b.label == g.player.playerLabel;
    if (d.players) {
        d.ability = b.ability;
        d.energy = count == 0 ? 0 : roundTo<int>(static_cast<double>(energy) / count);
        if (count > 0) {
            g.artist.read(b.members[0]);
            for (const std::string& c : artistFeelings(g)) d.complaints.push_back(c);
        }
    }
    if (d.players) {
        d.attributes = {{"Charisma", std::to_string(b.charisma)}, {"Controversy", std::to_string(b.controversy)},
                        {"Flair", std::to_string(b.flair)},       {"Dancing", std::to_string(b.dancing)},
                        {"Live", std::to_string(b.live)},         {"Visual", std::to_string(b.visual)},
                        {"Stamina", std::to_string(b.stamina)}};
    }
    d.bestShare = bestShareText(b.bestShare, b.bestShareYear);
    d.record = {
        {"Gigs played", std::to_string(b.gigCount)},
        {"Average gig", b.gigCount > 0 ? std::to_string(roundTo<int>(b.averageGigQuality)) + "%" : "None"},
        {"Biggest gig", biggestGigText(g, b.biggestGig)},
        {"Best week (single)", copiesOf(g, b.bestWeekSingle, b.bestWeekSingleCopies)},
        {"Best week (album)", copiesOf(g, b.bestWeekAlbum, b.bestWeekAlbumCopies)},
        {"Biggest single", discTitle(g, b.biggestSingle)},
        {"Biggest album", discTitle(g, b.biggestAlbum)},
        {"Best share", d.bestShare.empty() ? "None" : d.bestShare},
    };
    d.announcedEnd = d.retired ? 0 : announcedEndOf(g, band);
    d.tours = toursOf(g, band);
    for (const AchievementRow& r : achievementsOf(g, 0, band)) d.achievements.push_back({r.date, r.text});
    g.band.read(band);
    d.activity = d.retired ? "Retired" : scheduleActivityText(g, bandEngagement(g, 1, g.gameDate));
    g.band.read(band);
    return d;
}

}  // namespace trovane

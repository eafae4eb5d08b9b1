// The festivals as the lists, the details screens and the verbs show them.
#include <algorithm>

#include "live/festivals.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

const char* territoryName(int t) {
    static const char* kNames[] = {"UK", "US", "Europe", "Oceania", "Other"};
    return t >= 0 && t < 5 ? kNames[t] : "";
}

// The review's title: the item posted on the last day that names the
// festival and is not one of its bill's changes.
std::string reviewTitleOf(Game& g, const std::string& name, double lastDay) {
    for (int32_t n = 1; n < g.news.recordCount(); ++n) {
        g.news.read(n);
        if (g.news->date != lastDay) continue;
        std::string title = trim(g.news->title.value);
        if (title.find(name) == std::string::npos) continue;
        if (title.find(" removed from ") != std::string::npos ||
            title.find(" cannot appear at ") != std::string::npos ||
            title.find(" invited to play at ") != std::string::npos)
            continue;
        return title;
    }
    return "";
}

}  // namespace

FestivalYear festivalYear(Game& g, int16_t festival, int year) {
    FestivalYear out;
    out.festival = festival;
    out.year = year;
    if (!g.festival.readIfPresent(festival)) return out;
    const FestivalRecord f = g.festival.rec;
    out.name = trim(f.festivalName.value);
    out.style = f.festivalStyle == 0 ? "Any" : g.style.readIfPresent(f.festivalStyle) ? trim(g.style->name.value) : "";
    out.territory = territoryName(f.territory);
    out.prestige = f.prestige;
    out.days = f.days;
    const auto territory = static_cast<std::size_t>(std::min<int>(f.territory, 4));
    for (int32_t n = 1; n < g.tour.recordCount(); ++n) {
        g.tour.read(n);
        if (g.tour->festival != festival || g.tour->gigCount == 0) continue;
        const TourRecord t = g.tour.rec;
        if (!g.gig.readIfPresent(t.gigs[0]) || yearOf(g.gig->gigDate) != year) continue;
        out.tour = static_cast<int16_t>(n);
        out.dayList.clear();
        for (int i = 0; i < std::min<int>(t.gigCount, 40); ++i) {
            if (!g.gig.readIfPresent(t.gigs[static_cast<std::size_t>(i)])) continue;
            const GigRecord gig = g.gig.rec;
            FestivalDay day;
            day.gig = gig.gigNumber;
            day.date = gig.gigDate;
            day.venue = g.venue.readIfPresent(gig.venue) ? trim(g.venue->name.value) : "";
            day.played = gig.gigDate < g.gameDate;
            day.crowd = day.played ? gig.attendance : 0;
            day.overall = day.played ? gig.overallQuality : 0;
            for (int16_t act : gig.bill) {
                if (act == 0) break;
                if (!g.band.readIfPresent(act)) continue;
                const BandRecord b = g.band.rec;
                std::string label = g.label.readIfPresent(b.label) ? trim(g.label->name.value) : "";
                day.bill.push_back({act, trim(b.name.value), label, b.reputation[territory]});
            }
            out.dayList.push_back(day);
        }
    }
    if (!out.dayList.empty() && out.dayList.back().played)
        out.reviewTitle = reviewTitleOf(g, out.name, out.dayList.back().date);
    return out;
}

std::vector<FestivalYear> festivalsOfYear(Game& g, int year) {
    std::vector<FestivalYear> out;
    for (int32_t n = 1; n < g.festival.recordCount(); ++n)
        out.push_back(festivalYear(g, static_cast<int16_t>(n), year));
    return out;
}

}  // namespace trovane

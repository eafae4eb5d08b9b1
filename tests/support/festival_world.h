#pragma once
// The gig world with a festival site and a festival of two days on the weekend
// of week 28 (Saturday 10 and Sunday 11 July 2004), for the festival tests.
#include <string>
#include <vector>

#include "live/festivals.h"
#include "schedule/schedule.h"
#include "support/amend.h"
#include "support/gig_world.h"
#include "world/strings.h"

namespace trovane::test {

class FestivalWorld : public GigWorld {
public:
    int16_t farm = 0, festival = 0;

    FestivalWorld() {
        farm = addVenue("Halcote Farm", 50000, leeds);
        festival = addFestival("Halcote Summer Gathering", {7, 1}, {28, 28}, 3);
        // The player's act stays off the bills unless a test raises it.
        amend(g.band, band, [&] { g.band->reputation = {0, 0, 0, 0, 0}; });
    }

    int16_t addFestival(const char* name, std::vector<uint8_t> weekdays, std::vector<uint8_t> weeks, uint8_t billSize) {
        g.festival.rec = FestivalRecord{.prestige = 50,
                                        .billSize = billSize,
                                        .days = static_cast<uint8_t>(weekdays.size()),
                                        .areaCode = "E",
                                        .festivalName = name};
        for (std::size_t i = 0; i < weekdays.size(); ++i) {
            g.festival->weekday[i] = weekdays[i];
            g.festival->week[i] = weeks[i];
            g.festival->fixedVenue[i] = farm;
        }
        return static_cast<int16_t>(g.festival.append());
    }

    int16_t addAct(const char* name, uint8_t rep, int16_t actLabel = 0) {
        int16_t id = addBand(name, actLabel == 0 ? rival : actLabel);
        setReputation(id, rep);
        return id;
    }
    void setReputation(int16_t act, uint8_t rep) {
        amend(g.band, act, [&] { g.band->reputation[0] = rep; });
    }

    // The festival's tour, made by scheduleFestivals for 2004.
    int16_t scheduled() {
        scheduleFestivals(g, 2004);
        for (int32_t n = g.tour.recordCount() - 1; n > 0; --n) {
            g.tour.read(n);
            if (g.tour->festival == festival) return static_cast<int16_t>(n);
        }
        return 0;
    }
    std::vector<int32_t> gigsOf(int16_t tour) {
        g.tour.read(tour);
        return {g.tour->gigs.begin(), g.tour->gigs.begin() + g.tour->gigCount};
    }
    // Runs the festival's type 22 entry, as the day would.
    void fill(int16_t tour) {
        g.gig.read(gigsOf(tour)[0]);
        for (int32_t id : entriesOfDay(g, festivalFillDate(g.gig->gigDate, g.gameDate))) {
            g.schedule.read(id);
            if (g.schedule->type == 22 && g.schedule->gig == gigsOf(tour)[0]) {
                g.schedule.read(id);
                fillFestivalBill(g);
                return;
            }
        }
    }
    // Loads the festival's day `i` into the gig, tour and festival buffers.
    void loadDay(int16_t tour, std::size_t i) {
        g.gig.read(gigsOf(tour)[i]);
        g.tour.read(tour);
        g.festival.read(g.tour->festival);
    }
    int32_t lastNews() { return g.news.recordCount() - 1; }
    std::string newsTitle(int32_t n) {
        g.news.read(n);
        return trim(g.news->title.value);
    }
    std::string newsText(int32_t n) {
        g.news.read(n);
        return trim(g.news->text.value);
    }
};

}  // namespace trovane::test

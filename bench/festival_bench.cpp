// How fast a year's festivals are scheduled and the largest bill is filled.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "live/festivals.h"
#include "schedule/schedule.h"
#include "session/empty_world.h"
#include "world/dates.h"
#include "world/record_store.h"

using namespace trovane;

namespace {

std::filesystem::path benchFolder(const char* name) {
    auto p = std::filesystem::temp_directory_path() / name;
    std::filesystem::remove_all(p);
    return p;
}

// A world of 40 countries' worth of venues, 2,000 acts and 47 festivals, the
// size of the base world's list, a third of them travelling.
struct FestivalWorld {
    Game g;
    explicit FestivalWorld(const char* folder) : g(benchFolder(folder), 1) {
        createEmptyWorkingSet(g);
        g.gameDate = serialFromCivil(2004, 1, 2);
        g.country.rec = CountryRecord{};
        g.country->region = "E";
        g.country.append();
        g.city.rec = CityRecord{};
        g.city->country = 1;
        g.city.append();
        for (int v = 0; v < 600; ++v) {
            g.venue.rec = VenueRecord{};
            g.venue->capacity = 100 + v * 150;
            g.venue->city = 1;
            g.venue.append();
        }
        for (int b = 0; b < 2000; ++b) {
            g.band.rec = BandRecord{};
            g.band->reputation = {static_cast<uint8_t>(b % 101), 50, 50, 50, 50};
            g.band->label = static_cast<int16_t>(b % 7 == 0 ? 0 : 2);
            g.band.append();
        }
        for (int f = 0; f < 47; ++f) {
            g.festival.rec = FestivalRecord{};
            g.festival->prestige = static_cast<uint8_t>(40 + f);
            g.festival->billSize = static_cast<uint8_t>(f == 0 ? 40 : 20);
            g.festival->days = 3;
            g.festival->travelling = f % 3 == 0 ? -1 : 0;
            g.festival->areaCode = "E";
            for (std::size_t i = 0; i < 3; ++i) {
                g.festival->weekday[i] = static_cast<uint8_t>(5 + i);
                g.festival->week[i] = static_cast<uint8_t>(20 + f % 30);
                g.festival->fixedVenue[i] = static_cast<int16_t>(1 + f);
            }
            g.festival.append();
        }
    }
};

void BM_ScheduleFestivalsOfAYear(benchmark::State& state) {
    FestivalWorld w("trovane-bench-festival-year");
    int year = 2004;
    for (auto _ : state) scheduleFestivals(w.g, year++ % 2 == 0 ? 2004 : 2005);
    closeAllTables(w.g);
}
BENCHMARK(BM_ScheduleFestivalsOfAYear)->Unit(benchmark::kMillisecond);

// The forty-place bill, with 600 other entries on its three days.
void BM_FillTheLargestBill(benchmark::State& state) {
    FestivalWorld w("trovane-bench-festival-bill");
    Game& g = w.g;
    scheduleFestivals(g, 2004);
    for (int i = 0; i < 600; ++i) {
        ScheduleRecord r{};
        r.type = 7;
        r.band = static_cast<int16_t>(1 + i * 3);
        r.date = serialFromCivil(2004, 5, 13) + i % 3;
        addSchedule(g, r);
    }
    g.tour.read(1);
    const TourRecord tour = g.tour.rec;
    ScheduleRecord fill{};
    fill.type = 22;
    fill.gig = tour.gigs[0];
    for (auto _ : state) {
        for (int i = 0; i < tour.gigCount; ++i) {
            g.gig.read(tour.gigs[static_cast<std::size_t>(i)]);
            g.gig->bill.fill(0);
            g.gig.write();
        }
        g.schedule.rec = fill;
        fillFestivalBill(g);
    }
    closeAllTables(g);
}
BENCHMARK(BM_FillTheLargestBill)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime();

}  // namespace

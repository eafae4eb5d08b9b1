// How fast a day's schedule runs, a band's calendar is read and the news list fills.
#include <benchmark/benchmark.h>

#include <array>
#include <filesystem>
#include <string>

#include "day/dispatch.h"
#include "day/news_inbox.h"
#include "floor/news_post.h"
#include "schedule/band_calendar.h"
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

int32_t fileEntry(Game& g, uint8_t type, double date, int16_t band = 0, int32_t gig = 0) {
    ScheduleRecord r{};
    r.type = type;
    r.date = date;
    r.band = band;
    r.gig = gig;
    return addSchedule(g, r);
}

// 200 entries of the types that need no band or gig, their handlers empty for now.
void BM_DispatchADayOf200Entries(benchmark::State& state) {
    Game g(benchFolder("trovane-bench-day"), 1);
    createEmptyWorkingSet(g);
    constexpr std::array<uint8_t, 23> types = {1,  2,  3,  6,  9,  12, 13, 14, 15, 16, 18, 19,
                                               20, 21, 22, 24, 25, 26, 27, 28, 29, 30, 31};
    g.gameDate = serialFromCivil(2004, 10, 1);
    for (int i = 0; i < 200; ++i) fileEntry(g, types[static_cast<std::size_t>(i) % types.size()], g.gameDate);
    for (auto _ : state) performDaysEvents(g);
    closeAllTables(g);
}
BENCHMARK(BM_DispatchADayOf200Entries)->Unit(benchmark::kMicrosecond);

// A band touring as a support act, among other bands' gigs, travel and rest days.
struct TouringWorld {
    Game g{benchFolder("trovane-bench-busy"), 1};
    double from = serialFromCivil(2004, 9, 1);
    int16_t band = 0;

    TouringWorld() {
        createEmptyWorkingSet(g);
        for (int b = 0; b < 6; ++b) {
            g.band.rec = BandRecord{};
            g.band.append();
        }
        band = 6;
        g.tour.rec = TourRecord{};
        g.tour->band = 1;
        g.tour->supportCount = 2;
        int16_t tour = static_cast<int16_t>(g.tour.append());
        for (int d = 0; d < 60; ++d) {
            g.gig.rec = GigRecord{};
            g.gig->bill = {1, 2, static_cast<int16_t>(d % 3 == 0 ? band : 3)};
            g.gig->tour = tour;
            int32_t gig = g.gig.append();
            fileEntry(g, 8, from + d, 1, gig);
            fileEntry(g, 10, from + d, 4, gig);
            fileEntry(g, 6, from + d, band);
            fileEntry(g, 17, from + d, 5);
            if (d % 7 == 6) fileEntry(g, 11, from + d, band);
        }
        g.band.read(band);
    }
    ~TouringWorld() { closeAllTables(g); }
};

void BM_CountFreeDaysOver60Days(benchmark::State& state) {
    TouringWorld w;
    for (auto _ : state) benchmark::DoNotOptimize(countFreeDays(w.g, w.from, w.from + 60));
}
BENCHMARK(BM_CountFreeDaysOver60Days)->Unit(benchmark::kMicrosecond);

// One date on its own: the day file is opened for it and closed again.
void BM_BandEngagementOneDay(benchmark::State& state) {
    TouringWorld w;
    for (auto _ : state) benchmark::DoNotOptimize(bandEngagement(w.g, 1, w.from + 3));
}
BENCHMARK(BM_BandEngagementOneDay)->Unit(benchmark::kMicrosecond);

void BM_FillTheNewsListOf5000Items(benchmark::State& state) {
    Game g(benchFolder("trovane-bench-news"), 1);
    createEmptyWorkingSet(g);
    std::string body(600, 'n');
    for (int i = 0; i < 5000; ++i)
        postNews(g, {.date = g.gameDate + i / 10, .title = "News item number " + std::to_string(i), .text = body});
    for (auto _ : state) benchmark::DoNotOptimize(newsListRows(g));
    closeAllTables(g);
}
BENCHMARK(BM_FillTheNewsListOf5000Items)->Unit(benchmark::kMillisecond);

}  // namespace

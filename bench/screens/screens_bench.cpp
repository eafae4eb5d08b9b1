// How fast two screens come up on a big world, offscreen: a step of the award
// ceremony, and the band browser over 10,000 bands, each painted once (the
// whole window grabbed). The main program is turn_bench.cpp's.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmap>
#include <cstdlib>
#include <memory>
#include <string>

#include "../support/shipped_game.h"
#include "events/ceremonies.h"
#include "events/ceremony_show.h"
#include "screens/band_browse_screens.h"
#include "screens/ceremony_screens.h"
#include "screens/mdi_parent_form.h"

using namespace trovane;

namespace {

// The shipped world in a window at 1280x800, the player at the helm of label
// 1, on the news; `grow` runs once the label is taken over.
struct ScreensWorld {
    Game g;
    screens::mdiParentForm window;
    bool ready = false;

    ScreensWorld(const char* name, const std::function<void(Game&)>& grow)
        : g(bench::shippedWorld(name), 1), window(g) {
        window.endProgram = [](int code) { std::exit(code); };
        window.resize(1280, 800);
        window.show();
        readPrefs(g);
        beginNewGame(g);
        PlayerChoices p;
        p.forename = "Ann";
        p.surname = "Lee";
        p.nationality = "Scottish";
        p.createNewLabel = false;
        NewPlayer player = confirmPlayer(g, p);
        window.startGame([this, player, grow] {
            takeOverLabel(g, player, 1);
            grow(g);
        });
        QElapsedTimer t;
        t.start();
        while (!(window.gameRunning() && g.currentScreen == Screen::frmNews) && t.elapsed() < 60'000)
            QApplication::processEvents(QEventLoop::AllEvents, 5);
        ready = window.gameRunning() && g.currentScreen == Screen::frmNews;
    }
};

// The ceremony with the most awards, judged today, its show in the game.
void judgeAndBuildTheLargestShow(Game& g) {
    int16_t best = 1;
    int most = -1;
    for (int32_t n = 1; n < g.ceremony.recordCount(); ++n) {
        g.ceremony.read(n);
        int count = 0;
        for (int16_t a : g.ceremony->awards) count += a > 0 ? 1 : 0;
        if (count > most) {
            most = count;
            best = static_cast<int16_t>(n);
        }
    }
    g.schedule.rec = ScheduleRecord{};
    g.schedule->ceremony = best;
    judgeCeremony(g);
    g.showSteps = buildCeremonyShow(g, best, g.gameDate);
    g.showCeremony = best;
}

// One press of Next (the rest of a step, or the next step's first line) and
// the window painted. The screen opens afresh, untimed, after its last step.
void BM_PaintACeremonyStep(benchmark::State& state) {
    // Left alive at exit: the window must not outlive the application object.
    static auto& world = *new ScreensWorld("trovane-bench-ceremony-screen", judgeAndBuildTheLargestShow);
    if (!world.ready || world.g.showSteps.empty()) {
        state.SkipWithError("no ceremony show to paint");
        return;
    }
    screens::frmAwardCeremony::revealInterval = 60'000;
    auto& window = world.window;
    const auto& steps = world.g.showSteps;
    screens::frmAwardCeremony* form = nullptr;
    for (auto _ : state) {
        if (form == nullptr ||
            (form->stepShown() + 1 >= steps.size() && form->linesShown() >= steps[form->stepShown()].size())) {
            state.PauseTiming();
            window.openScreen(Screen::frmAwardCeremony);
            form = qobject_cast<screens::frmAwardCeremony*>(window.currentScreenWidget());
            state.ResumeTiming();
            if (form == nullptr) {
                state.SkipWithError("the ceremony screen did not open");
                return;
            }
        }
        form->next();
        QPixmap shot = window.grab();
        benchmark::DoNotOptimize(shot);
    }
    state.counters["steps"] = static_cast<double>(steps.size());
}
BENCHMARK(BM_PaintACeremonyStep)->Unit(benchmark::kMillisecond);

// The shipped world grown to 10,000 bands of varied names and advances.
void growToTenThousandBands(Game& g) {
    g.band.read(1);
    const BandRecord model = g.band.rec;
    while (g.band.recordCount() <= 10'000) {
        g.band.rec = model;
        const int32_t n = g.band.recordCount();
        g.band->id = static_cast<int16_t>(n);
        g.band->name = "Band " + std::to_string(n * 7919 % 10'007);
        g.band->advanceToPay = moneyUnits(n * 37 % 5000);
        g.band->label = static_cast<int16_t>(n % 3 == 0 ? 0 : g.band->label);
        g.band.append();
    }
}

// "Band Search" opened from the news over 10,000 bands: the list filled,
// sorted and shown, and the window painted once.
void BM_OpenBandBrowserOnTenThousandBands(benchmark::State& state) {
    static auto& world = *new ScreensWorld("trovane-bench-band-browse-screen", growToTenThousandBands);
    if (!world.ready) {
        state.SkipWithError("the game did not start");
        return;
    }
    auto& window = world.window;
    double rows = 0;
    for (auto _ : state) {
        state.PauseTiming();
        window.openScreen(Screen::frmNews);
        state.ResumeTiming();
        screens::frmBandBrowse::openSearch(window, false);
        QPixmap shot = window.grab();
        benchmark::DoNotOptimize(shot);
        state.PauseTiming();
        auto* form = qobject_cast<screens::frmBandBrowse*>(window.currentScreenWidget());
        if (form == nullptr) {
            state.SkipWithError("the band browser did not open");
            return;
        }
        rows = form->lastFillMs;
        state.ResumeTiming();
    }
    state.counters["bands"] = world.g.band.recordCount() - 1;
    state.counters["fillMs"] = rows;
}
BENCHMARK(BM_OpenBandBrowserOnTenThousandBands)->Unit(benchmark::kMillisecond);

}  // namespace

// How long a turn takes in the desktop game: from Continue to the news of the
// next day on screen, not counting the moment the loading screen is given to
// paint. Runs without a display, on the compiled base world.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <cstdlib>
#include <filesystem>

#include "day/daily_cycle.h"
#include "floor/preferences.h"
#include "screens/label_details_screen.h"
#include "screens/mdi_parent_form.h"
#include "session/new_game.h"
#include "world/game.h"

namespace fs = std::filesystem;
using namespace trovane;

namespace {

bool waitUntil(const std::function<bool()>& done) {
    QElapsedTimer t;
    t.start();
    while (!done()) {
        if (t.elapsed() > 60'000) return false;
        QApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    return true;
}

// Answers whatever holds the calendar, so that every press of Continue plays a day.
void answerEverything(Game& g) {
    while (!allRepliesGiven(g)) {
        g.news->replied = kTrue;
        g.news.write();
    }
}

void continueToTheNextDay(benchmark::State& state, screens::mdiParentForm& window, Game& g) {
    for (auto _ : state) {
        answerEverything(g);
        double today = g.gameDate;
        window.continueGame();
        if (!waitUntil([&] { return g.gameDate == today + 1 && !window.turnUnderWay(); })) {
            state.SkipWithError("the day did not end");
            return;
        }
        state.SetIterationTime(window.lastTurnMilliseconds() / 1000.0);
    }
}

}  // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    fs::path folder = fs::temp_directory_path() / "trovane-turn-bench";
    fs::remove_all(folder);
    fs::create_directories(folder);
    for (const auto& e : fs::directory_iterator(TROVANE_BASE_WORLD))
        if (e.path().extension() == ".gam") fs::copy_file(e.path(), folder / e.path().filename());

    Game g(folder, 2004);
    screens::mdiParentForm window(g);
    window.endProgram = [](int code) { std::exit(code); };
    window.resize(1280, 800);
    window.show();
    readPrefs(g);
    beginNewGame(g);
    PlayerChoices player;
    player.forename = "Ann";
    player.surname = "Lee";
    NewPlayer p = confirmPlayer(g, player);
    LabelChoices label;
    label.name = "Nightjar Records";
    label.country = "England";
    label.city = "London";
    window.startGame([&] { foundLabel(g, p, label); });
    if (!waitUntil([&] { return window.gameRunning() && g.currentScreen == Screen::frmNews; })) return 1;

    benchmark::RegisterBenchmark("Turn/ContinueToTheNewsOfTheNextDay",
                                 [&](benchmark::State& s) { continueToTheNextDay(s, window, g); })
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(60);
    // frmLabelDetails built and filled for the player's label, its books and history included.
    benchmark::RegisterBenchmark("Screens/frmLabelDetailsFilled", [&](benchmark::State& s) {
        for (auto _ : s) {
            auto* page = new screens::frmLabelDetails(window, g.player.playerLabel);
            benchmark::DoNotOptimize(page);
            delete page;
        }
    })->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    fs::remove_all(folder);
    return 0;
}

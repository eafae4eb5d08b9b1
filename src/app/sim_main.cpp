// trovane-sim: the game with no window, for scripts, tests and benchmarks.
#include <cstdio>
#include <cstdlib>
#include <exception>

#include <CLI/CLI.hpp>

#include "app/sim_context.h"
#include "session/save_load.h"
#include "world/fatal_error.h"
#include "world/journal.h"

namespace {

// For the kill test: TROVANE_SIM_STOP_AT=N ends the program at once at the
// N-th point of its commits (a journal written, a file written, a commit done),
// as a kill there would.
void stopAtCommitPointForTests() {
    const char* at = std::getenv("TROVANE_SIM_STOP_AT");
    if (at == nullptr) return;
    long stop = std::strtol(at, nullptr, 10);
    if (stop < 1) return;
    trovane::setCommitHook([stop, seen = 0L](trovane::CommitPoint) mutable {
        if (++seen == stop) std::_Exit(9);
    });
}

}  // namespace

int main(int argc, char** argv) {
    using namespace trovane::sim;
    CLI::App app{"Trovane 3 without a window: play, inspect and script a game on a data folder"};
    app.require_subcommand(1);
    stopAtCommitPointForTests();
    SimContext ctx;
    app.add_option("--data", ctx.dataDir, "The data folder of the game")->capture_default_str();
    app.add_option("--seed", ctx.seed, "Seed of the random source; a run with the same seed repeats exactly");
    app.add_flag("--json", ctx.json, "Machine-readable output");
    app.fallthrough();
    addWorldVerbs(app, ctx);
    addSessionVerbs(app, ctx);
    addNewsVerbs(app, ctx);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) { return app.exit(e); } catch (const trovane::BrokenSlotError& e) {
        std::fprintf(stderr, "trovane-sim: %s\n", e.what());
        return kExitBroken;
    } catch (const trovane::BrokenDataError& e) {
        std::fprintf(stderr, "trovane-sim: %s\n", e.what());
        return kExitBroken;
    } catch (const trovane::SlotError& e) {
        std::fprintf(stderr, "trovane-sim: %s\n", e.what());
        return 2;
    } catch (const trovane::FatalError& e) {
        std::fprintf(stderr, "trovane-sim: %s\n", e.what());
        return 2;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "trovane-sim: unexpected failure: %s\n", e.what());
        return 2;
    }
    return ctx.exitCode;
}

// trovane-sim: the game with no window, for scripts, tests and benchmarks.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <string>

#include <fmt/format.h>
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

namespace {

// The verbs, for a command line that names none or one that does not exist.
std::string verbList(const CLI::App& app) {
    std::string out;
    for (const CLI::App* sub : app.get_subcommands([](const CLI::App*) { return true; }))
        out += (out.empty() ? "" : ", ") + sub->get_name();
    return out;
}

// The first word of the command line that is not an option or an option's value.
std::string firstWord(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        std::string_view a = argv[i];
        if (a == "--data" || a == "--seed") {
            ++i;
        } else if (!a.starts_with("-")) {
            return std::string(a);
        }
    }
    return {};
}

}  // namespace

int main(int argc, char** argv) {
    using namespace trovane::sim;
    CLI::App app{"Trovane 3 without a window: play, inspect and script a game on a data folder"};
    app.require_subcommand(1);
    app.footer(exitStatusTable());
    stopAtCommitPointForTests();
    SimContext ctx;
    app.add_option("--data", ctx.dataDir, "The data folder of the game")->capture_default_str();
    app.add_option("--seed", ctx.seed, "Seed of the random source; a run with the same seed repeats exactly");
    app.add_flag("--json", ctx.json, "Machine-readable output");
    app.fallthrough();
    addWorldVerbs(app, ctx);
    addSessionVerbs(app, ctx);
    addNewsVerbs(app, ctx);
    addListVerbs(app, ctx);
    addBrowseVerbs(app, ctx);
    addAlbumVerbs(app, ctx);
    addBandVerbs(app, ctx);
    addDiscVerbs(app, ctx);
    addBooksVerbs(app, ctx);
    addLiveVerbs(app, ctx);
    addFestivalVerbs(app, ctx);
    addLivesVerbs(app, ctx);
    addRivalVerbs(app, ctx);
    addTourVerbs(app, ctx);
    addDetailsVerbs(app, ctx);
    addMediaVerbs(app, ctx);
    // --json is seen even when the command line fails before the parser reaches it.
    bool json = false;
    for (int i = 1; i < argc; ++i) json = json || std::strcmp(argv[i], "--json") == 0;
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp& e) {
        return app.exit(e) == 0 ? kExitDone : kExitBadArgs;
    } catch (const CLI::CallForAllHelp& e) {
        return app.exit(e) == 0 ? kExitDone : kExitBadArgs;
    } catch (const CLI::ParseError& e) {
        std::string text = e.what();
        if (app.get_subcommands().empty()) {
            std::string verb = firstWord(argc, argv);
            text = (verb.empty() ? std::string("Give a verb.") : "There is no verb " + verb + ".") +
                   " The verbs are: " + verbList(app) + ".";
        } else {
            text += fmt::format(". See trovane-sim {} --help.", app.get_subcommands().front()->get_name());
        }
        printError(json, text, kExitBadArgs);
        return kExitBadArgs;
    } catch (const SimError& e) {
        printError(json, e.what(), e.status());
        return e.status();
    } catch (const trovane::BrokenSlotError& e) {
        printError(json, e.what(), kExitBroken);
        return kExitBroken;
    } catch (const trovane::BrokenDataError& e) {
        printError(json, e.what(), kExitBroken);
        return kExitBroken;
    } catch (const trovane::SlotError& e) {
        printError(json, e.what(), kExitBroken);
        return kExitBroken;
    } catch (const trovane::FatalError& e) {
        printError(json, e.what(), kExitBroken);
        return kExitBroken;
    } catch (const std::exception& e) {
        printError(json, std::string("unexpected failure: ") + e.what(), kExitBroken);
        return kExitBroken;
    }
    return ctx.exitCode;
}

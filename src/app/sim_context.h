#pragma once
// What every verb of trovane-sim shares: the options and the game.
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include <CLI/CLI.hpp>

#include "world/game.h"

namespace trovane::sim {

// Exit status of a run of days held by a news item that must be answered first.
inline constexpr int kExitHeld = 3;
// Exit status of broken data: a damaged slot, working set or base set.
inline constexpr int kExitBroken = 5;

struct SimContext {
    std::filesystem::path dataDir = "Data";
    std::optional<uint64_t> seed;
    bool json = false;
    int exitCode = 0;

    // The working game, opened from the data folder with its session.
    Game& openGame();
    // A game object on the data folder with nothing opened yet.
    Game& freshGame();
    // Writes back the tables and the session record.
    void closeGame();

private:
    std::unique_ptr<Game> game_;
};

// Each group of verbs adds its subcommands here.
void addWorldVerbs(CLI::App& app, SimContext& ctx);    // init, status, advance, dump
void addSessionVerbs(CLI::App& app, SimContext& ctx);  // new, save, load, slots, quit
void addNewsVerbs(CLI::App& app, SimContext& ctx);     // news, show, reply, delete, schedule

// The body and the replies of an item that holds the calendar, for advance to print.
std::string heldItemDetails(const NewsRecord& n, bool json);

}  // namespace trovane::sim

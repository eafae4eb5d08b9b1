#pragma once
// What every verb of trovane-sim shares: the options and the game.
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include <CLI/CLI.hpp>

#include "world/game.h"

namespace trovane::sim {

// The exit statuses, one table for every verb (the README and --help print it too).
inline constexpr int kExitDone = 0;
inline constexpr int kExitRefused = 1;    // the game refused, in its own words; nothing changed
inline constexpr int kExitBadArgs = 2;    // a bad command line or argument
inline constexpr int kExitHeld = 3;       // a run of days held by a news item that must be answered first
inline constexpr int kExitInvariant = 4;  // an invariant broke
inline constexpr int kExitBroken = 5;     // broken data or a broken slot, file named

// The table as --help shows it.
std::string exitStatusTable();

// A verb that cannot go on: the status to exit with and the sentence to print.
class SimError : public std::runtime_error {
public:
    SimError(int status, const std::string& what) : std::runtime_error(what), status_(status) {}
    int status() const { return status_; }

private:
    int status_;
};

inline constexpr const char* kNoGame = "No game in progress: start one with new, or load a slot.";

struct SimContext {
    std::filesystem::path dataDir = "Data";
    std::optional<uint64_t> seed;
    bool json = false;
    int exitCode = 0;

    // True when the data folder holds a working set (its session record).
    bool gameInProgress() const;
    // The working game, opened from the data folder with its session; refused
    // (status 1) when there is none.
    Game& openGame();
    // A game object on the data folder with nothing opened yet.
    Game& freshGame();
    // A game object on the folder of the base set (the data folder's, else the one
    // beside the program), for reading the base tables with no game in progress.
    Game& baseSetGame();
    // Writes back the tables and the session record.
    void closeGame();
    // Reports a refusal by the game (status 1), as text or as JSON.
    void refuse(const std::string& why);

private:
    std::unique_ptr<Game> game_;
};

// The folder that holds the base set for a data folder: the folder itself when it
// has one, else Data beside the program; a missing one is broken data (status 5).
std::filesystem::path baseSetFolder(const std::filesystem::path& dataDir);

// Prints an error as the run's last words: "trovane-sim: TEXT" on stderr, or with
// --json {"error": TEXT, "status": N} on stdout.
void printError(bool json, const std::string& text, int status);

// A record named on the command line by its number or its exact name (artists
// and staff by forename and surname, songs and discs by title); 0 when there
// is none.
int32_t recordNamed(Game& g, FileNo table, const std::string& what);

// Dates on the command line and in JSON are yyyy-mm-dd.
std::string isoDate(double serial);
// The same, or "" for a date not set.
std::string isoDateIfSet(double serial);
// The day a yyyy-mm-dd text names, or nothing when it names none.
std::optional<double> parseIsoDate(const std::string& text);

// Each group of verbs adds its subcommands here.
void addWorldVerbs(CLI::App& app, SimContext& ctx);    // init, status, advance, dump
void addSessionVerbs(CLI::App& app, SimContext& ctx);  // new, save, load, slots, quit
void addNewsVerbs(CLI::App& app, SimContext& ctx);     // news, show, reply, delete, schedule
void addListVerbs(CLI::App& app, SimContext& ctx);     // list
void addAlbumVerbs(CLI::App& app, SimContext& ctx);    // work, songs, album, progress, firms, build

// The answer to an opened item about an ended option (extend or release; a
// plain ok is refused there). False, doing nothing, for any other item and word.
bool replyToOption(SimContext& ctx, Game& g, const std::string& word);
void addBandVerbs(CLI::App& app, SimContext& ctx);  // band, terms, offer, withdraw, scout, shortlist
void addDiscVerbs(CLI::App& app, SimContext& ctx);  // release, forecast, press, distribute, single, disc, chart, run

// A "Distributor required" item answered with ok: the form is confirmed at once.
void confirmDistributorForm(Game& g);
void addBooksVerbs(CLI::App& app, SimContext& ctx);
void addLiveVerbs(CLI::App& app,
                  SimContext& ctx);  // venues, gig, gigs  // label, books, department, staff, approach, ...
void addBooksVerbs(CLI::App& app, SimContext& ctx);     // label, books, department, staff, approach, ...
void addFestivalVerbs(CLI::App& app, SimContext& ctx);  // festivals, festival
void addLivesVerbs(CLI::App& app, SimContext& ctx);     // stories, story
// The held item in the news buffer gets the first reply it offers, and is
// then answered.
bool answerHeldItem(Game& g);
void addRivalVerbs(CLI::App& app, SimContext& ctx);
void addTourVerbs(CLI::App& app, SimContext& ctx);   // tour, tours, tourinfo, unsupport, sponsors
void addMediaVerbs(CLI::App& app, SimContext& ctx);  // media, promote, appearances
// During a game, what list labels adds to a label's row: bands/maxBands, cash,
// reserve, targets, reputation, and the player's mark. Reads the label table.
std::string labelStandingOf(Game& g, int32_t id, bool json);  // offers, list labels during a game
void addBooksVerbs(CLI::App& app, SimContext& ctx);           // label, books, department, staff, approach, ...

void addDetailsVerbs(CLI::App& app, SimContext& ctx);  // artist, venue
void addBrowseVerbs(CLI::App& app, SimContext& ctx);   // browse, image, birthday, highscores
// The body and the replies of an item that holds the calendar, for advance to print.
std::string heldItemDetails(const NewsRecord& n, bool json);

}  // namespace trovane::sim

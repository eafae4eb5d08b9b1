#pragma once
// The session record (svar): the state of a game that lives outside the tables.
#include <filesystem>
#include <string_view>

#include "world/journal.h"
#include "world/records.h"

namespace trovane {

class Game;

// The working game's session record, kept beside the working set so that
// separate runs of trovane-sim continue one game.
std::filesystem::path workingSessionFile(const Game& g);

// Fills the svar buffer from the session state (and the save's name, trimmed).
void fillSessionRecord(Game& g, std::string_view saveName);
// Sets the session state from a session record.
void applySessionRecord(Game& g, const SvarRecord& s);

// Fills the svar buffer from the session state and writes it to the file.
void writeSessionFile(Game& g, const std::filesystem::path& file, std::string_view saveName = "");
// The commit of the working game: every table's changes and the session
// record, whole or not at all.
void commitWorkingGame(Game& g);

// Reads the file and sets the session state from it; a missing or damaged
// file is an error that names it.
void readSessionFile(Game& g, const std::filesystem::path& file);

}  // namespace trovane

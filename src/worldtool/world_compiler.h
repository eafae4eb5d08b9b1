#pragma once
// trovane-world's work: compile the world's source folder into the base set
// of record files a new game starts from, check it, and count what is in it.
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "worldtool/diagnostics.h"

namespace trovane::worldtool {

// A base set in memory: every file name ("country.gam") with its bytes.
struct BaseSet {
    std::map<std::string, std::vector<uint8_t>> files;
};

// The names of every file of a complete base set: each file copyTableSet copies
// (as .gam), prefs.gam, highscore.gam, fact.gam, cb.gam, ca.gam and empty.gam.
std::vector<std::string> baseSetFileNames();

// Compiles the folder's *.toml files. The result is whole only when diag stays clean.
BaseSet compileWorld(const std::filesystem::path& source, Diagnostics& diag);

// Every problem of the source, sorted by file and line.
std::vector<SourceProblem> checkWorld(const std::filesystem::path& source);

// Compiles the source and, if it is clean, writes the base set into `out`
// (made when missing). The files are first written into a fresh folder beside
// `out` and moved in only when all are written, so a failed build leaves the
// previous base set as it was. The manifest of the set (manifest.gam: every
// file but prefs.gam and highscore.gam, with its length and checksum) is
// moved in last. Other files in `out` (a working set, saved
// games) are left alone. Returns the problems; nothing is written when there are any.
std::vector<SourceProblem> buildWorld(const std::filesystem::path& source, const std::filesystem::path& out);

struct TableCount {
    std::string file;
    std::string table;
    int64_t records;  // -1 for a file that is missing or not a whole number of records
};
// The records in each file of the base set in a folder.
std::vector<TableCount> countRecords(const std::filesystem::path& folder);

}  // namespace trovane::worldtool

#pragma once
// The world's source: every *.toml file of one folder, parsed, with each
// top-level key (a table of the world) gathered across the files.
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <toml++/toml.h>

#include "worldtool/diagnostics.h"

namespace trovane::worldtool {

struct SourceFile {
    std::string name;  // file name within the folder, as problems name it
    toml::table root;
};

// One top-level key of one file: the records of a table written there.
struct Section {
    const SourceFile* file;
    const toml::node* node;
    int64_t line;
};

struct SourceFolder {
    std::vector<std::unique_ptr<SourceFile>> files;                     // by file name
    std::map<std::string, std::vector<Section>, std::less<>> sections;  // key -> sections, by file name
};

// Reads and parses the folder. A file that does not parse is reported at the
// line of its fault and contributes nothing.
SourceFolder readSourceFolder(const std::filesystem::path& folder, Diagnostics& diag);

// The line a node starts on (0 when toml++ has none).
inline int64_t lineOf(const toml::node& n) { return static_cast<int64_t>(n.source().begin.line); }

// A table's entries in the order they stand in the source, not toml++'s key order.
std::vector<std::pair<const toml::key*, const toml::node*>> inSourceOrder(const toml::table& t);

}  // namespace trovane::worldtool

#include "worldtool/rule_bench.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string>

#include <fmt/format.h>

#include "world/fatal_error.h"

namespace trovane::worldtool {

namespace fs = std::filesystem;

namespace {

fs::path makeScratchFolder() {
    std::string pattern = (fs::temp_directory_path() / "trovane-world-XXXXXX").string();
    if (!::mkdtemp(pattern.data()))
        throw FatalError(fmt::format("Cannot make a scratch folder {}: {}", pattern, std::strerror(errno)));
    return pattern;
}

}  // namespace

RuleBench::RuleBench() : g(makeScratchFolder()), folder_(g.dataDir) {
    try {
        g.artist.open(folder_ / "artist.tmp", IfMissing::createEmpty);
        g.band.open(folder_ / "band.tmp", IfMissing::createEmpty);
        g.staff.open(folder_ / "staff.tmp", IfMissing::createEmpty);
    } catch (...) {
        std::error_code ec;
        fs::remove_all(folder_, ec);
        throw;
    }
}

RuleBench::~RuleBench() {
    // Nothing on the bench is kept: forget the records before closing so no file is written.
    for (TableBase* t : std::initializer_list<TableBase*>{&g.artist, &g.band, &g.staff}) {
        if (!t->isOpen()) continue;
        t->clearAll();
        t->close();
    }
    std::error_code ec;
    fs::remove_all(folder_, ec);
}

}  // namespace trovane::worldtool

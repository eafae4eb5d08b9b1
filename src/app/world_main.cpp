// trovane-world: compiles the world's source (data/world) into the base set
// of record files, checks it, and shows what is in any record file.
#include <cstdio>
#include <exception>
#include <string>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include "world/fatal_error.h"
#include "world/record_dump.h"
#include "worldtool/world_compiler.h"

namespace {

using namespace trovane;
using namespace trovane::worldtool;

int reportProblems(const std::vector<SourceProblem>& problems, std::string_view outcome) {
    for (const auto& p : problems) fmt::print(stderr, "{}\n", describe(p));
    if (problems.empty()) return 0;
    fmt::print(stderr, "trovane-world: {} problem{}; {}\n", problems.size(), problems.size() == 1 ? "" : "s", outcome);
    return 1;
}

int dumpFile(const std::string& file, bool json) {
    auto table = tableOfFile(file);
    if (!table) throw FatalError(fmt::format("{} is not a record file of the game", file));
    std::fputs(dumpTableFile(file, *table, json ? DumpFormat::json : DumpFormat::text).c_str(), stdout);
    return 0;
}

int printStats(const std::string& folder, bool json) {
    auto counts = countRecords(folder);
    if (json) {
        std::string out = "{";
        for (std::size_t i = 0; i < counts.size(); ++i)
            out += fmt::format("{}\"{}\":{}", i ? "," : "", counts[i].file, counts[i].records);
        fmt::print("{}}}\n", out);
    } else {
        for (const auto& c : counts)
            fmt::print("{:<16} {:>8}\n", c.file,
                       c.records < 0 ? std::string("missing or damaged") : std::to_string(c.records));
    }
    bool whole = std::all_of(counts.begin(), counts.end(), [](const auto& c) { return c.records >= 0; });
    return whole ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app{"Compiles the world of Trovane 3 from its source and shows what is in record files"};
    app.require_subcommand(1);
    int exitCode = 0;

    std::string source, out, file, folder;
    bool json = false;

    auto* build = app.add_subcommand("build", "Compile the source folder into a complete base set in OUT");
    build->add_option("SRC", source, "The world's source folder (data/world)")->required();
    build->add_option("OUT", out, "The folder of the base set (made when missing)")->required();
    build->callback([&] { exitCode = reportProblems(buildWorld(source, out), "nothing written"); });

    auto* check = app.add_subcommand("check", "Report every problem of the source folder, by file and line");
    check->add_option("SRC", source, "The world's source folder")->required();
    check->callback([&] {
        exitCode = reportProblems(checkWorld(source), "the source does not compile");
        if (exitCode == 0) fmt::print("trovane-world: {} is clean\n", source);
    });

    auto* dump = app.add_subcommand("dump", "Show the records of any record file (.gam, .vel, .sgN)");
    dump->add_option("FILE", file, "The record file")->required();
    dump->add_flag("--json", json, "One JSON array of records");
    dump->callback([&] { exitCode = dumpFile(file, json); });

    auto* stats = app.add_subcommand("stats", "Count the records of each table of a base set");
    stats->add_option("DIR", folder, "The folder of the base set")->required();
    stats->add_flag("--json", json, "One JSON object of counts");
    stats->callback([&] { exitCode = printStats(folder, json); });

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) { return app.exit(e); } catch (const std::exception& e) {
        fmt::print(stderr, "trovane-world: {}\n", e.what());
        return 2;
    }
    return exitCode;
}

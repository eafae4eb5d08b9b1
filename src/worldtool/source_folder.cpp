// toml++'s implementation is built here, once for the tool (see CMakeLists.txt).
#define TOML_IMPLEMENTATION
#include "worldtool/source_folder.h"

#include <algorithm>

#include <fmt/format.h>

namespace trovane::worldtool {

namespace fs = std::filesystem;

SourceFolder readSourceFolder(const fs::path& folder, Diagnostics& diag) {
    SourceFolder out;
    std::error_code ec;
    if (!fs::is_directory(folder, ec)) {
        diag.report(folder.string(), 0, "is not a folder of world source");
        return out;
    }
    std::vector<fs::path> paths;
    for (const auto& entry : fs::directory_iterator(folder, ec))
        if (entry.is_regular_file() && entry.path().extension() == ".toml") paths.push_back(entry.path());
    if (ec) diag.report(folder.string(), 0, fmt::format("cannot be listed: {}", ec.message()));
    std::sort(paths.begin(), paths.end());

    for (const auto& path : paths) {
        auto file = std::make_unique<SourceFile>();
        file->name = path.filename().string();
        try {
            file->root = toml::parse_file(path.string());
        } catch (const toml::parse_error& e) {
            diag.report(file->name, static_cast<int64_t>(e.source().begin.line), std::string(e.description()));
            continue;
        }
        for (const auto& [key, node] : inSourceOrder(file->root))
            out.sections[std::string(key->str())].push_back(Section{file.get(), node, lineOf(*node)});
        out.files.push_back(std::move(file));
    }
    return out;
}

std::vector<std::pair<const toml::key*, const toml::node*>> inSourceOrder(const toml::table& t) {
    std::vector<std::pair<const toml::key*, const toml::node*>> out;
    for (const auto& [k, v] : t) out.emplace_back(&k, &v);
    std::stable_sort(out.begin(), out.end(), [](const auto& a, const auto& b) {
        const auto& sa = a.first->source().begin;
        const auto& sb = b.first->source().begin;
        return sa.line != sb.line ? sa.line < sb.line : sa.column < sb.column;
    });
    return out;
}

}  // namespace trovane::worldtool

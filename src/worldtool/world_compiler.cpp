#include "worldtool/world_compiler.h"

#include <unistd.h>

#include <fstream>

#include <fmt/format.h>

#include "floor/preferences.h"
#include "world/fatal_error.h"
#include "world/game.h"
#include "world/manifest.h"
#include "world/record_dump.h"
#include "worldtool/table_form.h"

namespace trovane::worldtool {

namespace fs = std::filesystem;

namespace {

// prefs.gam as delivered: slots free, the pound sign, rate 1.0, both counters 0.
std::vector<uint8_t> deliveredPrefs() {
    Game g{fs::path{}};
    setDeliveredPrefs(g);
    std::vector<uint8_t> bytes(PrefsRecord::kLength);
    encodeRecord(g.prefs.rec, bytes.data());
    return bytes;
}

void writeFile(const fs::path& path, const std::vector<uint8_t>& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) throw FatalError(fmt::format("Cannot write {}", path.string()));
}

}  // namespace

std::vector<std::string> baseSetFileNames() {
    std::vector<std::string> names;
    for (auto stem : tableSetStems()) names.push_back(std::string(stem) + ".gam");
    for (auto name : {"prefs.gam", "highscore.gam", "fact.gam", "cb.gam", "ca.gam", "empty.gam"})
        names.emplace_back(name);
    return names;
}

BaseSet compileWorld(const fs::path& source, Diagnostics& diag) {
    BaseSet set;
    for (const auto& name : baseSetFileNames()) set.files[name] = {};
    SourceFolder folder = readSourceFolder(source, diag);
    if (!diag.clean()) return set;  // a file that does not parse would only make its names unknown elsewhere
    CompileContext ctx(diag);

    auto forms = referenceForms();
    for (auto& f : industryForms()) forms.push_back(std::move(f));

    for (const auto& [key, sections] : folder.sections) {
        bool known = std::any_of(forms.begin(), forms.end(), [&](const auto& f) { return f->key() == key; });
        if (known) continue;
        for (const Section& s : sections)
            ctx.report(*s.file, s.line, fmt::format("`{}` is not a table of the world", key));
    }

    for (auto& form : forms) {
        auto it = folder.sections.find(form->key());
        form->gather(ctx, it == folder.sections.end() ? std::span<const Section>{} : std::span(it->second));
    }

    for (auto& form : forms)
        for (auto& [table, bytes] : form->compile(ctx))
            set.files[std::string(catalogueEntry(table).stem) + ".gam"] = std::move(bytes);
    set.files["prefs.gam"] = deliveredPrefs();
    return set;
}

std::vector<SourceProblem> checkWorld(const fs::path& source) {
    Diagnostics diag;
    compileWorld(source, diag);
    return diag.sorted();
}

std::vector<SourceProblem> buildWorld(const fs::path& source, const fs::path& out) {
    Diagnostics diag;
    BaseSet set = compileWorld(source, diag);
    if (!diag.clean()) return diag.sorted();

    fs::path target = fs::absolute(out).lexically_normal();
    if (target.filename().empty()) target = target.parent_path();
    fs::path staging = target.parent_path() / fmt::format(".{}.building-{}", target.filename().string(), ::getpid());
    std::error_code ec;
    fs::remove_all(staging, ec);
    fs::create_directories(staging);
    try {
        for (const auto& [name, bytes] : set.files) writeFile(staging / name, bytes);
        std::vector<fs::path> proved;
        for (const auto& [name, bytes] : set.files)
            if (!isPlayersFile(name)) proved.push_back(staging / name);
        fs::path manifest = baseSetManifest(staging);
        writeManifest(manifest, proved);
        fs::create_directories(target);
        for (const auto& [name, bytes] : set.files) fs::rename(staging / name, target / name);
        // Last: a base set is proved only once every file of it is in place.
        fs::rename(manifest, baseSetManifest(target));
    } catch (...) {
        fs::remove_all(staging, ec);
        throw;
    }
    fs::remove_all(staging, ec);
    return {};
}

std::vector<TableCount> countRecords(const fs::path& folder) {
    std::vector<TableCount> counts;
    for (const auto& name : baseSetFileNames()) {
        auto table = tableOfFile(name);
        if (!table) continue;  // empty.gam is no table
        const CatalogueEntry& entry = catalogueEntry(*table);
        std::error_code ec;
        auto size = fs::file_size(folder / name, ec);
        int64_t records = -1;
        if (!ec && size % entry.recordLength == 0) records = static_cast<int64_t>(size / entry.recordLength);
        counts.push_back(TableCount{name, std::string(entry.table), records});
    }
    return counts;
}

}  // namespace trovane::worldtool

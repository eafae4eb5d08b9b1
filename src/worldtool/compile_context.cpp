#include "worldtool/compile_context.h"

#include <fmt/format.h>

namespace trovane::worldtool {

void CompileContext::addName(FileNo table, const std::string& name, const SourceRecord& rec, int32_t n) {
    auto& names = names_[table];
    auto [it, added] = names.try_emplace(name, Named{n, rec.file, rec.line, rec.node});
    if (added) return;
    const Named& first = it->second;
    report(*rec.file, rec.line,
           fmt::format("duplicate {} \"{}\" (first at {}:{})", tableName(table), name, first.file->name, first.line));
}

std::optional<int32_t> CompileContext::find(FileNo table, std::string_view name) const {
    auto t = names_.find(table);
    if (t == names_.end()) return std::nullopt;
    auto it = t->second.find(name);
    if (it == t->second.end()) return std::nullopt;
    return it->second.number;
}

const toml::table* CompileContext::sourceOf(FileNo table, std::string_view name) const {
    auto t = names_.find(table);
    if (t == names_.end()) return nullptr;
    auto it = t->second.find(name);
    if (it == t->second.end() || !it->second.node) return nullptr;
    return it->second.node->as_table();
}

std::size_t CompileContext::nameCount(FileNo table) const {
    auto t = names_.find(table);
    return t == names_.end() ? 0 : t->second.size();
}

std::string_view tableName(FileNo n) { return catalogueEntry(n).table; }

}  // namespace trovane::worldtool

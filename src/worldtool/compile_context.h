#pragma once
// What the compiler knows while it works: the problems found so far and the
// record number of every named record, so that names resolve across tables.
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "world/catalogue.h"
#include "worldtool/diagnostics.h"
#include "worldtool/source_folder.h"

namespace trovane::worldtool {

// One record as it stands in the source.
struct SourceRecord {
    const SourceFile* file = nullptr;
    const toml::node* node = nullptr;  // the record's table, or its text in a bank of names
    int64_t line = 0;
    std::string group;  // in a bank of names: the style it is listed under
    const toml::node* groupNode = nullptr;
};

class CompileContext {
public:
    explicit CompileContext(Diagnostics& d) : diag(d) {}

    Diagnostics& diag;

    void report(const SourceFile& file, int64_t line, std::string message) {
        diag.report(file.name, line, std::move(message));
    }

    // Records that record n of a table bears this name. A name already taken in
    // the table is reported as a duplicate, and the first record keeps it.
    void addName(FileNo table, const std::string& name, const SourceRecord& rec, int32_t n);

    // The record number of the record of that name, if there is one.
    std::optional<int32_t> find(FileNo table, std::string_view name) const;

    // The source table of the record of that name, for checks that read a field of
    // another table (a studio must be a studio); null when there is none.
    const toml::table* sourceOf(FileNo table, std::string_view name) const;

    // How many names the table has.
    std::size_t nameCount(FileNo table) const;

private:
    struct Named {
        int32_t number;
        const SourceFile* file;
        int64_t line;
        const toml::node* node;
    };
    std::map<FileNo, std::map<std::string, Named, std::less<>>> names_;
};

// The table's name as problems and the tools call it ("country").
std::string_view tableName(FileNo n);

}  // namespace trovane::worldtool

#pragma once
// How the records of one table are taken from the source and compiled.
//
// Compiling runs in two passes over every table: gather() takes each table's
// records from the source and registers their names, so that compile() can
// resolve a name to a record number whichever file or table it stands in.
#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "world/numbers.h"
#include "world/record_codec.h"
#include "worldtool/compile_context.h"
#include "worldtool/field_reader.h"

namespace trovane::worldtool {

// What a form writes: the bytes of each table file it fills.
using CompiledFiles = std::vector<std::pair<FileNo, std::vector<uint8_t>>>;

class TableForm {
public:
    virtual ~TableForm() = default;
    // The top-level key of the table in the source ("country").
    virtual std::string_view key() const = 0;
    virtual FileNo file() const = 0;
    virtual void gather(CompileContext& ctx, std::span<const Section> sections) = 0;
    // The table's file, record after record, and the files of the tables its
    // records hold (an act writes its members, discs and songs too).
    virtual CompiledFiles compile(CompileContext& ctx) = 0;
};

template <PackedRecord R>
struct Compiled {
    R rec;
    const SourceRecord* src;
};

// Packs records into a table file's bytes, numbering them from 1.
template <PackedRecord R>
std::vector<uint8_t> packRecords(CompileContext& ctx, std::span<Compiled<R>> records) {
    using IdType = std::remove_cvref_t<decltype(records[0].rec.ownNumber())>;
    std::vector<uint8_t> bytes(records.size() * R::kLength);
    for (std::size_t i = 0; i < records.size(); ++i) {
        auto number = static_cast<int64_t>(i + 1);
        if (!std::in_range<IdType>(number)) {
            ctx.report(*records[i].src->file, records[i].src->line,
                       fmt::format("too many records: number {} does not fit a {}-bit record number", number,
                                   8 * sizeof(IdType)));
            break;
        }
        records[i].rec.ownNumber() = static_cast<IdType>(number);
        encodeRecord(records[i].rec, bytes.data() + i * R::kLength);
    }
    return bytes;
}

// A table written as a list of records, each a TOML table whose keys are field names:
//   country = [ { name = "England", adjective = "English", region = "E" } ]
// or, for long records, [[style]] tables.
template <PackedRecord R>
struct ListFormRules {
    std::string_view key{};
    FileNo file{};
    // The key whose text names a record; names are unique within the table and
    // are what references resolve. Empty for a table whose records have no name.
    std::string_view nameKey{};
    FieldRules rules{};
    // The name that must be unique, when it is not simply the name (forenames add the sex).
    std::function<std::string(const toml::table&, const std::string& name)> identity{};
    // Reads the keys listed in rules.bespokeKeys.
    std::function<void(FieldReader&, const toml::table&, int64_t line, R&)> bespoke{};
    // Checks one record once all its fields are read.
    std::function<void(FieldReader&, const toml::table&, int64_t line, const R&)> checkOne{};
    // Fills the fields the compiler derives, once every record is read.
    std::function<void(CompileContext&, std::span<Compiled<R>>)> derive{};
    // Checks the table as a whole.
    std::function<void(CompileContext&, std::span<const Compiled<R>>)> checkAll{};
};

template <PackedRecord R>
class ListForm : public TableForm {
public:
    explicit ListForm(ListFormRules<R> rules) : rules_(std::move(rules)) {}
    std::string_view key() const override { return rules_.key; }
    FileNo file() const override { return rules_.file; }

    void gather(CompileContext& ctx, std::span<const Section> sections) override {
        for (const Section& s : sections) {
            const toml::array* list = s.node->as_array();
            if (!list) {
                ctx.report(*s.file, s.line, fmt::format("`{}` should be a list of records", rules_.key));
                continue;
            }
            for (const toml::node& n : *list) {
                if (!n.is_table()) {
                    ctx.report(*s.file, lineOf(n), fmt::format("a {} should be a table of its fields", rules_.key));
                    continue;
                }
                records_.push_back(SourceRecord{s.file, &n, lineOf(n), {}, nullptr});
                registerName(ctx, records_.back(), static_cast<int32_t>(records_.size()));
            }
        }
    }

    CompiledFiles compile(CompileContext& ctx) override {
        std::vector<Compiled<R>> out;
        out.reserve(records_.size());
        for (const SourceRecord& src : records_) {
            const toml::table& t = *src.node->as_table();
            FieldReader reader(ctx, *src.file, rules_.rules);
            R rec{};
            if (rules_.bespoke) rules_.bespoke(reader, t, src.line, rec);
            reader.bind(t, src.line, rec);
            if (rules_.checkOne) rules_.checkOne(reader, t, src.line, rec);
            out.push_back(Compiled<R>{std::move(rec), &src});
        }
        if (rules_.derive) rules_.derive(ctx, out);
        if (rules_.checkAll) rules_.checkAll(ctx, out);
        return {{rules_.file, packRecords<R>(ctx, out)}};
    }

private:
    void registerName(CompileContext& ctx, const SourceRecord& rec, int32_t number) {
        if (rules_.nameKey.empty()) return;
        const toml::table& t = *rec.node->as_table();
        auto name = t[rules_.nameKey].template value<std::string>();
        if (!name || name->empty()) return;  // reported by the record's own checks
        ctx.addName(rules_.file, rules_.identity ? rules_.identity(t, *name) : *name, rec, number);
    }

    ListFormRules<R> rules_;
    std::vector<SourceRecord> records_;
};

// A bank of names, listed under the style each belongs to:
//   [newband]
//   "Indie Rock" = ["The Paper Lanterns", "Velvet Static"]
template <PackedRecord R>
struct BankFormRules {
    std::string_view key{};
    FileNo file{};
    std::size_t width{};  // of the name's field
    std::function<void(R&, const std::string& name, uint8_t style)> fill{};
};

template <PackedRecord R>
class BankForm : public TableForm {
public:
    explicit BankForm(BankFormRules<R> rules) : rules_(std::move(rules)) {}
    std::string_view key() const override { return rules_.key; }
    FileNo file() const override { return rules_.file; }

    void gather(CompileContext& ctx, std::span<const Section> sections) override {
        for (const Section& s : sections) {
            const toml::table* styles = s.node->as_table();
            if (!styles) {
                ctx.report(*s.file, s.line, fmt::format("`{}` should be a table of names by style", rules_.key));
                continue;
            }
            for (const auto& [style, names] : inSourceOrder(*styles)) {
                const toml::array* list = names->as_array();
                if (!list) {
                    ctx.report(*s.file, lineOf(*names),
                               fmt::format("the names of \"{}\" should be a list", style->str()));
                    continue;
                }
                for (const toml::node& n : *list) {
                    records_.push_back(SourceRecord{s.file, &n, lineOf(n), std::string(style->str()), names});
                    if (auto name = n.value<std::string>())
                        ctx.addName(rules_.file, *name, records_.back(), static_cast<int32_t>(records_.size()));
                }
            }
        }
    }

    CompiledFiles compile(CompileContext& ctx) override {
        std::vector<Compiled<R>> out;
        out.reserve(records_.size());
        const toml::node* lastGroup = nullptr;
        std::optional<int32_t> style;
        for (const SourceRecord& src : records_) {
            FieldReader reader(ctx, *src.file, noRules_);
            if (src.groupNode != lastGroup) {
                lastGroup = src.groupNode;
                style = ctx.find(FileNo::fileStyle, src.group);
                if (!style)
                    reader.problem(*src.groupNode, fmt::format("unknown style \"{}\"", src.group));
                else if (*style > 255)
                    reader.problem(*src.groupNode, fmt::format("style \"{}\" is record {}, out of range (1 to 255)",
                                                               src.group, *style));
            }
            auto name = reader.text(*src.node, rules_.key, rules_.width);
            if (!name || !style || *style > 255) continue;
            if (name->empty()) {
                reader.problem(*src.node, "an empty name");
                continue;
            }
            R rec{};
            rules_.fill(rec, *name, static_cast<uint8_t>(*style));
            out.push_back(Compiled<R>{std::move(rec), &src});
        }
        return {{rules_.file, packRecords<R>(ctx, out)}};
    }

private:
    BankFormRules<R> rules_;
    FieldRules noRules_;
    std::vector<SourceRecord> records_;
};

// Every form of the world, in the order the tables are compiled.
std::vector<std::unique_ptr<TableForm>> referenceForms();
std::vector<std::unique_ptr<TableForm>> industryForms();

}  // namespace trovane::worldtool

#pragma once
// Reads one record from its TOML table, field by field: the keys are the
// record's field names, a field left out keeps its zero, and every value is
// checked against its field before it is stored.
//
//   whole numbers   within the field (a byte 0 to 255 ...) or the narrower range a table gives
//   16-bit fields   also take true and false (-1 and 0)
//   texts           must fit the field once in Windows-1252
//   dates           a TOML date (2004-08-05) or a day number
//   money           an amount in pounds
//   lists           at most as many values as the field has places
//   references      the name of a record of the table referred to, never its number
#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <fmt/format.h>

#include "world/dates.h"
#include "world/numbers.h"
#include "world/record_codec.h"
#include "worldtool/compile_context.h"

namespace trovane::worldtool {

struct RefRule {
    std::string_view path;  // field, or "outer.inner" in a nested record
    FileNo table;           // the table its names are looked up in
};
struct RangeRule {
    std::string_view path;
    int64_t lo;
    int64_t hi;
};
struct LetterRule {
    std::string_view path;
    std::string_view allowed;
};
struct Rename {
    std::string_view key;    // the key in the source
    std::string_view field;  // the field it fills
};

// How one table is written in the source, beyond "keys are field names".
struct FieldRules {
    std::vector<RefRule> refs{};
    std::vector<RangeRule> ranges{};
    std::vector<LetterRule> letters{};
    std::vector<Rename> renames{};
    std::vector<std::string_view> required{};     // keys every record must have
    std::vector<std::string_view> bespokeKeys{};  // keys the table's form reads itself
    std::vector<std::string_view> hidden{};       // fields the form fills, not written in the source
};

class FieldReader {
public:
    FieldReader(CompileContext& ctx, const SourceFile& file, const FieldRules& rules)
        : ctx_(ctx), file_(file), rules_(rules) {}

    void problem(const toml::node& at, std::string message);
    void problemAt(int64_t line, std::string message);

    // A whole number from lo to hi.
    std::optional<int64_t> wholeNumber(const toml::node& n, std::string_view what, int64_t lo, int64_t hi);
    // The record number of the named record of the target table; at most maxNumber. "" is none (0).
    std::optional<int32_t> reference(const toml::node& n, std::string_view what, FileNo target, int64_t maxNumber);
    // The same, for a name that stands at the node `at` (a key, say).
    std::optional<int32_t> resolve(std::string_view name, const toml::node& at, std::string_view what, FileNo target,
                                   int64_t maxNumber);
    // A text that fits width bytes of Windows-1252.
    std::optional<std::string> text(const toml::node& n, std::string_view what, std::size_t width);
    // A byte that says yes or no: true or false (stored 1 and 0), or a number from 0 to hi.
    std::optional<uint8_t> byteFlag(const toml::node& n, std::string_view what, int64_t hi);
    // Reports each key of a small table that is not in `known`.
    void refuseUnknownKeys(const toml::table& t, std::string_view where, std::span<const std::string_view> known);

    // Fills the record's fields from the table; reports every key it does not know.
    template <PackedRecord R>
    void bind(const toml::table& src, int64_t recordLine, R& rec) {
        for (std::string_view key : rules_.required)
            if (!src.contains(key)) problemAt(recordLine, fmt::format("no `{}` given", key));
        bindFields(src, rec, "", true);
    }

private:
    template <PackedRecord R>
    void bindFields(const toml::table& src, R& rec, const std::string& prefix, bool top);
    template <class T>
    void decode(const toml::node& n, const std::string& path, T& out);
    template <std::integral T>
    void decodeInteger(const toml::node& n, const std::string& path, T& out);

    const RefRule* refFor(std::string_view path) const;
    const RangeRule* rangeFor(std::string_view path) const;
    const LetterRule* lettersFor(std::string_view path) const;
    std::string_view keyFor(std::string_view path) const;
    bool isBespoke(std::string_view key) const;
    // A key every record must have: a name, a title, a text or a side of a pair, which may not be blank either.
    bool isRequired(std::string_view path) const;
    bool refusedBlank(const toml::node& n, std::string_view path, std::string_view value);
    bool isHidden(std::string_view path) const;
    void money(const toml::node& n, const std::string& path, Money& out);

    CompileContext& ctx_;
    const SourceFile& file_;
    const FieldRules& rules_;
};

template <PackedRecord R>
void FieldReader::bindFields(const toml::table& src, R& rec, const std::string& prefix, bool top) {
    std::vector<std::string> seen;
    auto visit = [&]<class T>(const char* name, T& field) {
        std::string path = prefix + name;
        std::string_view key = top ? keyFor(path) : std::string_view(name);
        const toml::node* n = src.get(key);
        bool isId = false;
        if constexpr (R::kHasId)
            isId = top && static_cast<const void*>(&field) == static_cast<const void*>(&rec.ownNumber());
        if (isId || std::string_view(name).starts_with("reserved") || isHidden(path)) {
            if (n && !(top && isBespoke(key))) {
                problem(*n, isId ? fmt::format("`{}` is the record's number, which the compiler gives", path)
                                 : fmt::format("`{}` is not written in the source", path));
                seen.emplace_back(key);
            }
            return;
        }
        if (!n) return;
        seen.emplace_back(key);
        decode(*n, path, field);
    };
    R::forEachField(rec, visit);
    for (const auto& [k, v] : src) {
        std::string_view key = k.str();
        if ((top && isBespoke(key)) || std::find(seen.begin(), seen.end(), key) != seen.end()) continue;
        problem(v, fmt::format("unknown field `{}{}`", prefix, key));
    }
}

template <class T>
void FieldReader::decode(const toml::node& n, const std::string& path, T& out) {
    if constexpr (IsText<T>::value) {
        auto s = text(n, path, T::width);
        if (!s || refusedBlank(n, path, *s)) return;
        if (const LetterRule* rule = lettersFor(path);
            rule && (s->size() != 1 || rule->allowed.find(*s) == std::string_view::npos)) {
            problem(n, fmt::format("`{}` = \"{}\" is not one of the letters {}", path, *s, rule->allowed));
            return;
        }
        out = *s;
    } else if constexpr (IsStdArray<T>::value) {
        const toml::array* list = n.as_array();
        if (!list) {
            problem(n, fmt::format("`{}` should be a list", path));
        } else if (list->size() > out.size()) {
            problem(n, fmt::format("`{}` has {} values; the field holds {}", path, list->size(), out.size()));
        } else {
            for (std::size_t i = 0; i < list->size(); ++i) decode((*list)[i], path, out[i]);
        }
    } else if constexpr (PackedRecord<T>) {
        if (const toml::table* t = n.as_table())
            bindFields(*t, out, path + ".", false);
        else
            problem(n, fmt::format("`{}` should be a table of its fields", path));
    } else if constexpr (std::is_same_v<T, double>) {
        if (const auto* d = n.as_date())
            out = serialFromCivil(d->get().year, d->get().month, d->get().day);
        else if (n.is_number())
            out = n.value<double>().value_or(0);
        else
            problem(n, fmt::format("`{}` should be a date such as 2004-08-05", path));
    } else if constexpr (std::is_same_v<T, float>) {
        if (n.is_number())
            out = static_cast<float>(n.value<double>().value_or(0));
        else
            problem(n, fmt::format("`{}` should be a number", path));
    } else if constexpr (std::is_same_v<T, Money>) {
        money(n, path, out);
    } else {
        decodeInteger(n, path, out);
    }
}

template <std::integral T>
void FieldReader::decodeInteger(const toml::node& n, const std::string& path, T& out) {
    if (const RefRule* ref = refFor(path)) {
        if (const auto* name = n.as_string(); name && refusedBlank(n, path, name->get())) return;
        if (auto v = reference(n, path, ref->table, std::numeric_limits<T>::max())) out = static_cast<T>(*v);
        return;
    }
    if (std::is_same_v<T, int16_t> && n.is_boolean()) {
        out = static_cast<T>(boolean(n.value<bool>().value_or(false)));
        return;
    }
    int64_t lo = std::numeric_limits<T>::min();
    int64_t hi = static_cast<int64_t>(std::numeric_limits<T>::max());
    if (const RangeRule* r = rangeFor(path)) {
        lo = r->lo;
        hi = r->hi;
    }
    if (auto v = wholeNumber(n, path, lo, hi)) out = static_cast<T>(*v);
}

}  // namespace trovane::worldtool

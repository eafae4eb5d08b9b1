#include "worldtool/field_reader.h"

#include <algorithm>

#include "world/cp1252.h"

namespace trovane::worldtool {

void FieldReader::problem(const toml::node& at, std::string message) {
    ctx_.report(file_, lineOf(at), std::move(message));
}

void FieldReader::problemAt(int64_t line, std::string message) { ctx_.report(file_, line, std::move(message)); }

std::optional<int64_t> FieldReader::wholeNumber(const toml::node& n, std::string_view what, int64_t lo, int64_t hi) {
    if (const auto* i = n.as_integer()) {
        int64_t v = i->get();
        if (v >= lo && v <= hi) return v;
        problem(n, fmt::format("`{}` = {} is out of range ({} to {})", what, v, lo, hi));
    } else if (n.is_floating_point()) {
        problem(n, fmt::format("`{}` should be a whole number", what));
    } else {
        problem(n, fmt::format("`{}` should be a number", what));
    }
    return std::nullopt;
}

std::optional<int32_t> FieldReader::reference(const toml::node& n, std::string_view what, FileNo target,
                                              int64_t maxNumber) {
    if (n.is_number()) {
        problem(n, fmt::format("`{}` refers to a {} by number; write its name", what, tableName(target)));
        return std::nullopt;
    }
    const auto* s = n.as_string();
    if (!s) {
        problem(n, fmt::format("`{}` should be the name of a {}", what, tableName(target)));
        return std::nullopt;
    }
    return resolve(s->get(), n, what, target, maxNumber);
}

std::optional<int32_t> FieldReader::resolve(std::string_view name, const toml::node& at, std::string_view what,
                                            FileNo target, int64_t maxNumber) {
    if (name.empty()) return 0;
    auto number = ctx_.find(target, name);
    if (!number) {
        problem(at, fmt::format("unknown {} \"{}\"", tableName(target), name));
        return std::nullopt;
    }
    if (*number > maxNumber) {
        problem(at, fmt::format("{} \"{}\" is record {}, out of range for `{}` (1 to {})", tableName(target), name,
                                *number, what, maxNumber));
        return std::nullopt;
    }
    return *number;
}

std::optional<std::string> FieldReader::text(const toml::node& n, std::string_view what, std::size_t width) {
    const auto* s = n.as_string();
    if (!s) {
        problem(n, fmt::format("`{}` should be a text", what));
        return std::nullopt;
    }
    const std::string& value = s->get();
    std::string stored = utf8ToCp1252(value);
    if (cp1252ToUtf8(stored) != value) {
        problem(n, fmt::format("`{}` \"{}\" has a character that Windows-1252 cannot hold", what, value));
        return std::nullopt;
    }
    if (!value.empty() && value.back() == ' ') {
        problem(n, fmt::format("`{}` \"{}\" ends in a blank, which the game trims away", what, value));
        return std::nullopt;
    }
    if (stored.size() > width) {
        problem(n, fmt::format("`{}` \"{}\" is too long: {} characters where the field holds {}", what, value,
                               stored.size(), width));
        return std::nullopt;
    }
    return value;
}

std::optional<uint8_t> FieldReader::byteFlag(const toml::node& n, std::string_view what, int64_t hi) {
    if (const auto* b = n.as_boolean()) return b->get() ? 1 : 0;
    if (auto v = wholeNumber(n, what, 0, hi)) return static_cast<uint8_t>(*v);
    return std::nullopt;
}

void FieldReader::refuseUnknownKeys(const toml::table& t, std::string_view where,
                                    std::span<const std::string_view> known) {
    for (const auto& [k, v] : t)
        if (std::find(known.begin(), known.end(), k.str()) == known.end())
            problem(v, fmt::format("unknown field `{}.{}`", where, k.str()));
}

void FieldReader::money(const toml::node& n, const std::string& path, Money& out) {
    constexpr double kLimit = 9.0e14;  // pounds; keeps ten-thousandths well inside 64 bits
    if (const auto* i = n.as_integer()) {
        if (i->get() >= -kLimit && i->get() <= kLimit) {
            out = moneyUnits(i->get());
            return;
        }
    } else if (const auto* f = n.as_floating_point()) {
        if (f->get() >= -kLimit && f->get() <= kLimit) {
            out = static_cast<Money>(roundHalfEven(f->get() * kMoneyUnit));
            return;
        }
    } else {
        problem(n, fmt::format("`{}` should be an amount of money", path));
        return;
    }
    problem(n, fmt::format("`{}` is out of range for an amount of money", path));
}

const RefRule* FieldReader::refFor(std::string_view path) const {
    for (const auto& r : rules_.refs)
        if (r.path == path) return &r;
    return nullptr;
}

const RangeRule* FieldReader::rangeFor(std::string_view path) const {
    for (const auto& r : rules_.ranges)
        if (r.path == path) return &r;
    return nullptr;
}

const LetterRule* FieldReader::lettersFor(std::string_view path) const {
    for (const auto& r : rules_.letters)
        if (r.path == path) return &r;
    return nullptr;
}

std::string_view FieldReader::keyFor(std::string_view path) const {
    for (const auto& r : rules_.renames)
        if (r.field == path) return r.key;
    return path;
}

bool FieldReader::isBespoke(std::string_view key) const {
    return std::find(rules_.bespokeKeys.begin(), rules_.bespokeKeys.end(), key) != rules_.bespokeKeys.end();
}

bool FieldReader::isRequired(std::string_view path) const {
    return std::find(rules_.required.begin(), rules_.required.end(), path) != rules_.required.end();
}

bool FieldReader::refusedBlank(const toml::node& n, std::string_view path, std::string_view value) {
    if (!isRequired(path) || value.find_first_not_of(' ') != std::string_view::npos) return false;
    problem(n, fmt::format("`{}` is blank; the game needs one", path));
    return true;
}

bool FieldReader::isHidden(std::string_view path) const {
    return std::find(rules_.hidden.begin(), rules_.hidden.end(), path) != rules_.hidden.end();
}

}  // namespace trovane::worldtool

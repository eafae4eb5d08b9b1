#pragma once
// A side index over a table whose records are only ever added: the record
// numbers of each key, brought up to date from the bytes of the new records,
// so a lookup never touches the table's buffer.
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace trovane {

struct SideIndex {
    uint64_t generation = UINT64_MAX;  // the table's generation it was built for
    int32_t covered = 0;               // records 1 to covered are indexed
    std::vector<std::vector<int32_t>> byKey;

    void reset(uint64_t gen) {
        generation = gen;
        covered = 0;
        byKey.clear();
    }
    void add(int32_t key, int32_t record) {
        if (key < 0) return;
        const auto k = static_cast<std::size_t>(key);
        if (byKey.size() <= k) byKey.resize(k + 1);
        byKey[k].push_back(record);
    }
    const std::vector<int32_t>& of(int32_t key) const {
        static const std::vector<int32_t> none;
        if (key < 0 || static_cast<std::size_t>(key) >= byKey.size()) return none;
        return byKey[static_cast<std::size_t>(key)];
    }
};

// Record numbers by whole day, for a key that a record may change: the owner
// removes a record from its old days before adding it to its new ones.
struct DayIndex {
    uint64_t generation = UINT64_MAX;
    int32_t covered = 0;
    std::unordered_map<int64_t, std::vector<int32_t>> byDay;

    void reset(uint64_t gen) {
        generation = gen;
        covered = 0;
        byDay.clear();
    }
    void add(int64_t day, int32_t record) {
        auto& list = byDay[day];
        for (int32_t r : list)
            if (r == record) return;
        list.push_back(record);
    }
    void remove(int64_t day, int32_t record) {
        auto it = byDay.find(day);
        if (it == byDay.end()) return;
        std::erase(it->second, record);
        if (it->second.empty()) byDay.erase(it);
    }
    const std::vector<int32_t>& of(int64_t day) const {
        static const std::vector<int32_t> none;
        auto it = byDay.find(day);
        return it == byDay.end() ? none : it->second;
    }
};

// How many records bear each name, for a name that a record may change or
// give up: the owner removes a record's old name before adding its new one.
struct NameIndex {
    uint64_t generation = UINT64_MAX;
    std::unordered_map<std::string, int32_t> counts;

    void reset(uint64_t gen) {
        generation = gen;
        counts.clear();
    }
    void add(const std::string& name) { ++counts[name]; }
    void remove(const std::string& name) {
        auto it = counts.find(name);
        if (it == counts.end()) return;
        if (--it->second <= 0) counts.erase(it);
    }
    bool has(const std::string& name) const { return counts.contains(name); }
};

// The names of a table that does not change in play, by a small key, in
// record order; `all` holds every name. Read again when the table is opened
// or emptied or its count of records moves.
struct NameBank {
    uint64_t generation = UINT64_MAX;
    int32_t records = -1;
    std::unordered_map<int32_t, std::vector<std::string>> byKey;
    std::vector<std::string> all;
};

}  // namespace trovane

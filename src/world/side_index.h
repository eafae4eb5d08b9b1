#pragma once
// A side index over a table whose records are only ever added: the record
// numbers of each key, brought up to date from the bytes of the new records,
// so a lookup never touches the table's buffer.
#include <cstdint>
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

}  // namespace trovane

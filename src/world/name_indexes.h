#pragma once
// The side indexes that name lookups keep on the game (see act_names.h and
// talent/artist_names.h): plain data, kept in step by their owners.
#include <array>
#include <bit>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "world/records.h"

namespace trovane {

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

// What a draw of a forename or surname looks at in each row, in record order
// (row n at [n - 1]), so a draw need not decode the rows it passes over. Read
// again when the table is opened or emptied or its count of records moves, or
// when a write changes one of its rows.
struct NameRows {
    struct Row {
        bool male = false;  // forenames only
        std::array<uint8_t, 5> countryLinks{};
        std::array<uint8_t, 5> countryWeights{};
    };
    // What one country's draw of one sex (or of any, for surnames) needs of
    // the rows: each row's chance of being kept, 0 to 100, in row order, and
    // for the walk that follows too many tries, the rows with a chance and
    // every row of the sex.
    struct Draw {
        std::vector<uint8_t> chance;
        bool anyKept = false;
        std::vector<std::pair<int32_t, int>> fitting;  // row, chance
        int32_t total = 0;
        std::vector<int32_t> ofTheSex;
    };
    uint64_t generation = UINT64_MAX;
    int32_t records = -1;
    std::vector<Row> rows;
    std::unordered_map<int, Draw> draws;  // by country * 4 + sex (0 woman, 1 man, 2 either)
};

// What a new artist's birthplace draw reads of each city, in record order.
// Read again when the table is opened or emptied or its count of records
// moves, or when a write changes one of its rows.
struct CityRows {
    struct Row {
        int country = 0;
        int size = 0;
    };
    uint64_t generation = UINT64_MAX;
    int32_t records = -1;
    std::vector<Row> rows;
};

// Each country's links to the others in the nations' table, in record order,
// for a new member's country of birth: a link's other end and its weight.
// Read again when the table is opened or emptied or its count of records
// moves, or when a write changes one of its rows.
struct NationLinks {
    struct Link {
        int country = 0;
        int weight = 0;
    };
    uint64_t generation = UINT64_MAX;
    int32_t records = -1;
    std::unordered_map<int, std::vector<Link>> byHome;
};

// Artists by what the daily walks over them need, so the walks cost what the
// artists still at work cost however many have retired (see artist_sets.h).
// A set of record numbers, one bit each, listed in record order.
class RecordBits {
public:
    void put(int32_t n, bool in) {
        const auto word = static_cast<std::size_t>(n) / 64;
        if (word >= words_.size()) {
            if (!in) return;
            words_.resize(word + 1);
        }
        const uint64_t bit = uint64_t{1} << (static_cast<unsigned>(n) % 64);
        words_[word] = in ? words_[word] | bit : words_[word] & ~bit;
    }
    void clear() { words_.clear(); }
    std::vector<int32_t> list() const {
        std::vector<int32_t> out;
        for (std::size_t w = 0; w < words_.size(); ++w)
            for (uint64_t bits = words_[w]; bits != 0; bits &= bits - 1)
                out.push_back(static_cast<int32_t>(w * 64 + static_cast<std::size_t>(std::countr_zero(bits))));
        return out;
    }

private:
    std::vector<uint64_t> words_;
};

struct ArtistSets {
    uint64_t generation = UINT64_MAX;
    RecordBits active;    // not retired
    RecordBits unrested;  // a day's recovery would change the record
};

// The looks and each style's liking for them, as a new artist's look is
// chosen: every look in table order, and the first asslook row's weight for
// each (look, style) pair. Read again when either table is opened or emptied
// or its count of records moves, or when a write changes one of its rows.
struct LookRows {
    uint64_t generation = UINT64_MAX;  // of the look table; a write to either table clears it
    uint64_t assGeneration = UINT64_MAX;
    int32_t records = -1;
    int32_t assRecords = -1;
    std::vector<LookRecord> looks;
    std::unordered_map<uint32_t, int> bonus;  // by look << 8 | style
};

}  // namespace trovane

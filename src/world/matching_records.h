#pragma once
// The records of a table whose bytes pass a test, by record number: brought
// up to date from the records added since the last lookup and told of every
// write to the records it already covers, so a lookup walks nothing and
// touches no buffer.
#include <cstdint>
#include <set>
#include <span>

#include "world/table.h"

namespace trovane {

class MatchingRecords {
public:
    using Test = bool (*)(std::span<const uint8_t> bytes);

    MatchingRecords() = default;
    MatchingRecords(const MatchingRecords&) = delete;
    MatchingRecords& operator=(const MatchingRecords&) = delete;

    // Starts keeping the table's records that pass the test.
    void keep(TableBase& table, Test test);
    bool keeping() const { return table_ != nullptr; }
    // The records that pass the test now, in record order.
    const std::set<int32_t>& records();

private:
    TableBase* table_ = nullptr;
    Test test_ = nullptr;
    uint64_t generation_ = UINT64_MAX;  // the table's generation the set was built for
    int32_t covered_ = 0;               // records 1 to covered_ are in it
    std::set<int32_t> records_;
};

}  // namespace trovane

#include "world/matching_records.h"

namespace trovane {

void MatchingRecords::keep(TableBase& table, Test test) {
    table_ = &table;
    test_ = test;
    generation_ = UINT64_MAX;
    table.watchWrites(this, [this](int32_t n, std::span<const uint8_t> before, std::span<const uint8_t> after) {
        // A record not taken in yet is read whole at the next lookup.
        if (generation_ != table_->generation() || n > covered_ || before.empty()) return;
        if (test_(after))
            records_.insert(n);
        else
            records_.erase(n);
    });
}

const std::set<int32_t>& MatchingRecords::records() {
    const int32_t last = table_->recordCount() - 1;
    if (generation_ != table_->generation() || covered_ > last) {
        generation_ = table_->generation();
        covered_ = 0;
        records_.clear();
    }
    for (int32_t n = covered_ + 1; n <= last; ++n) {
        if (test_(table_->bytesOf(n))) records_.insert(n);
        covered_ = n;
    }
    return records_;
}

}  // namespace trovane

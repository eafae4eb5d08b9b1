#pragma once
// Side indexes over a table that walk nothing at a lookup and touch no
// buffer: brought up to date from the records added since the last lookup and
// told of every write to the records they already cover.
//
// KeyedRecords files each record under the keys its bytes give (none, one or
// two); MatchingRecords keeps the records whose bytes pass a test.
#include <array>
#include <cstdint>
#include <functional>
#include <set>
#include <span>
#include <unordered_map>
#include <utility>

#include "world/table.h"

namespace trovane {

template <class Key>
class KeyedRecords {
public:
    // The keys a record is filed under, each once.
    struct Keys {
        std::array<Key, 2> key{};
        int count = 0;
        void add(Key k) {
            for (int i = 0; i < count; ++i)
                if (key[static_cast<std::size_t>(i)] == k) return;
            key[static_cast<std::size_t>(count++)] = std::move(k);
        }
        bool operator==(const Keys& o) const {
            if (count != o.count) return false;
            for (int i = 0; i < count; ++i)
                if (!(key[static_cast<std::size_t>(i)] == o.key[static_cast<std::size_t>(i)])) return false;
            return true;
        }
    };
    using KeysOf = std::function<Keys(std::span<const uint8_t> bytes)>;

    KeyedRecords() = default;
    KeyedRecords(const KeyedRecords&) = delete;
    KeyedRecords& operator=(const KeyedRecords&) = delete;

    // Starts keeping the table's records by the keys keysOf gives; keysOf
    // may be said to read only some stretches of the bytes.
    void keep(TableBase& table, KeysOf keysOf, std::vector<TableBase::ByteStretch> onlyBytes = {}) {
        table_ = &table;
        keysOf_ = std::move(keysOf);
        generation_ = UINT64_MAX;
        table.watchWrites(
            this,
            [this](int32_t n, std::span<const uint8_t> before, std::span<const uint8_t> after) {
                // A record not taken in yet is read whole at the next lookup.
                if (generation_ != table_->generation() || n > covered_ || before.empty()) return;
                const Keys was = keysOf_(before);
                const Keys now = keysOf_(after);
                if (was == now) return;
                for (int i = 0; i < was.count; ++i) {
                    auto it = byKey_.find(was.key[static_cast<std::size_t>(i)]);
                    if (it == byKey_.end()) continue;
                    it->second.erase(n);
                    if (it->second.empty()) byKey_.erase(it);
                }
                file(n, now);
            },
            std::move(onlyBytes));
    }
    bool keeping() const { return table_ != nullptr; }

    // The records filed under the key now, in record order.
    const std::set<int32_t>& of(const Key& key) {
        catchUp();
        static const std::set<int32_t> none;
        auto it = byKey_.find(key);
        return it == byKey_.end() ? none : it->second;
    }
    // The first of them; 0 for none.
    int32_t firstOf(const Key& key) {
        const auto& records = of(key);
        return records.empty() ? 0 : *records.begin();
    }

private:
    void file(int32_t n, const Keys& keys) {
        for (int i = 0; i < keys.count; ++i) byKey_[keys.key[static_cast<std::size_t>(i)]].insert(n);
    }
    void catchUp() {
        const int32_t last = table_->recordCount() - 1;
        if (generation_ != table_->generation() || covered_ > last) {
            generation_ = table_->generation();
            covered_ = 0;
            byKey_.clear();
        }
        for (int32_t n = covered_ + 1; n <= last; ++n) {
            file(n, keysOf_(table_->bytesOf(n)));
            covered_ = n;
        }
    }

    TableBase* table_ = nullptr;
    KeysOf keysOf_;
    uint64_t generation_ = UINT64_MAX;  // the table's generation the index was built for
    int32_t covered_ = 0;               // records 1 to covered_ are in it
    std::unordered_map<Key, std::set<int32_t>> byKey_;
};

class MatchingRecords {
public:
    using Test = bool (*)(std::span<const uint8_t> bytes);

    // Starts keeping the table's records that pass the test.
    void keep(TableBase& table, Test test) {
        keyed_.keep(table, [test](std::span<const uint8_t> bytes) {
            KeyedRecords<bool>::Keys keys;
            if (test(bytes)) keys.add(true);
            return keys;
        });
    }
    bool keeping() const { return keyed_.keeping(); }
    // The records that pass the test now, in record order.
    const std::set<int32_t>& records() { return keyed_.of(true); }

private:
    KeyedRecords<bool> keyed_;
};

}  // namespace trovane

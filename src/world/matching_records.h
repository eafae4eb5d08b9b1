#pragma once
// Side indexes over a table that walk nothing at a lookup and touch no
// buffer: brought up to date from the records added since the last lookup and
// told of every write to the records they already cover.
//
// KeyedRecords files each record under the keys its bytes give (none, one or
// two); MatchingRecords keeps the records whose bytes pass a test.
#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <utility>
#include <vector>

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
                for (int i = 0; i < was.count; ++i)
                    if (Filed* f = find(was.key[static_cast<std::size_t>(i)])) f->remove(n);
                file(n, now);
            },
            std::move(onlyBytes));
    }
    bool keeping() const { return table_ != nullptr; }

    // The records filed under the key now, in record order.
    std::vector<int32_t> of(const Key& key) {
        catchUp();
        const Filed* f = find(key);
        if (f == nullptr) return {};
        const auto records = f->records();
        return {records.begin(), records.end()};
    }
    // The first of them; 0 for none.
    int32_t firstOf(const Key& key) {
        catchUp();
        const Filed* f = find(key);
        if (f == nullptr) return 0;
        const auto records = f->records();
        return records.empty() ? 0 : records.front();
    }

private:
    // The records of one key, in record order. The first is held in place
    // while it is the only one, so a key of one record allocates nothing and
    // the whole index is let go of in one piece when it is built again.
    struct Filed {
        Key key;
        int32_t count = 0;  // 0 or 1: whether `one` holds a record, while `more` is empty
        int32_t one = 0;
        std::vector<int32_t> more;  // every record, once there were two

        std::span<const int32_t> records() const {
            if (!more.empty()) return more;
            return {&one, static_cast<std::size_t>(count)};
        }
        void add(int32_t n) {
            if (more.empty()) {
                if (count == 0 || one == n) {
                    one = n;
                    count = 1;
                    return;
                }
                more.push_back(one);
                count = 0;
            }
            auto it = std::lower_bound(more.begin(), more.end(), n);
            if (it == more.end() || *it != n) more.insert(it, n);
        }
        void remove(int32_t n) {
            if (more.empty()) {
                if (one == n) count = 0;
                return;
            }
            auto it = std::lower_bound(more.begin(), more.end(), n);
            if (it != more.end() && *it == n) more.erase(it);
        }
    };

    // Where the key's slot would be first looked for: its hash spread over
    // every bit, as small keys that differ in their high bits are common.
    std::size_t home(const Key& key) const {
        uint64_t h = std::hash<Key>{}(key);
        h ^= h >> 32;
        h *= 0x9E3779B97F4A7C15ULL;
        h ^= h >> 29;
        return static_cast<std::size_t>(h) & (slots_.size() - 1);
    }
    Filed* find(const Key& key) {
        if (slots_.empty()) return nullptr;
        for (std::size_t i = home(key);; i = (i + 1) & (slots_.size() - 1)) {
            const int32_t s = slots_[i];
            if (s == 0) return nullptr;
            Filed& f = filed_[static_cast<std::size_t>(s - 1)];
            if (f.key == key) return &f;
        }
    }
    // Kept at most half full, so a miss ends at an empty slot soon.
    void placeInSlot(std::size_t index) {
        std::size_t i = home(filed_[index].key);
        while (slots_[i] != 0) i = (i + 1) & (slots_.size() - 1);
        slots_[i] = static_cast<int32_t>(index + 1);
    }
    Filed& findOrAdd(const Key& key) {
        if (Filed* f = find(key)) return *f;
        if ((filed_.size() + 1) * 2 > slots_.size()) {
            slots_.assign(std::max<std::size_t>(16, slots_.size() * 2), 0);
            for (std::size_t i = 0; i < filed_.size(); ++i) placeInSlot(i);
        }
        filed_.push_back(Filed{key});
        placeInSlot(filed_.size() - 1);
        return filed_.back();
    }
    void file(int32_t n, const Keys& keys) {
        for (int i = 0; i < keys.count; ++i) findOrAdd(keys.key[static_cast<std::size_t>(i)]).add(n);
    }
    void catchUp() {
        const int32_t last = table_->recordCount() - 1;
        if (generation_ != table_->generation() || covered_ > last) {
            generation_ = table_->generation();
            covered_ = 0;
            filed_.clear();
            std::fill(slots_.begin(), slots_.end(), 0);
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
    std::vector<Filed> filed_;          // each key filed since the index was built, in the order first filed
    std::vector<int32_t> slots_;        // 1 + a key's place in filed_, by hash; 0: empty
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
    // The first record that passes the test now; 0 for none.
    int32_t first() { return keyed_.firstOf(true); }

private:
    KeyedRecords<bool> keyed_;
};

}  // namespace trovane

#pragma once
// One number of one record changed in the record's bytes, for a step that
// moves a counter of many records and would otherwise decode and encode each
// whole record (names and all) to change it. The table's buffer is left as it
// was; a caller that must leave the buffer on the last record reads it after.
#include <array>
#include <cstdint>
#include <cstring>

#include "world/table.h"

namespace trovane {

// Sets the value of type T at byte offset at of record n to change(old).
// Writes only when the bytes change, as a write of the whole record would.
template <class T, PackedRecord R, class F>
void patchField(Table<R>& table, int32_t n, std::size_t at, F&& change) {
    std::array<uint8_t, R::kLength> bytes;
    const auto now = table.bytesOf(n);
    std::memcpy(bytes.data(), now.data(), bytes.size());
    T v;
    std::memcpy(&v, bytes.data() + at, sizeof v);
    const T next = change(v);
    if (next == v) return;
    std::memcpy(bytes.data() + at, &next, sizeof next);
    table.putBytes(n, bytes);
}

}  // namespace trovane

namespace trovane {

// Writes v at byte offset at of a record's bytes.
template <class T>
void putFieldAt(uint8_t* record, std::size_t at, T v) {
    std::memcpy(record + at, &v, sizeof v);
}

// Lets change(bytes) alter a copy of record n's bytes, then writes the copy
// (a write that changes nothing does nothing).
template <PackedRecord R, class F>
void patchRecord(Table<R>& table, int32_t n, F&& change) {
    std::array<uint8_t, R::kLength> bytes;
    const auto now = table.bytesOf(n);
    std::memcpy(bytes.data(), now.data(), bytes.size());
    change(bytes.data());
    table.putBytes(n, bytes);
}

}  // namespace trovane

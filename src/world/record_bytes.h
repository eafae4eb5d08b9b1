#pragma once
// One field read straight from a record's packed bytes, for walks that need a
// field or two of many records and would waste their time decoding each whole
// record (and spelling out every name in it):
//
//   const std::size_t kDiscBand = offsetIn<DiscRecord>("band");
//   if (fieldAt<int16_t>(g.disc.bytesOf(n), kDiscBand) == band) ...
//
// A step that moves a counter of many records changes it in the bytes the same
// way (patchField), leaving the table's buffer as it was.
//
// Numbers are stored little-endian, so on this machine they are read in place.
#include <array>
#include <bit>
#include <cassert>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

#include "world/fatal_error.h"
#include "world/record_codec.h"
#include "world/strings.h"
#include "world/table.h"

namespace trovane {

static_assert(std::endian::native == std::endian::little, "records are read in place as little-endian");

// The value of type T at byte offset at of a record's bytes.
template <class T>
T fieldAt(std::span<const uint8_t> bytes, std::size_t at) {
    assert(at + sizeof(T) <= bytes.size());
    T v;
    std::memcpy(&v, bytes.data() + at, sizeof v);
    return v;
}

// The same, at byte offset at of a record whose bytes start at record.
template <class T>
T fieldAt(const uint8_t* record, std::size_t at) {
    T v;
    std::memcpy(&v, record + at, sizeof v);
    return v;
}

// A name or title read from a record's bytes, without its padding.
template <class TextField>
std::string textAt(std::span<const uint8_t> bytes, std::size_t at) {
    TextField text;
    codec::getText(bytes.data() + at, text);
    return trim(text.value);
}

// The byte offset of a field of R, by the name it is declared under ("band",
// or "player.gameNumber" for a nested one). A name R lacks is a fault in the
// program, reported when the offset is first taken.
template <PackedRecord R>
std::size_t offsetIn(std::string_view name) {
    if (auto at = fieldOffset<R>(name)) return *at;
    throw FatalError("a record is read for a field it lacks: " + std::string(name));
}

// Writes v at byte offset at of record n, as writing the whole record with
// the field set to v would. The watcher of owner `untold`, if one is named,
// is not told: its owner takes note of the record itself.
template <class T, PackedRecord R>
void putFieldIn(Table<R>& table, int32_t n, std::size_t at, T v, const void* untold = nullptr) {
    std::array<uint8_t, sizeof(T)> bytes;
    std::memcpy(bytes.data(), &v, sizeof v);
    table.putStretch(n, at, bytes, untold);
}

// Sets the value of type T at byte offset at of record n to change(old).
// Writes only when the bytes change, as a write of the whole record would.
template <class T, PackedRecord R, class F>
void patchField(Table<R>& table, int32_t n, std::size_t at, F&& change, const void* untold = nullptr) {
    T v;
    std::memcpy(&v, table.bytesOf(n).data() + at, sizeof v);
    const T next = change(v);
    if (next == v) return;
    putFieldIn(table, n, at, next, untold);
}

}  // namespace trovane

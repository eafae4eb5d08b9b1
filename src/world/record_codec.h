#pragma once
// How a record is declared, packed and dumped.
//
// Each record format is declared once, as a list of fields:
//
//   #define CITY_FIELDS(X) X(id, int16_t) X(name, Text<20>) X(size, uint8_t) X(country, uint8_t)
//   TROVANE_RECORD(CityRecord, 24, id, CITY_FIELDS);
//
// From that one list come the struct with its field-by-field ==, the packed
// little-endian codec, the dump, each field's offset (fieldOffset), and a
// compile-time check that the packed length is the file's record length.
// Field kinds: uint8_t (byte), int16_t (integer or 16-bit boolean), int32_t (long), float (single), double (date), Money (currency), Text<N>
// (fixed string), std::array<T, N> (array), Reserved<N> (bytes kept as they
// are but read by nothing), and any record declared the same way (nested).
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "world/cp1252.h"
#include "world/numbers.h"

namespace trovane {

// A fixed string of N bytes. Held as UTF-8 without its blank padding; written
// cut or blank-padded to exactly N Windows-1252 bytes.
template <std::size_t N>
struct Text {
    std::string value;

    Text() = default;
    Text(const char* s) : value(s) {}
    Text(std::string s) : value(std::move(s)) {}
    Text(std::string_view s) : value(s) {}

    Text& operator=(const char* s) {
        value = s;
        return *this;
    }
    Text& operator=(std::string s) {
        value = std::move(s);
        return *this;
    }
    Text& operator=(std::string_view s) {
        value = s;
        return *this;
    }

    const std::string& str() const { return value; }
    bool empty() const { return value.find_first_not_of(' ') == std::string::npos; }
    friend bool operator==(const Text& a, const Text& b) { return a.value == b.value; }
    friend bool operator==(const Text& a, std::string_view b) { return a.value == b; }
    friend bool operator==(const Text& a, const char* b) { return a.value == b; }
    friend bool operator==(const Text& a, const std::string& b) { return a.value == b; }
    static constexpr std::size_t width = N;
};

template <std::size_t N>
using Reserved = std::array<uint8_t, N>;

template <class T>
struct IsText : std::false_type {};
template <std::size_t N>
struct IsText<Text<N>> : std::true_type {};
template <class T>
struct IsStdArray : std::false_type {};
template <class T, std::size_t N>
struct IsStdArray<std::array<T, N>> : std::true_type {};
template <class T>
struct IsNumberArray : std::false_type {};
template <class T, std::size_t N>
struct IsNumberArray<std::array<T, N>> : std::is_arithmetic<T> {};

template <class T>
concept PackedRecord = requires {
    T::packedLength();
};

// Bytes a field takes in the file.
template <class T>
constexpr std::size_t wireSize() {
    if constexpr (IsText<T>::value)
        return T::width;
    else if constexpr (IsStdArray<T>::value)
        return std::tuple_size_v<T> * wireSize<typename T::value_type>();
    else if constexpr (PackedRecord<T>)
        return T::packedLength();
    else {
        static_assert(std::is_arithmetic_v<T>, "unknown field kind");
        return sizeof(T);
    }
}

namespace codec {

// On a little-endian machine a number's bytes are already in file order.
inline constexpr bool kFileOrder = std::endian::native == std::endian::little;

template <class T>
using UnsignedOfSize = std::conditional_t<
    sizeof(T) == 1, uint8_t,
    std::conditional_t<sizeof(T) == 2, uint16_t, std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>>>;

template <class T>
void putScalar(uint8_t* out, T v) {
    if constexpr (kFileOrder) {
        std::memcpy(out, &v, sizeof(T));
    } else {
        auto bits = std::bit_cast<UnsignedOfSize<T>>(v);
        for (std::size_t i = 0; i < sizeof(T); ++i) out[i] = static_cast<uint8_t>(bits >> (8 * i));
    }
}

template <class T>
T getScalar(const uint8_t* in) {
    if constexpr (kFileOrder) {
        T v;
        std::memcpy(&v, in, sizeof(T));
        return v;
    } else {
        using U = UnsignedOfSize<T>;
        U bits = 0;
        for (std::size_t i = 0; i < sizeof(T); ++i) bits |= static_cast<U>(static_cast<U>(in[i]) << (8 * i));
        return std::bit_cast<T>(bits);
    }
}

inline void putTextBytes(uint8_t* out, std::size_t width, std::string_view bytes) {
    std::size_t n = bytes.size() < width ? bytes.size() : width;
    std::memcpy(out, bytes.data(), n);
    std::memset(out + n, ' ', width - n);
}

template <std::size_t N>
void putText(uint8_t* out, const Text<N>& t) {
    if (isAscii(t.value))
        putTextBytes(out, N, t.value);
    else
        putTextBytes(out, N, utf8ToCp1252(t.value));
}

template <std::size_t N>
void getText(const uint8_t* in, Text<N>& t) {
    const std::string_view bytes(reinterpret_cast<const char*>(in), unpaddedLength(in, N));
    // The padding is plain blanks, so the whole field is plain ASCII when its text is.
    bool ascii = false;
#if defined(__SSE2__)
    if constexpr (N >= 16)
        ascii = isAsciiWide(in, N);
    else
        ascii = isAscii(bytes);
#else
    ascii = isAscii(bytes);
#endif
    if (ascii) {
        // A record read again, or a field many records share, often holds the text already.
        if (t.value.size() != bytes.size() || std::memcmp(t.value.data(), bytes.data(), bytes.size()) != 0)
            t.value.assign(bytes);
        return;
    }
    t.value.clear();
    appendCp1252AsUtf8(t.value, bytes);
}

template <class T>
void put(uint8_t*& out, const T& v);
template <class T>
void get(const uint8_t*& in, T& v);

struct Writer {
    uint8_t* out;
    template <class T>
    void operator()(const char*, const T& v) {
        put(out, v);
    }
};

struct Reader {
    const uint8_t* in;
    template <class T>
    void operator()(const char*, T& v) {
        get(in, v);
    }
};

template <class T>
void put(uint8_t*& out, const T& v) {
    if constexpr (IsText<T>::value) {
        putText(out, v);
        out += T::width;
    } else if constexpr (kFileOrder && IsNumberArray<T>::value) {
        static_assert(sizeof(v) == wireSize<T>());
        std::memcpy(out, v.data(), sizeof(v));
        out += sizeof(v);
    } else if constexpr (IsStdArray<T>::value) {
        for (const auto& e : v) put(out, e);
    } else if constexpr (PackedRecord<T>) {
        Writer w{out};
        T::forEachField(v, w);
        out = w.out;
    } else {
        putScalar(out, v);
        out += sizeof(T);
    }
}

template <class T>
void get(const uint8_t*& in, T& v) {
    if constexpr (IsText<T>::value) {
        getText(in, v);
        in += T::width;
    } else if constexpr (kFileOrder && IsNumberArray<T>::value) {
        std::memcpy(v.data(), in, sizeof(v));
        in += sizeof(v);
    } else if constexpr (IsStdArray<T>::value) {
        for (auto& e : v) get(in, e);
    } else if constexpr (PackedRecord<T>) {
        Reader r{in};
        T::forEachField(v, r);
        in = r.in;
    } else {
        v = getScalar<T>(in);
        in += sizeof(T);
    }
}

}  // namespace codec

// Packs a record into exactly R::kLength bytes.
template <PackedRecord R>
void encodeRecord(const R& rec, uint8_t* out) {
    codec::put(out, rec);
}

// Unpacks R::kLength bytes into a record.
template <PackedRecord R>
void decodeRecord(const uint8_t* in, R& rec) {
    codec::get(in, rec);
}

template <PackedRecord R>
std::optional<std::size_t> fieldOffset(std::string_view path);

namespace codec {

// Adds up the packed widths of the fields before the one named.
struct OffsetFinder {
    std::string_view path;
    std::size_t at = 0;
    bool done = false;
    std::optional<std::size_t> found;

    template <class T>
    void operator()(const char* name, const T&) {
        if (done) return;
        std::string_view head = path.substr(0, path.find('.'));
        if (head != name) {
            at += wireSize<T>();
            return;
        }
        done = true;
        if (head.size() == path.size()) {
            found = at;
        } else if constexpr (PackedRecord<T>) {
            if (auto inner = fieldOffset<T>(path.substr(head.size() + 1))) found = at + *inner;
        }
    }
};

}  // namespace codec

// The byte offset of a field in the packed record, by its name; a dotted name
// ("player.gameNumber") looks into a nested record. Empty for a name the record lacks.
template <PackedRecord R>
std::optional<std::size_t> fieldOffset(std::string_view path) {
    const R probe{};
    codec::OffsetFinder finder;
    finder.path = path;
    R::forEachField(probe, finder);
    return finder.found;
}

}  // namespace trovane

#define TROVANE_FIELD_MEMBER(name, ...) __VA_ARGS__ name{};
#define TROVANE_FIELD_VISIT(name, ...) visit(#name, self.name);
#define TROVANE_FIELD_SIZE(name, ...) +::trovane::wireSize<__VA_ARGS__>()

#define TROVANE_RECORD_BODY(Type, length, FIELDS)                                        \
    FIELDS(TROVANE_FIELD_MEMBER)                                                         \
    static constexpr std::size_t kLength = length;                                       \
    static constexpr const char* kTypeName = #Type;                                      \
    template <class Self, class Visitor>                                                 \
    static void forEachField(Self& self, Visitor& visit) {                               \
        FIELDS(TROVANE_FIELD_VISIT)                                                      \
    }                                                                                    \
    static constexpr std::size_t packedLength() { return 0 FIELDS(TROVANE_FIELD_SIZE); } \
    friend bool operator==(const Type&, const Type&) = default;

// A record whose field idField holds its own record number.
#define TROVANE_RECORD(Type, length, idField, FIELDS)     \
    struct Type {                                         \
        TROVANE_RECORD_BODY(Type, length, FIELDS)         \
        static constexpr bool kHasId = true;              \
        auto& ownNumber() { return idField; }             \
        const auto& ownNumber() const { return idField; } \
    };                                                    \
    static_assert(Type::packedLength() == Type::kLength, #Type " does not pack to its record length")

// A record with no field of its own number (nested parts, one-record files).
#define TROVANE_RECORD_NOID(Type, length, FIELDS) \
    struct Type {                                 \
        TROVANE_RECORD_BODY(Type, length, FIELDS) \
        static constexpr bool kHasId = false;     \
    };                                            \
    static_assert(Type::packedLength() == Type::kLength, #Type " does not pack to its record length")

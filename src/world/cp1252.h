#pragma once
// Fixed strings are stored as Windows-1252 bytes and held in memory as UTF-8.
#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace trovane {

// One Windows-1252 byte as UTF-8. The five bytes with no character there come
// back as the C1 control of the same number, so that any byte survives a round trip.
std::string cp1252ToUtf8(std::string_view bytes);
// The same, appended to out (which keeps its capacity: a walk over a table
// reuses the buffer's strings instead of allocating new ones).
void appendCp1252AsUtf8(std::string& out, std::string_view bytes);

// UTF-8 to Windows-1252; a character that has no byte there becomes "?".
std::string utf8ToCp1252(std::string_view text);

// True when every byte is below 0x80: then both encodings are the same bytes.
// Sixteen or eight bytes at a time: text is short, so one pass without a branch per byte.
inline bool isAscii(std::string_view s) {
    std::size_t i = 0;
#if defined(__SSE2__)
    int high16 = 0;
    for (; i + 16 <= s.size(); i += 16)
        high16 |= _mm_movemask_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(s.data() + i)));
    if (high16 != 0) return false;
#endif
    uint64_t high = 0;
    for (; i + 8 <= s.size(); i += 8) {
        uint64_t word;
        std::memcpy(&word, s.data() + i, 8);
        high |= word;
    }
    for (; i < s.size(); ++i) high |= static_cast<uint8_t>(s[i]);
    return (high & 0x8080808080808080ULL) == 0;
}

// True when all n bytes, n at least 16, are below 0x80: sixteen at a time,
// the last sixteen overlapping those before when n is not a multiple.
#if defined(__SSE2__)
inline bool isAsciiWide(const uint8_t* in, std::size_t n) {
    int high = 0;
    std::size_t i = 0;
    for (; i + 16 <= n; i += 16) high |= _mm_movemask_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(in + i)));
    if (i < n) high |= _mm_movemask_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(in + n - 16)));
    return high == 0;
}
#endif

// The length of a fixed string's n bytes without the blanks that pad it.
inline std::size_t unpaddedLength(const uint8_t* in, std::size_t n) {
#if defined(__SSE2__)
    const __m128i blanks = _mm_set1_epi8(' ');
    for (; n >= 16; n -= 16) {
        const auto blank = static_cast<unsigned>(
            _mm_movemask_epi8(_mm_cmpeq_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(in + n - 16)), blanks)));
        if (blank != 0xFFFFU) return n - static_cast<std::size_t>(std::countl_one(blank << 16));
    }
#endif
    constexpr uint64_t kEightBlanks = 0x2020202020202020ULL;
    for (; n >= 8; n -= 8) {
        uint64_t word;
        std::memcpy(&word, in + n - 8, 8);
        if (word != kEightBlanks) break;
    }
    while (n > 0 && in[n - 1] == ' ') --n;
    return n;
}

}  // namespace trovane

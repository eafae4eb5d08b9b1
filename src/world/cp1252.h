#pragma once
// Fixed strings are stored as Windows-1252 bytes and held in memory as UTF-8.
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

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
// Eight bytes at a time: text is short, so one pass without a branch per byte.
inline bool isAscii(std::string_view s) {
    uint64_t high = 0;
    std::size_t i = 0;
    for (; i + 8 <= s.size(); i += 8) {
        uint64_t word;
        std::memcpy(&word, s.data() + i, 8);
        high |= word;
    }
    for (; i < s.size(); ++i) high |= static_cast<uint8_t>(s[i]);
    return (high & 0x8080808080808080ULL) == 0;
}

}  // namespace trovane

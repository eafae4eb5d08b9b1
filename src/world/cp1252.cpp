#include "world/cp1252.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace trovane {
namespace {

// Code points of bytes 0x80 to 0x9F; the rest of the byte range is Latin-1.
constexpr std::array<char32_t, 32> kHighControls = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void appendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

char byteFor(char32_t cp) {
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<char>(cp);
    for (std::size_t i = 0; i < kHighControls.size(); ++i)
        if (kHighControls[i] == cp) return static_cast<char>(0x80 + i);
    return '?';
}

}  // namespace

std::string cp1252ToUtf8(std::string_view bytes) {
    std::string out;
    appendCp1252AsUtf8(out, bytes);
    return out;
}

void appendCp1252AsUtf8(std::string& out, std::string_view bytes) {
    if (isAscii(bytes)) {
        out.append(bytes);
        return;
    }
    out.reserve(out.size() + bytes.size() * 2);
    std::size_t i = 0;
    while (i < bytes.size()) {
        std::size_t plain = i;  // a run of plain ASCII goes across whole
        while (plain < bytes.size() && static_cast<uint8_t>(bytes[plain]) < 0x80) ++plain;
        out.append(bytes.data() + i, plain - i);
        if (plain == bytes.size()) break;
        auto b = static_cast<uint8_t>(bytes[plain]);
        appendUtf8(out, b < 0xA0 ? kHighControls[b - 0x80] : char32_t{b});
        i = plain + 1;
    }
}

std::string utf8ToCp1252(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    std::size_t i = 0;
    while (i < text.size()) {
        auto b = static_cast<uint8_t>(text[i]);
        if (b < 0x80) {
            out += static_cast<char>(b);
            ++i;
            continue;
        }
        int extra = (b >= 0xF0) ? 3 : (b >= 0xE0) ? 2 : (b >= 0xC0) ? 1 : -1;
        if (extra < 0 || i + extra >= text.size()) {
            // A stray continuation byte or a cut sequence: no character, no byte.
            out += '?';
            ++i;
            continue;
        }
        char32_t cp = b & (0x3F >> extra);
        bool ok = true;
        for (int k = 1; k <= extra; ++k) {
            auto cb = static_cast<uint8_t>(text[i + k]);
            if ((cb & 0xC0) != 0x80) {
                ok = false;
                break;
            }
            cp = (cp << 6) | (cb & 0x3F);
        }
        if (!ok) {
            out += '?';
            ++i;
            continue;
        }
        out += byteFor(cp);
        i += extra + 1;
    }
    return out;
}

}  // namespace trovane

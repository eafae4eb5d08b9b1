#include "floor/text_rules.h"

#include <cstdint>
#include <optional>

#include <fmt/format.h>

#include "world/cp1252.h"
#include "world/strings.h"

namespace trovane {

namespace {

struct Decoded {
    char32_t cp;
    std::size_t length;  // bytes taken; 0 when the bytes are no UTF-8
};

Decoded decodeAt(std::string_view s, std::size_t i) {
    auto byte = [&](std::size_t k) { return static_cast<uint8_t>(s[k]); };
    uint8_t b = byte(i);
    if (b < 0x80) return {b, 1};
    std::size_t len = (b & 0xE0) == 0xC0 ? 2 : (b & 0xF0) == 0xE0 ? 3 : (b & 0xF8) == 0xF0 ? 4 : 0;
    if (len == 0 || i + len > s.size()) return {0, 0};
    char32_t cp = b & (0x7F >> len);
    for (std::size_t k = 1; k < len; ++k) {
        if ((byte(i + k) & 0xC0) != 0x80) return {0, 0};
        cp = (cp << 6) | (byte(i + k) & 0x3F);
    }
    static constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
    if (cp < kLeast[len] || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return {0, 0};
    return {cp, len};
}

bool isControl(char32_t cp) { return cp < 0x20 || (cp >= 0x7F && cp <= 0x9F); }

// The name a player can read for a control character.
std::string controlName(char32_t cp) {
    switch (cp) {
    case '\t': return "a tab";
    case '\n': return "a line break";
    case '\r': return "a carriage return";
    case 0x1B: return "an escape";
    default: return fmt::format("the control character U+{:04X}", static_cast<uint32_t>(cp));
    }
}

}  // namespace

std::string textRefusal(std::string_view what, std::string_view text, std::size_t width) {
    std::string trimmed = trim(text);
    // Only blanks and control characters count as nothing typed.
    bool blank = true;
    std::size_t characters = 0;
    for (std::size_t i = 0; i < trimmed.size();) {
        Decoded d = decodeAt(trimmed, i);
        if (d.length == 0) return fmt::format("{} holds bytes that are not text.", what);
        if (isControl(d.cp))
            return fmt::format("{} holds {}; type letters, digits and punctuation only.", what, controlName(d.cp));
        std::string one(trimmed.substr(i, d.length));
        if (utf8ToCp1252(one) == "?" && one != "?")
            return fmt::format("{} holds \"{}\", a character the game cannot store.", what, one);
        blank = blank && d.cp == ' ';
        ++characters;
        i += d.length;
    }
    if (blank) return fmt::format("{} cannot be blank.", what);
    if (characters > width)
        return fmt::format("{} is {} characters long; it may be at most {}.", what, characters, width);
    return {};
}

std::string saveNameRefusal(std::string_view name) { return textRefusal("The save's name", name, kSaveNameWidth); }

std::string foldCapitals(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size();) {
        Decoded d = decodeAt(text, i);
        if (d.length == 0) {
            out += text[i++];
            continue;
        }
        char32_t cp = d.cp;
        if ((cp >= 'A' && cp <= 'Z') || (cp >= 0xC0 && cp <= 0xDE && cp != 0xD7)) cp += 0x20;
        if (cp < 0x80) {
            out += static_cast<char>(cp);
        } else {
            std::string_view orig = text.substr(i, d.length);
            if (cp == d.cp) {
                out += orig;
            } else {  // a Latin-1 capital: two bytes, 0xC3 then the small letter's tail
                out += static_cast<char>(0xC0 | (cp >> 6));
                out += static_cast<char>(0x80 | (cp & 0x3F));
            }
        }
        i += d.length;
    }
    return out;
}

}  // namespace trovane

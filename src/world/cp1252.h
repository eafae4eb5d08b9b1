#pragma once
// Fixed strings are stored as Windows-1252 bytes and held in memory as UTF-8.
#include <string>
#include <string_view>

namespace trovane {

// One Windows-1252 byte as UTF-8. The five bytes with no character there come
// back as the C1 control of the same number, so that any byte survives a round trip.
std::string cp1252ToUtf8(std::string_view bytes);

// UTF-8 to Windows-1252; a character that has no byte there becomes "?".
std::string utf8ToCp1252(std::string_view text);

}  // namespace trovane

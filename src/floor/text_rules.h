#pragma once
// The rules every text the player types must keep before the game stores it in a
// fixed field: not blank, no control characters, every character one the field's
// Windows-1252 bytes can hold, and no longer than the field.
#include <cstddef>
#include <string>
#include <string_view>

namespace trovane {

// Why `text`, typed for the field called `what` ("The forename"), cannot be stored
// in `width` bytes; empty when it can. The text is measured as the game stores it,
// blanks at both ends cut off.
std::string textRefusal(std::string_view what, std::string_view text, std::size_t width);

// A save's name: the same rules, for the 32 characters of the slot's name.
inline constexpr std::size_t kSaveNameWidth = 32;
std::string saveNameRefusal(std::string_view name);

// The text with ASCII and Latin-1 capitals made small, for comparing names in any capitals.
std::string foldCapitals(std::string_view text);

}  // namespace trovane

#pragma once
#include <string>
#include <string_view>

namespace trovane {

// Blanks cut from both ends, as every reader of a fixed string does before showing or comparing it.
inline std::string trim(std::string_view s) {
    auto b = s.find_first_not_of(' ');
    if (b == std::string_view::npos) return {};
    auto e = s.find_last_not_of(' ');
    return std::string(s.substr(b, e - b + 1));
}

}  // namespace trovane

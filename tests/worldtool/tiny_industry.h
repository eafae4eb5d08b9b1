#pragma once
// A tiny industry on top of the tiny world: two labels and their staff, a
// signed band with an album and a single, an unsigned solo act in a second
// acts file, a hidden act, a ceremony, a crime story and three firms.
#include <filesystem>
#include <map>
#include <string>

namespace trovane::test {

// The industry's source files by name.
std::map<std::string, std::string> tinyIndustrySources();

// Writes the tiny world and the tiny industry into the folder.
void writeTinyWorldWithIndustry(const std::filesystem::path& folder);

}  // namespace trovane::test

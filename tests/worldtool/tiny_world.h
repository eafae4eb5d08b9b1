#pragma once
// A tiny but complete world source, written into a folder for one test.
#include <filesystem>
#include <string_view>

namespace trovane::test {

// Writes the tiny world's *.toml files into the folder.
void writeTinyWorld(const std::filesystem::path& folder);

// Writes (or replaces) one source file.
void writeSource(const std::filesystem::path& folder, std::string_view file, std::string_view text);

}  // namespace trovane::test

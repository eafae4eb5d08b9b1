#pragma once
// A small base world (*.gam) in a temporary folder: a few countries with
// cities, two styles, a rival label with a signed band, and every other table
// present and empty, as a new game expects.
#include <filesystem>

namespace trovane::test {

void writeTinyBaseWorld(const std::filesystem::path& dataDir);

// Writes the base set's manifest anew, after a test changed one of its files.
void proveBaseWorld(const std::filesystem::path& dataDir);

}  // namespace trovane::test

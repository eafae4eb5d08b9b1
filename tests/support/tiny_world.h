#pragma once
// A base world small enough to write by hand: every table of the set as an
// empty .gam file, plus three countries, four cities, two styles, a label
// with one band, and a few "did you know" lines.
#include <filesystem>

namespace trovane::test {

void writeTinyWorld(const std::filesystem::path& dataDir);

}  // namespace trovane::test

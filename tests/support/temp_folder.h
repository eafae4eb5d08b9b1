#pragma once
// A fresh, empty folder for one test, removed again when the test ends.
#include <filesystem>
#include <string>

namespace trovane::test {

class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

}  // namespace trovane::test

#pragma once
// The files of a folder and their bytes.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace trovane::test {

// Every file of the folder by name or, given an extension, the files of that extension by stem.
inline std::map<std::string, std::string> folderFiles(const std::filesystem::path& dir, const std::string& ext = "") {
    std::map<std::string, std::string> out;
    for (const auto& e : std::filesystem::directory_iterator(dir)) {
        if (!e.is_regular_file() || (!ext.empty() && e.path().extension() != "." + ext)) continue;
        std::ifstream in(e.path(), std::ios::binary);
        out[(ext.empty() ? e.path().filename() : e.path().stem()).string()] =
            std::string(std::istreambuf_iterator<char>(in), {});
    }
    return out;
}

}  // namespace trovane::test

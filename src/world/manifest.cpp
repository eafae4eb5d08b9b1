#include "world/manifest.h"

#include <fcntl.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

#include <fmt/format.h>

#include "world/fatal_error.h"

namespace trovane {

namespace fs = std::filesystem;

namespace {

constexpr const char* kFirstLine = "trovane manifest 1";

// 17550 -> "17,550"
std::string grouped(uint64_t n) {
    std::string digits = std::to_string(n);
    std::string out;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) out += ',';
        out += digits[i];
    }
    return out;
}

void syncPath(const fs::path& p, int flags) {
    int fd = ::open(p.c_str(), flags | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

struct Parsed {
    std::map<std::string, ManifestEntry> entries;
    std::optional<std::string> fault;
};

Parsed parse(const fs::path& manifest) {
    Parsed out;
    std::string name = manifest.filename().string();
    std::ifstream file(manifest, std::ios::binary);
    if (!file) {
        out.fault = fmt::format("{} is missing", name);
        return out;
    }
    std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    // Every line, the last included, ends with a newline: a manifest that does not was cut.
    if (text.empty() || text.back() != '\n') {
        out.fault = fmt::format("{} is cut short", name);
        return out;
    }
    std::istringstream in(text);
    std::string line;
    if (!std::getline(in, line) || line != kFirstLine) {
        out.fault = fmt::format("{} is not a manifest", name);
        return out;
    }
    int lineNo = 1;
    while (std::getline(in, line)) {
        ++lineNo;
        std::istringstream words(line);
        std::string first;
        words >> first;
        if (first == "end") {
            std::size_t count = 0;
            std::string rest;
            if (!(words >> count) || (words >> rest) || in.peek() != std::char_traits<char>::eof())
                out.fault = fmt::format("{} is damaged at line {}", name, lineNo);
            else if (count != out.entries.size())
                out.fault = fmt::format("{} is cut short: it lists {} files of {}", name, out.entries.size(), count);
            return out;
        }
        ManifestEntry e{first, 0, 0};
        std::string crc, rest;
        if (first.empty() || !(words >> e.length >> crc) || (words >> rest) || crc.size() != 8 ||
            crc.find_first_not_of("0123456789abcdef") != std::string::npos) {
            out.fault = fmt::format("{} is damaged at line {}", name, lineNo);
            return out;
        }
        e.crc = static_cast<uint32_t>(std::stoul(crc, nullptr, 16));
        out.entries[first] = e;
    }
    out.fault = fmt::format("{} is cut short", name);
    return out;
}

}  // namespace

ManifestEntry describeFile(const fs::path& file) {
    int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) throw BrokenDataError(fmt::format("Cannot read {}: {}", file.string(), std::strerror(errno)));
    ManifestEntry e{file.filename().string(), 0, 0};
    uLong crc = crc32(0L, Z_NULL, 0);
    std::vector<unsigned char> buf(1 << 16);
    for (;;) {
        ssize_t got = ::read(fd, buf.data(), buf.size());
        if (got < 0) {
            int err = errno;
            ::close(fd);
            throw BrokenDataError(fmt::format("Cannot read {}: {}", file.string(), std::strerror(err)));
        }
        if (got == 0) break;
        crc = crc32(crc, buf.data(), static_cast<uInt>(got));
        e.length += static_cast<uint64_t>(got);
    }
    ::close(fd);
    e.crc = static_cast<uint32_t>(crc);
    return e;
}

void writeManifest(const fs::path& manifest, const std::vector<fs::path>& files) {
    std::vector<ManifestEntry> entries;
    for (const auto& f : files) entries.push_back(describeFile(f));
    std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    std::string text = std::string(kFirstLine) + "\n";
    for (const auto& e : entries) text += fmt::format("{} {} {:08x}\n", e.name, e.length, e.crc);
    text += fmt::format("end {}\n", entries.size());
    fs::path tmp = manifest;
    tmp += ".tmp";
    {
        std::ofstream out(tmp, std::ios::binary | std::ios::trunc);
        out << text;
        if (!out.flush()) throw FatalError(fmt::format("Cannot write {}", tmp.string()));
    }
    syncPath(tmp, O_RDONLY);
    std::error_code ec;
    fs::rename(tmp, manifest, ec);
    if (ec) throw FatalError(fmt::format("Cannot write {}: {}", manifest.string(), ec.message()));
    syncPath(manifest.parent_path(), O_RDONLY | O_DIRECTORY);
}

std::optional<std::vector<std::string>> manifestNames(const fs::path& manifest) {
    Parsed p = parse(manifest);
    if (p.fault) return std::nullopt;
    std::vector<std::string> names;
    for (const auto& [name, entry] : p.entries) names.push_back(name);
    return names;
}

std::optional<std::string> manifestFault(const fs::path& manifest, const std::vector<std::string>& present) {
    Parsed p = parse(manifest);
    if (p.fault) return p.fault;
    fs::path dir = manifest.parent_path();
    for (const auto& [name, want] : p.entries) {
        std::error_code ec;
        if (!fs::is_regular_file(dir / name, ec)) return fmt::format("{} is missing", name);
        ManifestEntry have = describeFile(dir / name);
        if (have.length != want.length)
            return fmt::format("{}: {} bytes expected, {} found", name, grouped(want.length), grouped(have.length));
        if (have.crc != want.crc)
            return fmt::format("{}: checksum {:08x} expected, {:08x} found", name, want.crc, have.crc);
    }
    for (const auto& name : present)
        if (!p.entries.contains(name)) return fmt::format("{} is not in {}", name, manifest.filename().string());
    return std::nullopt;
}

fs::path baseSetManifest(const fs::path& dataDir) { return dataDir / "manifest.gam"; }

bool isPlayersFile(const std::string& name) { return name == "prefs.gam" || name == "highscore.gam"; }

std::vector<std::string> baseSetFilesPresent(const fs::path& dataDir) {
    std::vector<std::string> names;
    std::error_code ec;
    for (const auto& e : fs::directory_iterator(dataDir, ec)) {
        std::string name = e.path().filename().string();
        if (e.path().extension() == ".gam" && !isPlayersFile(name) && e.path() != baseSetManifest(dataDir))
            names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

void checkBaseSet(const fs::path& dataDir) {
    if (auto fault = manifestFault(baseSetManifest(dataDir), baseSetFilesPresent(dataDir)))
        throw BrokenDataError(fmt::format("The base set in {} is broken: {}", dataDir.string(), *fault));
}

}  // namespace trovane

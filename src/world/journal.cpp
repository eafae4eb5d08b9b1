#include "world/journal.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <cerrno>
#include <cstring>
#include <optional>
#include <string>

#include <fmt/format.h>

#include "world/fatal_error.h"

namespace trovane {

namespace fs = std::filesystem;

namespace {

constexpr char kHeader[] = "TRVJNL01";
constexpr char kMark[] = "COMMIT!!";
constexpr std::size_t kTagLength = 8;

std::function<void(CommitPoint)>& commitHook() {
    static std::function<void(CommitPoint)> hook;
    return hook;
}

void tell(CommitPoint p) {
    if (commitHook()) commitHook()(p);
}

uint32_t crcOf(const uint8_t* data, std::size_t size) {
    uLong crc = crc32(0L, Z_NULL, 0);
    while (size > 0) {
        auto chunk = static_cast<uInt>(std::min<std::size_t>(size, 1U << 30));
        crc = crc32(crc, data, chunk);
        data += chunk;
        size -= chunk;
    }
    return static_cast<uint32_t>(crc);
}

template <class T>
void put(std::vector<uint8_t>& out, T value) {
    for (std::size_t i = 0; i < sizeof(T); ++i) out.push_back(static_cast<uint8_t>(value >> (8 * i)));
}

template <class T>
std::optional<T> get(const std::vector<uint8_t>& in, std::size_t& at) {
    if (in.size() - at < sizeof(T)) return std::nullopt;
    T value = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i) value |= static_cast<T>(static_cast<T>(in[at + i]) << (8 * i));
    at += sizeof(T);
    return value;
}

std::string nameIn(const fs::path& dataDir, const fs::path& file) {
    fs::path rel = file.lexically_relative(dataDir);
    if (rel.empty() || *rel.begin() == "..") return file.string();
    return rel.string();
}

fs::path fileOf(const fs::path& dataDir, const std::string& name) {
    fs::path p(name);
    return p.is_absolute() ? p : dataDir / p;
}

// The journal of the writes, in `out` (emptied first).
void encode(const fs::path& dataDir, const std::vector<FileWrite>& writes, std::vector<uint8_t>& out) {
    std::size_t size = kTagLength * 2 + 8;
    for (const auto& w : writes) size += 2 + w.file.native().size() + 24 + w.data().size();
    out.clear();
    out.reserve(size);
    out.insert(out.end(), kHeader, kHeader + kTagLength);
    // A file's writes come together: its name is worked out once for them.
    const fs::path* named = nullptr;
    std::string name;
    for (const auto& w : writes) {
        if (named == nullptr || named->native() != w.file.native()) {
            name = nameIn(dataDir, w.file);
            named = &w.file;
        }
        put<uint16_t>(out, static_cast<uint16_t>(name.size()));
        out.insert(out.end(), name.begin(), name.end());
        put<uint64_t>(out, w.length);
        put<uint64_t>(out, w.offset);
        const std::span<const uint8_t> bytes = w.data();
        put<uint64_t>(out, bytes.size());
        out.insert(out.end(), bytes.begin(), bytes.end());
    }
    uint32_t crc = crcOf(out.data(), out.size());
    out.insert(out.end(), kMark, kMark + kTagLength);
    put<uint32_t>(out, static_cast<uint32_t>(writes.size()));
    put<uint32_t>(out, crc);
}

// The writes of a complete journal, or nothing for an incomplete one.
std::optional<std::vector<FileWrite>> decode(const fs::path& dataDir, const std::vector<uint8_t>& in) {
    constexpr std::size_t kMarkLength = kTagLength + 8;
    if (in.size() < kTagLength + kMarkLength || std::memcmp(in.data(), kHeader, kTagLength) != 0) return std::nullopt;
    std::size_t body = in.size() - kMarkLength;
    if (std::memcmp(in.data() + body, kMark, kTagLength) != 0) return std::nullopt;
    std::size_t at = body + kTagLength;
    auto count = get<uint32_t>(in, at);
    auto crc = get<uint32_t>(in, at);
    if (!count || !crc || *crc != crcOf(in.data(), body)) return std::nullopt;
    std::vector<FileWrite> writes;
    at = kTagLength;
    while (at < body) {
        auto nameLength = get<uint16_t>(in, at);
        if (!nameLength || body - at < *nameLength) return std::nullopt;
        std::string name(in.begin() + static_cast<std::ptrdiff_t>(at),
                         in.begin() + static_cast<std::ptrdiff_t>(at + *nameLength));
        at += *nameLength;
        auto length = get<uint64_t>(in, at);
        auto offset = get<uint64_t>(in, at);
        auto size = get<uint64_t>(in, at);
        if (!length || !offset || !size || body - at < *size) return std::nullopt;
        FileWrite w{fileOf(dataDir, name), *length, *offset, {}};
        w.bytes.assign(in.begin() + static_cast<std::ptrdiff_t>(at),
                       in.begin() + static_cast<std::ptrdiff_t>(at + *size));
        at += *size;
        writes.push_back(std::move(w));
    }
    if (writes.size() != *count) return std::nullopt;
    return writes;
}

void writeWhole(const fs::path& file, const std::vector<uint8_t>& bytes) {
    int fd = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) throw FatalError(fmt::format("Cannot write {}: {}", file.string(), std::strerror(errno)));
    std::size_t done = 0;
    while (done < bytes.size()) {
        ssize_t put = ::write(fd, bytes.data() + done, bytes.size() - done);
        if (put <= 0) {
            int err = errno;
            ::close(fd);
            throw FatalError(fmt::format("Cannot write {}: {}", file.string(), std::strerror(err)));
        }
        done += static_cast<std::size_t>(put);
    }
    ::close(fd);
}

std::optional<std::vector<uint8_t>> readWhole(const fs::path& file) {
    std::error_code ec;
    auto size = fs::file_size(file, ec);
    if (ec) return std::nullopt;
    std::vector<uint8_t> bytes(size);
    int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return std::nullopt;
    std::size_t done = 0;
    while (done < size) {
        ssize_t got = ::pread(fd, bytes.data() + done, size - done, static_cast<off_t>(done));
        if (got <= 0) break;
        done += static_cast<std::size_t>(got);
    }
    ::close(fd);
    bytes.resize(done);
    return bytes;
}

void setLength(int fd, const FileWrite& w) {
    if (::ftruncate(fd, static_cast<off_t>(w.length)) != 0)
        throw FatalError(fmt::format("Cannot write {}: {}", w.file.string(), std::strerror(errno)));
}

void putBytes(int fd, const FileWrite& w) {
    std::size_t done = 0;
    const std::span<const uint8_t> bytes = w.data();
    while (done < bytes.size()) {
        ssize_t put = ::pwrite(fd, bytes.data() + done, bytes.size() - done, static_cast<off_t>(w.offset + done));
        if (put <= 0) throw FatalError(fmt::format("Cannot write {}: {}", w.file.string(), std::strerror(errno)));
        done += static_cast<std::size_t>(put);
    }
}

// Each file is opened once for the writes to it that stand together, and its
// length asked once.
void applyAll(const std::vector<FileWrite>& writes) {
    std::size_t i = 0;
    while (i < writes.size()) {
        const fs::path& file = writes[i].file;
        int fd = ::open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
        if (fd < 0) throw FatalError(fmt::format("Cannot write {}: {}", file.string(), std::strerror(errno)));
        try {
            struct stat st {};
            std::optional<uint64_t> length;
            if (::fstat(fd, &st) == 0) length = static_cast<uint64_t>(st.st_size);
            for (; i < writes.size() && writes[i].file == file; ++i) {
                if (length != writes[i].length) {
                    setLength(fd, writes[i]);
                    length = writes[i].length;
                }
                putBytes(fd, writes[i]);
            }
        } catch (...) {
            ::close(fd);
            throw;
        }
        ::close(fd);
        tell(CommitPoint::fileWritten);
    }
}

}  // namespace

fs::path journalFile(const fs::path& dataDir) { return dataDir / "journal.jnl"; }

void applyWrite(int fd, const FileWrite& w) {
    struct stat st {};
    if (::fstat(fd, &st) != 0 || static_cast<uint64_t>(st.st_size) != w.length) setLength(fd, w);
    putBytes(fd, w);
}

void commitWrites(const fs::path& dataDir, const std::vector<FileWrite>& writes) {
    if (writes.empty()) return;
    fs::path journal = journalFile(dataDir);
    // The journal is put together in memory kept from one commit to the next,
    // so a day's commit does not fault in fresh pages for it; a commit of
    // unusual size does not keep its memory.
    constexpr std::size_t kKeptJournal = std::size_t{4} << 20;
    static thread_local std::vector<uint8_t> bytes;
    encode(dataDir, writes, bytes);
    writeWhole(journal, bytes);
    if (bytes.capacity() > kKeptJournal) bytes = std::vector<uint8_t>();
    tell(CommitPoint::journalWritten);
    applyAll(writes);
    std::error_code ec;
    fs::remove(journal, ec);
    if (ec) throw FatalError(fmt::format("Cannot remove the journal {}: {}", journal.string(), ec.message()));
    tell(CommitPoint::committed);
}

JournalOutcome recoverJournal(const fs::path& dataDir) {
    fs::path journal = journalFile(dataDir);
    std::error_code ec;
    if (!fs::exists(journal, ec)) return JournalOutcome::none;
    auto bytes = readWhole(journal);
    auto writes = bytes ? decode(dataDir, *bytes) : std::nullopt;
    if (writes) applyAll(*writes);
    fs::remove(journal, ec);
    if (ec) throw FatalError(fmt::format("Cannot remove the journal {}: {}", journal.string(), ec.message()));
    return writes ? JournalOutcome::replayed : JournalOutcome::dropped;
}

void setCommitHook(std::function<void(CommitPoint)> hook) { commitHook() = std::move(hook); }

}  // namespace trovane

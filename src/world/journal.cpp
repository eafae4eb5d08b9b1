#include "world/journal.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <bit>
#include <cerrno>
#include <cstring>
#include <optional>
#include <string>

#include <fmt/format.h>

#include "world/fatal_error.h"

namespace trovane {

namespace fs = std::filesystem;

namespace {

constexpr char kHeader[] = "TRVJNL02";
constexpr char kClosedHeader[] = "TRVJNL--";
constexpr char kMark[] = "COMMIT!!";
constexpr std::size_t kTagLength = 8;
constexpr std::size_t kHeaderLength = kTagLength + 8;
constexpr std::size_t kMarkLength = kTagLength + 4 + 8;
// A journal kept in memory or on disk beyond what a commit needs: enough for
// any day's, not the whole world a new game writes.
constexpr std::size_t kKeptJournal = std::size_t{4} << 20;

std::function<void(CommitPoint)>& commitHook() {
    static std::function<void(CommitPoint)> hook;
    return hook;
}

void tell(CommitPoint p) {
    if (commitHook()) commitHook()(p);
}

uint64_t load64(const uint8_t* p) {
    static_assert(std::endian::native == std::endian::little);
    uint64_t v = 0;
    std::memcpy(&v, p, sizeof v);
    return v;
}

constexpr uint64_t kPrime1 = 0x9E3779B185EBCA87ULL;
constexpr uint64_t kPrime2 = 0xC2B2AE3D27D4EB4FULL;
constexpr uint64_t kPrime3 = 0x165667B19E3779F9ULL;

uint64_t mixIn(uint64_t lane, uint64_t word) { return std::rotl(lane + word * kPrime2, 31) * kPrime1; }

// A 64-bit checksum of the bytes: four lanes of eight bytes each take in a
// stripe of 32 bytes at a time, so that a day's journal of a few hundred
// kilobytes is summed in a small part of the time a CRC-32 takes.
uint64_t checksumOf(const uint8_t* data, std::size_t size) {
    uint64_t lanes[4] = {kPrime1 + kPrime2, kPrime2, 0, 0 - kPrime1};
    std::size_t at = 0;
    for (; size - at >= 32; at += 32)
        for (int l = 0; l < 4; ++l) lanes[l] = mixIn(lanes[l], load64(data + at + 8 * l));
    uint64_t sum = std::rotl(lanes[0], 1) + std::rotl(lanes[1], 7) + std::rotl(lanes[2], 12) + std::rotl(lanes[3], 18);
    sum ^= size * kPrime3;
    for (; size - at >= 8; at += 8) sum = std::rotl(sum ^ mixIn(0, load64(data + at)), 27) * kPrime1 + kPrime3;
    for (; at < size; ++at) sum = std::rotl(sum ^ (data[at] * kPrime3), 11) * kPrime1;
    sum ^= sum >> 33;
    sum *= kPrime2;
    sum ^= sum >> 29;
    sum *= kPrime3;
    return sum ^ (sum >> 32);
}

// Puts bytes into a buffer sized beforehand.
class Filler {
public:
    explicit Filler(uint8_t* at) : at_(at) {}
    template <class T>
    void number(T value) {
        for (std::size_t i = 0; i < sizeof(T); ++i) *at_++ = static_cast<uint8_t>(value >> (8 * i));
    }
    void bytes(const void* from, std::size_t size) {
        if (size > 0) std::memcpy(at_, from, size);
        at_ += size;
    }
    uint8_t* at() const { return at_; }

private:
    uint8_t* at_;
};

template <class T>
std::optional<T> get(std::span<const uint8_t> in, std::size_t& at) {
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

// The journal of the writes, in the first bytes of `out`, which grows to hold
// it but is not cut back; returns the journal's length.
std::size_t encode(const fs::path& dataDir, const std::vector<FileWrite>& writes, std::vector<uint8_t>& out) {
    std::vector<std::string> names;
    names.reserve(writes.size());
    std::size_t size = kHeaderLength + kMarkLength;
    for (const auto& w : writes) {
        names.push_back(nameIn(dataDir, w.file));
        size += 2 + names.back().size() + 8 + 4;
        for (const Patch& p : w.patches) size += 16 + p.data().size();
    }
    // Growing the buffer only when it is too short spares zeroing the bytes
    // of a longer journal than the last each day.
    if (out.size() < size) out.resize(size);
    Filler fill(out.data());
    fill.bytes(kHeader, kTagLength);
    fill.number<uint64_t>(size);
    for (std::size_t i = 0; i < writes.size(); ++i) {
        const FileWrite& w = writes[i];
        fill.number<uint16_t>(static_cast<uint16_t>(names[i].size()));
        fill.bytes(names[i].data(), names[i].size());
        fill.number<uint64_t>(w.length);
        fill.number<uint32_t>(static_cast<uint32_t>(w.patches.size()));
        for (const Patch& p : w.patches) {
            const std::span<const uint8_t> bytes = p.data();
            fill.number<uint64_t>(p.offset);
            fill.number<uint64_t>(bytes.size());
            fill.bytes(bytes.data(), bytes.size());
        }
    }
    const uint64_t sum = checksumOf(out.data(), static_cast<std::size_t>(fill.at() - out.data()));
    fill.bytes(kMark, kTagLength);
    fill.number<uint32_t>(static_cast<uint32_t>(writes.size()));
    fill.number<uint64_t>(sum);
    return size;
}

// The writes of a complete journal, or nothing for an incomplete one.
std::optional<std::vector<FileWrite>> decode(const fs::path& dataDir, const std::vector<uint8_t>& in) {
    if (in.size() < kHeaderLength + kMarkLength || std::memcmp(in.data(), kHeader, kTagLength) != 0)
        return std::nullopt;
    std::size_t at = kTagLength;
    const auto length = get<uint64_t>(in, at);
    if (!length || *length > in.size() || *length < kHeaderLength + kMarkLength) return std::nullopt;
    const std::size_t body = *length - kMarkLength;
    if (std::memcmp(in.data() + body, kMark, kTagLength) != 0) return std::nullopt;
    at = body + kTagLength;
    auto count = get<uint32_t>(in, at);
    auto sum = get<uint64_t>(in, at);
    if (!count || !sum || *sum != checksumOf(in.data(), body)) return std::nullopt;
    // Every count below is checked against the bytes left before the mark.
    const std::span<const uint8_t> journal(in.data(), body);
    std::vector<FileWrite> writes;
    at = kHeaderLength;
    while (at < body) {
        auto nameLength = get<uint16_t>(journal, at);
        if (!nameLength || body - at < *nameLength) return std::nullopt;
        std::string name(journal.begin() + static_cast<std::ptrdiff_t>(at),
                         journal.begin() + static_cast<std::ptrdiff_t>(at + *nameLength));
        at += *nameLength;
        auto fileLength = get<uint64_t>(journal, at);
        auto patches = get<uint32_t>(journal, at);
        if (!fileLength || !patches) return std::nullopt;
        FileWrite w{fileOf(dataDir, name), *fileLength, {}};
        for (uint32_t i = 0; i < *patches; ++i) {
            auto offset = get<uint64_t>(journal, at);
            auto size = get<uint64_t>(journal, at);
            if (!offset || !size || body - at < *size) return std::nullopt;
            Patch p{*offset, {}, {}};
            p.bytes.assign(journal.begin() + static_cast<std::ptrdiff_t>(at),
                           journal.begin() + static_cast<std::ptrdiff_t>(at + *size));
            at += *size;
            w.patches.push_back(std::move(p));
        }
        writes.push_back(std::move(w));
    }
    if (writes.size() != *count) return std::nullopt;
    return writes;
}

[[noreturn]] void cannotWrite(const fs::path& file, int err) {
    throw FatalError(fmt::format("Cannot write {}: {}", file.string(), std::strerror(err)));
}

void putBytes(int fd, const fs::path& file, uint64_t offset, std::span<const uint8_t> bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        ssize_t put = ::pwrite(fd, bytes.data() + done, bytes.size() - done, static_cast<off_t>(offset + done));
        if (put <= 0) cannotWrite(file, errno);
        done += static_cast<std::size_t>(put);
    }
}

// The journal file, open for one commit.
class JournalFile {
public:
    explicit JournalFile(fs::path file) : file_(std::move(file)) {
        fd_ = ::open(file_.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
        if (fd_ < 0) cannotWrite(file_, errno);
    }
    JournalFile(const JournalFile&) = delete;
    JournalFile& operator=(const JournalFile&) = delete;
    ~JournalFile() { ::close(fd_); }

    // The file is kept from one commit to the next and written over from its
    // start, its length never cut back for a day's journal: its pages are not
    // made and dropped again each day. The header, which gives the journal's
    // length, goes first with the rest, so a write cut short leaves a journal
    // that does not check out.
    void write(std::span<const uint8_t> bytes) {
        put(0, bytes.data(), bytes.size());
        struct stat st {};
        if (::fstat(fd_, &st) == 0 && static_cast<uint64_t>(st.st_size) > bytes.size() + kKeptJournal &&
            ::ftruncate(fd_, static_cast<off_t>(bytes.size())) != 0)
            cannotWrite(file_, errno);
    }
    // Once every file holds its writes, the journal's header says it is done.
    void close() { put(0, kClosedHeader, kTagLength); }

private:
    void put(std::size_t offset, const void* data, std::size_t size) {
        putBytes(fd_, file_, offset, std::span<const uint8_t>(static_cast<const uint8_t*>(data), size));
    }
    fs::path file_;
    int fd_;
};

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

// The header of a journal file; none when it has not one whole.
std::optional<std::vector<uint8_t>> headerOf(const fs::path& file) {
    int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return std::nullopt;
    std::vector<uint8_t> header(kHeaderLength);
    const bool whole = ::pread(fd, header.data(), kHeaderLength, 0) == static_cast<ssize_t>(kHeaderLength);
    ::close(fd);
    if (!whole) return std::nullopt;
    return header;
}

// A journal whose files were all written.
bool isClosed(const fs::path& file) {
    auto header = headerOf(file);
    return header && std::memcmp(header->data(), kClosedHeader, kTagLength) == 0;
}

// How far apart two patches of a file may be and still be written as one.
// The system's cost of a write is mostly its own and that of each page it
// touches, so a page of unchanged bytes between two patches costs less to
// write again than a second write does.
constexpr uint64_t kAppliedGap = 4096;

// The end of the run of patches from `first` that can be written as one:
// patches standing in one image at the same distances as their offsets, each
// within kAppliedGap of the last. The bytes between them are the image's own,
// which the file already holds.
std::size_t joinedRunEnd(const std::vector<Patch>& patches, std::size_t first) {
    const Patch& a = patches[first];
    if (!a.bytes.empty()) return first + 1;
    std::size_t last = first;
    for (std::size_t i = first + 1; i < patches.size(); ++i) {
        const Patch& b = patches[i];
        const uint64_t lastEnd = patches[last].offset + patches[last].standing.size();
        if (!b.bytes.empty() || b.offset < lastEnd || b.offset - lastEnd > kAppliedGap ||
            reinterpret_cast<uintptr_t>(b.standing.data()) - reinterpret_cast<uintptr_t>(a.standing.data()) !=
                b.offset - a.offset)
            break;
        last = i;
    }
    return last + 1;
}

// Cuts or grows the file to its length unless it has it already, then puts
// its patches.
void applyOpen(int fd, const FileWrite& w) {
    struct stat st {};
    if ((::fstat(fd, &st) != 0 || static_cast<uint64_t>(st.st_size) != w.length) &&
        ::ftruncate(fd, static_cast<off_t>(w.length)) != 0)
        cannotWrite(w.file, errno);
    std::size_t i = 0;
    while (i < w.patches.size()) {
        const std::size_t end = joinedRunEnd(w.patches, i);
        const Patch& first = w.patches[i];
        const Patch& last = w.patches[end - 1];
        const std::size_t size = last.offset + last.data().size() - first.offset;
        putBytes(fd, w.file, first.offset, std::span<const uint8_t>(first.data().data(), size));
        i = end;
    }
}

void applyAll(const std::vector<FileWrite>& writes) {
    for (const FileWrite& w : writes) {
        int fd = ::open(w.file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
        if (fd < 0) cannotWrite(w.file, errno);
        try {
            applyOpen(fd, w);
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

void applyWrite(int fd, const FileWrite& w) { applyOpen(fd, w); }

void commitWrites(const fs::path& dataDir, const std::vector<FileWrite>& writes) {
    if (writes.empty()) return;
    JournalFile journal(journalFile(dataDir));
    // The journal is put together in memory kept from one commit to the next,
    // so a day's commit does not fault in fresh pages for it; a commit of
    // unusual size does not keep its memory.
    static thread_local std::vector<uint8_t> bytes;
    const std::size_t length = encode(dataDir, writes, bytes);
    journal.write(std::span<const uint8_t>(bytes.data(), length));
    if (bytes.capacity() > kKeptJournal) bytes = std::vector<uint8_t>();
    tell(CommitPoint::journalWritten);
    applyAll(writes);
    journal.close();
    tell(CommitPoint::committed);
}

uint64_t journalLength(const fs::path& dataDir) {
    auto header = headerOf(journalFile(dataDir));
    std::size_t at = kTagLength;
    return header ? get<uint64_t>(*header, at).value_or(0) : 0;
}

JournalOutcome recoverJournal(const fs::path& dataDir) {
    fs::path journal = journalFile(dataDir);
    std::error_code ec;
    if (!fs::exists(journal, ec)) return JournalOutcome::none;
    if (isClosed(journal)) return JournalOutcome::none;
    auto bytes = readWhole(journal);
    auto writes = bytes ? decode(dataDir, *bytes) : std::nullopt;
    if (writes) applyAll(*writes);
    fs::remove(journal, ec);
    if (ec) throw FatalError(fmt::format("Cannot remove the journal {}: {}", journal.string(), ec.message()));
    return writes ? JournalOutcome::replayed : JournalOutcome::dropped;
}

void setCommitHook(std::function<void(CommitPoint)> hook) { commitHook() = std::move(hook); }

}  // namespace trovane

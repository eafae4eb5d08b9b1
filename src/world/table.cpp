#include "world/table.h"

#include <fcntl.h>
#include <malloc.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstring>

#include <fmt/format.h>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "world/fatal_error.h"

namespace trovane {

namespace {

// How many bytes from the start of a and b are the same: sixteen at a time
// where the machine compares so, then eight, then one.
std::size_t sameBytesFromStart(const uint8_t* a, const uint8_t* b, std::size_t n) {
    std::size_t i = 0;
#if defined(__SSE2__)
    for (; i + 16 <= n; i += 16) {
        const auto equal = static_cast<unsigned>(
            _mm_movemask_epi8(_mm_cmpeq_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(a + i)),
                                             _mm_loadu_si128(reinterpret_cast<const __m128i*>(b + i)))));
        if (equal != 0xFFFFU) return i + static_cast<std::size_t>(std::countr_one(equal));
    }
#endif
    for (; i + 8 <= n; i += 8) {
        uint64_t x = 0;
        uint64_t y = 0;
        std::memcpy(&x, a + i, 8);
        std::memcpy(&y, b + i, 8);
        if (x != y) break;
    }
    while (i < n && a[i] == b[i]) ++i;
    return i;
}

// The length of a and b up to and including their last differing byte.
std::size_t differingLength(const uint8_t* a, const uint8_t* b, std::size_t n) {
    std::size_t end = n;
#if defined(__SSE2__)
    for (; end >= 16; end -= 16) {
        const auto equal = static_cast<unsigned>(
            _mm_movemask_epi8(_mm_cmpeq_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(a + end - 16)),
                                             _mm_loadu_si128(reinterpret_cast<const __m128i*>(b + end - 16)))));
        if (equal != 0xFFFFU) return end - static_cast<std::size_t>(std::countl_one(equal << 16));
    }
#endif
    for (; end >= 8; end -= 8) {
        uint64_t x = 0;
        uint64_t y = 0;
        std::memcpy(&x, a + end - 8, 8);
        std::memcpy(&y, b + end - 8, 8);
        if (x != y) break;
    }
    while (end > 0 && a[end - 1] == b[end - 1]) --end;
    return end;
}

}  // namespace

void keepLargeImagesApart() {
    constexpr int kOwnMappingFrom = 1 << 20;
    mallopt(M_MMAP_THRESHOLD, kOwnMappingFrom);
}

TableBase::TableBase(FileNo number, std::size_t recordLength) : number_(number), length_(recordLength) {}

TableBase::~TableBase() {
    // A table dropped without close still writes back; errors cannot be reported here.
    try {
        close();
    } catch (...) {}
}

std::string TableBase::displayName() const {
    std::string table(catalogueEntry(number_).table);
    return path_.empty() ? table : fmt::format("{} ({})", table, path_.string());
}

void TableBase::adopt(const fs::path& path, TableImage image, std::optional<std::size_t> diskLength) {
    if (path_.native() != path.native()) path_ = path;  // a per-use file is mostly opened again by the same path
    image_ = std::move(image);
    records_ = length_ == 0 ? 0 : static_cast<int32_t>(image_.size() / length_);
    diskLength_ = diskLength;
    dirty_.clear();
    open_ = true;
}

void TableBase::open(const fs::path& path, IfMissing ifMissing) {
    close();
    ++generation_;
    if (parked_) {
        auto it = parked_->find(path.native());
        if (it != parked_->end()) {
            ParkedImage p = std::move(it->second);
            parked_->erase(it);
            adopt(path, std::move(p.image), p.diskLength);
            dirty_ = std::move(p.dirty);
            return;
        }
        if (clean_) {
            if (auto image = clean_->take(path)) {
                const std::size_t size = image->size();
                adopt(path, std::move(*image), size);
                return;
            }
        }
    }
    int flags = (parked_ ? O_RDONLY : O_RDWR) | O_CLOEXEC;
    if (ifMissing == IfMissing::createEmpty && !parked_) flags |= O_CREAT;
    int fd = ::open(path.c_str(), flags, 0644);
    if (fd < 0) {
        if (errno == ENOENT && ifMissing == IfMissing::createEmpty) {
            // Made by the commit that writes it.
            adopt(path, {}, std::nullopt);
            return;
        }
        if (errno == ENOENT) throw FatalError(fmt::format("The data file {} is missing", path.string()));
        throw FatalError(fmt::format("Cannot open {}: {}", path.string(), std::strerror(errno)));
    }
    struct stat st {};
    if (::fstat(fd, &st) != 0) {
        ::close(fd);
        throw FatalError(fmt::format("Cannot read {}: {}", path.string(), std::strerror(errno)));
    }
    auto size = static_cast<std::size_t>(st.st_size);
    if (length_ == 0 || size % length_ != 0) {
        ::close(fd);
        throw BrokenDataError(
            fmt::format("The data file {} is damaged: its length of {} bytes is not a whole number of {}-byte records",
                        path.string(), size, length_));
    }
    TableImage image;
    try {
        if (!image.readFrom(fd, size, path, pagesOnDemand_)) pagesOnDemand_ = false;
    } catch (...) {
        ::close(fd);
        throw;
    }
    if (parked_)
        ::close(fd);
    else
        fd_ = fd;
    adopt(path, std::move(image), size);
}

void TableBase::openNew(const fs::path& path) {
    close();
    if (parked_) parked_->erase(path.native());
    if (clean_) clean_->forget(path);
    std::error_code ec;
    auto size = fs::file_size(path, ec);
    if (!parked_) {
        int fd = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
        if (fd < 0) throw FatalError(fmt::format("Cannot open {}: {}", path.string(), std::strerror(errno)));
        fd_ = fd;
    }
    adopt(path, {}, ec ? std::nullopt : std::optional<std::size_t>(size));
}

std::optional<FileWrite> TableBase::takeWrites() {
    if (!open_) return std::nullopt;
    std::vector<Patch> patches;
    dirty_.appendPatches(patches, image_.bytes());
    dirty_.clear();
    if (patches.empty() && diskLength_ == image_.size()) return std::nullopt;
    diskLength_ = image_.size();
    return FileWrite{path_, image_.size(), std::move(patches)};
}

void TableBase::flush() {
    if (!open_ || parked_) return;
    if (auto w = takeWrites()) applyWrite(fd_, *w);
}

void TableBase::close() {
    if (!open_) return;
    if (parked_) {
        if (dirty_.any() || diskLength_ != image_.size())
            (*parked_)[path_.native()] = ParkedImage{std::move(image_), diskLength_, std::move(dirty_), clean_};
        else if (clean_)
            clean_->keep(path_, std::move(image_));
        dirty_.clear();
    } else {
        flush();
        ::close(fd_);
        fd_ = -1;
    }
    open_ = false;
    image_.clear();
    records_ = 0;
}

void TableBase::letPagesGo() {
    if (!open_ || !pagesOnDemand_ || !parked_ || dirty_.any() || diskLength_ != image_.size()) return;
    image_.letPagesGo(path_);
}

void TableBase::watchWrites(const void* owner, WriteWatcher watcher, std::vector<ByteStretch> onlyBytes) {
    for (auto& w : watchers_)
        if (w.owner == owner) {
            w.tell = std::move(watcher);
            w.onlyBytes = std::move(onlyBytes);
            markWatchedBytes();
            return;
        }
    watchers_.push_back({owner, std::move(watcher), std::move(onlyBytes)});
    markWatchedBytes();
}

void TableBase::markWatchedBytes() {
    watchedBytes_.assign(length_, 0);
    for (const auto& w : watchers_) {
        if (w.onlyBytes.empty()) std::fill(watchedBytes_.begin(), watchedBytes_.end(), 1);
        for (const auto& [at, length] : w.onlyBytes)
            std::fill(watchedBytes_.begin() + static_cast<std::ptrdiff_t>(std::min(at, length_)),
                      watchedBytes_.begin() + static_cast<std::ptrdiff_t>(std::min(at + length, length_)), 1);
    }
}

void TableBase::tellWatchers(int32_t n, std::span<const uint8_t> before, std::span<const uint8_t> after,
                             std::size_t first, std::size_t end, const void* untold) const {
    for (const auto& w : watchers_)
        if (w.owner != untold && (before.empty() || w.wants(first, end))) w.tell(n, before, after);
}

bool TableBase::wantedByOthers(std::size_t first, std::size_t end, const void* untold) const {
    return std::any_of(watchers_.begin(), watchers_.end(),
                       [&](const Watcher& w) { return w.owner != untold && w.wants(first, end); });
}

void TableBase::notOpen(const char* what) const {
    throw FatalError(fmt::format("Cannot {} table {}: it is not open", what, catalogueEntry(number_).table));
}

void TableBase::missingRecord(int32_t n, const char* what) const {
    throw FatalError(
        fmt::format("Cannot {} record {} of table {}: it has {} records", what, n, displayName(), records()));
}

void TableBase::tableFull(int32_t n) const {
    throw FatalError(fmt::format("Table {} is full: record {} does not fit its record number field", displayName(), n));
}

std::optional<TableImage> CleanImages::take(const fs::path& file) {
    auto it =
        std::find_if(files_.begin(), files_.end(), [&](const auto& f) { return f.first.native() == file.native(); });
    if (it == files_.end()) return std::nullopt;
    TableImage image = std::move(it->second);
    files_.erase(it);
    return image;
}

void CleanImages::keep(const fs::path& file, TableImage image) {
    forget(file);
    if (files_.size() >= most_) files_.erase(files_.begin());
    files_.emplace_back(file, std::move(image));
}

void CleanImages::forget(const fs::path& file) {
    std::erase_if(files_, [&](const auto& f) { return f.first.native() == file.native(); });
}

void DirtyChunks::markAcross(std::size_t from, std::size_t to) {
    const std::size_t last = (to - 1) / kChunk;
    if (words_.size() <= last / 64) words_.resize(last / 64 + 1);
    for (std::size_t c = from / kChunk; c <= last; ++c) words_[c / 64] |= uint64_t{1} << (c % 64);
    any_ = true;
}

void DirtyChunks::clear() {
    words_.clear();
    any_ = false;
}

void DirtyChunks::appendPatches(std::vector<Patch>& out, std::span<const uint8_t> image) const {
    if (!any_) return;
    const std::size_t words = words_.size();
    // The first chunk at or after c whose bit is `set`, or one past the last.
    auto next = [&](std::size_t c, bool set) {
        std::size_t w = c / 64;
        if (w >= words) return words * 64;
        uint64_t bits = (set ? words_[w] : ~words_[w]) & (~uint64_t{0} << (c % 64));
        while (bits == 0) {
            if (++w == words) return words * 64;
            bits = set ? words_[w] : ~words_[w];
        }
        return w * 64 + static_cast<std::size_t>(std::countr_zero(bits));
    };
    for (std::size_t c = next(0, true); c < words * 64; c = next(c, true)) {
        const std::size_t end = next(c, false);
        const std::size_t from = std::min(c * kChunk, image.size());
        const std::size_t to = std::min(end * kChunk, image.size());
        if (from < to) out.push_back({from, {}, image.subspan(from, to - from)});
        c = end;
    }
}

void TableBase::putBytes(int32_t n, std::span<const uint8_t> bytes) {
    requireOpen("write");
    if (n < 1 || n > records() + 1) missingRecord(n, "write");
    std::size_t at = static_cast<std::size_t>(n - 1) * length_;
    const bool adds = at + length_ > image_.size();
    // Only the bytes from the first that differs to the last that differs
    // need writing; the same bytes again change nothing and need no write.
    std::size_t first = 0;
    std::size_t end = length_;
    if (!adds) {
        const uint8_t* was = image_.data() + at;
        first = sameBytesFromStart(was, bytes.data(), length_);
        if (first == length_) return;
        end = first + differingLength(was + first, bytes.data() + first, length_ - first);
    }
    if (!watchers_.empty() && (adds || watched(first, end))) {
        std::span<const uint8_t> before;
        if (!adds) before = {image_.data() + at, length_};
        tellWatchers(n, before, bytes.first(length_), first, end);
    }
    if (adds) {
        image_.resize(at + length_);
        records_ = n;
    }
    std::memcpy(image_.data() + at, bytes.data(), length_);
    dirty_.mark(at + first, at + end);
}

void TableBase::putStretch(int32_t n, std::size_t at, std::span<const uint8_t> bytes, const void* untold) {
    requireOpen("write");
    if (n < 1 || n > records()) missingRecord(n, "write");
    if (at + bytes.size() > length_) throw FatalError("a write runs past the end of a record of " + displayName());
    uint8_t* record = image_.data() + static_cast<std::size_t>(n - 1) * length_;
    std::size_t same = 0;
    std::size_t differing = bytes.size();
    if (bytes.size() <= 8) {
        // A field or two: byte by byte, without the calls the long compares take.
        while (same < bytes.size() && record[at + same] == bytes[same]) ++same;
        if (same == bytes.size()) return;
        while (record[at + differing - 1] == bytes[differing - 1]) --differing;
    } else {
        same = sameBytesFromStart(record + at, bytes.data(), bytes.size());
        if (same == bytes.size()) return;
        differing = same + differingLength(record + at + same, bytes.data() + same, bytes.size() - same);
    }
    const std::size_t first = at + same;
    const std::size_t end = at + differing;
    // Only when a watcher is told of the write is the record as it will be put together.
    if (watchedByOthers(first, end, untold)) {
        tellWatchersOfStretch(n, at, bytes, first, end, untold);
        record = image_.data() + static_cast<std::size_t>(n - 1) * length_;  // a watcher may have added records
    }
    for (std::size_t i = same; i < differing; ++i) record[at + i] = bytes[i];
    const std::size_t base = static_cast<std::size_t>(n - 1) * length_;
    dirty_.mark(base + first, base + end);
}

void TableBase::tellWatchersOfStretch(int32_t n, std::size_t at, std::span<const uint8_t> bytes, std::size_t first,
                                      std::size_t end, const void* untold) {
    const uint8_t* record = image_.data() + static_cast<std::size_t>(n - 1) * length_;
    // The record as it will be is put together in a buffer kept between
    // writes (taken out while in use, so a write from a watcher makes its own).
    static thread_local std::vector<uint8_t> kept;
    std::vector<uint8_t> after = std::move(kept);
    after.assign(record, record + length_);
    std::memcpy(after.data() + at, bytes.data(), bytes.size());
    tellWatchers(n, {record, length_}, after, first, end, untold);
    kept = std::move(after);
}

void TableBase::clearAll() {
    requireOpen("clear");
    ++generation_;
    image_.clear();
    records_ = 0;
    dirty_.clear();
}

}  // namespace trovane

#include "world/table_image.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include <fmt/format.h>

#include "world/fatal_error.h"

namespace trovane {

namespace {

std::size_t pageSize() {
    static const std::size_t size = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    return size;
}

std::size_t wholePagesIn(std::size_t n) { return n / pageSize() * pageSize(); }

// Address space is cheap, so a table reserves far more than it holds and
// seldom has to move. Only the part in use is made writable, a megabyte at a
// time: a system that counts the memory a program may write counts only that.
constexpr std::size_t kLeastReservation = std::size_t{64} << 20;
constexpr std::size_t kUsableStep = std::size_t{1} << 20;

}  // namespace

TableImage::TableImage(TableImage&& other) noexcept
    : base_(std::exchange(other.base_, nullptr)),
      size_(std::exchange(other.size_, 0)),
      usable_(std::exchange(other.usable_, 0)),
      reserved_(std::exchange(other.reserved_, 0)) {}

TableImage& TableImage::operator=(TableImage&& other) noexcept {
    if (this != &other) {
        clear();
        base_ = std::exchange(other.base_, nullptr);
        size_ = std::exchange(other.size_, 0);
        usable_ = std::exchange(other.usable_, 0);
        reserved_ = std::exchange(other.reserved_, 0);
    }
    return *this;
}

TableImage::~TableImage() { clear(); }

void TableImage::clear() {
    if (base_ != nullptr) ::munmap(base_, reserved_);
    base_ = nullptr;
    size_ = 0;
    usable_ = 0;
    reserved_ = 0;
}

void TableImage::reserve(std::size_t n) {
    if (n <= usable_) return;
    if (n <= reserved_) {
        makeUsable(n);
        return;
    }
    // A larger reservation is made whole before the bytes move to it; if it
    // cannot be had, this one stays as it was.
    TableImage fresh;
    const std::size_t want = std::max(kLeastReservation, wholePagesIn(n * 4 + pageSize() - 1));
    void* at = ::mmap(nullptr, want, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (at == MAP_FAILED)
        throw FatalError(fmt::format("Cannot set aside {} bytes of memory: {}", want, std::strerror(errno)));
    fresh.base_ = static_cast<uint8_t*>(at);
    fresh.reserved_ = want;
    fresh.makeUsable(n);
    if (size_ > 0) std::memcpy(fresh.base_, base_, size_);
    fresh.size_ = size_;
    *this = std::move(fresh);
}

void TableImage::makeUsable(std::size_t n) {
    const std::size_t to = std::min(reserved_, (n + kUsableStep - 1) / kUsableStep * kUsableStep);
    if (to <= usable_) return;
    if (::mprotect(base_ + usable_, to - usable_, PROT_READ | PROT_WRITE) != 0)
        throw FatalError(fmt::format("Cannot set aside {} bytes of memory: {}", to, std::strerror(errno)));
    usable_ = to;
}

void TableImage::resize(std::size_t n) {
    if (n > size_) {
        reserve(n);
    } else if (n < size_) {
        // Bytes past the end read as zero when the image grows again.
        std::memset(base_ + n, 0, size_ - n);
    }
    size_ = n;
}

bool TableImage::mapWholePages(int fd, std::size_t whole, const std::filesystem::path& file) {
    if (whole == 0) return true;
    void* at = ::mmap(base_, whole, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_FIXED, fd, 0);
    if (at != MAP_FAILED) return true;
    // These are refused before anything is unmapped; after any other failure
    // the image's bytes may be gone, and the game must stop (its files hold them).
    if (errno == ENODEV || errno == EACCES || errno == EPERM) return false;
    throw FatalError(fmt::format("Cannot map {} into memory: {}", file.string(), std::strerror(errno)));
}

bool TableImage::readFrom(int fd, std::size_t n, const std::filesystem::path& file, bool mapPages) {
    clear();
    resize(n);
    std::size_t done = 0;
    if (mapPages) {
        mapPages = mapWholePages(fd, wholePagesIn(n), file);
        if (mapPages) done = wholePagesIn(n);
    }
    while (done < n) {
        ssize_t got = ::pread(fd, base_ + done, n - done, static_cast<off_t>(done));
        if (got <= 0) {
            const int err = errno;
            clear();
            throw FatalError(
                fmt::format("Cannot read {}: {}", file.string(), got == 0 ? "it ended early" : std::strerror(err)));
        }
        done += static_cast<std::size_t>(got);
    }
    return mapPages;
}

void TableImage::letPagesGo(const std::filesystem::path& file) {
    const std::size_t whole = wholePagesIn(size_);
    if (whole == 0) return;
    const int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return;
    struct stat st {};
    if (::fstat(fd, &st) == 0 && static_cast<std::size_t>(st.st_size) >= whole) {
        try {
            static_cast<void>(mapWholePages(fd, whole, file));
        } catch (...) {
            ::close(fd);
            throw;
        }
    }
    ::close(fd);
}

}  // namespace trovane

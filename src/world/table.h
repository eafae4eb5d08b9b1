#pragma once
// A table of fixed-length records with its one current-record buffer.
//
// The buffer rule, which the whole game relies on:
// - every read of any record fills the one buffer, whoever reads;
// - a change lives only in the buffer until it is written back by number, so
//   reading another record of the same table before writing loses it, while
//   writing without a read in between loses nothing;
// - a walk leaves the last record it read in the buffer.
// Callers therefore read the record they need right before they use it, and
// read it again after any call that may have used the table.
//
// The file's bytes are kept in memory while it is open and written back to the
// file on close and flush, so a walk costs no system call per record. The
// buffer rule is not affected: the copy in memory is the file, not a cache of
// records. A table whose old records pile up may hold only the pages of them
// in use (holdOnlyPagesInUse); the rest are read from its file when touched.
//
// A table of a game's working set defers its writes instead: what changed is
// handed to the game's commit (see flushAllTables), and a table closed before
// the commit parks its bytes with the game until then, so opening it again
// finds them.
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "world/catalogue.h"
#include "world/journal.h"
#include "world/numbers.h"
#include "world/record_codec.h"
#include "world/table_image.h"

namespace trovane {

namespace fs = std::filesystem;

enum class IfMissing { createEmpty, fail };

// Which stretches of a file's bytes changed since they were last written, kept
// in chunks of kChunk bytes, so a day that changes a few fields scattered
// over a large file journals those few chunks and not everything between them.
class DirtyChunks {
public:
    static constexpr std::size_t kChunk = 64;

    // Bytes from up to (not including) to changed.
    void mark(std::size_t from, std::size_t to) {
        if (from >= to) return;
        const std::size_t chunk = from / kChunk;
        // Most writes change a few bytes within one chunk already covered.
        if (chunk == (to - 1) / kChunk && chunk / 64 < words_.size()) {
            words_[chunk / 64] |= uint64_t{1} << (chunk % 64);
            any_ = true;
            return;
        }
        markAcross(from, to);
    }
    bool any() const { return any_; }
    void clear();
    // A patch for each run of changed chunks of image, one after another,
    // cut at its end, in file order; each stands on image's bytes, which must
    // not change until it is written.
    void appendPatches(std::vector<Patch>& out, std::span<const uint8_t> image) const;

private:
    void markAcross(std::size_t from, std::size_t to);
    std::vector<uint64_t> words_;  // a bit for each chunk
    bool any_ = false;
};

// The bytes of a table closed before the commit that writes them.
class CleanImages;
struct ParkedImage {
    TableImage image;
    std::optional<std::size_t> diskLength;  // none: the file is not on disk yet
    DirtyChunks dirty;
    CleanImages* keepIn = nullptr;  // where its table keeps clean images
};
// Keyed by the file's path as a string: compared as bytes, not component by component.
using ParkedFiles = std::map<std::string, ParkedImage, std::less<>>;

// The bytes of a few files closed unchanged since they were read, so that
// opening one again need not read it again. Whoever changes files other than
// through their tables empties it first.
class CleanImages {
public:
    explicit CleanImages(std::size_t files) : most_(files) {}
    // The file's bytes, taken out; none when they are not kept.
    std::optional<TableImage> take(const fs::path& file);
    // Keeps the bytes, dropping the file kept longest when full.
    void keep(const fs::path& file, TableImage image);
    void forget(const fs::path& file);
    void clear() { files_.clear(); }

private:
    std::size_t most_;
    std::vector<std::pair<fs::path, TableImage>> files_;  // the newest last
};

// Has the allocator give every block of 1 MB or more a mapping of its own,
// handed back to the system when freed. The side indexes over a long game's
// tables grow by doubling; left to the allocator's own rule, the blocks they
// outgrow stay in the heap. Called by each game as it is made; asking again
// does nothing.
void keepLargeImagesApart();

class TableBase {
public:
    TableBase(FileNo number, std::size_t recordLength);
    TableBase(const TableBase&) = delete;
    TableBase& operator=(const TableBase&) = delete;
    virtual ~TableBase();

    FileNo number() const { return number_; }
    std::size_t recordLength() const { return length_; }
    const fs::path& path() const { return path_; }
    bool isOpen() const { return open_; }

    // Makes the table defer its writes to the commit, parking its bytes in
    // parked when it is closed first. Set once, on a closed table.
    void deferWrites(ParkedFiles* parked) { parked_ = parked; }
    bool defersWrites() const { return parked_ != nullptr; }
    // Makes a deferring table keep its bytes in clean when it is closed
    // unchanged, and look there before reading its file.
    void keepCleanImages(CleanImages* clean) { clean_ = clean; }
    // Marks a deferring table whose old records pile up and are seldom read
    // again: its image's pages are mapped from its file when it opens, and go
    // back to the system when letPagesGo is called after a commit.
    void holdOnlyPagesInUse() { pagesOnDemand_ = true; }
    // Hands the pages of a table so marked back to the system, to be read
    // again from its file as they are touched. Only right after a commit,
    // when the file holds every byte of the image.
    void letPagesGo();
    // Opens the file for random read and write. A file whose length is not a
    // whole number of records is refused with a message that names it.
    void open(const fs::path& path, IfMissing ifMissing);
    // Opens the file as a new empty one, whatever is there now.
    void openNew(const fs::path& path);
    // Writes back what changed and closes the file. Closing a closed table does
    // nothing. A deferring table parks what changed instead.
    void close();
    // Writes back what changed, keeping the file open. A deferring table
    // leaves it to the commit.
    void flush();
    // What changed since the last write (none when nothing changed), and the
    // table counts as written. The write stands on the table's bytes: it is
    // made before the table changes again.
    std::optional<FileWrite> takeWrites();

    // The number of records plus one: the next free record number, and where a walk stops.
    int32_t recordCount() const {
        requireOpen("count");
        return records_ + 1;
    }
    int32_t records() const { return records_; }
    // Goes up each time the file is opened or emptied, so a side index built
    // over the records can tell that what it covered is gone.
    uint64_t generation() const { return generation_; }

    // The bytes of record n (1-based); a record that does not exist is a fatal error.
    std::span<const uint8_t> bytesOf(int32_t n) const {
        requireOpen("read");
        const std::size_t at = static_cast<std::size_t>(n - 1) * length_;
        if (n < 1 || at + length_ > image_.size()) [[unlikely]]
            missingRecord(n, "read");
        return {image_.data() + at, length_};
    }
    // Writes the bytes of record n; n may be one past the last record, which adds it.
    void putBytes(int32_t n, std::span<const uint8_t> bytes);
    // Writes bytes over record n's from byte `at` of the record on, as
    // writing the whole record with them in place would; n must exist. The
    // watcher of owner `untold`, when one is named, is not told of the write:
    // its owner takes note of the record itself after.
    void putStretch(int32_t n, std::size_t at, std::span<const uint8_t> bytes, const void* untold = nullptr);
    // Forgets every record (the file becomes empty on the next flush).
    void clearAll();

    // Told of each write that changes a record, before the bytes change: the
    // record's number, its bytes until now (empty when the write adds it) and
    // its new bytes. A side index whose key can change keeps in step by it.
    using WriteWatcher =
        std::function<void(int32_t n, std::span<const uint8_t> before, std::span<const uint8_t> after)>;
    // Adds a watcher of the writes, told after those added before it; one per
    // owner: watching again for the same owner replaces its watcher. A watcher
    // given stretches of a record's bytes (offset, length) is told only of the
    // writes that add a record or change a byte within them.
    using ByteStretch = std::pair<std::size_t, std::size_t>;
    void watchWrites(const void* owner, WriteWatcher watcher, std::vector<ByteStretch> onlyBytes = {});

protected:
    void requireOpen(const char* what) const {
        if (!open_) [[unlikely]]
            notOpen(what);
    }
    [[noreturn]] void notOpen(const char* what) const;
    [[noreturn]] void missingRecord(int32_t n, const char* what) const;
    [[noreturn]] void tableFull(int32_t n) const;
    std::string displayName() const;

private:
    void adopt(const fs::path& path, TableImage image, std::optional<std::size_t> diskLength);

    FileNo number_;
    std::size_t length_;
    fs::path path_;
    bool open_ = false;
    int fd_ = -1;  // held only by a table that writes its own file
    ParkedFiles* parked_ = nullptr;
    CleanImages* clean_ = nullptr;
    struct Watcher {
        const void* owner;
        WriteWatcher tell;
        std::vector<ByteStretch> onlyBytes;  // empty: every byte
        // Whether a change of an existing record's bytes from first up to end concerns it.
        bool wants(std::size_t first, std::size_t end) const {
            if (onlyBytes.empty()) return true;
            for (const auto& [at, length] : onlyBytes)
                if (first < at + length && at < end) return true;
            return false;
        }
    };
    // Works out watchedBytes_ from the watchers' stretches.
    void markWatchedBytes();
    // Tells the watchers of a write of bytes over record n from byte `at` of it
    // on, putting the record as it will be together for them.
    void tellWatchersOfStretch(int32_t n, std::size_t at, std::span<const uint8_t> bytes, std::size_t first,
                               std::size_t end, const void* untold);
    // Tells the watchers of a write to record n that changes its bytes from
    // `first` up to `end` (before is empty when the write adds the record),
    // all but the one of owner `untold`.
    void tellWatchers(int32_t n, std::span<const uint8_t> before, std::span<const uint8_t> after, std::size_t first,
                      std::size_t end, const void* untold = nullptr) const;
    // Whether a watcher but the one of owner `untold` wants a change of bytes first up to end.
    bool watchedByOthers(std::size_t first, std::size_t end, const void* untold) const {
        return watched(first, end) && (untold == nullptr || wantedByOthers(first, end, untold));
    }
    bool wantedByOthers(std::size_t first, std::size_t end, const void* untold) const;
    // Whether some watcher wants a change of bytes first up to end of an existing record.
    bool watched(std::size_t first, std::size_t end) const {
        if (watchedBytes_.empty()) return false;
        if (end - first > 16) return std::memchr(watchedBytes_.data() + first, 1, end - first) != nullptr;
        for (std::size_t i = first; i < end; ++i)
            if (watchedBytes_[i] != 0) return true;
        return false;
    }
    std::vector<Watcher> watchers_;
    std::vector<uint8_t> watchedBytes_;  // for each byte of a record, 1 when some watcher wants it; empty: none
    TableImage image_;
    int32_t records_ = 0;  // image_'s whole records, counted when its length changes
    bool pagesOnDemand_ = false;
    std::optional<std::size_t> diskLength_;
    DirtyChunks dirty_;
    uint64_t generation_ = 0;
};

template <PackedRecord R>
class Table : public TableBase {
public:
    explicit Table(FileNo number) : TableBase(number, R::kLength) {}

    // The current-record buffer.
    R rec{};
    R* operator->() { return &rec; }
    const R* operator->() const { return &rec; }
    R& operator*() { return rec; }

    // Reads record n into the buffer. A record past the end is a fatal error
    // that names the table.
    void read(int32_t n) {
        auto bytes = bytesOf(n);
        decodeRecord(bytes.data(), rec);
    }

    // Reads record n if it exists; otherwise leaves the buffer at a blank record
    // and returns false, as a read past the end of the file does.
    bool readIfPresent(int32_t n) {
        requireOpen("read");
        if (n < 1 || n >= recordCount()) {
            rec = R{};
            return false;
        }
        read(n);
        return true;
    }

    // Writes the buffer as record n (n may be the next free number).
    void write(int32_t n) {
        std::array<uint8_t, R::kLength> bytes;  // every byte is packed
        encodeRecord(rec, bytes.data());
        putBytes(n, bytes);
    }

    // Writes the buffer to the record its own number names.
    void write() requires R::kHasId { write(static_cast<int32_t>(rec.ownNumber())); }

    // Adds the buffer as a new record: its own number becomes the next free
    // number. A table whose numbers are 16-bit is full at 32,767 records: the
    // next append is a fatal error and the file does not grow.
    int32_t append() requires R::kHasId {
        int32_t n = recordCount();
        using IdType = std::remove_cvref_t<decltype(rec.ownNumber())>;
        if (!std::in_range<IdType>(n)) tableFull(n);
        rec.ownNumber() = static_cast<IdType>(n);
        write(n);
        return n;
    }
};

}  // namespace trovane

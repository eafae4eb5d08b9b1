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
// records.
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "world/catalogue.h"
#include "world/numbers.h"
#include "world/record_codec.h"

namespace trovane {

namespace fs = std::filesystem;

enum class IfMissing { createEmpty, fail };

class TableBase {
public:
    TableBase(FileNo number, std::size_t recordLength);
    TableBase(const TableBase&) = delete;
    TableBase& operator=(const TableBase&) = delete;
    virtual ~TableBase();

    FileNo number() const { return number_; }
    std::size_t recordLength() const { return length_; }
    const fs::path& path() const { return path_; }
    bool isOpen() const { return fd_ >= 0; }

    // Opens the file for random read and write. A file whose length is not a
    // whole number of records is refused with a message that names it.
    void open(const fs::path& path, IfMissing ifMissing);
    // Writes back what changed and closes the file. Closing a closed table does nothing.
    void close();
    // Writes back what changed, keeping the file open.
    void flush();

    // The number of records plus one: the next free record number, and where a walk stops.
    int32_t recordCount() const;
    int32_t records() const { return static_cast<int32_t>(image_.size() / length_); }
    // Goes up each time the file is opened or emptied, so a side index built
    // over the records can tell that what it covered is gone.
    uint64_t generation() const { return generation_; }

    // The bytes of record n (1-based); a record that does not exist is a fatal error.
    std::span<const uint8_t> bytesOf(int32_t n) const;
    // Writes the bytes of record n; n may be one past the last record, which adds it.
    void putBytes(int32_t n, std::span<const uint8_t> bytes);
    // Forgets every record (the file becomes empty on the next flush).
    void clearAll();

protected:
    void requireOpen(const char* what) const;
    [[noreturn]] void missingRecord(int32_t n, const char* what) const;
    [[noreturn]] void tableFull(int32_t n) const;
    std::string displayName() const;

private:
    FileNo number_;
    std::size_t length_;
    fs::path path_;
    int fd_ = -1;
    std::vector<uint8_t> image_;
    std::size_t dirtyFrom_ = SIZE_MAX;
    std::size_t dirtyTo_ = 0;
    bool truncated_ = false;
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
        std::array<uint8_t, R::kLength> bytes{};
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

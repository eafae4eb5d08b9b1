#pragma once
// The bytes of an open table, held in one stretch of memory that keeps its
// place as the table grows (a record's bytes stay where they are until the
// table outgrows a reservation many times its size, or is emptied).
//
// A table whose file holds the same bytes as its image may hand the image's
// pages back to the system: they are then read again from the file as they
// are touched, and a write to one copies that page alone. Old records that a
// long game seldom reads again then cost no memory.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

namespace trovane {

class TableImage {
public:
    TableImage() = default;
    TableImage(const TableImage&) = delete;
    TableImage& operator=(const TableImage&) = delete;
    TableImage(TableImage&& other) noexcept;
    TableImage& operator=(TableImage&& other) noexcept;
    ~TableImage();

    uint8_t* data() { return base_; }
    const uint8_t* data() const { return base_; }
    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    std::span<const uint8_t> bytes() const { return {base_, size_}; }

    // Grows (new bytes are zero) or cuts the image.
    void resize(std::size_t n);
    // Drops every byte and the memory that held them.
    void clear();
    // The image becomes the first n bytes of the open file fd, read, or with
    // mapPages every whole page of it mapped from the file instead. False
    // when the file's system cannot map it: its bytes are then read.
    bool readFrom(int fd, std::size_t n, const std::filesystem::path& file, bool mapPages);
    // Hands the whole pages of the image back to the system, to be read again
    // from file when touched. The file must hold the image's bytes: a file
    // that is shorter than the image, or cannot be opened, leaves the image
    // as it is.
    void letPagesGo(const std::filesystem::path& file);

private:
    // Makes the first n bytes writable, reserving more address space (and
    // moving the bytes there) when the reservation is too small.
    void reserve(std::size_t n);
    void makeUsable(std::size_t n);
    // Maps the first `whole` bytes (whole pages) of fd over the image's start;
    // false, the image untouched, when the file's system cannot.
    bool mapWholePages(int fd, std::size_t whole, const std::filesystem::path& file);

    uint8_t* base_ = nullptr;
    std::size_t size_ = 0;
    std::size_t usable_ = 0;  // writable bytes from the start
    std::size_t reserved_ = 0;
};

}  // namespace trovane

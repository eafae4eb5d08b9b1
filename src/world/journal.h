#pragma once
// The journal: the writes of one commit reach the files of a data folder all
// together or not at all, whenever the program is killed.
//
// A commit writes the journal, then each file, then removes the journal. A
// program opening a data folder first replays a complete journal (every write
// again, which is harmless if some were done) and drops an incomplete one (the
// files were not touched yet). There is no sync per commit: a killed program
// leaves its writes to the system, which keeps them.
//
// The journal file "journal.jnl", every number little-endian:
//   header   the 8 bytes "TRVJNL01"
//   writes   each: u16 length of the file's name, the name (relative to the
//            data folder, or absolute for a file outside it), u64 the file's
//            length after the write, u64 offset, u64 byte count, the bytes.
//            The file is made when missing and cut or grown to its length
//            before the bytes are written.
//   mark     the 8 bytes "COMMIT!!", u32 number of writes, u32 CRC-32 of every
//            byte before the mark.
// A journal is complete when it ends right after a mark whose count and
// checksum match what precedes it; anything else is incomplete and dropped.
#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>
#include <vector>

namespace trovane {

struct FileWrite {
    std::filesystem::path file;
    uint64_t length = 0;  // of the file after the write
    uint64_t offset = 0;
    std::vector<uint8_t> bytes;  // the bytes written, held by the write
    // Or where they stand (a table's image), when `bytes` is empty: they must
    // stay as they are until the write is made.
    std::span<const uint8_t> standing;

    std::span<const uint8_t> data() const { return bytes.empty() ? standing : std::span<const uint8_t>(bytes); }
};

std::filesystem::path journalFile(const std::filesystem::path& dataDir);

// Writes every write through the journal. Nothing to write writes nothing.
void commitWrites(const std::filesystem::path& dataDir, const std::vector<FileWrite>& writes);

enum class JournalOutcome { none, replayed, dropped };
// Replays a complete journal left in the folder, or drops an incomplete one.
JournalOutcome recoverJournal(const std::filesystem::path& dataDir);

// Does one write on an open file descriptor: cut or grow the file, then the bytes.
void applyWrite(int fd, const FileWrite& w);

// For tests of a killed commit: told when the journal is complete, after each
// file of the commit is written, and when the journal is gone.
enum class CommitPoint { journalWritten, fileWritten, committed };
void setCommitHook(std::function<void(CommitPoint)> hook);

}  // namespace trovane

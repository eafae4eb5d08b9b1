#pragma once
// The journal: the writes of one commit reach the files of a data folder all
// together or not at all, whenever the program is killed.
//
// A commit writes the journal, then each file, then marks the journal done.
// A program opening a data folder first replays a complete journal (every
// write again, which is harmless if some were done) and drops an incomplete
// one (the files were not touched yet); a journal marked done is left alone.
// There is no sync per commit: a killed program leaves its writes to the
// system, which keeps them. The journal file is kept from one commit to the
// next and written over.
//
// The journal file "journal.jnl", every number little-endian:
//   header   the 8 bytes "TRVJNL02" ("TRVJNL--" once the commit is done),
//            u64 the journal's length, mark included. The file may run on
//            past it: what follows is left from a longer journal.
//   files    each: u16 length of the file's name, the name (relative to the
//            data folder, or absolute for a file outside it), u64 the file's
//            length after the writes, u32 number of patches, then each patch:
//            u64 offset, u64 byte count, the bytes. The file is made when
//            missing and cut or grown to its length before the bytes are
//            written.
//   mark     the 8 bytes "COMMIT!!", u32 number of files, u64 checksum of
//            every byte before the mark.
// A journal is complete when its length ends right after a mark whose count
// and checksum match what precedes it; anything else is incomplete and
// dropped.
#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>
#include <vector>

namespace trovane {

// Bytes to put at an offset of a file.
struct Patch {
    uint64_t offset = 0;
    std::vector<uint8_t> bytes;  // the bytes, held by the patch
    // Or where they stand (a table's image), when `bytes` is empty: they must
    // stay as they are until the patch is written.
    std::span<const uint8_t> standing;

    std::span<const uint8_t> data() const { return bytes.empty() ? standing : std::span<const uint8_t>(bytes); }
};

// What a commit does to one file: cut or grow it to its length, then put its
// patches, in offset order.
struct FileWrite {
    std::filesystem::path file;
    uint64_t length = 0;  // of the file after the write
    std::vector<Patch> patches;
};

std::filesystem::path journalFile(const std::filesystem::path& dataDir);

// Writes every file's write through the journal, at most one write to a
// file. Nothing to write writes nothing.
void commitWrites(const std::filesystem::path& dataDir, const std::vector<FileWrite>& writes);

// The length of the last journal written in the folder, as its header gives
// it; 0 when there is none.
uint64_t journalLength(const std::filesystem::path& dataDir);

enum class JournalOutcome { none, replayed, dropped };
// Replays a complete journal left in the folder, or drops an incomplete one.
JournalOutcome recoverJournal(const std::filesystem::path& dataDir);

// Does one file's write on its open file descriptor.
void applyWrite(int fd, const FileWrite& w);

// For tests of a killed commit: told when the journal is complete, after each
// file of the commit is written, and when the journal is gone.
enum class CommitPoint { journalWritten, fileWritten, committed };
void setCommitHook(std::function<void(CommitPoint)> hook);

}  // namespace trovane

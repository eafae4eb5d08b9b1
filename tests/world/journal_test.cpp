#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "schedule/schedule.h"
#include "support/game_test.h"
#include "support/sim_run.h"
#include "support/temp_folder.h"
#include "world/dates.h"
#include "world/journal.h"

using namespace trovane;
namespace fs = std::filesystem;

using DayCommit = test::GameTest;
using test::fileBytes;

namespace {

struct Stop {};

// Stops the commit at the n-th point of the given kind, as a kill there would.
struct StopAt {
    StopAt(CommitPoint kind, int n) {
        setCommitHook([kind, n, seen = 0](CommitPoint p) mutable {
            if (p == kind && ++seen == n) throw Stop{};
        });
    }
    ~StopAt() { setCommitHook(nullptr); }
};

class Journal : public ::testing::Test {
protected:
    test::TempFolder folder;
    fs::path a = folder.path() / "a.vel";
    fs::path b = folder.path() / "b.vel";
    fs::path journal = journalFile(folder.path());

    void SetUp() override {
        std::ofstream(a, std::ios::binary) << "AAAA";
        std::ofstream(b, std::ios::binary) << "BBBB";
    }
    // a grows to 6 bytes with "xyzw" from byte 2; b is cut to "qq"; c is made.
    std::vector<FileWrite> writes() {
        return {FileWrite{a, 6, {Patch{2, {'x', 'y', 'z', 'w'}}}}, FileWrite{b, 2, {Patch{0, {'q', 'q'}}}},
                FileWrite{folder.path() / "c.vel", 1, {Patch{0, {'c'}}}}};
    }
    void leaveJournal() {
        StopAt stop(CommitPoint::journalWritten, 1);
        EXPECT_THROW(commitWrites(folder.path(), writes()), Stop);
    }
    void expectUntouched() {
        EXPECT_EQ(fileBytes(a), "AAAA");
        EXPECT_EQ(fileBytes(b), "BBBB");
        EXPECT_FALSE(fs::exists(folder.path() / "c.vel"));
        EXPECT_EQ(recoverJournal(folder.path()), JournalOutcome::none);
    }
    void expectCommitted() {
        EXPECT_EQ(fileBytes(a), "AAxyzw");
        EXPECT_EQ(fileBytes(b), "qq");
        EXPECT_EQ(fileBytes(folder.path() / "c.vel"), "c");
        EXPECT_EQ(recoverJournal(folder.path()), JournalOutcome::none);
    }
};

TEST_F(Journal, ACommitWritesEveryFileLeavingBytesBetweenPatchesAndMarksTheJournalDone) {
    commitWrites(folder.path(), writes());
    expectCommitted();
    // The next commit writes over the journal; a shorter one leaves nothing
    // of the longer one behind it.
    commitWrites(folder.path(), {FileWrite{b, 2, {Patch{1, {'r'}}}}});
    const auto shortLength = journalLength(folder.path());
    leaveJournal();
    ASSERT_GT(journalLength(folder.path()), shortLength);
    {
        StopAt stop(CommitPoint::journalWritten, 1);
        EXPECT_THROW(commitWrites(folder.path(), {FileWrite{b, 2, {Patch{0, {'s'}}}}}), Stop);
    }
    EXPECT_EQ(journalLength(folder.path()), shortLength);
    EXPECT_GT(fs::file_size(journal), shortLength);
    EXPECT_EQ(recoverJournal(folder.path()), JournalOutcome::replayed);
    EXPECT_EQ(fileBytes(b), "sr");
    std::ofstream(a, std::ios::binary | std::ios::trunc) << "AAAAAAAAAA";
    commitWrites(folder.path(), {FileWrite{a, 10, {Patch{1, {'x'}}, Patch{5, {'y', 'z'}}, Patch{9, {'w'}}}}});
    EXPECT_EQ(fileBytes(a), "AxAAAyzAAw");
}

TEST_F(Journal, AKillAfterTheJournalOrBetweenTwoFilesIsFinishedWhenAGameOpensTheFolder) {
    leaveJournal();
    EXPECT_EQ(fileBytes(a), "AAAA");  // killed before any file was touched
    EXPECT_EQ(recoverJournal(folder.path()), JournalOutcome::replayed);
    expectCommitted();

    SetUp();  // the files as they were
    fs::remove(folder.path() / "c.vel");
    {
        StopAt stop(CommitPoint::fileWritten, 1);
        EXPECT_THROW(commitWrites(folder.path(), writes()), Stop);
    }
    EXPECT_EQ(fileBytes(a), "AAxyzw");
    EXPECT_EQ(fileBytes(b), "BBBB");
    Game g(folder.path(), 1);
    expectCommitted();
}

// A journal cut short, without its commit mark, or with a byte changed under
// its checksum is thrown away and no file is touched.
TEST_F(Journal, ADamagedJournalIsDropped) {
    for (int damage = 0; damage < 3; ++damage) {
        SCOPED_TRACE(damage);
        leaveJournal();
        std::string bytes = fileBytes(journal);
        const std::size_t mark = bytes.rfind("COMMIT!!");
        ASSERT_EQ(mark, bytes.size() - 20);  // the mark, the count and the checksum end the journal
        if (damage == 0) bytes.pop_back();
        if (damage == 1) bytes[mark + 7] = '?';
        if (damage == 2) bytes[bytes.find("xyzw")] = 'X';
        std::ofstream(journal, std::ios::binary | std::ios::trunc) << bytes;
        EXPECT_EQ(recoverJournal(folder.path()), JournalOutcome::dropped);
        expectUntouched();
    }
}

TEST_F(DayCommit, TheDaysWritesReachNoFileBeforeTheCommitAndAllAfterIt) {
    fs::path bands = g.dataDir / "band.vel";
    fs::path year = g.dataDir / "2006.vel";
    auto bandsBefore = fs::file_size(bands);
    g.band.rec = BandRecord{.name = "Night Ferry"};
    g.band.append();
    const ScheduleRecord entry{.type = 1, .date = serialFromCivil(2006, 1, 2)};
    addSchedule(g, entry);  // files the year 2006
    EXPECT_EQ(fs::file_size(bands), bandsBefore);
    EXPECT_FALSE(fs::exists(year));
    EXPECT_TRUE(hasDayFile(g, 2006));  // the game itself sees its own day
    EXPECT_EQ(entriesOfDay(g, entry.date).size(), 1U);

    flushAllTables(g);
    EXPECT_EQ(fs::file_size(bands), bandsBefore + BandRecord::kLength);
    EXPECT_EQ(fs::file_size(year), 365U * DayRecord::kLength);  // 2006 is no leap year
    EXPECT_EQ(recoverJournal(g.dataDir), JournalOutcome::none);
}

TEST_F(DayCommit, RecordsChangedFarApartAreWrittenWithoutWhatLiesBetween) {
    for (int i = 1; i <= 40; ++i) {
        g.band.rec = BandRecord{.name = "Band " + std::to_string(i)};
        g.band.append();
    }
    flushAllTables(g);
    for (int n : {1, 40}) {
        g.band.read(n);
        g.band->name = "Renamed " + std::to_string(n);
        g.band.write(n);
    }
    std::uintmax_t journalSize = 0;
    setCommitHook([&](CommitPoint p) {
        if (p == CommitPoint::journalWritten) journalSize = journalLength(g.dataDir);
    });
    flushAllTables(g);
    setCommitHook(nullptr);
    // Two names, each in the one or two chunks it touches, and the journal's
    // own bytes: not even one whole record, let alone the 38 between.
    EXPECT_LT(journalSize, BandRecord::kLength);
    EXPECT_GT(journalSize, 2 * DirtyChunks::kChunk);
    const std::string file = fileBytes(g.dataDir / "band.vel");
    ASSERT_EQ(file.size(), 40 * BandRecord::kLength);
    EXPECT_EQ(file.substr(2, 9), "Renamed 1");  // the name follows the record's 2-byte number
    EXPECT_EQ(file.substr(39 * BandRecord::kLength + 2, 10), "Renamed 40");
    EXPECT_EQ(file.substr(19 * BandRecord::kLength + 2, 7), "Band 20");
}

TEST(DirtyChunks, EachRunOfChangedChunksIsAPatch) {
    constexpr std::size_t k = DirtyChunks::kChunk;
    const std::vector<uint8_t> image(70 * k + 10, 7);
    auto runs = [&](const std::vector<std::pair<std::size_t, std::size_t>>& marks) {
        DirtyChunks d;
        for (auto [from, to] : marks) d.mark(from, to);
        std::vector<Patch> out;
        d.appendPatches(out, image);
        std::vector<std::pair<std::size_t, std::size_t>> got;
        for (const auto& p : out) got.emplace_back(p.offset, p.data().size());
        return got;
    };
    using Runs = std::vector<std::pair<std::size_t, std::size_t>>;
    EXPECT_EQ(runs({}), Runs{});
    EXPECT_EQ(runs({{k + 3, k + 4}}), (Runs{{k, k}}));
    EXPECT_EQ(runs({{k - 1, k + 1}}), (Runs{{0, 2 * k}}));  // a change across a chunk's edge
    // Chunks side by side make one patch; one clean chunk between makes two.
    EXPECT_EQ(runs({{0, 1}, {k, k + 1}, {2 * k + 5, 2 * k + 6}}), (Runs{{0, 3 * k}}));
    EXPECT_EQ(runs({{0, 1}, {2 * k, 2 * k + 1}}), (Runs{{0, k}, {2 * k, k}}));
    // The last chunk is cut at the file's end; chunks past a whole word of bits
    // are found, and a run goes on across the edge of two words.
    EXPECT_EQ(runs({{70 * k + 2, 70 * k + 3}}), (Runs{{70 * k, 10}}));
    EXPECT_EQ(runs({{3, 4}, {39 * k, 39 * k + 1}}), (Runs{{0, k}, {39 * k, k}}));
    EXPECT_EQ(runs({{62 * k, 66 * k}}), (Runs{{62 * k, 4 * k}}));
}

}  // namespace

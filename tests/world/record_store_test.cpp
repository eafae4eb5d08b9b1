// The record store: counting, the one buffer per table, searching by name,
// compaction, and the errors that stop the game.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>

#include <fmt/format.h>

#include "support/game_test.h"
#include "world/record_bytes.h"
#include "world/table_image.h"

using namespace trovane;
using test::fatalMessage;
using ::testing::HasSubstr;

namespace {

template <class R>
int32_t put(Table<R>& t, const R& r) {
    t.rec = r;
    return t.append();
}

int32_t addBand(Game& g, std::string_view name, uint8_t ability = 50) {
    return put(g.band, BandRecord{.name = std::string(name), .ability = ability});
}

using RecordStore = test::GameTest;

// A change lives in the buffer until it is written: writing keeps it, reading
// another record of the same table first throws it away. Other tables'
// buffers are not touched.
TEST_F(RecordStore, AChangeSurvivesOnlyUntilTheNextReadOfItsTable) {
    addBand(g, "One", 10);
    addBand(g, "Two", 20);
    put(g.artist, ArtistRecord{.forename = "Ann"});

    g.band.read(1);
    g.artist.read(1);
    g.band->ability = 11;
    g.band.write();
    EXPECT_EQ((g.band.read(1), g.band->ability), 11);

    g.band->ability = 99;
    g.band.read(2);
    g.band.write();  // writes band 2 back as it was
    EXPECT_EQ((g.band.read(1), g.band->ability), 11);
    EXPECT_EQ((g.band.read(2), g.band->ability), 20);
    EXPECT_EQ(g.artist->forename, "Ann");
}

// A field patched in place reads back as a whole-record write would leave it,
// and a watcher of some bytes hears only of the writes that change them.
TEST_F(RecordStore, APatchedFieldIsSeenByTheWatchersOfItsBytesOnly) {
    const std::size_t kAbility = offsetIn<BandRecord>("ability");
    const std::size_t kName = offsetIn<BandRecord>("name");
    addBand(g, "One", 10);
    std::vector<std::string> heard;
    int everyWrite = 0;
    g.band.watchWrites(&heard,
                       [&](int32_t n, std::span<const uint8_t> before, std::span<const uint8_t> after) {
                           heard.push_back(std::to_string(n) + ":" +
                                           std::to_string(before.empty() ? -1 : before[kAbility]) + ">" +
                                           std::to_string(after[kAbility]));
                       },
                       {{kAbility, 1}});
    g.band.watchWrites(&everyWrite, [&](int32_t, auto, auto) { ++everyWrite; });

    patchField<uint8_t>(g.band, 1, kAbility, [](uint8_t) { return uint8_t{12}; });
    patchField<uint8_t>(g.band, 1, kAbility, [](uint8_t) { return uint8_t{12}; });  // the same: no write
    EXPECT_EQ((g.band.read(1), g.band->ability), 12);
    EXPECT_EQ(g.band->name, "One");
    g.band->name = "Uno";  // a change beside the watched byte, not in it
    g.band.write();
    addBand(g, "Two", 30);  // an added record is told to every watcher
    EXPECT_EQ(heard, (std::vector<std::string>{"1:10>12", "2:-1>30"}));
    EXPECT_EQ(everyWrite, 3);
    // A stretch is compared from its first byte that differs to its last.
    const std::array<uint8_t, 3> uno{'U', 'n', 'a'};
    g.band.putStretch(1, kName, uno);
    EXPECT_EQ((g.band.read(1), g.band->name), "Una");
    EXPECT_EQ(everyWrite, 4);
    EXPECT_THROW(g.band.putStretch(1, BandRecord::kLength - 1, uno), FatalError);

    // A writer that takes note of the record itself leaves its own watcher untold.
    patchField<uint8_t>(
        g.band, 1, kAbility, [](uint8_t) { return uint8_t{13}; }, &heard);
    EXPECT_EQ(heard.size(), 2U);
    EXPECT_EQ(everyWrite, 5);
    // A long stretch that differs in its first and last bytes writes both.
    std::array<uint8_t, 50> name{};
    std::memcpy(name.data(), g.band.bytesOf(1).data() + kName, name.size());
    name[0] = 'E';
    name[49] = 'x';
    g.band.putStretch(1, kName, name);
    g.band.putStretch(1, kName, name);  // the same again: no write
    EXPECT_EQ((g.band.read(1), g.band->name.value.front()), 'E');
    EXPECT_EQ(g.band->name.value.back(), 'x');
    EXPECT_EQ(everyWrite, 6);
}

// The commit writes the chunks of a record that a whole-record write changed,
// not the whole record, and a record written back unchanged writes nothing.
TEST_F(RecordStore, AWholeRecordWriteLeavesOnlyItsChangedBytesToTheCommit) {
    const std::size_t kHype = offsetIn<BandRecord>("hype");
    for (auto name : {"One", "Two", "Three"}) addBand(g, name);
    flushAllTables(g);
    g.band.read(2);
    g.band.write();
    EXPECT_FALSE(g.band.takeWrites());
    g.band->hype[4] = 7;
    g.band.write();
    const auto write = g.band.takeWrites();
    ASSERT_TRUE(write);
    ASSERT_EQ(write->patches.size(), 1U);
    const Patch& patch = write->patches[0];
    const std::size_t changed = BandRecord::kLength + kHype + 4 * sizeof(int16_t);
    EXPECT_LE(patch.offset, changed);
    EXPECT_GE(patch.offset + patch.data().size(), changed + sizeof(int16_t));
    EXPECT_LE(patch.data().size(), 2 * DirtyChunks::kChunk);
}

TEST_F(RecordStore, RecordsCountFromOneReadingPastTheEndStopsTheGameAndSixteenBitNumbersEndAt32767) {
    EXPECT_EQ(recordCount(g, FileNo::fileBand), 1);
    EXPECT_EQ(addBand(g, "Only"), 1);
    EXPECT_EQ(g.band->id, 1);
    EXPECT_EQ(recordCount(g, FileNo::fileBand), 2);
    EXPECT_THROW(recordCount(g, FileNo::fileTemp), FatalError);
    for (int32_t n : {0, 2, -1}) EXPECT_THAT(fatalMessage([&] { g.band.read(n); }), HasSubstr("band")) << n;
    EXPECT_THROW(g.band.write(3), FatalError);  // only the next free number adds a record
    EXPECT_FALSE(g.band.readIfPresent(2));
    EXPECT_EQ(g.band->name, "");
    for (int32_t n = 1; n <= 32767; ++n) put(g.look, LookRecord{});
    EXPECT_EQ(g.look->id, 32767);
    EXPECT_THAT(fatalMessage([&] { put(g.look, LookRecord{}); }), HasSubstr("look"));
    EXPECT_EQ(g.look.recordCount(), 32768);  // the file did not grow
}

TEST_F(RecordStore, APilingTableReadsItsOldRecordsAgainFromItsFileAfterFourWeeksOfCommits) {
    for (int i = 1; i <= 10; ++i) put(g.news, NewsRecord{.title = fmt::format("Item {}", i)});
    const fs::path file = g.news.path();
    constexpr std::size_t kTitle = 11;
    // Changes the first letter of a title in the file, behind the table's back.
    auto scribble = [&](int32_t n, char c) {
        const int fd = ::open(file.c_str(), O_WRONLY);
        ASSERT_EQ(::pwrite(fd, &c, 1, static_cast<off_t>((n - 1) * NewsRecord::kLength + kTitle)), 1);
        ::close(fd);
    };
    auto title = [&](int32_t n) { return (g.news.read(n), g.news->title.value); };
    g.commitsSincePagesWentBack = 0;
    for (int day = 1; day <= 27; ++day) flushAllTables(g);  // the pages go at every 28th commit
    scribble(3, 'J');
    EXPECT_EQ(title(3), "Item 3");  // still held whole
    scribble(3, 'I');
    flushAllTables(g);
    scribble(3, 'J');
    EXPECT_EQ(title(3), "Jtem 3");  // read again from the file
    scribble(3, 'I');

    // What changes after is the table's own until the commit writes it.
    g.news.read(9);
    g.news->title = "Changed";
    g.news.write();
    put(g.news, NewsRecord{.title = "Item 11"});
    scribble(9, 'X');
    EXPECT_EQ(title(9), "Changed");
    flushAllTables(g);
    g.news.close();
    g.news.open(file, IfMissing::fail);
    EXPECT_EQ(title(9), "Changed");
    EXPECT_EQ(title(10), "Item 10");
    EXPECT_EQ(title(11), "Item 11");
    EXPECT_EQ(g.news.recordCount(), 12);
}

TEST(TableImage, GrowsWhereItIsWithZerosAndACutPartReadsZeroWhenGrownAgain) {
    TableImage image;
    image.resize(100);
    uint8_t* const at = image.data();
    std::memset(at, 7, 100);
    image.resize(std::size_t{1} << 20);
    EXPECT_EQ(image.data(), at);
    EXPECT_EQ(image.data()[99], 7);
    EXPECT_EQ(image.data()[100], 0);
    image.resize(50);
    image.resize(100);
    EXPECT_EQ(image.data()[49], 7);
    EXPECT_EQ(image.data()[50], 0);
    // Past its reservation the bytes move with it.
    image.resize(std::size_t{300} << 20);
    EXPECT_EQ(image.data()[49], 7);
    EXPECT_EQ(image.data()[50], 0);
}

struct NameCase {
    FileNo file;
    std::string name;
    int32_t expected;
};

TEST_F(RecordStore, FindByNameEachTableSearchesItsOwnNameField) {
    addBand(g, "Other");
    addBand(g, "The Band");
    put(g.country, CountryRecord{.name = "Spain", .adjective = "Spanish"});
    put(g.country, CountryRecord{.name = "France", .adjective = "French"});
    put(g.city, CityRecord{.name = "Café Town"});
    put(g.job, JobRecord{.title = "Drummer", .titleFemale = "Drummeress"});
    put(g.style, StyleRecord{.name = "  Punk"});
    put(g.song, SongRecord{.title = "Hit"});
    for (int i = 0; i < 3; ++i) {
        put(g.artist, ArtistRecord{.forename = i ? "Ann" : "Bob", .surname = "Lee"});
        put(g.staff, StaffRecord{.forename = i ? "Ann" : "Bob", .surname = "Lee"});
    }
    const std::string padded = "Ann" + std::string(29, ' ') + " Lee" + std::string(29, ' ');
    const NameCase cases[] = {
        {FileNo::fileBand, "The Band", 2},
        {FileNo::fileBand, "The Band" + std::string(42, ' '), 2},  // as stored, blank-padded
        {FileNo::fileBand, "the band", 0},
        {FileNo::fileCountry, "France", 2},
        {FileNo::fileCountry, "French", 2},
        {FileNo::fileCity, "Café Town", 1},
        {FileNo::fileCity, "Café Town" + std::string(11, ' '), 1},  // 20 bytes in the file
        {FileNo::fileJob, "Drummer", 1},
        {FileNo::fileJob, "Drummeress", 0},
        {FileNo::fileStyle, "Punk", 1},
        {FileNo::fileSong, "Hit", 1},
        {FileNo::fileArtist, "Ann Lee", 2},  // the first of two namesakes
        {FileNo::fileArtist, padded, 2},
        {FileNo::fileArtist, "Lee", 0},
        {FileNo::fileStaff, "Ann Lee", 2},
    };
    for (const auto& c : cases)
        EXPECT_EQ(findRecordByName(g, c.file, c.name), c.expected)
            << catalogueEntry(c.file).table << " '" << c.name << "'";
    EXPECT_THROW(findRecordByName(g, FileNo::fileNews, "x"), FatalError);
}

TEST_F(RecordStore, FindByNameLeavesTheBufferOnTheLastRecordReadExceptForLabelAndEvent) {
    for (auto name : {"A", "B", "C"}) {
        addBand(g, name);
        put(g.label, LabelRecord{.name = name});
        put(g.event, EventRecord{.title = name});
    }
    g.band.read(3);
    EXPECT_EQ(findRecordByName(g, FileNo::fileBand, "B"), 2);
    EXPECT_EQ(g.band->name, "B");
    EXPECT_EQ(findRecordByName(g, FileNo::fileBand, "none"), 0);
    EXPECT_EQ(g.band->name, "C");

    g.label.read(1);
    g.label->cashBalance = 5;  // not written: the search must not lose it
    EXPECT_EQ(findRecordByName(g, FileNo::fileLabel, "C"), 3);
    EXPECT_EQ(g.label->name, "A");
    EXPECT_EQ(g.label->cashBalance, 5);
    g.event.read(2);
    EXPECT_EQ(findRecordByName(g, FileNo::fileEvent, "A"), 1);
    EXPECT_EQ(g.event->title, "B");
}

TEST_F(RecordStore, CompactKeepsTheWantedRecordsInOrderNumberedFromOneAndMayKeepNone) {
    for (auto [band, label] : {std::pair<int16_t, int16_t>{1, 1}, {0, 0}, {5, 2}, {3, 0}, {7, 7}})
        put(g.shortlist, ShortlistRecord{.band = band, .label = label});
    compactTable(g, g.shortlist, [](const ShortlistRecord& r) { return r.band >= 1 && r.label >= 1; });
    ASSERT_EQ(g.shortlist.recordCount(), 4);
    auto idAndBand = [&](int32_t n) { return (g.shortlist.read(n), std::tuple(g.shortlist->id, g.shortlist->band)); };
    EXPECT_EQ(idAndBand(2), std::tuple(2, int16_t{5}));
    EXPECT_EQ(idAndBand(3), std::tuple(3, int16_t{7}));
    flushAllTables(g);
    EXPECT_EQ(std::filesystem::file_size(g.dataDir / "shortlist.vel"), 3 * ShortlistRecord::kLength);

    compactTable(g, g.shortlist, [](const ShortlistRecord&) { return false; });
    flushAllTables(g);
    EXPECT_EQ(std::filesystem::file_size(g.dataDir / "shortlist.vel"), 0u);
    EXPECT_EQ(put(g.shortlist, ShortlistRecord{.band = 4}), 1);
    closeAllTables(g);
    EXPECT_EQ(std::filesystem::file_size(g.dataDir / "shortlist.vel"), ShortlistRecord::kLength);
}

}  // namespace

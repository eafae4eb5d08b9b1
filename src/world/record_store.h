#pragma once
// The record store: opening and closing the table set, counting, copying a
// set of tables, finding a record by name, compaction and the per-use files.
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

#include "world/game.h"

namespace trovane {

// The table (working or per-use) that a file number names.
TableBase& tableByNumber(Game& g, FileNo n);

// The count of records of an open table plus one; 1 for an empty table.
int32_t recordCount(Game& g, FileNo n);

// "<dataDir>/<stem>.<ext>"
std::filesystem::path dataFile(const Game& g, std::string_view stem, std::string_view ext);

// Opens one table by its number: a table of the set as "<stem>.<ext>", a
// working-only table (news, schedule, offer, shortlist, chartrecs) always as
// "<stem>.vel", and prefs, highscore, fact, cb and ca as their ".gam" file.
// The day index, the charts and the session record have their own opens.
// Opening an open table closes it first, writing back what changed.
void openTable(Game& g, FileNo n, std::string_view ext = "vel");
void closeTable(Game& g, FileNo n);

// Opens the working set. A table file the game fills itself (news, schedule,
// offers, shortlist, chart records) is created empty when missing; any other
// missing file is an error that names it. A file that is not a whole number of
// records is refused by name.
void openAllTables(Game& g, std::string_view ext = "vel");
// Commits what changed, then closes every open table, per-use ones included.
void closeAllTables(Game& g);
// The commit: what changed in every table since the last one (open tables,
// tables closed since, and extra writes such as the session record) reaches
// the files whole or not at all, through the journal. The tables stay open.
void flushAllTables(Game& g, std::vector<FileWrite> extra = {});
// Whether a data file exists, counting one made since the last commit.
bool dataFileExists(const Game& g, const std::filesystem::path& file);

// Copies every table file of the set (the ten charts included) from one
// extension to the other, overwriting the targets. All tables must be closed
// (an open one is refused, as a copy would miss its unwritten changes); a
// missing source file is an error that names it. Copying from the base set
// (gam) first checks it against its manifest (a BrokenDataError when it fails).
void copyTableSet(Game& g, std::string_view fromExt, std::string_view toExt);

// Makes target an empty file by copying empty.gam, as every new scratch and day file is made.
void copyEmptyFile(Game& g, const std::filesystem::path& target);

// The first record whose name field equals name (trimmed or as stored), or 0.
// Leaves the searched table's buffer on the last record read, except for
// label and event, which are searched through a local copy.
int32_t findRecordByName(Game& g, FileNo n, std::string_view name);

// The per-use files: <year>.vel under fileDay, chart<n>.vel under fileChart.
// Each number holds one file at a time, so the caller closes it right after
// use, before any other operation gets control; opening it again while it is
// open is refused. A missing file is an error that names it.
// The path of a year's day file, made once for the game.
const std::filesystem::path& dayFilePath(const Game& g, int year);
void openDayFile(Game& g, int year);
// Opens the day index of a year as a new empty file, whatever was there.
void openNewDayFile(Game& g, int year);
void closeDayFile(Game& g);
void openChart(Game& g, int chartNumber);
void closeChart(Game& g);

// Rewrites a table without the records keep() refuses, numbering the kept
// ones from 1. The table is rewritten in memory and reaches its file with the
// next commit, so it is never missing or half written.
template <PackedRecord R, class Keep>
void compactTable(Game& g, Table<R>& table, Keep keep);

template <PackedRecord R, class Keep>
void compactTable(Game& g, Table<R>& table, Keep keep) {
    static_cast<void>(g);
    std::vector<std::array<uint8_t, R::kLength>> kept;
    std::array<uint8_t, R::kLength> bytes{};
    for (int32_t n = 1; n != table.recordCount(); ++n) {
        table.read(n);
        if (!keep(table.rec)) continue;
        using IdType = std::remove_cvref_t<decltype(table.rec.ownNumber())>;
        table.rec.ownNumber() = narrow<IdType>(kept.size() + 1);
        encodeRecord(table.rec, bytes.data());
        kept.push_back(bytes);
    }
    table.clearAll();
    for (std::size_t i = 0; i < kept.size(); ++i) table.putBytes(narrow<int32_t>(i + 1), kept[i]);
}

}  // namespace trovane

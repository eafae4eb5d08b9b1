#include "world/record_store.h"

#include <system_error>

#include <fmt/format.h>

#include "world/cp1252.h"
#include "world/fatal_error.h"
#include "world/manifest.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kCommitsBetweenLettingPagesGo = 28;

bool createdEmptyWhenMissing(FileNo n) {
    using enum FileNo;
    return n == fileNews || n == fileSchedule || n == fileOffer || n == fileShortlist || n == fileChartRecs ||
           n == fileChartRun || n == fileLedger;
}

void copyFile(const fs::path& from, const fs::path& to) {
    std::error_code ec;
    if (!fs::exists(from, ec)) throw FatalError(fmt::format("The data file {} is missing", from.string()));
    fs::copy_file(from, to, fs::copy_options::overwrite_existing, ec);
    if (ec) throw FatalError(fmt::format("Cannot copy {} to {}: {}", from.string(), to.string(), ec.message()));
}

// The field as stored: blank-padded to its width in the file's encoding.
template <std::size_t N>
std::string untrimmed(const Text<N>& field) {
    std::string padded = field.value;
    std::size_t stored = utf8ToCp1252(field.value).size();
    if (stored < N) padded.append(N - stored, ' ');
    return padded;
}

template <std::size_t N>
bool nameMatches(const Text<N>& field, std::string_view name) {
    return trim(field.value) == name || untrimmed(field) == name;
}

template <PackedRecord R, class Matches>
int32_t findIn(Table<R>& t, Matches matches) {
    for (int32_t n = 1; n != t.recordCount(); ++n) {
        t.read(n);
        if (matches(t.rec)) return n;
    }
    return 0;
}

// Label and event keep their buffer: they are searched through a local copy.
template <PackedRecord R, class Matches>
int32_t findInCopy(Table<R>& t, Matches matches) {
    R copy{};
    for (int32_t n = 1; n != t.recordCount(); ++n) {
        decodeRecord(t.bytesOf(n).data(), copy);
        if (matches(copy)) return n;
    }
    return 0;
}

template <std::size_t A, std::size_t B>
bool fullNameMatches(const Text<A>& fore, const Text<B>& sur, std::string_view name) {
    return trim(fore.value) + " " + trim(sur.value) == name || untrimmed(fore) + " " + untrimmed(sur) == name;
}

void forgetCleanImages(Game& g) {
    g.cleanDayFiles.clear();
    g.cleanCharts.clear();
}

// A per-use file number holds one file at a time: opening it again before it
// is closed means some caller forgot to close it.
void openPerUse(TableBase& t, const fs::path& file) {
    if (t.isOpen())
        throw FatalError(fmt::format("Cannot open {}: file number {} still holds {}", file.string(),
                                     static_cast<int>(t.number()), t.path().string()));
    t.open(file, IfMissing::fail);
}

}  // namespace

TableBase& tableByNumber(Game& g, FileNo n) {
    switch (n) {
#define TROVANE_TABLE_CASE(member, Record, fileNo) \
    case FileNo::fileNo: return g.member;
        TROVANE_WORKING_TABLES(TROVANE_TABLE_CASE)
        TROVANE_PER_USE_TABLES(TROVANE_TABLE_CASE)
#undef TROVANE_TABLE_CASE
    default: throw FatalError(fmt::format("No table has file number {}", static_cast<int>(n)));
    }
}

int32_t recordCount(Game& g, FileNo n) { return tableByNumber(g, n).recordCount(); }

fs::path dataFile(const Game& g, std::string_view stem, std::string_view ext) {
    return g.dataDir / fmt::format("{}.{}", stem, ext);
}

void openTable(Game& g, FileNo n, std::string_view ext) {
    using enum FileNo;
    const auto& entry = catalogueEntry(n);
    switch (entry.kind) {
    case FileKind::inSet: tableByNumber(g, n).open(dataFile(g, entry.stem, ext), IfMissing::fail); return;
    case FileKind::workingOnly:
        tableByNumber(g, n).open(dataFile(g, entry.stem, "vel"),
                                 createdEmptyWhenMissing(n) ? IfMissing::createEmpty : IfMissing::fail);
        return;
    case FileKind::perUse:
        if (n == filePrefs || n == fileHighScore || n == fileFact || n == fileCb || n == fileCa) {
            // The player's files outlive every game and start empty; the others are delivered data.
            bool players = n == filePrefs || n == fileHighScore;
            tableByNumber(g, n).open(dataFile(g, entry.stem, "gam"),
                                     players ? IfMissing::createEmpty : IfMissing::fail);
            return;
        }
        break;
    }
    throw FatalError(
        fmt::format("Table {} has no file of its own: it is opened by the operation that names it", entry.table));
}

void closeTable(Game& g, FileNo n) { tableByNumber(g, n).close(); }

void openAllTables(Game& g, std::string_view ext) {
    forgetCleanImages(g);
    for (FileNo n : openAllOrder()) openTable(g, n, ext);
}

void closeAllTables(Game& g) {
    flushAllTables(g);
    forgetCleanImages(g);
#define TROVANE_CLOSE(member, Record, fileNo) g.member.close();
    TROVANE_WORKING_TABLES(TROVANE_CLOSE)
    TROVANE_PER_USE_TABLES(TROVANE_CLOSE)
#undef TROVANE_CLOSE
}

void flushAllTables(Game& g, std::vector<FileWrite> extra) {
    std::vector<FileWrite> writes;
    auto take = [&](TableBase& t) {
        if (!t.defersWrites()) {
            t.flush();
            return;
        }
        if (auto w = t.takeWrites()) writes.push_back(std::move(*w));
    };
#define TROVANE_TAKE(member, Record, fileNo) take(g.member);
    TROVANE_WORKING_TABLES(TROVANE_TAKE)
    TROVANE_PER_USE_TABLES(TROVANE_TAKE)
#undef TROVANE_TAKE
    for (auto& [file, p] : g.parked) {
        writes.push_back({file, p.image.size(), {}});
        p.dirty.appendPatches(writes.back().patches, p.image.bytes());
    }
    for (auto& w : extra) writes.push_back(std::move(w));
    commitWrites(g.dataDir, writes);
    // Written, a parked image is what its file holds.
    for (auto& [file, p] : g.parked)
        if (p.keepIn != nullptr) p.keepIn->keep(file, std::move(p.image));
    g.parked.clear();
    // Four weeks of days read few of the old records of the tables that pile
    // them up; their pages go back to the system every four weeks and come
    // back from the files as they are read again. (Let go each week, the
    // pages the weekly walks read came back each week, at a cost that grew
    // with the game; held four weeks, they add about a megabyte to the peak.)
    if (++g.commitsSincePagesWentBack >= kCommitsBetweenLettingPagesGo) {
        g.commitsSincePagesWentBack = 0;
#define TROVANE_LET_GO(member, Record, fileNo) g.member.letPagesGo();
        TROVANE_WORKING_TABLES(TROVANE_LET_GO)
#undef TROVANE_LET_GO
    }
}

bool dataFileExists(const Game& g, const fs::path& file) {
    if (g.parked.contains(file.native())) return true;
    std::error_code ec;
    return fs::exists(file, ec);
}

void copyTableSet(Game& g, std::string_view fromExt, std::string_view toExt) {
    // An open table may hold changes not yet in its file: a copy would miss them.
    for (const auto& entry : catalogue()) {
        if (entry.number == FileNo::fileTemp || entry.number == FileNo::fileTemp2) continue;
        const TableBase& t = tableByNumber(g, entry.number);
        if (t.isOpen())
            throw FatalError(
                fmt::format("Cannot copy the {} tables to {}: table {} is still open", fromExt, toExt, entry.table));
    }
    if (!g.parked.empty())
        throw FatalError(fmt::format("Cannot copy the {} tables to {}: {} is not written yet", fromExt, toExt,
                                     g.parked.begin()->first));
    if (fromExt == "gam") checkBaseSet(g.dataDir);
    forgetCleanImages(g);
    for (auto stem : tableSetStems()) copyFile(dataFile(g, stem, fromExt), dataFile(g, stem, toExt));
}

void copyEmptyFile(Game& g, const fs::path& target) {
    g.cleanDayFiles.forget(target);
    g.cleanCharts.forget(target);
    copyFile(g.dataDir / "empty.gam", target);
}

int32_t findRecordByName(Game& g, FileNo n, std::string_view name) {
    using enum FileNo;
    switch (n) {
    case fileBand: return findIn(g.band, [&](auto& r) { return nameMatches(r.name, name); });
    case fileCountry:
        return findIn(g.country, [&](auto& r) { return nameMatches(r.name, name) || nameMatches(r.adjective, name); });
    case fileCity: return findIn(g.city, [&](auto& r) { return nameMatches(r.name, name); });
    case fileJob: return findIn(g.job, [&](auto& r) { return nameMatches(r.title, name); });
    case fileStyle: return findIn(g.style, [&](auto& r) { return nameMatches(r.name, name); });
    case fileLabel: return findInCopy(g.label, [&](auto& r) { return nameMatches(r.name, name); });
    case fileArtist: return findIn(g.artist, [&](auto& r) { return fullNameMatches(r.forename, r.surname, name); });
    case fileStaff: return findIn(g.staff, [&](auto& r) { return fullNameMatches(r.forename, r.surname, name); });
    case fileLook: return findIn(g.look, [&](auto& r) { return nameMatches(r.name, name); });
    case fileVenue: return findIn(g.venue, [&](auto& r) { return nameMatches(r.name, name); });
    case fileSong: return findIn(g.song, [&](auto& r) { return nameMatches(r.title, name); });
    case fileDisc: return findIn(g.disc, [&](auto& r) { return nameMatches(r.title, name); });
    case fileBusiness: return findIn(g.business, [&](auto& r) { return nameMatches(r.name, name); });
    case fileEvent: return findInCopy(g.event, [&](auto& r) { return nameMatches(r.title, name); });
    case fileAward: return findIn(g.award, [&](auto& r) { return nameMatches(r.name, name); });
    case fileCeremony: return findIn(g.ceremony, [&](auto& r) { return nameMatches(r.name, name); });
    case fileNewAlbum: return findIn(g.newalbum, [&](auto& r) { return nameMatches(r.title, name); });
    case fileMedia: return findIn(g.media, [&](auto& r) { return nameMatches(r.mediaName, name); });
    case fileProduct: return findIn(g.product, [&](auto& r) { return nameMatches(r.name, name); });
    default: throw FatalError(fmt::format("Table {} has no name to search by", catalogueEntry(n).table));
    }
}

const fs::path& dayFilePath(const Game& g, int year) {
    auto [at, made] = g.dayFilePaths.try_emplace(year);
    if (made) at->second = dataFile(g, std::to_string(year), "vel");
    return at->second;
}

void openDayFile(Game& g, int year) { openPerUse(g.dayIndex, dayFilePath(g, year)); }
void openNewDayFile(Game& g, int year) {
    const fs::path& file = dayFilePath(g, year);
    if (g.dayIndex.isOpen())
        throw FatalError(fmt::format("Cannot open {}: file number {} still holds {}", file.string(),
                                     static_cast<int>(g.dayIndex.number()), g.dayIndex.path().string()));
    g.dayIndex.openNew(file);
}
void closeDayFile(Game& g) { g.dayIndex.close(); }

void openChart(Game& g, int chartNumber) {
    if (chartNumber < 0 || static_cast<std::size_t>(chartNumber) >= g.chartPaths.size()) {
        openPerUse(g.chart, dataFile(g, fmt::format("chart{}", chartNumber), "vel"));
        return;
    }
    fs::path& file = g.chartPaths[static_cast<std::size_t>(chartNumber)];
    if (file.empty()) file = dataFile(g, fmt::format("chart{}", chartNumber), "vel");
    openPerUse(g.chart, file);
    g.openedChart = chartNumber;
    g.openedChartGeneration = g.chart.generation();
}
void closeChart(Game& g) { g.chart.close(); }

}  // namespace trovane

#include "session/save_load.h"

#include <fcntl.h>
#include <unistd.h>

#include <fstream>
#include <vector>

#include <fmt/format.h>

#include "floor/preferences.h"
#include "session/session_record.h"
#include "world/dates.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane {

namespace fs = std::filesystem;

namespace {

constexpr const char* kCompleteMark = "COMPLETE";

std::string slotExt(int slot) { return fmt::format("sg{}", slot); }

void requireSlot(int slot) {
    if (slot < 0 || slot >= kSlotCount) throw SlotError(fmt::format("There is no save slot {}", slot));
}

fs::path stagingFolder(const Game& g, int slot) { return g.dataDir / fmt::format(".saving.sg{}", slot); }
fs::path loadStagingFolder(const Game& g) { return g.dataDir / ".loading"; }

// The names of a slot's files, given the years its schedule spans.
std::vector<std::string> setFileNames(std::string_view ext, int firstYear, int lastYear) {
    std::vector<std::string> names;
    for (auto stem : tableSetStems()) names.push_back(fmt::format("{}.{}", stem, ext));
    for (int y = firstYear; y <= lastYear; ++y) names.push_back(fmt::format("{}.{}", y, ext));
    return names;
}

void syncFile(const fs::path& p) {
    int fd = ::open(p.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

void copyInto(const fs::path& from, const fs::path& to) {
    std::error_code ec;
    fs::copy_file(from, to, fs::copy_options::overwrite_existing, ec);
    if (ec) throw SlotError(fmt::format("Cannot copy {} to {}: {}", from.string(), to.string(), ec.message()));
}

// Everything staged reaches the disk before the mark that says it is complete:
// one flush of the file system instead of one per file.
void syncStaged(const fs::path& staging) {
    int fd = ::open(staging.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::syncfs(fd);
        ::close(fd);
    }
}

// Moves every staged file into the data folder, then drops the staging folder.
// Each move replaces its target in one step; redoing it after a crash is harmless.
void commitStaging(const fs::path& staging, const fs::path& dataDir) {
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator(staging)) {
        if (entry.path().filename() == kCompleteMark) continue;
        fs::rename(entry.path(), dataDir / entry.path().filename(), ec);
        if (ec) throw SlotError(fmt::format("Cannot move {} into place: {}", entry.path().string(), ec.message()));
    }
    fs::remove_all(staging, ec);
}

void markComplete(const fs::path& staging) {
    syncStaged(staging);
    fs::path mark = staging / kCompleteMark;
    std::ofstream(mark) << "complete\n";
    syncFile(mark);
    syncFile(staging);
}

SvarRecord readSlotSession(Game& g, int slot) {
    fs::path file = g.dataDir / fmt::format("svar.{}", slotExt(slot));
    std::error_code ec;
    if (!fs::exists(file, ec))
        throw SlotError(fmt::format("Slot {} is incomplete: {} is missing", slot, file.string()));
    auto size = fs::file_size(file, ec);
    if (ec || size != SvarRecord::kLength)
        throw SlotError(fmt::format("Slot {} is damaged: its session record {} is {} bytes, not {}", slot,
                                    file.string(), size, SvarRecord::kLength));
    std::ifstream in(file, std::ios::binary);
    std::array<uint8_t, SvarRecord::kLength> bytes{};
    in.read(reinterpret_cast<char*>(bytes.data()), bytes.size());
    SvarRecord rec{};
    decodeRecord(bytes.data(), rec);
    if (rec.firstScheduleYear < 1900 || rec.lastScheduleYear < rec.firstScheduleYear ||
        rec.lastScheduleYear > rec.firstScheduleYear + 1000 || !(rec.gameDate >= 1.0 && rec.gameDate < 2958466.0))
        throw SlotError(
            fmt::format("Slot {} is damaged: its session record {} does not hold a game", slot, file.string()));
    return rec;
}

// Every file of the slot is there and a whole number of its records.
void checkSlotComplete(Game& g, int slot, const SvarRecord& session) {
    std::string ext = slotExt(slot);
    for (const auto& name : setFileNames(ext, session.firstScheduleYear, session.lastScheduleYear)) {
        fs::path file = g.dataDir / name;
        std::error_code ec;
        if (!fs::exists(file, ec)) throw SlotError(fmt::format("Slot {} is incomplete: {} is missing", slot, name));
        auto size = fs::file_size(file, ec);
        FileNo n = *tableOfFile(file);
        std::size_t length = catalogueEntry(n).recordLength;
        if (ec || size % length != 0)
            throw SlotError(
                fmt::format("Slot {} is damaged: {} is not a whole number of {}-byte records", slot, name, length));
        if (n == FileNo::fileDay) {
            int year = std::stoi(file.stem().string());
            if (size != static_cast<std::uintmax_t>(daysInYear(year)) * length)
                throw SlotError(fmt::format("Slot {} is damaged: the day index {} does not hold every day of {}", slot,
                                            name, year));
        }
    }
}

}  // namespace

void recoverInterruptedSaves(Game& g) {
    std::error_code ec;
    for (int slot = 0; slot < kSlotCount; ++slot) {
        fs::path staging = stagingFolder(g, slot);
        if (!fs::exists(staging, ec)) continue;
        if (fs::exists(staging / kCompleteMark, ec))
            commitStaging(staging, g.dataDir);
        else
            fs::remove_all(staging, ec);
    }
    fs::remove_all(loadStagingFolder(g), ec);
}

void saveGame(Game& g, int slot, const std::string& saveName) {
    requireSlot(slot);
    recoverInterruptedSaves(g);
    closeAllTables(g);
    fs::path staging = stagingFolder(g, slot);
    std::error_code ec;
    fs::remove_all(staging, ec);
    fs::create_directories(staging, ec);
    if (ec) throw SlotError(fmt::format("Cannot save into slot {}: {}", slot, ec.message()));
    try {
        std::string ext = slotExt(slot);
        for (auto stem : tableSetStems()) copyInto(dataFile(g, stem, "vel"), staging / fmt::format("{}.{}", stem, ext));
        for (int y = g.firstScheduleYear; y <= g.lastScheduleYear; ++y)
            copyInto(dataFile(g, std::to_string(y), "vel"), staging / fmt::format("{}.{}", y, ext));
        fs::path svar = staging / fmt::format("svar.{}", ext);
        writeSessionFile(g, svar, saveName);
        markComplete(staging);
        commitStaging(staging, g.dataDir);
    } catch (...) {
        fs::remove_all(staging, ec);
        openAllTables(g, "vel");
        throw;
    }
    readPrefs(g);
    g.prefs->slotUsed[static_cast<std::size_t>(slot)] = kTrue;
    writePrefs(g);
    openAllTables(g, "vel");
}

void loadGame(Game& g, int slot) {
    requireSlot(slot);
    recoverInterruptedSaves(g);
    SvarRecord session = readSlotSession(g, slot);
    checkSlotComplete(g, slot, session);
    std::string ext = slotExt(slot);
    fs::path staging = loadStagingFolder(g);
    std::error_code ec;
    fs::remove_all(staging, ec);
    fs::create_directories(staging, ec);
    if (ec) throw SlotError(fmt::format("Cannot load slot {}: {}", slot, ec.message()));
    try {
        for (auto stem : tableSetStems()) copyInto(dataFile(g, stem, ext), staging / fmt::format("{}.vel", stem));
        for (int y = session.firstScheduleYear; y <= session.lastScheduleYear; ++y)
            copyInto(dataFile(g, std::to_string(y), ext), staging / fmt::format("{}.vel", y));
    } catch (...) {
        fs::remove_all(staging, ec);
        throw;
    }
    // Everything is staged: only now is the running game replaced.
    closeAllTables(g);
    commitStaging(staging, g.dataDir);
    applySessionRecord(g, session);
    openAllTables(g, "vel");
}

std::string slotName(Game& g, int slot) {
    requireSlot(slot);
    readPrefs(g);
    if (g.prefs->slotUsed[static_cast<std::size_t>(slot)] == kFalse) return "None";
    try {
        return trim(readSlotSession(g, slot).saveName.value);
    } catch (const SlotError&) { return "(damaged)"; }
}

void deleteSlot(Game& g, int slot) {
    requireSlot(slot);
    readPrefs(g);
    g.prefs->slotUsed[static_cast<std::size_t>(slot)] = kFalse;
    writePrefs(g);
}

SlotDetails slotDetails(Game& g, int slot) {
    requireSlot(slot);
    SvarRecord s = readSlotSession(g, slot);
    SlotDetails d;
    d.name = trim(s.saveName.value);
    d.gameDate = s.gameDate;
    d.playerForename = trim(s.player.playerForename.value);
    d.playerSurname = trim(s.player.playerSurname.value);
    // The slot's label table is read through a table of its own, so the
    // working set stays open and its buffers untouched.
    Table<LabelRecord> labels(FileNo::fileLabel);
    labels.open(dataFile(g, "label", slotExt(slot)), IfMissing::fail);
    if (labels.readIfPresent(s.player.playerLabel)) {
        d.labelName = trim(labels->name.value);
        d.cash = labels->cashBalance;
        for (std::size_t m = 0; m < 5; ++m) d.reputation[m] = labels->reputation[m];
    }
    labels.close();
    return d;
}

}  // namespace trovane

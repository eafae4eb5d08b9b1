#include "session/save_load.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <optional>
#include <vector>

#include <fmt/format.h>

#include "floor/preferences.h"
#include "session/invariants.h"
#include "session/session_record.h"
#include "world/dates.h"
#include "world/manifest.h"
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

fs::path slotManifest(const Game& g, int slot) { return g.dataDir / fmt::format("manifest.{}", slotExt(slot)); }

// The files of a slot in the data folder, its manifest aside.
std::vector<std::string> slotFilesPresent(const fs::path& dataDir, std::string_view ext) {
    std::vector<std::string> names;
    std::string dotExt = fmt::format(".{}", ext);
    std::string manifest = fmt::format("manifest{}", dotExt);
    std::error_code ec;
    for (const auto& e : fs::directory_iterator(dataDir, ec)) {
        std::string name = e.path().filename().string();
        if (e.path().extension() == dotExt && name != manifest) names.push_back(name);
    }
    return names;
}

// Moves every staged file into the data folder, a manifest last, then drops
// the staging folder. Each move replaces its target in one step; redoing it
// after a crash is harmless. A slot's files that its new manifest does not
// list (the years of an older, longer game) are removed before the staging
// folder goes, so that a redo removes them too.
void commitStaging(const fs::path& staging, const fs::path& dataDir, std::optional<std::string> ext = std::nullopt) {
    std::error_code ec;
    std::vector<fs::path> manifests;
    auto move = [&](const fs::path& from) {
        fs::rename(from, dataDir / from.filename(), ec);
        if (ec) throw SlotError(fmt::format("Cannot move {} into place: {}", from.string(), ec.message()));
    };
    for (const auto& entry : fs::directory_iterator(staging)) {
        std::string name = entry.path().filename().string();
        if (name == kCompleteMark) continue;
        if (name.starts_with("manifest.")) {
            manifests.push_back(entry.path());
            continue;
        }
        move(entry.path());
    }
    for (const auto& m : manifests) move(m);
    auto listed = ext ? manifestNames(dataDir / fmt::format("manifest.{}", *ext)) : std::nullopt;
    if (listed) {
        for (const auto& name : slotFilesPresent(dataDir, *ext))
            if (std::find(listed->begin(), listed->end(), name) == listed->end()) fs::remove(dataDir / name, ec);
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
        throw BrokenSlotError(fmt::format("Slot {} is incomplete: {} is missing", slot, file.string()));
    auto size = fs::file_size(file, ec);
    if (ec || size != SvarRecord::kLength)
        throw BrokenSlotError(fmt::format("Slot {} is damaged: its session record {} is {} bytes, not {}", slot,
                                          file.string(), size, SvarRecord::kLength));
    std::ifstream in(file, std::ios::binary);
    std::array<uint8_t, SvarRecord::kLength> bytes{};
    in.read(reinterpret_cast<char*>(bytes.data()), bytes.size());
    SvarRecord rec{};
    decodeRecord(bytes.data(), rec);
    if (rec.firstScheduleYear < 1900 || rec.lastScheduleYear < rec.firstScheduleYear ||
        rec.lastScheduleYear > rec.firstScheduleYear + 1000 || !(rec.gameDate >= 1.0 && rec.gameDate < 2958466.0))
        throw BrokenSlotError(
            fmt::format("Slot {} is damaged: its session record {} does not hold a game", slot, file.string()));
    return rec;
}

// Every file of the slot is there and a whole number of its records.
void checkSlotComplete(Game& g, int slot, const SvarRecord& session) {
    std::string ext = slotExt(slot);
    for (const auto& name : setFileNames(ext, session.firstScheduleYear, session.lastScheduleYear)) {
        fs::path file = g.dataDir / name;
        std::error_code ec;
        if (!fs::exists(file, ec))
            throw BrokenSlotError(fmt::format("Slot {} is incomplete: {} is missing", slot, name));
        auto size = fs::file_size(file, ec);
        FileNo n = *tableOfFile(file);
        std::size_t length = catalogueEntry(n).recordLength;
        if (ec || size % length != 0)
            throw BrokenSlotError(
                fmt::format("Slot {} is damaged: {} is not a whole number of {}-byte records", slot, name, length));
        if (n == FileNo::fileDay) {
            int year = std::stoi(file.stem().string());
            if (size != static_cast<std::uintmax_t>(daysInYear(year)) * length)
                throw BrokenSlotError(fmt::format("Slot {} is damaged: the day index {} does not hold every day of {}",
                                                  slot, name, year));
        }
    }
}

// The slot's files against its manifest, then its session record and the
// files that record calls for. Any fault refuses the slot, the file named.
SvarRecord verifySlot(Game& g, int slot) {
    if (auto fault = manifestFault(slotManifest(g, slot), slotFilesPresent(g.dataDir, slotExt(slot))))
        throw BrokenSlotError(fmt::format("Slot {} is broken: {}", slot, *fault));
    SvarRecord session = readSlotSession(g, slot);
    checkSlotComplete(g, slot, session);
    return session;
}

}  // namespace

void recoverInterruptedSaves(Game& g) {
    std::error_code ec;
    for (int slot = 0; slot < kSlotCount; ++slot) {
        fs::path staging = stagingFolder(g, slot);
        if (!fs::exists(staging, ec)) continue;
        if (fs::exists(staging / kCompleteMark, ec))
            commitStaging(staging, g.dataDir, slotExt(slot));
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
        std::vector<fs::path> staged;
        for (const auto& e : fs::directory_iterator(staging)) staged.push_back(e.path());
        writeManifest(staging / fmt::format("manifest.{}", ext), staged);
        markComplete(staging);
        commitStaging(staging, g.dataDir, ext);
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
    SvarRecord session = verifySlot(g, slot);
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
    noteActiveActs(g);
}

std::string slotName(Game& g, int slot) {
    requireSlot(slot);
    readPrefs(g);
    if (g.prefs->slotUsed[static_cast<std::size_t>(slot)] == kFalse) return "None";
    try {
        return trim(verifySlot(g, slot).saveName.value);
    } catch (const SlotError&) { return "(damaged)"; }
}

std::optional<std::string> slotFault(Game& g, int slot) {
    requireSlot(slot);
    readPrefs(g);
    if (g.prefs->slotUsed[static_cast<std::size_t>(slot)] == kFalse) return std::nullopt;
    try {
        verifySlot(g, slot);
    } catch (const SlotError& e) { return e.what(); }
    return std::nullopt;
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

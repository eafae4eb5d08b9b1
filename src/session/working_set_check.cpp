#include "session/working_set_check.h"

#include <array>
#include <fstream>
#include <string>

#include <fmt/format.h>

#include "session/empty_world.h"
#include "session/session_record.h"
#include "world/dates.h"
#include "world/fatal_error.h"
#include "world/game.h"
#include "world/record_store.h"

namespace trovane {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void refuse(const Game& g, const std::string& fault) {
    throw BrokenDataError(fmt::format("The working set in {} cannot be continued: {}", g.dataDir.string(), fault));
}

// The size of a file of the set, which must be a whole number of records.
std::uintmax_t wholeRecords(const Game& g, const std::string& name, std::size_t length) {
    std::error_code ec;
    fs::path file = g.dataDir / name;
    if (!fs::is_regular_file(file, ec)) refuse(g, fmt::format("{} is missing", name));
    auto size = fs::file_size(file, ec);
    if (ec) refuse(g, fmt::format("{} cannot be read: {}", name, ec.message()));
    if (size % length != 0)
        refuse(g, fmt::format("{} is {} bytes, not a whole number of {}-byte records", name, size, length));
    return size;
}

SvarRecord sessionRecord(const Game& g) {
    std::string name = workingSessionFile(g).filename().string();
    auto size = wholeRecords(g, name, SvarRecord::kLength);
    if (size != SvarRecord::kLength)
        refuse(g, fmt::format("{} holds {} session records, not one", name, size / SvarRecord::kLength));
    std::array<uint8_t, SvarRecord::kLength> bytes{};
    std::ifstream(workingSessionFile(g), std::ios::binary).read(reinterpret_cast<char*>(bytes.data()), bytes.size());
    SvarRecord s{};
    decodeRecord(bytes.data(), s);
    // The schedule's years run from the first game year to the last year an
    // entry was filed in, which may lie before or after the game's date.
    if (!(s.gameDate >= gameStartDay() && s.gameDate < serialFromCivil(9999, 1, 1)) ||
        s.firstScheduleYear < yearOf(gameStartDay()) || s.lastScheduleYear < s.firstScheduleYear ||
        s.lastScheduleYear > 9999)
        refuse(g, fmt::format("{} does not hold a game", name));
    return s;
}

}  // namespace

void checkWorkingSet(const Game& g) {
    SvarRecord s = sessionRecord(g);
    for (auto stem : tableSetStems()) {
        std::string name = fmt::format("{}.vel", stem);
        wholeRecords(g, name, catalogueEntry(*tableOfFile(name)).recordLength);
    }
    constexpr std::size_t kDayLength = DayRecord::kLength;
    for (int year = s.firstScheduleYear; year <= s.lastScheduleYear; ++year) {
        std::string name = fmt::format("{}.vel", year);
        if (wholeRecords(g, name, kDayLength) != static_cast<std::uintmax_t>(daysInYear(year)) * kDayLength)
            refuse(g, fmt::format("the day index {} does not hold every day of {}", name, year));
    }
    auto labels = static_cast<int64_t>(wholeRecords(g, "label.vel", LabelRecord::kLength) / LabelRecord::kLength);
    // The empty set that init makes has no labels and no player.
    bool emptySet = labels == 0 && s.player.playerLabel == 0;
    if (!emptySet && (s.player.playerLabel < 1 || s.player.playerLabel > labels))
        refuse(g, fmt::format("svar.vel names player label {}; label.vel has {}", s.player.playerLabel, labels));
}

}  // namespace trovane

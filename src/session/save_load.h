#pragma once
// Ten save slots. A save is a second copy of the working set under the slot's
// extension (".sg0" to ".sg9"), the year files of the schedule, and the
// session record svar.sg<slot>. prefs.gam and highscore.gam are never part of it.
//
// A save is written to a staging folder first and moved into place only when
// every file is there, its manifest (manifest.sg<slot>: each file's length
// and checksum) last, so a crash or a full disk half way leaves the slot's
// previous game as it was. A load checks every file of the slot against the
// manifest before it touches the working set, and refuses a broken slot with
// the file and the fault named.
#include <array>
#include <optional>
#include <stdexcept>
#include <string>

namespace trovane {

class Game;

// A slot that cannot be used as asked; the running game is untouched.
class SlotError : public std::runtime_error {
public:
    explicit SlotError(const std::string& what) : std::runtime_error(what) {}
};

// A slot whose files are damaged, missing or not the ones its manifest lists.
class BrokenSlotError : public SlotError {
public:
    explicit BrokenSlotError(const std::string& what) : SlotError(what) {}
};

inline constexpr int kSlotCount = 10;

// Saves the working game into a slot under a name, marks the slot used in
// prefs.gam, and reopens the working set.
void saveGame(Game& g, int slot, const std::string& saveName);
// Replaces the working game with the slot's and opens it.
void loadGame(Game& g, int slot);
// "None" for a free slot, else the name the game was saved under.
std::string slotName(Game& g, int slot);
// Why a used slot cannot be loaded, or none when it can (or is free).
std::optional<std::string> slotFault(Game& g, int slot);
// Frees a slot (its files stay until the next save overwrites them).
void deleteSlot(Game& g, int slot);

struct SlotDetails {
    std::string name;
    double gameDate = 0;
    std::string playerForename;
    std::string playerSurname;
    std::string labelName;
    int64_t cash = 0;  // game money, not converted
    std::array<int, 5> reputation{};
};
// What the slot list shows of a used slot, read from the slot's own files
// without touching the open working set.
SlotDetails slotDetails(Game& g, int slot);

// Finishes or discards a save that was interrupted. Called before any slot is read.
void recoverInterruptedSaves(Game& g);

}  // namespace trovane

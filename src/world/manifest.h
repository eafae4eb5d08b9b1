#pragma once
// A manifest proves a set of files (a save slot, the base set): it lists each
// file's name, byte length and CRC-32, and is written last, atomically, beside
// them. A set is whole when every listed file is there with its length and
// checksum and no other file of the set is.
//
// The manifest is text, one line each:
//   trovane manifest 1
//   <name> <length in bytes> <CRC-32 as 8 hexadecimal digits>    (one line per file)
//   end <number of files>
// A manifest without its end line, or whose count differs, is cut short.
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace trovane {

struct ManifestEntry {
    std::string name;
    uint64_t length = 0;
    uint32_t crc = 0;
};

// The entry of one file as it is now; a file that cannot be read is a BrokenDataError.
ManifestEntry describeFile(const std::filesystem::path& file);

// Writes the manifest of the files (named by their file names) through a
// temporary file that is synced and renamed into place.
void writeManifest(const std::filesystem::path& manifest, const std::vector<std::filesystem::path>& files);

// The names a whole manifest lists; none for a manifest that is missing or damaged.
std::optional<std::vector<std::string>> manifestNames(const std::filesystem::path& manifest);

// The first fault of the set in the manifest's folder, or none when it is whole:
// "label.sg1: 17,550 bytes expected, 16,900 found". present lists the names
// of the files of the set that are in the folder (the manifest itself aside),
// so that one the manifest does not list is a fault too.
std::optional<std::string> manifestFault(const std::filesystem::path& manifest,
                                         const std::vector<std::string>& present);

// The base set (*.gam) of a folder against manifest.gam. prefs.gam and
// highscore.gam change in play and are not part of it.
std::filesystem::path baseSetManifest(const std::filesystem::path& dataDir);
bool isPlayersFile(const std::string& name);
std::vector<std::string> baseSetFilesPresent(const std::filesystem::path& dataDir);
// Refuses (BrokenDataError, the file named) a base set that fails its manifest.
void checkBaseSet(const std::filesystem::path& dataDir);

}  // namespace trovane

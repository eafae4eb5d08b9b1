#pragma once
// The table catalogue: every file number of the game, its record length and
// where its file lives.
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace trovane {

enum class FileNo : int {
    fileCountry = 1,
    fileCity = 2,
    fileVenue = 3,
    fileForename = 4,
    fileSurname = 5,
    fileJob = 6,
    fileStyle = 7,
    fileArtist = 8,
    fileBand = 9,
    fileProduct = 10,
    fileLabel = 11,
    fileStaff = 12,
    fileLook = 13,
    fileAssLook = 14,
    fileDay = 15,
    fileNewBand = 16,
    fileNews = 17,
    fileSchedule = 18,
    fileDisc = 19,
    fileSong = 20,
    fileOffer = 21,
    fileAssStyle = 22,
    fileAssNation = 23,
    fileBusiness = 24,
    fileNewSong = 25,
    filePrefs = 26,
    fileSvar = 27,
    fileTour = 28,
    fileGig = 29,
    fileFestival = 30,
    fileEvent = 31,
    fileCrime = 32,
    fileAward = 33,
    fileCeremony = 34,
    fileShortlist = 35,
    fileChart = 36,
    fileChartRecs = 37,
    fileMedia = 38,
    fileAchieve = 39,
    fileThank = 40,
    fileFact = 41,
    fileHighScore = 42,
    fileCb = 43,
    fileCa = 44,
    fileNewAlbum = 45,
    fileChartRun = 46,
    fileLedger = 47,
    fileTemp = 100,
    fileTemp2 = 101,
};

// How a table's file is named and opened.
enum class FileKind {
    inSet,        // "<stem>.<ext>": part of every table set (base, working, saved)
    workingOnly,  // "<stem>.vel" whatever set is opened; still copied by extension
    perUse,       // opened, used and closed by the operation that needs it
};

struct CatalogueEntry {
    FileNo number;
    std::string_view table;  // the table's name, as dump and the tools call it
    std::string_view stem;   // file name without extension
    std::size_t recordLength;
    FileKind kind;
};

// Every entry of the catalogue, in file-number order.
std::span<const CatalogueEntry> catalogue();
const CatalogueEntry& catalogueEntry(FileNo n);
std::optional<FileNo> fileNoByTableName(std::string_view table);

// The table a file belongs to, from its name: "band.sg3" is band, "2005.vel" a day index.
std::optional<FileNo> tableOfFile(const std::filesystem::path& file);

// The tables openAllTables opens, in its order.
std::span<const FileNo> openAllOrder();

// The files copyTableSet copies, in its order, as stems ("chart0" ... "chart9" included).
std::span<const std::string_view> tableSetStems();

}  // namespace trovane

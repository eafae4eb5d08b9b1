#include "world/catalogue.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "world/fatal_error.h"

namespace trovane {
namespace {

using enum FileNo;
using enum FileKind;

constexpr std::array kCatalogue = {
    CatalogueEntry{fileCountry, "country", "country", 67, inSet},
    CatalogueEntry{fileCity, "city", "city", 24, inSet},
    CatalogueEntry{fileVenue, "venue", "venue", 44, inSet},
    CatalogueEntry{fileForename, "forename", "forename", 46, inSet},
    CatalogueEntry{fileSurname, "surname", "surname", 44, inSet},
    CatalogueEntry{fileJob, "job", "job", 69, inSet},
    CatalogueEntry{fileStyle, "style", "style", 70, inSet},
    CatalogueEntry{fileArtist, "artist", "artist", 211, inSet},
    CatalogueEntry{fileBand, "band", "band", 351, inSet},
    CatalogueEntry{fileProduct, "product", "product", 43, inSet},
    CatalogueEntry{fileLabel, "label", "label", 650, inSet},
    CatalogueEntry{fileStaff, "staff", "staff", 185, inSet},
    CatalogueEntry{fileLook, "look", "look", 43, inSet},
    CatalogueEntry{fileAssLook, "asslook", "asslook", 5, inSet},
    CatalogueEntry{fileDay, "day", "<year>", 4004, perUse},
    CatalogueEntry{fileNewBand, "newband", "newband", 35, inSet},
    CatalogueEntry{fileNews, "news", "news", 1817, workingOnly},
    CatalogueEntry{fileSchedule, "schedule", "schedule", 53, workingOnly},
    CatalogueEntry{fileDisc, "disc", "disc", 399, inSet},
    CatalogueEntry{fileSong, "song", "song", 145, inSet},
    CatalogueEntry{fileOffer, "offer", "offer", 27, workingOnly},
    CatalogueEntry{fileAssStyle, "assstyle", "assstyle", 5, inSet},
    CatalogueEntry{fileAssNation, "assnation", "assnation", 5, inSet},
    CatalogueEntry{fileBusiness, "business", "business", 66, inSet},
    CatalogueEntry{fileNewSong, "newsong", "newsong", 56, inSet},
    CatalogueEntry{filePrefs, "prefs", "prefs", 272, perUse},
    CatalogueEntry{fileSvar, "svar", "svar", 167, perUse},
    CatalogueEntry{fileTour, "tour", "tour", 179, inSet},
    CatalogueEntry{fileGig, "gig", "gig", 227, inSet},
    CatalogueEntry{fileFestival, "festival", "festival", 276, inSet},
    CatalogueEntry{fileEvent, "event", "event", 2313, inSet},
    CatalogueEntry{fileCrime, "crime", "crime", 41, inSet},
    CatalogueEntry{fileAward, "award", "award", 752, inSet},
    CatalogueEntry{fileCeremony, "ceremony", "ceremony", 155, inSet},
    CatalogueEntry{fileShortlist, "shortlist", "shortlist", 8, workingOnly},
    CatalogueEntry{fileChart, "chart", "chart<N>", 9, perUse},
    CatalogueEntry{fileChartRecs, "chartrecs", "chartrecs", 2125, workingOnly},
    CatalogueEntry{fileMedia, "media", "media", 92, inSet},
    CatalogueEntry{fileAchieve, "achieve", "achieve", 115, inSet},
    CatalogueEntry{fileThank, "thank", "thank", 263, inSet},
    CatalogueEntry{fileFact, "fact", "fact", 1026, perUse},
    CatalogueEntry{fileHighScore, "highscore", "highscore", 107, perUse},
    CatalogueEntry{fileCb, "cb", "cb", 351, perUse},
    CatalogueEntry{fileCa, "ca", "ca", 211, perUse},
    CatalogueEntry{fileNewAlbum, "newalbum", "newalbum", 53, inSet},
    CatalogueEntry{fileChartRun, "chartrun", "chartrun", 21, workingOnly},
    CatalogueEntry{fileLedger, "ledger", "ledger", 142, workingOnly},
    CatalogueEntry{fileTemp, "tmp", "tmp", 0, perUse},
    CatalogueEntry{fileTemp2, "suptmp", "suptmp", 4, perUse},
};

constexpr std::array kOpenAllOrder = {
    fileCountry,   fileCity,    fileVenue,    fileForename, fileSurname, fileJob,       fileStyle,    fileArtist,
    fileBand,      fileProduct, fileLabel,    fileStaff,    fileLook,    fileAssLook,   fileNewBand,  fileNews,
    fileSchedule,  fileDisc,    fileSong,     fileAssStyle, fileOffer,   fileAssNation, fileBusiness, fileNewSong,
    fileTour,      fileGig,     fileFestival, fileEvent,    fileCrime,   fileAward,     fileCeremony, fileShortlist,
    fileChartRecs, fileMedia,   fileAchieve,  fileNewAlbum, fileThank,   fileChartRun, fileLedger,
};

constexpr std::array<std::string_view, 49> kTableSetStems = {
    "artist",   "band",      "city",      "country", "forename", "job",    "label",    "product",  "staff",  "style",
    "surname",  "venue",     "look",      "asslook", "newband",  "news",   "schedule", "disc",     "song",   "offer",
    "assstyle", "assnation", "business",  "newsong", "tour",     "gig",    "festival", "event",    "crime",  "award",
    "ceremony", "shortlist", "chartrecs", "chart0",  "chart1",   "chart2", "chart3",   "chart4",   "chart5", "chart6",
    "chart7",   "chart8",    "chart9",    "media",   "achieve",  "thank",  "newalbum", "chartrun", "ledger",
};

}  // namespace

std::span<const CatalogueEntry> catalogue() { return kCatalogue; }

const CatalogueEntry& catalogueEntry(FileNo n) {
    for (const auto& e : kCatalogue)
        if (e.number == n) return e;
    throw FatalError("No table has file number " + std::to_string(static_cast<int>(n)));
}

std::optional<FileNo> fileNoByTableName(std::string_view table) {
    for (const auto& e : kCatalogue)
        if (e.table == table) return e.number;
    return std::nullopt;
}

std::optional<FileNo> tableOfFile(const std::filesystem::path& file) {
    std::string stem = file.stem().string();
    if (!stem.empty() && std::all_of(stem.begin(), stem.end(), [](unsigned char c) { return std::isdigit(c); }))
        return FileNo::fileDay;
    if (stem.size() == 6 && stem.starts_with("chart") && std::isdigit(static_cast<unsigned char>(stem[5])))
        return FileNo::fileChart;
    for (const auto& e : catalogue())
        if (e.stem == stem) return e.number;
    return std::nullopt;
}

std::span<const FileNo> openAllOrder() { return kOpenAllOrder; }
std::span<const std::string_view> tableSetStems() { return kTableSetStems; }

}  // namespace trovane

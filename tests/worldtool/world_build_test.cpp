// Building the base set: what lands in the records, that a build repeats
// byte for byte, and that a failed build leaves the previous set alone.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <tuple>

#include "support/folder_files.h"
#include "support/temp_folder.h"
#include "world/fatal_error.h"
#include "world/manifest.h"
#include "world/records.h"
#include "worldtool/tiny_world.h"
#include "worldtool/world_compiler.h"

using namespace trovane;
using namespace trovane::worldtool;
using test::folderFiles;
namespace fs = std::filesystem;

namespace {

template <PackedRecord R>
R recordOf(const BaseSet& set, const std::string& file, int n) {
    const auto& bytes = set.files.at(file);
    EXPECT_GE(bytes.size(), n * R::kLength) << file;
    R rec{};
    if (bytes.size() >= n * R::kLength) decodeRecord(bytes.data() + (n - 1) * R::kLength, rec);
    return rec;
}

struct TinyWorld {
    test::TempFolder folder;
    fs::path source = folder.path() / "world";
    fs::path out = folder.path() / "Data";
    TinyWorld() {
        fs::create_directories(source);
        test::writeTinyWorld(source);
    }
};

TEST(WorldBuild, NamesResolveToTheRecordNumbersOfTheirTables) {
    TinyWorld w;
    Diagnostics diag;
    BaseSet set = compileWorld(w.source, diag);
    ASSERT_TRUE(diag.clean());

    EXPECT_EQ(recordOf<CityRecord>(set, "city.gam", 2).country, 5);

    auto oliver = recordOf<ForenameRecord>(set, "forename.gam", 1);
    EXPECT_EQ(std::tuple(oliver.isMale, oliver.countryLinks, oliver.countryWeights),
              std::tuple(kTrue, std::array<uint8_t, 5>{3, 5, 0, 0, 0}, std::array<uint8_t, 5>{8, 1, 0, 0, 0}));
    EXPECT_EQ(recordOf<ForenameRecord>(set, "forename.gam", 3).isMale, kFalse);

    auto indie = recordOf<StyleRecord>(set, "style.gam", 1);
    EXPECT_EQ(indie.bandJobs, (std::array<uint8_t, 7>{1, 2, 0, 0, 0, 0, 0}));
    EXPECT_EQ(std::tuple(indie.soloJob, indie.parentStyle, indie.baseCharisma, indie.baseAngst, indie.baseFlair),
              std::tuple(3, 2, 55, 60, 0));

    auto look = recordOf<LookRecord>(set, "look.gam", 1);
    EXPECT_EQ(std::tuple(look.bounds[2], look.bounds[15]), std::tuple(50, 90));  // controversy low, visual high

    EXPECT_EQ(recordOf<ProductRecord>(set, "product.gam", 1).regionWeights, (std::array<uint8_t, 5>{6, 2, 0, 0, 0}));

    auto lookLink = recordOf<AssRecord>(set, "asslook.gam", 1);  // the look, the style and the bonus
    EXPECT_EQ(std::tuple(lookLink.a, lookLink.b, lookLink.weight), std::tuple(1, 2, 20));

    // Banks of names keep the order of the source, styles included.
    EXPECT_EQ(set.files.at("newband.gam").size(), 3 * NewBandRecord::kLength);
    auto first = recordOf<NewBandRecord>(set, "newband.gam", 1);
    EXPECT_EQ(std::tuple(first.name.str(), first.style), std::tuple("The Paper Lanterns", 2));
    EXPECT_EQ(recordOf<NewBandRecord>(set, "newband.gam", 3).id, 3);

    auto prefs = recordOf<PrefsRecord>(set, "prefs.gam", 1);
    EXPECT_EQ(std::tuple(prefs.currencySymbol.str(), prefs.exchangeRate), std::tuple("£", 1.0f));
}

// Two builds give the same bytes in every file; the set proves itself and
// leaves the player's own files out of its manifest.
TEST(WorldBuild, TwoBuildsGiveIdenticalBytesAndTheSetProvesItself) {
    TinyWorld w;
    ASSERT_TRUE(buildWorld(w.source, w.out).empty());
    auto first = folderFiles(w.out);
    fs::path again = w.folder.path() / "Again";
    ASSERT_TRUE(buildWorld(w.source, again).empty());
    ASSERT_EQ(first.size(), baseSetFileNames().size() + 1);  // and the manifest
    EXPECT_EQ(first, folderFiles(again));
    EXPECT_TRUE(first.at("empty.gam").empty());

    EXPECT_NO_THROW(checkBaseSet(w.out));
    auto listed = manifestNames(baseSetManifest(w.out));
    ASSERT_TRUE(listed);
    EXPECT_EQ(listed->size(), baseSetFileNames().size() - 2);
    for (const char* players : {"prefs.gam", "highscore.gam"})
        EXPECT_EQ(std::count(listed->begin(), listed->end(), players), 0) << players;
    std::ofstream(w.out / "band.gam", std::ios::app) << 'x';
    EXPECT_THROW(checkBaseSet(w.out), BrokenDataError);
}

// A build replaces the files of the set and keeps the others of the folder; a
// failed one leaves the previous set as it was and nothing beside it.
TEST(WorldBuild, ABuildKeepsTheOtherFilesOfTheFolderAndAFailedOneTheWholeSet) {
    TinyWorld w;
    fs::create_directories(w.out);
    std::ofstream(w.out / "band.sg3") << "a saved game";
    std::ofstream(w.out / "country.gam") << "stale";
    ASSERT_TRUE(buildWorld(w.source, w.out).empty());
    EXPECT_EQ(fs::file_size(w.out / "band.sg3"), 12u);
    EXPECT_EQ(fs::file_size(w.out / "country.gam"), 6 * CountryRecord::kLength);
    auto before = folderFiles(w.out);

    test::writeSource(w.source, "cities.toml", "city = [ { name = \"London\", country = \"Atlantis\", size = 1 } ]\n");
    test::writeSource(w.source, "facts.toml", "fact = [ \"A new line that must not appear\" ]\n");
    ASSERT_EQ(buildWorld(w.source, w.out).size(), 1u);
    EXPECT_EQ(folderFiles(w.out), before);
    EXPECT_EQ(std::distance(fs::directory_iterator(w.folder.path()), fs::directory_iterator{}), 2)
        << "nothing is left beside the set";
}

TEST(WorldBuild, TheProgramChecksBuildsAndCounts) {
    TinyWorld w;
    auto run = [](const std::string& args, std::string& output) {
        std::string command = std::string(TROVANE_WORLD_PATH) + " " + args + " 2>&1";
        FILE* pipe = popen(command.c_str(), "r");
        output.clear();
        for (int c; (c = std::fgetc(pipe)) != EOF;) output += static_cast<char>(c);
        return WEXITSTATUS(pclose(pipe));
    };
    std::string output;
    EXPECT_EQ(run("build " + w.source.string() + " " + w.out.string(), output), 0) << output;
    EXPECT_EQ(run("stats --json " + w.out.string(), output), 0) << output;
    EXPECT_NE(output.find("\"country.gam\":6,"), std::string::npos) << output;

    test::writeSource(w.source, "venues.toml",
                      "venue = [\n { name = \"Hall\", city = \"Londres\", capacity = 9 },\n]\n");
    EXPECT_EQ(run("check " + w.source.string(), output), 1);
    EXPECT_NE(output.find("venues.toml:2: unknown city \"Londres\""), std::string::npos) << output;
}

}  // namespace

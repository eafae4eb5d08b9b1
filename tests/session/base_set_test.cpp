#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>

#include "session/new_game.h"
#include "support/folder_files.h"
#include "support/temp_folder.h"
#include "support/tiny_world.h"
#include "world/fatal_error.h"
#include "world/game.h"

using namespace trovane;
namespace fs = std::filesystem;

namespace {

struct BaseDamage {
    const char* what;
    void (*apply)(const fs::path& dataDir);
    const char* fault;
};

class BrokenBaseSet : public ::testing::TestWithParam<BaseDamage> {
protected:
    test::TempFolder folder;
    void SetUp() override { test::writeTinyBaseWorld(folder.path()); }
    std::map<std::string, std::string> workingFiles() { return test::folderFiles(folder.path(), "vel"); }
};

TEST(BaseSet, AWholeBaseSetStartsAGameAndThePlayersFilesMayChange) {
    test::TempFolder folder;
    test::writeTinyBaseWorld(folder.path());
    std::ofstream(folder.path() / "prefs.gam", std::ios::app) << std::string(40, 'x');
    std::ofstream(folder.path() / "highscore.gam", std::ios::app) << std::string(9, 'y');
    Game g(folder.path(), 1);
    EXPECT_NO_THROW(beginNewGame(g));
    EXPECT_TRUE(fs::exists(folder.path() / "country.vel"));
}

TEST_P(BrokenBaseSet, RefusesANewGameByNameAndWritesNothing) {
    GetParam().apply(folder.path());
    auto before = workingFiles();
    Game g(folder.path(), 1);
    try {
        beginNewGame(g);
        ADD_FAILURE() << "a broken base set started a game";
    } catch (const BrokenDataError& e) {
        EXPECT_NE(std::string(e.what()).find(GetParam().fault), std::string::npos) << e.what();
    }
    EXPECT_EQ(workingFiles(), before);
}

INSTANTIATE_TEST_SUITE_P(
    BaseSet, BrokenBaseSet,
    ::testing::Values(BaseDamage{"AByteFlipped",
                                 [](const fs::path& d) {
                                     std::fstream f(d / "city.gam", std::ios::in | std::ios::out | std::ios::binary);
                                     f.seekp(3);
                                     f.put('\x7f');
                                 },
                                 "city.gam: checksum"},
                      BaseDamage{"AFileTooMany", [](const fs::path& d) { std::ofstream(d / "extra.gam") << "x"; },
                                 "extra.gam is not in manifest.gam"},
                      BaseDamage{"TheManifestMissing", [](const fs::path& d) { fs::remove(d / "manifest.gam"); },
                                 "manifest.gam is missing"}),
    [](const auto& info) { return std::string(info.param.what); });

}  // namespace

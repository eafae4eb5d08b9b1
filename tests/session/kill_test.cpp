// trovane-sim killed at random points of a seeded run, in the middle of its
// commits too: whatever the point, the next start finds the working set as an
// uninterrupted run left it at the end of some day.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <map>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "support/folder_files.h"
#include "support/temp_folder.h"

namespace fs = std::filesystem;

namespace {

using Files = std::map<std::string, std::string>;

constexpr int kDays = 8;
constexpr const char* kSeed = "4242";

// The files of the working set; the journal, which each commit writes over,
// holds none of the game.
Files setFiles(const fs::path& dir) {
    Files files = trovane::test::folderFiles(dir);
    files.erase("journal.jnl");
    return files;
}

void restore(const fs::path& dir, const Files& files) {
    fs::remove_all(dir);
    fs::create_directories(dir);
    for (const auto& [name, bytes] : files)
        std::ofstream(dir / name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

// Starts trovane-sim with the arguments; stopAt > 0 makes it end itself at that commit point.
pid_t start(const fs::path& dir, std::vector<std::string> args, long stopAt = 0) {
    pid_t pid = fork();
    if (pid == 0) {
        if (stopAt > 0) setenv("TROVANE_SIM_STOP_AT", std::to_string(stopAt).c_str(), 1);
        freopen("/dev/null", "w", stdout);
        freopen("/dev/null", "w", stderr);
        std::vector<std::string> all = {TROVANE_SIM_PATH, "--data", dir.string(), "--seed", kSeed};
        all.insert(all.end(), args.begin(), args.end());
        std::vector<char*> argv;
        for (auto& a : all) argv.push_back(a.data());
        argv.push_back(nullptr);
        execv(argv[0], argv.data());
        _exit(127);
    }
    return pid;
}

int finish(pid_t pid) {
    int status = 0;
    waitpid(pid, &status, 0);
    if (WIFEXITED(status)) return WEXITSTATUS(status);
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : -1;
}

int run(const fs::path& dir, std::vector<std::string> args, long stopAt = 0) {
    return finish(start(dir, std::move(args), stopAt));
}

class KilledRun : public ::testing::Test {
protected:
    trovane::test::TempFolder folder;
    fs::path dir = folder.path() / "data";
    Files begun;                 // the game as new made it
    std::vector<Files> dayEnds;  // the set after 0, 1, ... kDays days of an uninterrupted run

    void SetUp() override {
        ASSERT_EQ(run(dir, {"new", "--forename", "Ann", "--surname", "Lee", "--born", "1980-01-02", "--nationality",
                            "English", "--found", "Kill Test Records", "--continent", "Europe", "--country", "England",
                            "--city", "London", "--style", "Rock"}),
                  0)
            << "a new game needs the compiled base set beside trovane-sim";
        begun = setFiles(dir);
        // The first k days of a seeded run are the whole of a run of k days with that seed.
        for (int k = 0; k <= kDays; ++k) {
            restore(dir, begun);
            ASSERT_EQ(run(dir, {"advance", std::to_string(k)}), 0);
            dayEnds.push_back(setFiles(dir));
        }
        ASSERT_NE(dayEnds.front(), dayEnds.back());
    }

    // The next start must find the set at the end of some day, and go on from it.
    void expectADayEnd(const std::string& how) {
        ASSERT_EQ(run(dir, {"status"}), 0) << how;
        Files now = setFiles(dir);
        std::string nearest;  // the files that differ from the nearest day's end
        for (const auto& end : dayEnds) {
            std::string differ;
            for (const auto& [name, bytes] : now)
                if (!end.contains(name) || end.at(name) != bytes) differ += " " + name;
            for (const auto& [name, bytes] : end)
                if (!now.contains(name)) differ += " -" + name;
            if (differ.empty()) return;
            if (nearest.empty() || differ.size() < nearest.size()) nearest = differ;
        }
        ADD_FAILURE() << how << ": the working set matches no day's end of the uninterrupted run; nearest differs in"
                      << nearest;
    }
};

TEST_F(KilledRun, LeavesTheWorkingSetAtTheEndOfADay) {
    std::mt19937 random(20041);
    // How many commit points the whole run has: stopping one past the last lets it finish.
    long points = 1;
    while (true) {
        restore(dir, begun);
        if (run(dir, {"advance", std::to_string(kDays)}, points * 2) == 0) break;
        points *= 2;
        ASSERT_LT(points, 1L << 20);
    }
    restore(dir, begun);
    auto t0 = std::chrono::steady_clock::now();
    ASSERT_EQ(run(dir, {"advance", std::to_string(kDays)}), 0);
    auto runTime = std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - t0);

#ifdef TROVANE_SANITIZED
    // Every run is several times slower under the sanitizers: fewer trials keep the suite within its time.
    constexpr int kHookStops = 30;
    constexpr int kSignalKills = 30;
#else
    constexpr int kHookStops = 150;    // between the journal and the files, between two files, after a commit
    constexpr int kSignalKills = 150;  // SIGKILL at a random moment of the run
#endif
    int stopped = 0;
    for (int i = 0; i < kHookStops; ++i) {
        long at = std::uniform_int_distribution<long>(1, points * 2)(random);
        restore(dir, begun);
        int status = run(dir, {"advance", std::to_string(kDays)}, at);
        stopped += status == 9;
        expectADayEnd("stopped at commit point " + std::to_string(at));
        if (HasFailure()) return;
    }
    EXPECT_GT(stopped, kHookStops / 4) << "the stops should mostly land inside the run";
    int killed = 0;
    for (int i = 0; i < kSignalKills; ++i) {
        auto delay = std::uniform_int_distribution<long>(0, runTime.count())(random);
        restore(dir, begun);
        pid_t pid = start(dir, {"advance", std::to_string(kDays)});
        std::this_thread::sleep_for(std::chrono::microseconds(delay));
        kill(pid, SIGKILL);
        killed += finish(pid) == 128 + SIGKILL;
        expectADayEnd("killed after " + std::to_string(delay) + " microseconds");
        if (HasFailure()) return;
    }
    EXPECT_GT(killed, 0);
    std::printf("%d of %d stops and %d of %d kills landed inside the run\n", stopped, kHookStops, killed, kSignalKills);
}

}  // namespace

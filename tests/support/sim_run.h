#pragma once
// Runs trovane-sim on a data folder and reads files back, for the tests of its verbs.
#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>

namespace trovane::test {

// trovane-sim with the arguments on the data folder: its exit status and what
// it printed, stdout and stderr together.
inline std::pair<int, std::string> runSim(const std::filesystem::path& data, const std::string& args) {
    const std::string cmd = std::string(TROVANE_SIM_PATH) + " --data " + data.string() + " " + args + " 2>&1";
    std::string out;
    FILE* p = popen(cmd.c_str(), "r");
    if (p == nullptr) return {-1, "could not start " + cmd};
    char buf[4096];
    while (std::size_t n = std::fread(buf, 1, sizeof buf, p)) out.append(buf, n);
    const int status = pclose(p);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, out};
}

// The whole file as bytes.
// A refusal as trovane-sim gives it: the status and the one line said.
inline std::pair<int, std::string> said(int status, const std::string& words) {
    return {status, "trovane-sim: " + words + "\n"};
}

inline std::string fileBytes(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

}  // namespace trovane::test

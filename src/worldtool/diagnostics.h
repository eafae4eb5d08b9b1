#pragma once
// The problems found in the world's source, each with the file and line it is on.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trovane::worldtool {

struct SourceProblem {
    std::string file;  // the source file's name within the source folder
    int64_t line = 0;  // 1-based; 0 when the problem belongs to no line
    std::string message;
};

class Diagnostics {
public:
    void report(std::string_view file, int64_t line, std::string message);

    bool clean() const { return problems_.empty(); }
    // Every problem, by file and then line; problems on one line keep the order they were found in.
    std::vector<SourceProblem> sorted() const;

private:
    std::vector<SourceProblem> problems_;
};

// "countries.toml:12: unknown country \"Frnace\""
std::string describe(const SourceProblem& p);

}  // namespace trovane::worldtool

#include "worldtool/diagnostics.h"

#include <algorithm>

#include <fmt/format.h>

namespace trovane::worldtool {

void Diagnostics::report(std::string_view file, int64_t line, std::string message) {
    problems_.push_back(SourceProblem{std::string(file), line, std::move(message)});
}

std::vector<SourceProblem> Diagnostics::sorted() const {
    std::vector<SourceProblem> out = problems_;
    std::stable_sort(out.begin(), out.end(), [](const SourceProblem& a, const SourceProblem& b) {
        if (a.file != b.file) return a.file < b.file;
        return a.line < b.line;
    });
    return out;
}

std::string describe(const SourceProblem& p) {
    if (p.line > 0) return fmt::format("{}:{}: {}", p.file, p.line, p.message);
    return fmt::format("{}: {}", p.file, p.message);
}

}  // namespace trovane::worldtool

#include "support/temp_folder.h"

#include <unistd.h>

#include <atomic>
#include <stdexcept>

namespace trovane::test {

TempFolder::TempFolder() {
    static std::atomic<int> counter{0};
    auto base = std::filesystem::temp_directory_path() /
                ("trovane-test-" + std::to_string(::getpid()) + "-" + std::to_string(counter++));
    std::filesystem::remove_all(base);
    std::filesystem::create_directories(base);
    path_ = base;
}

TempFolder::~TempFolder() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
}

}  // namespace trovane::test

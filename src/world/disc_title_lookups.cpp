#include "world/disc_title_lookups.h"

#include <string>

#include "world/game.h"
#include "world/record_bytes.h"

namespace trovane {

namespace {

const std::size_t kDiscTitle = offsetIn<DiscRecord>("title");
constexpr std::size_t kTitleWidth = decltype(DiscRecord::title)::width;

std::string_view titleOf(std::span<const uint8_t> bytes) { return storedTitle(bytes, kDiscTitle); }

}  // namespace

std::string_view storedTitle(std::span<const uint8_t> bytes, std::size_t at) {
    std::string_view t(reinterpret_cast<const char*>(bytes.data() + at), kTitleWidth);
    const auto first = t.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return t.substr(first, t.find_last_not_of(' ') - first + 1);
}

int32_t firstDiscTitled(Game& g, std::string_view title) {
    DiscTitleIndex& index = g.discTitles;
    const int32_t last = g.disc.recordCount() - 1;
    if (index.generation != g.disc.generation() || index.covered > last) index.reset(g.disc.generation());
    for (int32_t n = index.covered + 1; n <= last; ++n) {
        index.discs[std::string(titleOf(g.disc.bytesOf(n)))].insert(n);
        index.covered = n;
    }
    auto it = index.discs.find(std::string(title));
    return it == index.discs.end() || it->second.empty() ? 0 : *it->second.begin();
}

void watchDiscTitles(Game& g) {
    g.disc.watchWrites(&g.discTitles, [&g](int32_t n, std::span<const uint8_t> before, std::span<const uint8_t> after) {
        DiscTitleIndex& index = g.discTitles;
        // A record the index has not taken in yet is read whole at the next lookup.
        if (index.generation != g.disc.generation() || n > index.covered || before.empty()) return;
        const std::string_view was = titleOf(before);
        const std::string_view now = titleOf(after);
        if (was == now) return;  // most writes are sales
        auto it = index.discs.find(std::string(was));
        if (it != index.discs.end()) {
            it->second.erase(n);
            if (it->second.empty()) index.discs.erase(it);
        }
        index.discs[std::string(now)].insert(n);
    });
}

}  // namespace trovane

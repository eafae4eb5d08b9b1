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

int32_t firstDiscTitled(Game& g, std::string_view title) { return g.discTitles.firstOf(std::string(title)); }

void watchDiscTitles(Game& g) {
    g.discTitles.keep(
        g.disc,
        [](std::span<const uint8_t> bytes) {
            KeyedRecords<std::string>::Keys keys;
            keys.add(std::string(titleOf(bytes)));
            return keys;
        },
        {{kDiscTitle, kTitleWidth}});
}

}  // namespace trovane

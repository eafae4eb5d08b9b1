#include "world/news_lookups.h"

#include <bit>
#include <cstring>
#include <optional>
#include <span>

#include "world/fatal_error.h"
#include "world/game.h"

namespace trovane {

namespace {

static_assert(std::endian::native == std::endian::little, "records are read in place as little-endian");

std::size_t offsetOf(std::optional<std::size_t> at) {
    if (!at) throw FatalError("a side index names a field its record lacks");
    return *at;
}

const std::size_t kMustReply = offsetOf(fieldOffset<NewsRecord>("mustReply"));
const std::size_t kReplied = offsetOf(fieldOffset<NewsRecord>("replied"));

int16_t flagAt(std::span<const uint8_t> bytes, std::size_t at) {
    int16_t v = 0;
    std::memcpy(&v, bytes.data() + at, sizeof v);
    return v;
}

bool isHeld(std::span<const uint8_t> bytes) {
    return flagAt(bytes, kMustReply) == kTrue && flagAt(bytes, kReplied) == kFalse;
}

}  // namespace

int32_t firstHeldNewsItem(Game& g) {
    HeldNewsIndex& index = g.heldNews;
    const int32_t last = g.news.recordCount() - 1;
    if (index.generation != g.news.generation() || index.covered > last) index.reset(g.news.generation());
    for (int32_t n = index.covered + 1; n <= last; ++n) {
        if (isHeld(g.news.bytesOf(n))) index.held.insert(n);
        index.covered = n;
    }
    return index.held.empty() ? 0 : *index.held.begin();
}

void watchHeldNews(Game& g) {
    g.news.watchWrites = [&g](int32_t n, std::span<const uint8_t> before, std::span<const uint8_t> after) {
        HeldNewsIndex& index = g.heldNews;
        // A record the index has not taken in yet is read whole at the next lookup.
        if (index.generation != g.news.generation() || n > index.covered || before.empty()) return;
        if (isHeld(after))
            index.held.insert(n);
        else
            index.held.erase(n);
    };
}

}  // namespace trovane
